#include "support/scratch_folder.h"
#include "support/suite_name.h"
#include <ravo/DIUtils.h>

#include <gtest/gtest.h>
// The system's headers need this order.
// clang-format off
#include <windows.h>
#include <shellapi.h>
// clang-format on

namespace ravo::DIUtils {
namespace {

using test::ScratchFolder;
using test::SuiteName;

TEST(DeleteDirectory, AFileInUseStays) {
  const ScratchFolder scratch;
  scratch.Write("tree/used", "x");
  const HANDLE file = CreateFileW((scratch.Path() / "tree/used").c_str(), GENERIC_READ, FILE_SHARE_READ,
                                  nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(file, INVALID_HANDLE_VALUE);
  EXPECT_FALSE(DeleteDirectoryW(SuiteName(scratch.Path() / "tree"), true));
  EXPECT_TRUE(exists(scratch.Path() / "tree/used"));
  CloseHandle(file);
  EXPECT_TRUE(DeleteDirectoryW(SuiteName(scratch.Path() / "tree"), true));
}

// The shell decides: Wine's makes such a file writable and deletes it, as that of Windows does when it runs
// without prompts.
TEST(DeleteDirectory, AReadOnlyFileIsTheShellsToDecide) {
  const ScratchFolder scratch;
  scratch.Write("tree/file", "x");
  ASSERT_TRUE(SetFileAttributesW((scratch.Path() / "tree/file").c_str(), FILE_ATTRIBUTE_READONLY));
  const bool deleted = DeleteDirectoryW(SuiteName(scratch.Path() / "tree"), true);
  EXPECT_EQ(deleted, !exists(scratch.Path() / "tree/file"));
  SetFileAttributesW((scratch.Path() / "tree/file").c_str(), FILE_ATTRIBUTE_NORMAL);
}

// The number of entries in the recycle bins of this drive; Wine stores them where the desktop does.
std::size_t CountInRecycleBin() {
  SHQUERYRBINFO bin{};
  bin.cbSize = sizeof bin;
  return SHQueryRecycleBinW(nullptr, &bin) == S_OK ? static_cast<std::size_t>(bin.i64NumItems) : 0;
}

// Moves a path to the recycle bin, as an undoable deletion does.
bool MoveToRecycleBin(const std::filesystem::path& path) {
  std::wstring source = path.wstring();
  source.push_back(L'\0');
  SHFILEOPSTRUCTW operation{};
  operation.wFunc = FO_DELETE;
  operation.pFrom = source.c_str();
  operation.fFlags = FOF_SILENT | FOF_NOCONFIRMATION | FOF_ALLOWUNDO;
  return SHFileOperationW(&operation) == 0;
}

TEST(DeleteDirectory, NothingGoesIntoTheRecycleBin) {
  const ScratchFolder scratch;
  scratch.Write("tree/file", "x");
  scratch.Write("undone", "x");
  const std::size_t before = CountInRecycleBin();
  EXPECT_TRUE(DeleteDirectoryW(SuiteName(scratch.Path() / "tree"), true));
  EXPECT_EQ(CountInRecycleBin(), before);
  // Check that the count increases.
  ASSERT_TRUE(MoveToRecycleBin(scratch.Path() / "undone"));
  EXPECT_EQ(CountInRecycleBin(), before + 1);
}

// The shell cannot handle names past its maximum length: the result says what happened. Some shells then
// delete the contents of the current folder.
TEST(DeleteDirectory, KeepsAFolderWithNamesTooLongForTheShell) {
  const ScratchFolder scratch;
  scratch.Write("bystander", "");
  const std::u16string tree = SuiteName(scratch.Path() / "tree");
  std::u16string folder = u"\\\\?\\" + tree;
  for (int i = 0; i < 5; ++i) folder += u"\\" + std::u16string(100, static_cast<char16_t>(u'a' + i));
  ASSERT_TRUE(ForceDirectoriesW(folder));
  ASSERT_TRUE(SaveStrAToFileW("text", folder + u"\\file.txt"));
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(scratch.Path());
  const bool deleted[] = {DeleteDirectoryW(tree, true), DeleteDirectoryW(u"tree", false)};
  std::filesystem::current_path(before);
  EXPECT_FALSE(deleted[0]);
  EXPECT_FALSE(deleted[1]);
  EXPECT_TRUE(FileExistsW(folder + u"\\file.txt"));
  EXPECT_TRUE(exists(scratch.Path() / "bystander"));
}

// Creates a link to a folder with a program of the system that Wine runs on; returns false if there is no
// such program.
bool MakeLink(const std::filesystem::path& folder, const wchar_t* target) {
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  std::wstring command = std::wstring(L"ln -s ") + target + L" link";
  if (!CreateProcessW(L"Z:\\bin\\ln", command.data(), nullptr, nullptr, FALSE, 0, nullptr, folder.c_str(),
                      &start, &process)) {
    return false;
  }
  // The program runs outside Wine, so its process does not tell when it ends.
  for (int i = 0; i < 500 && !exists(folder / "link"); ++i) Sleep(10);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return exists(folder / "link");
}

// Wine 8.0 shows links of the host system without their targets, and its shell and calls always follow them:
// a folder with such a link is left unchanged. Links to files are not visible as links at all, so they cannot
// be handled.
TEST(DeleteDirectory, FollowsNoLinkOutOfTheFolder) {
  const ScratchFolder scratch;
  scratch.Write("outside/kept", "1");
  scratch.Write("tree/below/file", "2");
  if (!MakeLink(scratch.Path() / "tree/below", L"../../outside")) GTEST_SKIP() << "no links can be made here";
  EXPECT_FALSE(DeleteDirectoryW(SuiteName(scratch.Path() / "tree"), true));
  EXPECT_FALSE(DeleteDirectoryW(SuiteName(scratch.Path() / "tree"), false));
  EXPECT_FALSE(DeleteDirectoryW(SuiteName(scratch.Path() / "tree/below/link"), true));
  EXPECT_TRUE(exists(scratch.Path() / "outside/kept"));
  EXPECT_TRUE(exists(scratch.Path() / "tree/below/file"));
}

}  // namespace
}  // namespace ravo::DIUtils
