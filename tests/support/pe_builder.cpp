#include "support/pe_builder.h"

#include <algorithm>

namespace ravo::test {
namespace {

constexpr std::uint32_t kResourceAddress = 0x3000;
constexpr std::size_t kFileAlignment = 512;
constexpr std::uint32_t kSubdirectory = 0x80000000;

void Append(Bytes& out, std::span<const std::byte> bytes) {
  out.insert(out.end(), bytes.begin(), bytes.end());
}

void Append16(Bytes& out, std::size_t value) {
  out.push_back(static_cast<std::byte>(value & 0xFF));
  out.push_back(static_cast<std::byte>(value >> 8 & 0xFF));
}

void Append32(Bytes& out, std::size_t value) {
  Append16(out, value & 0xFFFF);
  Append16(out, value >> 16 & 0xFFFF);
}

void AppendZeros(Bytes& out, std::size_t count) { out.resize(out.size() + count); }

void PadTo(Bytes& out, std::size_t alignment) {
  while (out.size() % alignment != 0) out.push_back(std::byte{0});
}

void AppendText(Bytes& out, std::u16string_view text) {
  for (const char16_t unit : text) Append16(out, unit);
  Append16(out, 0);
}

void AppendDirectory(Bytes& out, std::size_t named, std::size_t ids) {
  AppendZeros(out, 12);
  Append16(out, named);
  Append16(out, ids);
}

void AppendEntry(Bytes& out, std::uint32_t id, std::uint32_t target) {
  Append32(out, id);
  Append32(out, target);
}

// The DOS header, and a stub that is never run.
void AppendDosHeader(Bytes& out) {
  Append16(out, 0x5A4D);
  AppendZeros(out, 58);
  Append32(out, 128);
  AppendZeros(out, 64);
}

void AppendPeHeader(Bytes& out, PeKind kind, std::size_t optional_size) {
  Append32(out, 0x00004550);
  Append16(out, kind == PeKind::Pe32 ? 0x014C : 0x8664);
  Append16(out, 2);
  AppendZeros(out, 12);
  Append16(out, optional_size);
  Append16(out, 0x2102);
}

void AppendOptionalHeader(Bytes& out, PeKind kind) {
  Append16(out, kind == PeKind::Pe32 ? 0x010B : 0x020B);
  AppendZeros(out, kind == PeKind::Pe32 ? 90 : 106);
  Append32(out, 16);
  AppendZeros(out, 16 * 8);
}

void AppendSection(Bytes& out, std::string_view name, std::uint32_t address, std::size_t raw_size,
                   std::size_t raw_offset) {
  Append(out, std::as_bytes(std::span(name)));
  AppendZeros(out, 8 - name.size());
  Append32(out, raw_size);
  Append32(out, address);
  Append32(out, raw_size);
  Append32(out, raw_offset);
  AppendZeros(out, 16);
}

// The resource section: directories first, then the version resource; the other types point to the same
// data.
void AppendResources(PeImage& image, Bytes& section, std::span<const std::byte> version_block) {
  constexpr std::uint32_t types = 0, names = 16 + 3 * 8, languages = names + 24, entry = languages + 24,
                          name = entry + 16, data = name + 16;
  AppendDirectory(section, 1, 2);
  AppendEntry(section, kSubdirectory | name, kSubdirectory | names);
  AppendEntry(section, 6, kSubdirectory | names);
  AppendEntry(section, 16, kSubdirectory | names);
  AppendDirectory(section, 0, 1);
  AppendEntry(section, 1, kSubdirectory | languages);
  AppendDirectory(section, 0, 1);
  AppendEntry(section, 0x0405, entry);
  Append32(section, kResourceAddress + data);
  Append32(section, version_block.size());
  AppendZeros(section, 8);
  Append16(section, 4);
  AppendText(section, u"TYPE");
  PadTo(section, 8);
  image.type_directory = image.resources + types;
  image.name_directory = image.resources + names;
  image.language_directory = image.resources + languages;
  image.data_entry = image.resources + entry;
  image.data = image.resources + data;
  Append(section, version_block);
}

Bytes TranslationBytes(const std::vector<std::uint32_t>& translations) {
  Bytes bytes;
  for (const std::uint32_t translation : translations) Append32(bytes, translation);
  return bytes;
}

}  // namespace

void Put16(Bytes& bytes, std::size_t at, std::uint16_t value) {
  Bytes number;
  Append16(number, value);
  std::ranges::copy(number, bytes.begin() + static_cast<std::ptrdiff_t>(at));
}

void Put32(Bytes& bytes, std::size_t at, std::uint32_t value) {
  Bytes number;
  Append32(number, value);
  std::ranges::copy(number, bytes.begin() + static_cast<std::ptrdiff_t>(at));
}

Bytes VersionNode(std::u16string_view key, std::uint16_t kind, std::uint16_t value_length,
                  std::span<const std::byte> value, const std::vector<Bytes>& children) {
  Bytes node;
  Append16(node, 0);
  Append16(node, value_length);
  Append16(node, kind);
  AppendText(node, key);
  if (!value.empty()) PadTo(node, 4);
  Append(node, value);
  for (const Bytes& child : children) {
    PadTo(node, 4);
    Append(node, child);
  }
  Put16(node, 0, static_cast<std::uint16_t>(node.size()));
  return node;
}

Bytes VersionString(std::u16string_view key, std::u16string_view text) {
  Bytes value;
  AppendText(value, text);
  return VersionNode(key, 1, static_cast<std::uint16_t>(text.size() + 1), value, {});
}

Bytes VersionBlock(std::u16string_view table,
                   const std::vector<std::pair<std::u16string, std::u16string>>& strings,
                   const std::vector<std::uint32_t>& translations) {
  std::vector<Bytes> rows;
  for (const auto& [key, text] : strings) rows.push_back(VersionString(key, text));
  const Bytes list = TranslationBytes(translations);
  const Bytes fixed(52);
  return VersionNode(
      u"VS_VERSION_INFO", 0, 52, fixed,
      {VersionNode(u"StringFileInfo", 1, 0, {}, {VersionNode(table, 1, 0, {}, rows)}),
       VersionNode(u"VarFileInfo", 1, 0, {},
                   {VersionNode(u"Translation", 0, static_cast<std::uint16_t>(list.size()), list, {})})});
}

PeImage BuildPe(PeKind kind, std::span<const std::byte> version_block) {
  PeImage image;
  Bytes& out = image.bytes;
  const std::size_t directories = kind == PeKind::Pe32 ? 96 : 112;
  AppendDosHeader(out);
  image.pe_header = out.size();
  AppendPeHeader(out, kind, directories + 16 * 8);
  image.optional_header = out.size();
  AppendOptionalHeader(out, kind);
  image.resource_data_directory = image.optional_header + directories + 2 * 8;
  image.section_table = out.size();
  image.resources = 2 * kFileAlignment;
  Bytes section;
  AppendResources(image, section, version_block);
  AppendSection(out, ".text", 0x1000, kFileAlignment, kFileAlignment);
  AppendSection(out, ".rsrc", kResourceAddress, section.size(), image.resources);
  PadTo(out, kFileAlignment);
  AppendZeros(out, kFileAlignment);
  Put32(out, image.resource_data_directory, kResourceAddress);
  Put32(out, image.resource_data_directory + 4, static_cast<std::uint32_t>(section.size()));
  Append(out, section);
  return image;
}

}  // namespace ravo::test
