#include "out_of_memory.h"
#include "support/fake_machine.h"
#include "support/pe_builder.h"
#include "support/scratch_folder.h"
#include <ravo/DIUtils.h>
#include <ravo/RavoFileCommon.h>
#include <ravo/RavoInterface.h>
#include <ravo/RavoInterfaceInfo.h>
#include <ravo/RavoInterfaceResources.h>
#include <ravo/frame/module_record.h>
#include <ravo/platform/components.h>
#include <ravo/platform/diagnostics.h>
#include <ravo/platform/drives.h>
#include <ravo/platform/folders.h>
#include <ravo/platform/locale.h>
#include <ravo/platform/paths.h>
#include <ravo/platform/registry.h>
#include <ravo/platform/system.h>

#include <string>

// Memory that runs out in system queries, in the package's resources, and in the code that uses both.
namespace ravo {
namespace {

using test::ExpectSurvivesScarceMemory;

const std::u16string kCurrentVersion = u"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";

TEST(MachineOutOfMemory, Folders) {
  using platform::SystemFolder;
  ExpectSurvivesScarceMemory([] {
    for (const auto folder : {SystemFolder::Windows, SystemFolder::System, SystemFolder::CommonDocuments})
      static_cast<void>(platform::Folders().Folder(folder));
    for (const std::int32_t number : {0, 5, 26, 28, 36, 40})
      static_cast<void>(platform::Folders().ShellFolder(number));
  });
}

TEST(MachineOutOfMemory, SystemAndUser) {
  ExpectSurvivesScarceMemory([] {
    static_cast<void>(platform::System().Version());
    static_cast<void>(platform::System().UserName());
    static_cast<void>(platform::System().ComputerName());
    static_cast<void>(platform::System().Memory());
    static_cast<void>(platform::Locale().Settings());
    static_cast<void>(platform::Diagnostics().ErrorText(2));
    static_cast<void>(platform::Components().ComponentErrorText(result_code::kClassNotRegistered));
  });
}

TEST(MachineOutOfMemory, DrivesAndRegistry) {
  ExpectSurvivesScarceMemory([&] { static_cast<void>(platform::Drives().LogicalDrives()); });
  ExpectSurvivesScarceMemory([&] { static_cast<void>(platform::Drives().KindOfDrive(u"C:")); });
  ExpectSurvivesScarceMemory([&] { static_cast<void>(platform::Drives().SpaceOfFolder(u"C:\\")); });
  ExpectSurvivesScarceMemory([&] {
    const auto key = platform::Registry().OpenKey(platform::RegistryRoot::LocalMachine, kCurrentVersion);
    if (key) static_cast<void>(key->Text(u"Version"));
  });
  ExpectSurvivesScarceMemory([] { static_cast<void>(DIUtils::RegReadRegisteredOwnerA()); });
}

TEST(MachineOutOfMemory, TheVersionOfAFile) {
  const test::ScratchFolder folder;
  const auto image = test::BuildPe(test::PeKind::Pe32,
                                   test::VersionBlock(u"040504E2", {{u"FileVersion", u"7.0"}}, {0x04E20405}));
  folder.Write("x.dll", {reinterpret_cast<const char*>(image.bytes.data()), image.bytes.size()});
  const std::u16string name = folder.File(u"x.dll");
  ExpectSurvivesScarceMemory([&] { static_cast<void>(platform::Paths().FindFile(name)); });
  ExpectSurvivesScarceMemory([&] {
    const auto resource = platform::Paths().OpenVersionResource(name);
    if (resource) static_cast<void>(resource->String(u"040504E2", u"FileVersion"));
  });
}

// The report of a server queries other files than that of a client.
TEST(MachineOutOfMemory, TheServersReport) {
  ExpectSurvivesScarceMemory([] {
    RavoInterfaceInfo::TRavoSystemInfo info;
    static_cast<void>(info.AsText(RavoInterfaceInfo::siBusiness));
  });
}

// Reading a text allocates nothing.
TEST(FrameOutOfMemory, LanguageModules) {
  const ResourceString caption = RavoInterfaceResources::rPropertyDokladPZPohledavka;
  test::FakeMachine machine;
  int place = 0;
  machine.resource_files[u"english"] = &place;
  machine.resource_texts[&place] = {{caption.id, u"&Receivable"}};
  const platform::ScopedMachine scope(machine);
  ExpectSurvivesScarceMemory([&] { static_cast<void>(caption.Text() + caption.Text()); });
  ASSERT_TRUE(AttachResourceModule(u"english"));
  {
    const test::FailingMemory memory(0);
    EXPECT_EQ(caption.View(), u"&Receivable");
  }
  DetachResourceModule();
  EXPECT_EQ(caption.Text(), caption.built_in);
}

// Starting and stopping allocate nothing.
TEST(FrameOutOfMemory, StartAndStop) {
  const std::int64_t before = test::LiveBlocks();
  Initialize();
  Finalize();
  EXPECT_EQ(test::LiveBlocks(), before);
}

TEST(FormsOutOfMemory, Values) {
  using namespace RavoFileCommon;
  const DateTime day = EncodeDate(2026, 11, 21);
  ExpectSurvivesScarceMemory([&] { static_cast<void>(Date2PDF(day, false, true)); });
  ExpectSurvivesScarceMemory([&] { static_cast<void>(Date2XML(day)); });
}

}  // namespace
}  // namespace ravo
