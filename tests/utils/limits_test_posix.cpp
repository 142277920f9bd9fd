#include "support/scratch_folder.h"
#include "support/suite_name.h"
#include <ravo/DIUtils.h>

#include <cstdlib>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

// Operations that might block or exceed the system's limits run in a separate process.
namespace ravo::DIUtils {
namespace {

using test::ScratchFolder;
using test::SuiteName;

constexpr unsigned kMostSeconds = 30;

// Nested folders of one name, each with a file and a non-empty folder beside the next one.
void Nest(const std::filesystem::path& outermost, const std::string& name, int levels) {
  mkdir(outermost.c_str(), 0700);
  int at = open(outermost.c_str(), O_RDONLY | O_DIRECTORY);
  for (int i = 0; i < levels; ++i) {
    mkdirat(at, name.c_str(), 0700);
    mkdirat(at, "e", 0700);
    mkdirat(at, "e/e", 0700);
    close(openat(at, "f", O_WRONLY | O_CREAT, 0600));
    const int next = openat(at, name.c_str(), O_RDONLY | O_DIRECTORY);
    close(at);
    at = next;
  }
  close(at);
}

bool LimitOpenFiles(rlim_t count) {
  const rlimit limit = {count, count};
  return setrlimit(RLIMIT_NOFILE, &limit) == 0;
}

// Returns 0 if a tree of so many levels is deleted while few files may be open.
int DeletesATree(const ScratchFolder& scratch, const std::string& name, int levels) {
  Nest(scratch.Path() / "tree", name, levels);
  alarm(kMostSeconds);
  if (!LimitOpenFiles(32)) return 2;
  return DeleteDirectoryW(SuiteName(scratch.Path() / "tree"), true) ? 0 : 1;
}

TEST(DeleteDirectoryDeathTest, FoldersNestDeeperThanFilesMayBeOpen) {
  const ScratchFolder scratch;
  EXPECT_EXIT(std::exit(DeletesATree(scratch, "d", 100)), ::testing::ExitedWithCode(0), "");
  EXPECT_FALSE(exists(scratch.Path() / "tree"));
}

TEST(DeleteDirectoryDeathTest, FoldersNestDeeperThanNamesReach) {
  const ScratchFolder scratch;
  EXPECT_EXIT(std::exit(DeletesATree(scratch, std::string(250, 'd'), 50)), ::testing::ExitedWithCode(0), "");
  EXPECT_FALSE(exists(scratch.Path() / "tree"));
}

int DatesAPipe(const ScratchFolder& scratch) {
  alarm(kMostSeconds);
  return SetFileDateYmdW(SuiteName(scratch.Path() / "pipe"), 2024, 2, 29) ? 1 : 0;
}

TEST(SetFileDateDeathTest, APipeWithoutAReaderIsNotWaitedFor) {
  const ScratchFolder scratch;
  ASSERT_EQ(mkfifo((scratch.Path() / "pipe").c_str(), 0600), 0);
  EXPECT_EXIT(std::exit(DatesAPipe(scratch)), ::testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace ravo::DIUtils
