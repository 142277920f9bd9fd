#pragma once

#include <ravo/common/soft_extended.h>

#include <cstdint>

/// The steps of rounding that amounts and doubles share.
namespace ravo::RavoInterfaceCommon {

/// `value` as an extended float, exactly.
[[nodiscard]] inline SoftExtended Scaled(std::int64_t value) { return SoftExtended::FromInteger(value); }

/// The next integer not below, and not above, `value`. The result keeps its low 32 bits alone; `FloatError`
/// where it does not fit into 64 bits.
[[nodiscard]] std::int32_t Ceiling32(const SoftExtended& value);
[[nodiscard]] std::int32_t Floor32(const SoftExtended& value);

}  // namespace ravo::RavoInterfaceCommon
