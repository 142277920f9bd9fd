#include <ravo/platform/diagnostics.h>
#include <ravo/platform/drives.h>
#include <ravo/platform/folders.h>
#include <ravo/platform/library_entry.h>
#include <ravo/platform/paths.h>
#include <ravo/platform/registry.h>
#include <ravo/platform/resources.h>
#include <ravo/platform/system.h>

#include <gtest/gtest.h>

namespace ravo::platform {
namespace {

TEST(System, VersionIsSane) {
  const SystemVersion version = System().Version();
  EXPECT_LE(version.family, SystemFamily::Other);
  EXPECT_GT(version.major, 0U);
  EXPECT_LE(version.service_pack.size(), 127U);
  const SystemNumbers numbers = System().VersionNumbers();
  EXPECT_EQ(numbers.family, version.family);
  EXPECT_EQ(numbers.major, version.major);
  EXPECT_EQ(numbers.minor, version.minor);
  EXPECT_EQ(numbers.build, version.build);
}

TEST(System, FoldersFitTheirBuffer) {
  for (const auto folder : {SystemFolder::System, SystemFolder::Windows, SystemFolder::Temporary,
                            SystemFolder::CommonDocuments}) {
    EXPECT_LT(Folders().Folder(folder).size(), 260U);
  }
}

TEST(System, TemporaryFolderEndsInADelimiter) {
  std::u16string folder = Folders().Folder(SystemFolder::Temporary);
  ASSERT_TRUE(folder.ends_with(Paths().PathDelimiter()));
  folder.pop_back();
  EXPECT_TRUE(Paths().FindFile(folder));
}

TEST(System, NamesAreThere) {
  EXPECT_FALSE(System().ComputerName().empty());
  EXPECT_FALSE(System().UserName().empty());
  EXPECT_EQ(System().ComputerName().find(u'\0'), std::u16string::npos);
  EXPECT_EQ(System().UserName().find(u'\0'), std::u16string::npos);
}

TEST(System, AvailableMemoryIsPartOfTheTotal) {
  const MemoryFigures memory = System().Memory();
  EXPECT_GT(memory.total_physical, 0U);
  EXPECT_LE(memory.available_physical, memory.total_physical);
  EXPECT_LE(memory.available_virtual, memory.total_virtual);
  // The page file may differ: if both numbers are too large, systems shorten them to different largest ones.
}

TEST(System, ModuleOfThisCodeIsKnown) { EXPECT_NE(ThisModule(), nullptr); }

TEST(System, DebuggerTakesAnyText) {
  EXPECT_NO_THROW(Diagnostics().DebugOutput(u""));
  EXPECT_NO_THROW(Diagnostics().DebugOutput(u"Účet\n"));
}

TEST(Drives, OnlyLogicalDrivesHaveSpace) {
  const std::uint32_t drives = Drives().LogicalDrives();
  for (unsigned bit = 0; bit < 26; ++bit) {
    const std::u16string drive{static_cast<char16_t>(u'A' + bit), u':'};
    const auto space = Drives().SpaceOfFolder(drive);
    if ((drives >> bit & 1) == 0) {
      EXPECT_FALSE(space) << bit;
      EXPECT_LE(Drives().KindOfDrive(drive), DriveKind::NoRoot) << bit;
    } else if (space) {
      EXPECT_GE(space->available, 0) << bit;
      EXPECT_GE(space->total, space->available) << bit;
    }
  }
}

TEST(Registry, NullForAMissingKey) {
  for (const auto root : {RegistryRoot::ClassesRoot, RegistryRoot::CurrentUser, RegistryRoot::LocalMachine,
                          RegistryRoot::Users}) {
    EXPECT_FALSE(Registry().OpenKey(root, u"SOFTWARE\\No such maker\\No such key"));
    EXPECT_FALSE(Registry().OpenKey(root, u"\\SOFTWARE\\No such maker\\No such key"));
  }
}

TEST(ResourceText, NoneWithoutAModule) { EXPECT_FALSE(Resources().ResourceText(nullptr, 65535)); }

}  // namespace
}  // namespace ravo::platform
