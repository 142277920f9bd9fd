#pragma once

namespace ravo::test {

/// A mutex that exists as long as the server program runs.
inline constexpr const wchar_t* kServerAlive = L"RavoTestComponentServerIsAlive";

}  // namespace ravo::test
