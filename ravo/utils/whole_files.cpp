#include <ravo/platform/files.h>
#include <ravo/runtime/checked.h>
#include <ravo/utils/ansi_text.h>
#include <ravo/utils/byte_count.h>
#include <ravo/utils/open_file.h>
#include <ravo/utils/whole_files.h>

#include <algorithm>
#include <bit>
#include <limits>

namespace ravo::DIUtils {
namespace {

using platform::FilePurpose;
using utils::OpenFile;
using utils::Wide;

static_assert(std::endian::native == std::endian::little, "units are stored low byte first");

constexpr std::size_t kSmallestBuffer = 4096;

// Resizes the text to `bytes` bytes, counted in 31 bits.
template <class Char>
std::span<std::byte> Room(std::basic_string<Char>& text, std::int64_t bytes) {
  const auto count = static_cast<std::size_t>(CheckedCast<std::int32_t>(bytes));
  text.resize((count + sizeof(Char) - 1) / sizeof(Char));
  return std::as_writable_bytes(std::span(text)).first(count);
}

// Returns a larger size: twice `bytes` if that is allowed.
std::int64_t GrownFrom(std::int64_t bytes) {
  constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();
  return std::max(bytes + 1, std::min(2 * bytes, most));
}

// Reads to the end of the file. Its size is only a hint: some files report none and others grow.
template <class Char>
bool ReadAll(FileHandle file, std::int64_t size, std::basic_string<Char>& text) {
  const platform::FileCalls& files = platform::Files();
  std::span<std::byte> room = Room(text, std::max<std::int64_t>(size, kSmallestBuffer));
  std::size_t used = 0;
  for (;;) {
    if (used == room.size()) {
      std::byte behind{};
      const auto more = files.Read(file, std::span(&behind, 1));
      // Untested: the file would have to fail at exactly its size.
      if (!more) return false;
      if (*more == 0) break;
      room = Room(text, GrownFrom(static_cast<std::int64_t>(used)));
      room[used++] = behind;
    }
    const auto count = files.Read(file, room.subspan(used));
    if (!count) return false;
    if (*count == 0) break;
    used += *count;
  }
  text.resize(used / sizeof(Char));
  return true;
}

template <class Char>
bool Load(std::u16string_view name, std::basic_string<Char>& text) {
  const OpenFile file(name, FilePurpose::Load);
  if (!file.IsOpen()) return false;
  const auto size = platform::Files().SizeOf(file.Handle());
  std::basic_string<Char> content;
  if (!size || !ReadAll(file.Handle(), *size, content)) return false;
  text = std::move(content);
  return true;
}

}  // namespace

bool LoadStrAFromFile(std::u16string_view name, std::string& text) { return Load(name, text); }
bool LoadStrAFromFileA(std::string_view name, std::string& text) { return Load(Wide(name), text); }
bool LoadStrAFromFileW(std::u16string_view name, std::string& text) { return Load(name, text); }

bool LoadStrWFromFileA(std::string_view name, std::u16string& text) { return Load(Wide(name), text); }
bool LoadStrWFromFileW(std::u16string_view name, std::u16string& text) { return Load(name, text); }

bool SaveBufToFile(const void* bytes, std::size_t count, FileHandle file) {
  const platform::FileCalls& files = platform::Files();
  for (std::span rest(static_cast<const std::byte*>(bytes), count); !rest.empty();) {
    const auto written = files.Write(file, rest);
    if (!written || *written == 0) return false;
    rest = rest.subspan(*written);
  }
  return true;
}

bool SaveBufToFile(const void* bytes, std::size_t count, std::u16string_view name) {
  return SaveBufToFileW(bytes, count, name);
}
bool SaveBufToFileA(const void* bytes, std::size_t count, std::string_view name) {
  return SaveBufToFileW(bytes, count, Wide(name));
}
bool SaveBufToFileW(const void* bytes, std::size_t count, std::u16string_view name) {
  OpenFile file(name, FilePurpose::Save);
  return file.IsOpen() && SaveBufToFile(bytes, count, file.Handle()) && file.Close();
}

bool SaveStrAToFile(std::string_view text, std::u16string_view name) { return SaveStrAToFileW(text, name); }
bool SaveStrAToFileA(std::string_view text, std::string_view name) {
  return SaveStrAToFileW(text, Wide(name));
}
bool SaveStrAToFileW(std::string_view text, std::u16string_view name) {
  return SaveBufToFileW(text.data(), text.size(), name);
}

bool SaveStrWToFile(std::u16string_view text, std::u16string_view name) {
  return SaveStrWToFileW(text, name);
}
bool SaveStrWToFileA(std::u16string_view text, std::string_view name) {
  return SaveStrWToFileW(text, Wide(name));
}
bool SaveStrWToFileW(std::u16string_view text, std::u16string_view name) {
  return SaveBufToFileW(text.data(), utils::ByteCountOfUnits(text.size()), name);
}

}  // namespace ravo::DIUtils
