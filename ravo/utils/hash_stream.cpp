#include <ravo/utils/ansi_upper.h>
#include <ravo/utils/hash_stream.h>

namespace ravo {

void HashStream::Update(std::span<const std::byte> bytes) noexcept {
  const bool upper = letters_ == Letters::InUpperCase;
  for (const std::byte byte : bytes) {
    const auto value = std::to_integer<std::uint8_t>(byte);
    waiting_[waiting_count_++] = upper ? DIUtils::ANSI_UPPER_CHAR_TABLE[value] : value;
    if (waiting_count_ < waiting_.size()) continue;
    state_.AddPiece(waiting_.data(), utils::AsItIs);
    waiting_count_ = 0;
  }
  count_ += static_cast<std::uint32_t>(bytes.size());
}

std::uint32_t HashStream::Value() const noexcept {
  return utils::FinishedLookup2(state_, waiting_.data(), waiting_count_, count_, utils::AsItIs);
}

}  // namespace ravo
