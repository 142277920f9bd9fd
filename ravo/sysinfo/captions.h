#pragma once

#include <ravo/frame/resource_string.h>

#include <array>
#include <string_view>

/// The Czech captions of the support report. Modules also load them directly, so some of them do not occur in
/// the report.
namespace ravo::RavoInterfaceInfo {

#define RAVO_STRING(name, id, text) /** #text */ inline constexpr ResourceString name{id, u##text};
#include <ravo/sysinfo/captions.inc>
#undef RAVO_STRING

/// A caption with the name that it is exported under.
struct NamedReportCaption {
  std::string_view name;   ///< "_rRootClient"
  ResourceString caption;  ///< the caption
};

/// All captions of the report, in the order of their identifiers' blocks.
inline constexpr auto kReportCaptions = std::to_array<NamedReportCaption>({
#define RAVO_STRING(name, id, text) {#name, name},
#include <ravo/sysinfo/captions.inc>
#undef RAVO_STRING
});

}  // namespace ravo::RavoInterfaceInfo
