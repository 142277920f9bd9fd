#pragma once

#include <ravo/platform/paths.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ravo::platform {

/// Returns the first translation in the bytes of a version resource (a VS_VERSION_INFO block); no value if
/// it is missing or the way to it is damaged.
[[nodiscard]] std::optional<std::uint32_t> FirstTranslationOf(std::span<const std::byte> block);

/// Returns the text of `key` in the string table `table`, up to its first zero, its stated length, or the
/// end of its entry; no value if it is missing or the way to it is damaged.
[[nodiscard]] std::optional<std::u16string> VersionStringOf(std::span<const std::byte> block,
                                                            std::u16string_view table,
                                                            std::u16string_view key);

/// A version resource in memory.
class VersionResourceBlock final : public VersionResource {
 public:
  explicit VersionResourceBlock(std::vector<std::byte> bytes) noexcept : bytes_(std::move(bytes)) {}
  ~VersionResourceBlock() override;

  [[nodiscard]] std::optional<std::uint32_t> FirstTranslation() const override {
    return FirstTranslationOf(bytes_);
  }
  [[nodiscard]] std::optional<std::u16string> String(std::u16string_view table,
                                                     std::u16string_view key) const override {
    return VersionStringOf(bytes_, table, key);
  }

 private:
  std::vector<std::byte> bytes_;
};

}  // namespace ravo::platform
