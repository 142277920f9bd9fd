#pragma once

#include <cfloat>
#include <type_traits>

namespace ravo {

/// The extended float of the suite: 80 bits with a 64-bit mantissa where the compiler has such a type, a
/// double elsewhere. Code that stores results computes them in integers, so that neither the type nor the
/// precision and rounding mode that a host left in the processor decides a result.
using Extended = std::conditional_t<LDBL_MANT_DIG == 64, long double, double>;

}  // namespace ravo
