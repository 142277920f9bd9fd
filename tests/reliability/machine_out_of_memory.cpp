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
#include <ravo/platform/machine.h>

#include <string>

// Memory that runs out in system queries, in the package's resources, and in the code that uses both.
namespace ravo {
namespace {

using test::ExpectSurvivesScarceMemory;

const std::u16string kCurrentVersion = u"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";

TEST(MachineOutOfMemory, Folders) {
  using platform::SystemFolder;
  ExpectSurvivesScarceMemory([] {
    const platform::Machine& machine = platform::CurrentMachine();
    for (const auto folder : {SystemFolder::Windows, SystemFolder::System, SystemFolder::CommonDocuments})
      static_cast<void>(machine.Folder(folder));
    for (const std::int32_t number : {0, 5, 26, 28, 36, 40}) static_cast<void>(machine.ShellFolder(number));
  });
}

TEST(MachineOutOfMemory, SystemAndUser) {
  ExpectSurvivesScarceMemory([] {
    const platform::Machine& machine = platform::CurrentMachine();
    static_cast<void>(machine.Version());
    static_cast<void>(machine.UserName());
    static_cast<void>(machine.ComputerName());
    static_cast<void>(machine.Memory());
    static_cast<void>(machine.Locale());
    static_cast<void>(machine.ErrorText(2));
    static_cast<void>(machine.ComponentErrorText(result_code::kClassNotRegistered));
  });
}

TEST(MachineOutOfMemory, DrivesAndRegistry) {
  const platform::Machine& machine = platform::CurrentMachine();
  ExpectSurvivesScarceMemory([&] { static_cast<void>(machine.LogicalDrives()); });
  ExpectSurvivesScarceMemory([&] { static_cast<void>(machine.KindOfDrive(u"C:")); });
  ExpectSurvivesScarceMemory([&] { static_cast<void>(machine.SpaceOfFolder(u"C:\\")); });
  ExpectSurvivesScarceMemory([&] {
    const auto key = machine.OpenKey(platform::RegistryRoot::LocalMachine, kCurrentVersion);
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
  const platform::Machine& machine = platform::CurrentMachine();
  ExpectSurvivesScarceMemory([&] { static_cast<void>(machine.FindFile(name)); });
  ExpectSurvivesScarceMemory([&] {
    const auto resource = machine.OpenVersionResource(name);
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
