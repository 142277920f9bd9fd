#include "support/scratch_folder.h"
#include "support/suite_name.h"
#include <ravo/DIUtils.h>

#include <filesystem>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

// If the system's header renames "DeleteFile" to this, UTF-16 names must still work.
TEST(DeleteFileA, TakesNamesInUtf16Too) {
  const test::ScratchFolder scratch;
  scratch.Write("file", "");
  EXPECT_TRUE(DeleteFileA(test::SuiteName(scratch.Path() / "file")));
  EXPECT_FALSE(exists(scratch.Path() / "file"));
  EXPECT_FALSE(DeleteFileA(test::SuiteName(scratch.Path() / "file")));
}

// Two characters are a drive only if the second one is a colon.
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
