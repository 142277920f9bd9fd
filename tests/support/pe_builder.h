#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Builds version resources and images with them, part by part as the formats describe them.
namespace ravo::test {

using Bytes = std::vector<std::byte>;

/// Overwrites numbers inside an image.
void Put16(Bytes& bytes, std::size_t at, std::uint16_t value);
void Put32(Bytes& bytes, std::size_t at, std::uint32_t value);

/// One node of a version resource: lengths, kind, key, value, children. `value_length` is written as given.
[[nodiscard]] Bytes VersionNode(std::u16string_view key, std::uint16_t kind, std::uint16_t value_length,
                                std::span<const std::byte> value, const std::vector<Bytes>& children);

/// A string of a string table, its length in units including the terminating zero.
[[nodiscard]] Bytes VersionString(std::u16string_view key, std::u16string_view text);

/// A whole version resource with one string table and one list of translations.
[[nodiscard]] Bytes VersionBlock(std::u16string_view table,
                                 const std::vector<std::pair<std::u16string, std::u16string>>& strings,
                                 const std::vector<std::uint32_t>& translations);

enum class PeKind : std::uint8_t { Pe32, Pe32Plus };

/// An image, and the offsets of the parts on the way to its version resource.
struct PeImage {
  Bytes bytes;
  std::size_t pe_header = 0;
  std::size_t optional_header = 0;
  std::size_t resource_data_directory = 0;
  std::size_t section_table = 0;
  std::size_t resources = 0;
  std::size_t type_directory = 0;
  std::size_t name_directory = 0;
  std::size_t language_directory = 0;
  std::size_t data_entry = 0;
  std::size_t data = 0;
};

/// Returns an image with a code section and a resource section, in which a named type and a string table
/// come before the version resource.
[[nodiscard]] PeImage BuildPe(PeKind kind, std::span<const std::byte> version_block);

}  // namespace ravo::test
