#include "support/scoped_environment.h"
#include "support/scratch_folder.h"
#include <ravo/platform/posix/folders.h>
#include <ravo/platform/posix/posix_machine.h>
#include <ravo/platform/posix/shell_text.h>

#include <gtest/gtest.h>

namespace ravo::platform::posix {
namespace {

using test::ScopedEnvironment;

TEST(ShellAssignment, TakesQuotesAndBackslashesOff) {
  struct Row {
    std::string_view text;
    std::optional<std::string> value;
  };
  const Row rows[] = {
      {"NAME=bare", "bare"},
      {"NAME=\"two words\"\n", "two words"},
      {"NAME='single \\ quotes'", "single \\ quotes"},
      {"NAME=\"a \\\"b\\\" \\$c \\\\\"", "a \"b\" $c \\"},
      {"NAME=\"not closed", "not closed"},
      {"NAME=\"text\" # comment", "text"},
      {"NAME=", ""},
      {"NAME=\"\"", ""},
      {"NAME=one\nNAME=two", "two"},
      {"  NAME=indented  \r\n", "indented"},
      {"NAME=a\\", "a\\"},
      {"#NAME=comment\nNAMES=other\nNAM=other\nNAME", std::nullopt},
      {"", std::nullopt},
  };
  for (const Row& row : rows) EXPECT_EQ(ShellAssignment(row.text, "NAME"), row.value) << row.text;
}

TEST(UserFolderFrom, ExpandsTheHomeFolder) {
  EXPECT_EQ(UserFolderFrom("XDG_PUBLICSHARE_DIR=\"$HOME/Veřejné\"\n", "XDG_PUBLICSHARE_DIR", "/srv/jan"),
            "/srv/jan/Veřejné");
  EXPECT_EQ(UserFolderFrom("XDG_PUBLICSHARE_DIR=\"/srv/public\"\n", "XDG_PUBLICSHARE_DIR", "/srv/jan"),
            "/srv/public");
  EXPECT_EQ(UserFolderFrom("# nothing\n", "XDG_PUBLICSHARE_DIR", "/srv/jan"), "");
  EXPECT_EQ(UserFolderFrom("XDG_PUBLICSHARE_DIR=\"Public\"\n", "XDG_PUBLICSHARE_DIR", "/srv/jan"), "");
}

TEST(UserFolderFrom, TheHomeFolderItselfMeansNone) {
  EXPECT_EQ(UserFolderFrom("XDG_PUBLICSHARE_DIR=\"$HOME/\"\n", "XDG_PUBLICSHARE_DIR", "/srv/jan"), "");
  EXPECT_EQ(UserFolderFrom("XDG_PUBLICSHARE_DIR=\"$HOME\"\n", "XDG_PUBLICSHARE_DIR", "/srv/jan"), "");
}

TEST(PosixMachineFolder, SystemFoldersAreFixed) {
  const PosixFolders machine;
  EXPECT_EQ(machine.Folder(SystemFolder::System), u"/usr/lib");
  EXPECT_EQ(machine.Folder(SystemFolder::Windows), u"/usr");
}

TEST(PosixMachineFolder, TheScratchFolderEndsInADelimiter) {
  const PosixFolders machine;
  {
    const ScopedEnvironment variable("TMPDIR", "/var/tmp");
    EXPECT_EQ(machine.Folder(SystemFolder::Temporary), u"/var/tmp/");
  }
  {
    const ScopedEnvironment variable("TMPDIR", "/var/tmp/");
    EXPECT_EQ(machine.Folder(SystemFolder::Temporary), u"/var/tmp/");
  }
  for (const char* none : {static_cast<const char*>(nullptr), ""}) {
    const ScopedEnvironment variable("TMPDIR", none);
    EXPECT_EQ(machine.Folder(SystemFolder::Temporary), u"/tmp/");
  }
}

// Without the variable, the account's own folder counts.
TEST(PosixMachineFolder, DocumentsForEveryoneWithoutAVariable) {
  const PosixFolders machine;
  const ScopedEnvironment no_public("XDG_PUBLICSHARE_DIR", nullptr);
  const test::ScratchFolder folder;
  folder.Write("user-dirs.dirs", "XDG_PUBLICSHARE_DIR=\"$HOME/Public\"\n");
  const ScopedEnvironment configuration("XDG_CONFIG_HOME", folder.Path().c_str());
  const ScopedEnvironment no_home("HOME", nullptr);
  EXPECT_TRUE(machine.Folder(SystemFolder::CommonDocuments).ends_with(u"/Public"));
}

TEST(PosixMachineFolder, MoreThan259UnitsAreNone) {
  const PosixFolders machine;
  const std::string longest = "/" + std::string(257, 'x');
  {
    const ScopedEnvironment variable("TMPDIR", longest.c_str());
    EXPECT_EQ(machine.Folder(SystemFolder::Temporary).size(), 259u);
  }
  const ScopedEnvironment variable("TMPDIR", (longest + "x").c_str());
  EXPECT_EQ(machine.Folder(SystemFolder::Temporary), u"");
}

TEST(PosixMachineFolder, DocumentsForEveryone) {
  const PosixFolders machine;
  const test::ScratchFolder folder;
  const ScopedEnvironment home("HOME", folder.Path().c_str());
  const ScopedEnvironment no_configuration("XDG_CONFIG_HOME", nullptr);
  const ScopedEnvironment no_public("XDG_PUBLICSHARE_DIR", nullptr);
  EXPECT_EQ(machine.Folder(SystemFolder::CommonDocuments), u"");
  folder.Write(".config/user-dirs.dirs", "XDG_PUBLICSHARE_DIR=\"$HOME/Public\"\n");
  EXPECT_EQ(machine.Folder(SystemFolder::CommonDocuments), folder.File(u"Public"));
  folder.Write("conf/user-dirs.dirs", "XDG_PUBLICSHARE_DIR=\"/srv/other\"\n");
  const ScopedEnvironment configuration("XDG_CONFIG_HOME", (folder.Path() / "conf").c_str());
  EXPECT_EQ(machine.Folder(SystemFolder::CommonDocuments), u"/srv/other");
  const ScopedEnvironment variable("XDG_PUBLICSHARE_DIR", "/srv/first");
  EXPECT_EQ(machine.Folder(SystemFolder::CommonDocuments), u"/srv/first");
}

TEST(PosixMachineShellFolder, IsWhatTheUserCallsSo) {
  const test::ScratchFolder home;
  home.Write(".config/user-dirs.dirs", "XDG_DESKTOP_DIR=\"$HOME/Plocha\"\nXDG_DOCUMENTS_DIR=\"/srv/doc\"\n");
  const std::string path = home.Path().string();
  const ScopedEnvironment variable("HOME", path.c_str());
  const ScopedEnvironment configuration("XDG_CONFIG_HOME", nullptr);
  const ScopedEnvironment data("XDG_DATA_HOME", "/srv/data");
  const PosixFolders machine;
  const std::u16string folder = home.Path().u16string();
  struct Row {
    std::int32_t number;
    std::u16string result;
  };
  const Row rows[] = {{0, folder + u"/Plocha"},
                      {16, folder + u"/Plocha"},
                      {5, u"/srv/doc"},
                      {13, folder},
                      {14, folder},
                      {21, folder},
                      {39, folder},
                      {26, folder + u"/.config"},
                      {28, u"/srv/data"},
                      {40, folder},
                      {36, u"/usr"},
                      {37, u"/usr/lib"},
                      {46, u""},
                      {1, u""},
                      {-1, u""}};
  for (const Row& row : rows) EXPECT_EQ(machine.ShellFolder(row.number), row.result) << row.number;
}

TEST(PosixMachineShellFolder, OfADesktopThatNobodyNamed) {
  const test::ScratchFolder home;
  const std::string path = home.Path().string();
  const ScopedEnvironment variable("HOME", path.c_str());
  const ScopedEnvironment configuration("XDG_CONFIG_HOME", nullptr);
  EXPECT_EQ(PosixFolders().ShellFolder(16), home.Path().u16string() + u"/Desktop");
  EXPECT_EQ(PosixFolders().ShellFolder(5), home.Path().u16string());
}

}  // namespace
}  // namespace ravo::platform::posix
