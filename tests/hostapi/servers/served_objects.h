#pragma once

#include "../counted_object.h"
#include "server_operations.h"

namespace ravo::test {

/// Implements late-bound calls of the operations.
template <class Served>
class ServedBase : public CountedBase<DispatchObject<Served>> {
 public:
  using CountedBase<DispatchObject<Served>>::CountedBase;

  ResultCode RAVO_STDCALL Invoke(std::int32_t id, const Guid&, std::uint32_t, std::uint16_t,
                                 DispatchArguments* arguments, DispatchValue* answer, DispatchError*,
                                 std::uint32_t*) noexcept override {
    if (id < 1 || id > Served::kOwnOperations) return result_code::kMemberNotFound;
    if (!arguments || arguments->count != 1) return kBadParameterCount;
    const ServedOperation<Served> operation = kServedOperations<Served>[static_cast<std::size_t>(id) - 1];
    std::int32_t number = 0;
    const ResultCode code = (this->*operation)(arguments->values[0].int32, &number);
    if (!Failed(code) && answer) answer->type = dispatch_type::kInt32, answer->int32 = number;
    return code;
  }

 protected:
  static constexpr auto kBadParameterCount = static_cast<ResultCode>(0x8002000E);

  static ResultCode Answer(std::size_t number, std::int32_t value, std::int32_t* answer) noexcept {
    if (!answer) return result_code::kNullPointer;
    *answer = ServedAnswer(number, value);
    return result_code::kOk;
  }
};

#define TEST_NUMBER(name, parameters) name##Number,
#define TEST_IMPLEMENT(name, parameters) \
  ResultCode RAVO_STDCALL name parameters noexcept override { return Answer(name##Number, value, answer); }

class ProfileInfoObject final : public ServedBase<ServedProfileInfo> {
 public:
  using ServedBase::ServedBase;
  PROFILE_INFO_OPERATIONS(TEST_IMPLEMENT)

 private:
  enum Number : std::size_t { kNone, PROFILE_INFO_OPERATIONS(TEST_NUMBER) };
};

class ZipObject final : public ServedBase<ServedZip> {
 public:
  using ServedBase::ServedBase;
  ZIP_OPERATIONS(TEST_IMPLEMENT)

 private:
  enum Number : std::size_t { kNone, ZIP_OPERATIONS(TEST_NUMBER) };
};

#undef TEST_NUMBER
#undef TEST_IMPLEMENT

}  // namespace ravo::test
