#pragma once

#include <ravo/frame/resource_string.h>
#include <ravo/runtime/export.h>

#include <span>
#include <string_view>

namespace ravo {

/// The Czech captions of the suite's enumerations and its messages to the user. `rPropertySazbaNulova.Text()`
/// reads one through the current resource instance of the library. "&" marks the accelerator; `PlainCaption`
/// removes it.
namespace RavoInterfaceResources {

#define RAVO_STRING(name, id, text) /** #text */ inline constexpr ResourceString name{id, u##text};
#include <ravo/catalogue/captions.inc>
#undef RAVO_STRING

}  // namespace RavoInterfaceResources

/// A caption or message with its name in the library, the title of its group, and the common prefix of all
/// names in that group, such as `rPropertySazba`.
struct CaptionRow {
  std::string_view group;   ///< title of the group, in English
  std::string_view prefix;  ///< common prefix of the names in the group
  std::string_view name;    ///< name in the library: "rPropertySazbaNulova"
  ResourceString text;      ///< the caption or message
};

/// Returns all captions and messages in declaration order, group by group.
[[nodiscard]] RAVO_API std::span<const CaptionRow> CaptionRows() noexcept;

}  // namespace ravo
