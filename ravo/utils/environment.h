#pragma once

#include <ravo/platform/registry_root.h>
#include <ravo/platform/text_size.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>
#include <string_view>

/// Facts of the system: registry, error messages, the user, sizes of texts. A failing system call never
/// throws. Members that end in "A" take and return texts in the system's 8-bit code page, the others UTF-16.
namespace ravo::DIUtils {

/// Returns a text of the registry, without expanding environment references.
///
/// The last stored unit, its terminating zero, is cut off; a text of fewer than two units is empty. Returns
/// `fallback` if the key or value is missing or unreadable, or the value is not a text. Systems without a
/// registry have a few keys with facts about themselves.
[[nodiscard]] RAVO_API std::u16string RegReadStrDef(platform::RegistryRoot root, std::u16string_view key,
                                                    std::u16string_view value, std::u16string_view fallback);
[[nodiscard]] RAVO_API std::string RegReadStrDefA(platform::RegistryRoot root, std::string_view key,
                                                  std::string_view value, std::string_view fallback);
[[nodiscard]] RAVO_API std::u16string RegReadStrDefW(platform::RegistryRoot root, std::u16string_view key,
                                                     std::u16string_view value, std::u16string_view fallback);

/// Returns the person that the system is registered to; empty if unknown.
[[nodiscard]] RAVO_API std::string RegReadRegisteredOwnerA();
[[nodiscard]] RAVO_API std::u16string RegReadRegisteredOwnerW();
/// Returns the organisation that the system is registered to; empty if unknown.
[[nodiscard]] RAVO_API std::string RegReadRegisteredOrganizationA();
[[nodiscard]] RAVO_API std::u16string RegReadRegisteredOrganizationW();

/// Returns the system's message for an error code, in the user's language. Codes are those of Windows there,
/// and `errno` elsewhere.
///
/// Trailing full stops, blanks and control characters are removed. Empty if the system has no message of
/// fewer than 256 characters.
[[nodiscard]] RAVO_API std::u16string SysErrorMessage(std::uint32_t code);
[[nodiscard]] RAVO_API std::string SysErrorMessageA(std::uint32_t code);
[[nodiscard]] RAVO_API std::u16string SysErrorMessageW(std::uint32_t code);

/// Returns the system's message for the last error of the calling thread.
[[nodiscard]] RAVO_API std::u16string LastSysErrorMessage();
[[nodiscard]] RAVO_API std::string LastSysErrorMessageA();
[[nodiscard]] RAVO_API std::u16string LastSysErrorMessageW();

/// Sets `name` to the account that the process runs under. Returns false and sets an empty name if the system
/// fails.
RAVO_API bool GetUserNameA(std::string& name);
RAVO_API bool GetUserNameW(std::u16string& name);

/// Returns the size of a single-line text on a device, in its logical units; 0 if the device cannot measure
/// it.
///
/// Such devices are the device contexts of Windows; other systems have none. Throws `RangeError` for 2^31
/// units and more.
[[nodiscard]] RAVO_API platform::TextSize TextExtentW(platform::DeviceContext device,
                                                      std::u16string_view text);
/// Returns only the width.
[[nodiscard]] RAVO_API std::int32_t TextWidthW(platform::DeviceContext device, std::u16string_view text);
/// Returns only the height.
[[nodiscard]] RAVO_API std::int32_t TextHeightW(platform::DeviceContext device, std::u16string_view text);

}  // namespace ravo::DIUtils
