#include "convert_file.h"

#include "ordered_blocks.h"

#include <algorithm>
#include <span>
#include <utility>

namespace tool {
namespace {

namespace codec = ravo::codec;

constexpr std::size_t kBlock = std::size_t{1} << 17;
// Starting threads takes as long as converting some hundred kilobytes.
constexpr std::int64_t kLarge = std::int64_t{1} << 20;

Conversion WithSource(Conversion conversion) {
  if (conversion.from == nullptr) conversion.from = codec::FindEncoding("UTF_8");
  return conversion;
}

}  // namespace

struct FileConverter::Block {
  std::vector<std::uint8_t> bytes = std::vector<std::uint8_t>(kBlock);
  std::size_t size = 0;
  Following following = Following::Bytes;
  Converted converted;
};

// Divides a file into blocks between two characters.
class FileConverter::Blocks {
 public:
  Blocks(ByteSource& source, const codec::Encoding& from) : source_(source), from_(from) {}

  // Returns false after the last block.
  bool Next(Block& block) {
    if (is_at_end_) return false;
    std::ranges::copy(rest_, block.bytes.begin());
    const std::size_t size = rest_.size() + source_.ReadFully(std::span(block.bytes).subspan(rest_.size()));
    const codec::ByteSpan bytes = codec::ByteSpan(block.bytes).first(size);
    is_at_end_ = size < block.bytes.size();
    block.following = is_at_end_ ? Following::Nothing : Following::Character;
    block.size = is_at_end_ ? size : from_.LengthOfWhole(bytes);
    rest_.assign(bytes.begin() + static_cast<std::ptrdiff_t>(block.size), bytes.end());
    return true;
  }

 private:
  ByteSource& source_;
  ExactEncoding from_;
  std::vector<std::uint8_t> rest_;
  bool is_at_end_ = false;
};

FileConverter::FileConverter(const Conversion& conversion, unsigned threads, Write write)
    : conversion_(WithSource(conversion)),
      threads_(threads),
      write_(std::move(write)),
      converter_(conversion_) {}

// Writes what a piece gave and empties it; returns false if the conversion ends here.
bool FileConverter::WriteOut(Converted& converted) {
  extent_ += std::exchange(converted.extent, {});
  fault_ = std::exchange(converted.fault, {});
  const bool written = write_(converted.bytes.Text());
  converted.bytes.Clear();
  return written && !fault_;
}

// Converts the start of a text that tells no encoding, so that the sample begins where it does; returns false
// if that failed.
bool FileConverter::ConvertPlainStart(ByteSource& source, const Progress& progress) {
  constexpr std::size_t kLong = 4096;
  converter_.Restart(*codec::FindEncoding("UTF_8"));
  Converted converted;
  for (;;) {
    const auto bytes = source.Peek(kSampleSize);
    const std::size_t length = LengthOfPlain(bytes);
    if (length < kLong) return true;
    // The letters before the first one that tells are part of what it tells.
    const std::size_t taken = length == kSampleSize ? length : length - 2;
    converter_.Convert(bytes.first(taken), Following::Character, converted);
    source.Skip(taken);
    progress(done_ += static_cast<std::int64_t>(taken));
    if (!WriteOut(converted)) return false;
    if (taken != length) return true;
  }
}

void FileConverter::ConvertInOrder(ByteSource& source, const Progress& progress) {
  Block block;
  do {
    const std::size_t count = source.ReadSome(std::span(block.bytes).subspan(block.size));
    block.following = count == 0 ? Following::Nothing : Following::Bytes;
    block.size += count;
    const auto bytes = codec::ByteSpan(block.bytes).first(block.size);
    const std::size_t taken = converter_.Convert(bytes, block.following, block.converted);
    if (!WriteOut(block.converted)) return;
    progress(done_ += static_cast<std::int64_t>(taken));
    std::ranges::copy(bytes.subspan(taken), block.bytes.begin());
    block.size -= taken;
  } while (block.following != Following::Nothing);
}

void FileConverter::ConvertOnThreads(ByteSource& source, const Progress& progress) {
  Blocks blocks(source, *conversion_.from);
  const auto transform = [this] {
    return [converter = TextConverter(conversion_)](Block& block, const auto& /*write_early*/) mutable {
      converter.Convert(codec::ByteSpan(block.bytes).first(block.size), block.following, block.converted);
    };
  };
  const auto write = [&](Block& block) {
    progress(done_ += static_cast<std::int64_t>(block.size));
    return WriteOut(block.converted);
  };
  OrderedBlocks<Block>(2 * std::size_t{threads_})
      .Run(
          threads_, [&](Block& block) { return blocks.Next(block); }, transform, write);
}

bool FileConverter::UsesThreads(const ByteSource& source) const {
  return threads_ > 1 && source.Size() >= kLarge && ExactEncoding(*conversion_.from).IsDivisible() &&
         ExactEncoding(*conversion_.to).IsDivisible();
}

std::optional<ConversionEnd> FileConverter::Convert(const SourceEncoding& from, ByteSource& source,
                                                    const Note& note, const Progress& progress) {
  extent_ = {};
  done_ = 0;
  fault_.reset();
  if (from.row == nullptr && !ConvertPlainStart(source, progress)) return {};
  const FoundEncoding found = FindOut(from, source);
  if (!found.note.empty()) note(found.note);
  conversion_.from = found.row;
  converter_.Restart(*found.row);
  UsesThreads(source) ? ConvertOnThreads(source, progress) : ConvertInOrder(source, progress);
  if (!fault_) return {};
  return ConversionEnd{*fault_, extent_.Line(), extent_.Column(), found.row};
}

bool FileConverter::Finish() {
  ByteBuffer bytes;
  converter_.Finish(bytes);
  return bytes.Text().empty() || write_(bytes.Text());
}

}  // namespace tool
