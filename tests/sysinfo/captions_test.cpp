#include <ravo/sysinfo/captions.h>

#include <vector>

#include <gtest/gtest.h>

namespace ravo::RavoInterfaceInfo {
namespace {

TEST(ReportCaptions, IdentifiersRunUpwardsInBlocksOfSixteenDownwards) {
  std::vector<int> expected;
  for (const auto& [first, last] :
       {std::pair(65520, 65535), std::pair(65504, 65519), std::pair(65488, 65503), std::pair(65472, 65475)}) {
    for (int id = first; id <= last; ++id) expected.push_back(id);
  }
  std::vector<int> actual;
  for (const NamedReportCaption& row : kReportCaptions) actual.push_back(row.caption.id);
  EXPECT_EQ(actual.size(), 52u);
  EXPECT_EQ(actual, expected);
}

struct Row {
  ResourceString caption;
  int id;
  std::u16string_view text;
};

// The captions that do not occur in the report; the others are compared there.
TEST(ReportCaptions, ForModulesOnly) {
  constexpr Row rows[] = {
      {_rRootADO, 65522, u"Informace o databázovém jádru"},
      {_rRootSQL, 65523, u"Informace o databázovém serveru"},
      {_rSystemComputer, 65528, u"Počítač"},
      {_rSystemBIOSVer, 65531, u"Verze BIOSu"},
      {_rSystemSystemProductID, 65506, u"Product ID"},
      {_rSystemSystemProductKey, 65507, u"Product Key"},
      {_rSystemPresentation, 65492, u"Prezentační vrstva"},
      {_rProfileRoot, 65501, u"Profil"},
      {_rSystemADO, 65502, u"ADO"},
      {_rSystemRavo, 65503, u"Ravo"},
      {_rUzivatelError, 65472, u"Chyby"},
      {_rUzivatelWarning, 65473, u"Upozornění"},
      {_rUzivatelHint, 65474, u"Tipy"},
      {_rUzivatelInfo, 65475, u"Informace"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(row.caption.id, row.id);
    EXPECT_EQ(row.caption.View(), row.text) << row.id;
  }
}

TEST(ReportCaptions, NamesStandBesideTheirTexts) {
  EXPECT_EQ(kReportCaptions.front().name, "_rRootClient");
  EXPECT_EQ(kReportCaptions.front().caption.View(), u"Informace o klientské vrstvě");
  EXPECT_EQ(kReportCaptions.back().name, "_rUzivatelInfo");
}

TEST(ReportCaptions, PageFileCaptionsAreUntranslated) {
  EXPECT_EQ(_rSystemTotalPageFile.View(), u"TotalPageFile");
  EXPECT_EQ(_rSystemAvailPageFile.View(), u"AvailPageFile");
}

}  // namespace
}  // namespace ravo::RavoInterfaceInfo
