#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The process's command line and its two output channels, in UTF-8 on every system.
namespace tool {

/// The arguments without the program's name.
[[nodiscard]] std::vector<std::string> Arguments(int count, const char* const* values);

enum class Channel { Out, Err };

/// Writes a text as it stands: to a console in whatever the console shows, to a file or pipe as UTF-8 bytes.
/// False where not all of it could be written.
[[nodiscard]] bool Write(Channel channel, std::string_view utf8);

/// The name that stands for standard input.
inline constexpr std::string_view kInputName = "-";

/// Reads bytes of standard input as they stand; gives how many, 0 at the end. Raises `std::runtime_error`
/// where it cannot be read.
[[nodiscard]] std::size_t ReadInput(std::span<std::byte> to);

/// Whether somebody reads the channel on a terminal.
[[nodiscard]] bool IsTerminal(Channel channel);

/// Whether that terminal shows colours.
[[nodiscard]] bool ShowsColours(Channel channel);

}  // namespace tool
