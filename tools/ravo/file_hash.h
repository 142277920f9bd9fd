#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tool {

/// The 32-bit sums that a file can have.
enum class FileSum : std::uint8_t { Crc32, Hash, HashIA };

struct FileSumKind {
  FileSum sum;
  std::string_view name;   // on the command line
  std::string_view label;  // in a list of several sums
  std::string_view title;
};

inline constexpr std::array<FileSumKind, 3> kFileSums = {
    {{FileSum::Crc32, "crc32", "CRC32", "CRC-32 of zip and Ethernet"},
     {FileSum::Hash, "hash", "HASH", "hash of the suite's tables (lookup2, initial value 0)"},
     {FileSum::HashIA, "hash-ia", "HASH-IA", "the same with letters in upper case (code page 1252)"}}};

using FileSums = std::array<std::uint32_t, kFileSums.size()>;

/// The sums of a file, or of standard input, in one reading, of whatever size, or `only` one of them (the
/// others are then anything). `name` is UTF-8. No value where it cannot be read.
[[nodiscard]] std::optional<FileSums> SumsOfFile(const std::string& name, const FileSumKind* only);

[[nodiscard]] const FileSumKind* FileSumNamed(std::string_view name);
[[nodiscard]] const FileSumKind* FileSumLabelled(std::string_view label);

/// A line of a list of sums: a label such as "CRC32" or none, the sum, the file's name.
struct SumLine {
  std::string label;
  std::uint32_t sum = 0;
  std::string name;
};

/// "CBF43926  name", or "CRC32 (name) = CBF43926" where there is a label. Line ends in a name are written
/// "\n" and "\r" and the line begins with "\" then.
[[nodiscard]] std::string SumLineText(const SumLine& line);

/// What such a line says; hexadecimal digits of either case, and "*" before the name as some tools write it.
/// No value for any other text.
[[nodiscard]] std::optional<SumLine> ParseSumLine(std::string_view text);

}  // namespace tool
