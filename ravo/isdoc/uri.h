#pragma once

#include <string_view>

namespace ravo::isdoc::schema {

/// Whether a text is a reference to a URI by RFC 3986 once the characters that no URI has are escaped.
///
/// Spaces, quotes, braces, characters outside of ASCII and the like may stand there; a lone "%", a second
/// "#", brackets outside of the host, and a colon in the first part without a scheme before it may not.
[[nodiscard]] bool IsUriReference(std::string_view text) noexcept;

}  // namespace ravo::isdoc::schema
