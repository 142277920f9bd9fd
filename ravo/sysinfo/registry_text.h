#pragma once

#include <ravo/platform/registry.h>

#include <memory>
#include <string>
#include <string_view>

namespace ravo::sysinfo {

/// Returns the text of a value; empty if the key did not open or the value has no text.
[[nodiscard]] inline std::u16string TextOf(const std::unique_ptr<platform::RegistryKey>& key,
                                           std::u16string_view name) {
  return key ? key->Text(name).value_or(std::u16string()) : std::u16string();
}

}  // namespace ravo::sysinfo
