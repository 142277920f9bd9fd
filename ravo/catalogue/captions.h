#pragma once

#include <ravo/frame/resource_string.h>
#include <ravo/runtime/export.h>

#include <span>
#include <string_view>

namespace ravo {

/// The Czech captions of the suite's enumerations and its messages to the user. Each is read through the
/// library's current resource instance: `rPropertySazbaNulova.Text()`. "&" marks the accelerator;
/// `PlainCaption` removes it.
namespace RavoInterfaceResources {

#define RAVO_STRING(name, id, text) /** #text */ inline constexpr ResourceString name{id, u##text};
#include <ravo/catalogue/captions.inc>
#undef RAVO_STRING

}  // namespace RavoInterfaceResources

/// One caption or message with its name in the library, the title of the set that it belongs to, and what all
/// names of that set begin with, such as `rPropertySazba`.
struct CaptionRow {
  std::string_view group;   ///< title of the set, in English
  std::string_view prefix;  ///< what all names of the set begin with
  std::string_view name;    ///< in the library: "rPropertySazbaNulova"
  ResourceString text;      ///< the caption or message
};

/// All captions and messages in declaration order, set by set.
[[nodiscard]] RAVO_API std::span<const CaptionRow> CaptionRows() noexcept;

}  // namespace ravo
