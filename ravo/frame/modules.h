#pragma once

#include <ravo/frame/module_order.h>
#include <ravo/package.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

/// The modules that the library contains, as C++ sees the rows of `modules.inc`.
namespace ravo::frame {

enum class Module : std::uint8_t {
#define RAVO_MODULE(name, flags, uses) name,
#include <ravo/frame/modules.inc>
#undef RAVO_MODULE
};

inline constexpr auto kModules = std::to_array<ModuleRow>({
#define RAVO_MODULE(name, flags, uses) {#name, flags, uses},
#include <ravo/frame/modules.inc>
#undef RAVO_MODULE
});

/// Indices of `kModules` in the order in which the modules start. Modules that use each other in a circle do
/// not compile.
inline constexpr auto kModuleOrder = [] {
  std::array<std::size_t, kModules.size()> order{};
  if (!OrderModules(kModules, order)) throw "the modules use each other in a circle or name an unknown one";
  return order;
}();

/// Slots of the module table for the required run-time libraries, which have nothing to start in this build.
inline constexpr std::size_t kRuntimeSlots = 77;
inline constexpr std::size_t kSlotCount = kRuntimeSlots + kModules.size();

}  // namespace ravo::frame
