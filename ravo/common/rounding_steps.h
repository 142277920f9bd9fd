#pragma once

#include <ravo/common/rounding.h>
#include <ravo/common/soft_extended.h>

#include <cstdint>

/// Helpers that the rounding of amounts and of doubles share.
namespace ravo::common {

/// Returns `value` as an extended float, exactly.
[[nodiscard]] inline SoftExtended Scaled(std::int64_t value) { return SoftExtended::FromInteger(value); }

/// Returns the low 32 bits of the next integer not below, and not above, `value`.
///
/// Throws `FloatError` if that integer does not fit into 64 bits.
[[nodiscard]] std::int32_t Ceiling32(const SoftExtended& value);
[[nodiscard]] std::int32_t Floor32(const SoftExtended& value);

/// Rounds like `RoundValue`, step by step in the arithmetic of the 80-bit format.
///
/// `RoundValue` calls it for amounts that its integer form does not cover, and the tests compare the two.
[[nodiscard]] Currency RoundValueReference(Currency value, RavoInterfaceCommon::TRoundType type,
                                           std::int8_t decimals);

}  // namespace ravo::common
