#pragma once

#include <ravo/common/rounding.h>

namespace ravo::RavoInterfaceCommon {

/// The reference implementation of `RoundValue`, step by step in the arithmetic of the 80-bit format.
/// `RoundValue` uses it for amounts that the integer form does not cover, and the tests compare the two.
[[nodiscard]] Currency RoundValueReference(Currency value, TRoundType type, std::int8_t decimals);

}  // namespace ravo::RavoInterfaceCommon
