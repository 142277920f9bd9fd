#pragma once

#include <cfloat>
#include <type_traits>

namespace ravo {

/// The extended float of the suite: 80 bits with a 64-bit mantissa if the compiler has such a type, else a
/// double. Stored results are computed in integers, so they depend neither on this type nor on the
/// processor's precision and rounding mode.
using Extended = std::conditional_t<LDBL_MANT_DIG == 64, long double, double>;

}  // namespace ravo
