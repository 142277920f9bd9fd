#include <ravo/platform/linux/registry.h>
#include <ravo/runtime/text.h>

#include <algorithm>

namespace ravo::platform::gnu_linux {
namespace {

class HostKey final : public RegistryKey {
 public:
  explicit HostKey(std::vector<RegistryValue> values) noexcept : values_(std::move(values)) {}

  [[nodiscard]] std::optional<std::u16string> StoredText(std::u16string_view name) const override {
    const RegistryValue* value = Find(name);
    return value && value->kind == RegistryKind::Text ? std::optional(value->text + u'\0') : std::nullopt;
  }

  [[nodiscard]] std::optional<std::int32_t> Integer(std::u16string_view) const override {
    return std::nullopt;
  }

  [[nodiscard]] std::optional<std::vector<std::byte>> Bytes(std::u16string_view name,
                                                            std::size_t most) const override;

 private:
  [[nodiscard]] const RegistryValue* Find(std::u16string_view name) const {
    const auto at = std::ranges::find_if(values_, [&](const auto& v) { return SameAsciiText(v.name, name); });
    return at == values_.end() ? nullptr : &*at;
  }

  std::vector<RegistryValue> values_;
};

// Returns the value as a registry stores it: little-endian units, a zero after each text and one more after
// a list.
std::optional<std::vector<std::byte>> HostKey::Bytes(std::u16string_view name, std::size_t most) const {
  const RegistryValue* value = Find(name);
  if (!value) return std::nullopt;
  std::u16string units = value->text + u'\0';
  if (value->kind == RegistryKind::ManyTexts) units.push_back(u'\0');
  std::vector<std::byte> bytes;
  for (const char16_t unit : units) {
    bytes.push_back(static_cast<std::byte>(unit & 0xFF));
    bytes.push_back(static_cast<std::byte>(unit >> 8));
  }
  bytes.resize(std::min(bytes.size(), most));
  return bytes;
}

}  // namespace

std::unique_ptr<RegistryKey> MakeKey(std::vector<RegistryValue> values) {
  std::erase_if(values, [](const RegistryValue& value) { return value.text.empty(); });
  return values.empty() ? nullptr : std::make_unique<HostKey>(std::move(values));
}

}  // namespace ravo::platform::gnu_linux
