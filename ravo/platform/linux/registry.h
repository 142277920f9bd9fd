#pragma once

#include <ravo/platform/registry.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ravo::platform::gnu_linux {

enum class RegistryKind : std::uint8_t { Text, ManyTexts };

/// A value of the registry view: a text, or a list with one text.
struct RegistryValue {
  std::u16string name;
  std::u16string text;
  RegistryKind kind = RegistryKind::Text;
};

/// Returns a key with those values that have a text; null if none has.
[[nodiscard]] std::unique_ptr<RegistryKey> MakeKey(std::vector<RegistryValue> values);

/// Returns the firmware's description of the computer, by the files below `root`. `machine` is the fallback
/// for its name.
[[nodiscard]] std::vector<RegistryValue> HardwareValues(const std::string& root, std::string_view machine);

/// Returns the system's description of itself, by the files below `root`, with the name of its owner.
[[nodiscard]] std::vector<RegistryValue> SystemValues(const std::string& root, std::string_view owner);

}  // namespace ravo::platform::gnu_linux
