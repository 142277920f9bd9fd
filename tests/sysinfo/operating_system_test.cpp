#include "sysinfo/report_fixture.h"

namespace ravo::RavoInterfaceInfo {
namespace {

using testing::ElementsAre;

class OperatingSystem : public test::Report {
 protected:
  static constexpr std::u16string_view kHeading = u"\tOperační systém";
  static constexpr std::u16string_view kHotfixKey =
      u"SOFTWARE\\Microsoft\\WindowsNT\\CurrentVersion\\Hotfix\\Q246009";
  // The key by the name that the system uses.
  static constexpr std::u16string_view kKeyWithBlank =
      u"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Hotfix\\Q246009";

  [[nodiscard]] std::u16string Csd() const { return Section(kHeading).at(2); }
  [[nodiscard]] std::u16string CsdEx() const { return Section(kHeading).at(3); }
  void ExpectCsd(std::u16string_view csd, std::u16string_view csd_ex) const {
    EXPECT_EQ(Csd(), u"\t\tCSD: " + std::u16string(csd));
    EXPECT_EQ(CsdEx(), u"\t\tCSDEx: " + std::u16string(csd_ex));
  }
};

TEST_F(OperatingSystem, ServicePack6aOfNt4) {
  SetVersion(2, 4, 0, u"Service Pack 6");
  machine.Key(kLocalMachine, kNtKey);
  ExpectCsd(u"Service Pack 6", u"Service Pack 6");
  machine.Key(kLocalMachine, kHotfixKey)[u"Installed"] = 1;
  ExpectCsd(u"Service Pack 6a", u"Service Pack 6");
}

TEST_F(OperatingSystem, HotfixKeyHasNoBlank) {
  SetVersion(2, 4, 0, u"Service Pack 6");
  machine.Key(kLocalMachine, kNtKey);
  machine.Key(kLocalMachine, kKeyWithBlank)[u"Installed"] = 1;
  ExpectCsd(u"Service Pack 6", u"Service Pack 6");
}

TEST_F(OperatingSystem, HotfixMustBeInstalled) {
  SetVersion(2, 4, 0, u"Service Pack 6");
  machine.Key(kLocalMachine, kNtKey);
  auto& hotfix = machine.Key(kLocalMachine, kHotfixKey);
  ExpectCsd(u"Service Pack 6", u"Service Pack 6");
  for (const test::FakeRegistryValue& value :
       {test::FakeRegistryValue(0), test::FakeRegistryValue(2), test::FakeRegistryValue(u"1"),
        test::FakeRegistryValue(test::Unreadable{})}) {
    hotfix[u"Installed"] = value;
    ExpectCsd(u"Service Pack 6", u"Service Pack 6");
  }
}

TEST_F(OperatingSystem, HotfixCountsForServicePack6AloneAndUpToXp) {
  machine.Key(kLocalMachine, kNtKey);
  machine.Key(kLocalMachine, kHotfixKey)[u"Installed"] = 1;
  struct Row {
    std::uint32_t major;
    std::uint32_t minor;
    std::u16string_view service_pack;
    std::u16string_view csd;
    std::u16string_view csd_ex;
  };
  constexpr Row rows[] = {
      {3, 51, u"Service Pack 6", u"Service Pack 6a", u"Service Pack 6"},
      {4, 0, u"Service Pack 5", u"Service Pack 5", u"Service Pack 5"},
      {4, 0, u"Service Pack 6 ", u"Service Pack 6 ", u"Service Pack 6 "},
      {5, 0, u"Service Pack 6", u"Service Pack 6a", u"Service Pack 6"},
      {5, 1, u"Service Pack 6", u"Service Pack 6a", u"Service Pack 6"},
      {5, 1, u"Service Pack 2", u"Service Pack 2", u"Service Pack 2"},
      {5, 1, u"", u"", u""},
      {5, 2, u"Service Pack 6", u"Service Pack 6", u""},
      {6, 0, u"Service Pack 6", u"Service Pack 6", u""},
      {6, 1, u"Service Pack 1", u"Service Pack 1", u""},
  };
  for (const Row& row : rows) {
    SetVersion(2, row.major, row.minor, row.service_pack);
    ExpectCsd(row.csd, row.csd_ex);
  }
}

TEST_F(OperatingSystem, ExtensionsOfWindows95And98) {
  machine.Key(kLocalMachine, kWindowsKey);
  SetVersion(1, 4, 0, u" B ");
  ExpectCsd(u" B ", u"OSR 2");
  SetVersion(1, 4, 10, u" A ");
  ExpectCsd(u" A ", u"Second Edition");
  SetVersion(1, 4, 10);
  ExpectCsd(u"", u"");
  SetVersion(1, 4, 90, u"A");
  ExpectCsd(u"A", u"");
}

TEST_F(OperatingSystem, WithoutTheKeyTheExtensionIsEmpty) {
  machine.Key(kLocalMachine, kHotfixKey)[u"Installed"] = 1;
  SetVersion(2, 4, 0, u"Service Pack 6");
  ExpectCsd(u"Service Pack 6", u"");
  SetVersion(1, 4, 0, u"B");
  ExpectCsd(u"B", u"");
  SetVersion(1, 4, 10, u"A");
  ExpectCsd(u"A", u"");
}

TEST_F(OperatingSystem, NameIsProductNameOnNtAndVersionElsewhere) {
  machine.Key(kLocalMachine, kNtKey) = {{u"ProductName", u"Microsoft Windows XP"}, {u"Version", u"wrong"}};
  machine.Key(kLocalMachine, kWindowsKey) = {{u"ProductName", u"wrong"}, {u"Version", u"Windows 98"}};
  struct Row {
    std::uint32_t family;
    std::uint32_t major;
    std::uint32_t minor;
    std::u16string_view line;
  };
  constexpr Row rows[] = {
      {2, 3, 51, u"\t\tOS: Microsoft Windows XP"},
      {2, 4, 0, u"\t\tOS: Microsoft Windows XP"},
      {2, 5, 0, u"\t\tOS: Microsoft Windows XP"},
      {2, 5, 1, u"\t\tOS: Microsoft Windows XP"},
      {2, 5, 2, u"\t\tOS: Microsoft Windows XP"},
      {2, 6, 0, u"\t\tOS: Microsoft Windows XP"},
      {2, 6, 1, u"\t\tOS: Microsoft Windows XP"},
      {2, 6, 2, u"\t\tOS: Windows 98"},
      {2, 10, 0, u"\t\tOS: Windows 98"},
      {1, 4, 0, u"\t\tOS: Windows 98"},
      {1, 4, 10, u"\t\tOS: Windows 98"},
      {1, 4, 90, u"\t\tOS: Windows 98"},
      {3, 6, 1, u"\t\tOS: Windows 98"},
  };
  for (const Row& row : rows) {
    SetVersion(row.family, row.major, row.minor);
    EXPECT_EQ(Section(kHeading).at(0), row.line) << row.family << ' ' << row.major << '.' << row.minor;
  }
}

TEST_F(OperatingSystem, NewerThanTheTableWithoutVersionValueHasNoName) {
  SetVersion(2, 10, 0);
  machine.version.build = 19045;
  machine.Key(kLocalMachine, kWindowsKey);
  machine.Key(kLocalMachine, kNtKey)[u"ProductName"] = u"Windows 10 Pro";
  EXPECT_EQ(TRavoSystemInfo().OSVersion(), osUnknown);
  EXPECT_EQ(Section(kHeading).at(0), u"\t\tOS: ");
  EXPECT_EQ(Section(kHeading).at(1), u"\t\tVerze: 10.0.19045");
}

TEST_F(OperatingSystem, KeysAreOpenedUnderTheirWrittenPaths) {
  SetVersion(2, 4, 0, u"Service Pack 6");
  machine.Key(kLocalMachine, kNtKey);
  static_cast<void>(Text(siBusiness));
  EXPECT_THAT(
      machine.opened_keys,
      ElementsAre(u"\\HARDWARE\\DESCRIPTION\\System", u"\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion",
                  u"\\SOFTWARE\\Microsoft\\WindowsNT\\CurrentVersion\\Hotfix\\Q246009",
                  u"CLSID\\{346EC041-56AD-470D-A74D-980AA7022656}\\InprocServer32"));
}

TEST_F(OperatingSystem, AMachineWithoutAnswersHasEveryRow) {
  EXPECT_THAT(
      Section(kHeading),
      ElementsAre(u"\t\tOS: ", u"\t\tVerze: 0.0.0", u"\t\tCSD: ", u"\t\tCSDEx: ",
                  u"\t\tRegistrovaný uživatel: ", u"\t\tRegistrovaná organizace: ", u"\t\tNázev počítače: ",
                  u"\t\tUživatelské jméno: ", u"\t\tAdresáře", u"\t\t\tSystémový adresář: ",
                  u"\t\t\tWindows adresář: ", u"\t\t\tAdresář dočasných souborů: ",
                  u"\t\t\tAdresář společných dokumentů: ", u"\t\tPaměť", u"\t\t\tCelková fyzická paměť: 0 B",
                  u"\t\t\tDostupná fyzická paměť: 0 B", u"\t\t\tCelková virtuální paměť: 0 B",
                  u"\t\t\tDostupná virtuální paměť: 0 B", u"\t\t\tTotalPageFile: 0 B",
                  u"\t\t\tAvailPageFile: 0 B"));
}

// Windows NT 4 before its last service packs lacks the extended record.
TEST_F(OperatingSystem, VersionIsThatOfTheBasicRecord) {
  platform::SystemVersion basic;
  basic.family = platform::SystemFamily::WindowsNt;
  basic.major = 4;
  basic.build = 1381;
  basic.service_pack = u"Service Pack 5";
  machine.basic_version = basic;
  EXPECT_EQ(TRavoSystemInfo().OSVersion(), osUnknown);
  EXPECT_EQ(Section(kHeading).at(1), u"\t\tVerze: 4.0.1381");
  EXPECT_EQ(Csd(), u"\t\tCSD: Service Pack 5");
}

TEST_F(OperatingSystem, MemoryIsUnsigned) {
  machine.memory.total_physical = 0xFFFFFFFF;
  EXPECT_EQ(Section(u"\t\tPaměť").at(0), u"\t\t\tCelková fyzická paměť: 4\u00A0096,0 MB (4294967295 B)");
}

TEST_F(OperatingSystem, KindIsWorkedOutOnce) {
  SetVersion(2, 5, 1);
  const TRavoSystemInfo info;
  SetVersion(2, 6, 1);
  EXPECT_EQ(info.OSVersion(), osXP);
}

}  // namespace
}  // namespace ravo::RavoInterfaceInfo
