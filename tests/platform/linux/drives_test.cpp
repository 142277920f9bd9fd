#include "support/scratch_folder.h"
#include <ravo/platform/linux/linux_machine.h>
#include <ravo/platform/linux/mounts.h>

#include <gtest/gtest.h>

namespace ravo::platform::gnu_linux {
namespace {

using posix::Drive;
using posix::DriveLetterOf;
using posix::PosixDrives;

// One text per drive: letter, kind, folder.
std::vector<std::string> Summary(std::string_view table, std::string_view removable = {}) {
  const auto mounts = ParseMounts(table);
  std::vector<std::string> rows;
  for (const Drive& drive : DrivesOf(mounts, [&](std::string_view name) { return name == removable; })) {
    rows.push_back(std::string(1, static_cast<char>(drive.letter)) + " " +
                   std::to_string(static_cast<int>(drive.kind)) + " " + drive.folder);
  }
  return rows;
}

using Rows = std::vector<std::string>;

TEST(DrivesOf, AWorkstation) {
  EXPECT_EQ(Summary("sysfs /sys sysfs rw 0 0\n"
                    "udev /dev devtmpfs rw 0 0\n"
                    "tmpfs /run tmpfs rw 0 0\n"
                    "/dev/nvme0n1p2 / ext4 rw,relatime 0 0\n"
                    "/dev/nvme0n1p1 /boot/efi vfat rw 0 0\n"
                    "/dev/loop0 /snap/core/1 squashfs ro 0 0\n"
                    "/dev/loop12 /mnt/image ext4 rw 0 0\n"
                    "server:/export /net nfs4 rw 0 0\n"
                    "/dev/ram0 /ram ext2 rw 0 0\n"
                    "/dev/zram1 /zram ext4 rw 0 0\n"
                    "/dev/mapper/home /home btrfs rw 0 0\n"
                    "/dev/mapper/home /srv btrfs rw 0 0\n"
                    "/dev/nvme0n1p2 /var/lib/x ext4 rw 0 0\n"
                    "/dev/fuse /run/user/1000/doc fuse rw 0 0\n"
                    "/dev/sdb1 /media/jan/USB\\040disk fuseblk rw 0 0\n"
                    "//nas/share /nas cifs rw 0 0\n",
                    "sdb1"),
            (Rows{"C 3 /", "D 3 /boot/efi", "E 3 /home", "F 2 /media/jan/USB disk", "G 4 /net", "H 4 /nas"}));
}

TEST(DrivesOf, ThereIsAlwaysARoot) {
  EXPECT_EQ(Summary(""), Rows{"C 3 /"});
  EXPECT_EQ(Summary("overlay / overlay rw 0 0\n"), Rows{"C 3 /"});
  EXPECT_EQ(Summary("/dev/sda1 /data ext4 rw 0 0\n"), (Rows{"C 3 /", "D 3 /data"}));
  EXPECT_EQ(Summary("/dev/sda1 / ext4 rw 0 0\n", "sda1"), Rows{"C 2 /"});
}

TEST(DrivesOf, TheLastMountOnTheRootCounts) {
  EXPECT_EQ(Summary("rootfs / rootfs rw 0 0\n/dev/sda1 /old ext4 rw 0 0\n/dev/sda1 / ext4 rw 0 0\n"),
            Rows{"C 3 /"});
}

TEST(DrivesOf, LettersEndAtZ) {
  std::string table = "/dev/sda1 / ext4 rw 0 0\n";
  for (int i = 0; i < 40; ++i) {
    table += "/dev/vd" + std::to_string(i) + " /m" + std::to_string(i) + " ext4 rw 0 0\n";
  }
  const auto rows = Summary(table);
  ASSERT_EQ(rows.size(), 24u);
  EXPECT_EQ(rows.back(), "Z 3 /m22");
}

TEST(ParseMounts, TakesEscapesOutAndSkipsBrokenLines) {
  const auto mounts = ParseMounts("dev\\134x /a\\011b\\012c\\04 type\nshort line\n\n/dev/x /y z rw");
  ASSERT_EQ(mounts.size(), 2u);
  EXPECT_EQ(mounts[0].device, "dev\\x");
  EXPECT_EQ(mounts[0].folder, "/a\tb\nc\\04");
  EXPECT_EQ(mounts[1].type, "z");
}

TEST(ParseMounts, OnlyOctalDigitsAreEscapes) {
  const auto mounts = ParseMounts("/dev/x /a\\/11\\181\\:11b type\n");
  ASSERT_EQ(mounts.size(), 1u);
  EXPECT_EQ(mounts[0].folder, "/a\\/11\\181\\:11b");
}

TEST(DriveLetterOf, IsALetterBeforeAColon) {
  EXPECT_EQ(DriveLetterOf(u"c:"), u'C');
  EXPECT_EQ(DriveLetterOf(u"Z:\\x"), u'Z');
  for (const std::u16string_view text : {u"", u"c", u":", u"1:", u"č:", u"@:", u"cc:"}) {
    EXPECT_EQ(DriveLetterOf(text), std::nullopt);
  }
}

TEST(LinuxMachineDrives, ReadsBelowItsRoot) {
  const test::ScratchFolder folder;
  folder.Write(
      "proc/self/mounts",
      "/dev/sda1 / ext4 rw 0 0\n/dev/sdb1 /nowhere-at-all ext4 rw 0 0\n/dev/sdc /proc ext4 rw 0 0\n");
  folder.Write("sys/class/block/sdb/removable", "1\n");
  folder.Write("sys/class/block/sdb/sdb1/partition", "1\n");
  std::filesystem::create_directory_symlink(folder.Path() / "sys/class/block/sdb/sdb1",
                                            folder.Path() / "sys/class/block/sdb1");
  folder.Write("sys/class/block/sdc/removable", "0\n");
  const PosixDrives machine(folder.Path().string());
  EXPECT_EQ(machine.LogicalDrives(), 0b11100u);
  EXPECT_EQ(machine.KindOfDrive(u"C:"), DriveKind::Fixed);
  EXPECT_EQ(machine.KindOfDrive(u"d:\\"), DriveKind::Removable);
  EXPECT_EQ(machine.KindOfDrive(u"E:/"), DriveKind::Fixed);
  EXPECT_TRUE(machine.SpaceOfFolder(u"C:"));
  EXPECT_FALSE(machine.SpaceOfFolder(u"D:"));
}

TEST(LinuxMachineDrives, OtherNamesHaveNoRoot) {
  const PosixDrives machine;
  for (const std::u16string_view name : {u"A:", u"1:", u"", u"C", u"C:x", u"C:\\Windows"}) {
    EXPECT_EQ(machine.KindOfDrive(name), DriveKind::NoRoot);
    EXPECT_FALSE(machine.SpaceOfFolder(name));
  }
}

TEST(LinuxMachineDrives, TheRootOfThisMachineHasSpace) {
  const PosixDrives machine;
  EXPECT_TRUE(machine.LogicalDrives() & 0b100u);
  const auto space = machine.SpaceOfFolder(u"C:");
  ASSERT_TRUE(space);
  EXPECT_GT(space->total, 0);
  EXPECT_LE(space->available, space->total);
  const auto expected = std::filesystem::space("/");
  EXPECT_EQ(static_cast<std::uintmax_t>(space->total), expected.capacity);
}

}  // namespace
}  // namespace ravo::platform::gnu_linux
