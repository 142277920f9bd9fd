#include <ravo/platform/win32/wide.h>
#include <ravo/platform/win32/win32_machine.h>
#include <ravo/runtime/checked.h>

#include <algorithm>
#include <array>
#include <limits>

#include <objbase.h>
#include <shlobj.h>
#include <windows.h>

namespace ravo::platform {
namespace {

constexpr DWORD kBufferUnits = 260;
using Buffer = std::array<wchar_t, kBufferUnits>;

SystemFamily FamilyOf(DWORD platform_id) {
  return platform_id <= VER_PLATFORM_WIN32_NT ? static_cast<SystemFamily>(platform_id) : SystemFamily::Other;
}

// Fills the basic or the extended record.
template <class Info>
bool Fill(Info& info) {
  info = {};
  info.dwOSVersionInfoSize = sizeof info;
  return GetVersionExW(reinterpret_cast<OSVERSIONINFOW*>(&info)) != 0;
}

template <class Info>
SystemNumbers NumbersOf(const Info& info) {
  return {FamilyOf(info.dwPlatformId), info.dwMajorVersion, info.dwMinorVersion, info.dwBuildNumber};
}

ProductType ProductOf(BYTE product) {
  return product <= VER_NT_SERVER ? static_cast<ProductType>(product) : ProductType::Unknown;
}

// The fields of both records.
template <class Info>
SystemVersion RecordOf(const Info& info) {
  SystemVersion version;
  static_cast<SystemNumbers&>(version) = NumbersOf(info);
  version.service_pack =
      FromWide(UpToZero(std::wstring_view(info.szCSDVersion, std::size(info.szCSDVersion))));
  return version;
}

// Fills the buffer by a call that returns the length, or the size needed if the buffer is too small.
template <typename Call>
std::u16string Filled(Call call) {
  Buffer buffer;
  const DWORD length = call(buffer.data(), kBufferUnits);
  return length < kBufferUnits ? FromWide({buffer.data(), length}) : std::u16string();
}

// Fills the buffer by a call that takes its size and returns success.
template <typename Call>
std::u16string FilledOnSuccess(Call call) {
  Buffer buffer;
  DWORD size = kBufferUnits;
  if (!call(buffer.data(), &size)) return {};
  return FromWide(UpToZero(std::wstring_view(buffer.data(), kBufferUnits)));
}

std::uint32_t Clamped(SIZE_T bytes) {
  return static_cast<std::uint32_t>(std::min<SIZE_T>(bytes, std::numeric_limits<std::uint32_t>::max()));
}

}  // namespace

SystemVersion Win32System::Version() const {
  OSVERSIONINFOEXW info;
  if (!Fill(info)) return {};
  SystemVersion version = RecordOf(info);
  version.suite_mask = info.wSuiteMask;
  version.product_type = ProductOf(info.wProductType);
  return version;
}

SystemVersion Win32System::BasicVersion() const {
  OSVERSIONINFOW info;
  return Fill(info) ? RecordOf(info) : SystemVersion();
}

SystemNumbers Win32System::VersionNumbers() const noexcept {
  OSVERSIONINFOW info;
  return Fill(info) ? NumbersOf(info) : SystemNumbers();
}

bool Win32System::IsServerR2() const { return GetSystemMetrics(SM_SERVERR2) != 0; }

std::uint16_t Win32System::ProcessorArchitecture() const {
  SYSTEM_INFO info{};
  GetSystemInfo(&info);
  return info.wProcessorArchitecture;
}

std::u16string Win32Folders::Folder(SystemFolder folder) const {
  switch (folder) {
    case SystemFolder::System:
      return Filled(GetSystemDirectoryW);
    case SystemFolder::Windows:
      return Filled(GetWindowsDirectoryW);
    case SystemFolder::Temporary:
      return Filled([](wchar_t* buffer, DWORD size) { return GetTempPathW(size, buffer); });
    case SystemFolder::CommonDocuments:
      return ShellFolder(CSIDL_COMMON_DOCUMENTS);
  }
  return {};
}

std::u16string Win32Folders::ShellFolder(std::int32_t number) const {
  LPITEMIDLIST list = nullptr;
  if (FAILED(SHGetSpecialFolderLocation(nullptr, number, &list))) return {};
  std::u16string path =
      FilledOnSuccess([&](wchar_t* buffer, DWORD*) { return SHGetPathFromIDListW(list, buffer); });
  // The shell's allocator.
  CoTaskMemFree(list);
  return path;
}

std::u16string Win32System::ComputerName() const { return FilledOnSuccess(GetComputerNameW); }

std::u16string Win32System::UserName() const { return FilledOnSuccess(GetUserNameW); }

MemoryFigures Win32System::Memory() const {
  MEMORYSTATUS status{};
  status.dwLength = sizeof status;
  GlobalMemoryStatus(&status);
  return {Clamped(status.dwTotalPhys),    Clamped(status.dwAvailPhys),     Clamped(status.dwTotalVirtual),
          Clamped(status.dwAvailVirtual), Clamped(status.dwTotalPageFile), Clamped(status.dwAvailPageFile)};
}

std::optional<TextSize> Win32System::TextExtent(DeviceContext device, std::u16string_view text) const {
  SIZE size{};
  const auto* units = reinterpret_cast<const wchar_t*>(text.data());
  if (!GetTextExtentPoint32W(static_cast<HDC>(device), units, CheckedCast<int>(text.size()), &size))
    return std::nullopt;
  return TextSize{static_cast<std::int32_t>(size.cx), static_cast<std::int32_t>(size.cy)};
}

}  // namespace ravo::platform
