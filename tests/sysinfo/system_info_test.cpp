#include "sysinfo/report_fixture.h"

namespace ravo::RavoInterfaceInfo {
namespace {

using platform::DiskSpace;
using platform::DriveKind;
using platform::SystemFolder;
using testing::ElementsAre;

// The report of one machine, whole.
class WholeReport : public test::Report {
 protected:
  WholeReport() {
    SetVersion(2, 5, 1, u"Service Pack 2");
    machine.version.build = 2600;
    machine.version.product_type = platform::ProductType::Workstation;
    machine.clock = {EncodeDateTime({{2026, 3, 5}, {7, 8, 9, 0}})};
    machine.computer_name = u"ÚČTÁRNA";
    machine.user_name = u"Jiřina";
    machine.folders = {{SystemFolder::System, u"C:\\WINDOWS\\system32"},
                       {SystemFolder::Windows, u"C:\\WINDOWS"},
                       {SystemFolder::Temporary, u"C:\\TEMP\\"},
                       {SystemFolder::CommonDocuments, u"C:\\Dokumenty"}};
    machine.memory = {536870912, 104857600, 2147352576, 2000000000, 1048576, 1536};
    machine.drives = {{u"A:", {DriveKind::Removable, std::nullopt}},
                      {u"C:", {DriveKind::Fixed, DiskSpace{80000000000, 1234567890}}}};
    FillRegistry();
    FillFiles();
  }

 private:
  void FillRegistry() {
    machine.Key(kLocalMachine, kBiosKey) = {
        {u"Identifier", u"AT/AT COMPATIBLE"},
        {u"SystemBiosDate", u"02/22/06"},
        {u"SystemBiosVersion", Stored(std::u16string_view(u"A M I\0r1.06\0\0", 13))}};
    machine.Key(kLocalMachine, kNtKey) = {{u"ProductName", u"Microsoft Windows XP"},
                                          {u"RegisteredOwner", u"Jiřina"},
                                          {u"RegisteredOrganization", u"Účetní s.r.o."},
                                          {u"ProductID", u"55274-640"}};
    machine.Key(platform::RegistryRoot::ClassesRoot,
                u"CLSID\\{346EC041-56AD-470D-A74D-980AA7022656}\\InprocServer32")[u""] =
        u"D:\\Server\\RavoManager.dll";
  }

  void FillFiles() {
    machine.files[u"C:\\Ravo\\tee70.bpl"].facts = {700000, EncodeDate(2002, 8, 9), 0x20};
    machine.files[u"C:\\Ravo\\rbuser55.bpl"].facts = {1, EncodeDate(2003, 1, 2), 0x21};
    test::FakeFile& file = machine.files[u"C:\\Ravo\\RavoInterface.bpl"];
    file.facts = {987654, EncodeDateTime({{2006, 12, 24}, {18, 0, 5, 0}}), 0x20};
    file.version.emplace().translation = 0x04E20405;
    file.version->tables[u"040504E2"] = {
        {u"CompanyName", u"Ravo"},    {u"FileDescription", u"Rozhraní"},
        {u"FileVersion", u"1.0.0.1"}, {u"InternalName", u"RavoInterface"},
        {u"LegalCopyright", u"C"},    {u"OriginalFilename", u"RavoInterface.bpl"},
        {u"ProductName", u"Ravo"},    {u"ProductVersion", u"1.0"}};
    machine.files[u"D:\\Server\\RavoInterface.bpl"] = file;
  }
};

constexpr std::u16string_view kMachine =
    u"\tČasové informace\r\n"
    u"\t\tAktuální datum: 5.3.2026\r\n"
    u"\t\tAktuální den: čtvrtek\r\n"
    u"\t\tAktuální čas: 7:08:09\r\n"
    u"\tBIOS\r\n"
    u"\t\tNázev BIOSu: AT/AT COMPATIBLE\r\n"
    u"\t\tDatum BIOSu: 02/22/06\r\n"
    u"\t\tCopyright: A M Ir1.06\r\n"
    u"\t\tRozšířené informace: \r\n"
    u"\tOperační systém\r\n"
    u"\t\tOS: Microsoft Windows XP\r\n"
    u"\t\tVerze: 5.1.2600\r\n"
    u"\t\tCSD: Service Pack 2\r\n"
    u"\t\tCSDEx: Service Pack 2\r\n"
    u"\t\tRegistrovaný uživatel: Jiřina\r\n"
    u"\t\tRegistrovaná organizace: Účetní s.r.o.\r\n"
    u"\t\tNázev počítače: ÚČTÁRNA\r\n"
    u"\t\tUživatelské jméno: Jiřina\r\n"
    u"\t\tAdresáře\r\n"
    u"\t\t\tSystémový adresář: C:\\WINDOWS\\system32\r\n"
    u"\t\t\tWindows adresář: C:\\WINDOWS\r\n"
    u"\t\t\tAdresář dočasných souborů: C:\\TEMP\\\r\n"
    u"\t\t\tAdresář společných dokumentů: C:\\Dokumenty\r\n"
    u"\t\tPaměť\r\n"
    u"\t\t\tCelková fyzická paměť: 512,0 MB (536870912 B)\r\n"
    u"\t\t\tDostupná fyzická paměť: 100,0 MB (104857600 B)\r\n"
    u"\t\t\tCelková virtuální paměť: 2\u00A0047,9 MB (2147352576 B)\r\n"
    u"\t\t\tDostupná virtuální paměť: 1\u00A0907,3 MB (2000000000 B)\r\n"
    u"\t\t\tTotalPageFile: 1024 kB (1048576 B)\r\n"
    u"\t\t\tAvailPageFile: 1,5 kB (1536 B)\r\n"
    u"\tPevné disky\r\n"
    u"\t\tC:\r\n"
    u"\t\t\tVelikost: 76\u00A0293,9 MB (80000000000 B)\r\n"
    u"\t\t\tVolné místo: 1\u00A0177,4 MB (1234567890 B)\r\n"
    u"\tSoubory\r\n"
    u"\t\tVCL\r\n"
    u"\t\t\tC:\\Ravo\\tee70.bpl\r\n"
    u"\t\t\t\tVelikost: 700000 B\r\n"
    u"\t\t\t\tDatum/čas: 9.8.2002\r\n"
    u"\t\t\t\tAtributy: 00000020\r\n"
    u"\t\t\t\tVerze souboru\r\n"
    u"\t\t\t\t\tCompanyName: \r\n"
    u"\t\t\t\t\tFileDescription: \r\n"
    u"\t\t\t\t\tFileVersion: \r\n"
    u"\t\t\t\t\tInternalName: \r\n"
    u"\t\t\t\t\tLegalCopyright: \r\n"
    u"\t\t\t\t\tOriginalFilename: \r\n"
    u"\t\t\t\t\tProductName: \r\n"
    u"\t\t\t\t\tProductVersion: \r\n"
    u"\t\tRavo\r\n";

constexpr std::u16string_view kInterfaceFile =
    u"RavoInterface.bpl\r\n"
    u"\t\t\t\tVelikost: 987654 B\r\n"
    u"\t\t\t\tDatum/čas: 24.12.2006 18:00:05\r\n"
    u"\t\t\t\tAtributy: 00000020\r\n"
    u"\t\t\t\tVerze souboru\r\n"
    u"\t\t\t\t\tCompanyName: Ravo\r\n"
    u"\t\t\t\t\tFileDescription: Rozhraní\r\n"
    u"\t\t\t\t\tFileVersion: 1.0.0.1\r\n"
    u"\t\t\t\t\tInternalName: RavoInterface\r\n"
    u"\t\t\t\t\tLegalCopyright: \r\n"
    u"\t\t\t\t\tOriginalFilename: RavoInterface.bpl\r\n"
    u"\t\t\t\t\tProductName: Ravo\r\n"
    u"\t\t\t\t\tProductVersion: 1.0\r\n";

constexpr std::u16string_view kReportEngine =
    u"\t\tSestavy\r\n"
    u"\t\t\tC:\\Ravo\\rbuser55.bpl\r\n"
    u"\t\t\t\tVelikost: 1 B\r\n"
    u"\t\t\t\tDatum/čas: 2.1.2003\r\n"
    u"\t\t\t\tAtributy: 00000021\r\n"
    u"\t\t\t\tVerze souboru\r\n"
    u"\t\t\t\t\tCompanyName: \r\n"
    u"\t\t\t\t\tFileDescription: \r\n"
    u"\t\t\t\t\tFileVersion: \r\n"
    u"\t\t\t\t\tInternalName: \r\n"
    u"\t\t\t\t\tLegalCopyright: \r\n"
    u"\t\t\t\t\tOriginalFilename: \r\n"
    u"\t\t\t\t\tProductName: \r\n"
    u"\t\t\t\t\tProductVersion: \r\n";

// Compared as UTF-8, so that a difference can be read.
void ExpectText(std::u16string_view actual, std::initializer_list<std::u16string_view> pieces) {
  std::u16string expected;
  for (const std::u16string_view piece : pieces) expected += piece;
  EXPECT_EQ(ToUtf8(actual), ToUtf8(expected));
}

TEST_F(WholeReport, OfAClient) {
  ExpectText(Text(siVisual), {u"Informace o klientské vrstvě\r\n", kMachine, u"\t\t\tC:\\Ravo\\",
                              kInterfaceFile, kReportEngine});
}

TEST_F(WholeReport, OfTheApplicationLayer) {
  ExpectText(Text(siBusiness),
             {u"Informace o aplikační vrstvě\r\n", kMachine, u"\t\t\tD:\\Server\\", kInterfaceFile});
}

TEST_F(WholeReport, TwiceIsNotDoubled) {
  TRavoSystemInfo info;
  const std::u16string first = info.AsText(siVisual);
  const std::u16string business = info.AsText(siBusiness);
  EXPECT_EQ(info.AsText(siVisual), first);
  EXPECT_EQ(info.AsText(siBusiness), business);
  EXPECT_NE(first, business);
}

TEST_F(WholeReport, IsGatheredAnewEachTime) {
  TRavoSystemInfo info;
  const std::u16string first = info.AsText(siVisual);
  machine.user_name = u"Karel";
  EXPECT_NE(info.AsText(siVisual), first);
}

// Any number other than the two means the client, the first of them.
TEST_F(WholeReport, AnUnknownKindIsAClient) {
  EXPECT_EQ(Text(static_cast<TRavoSystemInfoTyp>(7)), Text(siVisual));
}

using DateAndTime = test::Report;

TEST_F(DateAndTime, OneReadingServesAllRows) {
  machine.clock = {EncodeDateTime({{2026, 12, 31}, {23, 59, 59, 0}}), EncodeDate(2027, 1, 1)};
  EXPECT_THAT(Section(u"\tČasové informace"),
              ElementsAre(u"\t\tAktuální datum: 31.12.2026", u"\t\tAktuální den: čtvrtek",
                          u"\t\tAktuální čas: 23:59:59"));
}

TEST_F(DateAndTime, FollowTheLocale) {
  machine.locale = FormatSettings();
  machine.clock = {EncodeDateTime({{2024, 2, 29}, {0, 0, 0, 0}})};
  EXPECT_THAT(Section(u"\tČasové informace"),
              ElementsAre(u"\t\tAktuální datum: 2024-02-29", u"\t\tAktuální den: Thursday",
                          u"\t\tAktuální čas: 00:00:00"));
}

using TempDirectory = test::Report;

TEST_F(TempDirectory, IsWhatTheSystemReports) {
  EXPECT_EQ(GetTempDirectory(), u"");
  machine.folders[SystemFolder::Temporary] = u"C:\\TEMP\\";
  EXPECT_EQ(GetTempDirectory(), u"C:\\TEMP\\");
}

TEST(SystemInfoNumbers, MembersAreNumberedFromZero) {
  EXPECT_EQ(siVisual, 0);
  EXPECT_EQ(siBusiness, 1);
  EXPECT_EQ(asSystemDir, 0);
  EXPECT_EQ(asAllDataApp, 5);
  EXPECT_EQ(aiTotalPhysMemory, 0);
  EXPECT_EQ(aiAvailPageFile, 5);
}

}  // namespace
}  // namespace ravo::RavoInterfaceInfo
