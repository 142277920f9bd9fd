#include "sysinfo/report_fixture.h"

namespace ravo::RavoInterfaceInfo {
namespace {

using platform::DiskSpace;
using platform::DriveKind;
using testing::ElementsAre;
using testing::IsEmpty;

using Drives = test::Report;

constexpr std::u16string_view kHeading = u"\tPevné disky";

TEST_F(Drives, NoFixedDiskLeavesTheHeadingAlone) {
  EXPECT_THAT(Section(kHeading), IsEmpty());
  machine.drives = {{u"A:", {DriveKind::Removable, DiskSpace{1474560, 0}}},
                    {u"D:", {DriveKind::CdRom, std::nullopt}},
                    {u"E:", {DriveKind::RamDisk, DiskSpace{1, 1}}},
                    {u"F:", {DriveKind::Unknown, DiskSpace{1, 1}}},
                    {u"G:", {DriveKind::NoRoot, std::nullopt}},
                    {u"Z:", {DriveKind::Remote, DiskSpace{5000000000, 1}}}};
  EXPECT_THAT(Section(kHeading), IsEmpty());
}

TEST_F(Drives, FixedDisksInOrder) {
  machine.drives = {{u"Z:", {DriveKind::Fixed, DiskSpace{2048, 0}}},
                    {u"C:", {DriveKind::Fixed, DiskSpace{5000000000, 1536}}},
                    {u"D:", {DriveKind::CdRom, std::nullopt}}};
  EXPECT_THAT(Section(kHeading), ElementsAre(u"\t\tC:", u"\t\t\tVelikost: 4\u00A0768,4 MB (5000000000 B)",
                                             u"\t\t\tVolné místo: 1,5 kB (1536 B)", u"\t\tZ:",
                                             u"\t\t\tVelikost: 2 kB (2048 B)", u"\t\t\tVolné místo: 0 B"));
}

TEST_F(Drives, AFailedQueryRepeatsTheDriveBefore) {
  machine.drives = {{u"C:", {DriveKind::Fixed, std::nullopt}},
                    {u"D:", {DriveKind::Fixed, DiskSpace{1536, 7}}},
                    {u"E:", {DriveKind::Remote, DiskSpace{99, 99}}},
                    {u"F:", {DriveKind::Fixed, std::nullopt}},
                    {u"G:", {DriveKind::Fixed, DiskSpace{8, 1}}}};
  EXPECT_THAT(Section(kHeading),
              ElementsAre(u"\t\tC:", u"\t\t\tVelikost: 0 B", u"\t\t\tVolné místo: 0 B",  //
                          u"\t\tD:", u"\t\t\tVelikost: 1,5 kB (1536 B)", u"\t\t\tVolné místo: 7 B", u"\t\tF:",
                          u"\t\t\tVelikost: 1,5 kB (1536 B)", u"\t\t\tVolné místo: 7 B", u"\t\tG:",
                          u"\t\t\tVelikost: 8 B", u"\t\t\tVolné místo: 1 B"));
}

// The letters continue after "Z" if a system sets such a bit.
TEST_F(Drives, AllThirtyTwoBits) {
  machine.drives = {{u"A:", {DriveKind::Fixed, DiskSpace{1, 1}}},
                    {u"`:", {DriveKind::Fixed, DiskSpace{2, 2}}}};
  EXPECT_EQ(Section(kHeading).at(0), u"\t\tA:");
  EXPECT_EQ(Section(kHeading).at(3), u"\t\t`:");
}

}  // namespace
}  // namespace ravo::RavoInterfaceInfo
