#include "support/scratch_folder.h"
#include <ravo/platform/linux/linux_machine.h>
#include <ravo/platform/linux/memory.h>

#include <gtest/gtest.h>

namespace ravo::platform::gnu_linux {
namespace {

constexpr std::string_view kInfo =
    "MemTotal:        2048 kB\nMemFree:  1 kB\nMemAvailable:    1024 kB\nSwapTotal: 5 kB\n"
    "CommitLimit:     3000 kB\nCommitted_AS:    1000 kB\n";
constexpr std::string_view kStatus = "Name:\tx\nVmPeak:\t  900 kB\nVmSize:\t     500 kB\n";

TEST(MemoryFrom, ReadsTheFields) {
  const MemoryFigures figures = MemoryFrom(kInfo, kStatus, 4096 * 1024);
  EXPECT_EQ(figures.total_physical, 2048u * 1024);
  EXPECT_EQ(figures.available_physical, 1024u * 1024);
  EXPECT_EQ(figures.total_virtual, 4096u * 1024);
  EXPECT_EQ(figures.available_virtual, 3596u * 1024);
  EXPECT_EQ(figures.total_page_file, 3000u * 1024);
  EXPECT_EQ(figures.available_page_file, 2000u * 1024);
}

TEST(MemoryFrom, LargerNumbersReadAsTheLargest) {
  const MemoryFigures figures =
      MemoryFrom("MemTotal: 4194303 kB\nMemAvailable: 4194304 kB\nCommitLimit: 99999999999999999999999 kB\n",
                 "", std::uint64_t{1} << 47);
  EXPECT_EQ(figures.total_physical, 0xFFFFFC00u);
  EXPECT_EQ(figures.available_physical, 0xFFFFFFFFu);
  EXPECT_EQ(figures.total_virtual, 0xFFFFFFFFu);
  EXPECT_EQ(figures.available_virtual, 0xFFFFFFFFu);
  EXPECT_EQ(figures.total_page_file, 0xFFFFFFFFu);
}

TEST(MemoryFrom, NothingIsLeftWhereMoreIsUsedThanThereIs) {
  const MemoryFigures figures =
      MemoryFrom("CommitLimit: 10 kB\nCommitted_AS: 11 kB\n", "VmSize: 8 kB\n", 4096);
  EXPECT_EQ(figures.available_page_file, 0u);
  EXPECT_EQ(figures.available_virtual, 0u);
}

TEST(MemoryFrom, MissingAndBrokenFieldsCountAsNothing) {
  for (const std::string_view text : {"", "MemTotal", "MemTotal:", "MemTotal: lots\n", "XMemTotal: 5 kB\n",
                                      "MemTotalX: 5 kB\n", "MemTotal: -5 kB\n"}) {
    EXPECT_EQ(MemoryFrom(text, text, 0).total_physical, 0u) << text;
  }
}

TEST(LinuxMachineMemory, ReadsBelowItsRoot) {
  const test::ScratchFolder folder;
  folder.Write("proc/meminfo", kInfo);
  folder.Write("proc/self/status", kStatus);
  const MemoryFigures figures = LinuxSystem(folder.Path().string()).Memory();
  EXPECT_EQ(figures.total_physical, 2048u * 1024);
  EXPECT_EQ(figures.available_page_file, 2000u * 1024);
  EXPECT_EQ(LinuxSystem((folder.Path() / "none").string()).Memory().total_physical, 0u);
}

TEST(LinuxMachineMemory, TheRealMachineHasSome) {
  const MemoryFigures figures = LinuxSystem().Memory();
  EXPECT_GT(figures.total_physical, 0u);
  EXPECT_GE(figures.total_physical, figures.available_physical);
  EXPECT_GT(figures.total_virtual, 0u);
}

}  // namespace
}  // namespace ravo::platform::gnu_linux
