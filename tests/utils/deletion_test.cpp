#include "support/scratch_folder.h"
#include "support/suite_name.h"
#include <ravo/DIUtils.h>

#include <filesystem>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

// Where the system's header makes "DeleteFile" this name, UTF-16 must still do.
TEST(DeleteFileA, TakesNamesInUtf16Too) {
  const test::ScratchFolder scratch;
  scratch.Write("file", "");
  EXPECT_TRUE(DeleteFileA(test::SuiteName(scratch.Path() / "file")));
  EXPECT_FALSE(exists(scratch.Path() / "file"));
  EXPECT_FALSE(DeleteFileA(test::SuiteName(scratch.Path() / "file")));
}

// Two characters are a drive only where the second is a colon.
TEST(DeleteDirectory, DeletesTheShortestNames) {
  const test::ScratchFolder scratch;
  create_directory(scratch.Path() / "ab");
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(scratch.Path());
  const bool deleted = DeleteDirectoryW(u"ab", true);
  std::filesystem::current_path(before);
  EXPECT_TRUE(deleted);
  EXPECT_FALSE(exists(scratch.Path() / "ab"));
}

}  // namespace
}  // namespace ravo::DIUtils
