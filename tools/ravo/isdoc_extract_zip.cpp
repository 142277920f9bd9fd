#include "isdoc_extract.h"
#include "text.h"
#include "utf8_reader.h"
#include <ravo/DIUtils.h>
#include <ravo/RavoInterface.h>
#include <ravo/codec/encoding.h>
#include <ravo/codec/texts.h>

#include <algorithm>
#include <cstdint>

// The format of ZIP archives is that of PKWARE's APPNOTE.TXT 6.3; sizes past 4 GiB and several disks are
// refused.
namespace tool {
namespace {

constexpr std::size_t kEndSize = 22;
constexpr std::size_t kLongestComment = 65535;
constexpr std::size_t kDirectoryEntrySize = 46;
constexpr std::size_t kLocalHeaderSize = 30;

// A file as the directory has it.
struct ZipEntry {
  std::string name;
  std::uint32_t flags = 0;
  std::uint32_t method = 0;
  std::uint32_t sum = 0;
  std::uint32_t packed = 0;
  std::uint32_t size = 0;
  std::uint32_t offset = 0;

  [[nodiscard]] bool IsFolder() const { return name.ends_with('/') || name.ends_with('\\'); }
};

[[noreturn]] void FailDamaged() { throw ContainerError(Text("the ZIP archive is damaged")); }

class Zip {
 public:
  explicit Zip(std::string_view bytes) : bytes_(bytes) {}

  std::vector<ContainerPart> Parts(UnpackBudget& budget) const {
    std::vector<ContainerPart> parts;
    const std::vector<ZipEntry> entries = Entries(budget);
    CheckSizes(entries);
    for (const ZipEntry& entry : entries) {
      if (!entry.IsFolder()) parts.push_back({entry.name, BytesOf(entry, budget)});
    }
    return parts;
  }

 private:
  // Little-endian numbers; a number past the end is damage.
  [[nodiscard]] std::uint32_t Number(std::size_t at, std::size_t size) const {
    const std::string_view part = Part(at, size);
    std::uint32_t number = 0;
    for (std::size_t i = size; i-- > 0;) number = number << 8 | static_cast<unsigned char>(part[i]);
    return number;
  }
  [[nodiscard]] std::string_view Part(std::size_t at, std::size_t size) const {
    if (at > bytes_.size() || size > bytes_.size() - at) FailDamaged();
    return bytes_.substr(at, size);
  }

  // The end of the directory is the last place that looks like it and whose comment fits.
  [[nodiscard]] std::size_t FindEnd() const {
    if (bytes_.size() < kEndSize) FailDamaged();
    std::size_t at = bytes_.size() - kEndSize;
    const std::size_t first = at - std::min(at, kLongestComment);
    for (;; --at) {
      const bool is_end = bytes_.substr(at).starts_with("PK\x05\x06");
      if (is_end && Number(at + 20, 2) <= bytes_.size() - at - kEndSize) return at;
      if (at == first) FailDamaged();
    }
  }

  [[nodiscard]] std::vector<ZipEntry> Entries(UnpackBudget& budget) const {
    const std::size_t end = FindEnd();
    const std::uint32_t count = Number(end + 10, 2);
    std::size_t at = Number(end + 16, 4);
    if (Number(end + 4, 4) != 0 || Number(end + 8, 2) != count || count == 0xFFFF || at == 0xFFFFFFFF)
      throw ContainerError(Text("the ZIP archive has several parts or is of more than 4 GB"));
    std::vector<ZipEntry> entries;
    for (std::uint32_t i = 0; i < count; ++i) {
      budget.CountPart();
      entries.push_back(EntryAt(at));
    }
    return entries;
  }

  // Moves past the entry.
  ZipEntry EntryAt(std::size_t& at) const {
    if (Part(at, 4) != "PK\x01\x02") FailDamaged();
    ZipEntry entry{{},
                   Number(at + 8, 2),
                   Number(at + 10, 2),
                   Number(at + 16, 4),
                   Number(at + 20, 4),
                   Number(at + 24, 4),
                   Number(at + 42, 4)};
    const std::size_t name_size = Number(at + 28, 2);
    entry.name = NameOf(Part(at + kDirectoryEntrySize, name_size));
    at += kDirectoryEntrySize + name_size + Number(at + 30, 2) + Number(at + 32, 2);
    return entry;
  }

  // Old programs write names in the code page of the system's console.
  static std::string NameOf(std::string_view bytes) {
    if (ValidUtf8Length(bytes) == bytes.size()) return std::string(bytes);
    return ravo::ToUtf8(ravo::codec::Decoded(*ravo::codec::FindEncoding(852), bytes));
  }

  // Entries that share bytes would unpack to far more than the archive has.
  void CheckSizes(const std::vector<ZipEntry>& entries) const {
    std::uint64_t sum = 0;
    for (const ZipEntry& entry : entries) sum += entry.packed;
    if (sum > bytes_.size()) FailDamaged();
  }

  [[nodiscard]] std::string_view PackedBytes(const ZipEntry& entry) const {
    if (Part(entry.offset, 4) != "PK\x03\x04") FailDamaged();
    const std::size_t at = entry.offset;
    const std::size_t names = std::size_t{Number(at + 26, 2)} + Number(at + 28, 2);
    return Part(at + kLocalHeaderSize + names, entry.packed);
  }

  [[nodiscard]] std::string BytesOf(const ZipEntry& entry, UnpackBudget& budget) const {
    constexpr std::uint32_t kStored = 0;
    constexpr std::uint32_t kDeflated = 8;
    if ((entry.flags & 1) != 0) throw ContainerError(Text("the ZIP archive is encrypted"));
    if (entry.method != kStored && entry.method != kDeflated)
      throw ContainerError(Text("a part of it is compressed in a way that ravo does not read"));
    const std::string_view packed = PackedBytes(entry);
    std::string bytes = entry.method == kStored ? budget.Copy(packed) : budget.Unpack(packed, false);
    if (bytes.size() != entry.size || ravo::DIUtils::Crc32OfBuf(bytes.data(), bytes.size()) != entry.sum)
      FailDamaged();
    return bytes;
  }

  std::string_view bytes_;
};

}  // namespace

std::vector<ContainerPart> ZipParts(std::string_view bytes, UnpackBudget& budget) {
  return Zip(bytes).Parts(budget);
}

}  // namespace tool
