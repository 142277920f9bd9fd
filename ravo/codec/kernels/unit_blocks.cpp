#include <ravo/codec/byte_spans.h>
#include <ravo/codec/kernels/kernel_set.h>
#include <ravo/codec/kernels/vector_block.h>

namespace ravo::codec {
namespace {

constexpr std::size_t kUnits = 8;

#if defined(__SSE2__)

// Copies eight units; false, with nothing written, where one is a surrogate and `plain_only`.
bool CopyUnits(bool swap_before, bool swap_after, bool plain_only, const void* from, void* to) {
  const auto exchanged = [](Vector units) {
    return _mm_or_si128(_mm_slli_epi16(units, 8), _mm_srli_epi16(units, 8));
  };
  Vector units = LoadVector(from);
  if (swap_before) units = exchanged(units);
  const Vector top = _mm_and_si128(units, _mm_set1_epi16(-0x800));
  const Vector surrogates = _mm_cmpeq_epi16(top, _mm_set1_epi16(-0x2800));
  if (plain_only && Mask(surrogates) != 0) return false;
  StoreVector(to, swap_after ? exchanged(units) : units);
  return true;
}

#else

bool CopyUnits(bool swap_before, bool swap_after, bool plain_only, const void* from, void* to) {
  char16_t units[kUnits];
  std::memcpy(units, from, sizeof(units));
  const auto exchange = [&units] {
    for (char16_t& unit : units) unit = static_cast<char16_t>(unit << 8 | unit >> 8);
  };
  if (swap_before) exchange();
  bool plain = true;
  for (const char16_t unit : units) plain = plain && !IsSurrogate(unit);
  if (plain_only && !plain) return false;
  if (swap_after) exchange();
  std::memcpy(to, units, sizeof(units));
  return true;
}

#endif

}  // namespace

Run DecodeUnitBlocks(bool swap, bool plain_only, ByteSpan bytes, TextRoom text) noexcept {
  Run run;
  while (bytes.size() - run.taken >= 2 * kUnits && text.size() - run.made >= kUnits &&
         CopyUnits(swap, false, plain_only, bytes.data() + run.taken, text.data() + run.made)) {
    run.taken += 2 * kUnits;
    run.made += kUnits;
  }
  return run;
}

Run EncodeUnitBlocks(bool swap, bool plain_only, TextSpan text, ByteRoom bytes) noexcept {
  Run run;
  while (text.size() - run.taken >= kUnits && bytes.size() - run.made >= 2 * kUnits &&
         CopyUnits(false, swap, plain_only, text.data() + run.taken, bytes.data() + run.made)) {
    run.taken += kUnits;
    run.made += 2 * kUnits;
  }
  return run;
}

}  // namespace ravo::codec
