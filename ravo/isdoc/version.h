#pragma once

#include <ravo/isdoc/document.h>

#include <cstdint>
#include <string_view>

namespace ravo::isdoc {

/// Whether the checks know a document.
enum class Version : std::uint8_t {
  Known,  ///< ISDOC 6
  Other,  ///< ISDOC of another version
  None,   ///< no document of ISDOC
};

[[nodiscard]] Version VersionOf(const Document& document) noexcept;

/// Returns the version that a document of ISDOC says; "5" if it says none.
[[nodiscard]] std::string_view VersionText(const Document& document) noexcept;

}  // namespace ravo::isdoc
