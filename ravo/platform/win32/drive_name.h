#pragma once

#include <string>

namespace ravo::platform {

/// Returns a name with its drive and all folders.
[[nodiscard]] std::wstring FullName(const std::wstring& name);

/// Tells whether a name, however it is written, is that of a drive and not of a folder on it: "C:\\" and
/// "C:\." are.
[[nodiscard]] bool IsDriveName(const std::wstring& name);

}  // namespace ravo::platform
