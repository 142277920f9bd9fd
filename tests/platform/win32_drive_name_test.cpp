#ifdef _WIN32

#include <ravo/platform/win32/drive_name.h>

#include <gtest/gtest.h>

namespace ravo::platform {
namespace {

TEST(IsDriveName, OfEveryNameOfADrive) {
  for (const wchar_t* name : {L"C:\\", L"C:\\\\", L"C:\\.", L"C:\\.\\", L"C:/", L"c:\\missing\\..",
                              L"\\\\?\\C:\\", L"Y:\\", L"\\\\?\\C:"}) {
    EXPECT_TRUE(IsDriveName(name)) << std::string(name, name + std::wcslen(name));
  }
}

TEST(IsDriveName, OfNoFolder) {
  for (const wchar_t* name : {L"C:\\windows", L"C:\\windows\\", L"C:\\missing", L"windows", L"",
                              L"\\\\?\\C:\\a", L"\\\\server\\share", L"C:\\a\\.\\b"}) {
    EXPECT_FALSE(IsDriveName(name)) << std::string(name, name + std::wcslen(name));
  }
}

}  // namespace
}  // namespace ravo::platform

#endif
