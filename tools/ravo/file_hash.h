#pragma once

#include "text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tool {

/// The 32-bit sums of a file.
enum class FileSum : std::uint8_t { Crc32, Hash, HashIA };

struct FileSumKind {
  FileSum sum;
  std::string_view name;   // on the command line
  std::string_view label;  // in a list of several sums
  std::string_view title;
};

inline constexpr std::array<FileSumKind, 3> kFileSums = {
    {{FileSum::Crc32, "crc32", "CRC32", ToTranslate("CRC-32 of zip and Ethernet")},
     {FileSum::Hash, "hash", "HASH", ToTranslate("hash of the suite's tables (lookup2, initial value 0)")},
     {FileSum::HashIA, "hash-ia", "HASH-IA",
      ToTranslate("the same with letters in upper case (code page 1252)")}}};

using FileSums = std::array<std::uint32_t, kFileSums.size()>;

/// Returns the sums of a file, or of standard input, of any size in one pass; with `only`, just that sum is
/// valid. `name` is UTF-8. No value if it cannot be read.
[[nodiscard]] std::optional<FileSums> SumsOfFile(const std::string& name, const FileSumKind* only);

[[nodiscard]] const FileSumKind* FileSumNamed(std::string_view name);
[[nodiscard]] const FileSumKind* FileSumLabelled(std::string_view label);

/// A line of a list of sums: an optional label such as "CRC32", the sum, the file name.
struct SumLine {
  std::string label;
  std::uint32_t sum = 0;
  std::string name;
};

/// Returns "CBF43926  name", or "CRC32 (name) = CBF43926" if there is a label. Line ends in a name are
/// written as "\n" and "\r"; the line then begins with "\".
[[nodiscard]] std::string SumLineText(const SumLine& line);

/// Parses such a line; hexadecimal digits may have either case, and "*" may precede the name. No value for
/// any other text.
[[nodiscard]] std::optional<SumLine> ParseSumLine(std::string_view text);

}  // namespace tool
