#include "support/fake_machine.h"
#include <ravo/platform/machine.h>

#include <gtest/gtest.h>

namespace ravo::platform {
namespace {

TEST(ScopedMachine, PutsAMachineInForceForItsLifetime) {
  test::FakeMachine fake;
  fake.computer_name = u"FAKE";
  const std::u16string real = System().ComputerName();
  ASSERT_NE(real, u"FAKE");
  {
    const ScopedMachine scope(fake);
    EXPECT_EQ(System().ComputerName(), u"FAKE");
  }
  EXPECT_EQ(System().ComputerName(), real);
}

TEST(ScopedMachine, ExchangesOneChapter) {
  test::FakeDrives drives;
  drives.drives[u"Q:"].kind = DriveKind::CdRom;
  Machine machine = RealMachine();
  machine.drives = &drives;
  const std::u16string name = System().ComputerName();
  const ScopedMachine scope(machine);
  EXPECT_EQ(Drives().LogicalDrives(), 1u << 16);
  EXPECT_EQ(Drives().KindOfDrive(u"Q:"), DriveKind::CdRom);
  EXPECT_EQ(System().ComputerName(), name);
  EXPECT_EQ(&System(), RealMachine().system);
}

TEST(ScopedMachine, MayBeNested) {
  test::FakeMachine outer;
  test::FakeMachine inner;
  const ScopedMachine outer_scope(outer);
  {
    const ScopedMachine inner_scope(inner);
    EXPECT_EQ(&Drives(), &inner);
  }
  EXPECT_EQ(&Drives(), &outer);
}

TEST(RealMachine, HasEachChapter) {
  const Machine& machine = RealMachine();
  EXPECT_EQ(machine.system, &System());
  EXPECT_EQ(machine.folders, &Folders());
  EXPECT_EQ(machine.diagnostics, &Diagnostics());
  EXPECT_EQ(machine.drives, &Drives());
  EXPECT_EQ(machine.registry, &Registry());
  EXPECT_EQ(machine.paths, &Paths());
  EXPECT_EQ(machine.files, &Files());
  EXPECT_EQ(machine.locale, &Locale());
  EXPECT_EQ(machine.code_pages, &CodePages());
  EXPECT_EQ(machine.resources, &Resources());
  EXPECT_EQ(machine.components, &Components());
}

}  // namespace
}  // namespace ravo::platform
