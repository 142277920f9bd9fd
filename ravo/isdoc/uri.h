#pragma once

#include <string_view>

namespace ravo::isdoc::schema {

/// Whether a text is a reference to a URI by RFC 3986 once the characters that no URI has are escaped.
///
/// Spaces, quotes, braces, characters outside of ASCII and the like are allowed; a lone "%", a second
/// "#", brackets outside of the host, and a colon in the first part without a scheme before it are not.
[[nodiscard]] bool IsUriReference(std::string_view text) noexcept;

}  // namespace ravo::isdoc::schema
