#ifdef _WIN32

#include "support/scratch_folder.h"
#include <ravo/platform/drives.h>
#include <ravo/platform/file_stream.h>
#include <ravo/platform/files.h>
#include <ravo/platform/folders.h>
#include <ravo/platform/locale.h>
#include <ravo/platform/paths.h>
#include <ravo/platform/system.h>
#include <ravo/runtime/error.h>

#include <gtest/gtest.h>
#include <windows.h>

namespace ravo::platform {
namespace {

using test::ScratchFolder;

std::u16string Environment(const wchar_t* name) {
  wchar_t value[1024] = L"";
  const DWORD length = GetEnvironmentVariableW(name, value, 1024);
  return {value, value + length};
}

TEST(Win32System, VersionIsOfTheNtFamily) {
  OSVERSIONINFOW info{};
  info.dwOSVersionInfoSize = sizeof info;
  ASSERT_TRUE(GetVersionExW(&info));
  const SystemVersion version = System().Version();
  EXPECT_EQ(version.family, SystemFamily::WindowsNt);
  EXPECT_EQ(version.major, info.dwMajorVersion);
  EXPECT_EQ(version.minor, info.dwMinorVersion);
  EXPECT_EQ(version.build, info.dwBuildNumber);
  EXPECT_NE(version.product_type, ProductType::Unknown);
  EXPECT_LE(version.product_type, ProductType::Server);
  EXPECT_EQ(System().IsServerR2(), GetSystemMetrics(89) != 0);
}

TEST(Win32System, TheBasicVersionHasWhatBothRecordsHave) {
  const SystemVersion expected = System().Version();
  const SystemVersion version = System().BasicVersion();
  EXPECT_EQ(version.family, expected.family);
  EXPECT_EQ(version.major, expected.major);
  EXPECT_EQ(version.minor, expected.minor);
  EXPECT_EQ(version.build, expected.build);
  EXPECT_EQ(version.service_pack, expected.service_pack);
  EXPECT_EQ(version.suite_mask, 0);
  EXPECT_EQ(version.product_type, ProductType::Unknown);
}

TEST(Win32System, ArchitectureIsThatOfThisProgram) {
  EXPECT_EQ(System().ProcessorArchitecture(), sizeof(void*) == 8 ? kArchitectureAmd64 : kArchitectureIntel);
}

TEST(Win32System, NamesAndFoldersAreThoseOfTheEnvironment) {
  EXPECT_EQ(Folders().Folder(SystemFolder::Windows), Environment(L"SystemRoot"));
  EXPECT_EQ(Folders().Folder(SystemFolder::System), Environment(L"SystemRoot") + u"\\system32");
  EXPECT_EQ(Folders().Folder(SystemFolder::CommonDocuments), Environment(L"PUBLIC") + u"\\Documents");
  EXPECT_EQ(System().ComputerName(), Environment(L"COMPUTERNAME"));
  EXPECT_EQ(System().UserName(), Environment(L"USERNAME"));
}

TEST(Win32System, FoldersThatDoNotFitAreEmpty) {
  const std::u16string before = Environment(L"TMP");
  const std::wstring restored(before.begin(), before.end());
  SetEnvironmentVariableW(L"TMP", (L"C:\\" + std::wstring(300, L'x')).c_str());
  EXPECT_EQ(Folders().Folder(SystemFolder::Temporary), u"");
  SetEnvironmentVariableW(L"TMP", restored.empty() ? nullptr : restored.c_str());
  EXPECT_NE(Folders().Folder(SystemFolder::Temporary), u"");
}

TEST(Win32System, SystemDriveIsFixedAndHasSpace) {
  EXPECT_NE(Drives().LogicalDrives() & 1U << 2, 0U);
  EXPECT_EQ(Drives().KindOfDrive(u"C:"), DriveKind::Fixed);
  const auto space = Drives().SpaceOfFolder(u"C:");
  ASSERT_TRUE(space);
  EXPECT_GT(space->total, 0);
}

TEST(Win32Files, RootsAndDelimiters) {
  EXPECT_EQ(Paths().PathDelimiter(), u'\\');
  EXPECT_EQ(Paths().FullPath(u"C:\\a\\..\\b/c"), u"C:\\b\\c");
}

TEST(Win32Files, SearchTakesWildcards) {
  const ScratchFolder folder;
  FileStream(folder.File(u"only.one"), FileMode::Create).WriteChecked(std::as_bytes(std::span("abc")));
  const auto facts = Paths().FindFile(folder.File(u"on*.?ne"));
  ASSERT_TRUE(facts);
  EXPECT_EQ(facts->size, 4);
}

TEST(Win32Files, TimeStampAndAttributesAreThoseOfTheFile) {
  const ScratchFolder folder;
  const std::u16string name = folder.File(u"a");
  const std::wstring wide(name.begin(), name.end());
  const SYSTEMTIME set{2005, 2, 0, 3, 16, 5, 6, 0};
  FILETIME local{};
  FILETIME written{};
  ASSERT_TRUE(SystemTimeToFileTime(&set, &local) && LocalFileTimeToFileTime(&local, &written));
  const HANDLE file = CreateFileW(wide.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
  ASSERT_TRUE(SetFileTime(file, nullptr, nullptr, &written));
  CloseHandle(file);
  SetFileAttributesW(wide.c_str(), FILE_ATTRIBUTE_READONLY);
  const auto facts = Paths().FindFile(name);
  SetFileAttributesW(wide.c_str(), FILE_ATTRIBUTE_NORMAL);
  ASSERT_TRUE(facts);
  // 38386 days lie between 30 December 1899 and 3 February 2005.
  EXPECT_NEAR(facts->written, 38386 + (16 * 3600 + 5 * 60 + 6) / 86400.0, 1e-9);
  EXPECT_EQ(facts->attributes & (kFolderAttribute | FILE_ATTRIBUTE_READONLY), 1U);
}

TEST(Win32FileStream, WritersAreAlone) {
  const ScratchFolder folder;
  const std::u16string name = folder.File(u"a");
  const FileStream writer(name, FileMode::Create);
  for (const FileMode mode : {FileMode::Read, FileMode::ReadWrite, FileMode::Create}) {
    EXPECT_THROW(FileStream(name, mode), StreamError);
  }
}

TEST(Win32FileStream, OpenErrorIsInTheWordsOfTheSystem) {
  const ScratchFolder folder;
  wchar_t words[512] = L"";
  ASSERT_GT(FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM, nullptr, ERROR_FILE_NOT_FOUND, 0, words, 512, nullptr),
            0U);
  std::wstring expected(words);
  expected.resize(expected.find_last_not_of(L"\r\n ") + 1);
  try {
    const FileStream stream(folder.File(u"none"), FileMode::Read);
    FAIL() << "opened";
  } catch (const StreamError& error) {
    EXPECT_EQ(error.Message(),
              folder.File(u"none") + u": " + std::u16string(expected.begin(), expected.end()));
  }
}

TEST(Win32CodePage, IsThatOfTheSystem) { EXPECT_EQ(GetACP(), 1250U); }

TEST(Win32Locale, IsCzech) {
  const FormatSettings settings = Locale().Settings();
  EXPECT_EQ(settings.decimal_separator, u',');
  EXPECT_EQ(settings.thousands_separator, u"\u00A0");
  EXPECT_EQ(settings.long_time, u"h:nn:ss");
  EXPECT_EQ(settings.long_day_names[0], u"neděle");
  EXPECT_EQ(settings.long_day_names[1], u"pondělí");
  EXPECT_EQ(settings.long_day_names[6], u"sobota");
  EXPECT_EQ(settings.short_day_names[0], u"ne");
  EXPECT_EQ(settings.long_month_names[0], u"leden");
  EXPECT_EQ(settings.long_month_names[11], u"prosinec");
}

}  // namespace
}  // namespace ravo::platform

#endif
