#include "support/fake_machine.h"
#include <ravo/DIUtils.h>
#include <ravo/platform/system.h>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

using platform::RegistryRoot;
using test::FakeMachine;

constexpr std::u16string_view kCurrentVersion = u"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";

TEST(RegReadStrDef, IsTheTextOrElseTheDefault) {
  FakeMachine machine;
  auto& key = machine.Key(RegistryRoot::CurrentUser, u"Software\\Ravo");
  key[u"text"] = u"Účetní";
  key[u"empty"] = u"";
  key[u"number"] = 7;
  key[u"bytes"] = std::vector<std::byte>(4);
  key[u"unreadable"] = test::Unreadable();
  const platform::ScopedMachine scope(machine);
  struct Row {
    std::u16string_view value;
    std::u16string_view result;
  };
  constexpr Row rows[] = {{u"text", u"Účetní"}, {u"TEXT", u"Účetní"}, {u"empty", u""},      {u"number", u"č"},
                          {u"bytes", u"č"},     {u"missing", u"č"},   {u"unreadable", u"č"}};
  for (const Row& row : rows) {
    EXPECT_EQ(RegReadStrDefW(RegistryRoot::CurrentUser, u"Software\\Ravo", row.value, u"č"), row.result);
    EXPECT_EQ(RegReadStrDef(RegistryRoot::CurrentUser, u"Software\\Ravo", row.value, u"č"), row.result);
    EXPECT_EQ(
        RegReadStrDefA(RegistryRoot::CurrentUser, "Software\\Ravo", machine.ToCodePage(row.value), "\xE8"),
        machine.ToCodePage(row.result));
  }
  EXPECT_EQ(RegReadStrDefW(RegistryRoot::CurrentUser, u"Software\\None", u"text", u"default"), u"default");
  EXPECT_EQ(RegReadStrDefW(RegistryRoot::LocalMachine, u"Software\\Ravo", u"text", u"default"), u"default");
}

TEST(RegReadRegistered, AreTheValuesOfTheNtKey) {
  FakeMachine machine;
  auto& key = machine.Key(RegistryRoot::LocalMachine, kCurrentVersion);
  key[u"RegisteredOwner"] = u"Jan Účetní";
  key[u"RegisteredOrganization"] = u"Účtárna";
  const platform::ScopedMachine scope(machine);
  EXPECT_EQ(RegReadRegisteredOwnerW(), u"Jan Účetní");
  EXPECT_EQ(RegReadRegisteredOwnerA(),
            "Jan \xDA\xE8"
            "etn\xED");
  EXPECT_EQ(RegReadRegisteredOrganizationW(), u"Účtárna");
  EXPECT_EQ(RegReadRegisteredOrganizationA(), "\xDA\xE8t\xE1rna");
}

TEST(RegReadRegistered, AreEmptyWithoutThem) {
  const FakeMachine machine;
  const platform::ScopedMachine scope(machine);
  EXPECT_EQ(RegReadRegisteredOwnerW(), u"");
  EXPECT_EQ(RegReadRegisteredOwnerA(), "");
  EXPECT_EQ(RegReadRegisteredOrganizationW(), u"");
  EXPECT_EQ(RegReadRegisteredOrganizationA(), "");
}

TEST(SysErrorMessage, EndsBeforeStopsBlanksAndControlCharacters) {
  FakeMachine machine;
  machine.error_texts = {{1, u"Soubor nebyl nalezen.\r\n"},
                         {2, u" Two. Sentences. \t.\x1F\x20..\r\n"},
                         {3, u"..."},
                         {4, u"No stop!"},
                         {5, u"Above the blank\x21"},
                         {6, u"No-break blank\xA0"},
                         {8, u"The system cannot find the file.\r\n"}};
  machine.last_error = 1;
  const platform::ScopedMachine scope(machine);
  EXPECT_EQ(SysErrorMessageW(1), u"Soubor nebyl nalezen");
  EXPECT_EQ(SysErrorMessage(1), u"Soubor nebyl nalezen");
  EXPECT_EQ(SysErrorMessageA(1), "Soubor nebyl nalezen");
  EXPECT_EQ(SysErrorMessageW(2), u" Two. Sentences");
  EXPECT_EQ(SysErrorMessageW(3), u"");
  EXPECT_EQ(SysErrorMessageW(4), u"No stop!");
  EXPECT_EQ(SysErrorMessageW(5), u"Above the blank!");
  EXPECT_EQ(SysErrorMessageW(6), u"No-break blank\xA0");
  EXPECT_EQ(SysErrorMessageW(7), u"");
  EXPECT_TRUE(SysErrorMessageW(8).ends_with(u"file"));
  EXPECT_EQ(LastSysErrorMessageW(), u"Soubor nebyl nalezen");
  EXPECT_EQ(LastSysErrorMessage(), u"Soubor nebyl nalezen");
  EXPECT_EQ(LastSysErrorMessageA(), "Soubor nebyl nalezen");
}

TEST(SysErrorMessage, IsEmptyForCodesOfNoError) {
  for (const std::uint32_t code : {123456u, 0x7FFFFFFFu, 0xFFFFFFFFu, 0x80000000u}) {
    EXPECT_EQ(SysErrorMessageW(code), u"") << code;
  }
}

TEST(LastSysErrorMessage, IsOfTheCallThatFailedLast) {
  std::string text;
  EXPECT_FALSE(LoadStrAFromFileW(u"missing\\missing\\missing", text));
  const std::u16string said = LastSysErrorMessageW();
  EXPECT_FALSE(said.empty());
  EXPECT_NE(said.back(), u'.');
}

TEST(GetUserName, IsFalseAndEmptyWhereTheSystemFails) {
  FakeMachine machine;
  const platform::ScopedMachine scope(machine);
  std::u16string wide = u"before";
  std::string narrow = "before";
  EXPECT_FALSE(GetUserNameW(wide));
  EXPECT_FALSE(GetUserNameA(narrow));
  EXPECT_EQ(wide, u"");
  EXPECT_EQ(narrow, "");
  machine.user_name = u"účetní";
  EXPECT_TRUE(GetUserNameW(wide));
  EXPECT_TRUE(GetUserNameA(narrow));
  EXPECT_EQ(wide, u"účetní");
  EXPECT_EQ(narrow,
            "\xFA\xE8"
            "etn\xED");
}

TEST(GetUserName, NamesTheUserOfThisMachine) {
  std::u16string name;
  EXPECT_TRUE(GetUserNameW(name));
  EXPECT_EQ(name, platform::System().UserName());
}

TEST(TextExtent, IsZeroWhereTheDeviceCannotTell) {
  EXPECT_EQ(TextExtentW(nullptr, u"text"), platform::TextSize());
  EXPECT_EQ(TextWidthW(nullptr, u"text"), 0);
  EXPECT_EQ(TextHeightW(nullptr, u"text"), 0);
}

TEST(TextExtent, HasAWidthAndAHeight) {
  FakeMachine machine;
  machine.text_extent = platform::TextSize{30, 12};
  const platform::ScopedMachine scope(machine);
  EXPECT_EQ(TextExtentW(nullptr, u"text"), (platform::TextSize{30, 12}));
  EXPECT_EQ(TextWidthW(nullptr, u"text"), 30);
  EXPECT_EQ(TextHeightW(nullptr, u"text"), 12);
}

}  // namespace
}  // namespace ravo::DIUtils
