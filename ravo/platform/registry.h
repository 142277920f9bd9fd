#pragma once

#include <ravo/platform/chapter.h>
#include <ravo/platform/registry_root.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ravo::platform {

/// A registry key open for reading. The destructor closes it.
class RegistryKey {
 public:
  RegistryKey() = default;
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;
  virtual ~RegistryKey();

  /// Returns a value's text up to its first zero, environment references not expanded; no value if it is
  /// missing or no text.
  ///
  /// The unnamed value has an empty name.
  [[nodiscard]] virtual std::optional<std::u16string> Text(std::u16string_view name) const;

  /// Returns a value's text as it is stored: every whole unit, including a terminating zero if there is one.
  [[nodiscard]] virtual std::optional<std::u16string> StoredText(std::u16string_view name) const = 0;

  /// Returns a 32-bit integer; no value if it is missing or no such integer.
  [[nodiscard]] virtual std::optional<std::int32_t> Integer(std::u16string_view name) const = 0;

  /// Returns at most the first `most` bytes of a value of any kind, as they are stored; no value if it is
  /// missing.
  ///
  /// Throws `Error` if the value exists but cannot be read.
  [[nodiscard]] virtual std::optional<std::vector<std::byte>> Bytes(std::u16string_view name,
                                                                    std::size_t most) const = 0;
};

/// The registry. Paths are written with "\"; a leading one is allowed.
class RegistryCalls : public Chapter {
 public:
  /// Opens a key for reading; null if that fails.
  [[nodiscard]] virtual std::unique_ptr<RegistryKey> OpenKey(RegistryRoot root,
                                                             std::u16string_view path) const = 0;
};

/// Returns this chapter of the machine in force.
[[nodiscard]] const RegistryCalls& Registry() noexcept;

}  // namespace ravo::platform
