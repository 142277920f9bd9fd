#pragma once

#include <ravo/platform/registry_root.h>
#include <ravo/platform/text_size.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>
#include <string_view>

/// What the system keeps for programs to ask: registry, words for errors, the user, the sizes of texts. None
/// of these raises for a call of the system that fails. Members that end in "A" take and answer texts of the
/// system's 8-bit code page, the others UTF-16.
namespace ravo::DIUtils {

/// A text of the registry, environment references not expanded, without the last of the units that are
/// stored, which is its terminating zero; empty for fewer than two. `fallback` for a key or value that is
/// missing or cannot be read and for values that are no texts. Systems without a registry have a few keys
/// of what they tell of themselves.
[[nodiscard]] RAVO_API std::u16string RegReadStrDef(platform::RegistryRoot root, std::u16string_view key,
                                                    std::u16string_view value, std::u16string_view fallback);
[[nodiscard]] RAVO_API std::string RegReadStrDefA(platform::RegistryRoot root, std::string_view key,
                                                  std::string_view value, std::string_view fallback);
[[nodiscard]] RAVO_API std::u16string RegReadStrDefW(platform::RegistryRoot root, std::u16string_view key,
                                                     std::u16string_view value, std::u16string_view fallback);

/// Whom the system is registered to; empty where it does not say.
[[nodiscard]] RAVO_API std::string RegReadRegisteredOwnerA();
[[nodiscard]] RAVO_API std::u16string RegReadRegisteredOwnerW();
/// The organisation that the system is registered to; empty where there is none.
[[nodiscard]] RAVO_API std::string RegReadRegisteredOrganizationA();
[[nodiscard]] RAVO_API std::u16string RegReadRegisteredOrganizationW();

/// The system's words, in the user's language, for one of its error codes (those of Windows there, `errno`
/// elsewhere), without the full stops, blanks and control characters at their end; empty where it has none in
/// fewer than 256 characters.
[[nodiscard]] RAVO_API std::u16string SysErrorMessage(std::uint32_t code);
[[nodiscard]] RAVO_API std::string SysErrorMessageA(std::uint32_t code);
[[nodiscard]] RAVO_API std::u16string SysErrorMessageW(std::uint32_t code);

/// The same for the calling thread's last error.
[[nodiscard]] RAVO_API std::u16string LastSysErrorMessage();
[[nodiscard]] RAVO_API std::string LastSysErrorMessageA();
[[nodiscard]] RAVO_API std::u16string LastSysErrorMessageW();

/// The name of the account that the process runs under; false and an empty name where the system fails.
RAVO_API bool GetUserNameA(std::string& name);
RAVO_API bool GetUserNameW(std::u16string& name);

/// The size of a text in one line on a device, in its logical units; 0 where the device cannot tell. There
/// are such devices only on Windows, where they are device contexts. Raises `RangeError` for 2^31 units and
/// more.
[[nodiscard]] RAVO_API platform::TextSize TextExtentW(platform::DeviceContext device,
                                                      std::u16string_view text);
/// The width alone.
[[nodiscard]] RAVO_API std::int32_t TextWidthW(platform::DeviceContext device, std::u16string_view text);
/// The height alone.
[[nodiscard]] RAVO_API std::int32_t TextHeightW(platform::DeviceContext device, std::u16string_view text);

}  // namespace ravo::DIUtils
