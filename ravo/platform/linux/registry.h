#pragma once

#include <ravo/platform/registry.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ravo::platform::gnu_linux {

enum class RegistryKind : std::uint8_t { Text, ManyTexts };

/// A value of the view that looks like a registry: a text, or a list of texts that has one.
struct RegistryValue {
  std::u16string name;
  std::u16string text;
  RegistryKind kind = RegistryKind::Text;
};

/// A key with those of the values that have a text; null where none has.
[[nodiscard]] std::unique_ptr<RegistryKey> MakeKey(std::vector<RegistryValue> values);

/// What the firmware says of the computer, by the files below `root`. `machine` names one that says nothing.
[[nodiscard]] std::vector<RegistryValue> HardwareValues(const std::string& root, std::string_view machine);

/// What the system says of itself, by the files below `root`, and of whom it was set up for.
[[nodiscard]] std::vector<RegistryValue> SystemValues(const std::string& root, std::string_view owner);

}  // namespace ravo::platform::gnu_linux
