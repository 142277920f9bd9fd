#pragma once

#include <string>

namespace ravo::platform {

/// Whether a name, however it is written, is that of a drive and not of a folder on it: "C:\\" and "C:\."
/// are.
[[nodiscard]] bool IsDriveName(const std::wstring& name);

}  // namespace ravo::platform
