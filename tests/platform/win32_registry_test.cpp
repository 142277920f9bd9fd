#ifdef _WIN32

#include "support/scratch_key_win32.h"
#include <ravo/platform/registry.h>
#include <ravo/runtime/error.h>

#include <gtest/gtest.h>
#include <windows.h>

namespace ravo::platform {
namespace {

using test::ScratchKey;

std::unique_ptr<RegistryKey> OpenScratchKey() {
  return Registry().OpenKey(RegistryRoot::CurrentUser, ScratchKey::Path());
}

std::string Chars(const std::optional<std::vector<std::byte>>& bytes) {
  return bytes ? std::string(reinterpret_cast<const char*>(bytes->data()), bytes->size()) : "none";
}

TEST(Win32Registry, Texts) {
  const ScratchKey scratch;
  scratch.Set(L"plain", REG_SZ, u"Účet", 10);
  scratch.Set(L"", REG_SZ, u"unnamed", 16);
  scratch.Set(L"expanded", REG_EXPAND_SZ, u"%TEMP%", 14);
  scratch.Set(L"unterminated", REG_SZ, u"abcd", 4);
  scratch.Set(L"odd", REG_SZ, u"abcd", 5);
  scratch.Set(L"inner zero", REG_SZ, u"ab\0cd", 12);
  scratch.Set(L"empty", REG_SZ, u"", 0);
  const auto key = OpenScratchKey();
  ASSERT_TRUE(key);
  EXPECT_EQ(key->Text(u"plain"), u"Účet");
  EXPECT_EQ(key->Text(u""), u"unnamed");
  EXPECT_EQ(key->Text(u"expanded"), u"%TEMP%");
  EXPECT_EQ(key->Text(u"unterminated"), u"ab");
  EXPECT_EQ(key->Text(u"odd"), u"ab");
  EXPECT_EQ(key->Text(u"inner zero"), u"ab");
  EXPECT_EQ(key->Text(u"empty"), u"");
}

TEST(Win32Registry, TextsHaveNoLongestLength) {
  const ScratchKey scratch;
  const std::u16string text(5000, u'ž');
  scratch.Set(L"long", REG_SZ, text.c_str(), 2 * text.size() + 2);
  EXPECT_EQ(OpenScratchKey()->Text(u"long"), text);
}

TEST(Win32Registry, OnlyTextsAreTextsAndOnlyIntegersIntegers) {
  const ScratchKey scratch;
  constexpr std::int32_t number = -2;
  constexpr std::int64_t wide = 1;
  scratch.Set(L"integer", REG_DWORD, &number, sizeof number);
  scratch.Set(L"short", REG_DWORD, &number, 2);
  scratch.Set(L"wide", REG_QWORD, &wide, sizeof wide);
  scratch.Set(L"several", REG_MULTI_SZ, u"a\0b\0", 10);
  scratch.Set(L"binary", REG_BINARY, &number, sizeof number);
  scratch.Set(L"text", REG_SZ, u"1", 4);
  const auto key = OpenScratchKey();
  ASSERT_TRUE(key);
  EXPECT_EQ(key->Integer(u"integer"), number);
  for (const std::u16string_view name : {u"short", u"wide", u"several", u"binary", u"text", u"missing"}) {
    EXPECT_FALSE(key->Integer(name)) << ::testing::PrintToString(name);
  }
  for (const std::u16string_view name : {u"integer", u"wide", u"several", u"binary", u"missing"}) {
    EXPECT_FALSE(key->Text(name)) << ::testing::PrintToString(name);
  }
}

TEST(Win32Registry, BytesOfAnyKindUpToTheAskedCount) {
  const ScratchKey scratch;
  scratch.Set(L"binary", REG_BINARY, "abcdef", 6);
  scratch.Set(L"several", REG_MULTI_SZ, "a\0\0\0\0", 6);
  const auto key = OpenScratchKey();
  ASSERT_TRUE(key);
  EXPECT_EQ(Chars(key->Bytes(u"binary", 255)), "abcdef");
  EXPECT_EQ(Chars(key->Bytes(u"binary", 6)), "abcdef");
  EXPECT_EQ(Chars(key->Bytes(u"binary", 4)), "abcd");
  EXPECT_EQ(Chars(key->Bytes(u"binary", 0)), "");
  EXPECT_EQ(Chars(key->Bytes(u"several", 255)), std::string("a\0\0\0\0\0", 6));
  EXPECT_EQ(Chars(key->Bytes(u"missing", 255)), "none");
}

TEST(Win32Registry, BytesRaiseWhereTheKeyIsGone) {
  const ScratchKey scratch;
  scratch.Set(L"binary", REG_BINARY, "abcdef", 6);
  const auto key = OpenScratchKey();
  ASSERT_TRUE(key);
  ScratchKey::Delete();
  try {
    (void)key->Bytes(u"binary", 255);
    FAIL() << "read";
  } catch (const Error& error) {
    EXPECT_FALSE(error.Message().empty());
  }
  EXPECT_FALSE(key->Text(u"binary"));
  EXPECT_FALSE(key->Integer(u"binary"));
}

TEST(Win32Registry, RealKeysWithAndWithoutADelimiterInFront) {
  constexpr std::u16string_view path = u"\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";
  for (const std::u16string_view variant : {path, path.substr(1)}) {
    const auto key = Registry().OpenKey(RegistryRoot::LocalMachine, variant);
    ASSERT_TRUE(key);
    EXPECT_TRUE(key->Text(u"ProductName").value_or(u"").starts_with(u"Microsoft Windows") ||
                key->Text(u"ProductName").value_or(u"").starts_with(u"Windows"));
  }
  EXPECT_FALSE(Registry().OpenKey(RegistryRoot::LocalMachine, u"\\" + std::u16string(path)));
}

TEST(Win32Registry, RootsAreTheirOwn) {
  EXPECT_TRUE(Registry().OpenKey(RegistryRoot::ClassesRoot, u"CLSID"));
  EXPECT_TRUE(Registry().OpenKey(RegistryRoot::Users, u".Default"));
  EXPECT_FALSE(Registry().OpenKey(RegistryRoot::CurrentUser, u"CLSID"));
}

}  // namespace
}  // namespace ravo::platform

#endif
