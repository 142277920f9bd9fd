#pragma once

#include <string>

namespace ravo::platform {

/// A name with its drive and all folders on the way.
[[nodiscard]] std::wstring FullName(const std::wstring& name);

/// Whether a name, however it is written, is that of a drive and not of a folder on it: "C:\\" and "C:\."
/// are.
[[nodiscard]] bool IsDriveName(const std::wstring& name);

}  // namespace ravo::platform
