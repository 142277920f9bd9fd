#include "support/scratch_key_win32.h"
#include <ravo/DIUtils.h>

#include <gtest/gtest.h>
#include <lmcons.h>
#include <windows.h>

namespace ravo::DIUtils {
namespace {

using platform::RegistryRoot;
using test::ScratchKey;

std::u16string Read(std::u16string_view value) {
  return RegReadStrDefW(RegistryRoot::CurrentUser, ScratchKey::Path(), value, u"default");
}

TEST(RegReadStrDef, TakesStringsAndExpandableStringsAlone) {
  const ScratchKey scratch;
  constexpr std::uint64_t number = 0x0041004200430044;
  scratch.Set(L"string", REG_SZ, u"Účet", 10);
  scratch.Set(L"expandable", REG_EXPAND_SZ, u"%TEMP%\\x", 18);
  scratch.Set(L"number", REG_DWORD, &number, 4);
  scratch.Set(L"large number", REG_QWORD, &number, 8);
  scratch.Set(L"several", REG_MULTI_SZ, u"a\0b\0", 10);
  scratch.Set(L"binary", REG_BINARY, u"ab", 6);
  scratch.Set(L"none", REG_NONE, u"ab", 6);
  scratch.Set(L"link", REG_DWORD_BIG_ENDIAN, &number, 4);
  scratch.Set(L"", REG_SZ, u"unnamed", 16);
  EXPECT_EQ(Read(u"string"), u"Účet");
  EXPECT_EQ(Read(u"STRING"), u"Účet");
  EXPECT_EQ(Read(u"expandable"), u"%TEMP%\\x");
  EXPECT_EQ(Read(u""), u"unnamed");
  for (const std::u16string_view name :
       {u"number", u"large number", u"several", u"binary", u"none", u"link", u"missing"}) {
    EXPECT_EQ(Read(name), u"default");
  }
  EXPECT_EQ(RegReadStrDefW(RegistryRoot::CurrentUser, ScratchKey::Path() + u"\\missing", u"", u"d"), u"d");
  const std::u16string path = ScratchKey::Path();
  EXPECT_EQ(RegReadStrDefA(RegistryRoot::CurrentUser, std::string(path.begin(), path.end()), "string", ""),
            "\xDA\xE8"
            "et");
}

TEST(RegReadStrDef, CutsTheLastUnitOffWhateverItIs) {
  const ScratchKey scratch;
  const std::u16string text(5000, u'ž');
  // The system itself also stores a zero that follows the given text.
  scratch.Set(L"unterminated", REG_SZ, u"abcde", 8);
  scratch.Set(L"odd", REG_SZ, u"abcd", 5);
  scratch.Set(L"inner zero", REG_SZ, u"ab\0cd", 12);
  scratch.Set(L"two zeros", REG_SZ, u"ab\0", 8);
  scratch.Set(L"one unit", REG_SZ, u"ab", 2);
  scratch.Set(L"half a unit", REG_SZ, u"a", 1);
  scratch.Set(L"nothing", REG_SZ, u"", 0);
  scratch.Set(L"long", REG_SZ, text.c_str(), 2 * text.size() + 2);
  EXPECT_EQ(Read(u"unterminated"), u"abc");
  EXPECT_EQ(Read(u"odd"), u"a");
  EXPECT_EQ(Read(u"inner zero"), std::u16string_view(u"ab\0cd", 5));
  EXPECT_EQ(Read(u"two zeros"), std::u16string_view(u"ab\0", 3));
  EXPECT_EQ(Read(u"one unit"), u"");
  EXPECT_EQ(Read(u"half a unit"), u"");
  EXPECT_EQ(Read(u"nothing"), u"");
  EXPECT_EQ(Read(u"long"), text);
}

// Reads a text of the system's version key with the system's own call.
std::u16string OfTheSystem(const wchar_t* value) {
  wchar_t text[1024] = L"";
  DWORD size = sizeof text;
  const LSTATUS status = RegGetValueW(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\Windows NT\\CurrentVersion",
                                      value, RRF_RT_REG_SZ, nullptr, text, &size);
  return status == ERROR_SUCCESS ? std::u16string(text, text + size / sizeof(wchar_t) - 1) : std::u16string();
}

TEST(RegReadRegistered, AreWhatTheSystemHas) {
  EXPECT_EQ(RegReadRegisteredOwnerW(), OfTheSystem(L"RegisteredOwner"));
  EXPECT_EQ(RegReadRegisteredOrganizationW(), OfTheSystem(L"RegisteredOrganization"));
  // A value that every system has, which shows that the key is right.
  EXPECT_NE(OfTheSystem(L"CurrentVersion"), u"");
  EXPECT_EQ(RegReadStrDefW(RegistryRoot::LocalMachine, u"Software\\Microsoft\\Windows NT\\CurrentVersion",
                           u"CurrentVersion", u""),
            OfTheSystem(L"CurrentVersion"));
}

// Sets the language of the calling thread for the lifetime of this object.
class ScopedThreadLocale {
 public:
  explicit ScopedThreadLocale(LANGID language) : before_(GetThreadLocale()) {
    SetThreadLocale(MAKELCID(language, SORT_DEFAULT));
  }
  ScopedThreadLocale(const ScopedThreadLocale&) = delete;
  ScopedThreadLocale& operator=(const ScopedThreadLocale&) = delete;
  ~ScopedThreadLocale() { SetThreadLocale(before_); }

 private:
  LCID before_;
};

// Wine has a shorter message for this error than Windows ("The system cannot find the file specified").
TEST(SysErrorMessage, IsInTheLanguageOfTheThread) {
  {
    const ScopedThreadLocale czech(MAKELANGID(LANG_CZECH, SUBLANG_DEFAULT));
    EXPECT_EQ(SysErrorMessageW(ERROR_FILE_NOT_FOUND), u"Soubor nebyl nalezen");
    EXPECT_EQ(SysErrorMessageW(ERROR_ACCESS_DENIED), u"Přístup odepřen");
    EXPECT_EQ(SysErrorMessageA(ERROR_ACCESS_DENIED),
              "P\xF8\xEDstup odep\xF8"
              "en");
  }
  const ScopedThreadLocale english(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US));
  EXPECT_EQ(SysErrorMessageW(ERROR_FILE_NOT_FOUND), u"File not found");
  EXPECT_EQ(SysErrorMessageW(ERROR_ACCESS_DENIED), u"Access denied");
}

TEST(SysErrorMessage, OfTheLastErrorIsOfThisThread) {
  SetLastError(ERROR_ACCESS_DENIED);
  EXPECT_EQ(LastSysErrorMessageW(), SysErrorMessageW(ERROR_ACCESS_DENIED));
  SetLastError(ERROR_ACCESS_DENIED);
  EXPECT_EQ(LastSysErrorMessageA(), SysErrorMessageA(ERROR_ACCESS_DENIED));
  EXPECT_FALSE(FileExistsW(u"C:\\missing\\missing"));
  EXPECT_EQ(LastSysErrorMessageW(), SysErrorMessageW(ERROR_PATH_NOT_FOUND));
}

TEST(SysErrorMessage, IsEmptyForATextOf256UnitsAndMore) {
  // The length of each text by the system's own count.
  for (std::uint32_t code = 0; code < 16000; ++code) {
    wchar_t text[4096];
    const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                        code, 0, text, 4096, nullptr);
    const bool fits = length != 0 && length < 256;
    // A text of only blanks and full stops would be empty too; no system has such a text.
    EXPECT_EQ(SysErrorMessageW(code).empty(), !fits) << code;
  }
}

TEST(GetUserName, IsThatOfTheSystem) {
  wchar_t buffer[UNLEN + 1];
  DWORD size = UNLEN + 1;
  ASSERT_TRUE(::GetUserNameW(buffer, &size));
  std::u16string name;
  EXPECT_TRUE(DIUtils::GetUserNameW(name));
  EXPECT_EQ(name, std::u16string(buffer, buffer + size - 1));
}

TEST(TextExtent, MeasuresOnARealDeviceContext) {
  const HDC device = CreateCompatibleDC(nullptr);
  ASSERT_TRUE(device);
  const platform::TextSize one = TextExtentW(device, u"x");
  const platform::TextSize text = TextExtentW(device, u"xxxx");
  EXPECT_GT(one.width, 0);
  EXPECT_GT(one.height, 0);
  EXPECT_EQ(text.width, 4 * one.width);
  EXPECT_EQ(text.height, one.height);
  EXPECT_EQ(TextWidthW(device, u"xxxx"), text.width);
  EXPECT_EQ(TextHeightW(device, u"xxxx"), text.height);
  SIZE size{};
  ASSERT_TRUE(GetTextExtentPoint32W(device, L"Účet č. 1", 9, &size));
  EXPECT_EQ(TextExtentW(device, u"Účet č. 1"), (platform::TextSize{size.cx, size.cy}));
  EXPECT_EQ(TextWidthW(device, u""), 0);
  // A zero is a character like any other.
  ASSERT_TRUE(GetTextExtentPoint32W(device, L"a\0b", 3, &size));
  EXPECT_EQ(TextWidthW(device, std::u16string_view(u"a\0b", 3)), size.cx);
  DeleteDC(device);
  EXPECT_EQ(TextExtentW(device, u"x"), platform::TextSize());
}

TEST(GetSpecialFolder, IsWhatTheShellSays) {
  EXPECT_EQ(GetSpecialFolderW(36), u"C:\\windows\\");
  EXPECT_TRUE(GetPersonalFolderW().ends_with(u'\\'));
  EXPECT_TRUE(GetDesktopDirectoryFolderW().starts_with(u"C:\\"));
  EXPECT_EQ(GetDesktopFolderW(), GetDesktopDirectoryFolderW());
  // Printers and the like are not folders of the file system.
  EXPECT_EQ(GetSpecialFolderW(17), u"");
}

}  // namespace
}  // namespace ravo::DIUtils
