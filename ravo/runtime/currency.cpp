#include <ravo/runtime/checked.h>
#include <ravo/runtime/currency.h>

namespace ravo {

Currency Currency::FromUnits(std::int64_t units) { return {CheckedMultiply(units, kScale)}; }

Currency operator+(Currency left, Currency right) { return {CheckedAdd(left.raw, right.raw)}; }

Currency operator-(Currency left, Currency right) { return {CheckedSubtract(left.raw, right.raw)}; }

Currency operator-(Currency value) { return {CheckedSubtract(std::int64_t{0}, value.raw)}; }

}  // namespace ravo
