#include <ravo/platform/library_entry.h>
#include <ravo/platform/machine.h>

#include <gtest/gtest.h>

namespace ravo::platform {
namespace {

TEST(System, VersionIsSane) {
  const SystemVersion version = CurrentMachine().Version();
  EXPECT_LE(version.family, SystemFamily::Other);
  EXPECT_GT(version.major, 0U);
  EXPECT_LE(version.service_pack.size(), 127U);
  const SystemNumbers numbers = CurrentMachine().VersionNumbers();
  EXPECT_EQ(numbers.family, version.family);
  EXPECT_EQ(numbers.major, version.major);
  EXPECT_EQ(numbers.minor, version.minor);
  EXPECT_EQ(numbers.build, version.build);
}

TEST(System, FoldersFitTheirBuffer) {
  for (const auto folder : {SystemFolder::System, SystemFolder::Windows, SystemFolder::Temporary,
                            SystemFolder::CommonDocuments}) {
    EXPECT_LT(CurrentMachine().Folder(folder).size(), 260U);
  }
}

TEST(System, TemporaryFolderEndsInADelimiter) {
  const Machine& machine = CurrentMachine();
  std::u16string folder = machine.Folder(SystemFolder::Temporary);
  ASSERT_TRUE(folder.ends_with(machine.PathDelimiter()));
  folder.pop_back();
  EXPECT_TRUE(machine.FindFile(folder));
}

TEST(System, NamesAreThere) {
  EXPECT_FALSE(CurrentMachine().ComputerName().empty());
  EXPECT_FALSE(CurrentMachine().UserName().empty());
  EXPECT_EQ(CurrentMachine().ComputerName().find(u'\0'), std::u16string::npos);
  EXPECT_EQ(CurrentMachine().UserName().find(u'\0'), std::u16string::npos);
}

TEST(System, AvailableMemoryIsPartOfTheTotal) {
  const MemoryFigures memory = CurrentMachine().Memory();
  EXPECT_GT(memory.total_physical, 0U);
  EXPECT_LE(memory.available_physical, memory.total_physical);
  EXPECT_LE(memory.available_virtual, memory.total_virtual);
  // Not so the page file: where both numbers are too large, systems shorten them to different largest ones.
}

TEST(System, ModuleOfThisCodeIsKnown) { EXPECT_NE(ThisModule(), nullptr); }

TEST(System, DebuggerTakesAnyText) {
  EXPECT_NO_THROW(CurrentMachine().DebugOutput(u""));
  EXPECT_NO_THROW(CurrentMachine().DebugOutput(u"Účet\n"));
}

TEST(Drives, OnlyLogicalDrivesHaveSpace) {
  const std::uint32_t drives = CurrentMachine().LogicalDrives();
  for (unsigned bit = 0; bit < 26; ++bit) {
    const std::u16string drive{static_cast<char16_t>(u'A' + bit), u':'};
    const auto space = CurrentMachine().SpaceOfFolder(drive);
    if ((drives >> bit & 1) == 0) {
      EXPECT_FALSE(space) << bit;
      EXPECT_LE(CurrentMachine().KindOfDrive(drive), DriveKind::NoRoot) << bit;
    } else if (space) {
      EXPECT_GE(space->available, 0) << bit;
      EXPECT_GE(space->total, space->available) << bit;
    }
  }
}

TEST(Registry, NullForAMissingKey) {
  for (const auto root : {RegistryRoot::ClassesRoot, RegistryRoot::CurrentUser, RegistryRoot::LocalMachine,
                          RegistryRoot::Users}) {
    EXPECT_FALSE(CurrentMachine().OpenKey(root, u"SOFTWARE\\No such maker\\No such key"));
    EXPECT_FALSE(CurrentMachine().OpenKey(root, u"\\SOFTWARE\\No such maker\\No such key"));
  }
}

TEST(ResourceText, NoneWithoutAModule) { EXPECT_FALSE(CurrentMachine().ResourceText(nullptr, 65535)); }

}  // namespace
}  // namespace ravo::platform
