#include <ravo/codec/byte_spans.h>
#include <ravo/codec/kernels/block.h>
#include <ravo/codec/kernels/kernels.h>

namespace ravo::codec {
namespace {

using Units = Block<char16_t>;
constexpr std::size_t kUnits = Units::kUnits;

Units Exchanged(Units units) { return units.Left(8) | units.Right(8); }

// Copies eight units. False, with nothing written, if one is a surrogate and `plain_only`.
bool CopyUnits(bool swap_before, bool swap_after, bool plain_only, const void* from, void* to) {
  Units units = Units::Load(from);
  if (swap_before) units = Exchanged(units);
  const Units surrogates = (units & Units(char16_t{0xF800})).EqualTo(char16_t{0xD800});
  if (plain_only && !surrogates.AsHits().None()) return false;
  (swap_after ? Exchanged(units) : units).Store(to);
  return true;
}

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
