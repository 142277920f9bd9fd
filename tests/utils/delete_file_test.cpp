#include "support/scratch_folder.h"
#include "support/suite_name.h"
#include <ravo/DIUtils.h>

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

}  // namespace
}  // namespace ravo::DIUtils
