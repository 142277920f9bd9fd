#include <ravo/platform/kept_input.h>
#include <ravo/platform/stream_calls.h>

#include <algorithm>

namespace ravo::platform {
namespace {

constexpr std::size_t kPiece = 4096;

}  // namespace

std::size_t KeptInput::Read(std::int64_t position, std::span<std::byte> to) {
  if (to.empty()) return 0;
  const auto start = static_cast<std::uint64_t>(position);
  while (used_ <= start) {
    if (!ReadMore()) return 0;
  }
  const auto kept = std::span(bytes_).first(used_).subspan(static_cast<std::size_t>(start));
  const std::size_t count = std::min(kept.size(), to.size());
  std::ranges::copy(kept.first(count), to.begin());
  return count;
}

std::int64_t KeptInput::Size() {
  while (ReadMore()) {
  }
  return static_cast<std::int64_t>(used_);
}

// Makes room first: bytes read without room for them would be lost. An end is final, although a terminal
// could go on after it.
bool KeptInput::ReadMore() {
  if (ended_) return false;
  if (bytes_.size() - used_ < kPiece) bytes_.resize(std::max(2 * used_, kPiece));
  const std::size_t count = ReadNext(file_, std::span(bytes_).subspan(used_));
  used_ += count;
  ended_ = count == 0;
  return !ended_;
}

}  // namespace ravo::platform
