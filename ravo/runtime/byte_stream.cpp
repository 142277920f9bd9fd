#include <ravo/runtime/byte_stream.h>
#include <ravo/runtime/checked.h>

#include <algorithm>

namespace ravo {

ByteStream::~ByteStream() = default;

void ByteStream::ReadChecked(std::span<std::byte> to) {
  while (!to.empty()) {
    const std::size_t count = Read(to);
    if (count == 0) throw StreamError(StreamOperation::Read, u"Stream read error");
    to = to.subspan(count);
  }
}

void ByteStream::WriteChecked(std::span<const std::byte> from) {
  while (!from.empty()) {
    const std::size_t count = Write(from);
    if (count == 0) throw StreamError(StreamOperation::Write, u"Stream write error");
    from = from.subspan(count);
  }
}

MemoryStream::~MemoryStream() = default;

std::size_t MemoryStream::Read(std::span<std::byte> to) {
  if (position_ >= Size()) return 0;
  const auto rest = Bytes().subspan(static_cast<std::size_t>(position_));
  const std::size_t count = std::min(rest.size(), to.size());
  std::ranges::copy(rest.first(count), to.begin());
  position_ += static_cast<std::int64_t>(count);
  return count;
}

std::size_t MemoryStream::Write(std::span<const std::byte> from) {
  if (from.empty()) return 0;
  const std::int64_t end = CheckedAdd(position_, CheckedCast<std::int64_t>(from.size()));
  if (end > Size()) bytes_.resize(CheckedCast<std::size_t>(end));
  std::ranges::copy(from, bytes_.begin() + static_cast<std::ptrdiff_t>(position_));
  position_ = end;
  return from.size();
}

void MemoryStream::SetPosition(std::int64_t position) {
  if (position < 0) throw RangeError(u"Range check error");
  position_ = position;
}

}  // namespace ravo
