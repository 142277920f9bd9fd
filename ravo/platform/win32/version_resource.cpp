#include <ravo/platform/win32/wide.h>
#include <ravo/platform/win32/win32_machine.h>

#include <algorithm>
#include <cstring>

#include <windows.h>
#include <winver.h>

namespace ravo::platform {
namespace {

// A query's result inside the resource; the length is in bytes or units, depending on the value's kind.
struct Found {
  const void* value = nullptr;
  UINT length = 0;
};

class Win32VersionResource final : public VersionResource {
 public:
  explicit Win32VersionResource(std::vector<std::byte> bytes) noexcept : bytes_(std::move(bytes)) {}

  [[nodiscard]] std::optional<std::uint32_t> FirstTranslation() const override {
    const Found found = Query(L"\\VarFileInfo\\Translation");
    std::uint32_t translation = 0;
    if (std::min<std::size_t>(found.length, Behind(found.value)) < sizeof translation) return std::nullopt;
    std::memcpy(&translation, found.value, sizeof translation);
    return translation;
  }

  [[nodiscard]] std::optional<std::u16string> String(std::u16string_view table,
                                                     std::u16string_view key) const override {
    const Found found = Query(L"\\StringFileInfo\\" + ToWide(table) + L"\\" + ToWide(key));
    if (!found.value) return std::nullopt;
    // A damaged resource may state more text than it has.
    const std::size_t units = std::min<std::size_t>(found.length, Behind(found.value) / sizeof(wchar_t));
    return FromWide(UpToZero(std::wstring_view(static_cast<const wchar_t*>(found.value), units)));
  }

 private:
  [[nodiscard]] Found Query(const std::wstring& path) const {
    void* value = nullptr;
    UINT length = 0;
    if (!VerQueryValueW(bytes_.data(), path.c_str(), &value, &length)) return {};
    return {value, length};
  }

  // Returns the number of bytes from a position to the end of the resource; 0 for a position outside it.
  [[nodiscard]] std::size_t Behind(const void* place) const {
    const auto offset =
        reinterpret_cast<std::uintptr_t>(place) - reinterpret_cast<std::uintptr_t>(bytes_.data());
    return offset < bytes_.size() ? bytes_.size() - offset : 0;
  }

  std::vector<std::byte> bytes_;
};

}  // namespace

std::unique_ptr<VersionResource> Win32Paths::OpenVersionResource(std::u16string_view name) const {
  const std::wstring file = ToWide(name);
  DWORD ignored = 0;
  const DWORD size = GetFileVersionInfoSizeW(file.c_str(), &ignored);
  if (size == 0) return nullptr;
  std::vector<std::byte> bytes(size);
  if (!GetFileVersionInfoW(file.c_str(), 0, size, bytes.data())) return nullptr;
  return std::make_unique<Win32VersionResource>(std::move(bytes));
}

}  // namespace ravo::platform
