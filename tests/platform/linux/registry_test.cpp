#include "support/scratch_folder.h"
#include <ravo/platform/linux/linux_machine.h>
#include <ravo/platform/linux/registry.h>

#include <gtest/gtest.h>

namespace ravo::platform::gnu_linux {
namespace {

constexpr std::u16string_view kHardware = u"\\HARDWARE\\DESCRIPTION\\System";
constexpr std::u16string_view kSystem = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion";

std::string TextOf(const std::optional<std::vector<std::byte>>& bytes) {
  if (!bytes) return "none";
  return {reinterpret_cast<const char*>(bytes->data()), bytes->size()};
}

TEST(LinuxMachineRegistry, TheFirmwareDescribesTheComputer) {
  const test::ScratchFolder folder;
  folder.Write("sys/class/dmi/id/sys_vendor", "Dell Inc.\n");
  folder.Write("sys/class/dmi/id/product_name", "OptiPlex 7000 \n");
  folder.Write("sys/class/dmi/id/bios_vendor", "AB\n");
  folder.Write("sys/class/dmi/id/bios_version", "1\n");
  folder.Write("sys/class/dmi/id/bios_date", "03/05/2024\n");
  const auto key = LinuxRegistry(folder.Path().string()).OpenKey(RegistryRoot::LocalMachine, kHardware);
  ASSERT_TRUE(key);
  EXPECT_EQ(key->Text(u"identifier"), u"Dell Inc. OptiPlex 7000");
  EXPECT_EQ(key->Text(u"SystemBiosDate"), u"03/05/2024");
  EXPECT_EQ(TextOf(key->Bytes(u"SYSTEMBIOSVERSION", 255)), std::string("A\0B\0 \0\x31\0\0\0\0\0", 12));
  EXPECT_EQ(TextOf(key->Bytes(u"SystemBiosVersion", 3)), std::string("A\0B", 3));
  EXPECT_EQ(TextOf(key->Bytes(u"SystemBiosVersion", 0)), "");
  EXPECT_EQ(key->Text(u"SystemBiosVersion"), std::nullopt);
  EXPECT_EQ(TextOf(key->Bytes(u"SystemBiosDate", 4)), std::string("0\0\x33\0", 4));
  EXPECT_EQ(key->Integer(u"SystemBiosDate"), std::nullopt);
  EXPECT_EQ(key->Text(u"Other"), std::nullopt);
  EXPECT_EQ(key->Bytes(u"Other", 10), std::nullopt);
}

TEST(LinuxMachineRegistry, WhatTheFirmwareDoesNotSayIsMissing) {
  const test::ScratchFolder folder;
  folder.Write("sys/class/dmi/id/product_name", "Box\n");
  folder.Write("sys/class/dmi/id/bios_version", " \n");
  const auto key = MakeKey(HardwareValues(folder.Path().string(), "x86_64"));
  ASSERT_TRUE(key);
  EXPECT_EQ(key->Text(u"Identifier"), u"Box");
  EXPECT_EQ(key->Bytes(u"SystemBiosVersion", 255), std::nullopt);
  EXPECT_EQ(key->Text(u"SystemBiosDate"), std::nullopt);
}

TEST(LinuxMachineRegistry, WithoutFirmwareTheMachineNameIsLeft) {
  const auto key = MakeKey(HardwareValues("/nowhere-at-all", "x86_64"));
  ASSERT_TRUE(key);
  EXPECT_EQ(key->Text(u"Identifier"), u"x86_64");
  EXPECT_FALSE(MakeKey(HardwareValues("/nowhere-at-all", "")));
}

TEST(LinuxMachineRegistry, TheSystemNamesItself) {
  const test::ScratchFolder folder;
  const LinuxRegistry machine(folder.Path().string());
  folder.Write("usr/lib/os-release", "NAME=x\nPRETTY_NAME=\"Debian GNU/Linux 12\"\n");
  EXPECT_EQ(machine.OpenKey(RegistryRoot::LocalMachine, kSystem)->Text(u"Version"), u"Debian GNU/Linux 12");
  folder.Write("etc/os-release", "PRETTY_NAME='Účetní systém'\n");
  EXPECT_EQ(machine.OpenKey(RegistryRoot::LocalMachine, kSystem)->Text(u"version"), u"Účetní systém");
}

TEST(LinuxMachineRegistry, BothKeysOfTheSystemAreTheSame) {
  const test::ScratchFolder folder;
  folder.Write("etc/os-release", "PRETTY_NAME=system\n");
  const LinuxRegistry machine(folder.Path().string());
  for (const std::u16string_view key : {u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion",
                                        u"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion"}) {
    EXPECT_EQ(machine.OpenKey(RegistryRoot::LocalMachine, key)->Text(u"Version"), u"system");
  }
}

TEST(LinuxMachineRegistry, TheOwnerIsTheUser) {
  const auto key = MakeKey(SystemValues("/nowhere-at-all", "Jan Novák"));
  ASSERT_TRUE(key);
  EXPECT_EQ(key->Text(u"RegisteredOwner"), u"Jan Novák");
  EXPECT_EQ(key->Text(u"Version"), std::nullopt);
  EXPECT_FALSE(MakeKey(SystemValues("/nowhere-at-all", "")));
}

TEST(LinuxMachineRegistry, KeysCompareWithoutCase) {
  const LinuxRegistry machine;
  EXPECT_TRUE(machine.OpenKey(RegistryRoot::LocalMachine, u"hardware\\description\\SYSTEM"));
  EXPECT_TRUE(machine.OpenKey(RegistryRoot::LocalMachine, kHardware));
}

TEST(LinuxMachineRegistry, EverythingElseIsNone) {
  const LinuxRegistry machine;
  for (const std::u16string_view path :
       {u"", u"\\", u"SOFTWARE", u"\\SOFTWARE\\Microsoft\\WindowsNT\\CurrentVersion",
        u"\\\\HARDWARE\\DESCRIPTION\\System", u"HARDWARE/DESCRIPTION/System"}) {
    EXPECT_FALSE(machine.OpenKey(RegistryRoot::LocalMachine, path));
  }
  for (const RegistryRoot root :
       {RegistryRoot::ClassesRoot, RegistryRoot::CurrentUser, RegistryRoot::Users}) {
    EXPECT_FALSE(machine.OpenKey(root, kHardware));
  }
}

}  // namespace
}  // namespace ravo::platform::gnu_linux
