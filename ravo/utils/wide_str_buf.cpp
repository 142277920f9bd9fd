#include <ravo/runtime/checked.h>
#include <ravo/utils/wide_str_buf.h>

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <limits>
#include <new>

namespace ravo::DIUtils {
namespace {

constexpr std::uint32_t kSlack = 4096;

std::uint32_t Grown(std::uint32_t capacity, std::size_t count) {
  if (count > std::numeric_limits<std::uint32_t>::max()) throw OverflowError(u"Integer overflow");
  return CheckedAdd(CheckedAdd(capacity, static_cast<std::uint32_t>(count)), kSlack);
}

// Returns the size of the block for a capacity, up to a quarter larger. The block moves only when this
// changes, so a long text is not copied once per 4096 units if the system cannot extend a block in place.
std::size_t BlockSize(std::uint32_t capacity) {
  const std::uint64_t step = std::max(std::bit_floor(capacity) / 4, std::uint32_t{1});
  const std::uint64_t bytes = (capacity + step - 1) / step * step * sizeof(char16_t);
  // Untested: needs 32-bit addresses.
  if (bytes > std::numeric_limits<std::ptrdiff_t>::max()) throw OverflowError(u"Integer overflow");
  return static_cast<std::size_t>(bytes);
}

}  // namespace

TWideStrBuf::~TWideStrBuf() { std::free(start_); }

void TWideStrBuf::GrowBuffer(std::size_t count) {
  const std::uint32_t used = GetCount();
  const std::uint32_t capacity = Grown(Capacity(), count);
  const std::size_t size = BlockSize(capacity);
  if (!start_ || size != BlockSize(Capacity())) {
    auto* const block = static_cast<char16_t*>(std::realloc(start_, size));
    if (!block) throw std::bad_alloc();
    start_ = block;
  }
  position_ = start_ + used;
  end_ = start_ + capacity;
}

void TWideStrBuf::Delete(std::uint32_t index, std::uint32_t count) noexcept {
  const std::uint32_t units = GetCount();
  if (index >= units) return;
  char16_t* const at = start_ + index;
  if (count >= units - index) {
    position_ = at;
    return;
  }
  std::memmove(at, at + count, (units - index - count) * sizeof(char16_t));
  position_ -= count;
}

void TWideStrBuf::Clear() noexcept {
  std::free(start_);
  start_ = position_ = end_ = nullptr;
}

WideString TWideStrBuf::GetAsStr() const { return WideString({start_, GetCount()}); }

WideString TWideStrBuf::GetAsStrTrimRight() const {
  constexpr char16_t kFirstVisible = 33;
  const char16_t* last = position_;
  while (last > start_ && last[-1] < kFirstVisible) --last;
  return WideString({start_, static_cast<std::size_t>(last - start_)});
}

}  // namespace ravo::DIUtils
