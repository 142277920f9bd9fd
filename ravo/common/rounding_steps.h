#pragma once

#include <ravo/common/soft_extended.h>

#include <cstdint>

/// Helpers that the rounding of amounts and of doubles share.
namespace ravo::RavoInterfaceCommon {

/// Returns `value` as an extended float, exactly.
[[nodiscard]] inline SoftExtended Scaled(std::int64_t value) { return SoftExtended::FromInteger(value); }

/// Returns the smallest integer not below, or the largest not above, `value`, modulo 2^32. Throws
/// `FloatError` if it does not fit 64 bits.
[[nodiscard]] std::int32_t Ceiling32(const SoftExtended& value);
[[nodiscard]] std::int32_t Floor32(const SoftExtended& value);

}  // namespace ravo::RavoInterfaceCommon
