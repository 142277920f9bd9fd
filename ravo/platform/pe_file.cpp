#include <ravo/platform/pe_file.h>
#include <ravo/runtime/little_endian.h>

#include <algorithm>
#include <cstdint>

// Offsets and sizes are those of the published PE/COFF format.
namespace ravo::platform {
namespace {

using Bytes = std::vector<std::byte>;

constexpr std::size_t kDosHeaderSize = 64;
constexpr std::size_t kPeHeaderSize = 24;
constexpr std::size_t kSectionHeaderSize = 40;
constexpr std::size_t kDirectoryHeaderSize = 16;
constexpr std::size_t kDirectoryEntrySize = 8;
constexpr std::size_t kDataEntrySize = 16;
// The loader refuses images with more.
constexpr std::size_t kMostSections = 96;
constexpr std::size_t kMostResourceBytes = 1 << 20;
constexpr std::uint32_t kResourceDirectory = 2;
constexpr std::uint32_t kVersionType = 16;
constexpr std::uint32_t kSubdirectory = 0x80000000;

// A part of the file. The headers say that `size` bytes are there; the file may be shorter.
struct Piece {
  std::int64_t offset = 0;
  std::uint32_t size = 0;
};

struct Section {
  std::uint32_t address = 0;
  std::uint32_t raw_size = 0;
  std::uint32_t raw_offset = 0;
};

struct Headers {
  std::uint32_t resource_address = 0;
  std::vector<Section> sections;
};

struct DirectoryEntry {
  std::uint32_t id = 0;
  std::uint32_t target = 0;
};

// Returns all of the bytes or none. Checks the file's size before allocating.
std::optional<Bytes> ReadAt(ByteStream& file, std::int64_t offset, std::size_t size) {
  const std::int64_t file_size = file.Size();
  if (offset > file_size || static_cast<std::uint64_t>(file_size - offset) < size) return std::nullopt;
  Bytes bytes(size);
  file.SetPosition(offset);
  for (std::size_t done = 0; done < size;) {
    const std::size_t count = file.Read(std::span(bytes).subspan(done));
    // Untested: the file would have to shrink while it is read.
    if (count == 0) return std::nullopt;
    done += count;
  }
  return bytes;
}

// Returns the address of the resources by the data directories of the optional header; 0 if there are no
// resources.
std::uint32_t ResourceAddressOf(const Bytes& optional_header) {
  if (optional_header.size() < 2) return 0;
  const std::uint16_t magic = ReadLittle16(optional_header, 0);
  if (magic != 0x10B && magic != 0x20B) return 0;
  const std::size_t directories = magic == 0x20B ? 112 : 96;
  const std::size_t wanted = directories + std::size_t{8} * kResourceDirectory;
  if (optional_header.size() < wanted + 8) return 0;
  const std::uint32_t count = ReadLittle32(optional_header, directories - 4);
  return count > kResourceDirectory ? ReadLittle32(optional_header, wanted) : 0;
}

std::vector<Section> SectionsOf(const Bytes& table) {
  std::vector<Section> sections;
  for (std::size_t at = 0; at < table.size(); at += kSectionHeaderSize) {
    sections.push_back(
        {ReadLittle32(table, at + 12), ReadLittle32(table, at + 16), ReadLittle32(table, at + 20)});
  }
  return sections;
}

// Returns the offset of the PE header by the DOS header; no value if there is no DOS header.
std::optional<std::int64_t> FindPeHeader(ByteStream& file) {
  const auto dos = ReadAt(file, 0, kDosHeaderSize);
  if (!dos || ReadLittle16(*dos, 0) != 0x5A4D) return std::nullopt;
  return ReadLittle32(*dos, 60);
}

std::optional<Headers> ReadHeaders(ByteStream& file) {
  const auto at = FindPeHeader(file);
  if (!at) return std::nullopt;
  const auto pe = ReadAt(file, *at, kPeHeaderSize);
  if (!pe || ReadLittle32(*pe, 0) != 0x00004550) return std::nullopt;
  const std::size_t section_count = ReadLittle16(*pe, 6);
  const std::size_t optional_size = ReadLittle16(*pe, 20);
  if (section_count > kMostSections) return std::nullopt;
  const std::int64_t optional_at = *at + static_cast<std::int64_t>(kPeHeaderSize);
  const auto optional_header = ReadAt(file, optional_at, optional_size);
  const auto table = ReadAt(file, optional_at + static_cast<std::int64_t>(optional_size),
                            section_count * kSectionHeaderSize);
  if (!optional_header || !table) return std::nullopt;
  return Headers{ResourceAddressOf(*optional_header), SectionsOf(*table)};
}

// Returns the part of a section's bytes in the file from an address on.
std::optional<Piece> Locate(const Headers& headers, std::uint32_t address) {
  for (const Section& section : headers.sections) {
    if (address < section.address || address - section.address >= section.raw_size) continue;
    const std::uint32_t inside = address - section.address;
    return Piece{std::int64_t{section.raw_offset} + inside, section.raw_size - inside};
  }
  return std::nullopt;
}

// Reads `size` bytes at an offset inside a piece.
std::optional<Bytes> ReadInside(ByteStream& file, const Piece& piece, std::uint32_t offset,
                                std::size_t size) {
  if (offset > piece.size || piece.size - offset < size) return std::nullopt;
  return ReadAt(file, piece.offset + offset, size);
}

std::vector<DirectoryEntry> ReadDirectory(ByteStream& file, const Piece& resources, std::uint32_t offset) {
  std::vector<DirectoryEntry> entries;
  const auto header = ReadInside(file, resources, offset, kDirectoryHeaderSize);
  if (!header) return entries;
  const std::size_t count = std::size_t{ReadLittle16(*header, 12)} + ReadLittle16(*header, 14);
  const auto table = ReadInside(file, resources, offset, kDirectoryHeaderSize + count * kDirectoryEntrySize);
  if (!table) return entries;
  for (std::size_t at = kDirectoryHeaderSize; at < table->size(); at += kDirectoryEntrySize) {
    entries.push_back({ReadLittle32(*table, at), ReadLittle32(*table, at + 4)});
  }
  return entries;
}

// Returns the first entry of the directory that an entry points to.
std::optional<DirectoryEntry> FirstBelow(ByteStream& file, const Piece& resources, DirectoryEntry entry) {
  if (!(entry.target & kSubdirectory)) return std::nullopt;
  const auto entries = ReadDirectory(file, resources, entry.target & ~kSubdirectory);
  return entries.empty() ? std::nullopt : std::optional(entries.front());
}

// Three levels: type, name, language.
std::optional<DirectoryEntry> FindVersionEntry(ByteStream& file, const Piece& resources) {
  const auto types = ReadDirectory(file, resources, 0);
  const auto type = std::ranges::find(types, kVersionType, &DirectoryEntry::id);
  if (type == types.end()) return std::nullopt;
  const auto name = FirstBelow(file, resources, *type);
  return name ? FirstBelow(file, resources, *name) : std::nullopt;
}

}  // namespace

std::optional<std::vector<std::byte>> ReadVersionResource(ByteStream& file) {
  const auto headers = ReadHeaders(file);
  if (!headers || headers->resource_address == 0) return std::nullopt;
  const auto resources = Locate(*headers, headers->resource_address);
  const auto language = resources ? FindVersionEntry(file, *resources) : std::nullopt;
  if (!language || language->target & kSubdirectory) return std::nullopt;
  const auto data_entry = ReadInside(file, *resources, language->target, kDataEntrySize);
  if (!data_entry) return std::nullopt;
  const std::uint32_t size = ReadLittle32(*data_entry, 4);
  const auto data = Locate(*headers, ReadLittle32(*data_entry, 0));
  if (!data || size == 0 || size > kMostResourceBytes) return std::nullopt;
  return ReadInside(file, *data, 0, size);
}

}  // namespace ravo::platform
