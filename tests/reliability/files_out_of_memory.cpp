#include "out_of_memory.h"
#include "support/fake_machine.h"
#include "support/scratch_folder.h"
#include "support/suite_name.h"
#include <ravo/DIUtils.h>
#include <ravo/platform/code_pages.h>

#include <string>
#include <vector>

// Files, folders and system queries, with memory that runs out at each allocation in turn: only
// `std::bad_alloc` is thrown, no file stays open, and existing files are either unchanged or deleted
// completely.
namespace ravo {
namespace {

using namespace DIUtils;
using test::ExpectSurvivesScarceMemory;
using test::ScratchFolder;
using test::SuiteName;

// Longer than any text with inline storage.
const std::u16string kText(300, u'č');
const std::string kBytes(300, '\xE8');
const std::u16string kName = u"a file whose name is longer than a short text.txt";

std::size_t OpenFiles() {
  std::size_t count = 0;
  for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd"))
    count += entry.exists() ? 1 : 0;
  return count;
}

TEST(FilesOutOfMemory, NamesOfFiles) {
  ExpectSurvivesScarceMemory([] { static_cast<void>(ExtractFilePathW(u"C:\\" + kText + u"\\" + kText)); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(ChangeFileExtW(kText, kText)); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(ExpandFileNameW(kName)); });
  ExpectSurvivesScarceMemory(
      [] { static_cast<void>(ExpandFileNameA("a name that is longer than a short text")); });
}

TEST(FilesOutOfMemory, QuestionsAboutFiles) {
  const ScratchFolder scratch;
  const std::u16string folder = SuiteName(scratch.Path());
  const std::u16string name = folder + u"\\" + kName;
  const std::string narrow = platform::CodePages().ToCodePage(name);
  ASSERT_TRUE(SaveStrAToFileW("x", name));
  const std::size_t open_before = OpenFiles();
  ExpectSurvivesScarceMemory([&] { static_cast<void>(FileExistsW(name)); });
  ExpectSurvivesScarceMemory([&] { static_cast<void>(FileExistsA(narrow)); });
  ExpectSurvivesScarceMemory([&] { static_cast<void>(DirectoryExistsW(folder)); });
  ExpectSurvivesScarceMemory([&] { static_cast<void>(GetFileSizeW(name)); });
  ExpectSurvivesScarceMemory([&] { static_cast<void>(GetFileSizeW(folder + u"\\*.txt")); });
  ExpectSurvivesScarceMemory([&] { static_cast<void>(DiskFreeW(folder)); });
  ExpectSurvivesScarceMemory([&] { static_cast<void>(SetFileDateYmdW(name, 2024, 2, 29)); });
  ExpectSurvivesScarceMemory([&] { static_cast<void>(SetFileDateW(folder, 2451545)); });
  EXPECT_EQ(OpenFiles(), open_before);
}

TEST(FilesOutOfMemory, WholeFiles) {
  const ScratchFolder scratch;
  const std::u16string name = scratch.File(kName);
  const std::size_t open_before = OpenFiles();
  ExpectSurvivesScarceMemory([&] { static_cast<void>(SaveStrWToFileW(kText, name)); });
  ExpectSurvivesScarceMemory([&] {
    std::u16string units = u"before";
    static_cast<void>(LoadStrWFromFileW(name, units));
  });
  ExpectSurvivesScarceMemory([&] {
    std::string bytes;
    static_cast<void>(LoadStrAFromFileA(platform::CodePages().ToCodePage(name), bytes));
  });
  EXPECT_EQ(OpenFiles(), open_before);
}

// A text is unchanged if loading a file into it fails.
TEST(FilesOutOfMemory, ATextStaysWhole) {
  const ScratchFolder scratch;
  const std::u16string name = scratch.File(kName);
  ASSERT_TRUE(SaveStrAToFileW(kBytes, name));
  const std::string before(100, 'b');
  std::string text = before;
  bool is_loaded = false;
  for (std::int64_t requests = 0; !is_loaded; ++requests) {
    ASSERT_EQ(text, before);
    const test::FailingMemory memory(requests);
    try {
      is_loaded = LoadStrAFromFileW(name, text);
    } catch (const std::bad_alloc&) {
      static_cast<void>(memory.HasFailed());
    }
  }
  EXPECT_EQ(text, kBytes);
}

// A file is truncated and written only once all memory for it is allocated.
TEST(FilesOutOfMemory, AFileStaysWhole) {
  const ScratchFolder scratch;
  const std::u16string name = scratch.File(kName);
  ASSERT_TRUE(SaveStrAToFileW("before", name));
  bool is_saved = false;
  for (std::int64_t requests = 0; !is_saved; ++requests) {
    ASSERT_EQ(GetFileSizeW(name), 6);
    const test::FailingMemory memory(requests);
    try {
      is_saved = SaveStrAToFileW(kBytes, name);
    } catch (const std::bad_alloc&) {
      static_cast<void>(memory.HasFailed());
    }
  }
  EXPECT_EQ(GetFileSizeW(name), 300);
}

TEST(FilesOutOfMemory, Folders) {
  const ScratchFolder scratch;
  const std::u16string top = SuiteName(scratch.Path()) + u"\\a folder whose name is no short text";
  const std::u16string folder = top + u"\\below it\\and below that";
  const std::size_t open_before = OpenFiles();
  ExpectSurvivesScarceMemory([&] {
    static_cast<void>(ForceDirectoriesW(folder));
    static_cast<void>(DeleteDirectoryW(top, false));
    static_cast<void>(DeleteDirectoryW(top, true));
  });
  EXPECT_FALSE(DirectoryExistsW(top));
  ExpectSurvivesScarceMemory([&] { static_cast<void>(DeleteFileW(folder)); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(SetCurrentFolderW(GetCurrentFolderW())); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(GetTempFolderA() + GetPersonalFolderA()); });
  EXPECT_EQ(OpenFiles(), open_before);
}

// A second deletion removes whatever a failed one left, and nothing else.
TEST(FilesOutOfMemory, ADeletionCanBeTriedAgain) {
  const ScratchFolder scratch;
  scratch.Write("beside", "x");
  const std::u16string tree = SuiteName(scratch.Path() / "tree");
  for (std::int64_t requests = 0; requests < 40; ++requests) {
    scratch.Write("tree/a file whose name is no short text", "1");
    scratch.Write("tree/a folder whose name is no short text/file", "2");
    {
      const test::FailingMemory memory(requests);
      try {
        static_cast<void>(DeleteDirectoryW(tree, true));
      } catch (const std::bad_alloc&) {
        static_cast<void>(memory.HasFailed());
      }
    }
    EXPECT_TRUE(!DirectoryExistsW(tree) || DeleteDirectoryW(tree, true)) << requests;
    ASSERT_FALSE(DirectoryExistsW(tree));
  }
  EXPECT_EQ(GetFileSizeW(scratch.File(u"beside")), 1);
}

// A new machine for each attempt, because it logs its calls.
TEST(FilesOutOfMemory, Environment) {
  using platform::RegistryRoot;
  ExpectSurvivesScarceMemory([] {
    test::FakeMachine machine;
    machine.Key(RegistryRoot::CurrentUser, u"Software\\Ravo")[u"text"] = kText;
    machine.error_texts[2] = kText + u".\r\n";
    machine.user_name = kText;
    const platform::ScopedMachine scope(machine);
    static_cast<void>(RegReadStrDefW(RegistryRoot::CurrentUser, u"Software\\Ravo", u"text", u""));
    static_cast<void>(RegReadStrDefA(RegistryRoot::CurrentUser, "Software\\Ravo", "none", kBytes));
    static_cast<void>(SysErrorMessageA(2));
    std::string name;
    static_cast<void>(GetUserNameA(name));
  });
}

// The same for the real machine.
TEST(FilesOutOfMemory, EnvironmentOfThisMachine) {
  ExpectSurvivesScarceMemory([] { static_cast<void>(SysErrorMessageW(2)); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(RegReadRegisteredOwnerW()); });
  ExpectSurvivesScarceMemory([] { static_cast<void>(GetDesktopDirectoryFolderW()); });
}

}  // namespace
}  // namespace ravo
