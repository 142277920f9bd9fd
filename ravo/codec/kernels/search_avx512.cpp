#include <ravo/codec/kernels/kernels.h>

#if defined(__SSE2__) && defined(__x86_64__)
#include <ravo/codec/kernels/block_avx512.h>

#include <algorithm>
#include <bit>

namespace ravo::codec {
namespace {

constexpr std::size_t kBigUnits = 8 * kHalf;

RAVO_AVX512 inline bool LackHighestBit(const char16_t* units) {
  Vector all = Load(units);
  for (std::size_t at = kHalf; at < kBigUnits; at += kHalf) all = _mm512_or_si512(all, Load(units + at));
  return _mm512_movepi16_mask(all) == 0;
}

// In the first units, up to half a block of them.
RAVO_AVX512 inline __mmask32 SpecialIn(TextSpan text) {
  const __mmask32 front = LowestOfHalf(std::min(text.size(), kHalf));
  const Vector units = _mm512_maskz_loadu_epi16(front, text.data());
  const Vector lead = _mm512_and_si512(units, _mm512_set1_epi16(static_cast<short>(0xF800)));
  return _mm512_cmpeq_epi16_mask(lead, _mm512_set1_epi16(static_cast<short>(0xD800))) |
         _mm512_cmpeq_epi16_mask(units, _mm512_set1_epi16(static_cast<short>(kReplacement)));
}

RAVO_AVX512 inline std::size_t FindSpecialIn(TextSpan text) {
  for (std::size_t at = 0; at < text.size(); at += kHalf) {
    const __mmask32 special = SpecialIn(text.subspan(at));
    if (special != 0) return at + static_cast<std::size_t>(std::countr_zero(special));
  }
  return text.size();
}

}  // namespace

RAVO_AVX512 std::size_t FindSpecialAvx512(TextSpan text) noexcept {
  std::size_t at = 0;
  for (; text.size() - at >= kBigUnits; at += kBigUnits) {
    if (LackHighestBit(text.data() + at)) continue;
    const std::size_t found = FindSpecialIn(text.subspan(at, kBigUnits));
    if (found != kBigUnits) return at + found;
  }
  return at + FindSpecialIn(text.subspan(at));
}

}  // namespace ravo::codec

#endif
