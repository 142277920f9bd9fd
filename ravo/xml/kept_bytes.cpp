#include <ravo/runtime/checked.h>
#include <ravo/xml/arena.h>
#include <ravo/xml/kept_bytes.h>

#include <cstring>

namespace ravo::xml {
namespace {

const char* HeapCopy(std::string_view bytes) {
  auto* copy = new char[bytes.size()];
  std::memcpy(copy, bytes.data(), bytes.size());
  return copy;
}

}  // namespace

void KeptBytes::Assign(std::string_view bytes, Arena* arena) {
  const auto size = static_cast<std::uint32_t>(CheckedCast<std::int32_t>(bytes.size()));
  if (size == 0) return Clear();
  const char* const copy = arena != nullptr ? arena->Copy(bytes) : HeapCopy(bytes);
  Clear();
  data_ = copy;
  size_ = size & kLargest;
  owned_ = arena != nullptr ? 0 : 1;
}

void KeptBytes::Clear() noexcept {
  if (OwnsMemory()) delete[] data_;
  data_ = nullptr;
  size_ = 0;
  owned_ = 0;
}

}  // namespace ravo::xml
