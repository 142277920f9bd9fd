#pragma once

#include <ravo/platform/chapter.h>

#include <cstdint>
#include <optional>
#include <string_view>

namespace ravo::platform {

/// A loaded module of code or resources: an instance handle on Windows, the dynamic loader's handle
/// elsewhere.
using ModuleHandle = void*;

/// Modules of resource texts.
class ResourceCalls : public Chapter {
 public:
  /// Returns a text of the module's own string table, not of modules that it links to; no value if it has
  /// none under that number.
  ///
  /// The view lives as long as the module stays loaded.
  [[nodiscard]] virtual std::optional<std::u16string_view> ResourceText(ModuleHandle module,
                                                                        std::uint16_t id) const = 0;
  /// Loads a module of resources; null if that fails.
  [[nodiscard]] virtual ModuleHandle LoadResources(std::u16string_view file) const = 0;
  /// Unloads a module that `LoadResources` loaded; does nothing for null.
  virtual void UnloadResources(ModuleHandle module) const = 0;
};

/// Returns this chapter of the machine in force.
[[nodiscard]] const ResourceCalls& Resources() noexcept;

}  // namespace ravo::platform
