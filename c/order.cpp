#include "support.h"
#include <ravo/order/czech_order.h>
#include <ravo/order/number_keys.h>
#include <ravo/utils/strings/natural_order.h>

using ravo::c::BytesIn;
using ravo::c::FailArgument;
using ravo::c::FailNullResult;
using ravo::c::Guarded;
using ravo::c::ReadBytes;
using ravo::c::ReadText;
using ravo::c::TextIn;
using ravo::c::Units;
using ravo::c::WriteBytes;
namespace order = ravo::order;

namespace {

bool AreKnown(uint32_t flags) {
  constexpr uint32_t kAll = RAVO_ORDER_IGNORE_CASE | RAVO_ORDER_NATURAL | RAVO_ORDER_DIGITS_FIRST;
  return (flags & ~kAll) == 0;
}

ravo_status FailFlags(ravo_error* error) { return FailArgument(error, "the flags are unknown"); }

order::CzechOrder OrderOf(uint32_t flags) {
  return {(flags & RAVO_ORDER_IGNORE_CASE) != 0, (flags & RAVO_ORDER_NATURAL) != 0,
          (flags & RAVO_ORDER_DIGITS_FIRST) != 0};
}

// Writes what `compare` returns for two texts.
template <class Result, class Compare>
ravo_status Compared(const TextIn& a, const char* b, std::size_t b_length, Result* result, ravo_error* error,
                     Compare compare) {
  if (a.status != RAVO_OK) return a.status;
  const TextIn second = ReadText(b, b_length, error);
  if (second.status != RAVO_OK) return second.status;
  return ravo::c::Computed(result, error, [&] { return compare(a.text, second.text); });
}

}  // namespace

ravo_status ravo_compare_czech(const char* a, size_t a_length, const char* b, size_t b_length, uint32_t flags,
                               int32_t* order, ravo_error* error) {
  if (!AreKnown(flags)) return FailFlags(error);
  return Compared(ReadText(a, a_length, error), b, b_length, order, error, [&](auto first, auto second) {
    return order::CompareCzech(first, second, OrderOf(flags));
  });
}

ravo_status ravo_czech_key(const char* text, size_t text_length, uint32_t flags, void* buffer, size_t size,
                           size_t* length, ravo_error* error) {
  if (!AreKnown(flags)) return FailFlags(error);
  const auto [input, status] = ReadText(text, text_length, error);
  if (status != RAVO_OK) return status;
  return Guarded(error, [&, &plain = input] {
    std::string key;
    order::CzechKeys(OrderOf(flags)).Append(plain, key);
    return WriteBytes({static_cast<char*>(buffer), size, length}, key, error);
  });
}

ravo_status ravo_compare_numbers(const char* a, size_t a_length, const char* b, size_t b_length,
                                 int32_t* order, ravo_error* error) {
  return Compared(ReadText(a, a_length, error), b, b_length, order, error, order::CompareDecimals);
}

ravo_status ravo_number_key(const char* text, size_t text_length, void* buffer, size_t size, size_t* length,
                            ravo_error* error) {
  const auto [input, status] = ReadText(text, text_length, error);
  if (status != RAVO_OK) return status;
  return Guarded(error, [&, &plain = input] {
    std::string key;
    order::AppendDecimalKey(plain, key);
    return WriteBytes({static_cast<char*>(buffer), size, length}, key, error);
  });
}

ravo_status ravo_suite_compare_num(const char* a, size_t a_length, const char* b, size_t b_length,
                                   int32_t ignore_case, int64_t* difference, ravo_error* error) {
  const auto compare = ignore_case != 0 ? ravo::DIUtils::StrCompNumIW : ravo::DIUtils::StrCompNumW;
  return Compared(ReadText(a, a_length, error), b, b_length, difference, error,
                  [&](auto first, auto second) { return compare(Units(first), Units(second)); });
}

ravo_status ravo_suite_compare_num_bytes(const void* a, size_t a_length, const void* b, size_t b_length,
                                         int32_t ignore_case, int64_t* difference, ravo_error* error) {
  if (difference == nullptr) return FailNullResult(error);
  const BytesIn first = ReadBytes(a, a_length, error);
  if (first.status != RAVO_OK) return first.status;
  const BytesIn second = ReadBytes(b, b_length, error);
  if (second.status != RAVO_OK) return second.status;
  const auto compare = ignore_case != 0 ? ravo::DIUtils::StrCompNumIA : ravo::DIUtils::StrCompNumA;
  *difference = compare(first.bytes, second.bytes);
  return RAVO_OK;
}
