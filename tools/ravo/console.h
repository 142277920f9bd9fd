#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The command line and the standard channels of the process, in UTF-8 on every system.
namespace tool {

/// Returns the arguments without the program's name.
[[nodiscard]] std::vector<std::string> Arguments(int count, const char* const* values);

enum class Channel { Out, Err };

/// Writes a text: to a console in the console's own form, to a file or pipe as UTF-8 bytes. On a terminal,
/// control characters are made visible (printable.h). Returns false if not all of it could be written.
[[nodiscard]] bool Write(Channel channel, std::string_view utf8);

/// The same for the program's own colours and moves of the cursor: control characters stay.
[[nodiscard]] bool WriteWithCodes(Channel channel, std::string_view utf8);

/// Returns the name of the language of the system's own dialogs, such as "cs"; empty if the environment
/// decides.
[[nodiscard]] std::string SystemLanguage();

/// The name that denotes standard input.
inline constexpr std::string_view kInputName = "-";

/// Reads bytes of standard input, unchanged; returns their number, 0 at the end. Throws `std::runtime_error`
/// if it cannot be read.
[[nodiscard]] std::size_t ReadInput(std::span<std::byte> to);

/// Returns whether the channel is a terminal.
[[nodiscard]] bool IsTerminal(Channel channel);

/// Returns whether that terminal supports colours.
[[nodiscard]] bool ShowsColours(Channel channel);

}  // namespace tool
