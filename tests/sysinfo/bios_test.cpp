#include "sysinfo/report_fixture.h"

namespace ravo::RavoInterfaceInfo {
namespace {

using testing::ElementsAre;

class Bios : public test::Report {
 protected:
  static constexpr std::u16string_view kHeading = u"\tBIOS";

  [[nodiscard]] std::u16string Copyright() const {
    return Section(kHeading).at(2).substr(std::u16string_view(u"\t\tCopyright: ").size());
  }
  void SetBiosVersion(test::FakeRegistryValue value) {
    machine.Key(kLocalMachine, kBiosKey)[u"SystemBiosVersion"] = std::move(value);
  }
};

constexpr std::u16string_view kTwoTexts{u"AWARD 6.0\0PCI 2.1\0\0", 19};

TEST_F(Bios, WithoutTheKeyAllRowsAreThereAndEmpty) {
  EXPECT_THAT(Section(kHeading), ElementsAre(u"\t\tNázev BIOSu: ", u"\t\tDatum BIOSu: ", u"\t\tCopyright: ",
                                             u"\t\tRozšířené informace: "));
}

TEST_F(Bios, WithoutValuesAllRowsAreThereAndEmpty) {
  machine.Key(kLocalMachine, kBiosKey);
  EXPECT_THAT(Section(kHeading), ElementsAre(u"\t\tNázev BIOSu: ", u"\t\tDatum BIOSu: ", u"\t\tCopyright: ",
                                             u"\t\tRozšířené informace: "));
}

TEST_F(Bios, VersionStandsUnderTheCopyrightCaption) {
  machine.Key(kLocalMachine, kBiosKey) = {{u"Identifier", u"AT/AT COMPATIBLE"},
                                          {u"SystemBiosDate", u"02/22/06"},
                                          {u"SystemBiosVersion", Stored(kTwoTexts)}};
  EXPECT_THAT(Section(kHeading),
              ElementsAre(u"\t\tNázev BIOSu: AT/AT COMPATIBLE", u"\t\tDatum BIOSu: 02/22/06",
                          u"\t\tCopyright: AWARD 6.0", u"\t\tRozšířené informace: "));
}

TEST_F(Bios, SeveralTextsAreJoinedOnXpOnly) {
  SetBiosVersion(Stored(kTwoTexts));
  EXPECT_EQ(Copyright(), u"AWARD 6.0");
  SetVersion(2, 5, 1);
  EXPECT_EQ(Copyright(), u"AWARD 6.0PCI 2.1");
  for (const auto& [major, minor] : {std::pair(5u, 0u), {5u, 2u}, {6u, 0u}, {6u, 1u}}) {
    SetVersion(2, major, minor);
    EXPECT_EQ(Copyright(), u"AWARD 6.0") << major << '.' << minor;
  }
  SetVersion(2, 5, 2);
  machine.version.product_type = platform::ProductType::Workstation;
  machine.architecture = platform::kArchitectureAmd64;
  EXPECT_EQ(Copyright(), u"AWARD 6.0") << "on its 64-bit sibling";
}

TEST_F(Bios, TwoZerosEndTheTextsOnXp) {
  struct Row {
    std::u16string_view stored;
    std::u16string_view text;
  };
  constexpr Row rows[] = {
      {{u"", 0}, u""},        {{u"A", 1}, u"A"},    {{u"A\0B", 3}, u"AB"},        {{u"A\0B\0", 4}, u"AB"},
      {{u"A\0\0B", 4}, u"A"}, {{u"\0\0B", 3}, u""}, {{u"\0A\0B\0\0C", 7}, u"AB"}, {{u"ž\0\u0161", 3}, u"žš"},
  };
  SetVersion(2, 5, 1);
  for (const Row& row : rows) {
    SetBiosVersion(Stored(row.stored));
    EXPECT_EQ(Copyright(), row.text);
  }
}

TEST_F(Bios, TheFirstZeroEndsTheTextElsewhere) {
  SetBiosVersion(Stored({u"\0A", 2}));
  EXPECT_EQ(Copyright(), u"");
  SetBiosVersion(Stored({u"A", 1}));
  EXPECT_EQ(Copyright(), u"A");
}

// The 128th unit has only its lower half.
TEST_F(Bios, ReadsAtMost255Bytes) {
  const std::u16string long_text(300, u'\u0141');
  std::u16string shown(128, u'\u0141');
  shown.back() = u'A';
  for (const std::uint32_t minor : {0u, 1u}) {
    SetVersion(2, 5, minor);
    SetBiosVersion(Stored(long_text));
    EXPECT_EQ(Copyright(), shown);
    auto exactly = Stored(long_text);
    exactly.resize(255);
    SetBiosVersion(exactly);
    EXPECT_EQ(Copyright(), shown);
    exactly.resize(254);
    SetBiosVersion(exactly);
    EXPECT_EQ(Copyright(), shown.substr(0, 127));
  }
}

TEST_F(Bios, AVersionThatCannotBeReadIsEmpty) {
  machine.Key(kLocalMachine, kBiosKey) = {
      {u"Identifier", u"AT"}, {u"SystemBiosDate", u"02/22/06"}, {u"SystemBiosVersion", test::Unreadable{}}};
  EXPECT_THAT(Section(kHeading), ElementsAre(u"\t\tNázev BIOSu: AT", u"\t\tDatum BIOSu: 02/22/06",
                                             u"\t\tCopyright: ", u"\t\tRozšířené informace: "));
}

TEST_F(Bios, ValuesOfOtherKindsAreNoTexts) {
  machine.Key(kLocalMachine, kBiosKey) = {{u"Identifier", 7}, {u"SystemBiosDate", Stored(u"x")}};
  EXPECT_EQ(Section(kHeading).at(0), u"\t\tNázev BIOSu: ");
  EXPECT_EQ(Section(kHeading).at(1), u"\t\tDatum BIOSu: ");
}

}  // namespace
}  // namespace ravo::RavoInterfaceInfo
