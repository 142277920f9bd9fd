#include <ravo/platform/win32/system_error.h>
#include <ravo/platform/win32/wide.h>
#include <ravo/platform/win32/win32_machine.h>
#include <ravo/runtime/error.h>

#include <algorithm>
#include <cstring>

#include <windows.h>

namespace ravo::platform {
namespace {

struct Value {
  DWORD type = REG_NONE;
  std::vector<std::byte> data;
};

// Reads a whole value, which may grow between two calls.
LSTATUS ReadValue(HKEY key, std::u16string_view name, Value& value) {
  const std::wstring wide_name = ToWide(name);
  value.data.resize(256);
  for (;;) {
    auto size = static_cast<DWORD>(value.data.size());
    const LSTATUS status = RegQueryValueExW(key, wide_name.c_str(), nullptr, &value.type,
                                            reinterpret_cast<BYTE*>(value.data.data()), &size);
    if (status != ERROR_SUCCESS && status != ERROR_MORE_DATA) return status;
    value.data.resize(size);
    if (status == ERROR_SUCCESS) return status;
  }
}

// Stored text may lack a terminating zero, or end in half a unit.
std::u16string WholeUnits(const std::vector<std::byte>& data) {
  std::u16string text(data.size() / sizeof(char16_t), u'\0');
  std::memcpy(text.data(), data.data(), text.size() * sizeof(char16_t));
  return text;
}

class Win32RegistryKey final : public RegistryKey {
 public:
  explicit Win32RegistryKey(HKEY key) noexcept : key_(key) {}
  ~Win32RegistryKey() override { RegCloseKey(key_); }

  [[nodiscard]] std::optional<std::u16string> StoredText(std::u16string_view name) const override {
    Value value;
    if (ReadValue(key_, name, value) != ERROR_SUCCESS) return std::nullopt;
    if (value.type != REG_SZ && value.type != REG_EXPAND_SZ) return std::nullopt;
    return WholeUnits(value.data);
  }

  [[nodiscard]] std::optional<std::int32_t> Integer(std::u16string_view name) const override {
    Value value;
    std::int32_t integer = 0;
    if (ReadValue(key_, name, value) != ERROR_SUCCESS) return std::nullopt;
    if (value.type != REG_DWORD || value.data.size() != sizeof integer) return std::nullopt;
    std::memcpy(&integer, value.data.data(), sizeof integer);
    return integer;
  }

  [[nodiscard]] std::optional<std::vector<std::byte>> Bytes(std::u16string_view name,
                                                            std::size_t most) const override {
    Value value;
    const LSTATUS status = ReadValue(key_, name, value);
    if (status == ERROR_FILE_NOT_FOUND) return std::nullopt;
    if (status != ERROR_SUCCESS) throw Error(SystemErrorText(static_cast<std::uint32_t>(status)));
    value.data.resize(std::min(value.data.size(), most));
    return std::move(value.data);
  }

 private:
  HKEY key_;
};

HKEY RootKey(RegistryRoot root) {
  switch (root) {
    case RegistryRoot::ClassesRoot:
      return HKEY_CLASSES_ROOT;
    case RegistryRoot::CurrentUser:
      return HKEY_CURRENT_USER;
    case RegistryRoot::LocalMachine:
      return HKEY_LOCAL_MACHINE;
    case RegistryRoot::Users:
      return HKEY_USERS;
  }
  return nullptr;
}

}  // namespace

std::unique_ptr<RegistryKey> Win32Registry::OpenKey(RegistryRoot root, std::u16string_view path) const {
  if (path.starts_with(u'\\')) path.remove_prefix(1);
  HKEY key = nullptr;
  if (RegOpenKeyExW(RootKey(root), ToWide(path).c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return nullptr;
  return std::make_unique<Win32RegistryKey>(key);
}

}  // namespace ravo::platform
