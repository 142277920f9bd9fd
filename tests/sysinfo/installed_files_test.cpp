#include "sysinfo/report_fixture.h"

#include <algorithm>

namespace ravo::RavoInterfaceInfo {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

class InstalledFiles : public test::Report {
 protected:
  static constexpr auto kClassesRoot = platform::RegistryRoot::ClassesRoot;
  static constexpr std::u16string_view kServerKey =
      u"CLSID\\{346EC041-56AD-470D-A74D-980AA7022656}\\InprocServer32";

  void AddFiles(std::u16string_view folder, std::initializer_list<std::u16string_view> names) {
    for (const std::u16string_view name : names) machine.files[std::u16string(folder).append(name)];
  }

  // Returns the names of the files in a list of the report.
  [[nodiscard]] Lines Names(std::u16string_view list, Kind kind = siVisual) const {
    Lines names = Section(list, kind);
    std::erase_if(names, [](const std::u16string& line) { return line[3] == u'\t'; });
    for (std::u16string& name : names) name.erase(0, 3);
    return names;
  }

  test::FakeFile& AddVersion(std::u16string_view name, std::u16string_view text) {
    test::FakeFile& file = machine.files[std::u16string(name)];
    file.version.emplace().translation = 0x04E20405;
    file.version->tables[u"040504E2"][u"FileVersion"] = text;
    return file;
  }
};

TEST_F(InstalledFiles, NoneThereLeavesTheHeadingsAlone) {
  EXPECT_THAT(Section(u"\tSoubory"), ElementsAre(u"\t\tVCL", u"\t\tRavo", u"\t\tSestavy"));
  EXPECT_THAT(Section(u"\tSoubory", siBusiness), ElementsAre(u"\t\tVCL", u"\t\tRavo"));
}

TEST_F(InstalledFiles, PackagesOfTheUserInterface) {
  const auto names = {u"vcl70.bpl",    u"vclado70.bpl", u"vcldb70.bpl", u"vclx70.bpl",  u"vclie70.bpl",
                      u"vcljpg70.bpl", u"tee70.bpl",    u"teedb70.bpl", u"teeui70.bpl", u"indy70.bpl"};
  for (const auto* name : names) AddFiles(u"C:\\Ravo\\", {name});
  Lines expected;
  for (const auto* name : names) expected.push_back(std::u16string(u"C:\\Ravo\\") + name);
  EXPECT_THAT(Names(u"\t\tVCL"), ElementsAreArray(expected));
  EXPECT_THAT(Names(u"\t\tVCL", siBusiness), ElementsAreArray(expected));
}

TEST_F(InstalledFiles, FilesOfAClient) {
  const auto names = {u"Ravo.exe",
                      u"RavoInterface.bpl",
                      u"RavoPresentationLowLevel.bpl",
                      u"RavoPresentationProfile.bpl",
                      u"RavoPresentationBase.bpl",
                      u"RavoPresentationUcetnictvi.bpl",
                      u"RavoPresentationKancelar.bpl",
                      u"RavoPresentationSklad.bpl",
                      u"RavoPresentationMajetek.bpl",
                      u"RavoPresentationMzda.bpl",
                      u"RavoPresentationDCF.bpl",
                      u"RavoPresentationRSS.bpl",
                      u"RavoExport.bpl",
                      u"RavoExcel.bpl",
                      u"RavoUpravy.bpl",
                      u"RavoMazani.bpl",
                      u"RavoKontrola.bpl",
                      u"RavoKorespondence.bpl",
                      u"eqtld5.jpg",
                      u"dxcomnd5.jpg",
                      u"dxedtrd5.jpg",
                      u"dxelibd5.jpg",
                      u"dxinsd5.jpg"};
  ASSERT_EQ(names.size(), 23u);
  Lines expected;
  for (const auto* name : names) {
    AddFiles(u"C:\\Ravo\\", {name});
    expected.push_back(std::u16string(u"C:\\Ravo\\") + name);
  }
  EXPECT_THAT(Names(u"\t\tRavo"), ElementsAreArray(expected));
}

TEST_F(InstalledFiles, ComponentFilesEndInJpg) {
  AddFiles(u"C:\\Ravo\\", {u"eqtld5.bpl", u"eqtld5.jpg"});
  EXPECT_THAT(Names(u"\t\tRavo"), ElementsAre(u"C:\\Ravo\\eqtld5.jpg"));
}

TEST_F(InstalledFiles, PackagesOfTheReportEngine) {
  const auto names = {u"RavoReportLowLevel.bpl",
                      u"rbcide55.bpl",
                      u"rbct55.bpl",
                      u"rbdad55.bpl",
                      u"rbide55.bpl",
                      u"rbrap55.bpl",
                      u"rbrcl55.bpl",
                      u"rbride55.bpl",
                      u"rbuser55.bpl",
                      u"rbtc55.bpl",
                      u"rbtdbc55.bpl"};
  Lines expected;
  for (const auto* name : names) {
    AddFiles(u"C:\\Ravo\\", {name});
    expected.push_back(std::u16string(u"C:\\Ravo\\") + name);
  }
  EXPECT_THAT(Names(u"\t\tSestavy"), ElementsAreArray(expected));
}

TEST_F(InstalledFiles, FilesOfTheApplicationLayer) {
  const auto names = {u"RavoProfileInfo.dll", u"RavoManager.dll", u"RavoInterface.bpl", u"RavoLowLevel.bpl",
                      u"RavoEngine.bpl",      u"RavoProfile.dll", u"RavoBase.dll",      u"RavoUcetnictvi.dll",
                      u"RavoKancelar.dll",    u"RavoMajetek.dll", u"RavoSklad.dll",     u"RavoMzda.dll",
                      u"RavoDCF.dll",         u"RavoRSS.dll"};
  machine.Key(kClassesRoot, kServerKey)[u""] = u"D:\\Server\\RavoManager.dll";
  Lines expected;
  for (const auto* name : names) {
    AddFiles(u"D:\\Server\\", {name});
    AddFiles(u"C:\\Ravo\\", {name});
    expected.push_back(std::u16string(u"D:\\Server\\") + name);
  }
  EXPECT_THAT(Names(u"\t\tRavo", siBusiness), ElementsAreArray(expected));
}

TEST_F(InstalledFiles, AnUnregisteredServerMeansTheRootOfTheDrive) {
  AddFiles(u"\\", {u"RavoManager.dll"});
  AddFiles(u"C:\\Ravo\\", {u"RavoManager.dll"});
  EXPECT_THAT(Names(u"\t\tRavo", siBusiness), ElementsAre(u"\\RavoManager.dll"));
  machine.Key(kClassesRoot, kServerKey);
  EXPECT_THAT(Names(u"\t\tRavo", siBusiness), ElementsAre(u"\\RavoManager.dll"));
  machine.Key(kClassesRoot, kServerKey)[u""] = u"RavoManager.dll";
  EXPECT_THAT(Names(u"\t\tRavo", siBusiness), ElementsAre(u"\\RavoManager.dll"));
}

TEST_F(InstalledFiles, FolderOfTheServer) {
  struct Row {
    std::u16string_view registered;
    std::u16string_view folder;
  };
  constexpr Row rows[] = {
      {u"D:\\A B\\RavoManager.dll", u"D:\\A B\\"},
      {u"D:\\RavoManager.dll", u"D:\\"},
      {u"D:RavoManager.dll", u"D:\\"},
      {u"D:/Server/RavoManager.dll", u"D:/Server\\"},
      {u"\\\\host\\share\\RavoManager.dll", u"\\\\host\\share\\"},
      {u"D:\\Server\\", u"D:\\Server\\"},
  };
  for (const Row& row : rows) {
    machine.files.clear();
    AddFiles(row.folder, {u"RavoMzda.dll"});
    machine.Key(kClassesRoot, kServerKey)[u""] = std::u16string(row.registered);
    EXPECT_THAT(Names(u"\t\tRavo", siBusiness), ElementsAre(std::u16string(row.folder) + u"RavoMzda.dll"));
  }
}

TEST_F(InstalledFiles, ClientFilesAreLookedForInTheCurrentFolder) {
  machine.current_folder = u"E:\\Data";
  AddFiles(u"E:\\Data\\", {u"Ravo.exe"});
  AddFiles(u"C:\\Ravo\\", {u"Ravo.exe", u"RavoExport.bpl"});
  EXPECT_THAT(Names(u"\t\tRavo"), ElementsAre(u"E:\\Data\\Ravo.exe"));
}

TEST_F(InstalledFiles, DelimiterIsTheSystems) {
  machine.path_delimiter = u'/';
  machine.current_folder = u"/opt/ravo";
  AddFiles(u"/opt/ravo/", {u"Ravo.exe"});
  AddFiles(u"/", {u"RavoMzda.dll"});
  EXPECT_THAT(Names(u"\t\tRavo"), ElementsAre(u"/opt/ravo/Ravo.exe"));
  EXPECT_THAT(Names(u"\t\tRavo", siBusiness), ElementsAre(u"/RavoMzda.dll"));
}

TEST_F(InstalledFiles, AFolderOfThatNameIsNoFile) {
  machine.files[u"C:\\Ravo\\Ravo.exe"].facts.attributes = 0x10;
  EXPECT_THAT(Names(u"\t\tRavo"), IsEmpty());
}

TEST_F(InstalledFiles, AFileWithoutVersionResourceHasEightEmptyRows) {
  test::FakeFile& file = machine.files[u"C:\\Ravo\\vcl70.bpl"];
  file.facts.size = 1234567890123;
  file.facts.written = EncodeDateTime({{2006, 3, 14}, {7, 8, 9, 0}});
  file.facts.attributes = 0x21;
  EXPECT_THAT(
      Section(u"\t\tVCL"),
      ElementsAre(u"\t\t\tC:\\Ravo\\vcl70.bpl", u"\t\t\t\tVelikost: 1234567890123 B",
                  u"\t\t\t\tDatum/čas: 14.3.2006 7:08:09", u"\t\t\t\tAtributy: 00000021",
                  u"\t\t\t\tVerze souboru", u"\t\t\t\t\tCompanyName: ", u"\t\t\t\t\tFileDescription: ",
                  u"\t\t\t\t\tFileVersion: ", u"\t\t\t\t\tInternalName: ", u"\t\t\t\t\tLegalCopyright: ",
                  u"\t\t\t\t\tOriginalFilename: ", u"\t\t\t\t\tProductName: ",
                  u"\t\t\t\t\tProductVersion: "));
}

TEST_F(InstalledFiles, MidnightHasNoTime) {
  platform::FileFacts& facts = machine.files[u"C:\\Ravo\\vcl70.bpl"].facts;
  facts.written = EncodeDate(2006, 3, 14);
  EXPECT_EQ(Section(u"\t\tVCL").at(2), u"\t\t\t\tDatum/čas: 14.3.2006");
  facts.written = EncodeDateTime({{2006, 3, 14}, {0, 0, 1, 0}});
  EXPECT_EQ(Section(u"\t\tVCL").at(2), u"\t\t\t\tDatum/čas: 14.3.2006 0:00:01");
}

TEST_F(InstalledFiles, AttributesAreEightUpperCaseDigits) {
  platform::FileFacts& facts = machine.files[u"C:\\Ravo\\vcl70.bpl"].facts;
  facts.attributes = 0;
  EXPECT_EQ(Section(u"\t\tVCL").at(3), u"\t\t\t\tAtributy: 00000000");
  facts.attributes = 0xABCDEF00;
  EXPECT_EQ(Section(u"\t\tVCL").at(3), u"\t\t\t\tAtributy: ABCDEF00");
}

TEST_F(InstalledFiles, ATimeStampBeyondTheCalendarIsEmpty) {
  machine.files[u"C:\\Ravo\\vcl70.bpl"].facts.written = 1e9;
  EXPECT_EQ(Section(u"\t\tVCL").at(2), u"\t\t\t\tDatum/čas: ");
}

TEST_F(InstalledFiles, VersionOfABareNameIsThatInTheCurrentFolder) {
  AddVersion(u"C:\\Ravo\\RavoEngine.bpl", u"1.2.3.4");
  AddVersion(u"D:\\RavoEngine.bpl", u"5.6");
  AddVersion(u"sub/RavoEngine.bpl", u"7.8");
  const TRavoSystemInfo info;
  EXPECT_EQ(info.FileVersion(u"RavoEngine.bpl"), u"1.2.3.4");
  EXPECT_EQ(info.FileVersion(u"D:\\RavoEngine.bpl"), u"5.6");
  EXPECT_EQ(info.FileVersion(u"sub/RavoEngine.bpl"), u"7.8");
  EXPECT_EQ(info.FileVersion(u"D:RavoEngine.bpl"), u"");
  EXPECT_EQ(info.FileVersion(u"Ravo.exe"), u"");
  EXPECT_EQ(info.FileVersion(u""), u"");
}

TEST_F(InstalledFiles, AVersionOfOneCharacterIsEmpty) {
  const TRavoSystemInfo info;
  AddVersion(u"C:\\Ravo\\Ravo.exe", u"1");
  EXPECT_EQ(info.FileVersion(u"Ravo.exe"), u"");
  EXPECT_EQ(Section(u"\t\tRavo").at(7), u"\t\t\t\t\tFileVersion: ");
  AddVersion(u"C:\\Ravo\\Ravo.exe", u"");
  EXPECT_EQ(info.FileVersion(u"Ravo.exe"), u"");
  AddVersion(u"C:\\Ravo\\Ravo.exe", u"12");
  EXPECT_EQ(info.FileVersion(u"Ravo.exe"), u"12");
  EXPECT_EQ(Section(u"\t\tRavo").at(7), u"\t\t\t\t\tFileVersion: 12");
}

TEST_F(InstalledFiles, TheStringTableIsThatOfTheFirstTranslation) {
  const TRavoSystemInfo info;
  test::FakeVersionResource& version = *AddVersion(u"C:\\Ravo\\Ravo.exe", u"1.0").version;
  version.tables[u"04E20405"][u"FileVersion"] = u"code page first";
  EXPECT_EQ(info.FileVersion(u"Ravo.exe"), u"1.0");
  version.translation = 0x04B0000A;
  EXPECT_EQ(info.FileVersion(u"Ravo.exe"), u"");
  version.tables[u"000a04b0"][u"FileVersion"] = u"2.0";
  EXPECT_EQ(info.FileVersion(u"Ravo.exe"), u"2.0");
  version.translation.reset();
  EXPECT_EQ(info.FileVersion(u"Ravo.exe"), u"");
}

}  // namespace
}  // namespace ravo::RavoInterfaceInfo
