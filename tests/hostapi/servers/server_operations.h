#pragma once

#include <ravo/RavoProfileInfo_TLB.h>
#include <ravo/RavoZip_TLB.h>

#include <array>
#include <cstddef>
#include <cstdint>

/// The operations that the servers of these tests give two interfaces, as many as each declares. Their
/// numbers are their dispatch identifiers; operation n returns 100 times its argument plus n, so each result
/// identifies the operation.
namespace ravo::test {

// clang-format off
#define TEST_OPERATION(OPERATION, number) \
  OPERATION(Operation##number, (std::int32_t value, std::int32_t* answer))
#define TEST_1_TO_8(OPERATION, tens)                                                                \
  TEST_OPERATION(OPERATION, tens##1) TEST_OPERATION(OPERATION, tens##2) TEST_OPERATION(OPERATION, tens##3) \
  TEST_OPERATION(OPERATION, tens##4) TEST_OPERATION(OPERATION, tens##5) TEST_OPERATION(OPERATION, tens##6) \
  TEST_OPERATION(OPERATION, tens##7) TEST_OPERATION(OPERATION, tens##8)
#define TEST_1_TO_10(OPERATION, tens, next) \
  TEST_1_TO_8(OPERATION, tens) TEST_OPERATION(OPERATION, tens##9) TEST_OPERATION(OPERATION, next##0)

#define PROFILE_INFO_OPERATIONS(OPERATION) TEST_1_TO_10(OPERATION, , 1) TEST_1_TO_8(OPERATION, 1)
#define ZIP_OPERATIONS(OPERATION)                                                                   \
  TEST_1_TO_10(OPERATION, , 1) TEST_1_TO_10(OPERATION, 1, 2) TEST_1_TO_10(OPERATION, 2, 3)          \
  TEST_1_TO_10(OPERATION, 3, 4) TEST_1_TO_10(OPERATION, 4, 5) TEST_1_TO_10(OPERATION, 5, 6)         \
  TEST_1_TO_10(OPERATION, 6, 7) TEST_1_TO_8(OPERATION, 7)
// clang-format on

RAVO_OPERATIONS(ServedProfileInfo, RavoProfileInfo_TLB::IRavoProfileInfo, PROFILE_INFO_OPERATIONS);
RAVO_OPERATIONS(ServedZip, RavoZip_TLB::IRavoZip, ZIP_OPERATIONS);

template <class Served>
using ServedOperation = ResultCode (RAVO_STDCALL Served::*)(std::int32_t, std::int32_t*) noexcept;

/// The operations in the order of the operation table.
template <class Served>
inline constexpr std::array<ServedOperation<Served>, 0> kServedOperations{};

#define TEST_ADDRESS(name, parameters) &Served::name,
template <>
inline constexpr auto kServedOperations<ServedProfileInfo> = [] {
  using Served = ServedProfileInfo;
  return std::array<ServedOperation<Served>, Served::kOwnOperations>{PROFILE_INFO_OPERATIONS(TEST_ADDRESS)};
}();
template <>
inline constexpr auto kServedOperations<ServedZip> = [] {
  using Served = ServedZip;
  return std::array<ServedOperation<Served>, Served::kOwnOperations>{ZIP_OPERATIONS(TEST_ADDRESS)};
}();
#undef TEST_ADDRESS

/// Returns the result of operation `number`.
[[nodiscard]] constexpr std::int32_t ServedAnswer(std::size_t number, std::int32_t value) noexcept {
  return 100 * value + static_cast<std::int32_t>(number);
}

}  // namespace ravo::test
