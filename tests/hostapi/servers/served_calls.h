#pragma once

#include "server_operations.h"

#include <gtest/gtest.h>

/// The calls of a client, with the object in this process, in a library or in another process.
namespace ravo::test {

/// Calls each operation through the operation table.
template <class Served, class Interface>
void ExpectOperationTable(const ComponentPtr<Interface>& object) {
  const ComponentPtr<Served> served = object.template Query<Served>();
  for (std::size_t i = 0; i < kServedOperations<Served>.size(); ++i) {
    std::int32_t answer = 0;
    EXPECT_EQ((served.Get()->*kServedOperations<Served>[i])(7, &answer), result_code::kOk) << i;
    EXPECT_EQ(answer, ServedAnswer(i + 1, 7));
  }
}

struct LateAnswer {
  ResultCode code;
  DispatchValue value;
};

inline LateAnswer CallById(IDispatch& object, std::int32_t id, std::int32_t value) {
  DispatchValue argument;
  argument.type = dispatch_type::kInt32;
  argument.int32 = value;
  DispatchArguments arguments{&argument, nullptr, 1, 0};
  LateAnswer answer{};
  const ResultCode code =
      object.Invoke(id, Guid(), 0, dispatch_call::kMethod, &arguments, &answer.value, nullptr, nullptr);
  answer.code = code;
  return answer;
}

/// Calls each operation by its dispatch identifier, as a late-bound client: through the dispatch interface.
template <class Served, class Twin, class Interface>
void ExpectDispatch(const ComponentPtr<Interface>& object) {
  const ComponentPtr<Twin> twin = object.template Query<Twin>();
  for (std::int32_t id = 1; id <= Served::kOwnOperations; ++id) {
    const LateAnswer answer = CallById(*twin, id, 5);
    EXPECT_EQ(answer.code, result_code::kOk) << id;
    EXPECT_EQ(answer.value.type, dispatch_type::kInt32);
    EXPECT_EQ(answer.value.int32, ServedAnswer(static_cast<std::size_t>(id), 5));
  }
  EXPECT_EQ(CallById(*twin, Served::kOwnOperations + 1, 5).code, result_code::kMemberNotFound);
  EXPECT_EQ(CallById(*twin, 0, 5).code, result_code::kMemberNotFound);
}

/// Makes both kinds of calls to a profile information and an archive.
inline void ExpectProfileInfo(const ComponentPtr<RavoProfileInfo_TLB::IRavoProfileInfo>& information) {
  ASSERT_TRUE(information);
  ExpectOperationTable<ServedProfileInfo>(information);
  ExpectDispatch<ServedProfileInfo, RavoProfileInfo_TLB::IRavoProfileInfoDisp>(information);
}

inline void ExpectZip(const ComponentPtr<RavoZip_TLB::IRavoZip>& zip) {
  ASSERT_TRUE(zip);
  ExpectOperationTable<ServedZip>(zip);
  ExpectDispatch<ServedZip, RavoZip_TLB::IRavoZipDisp>(zip);
}

}  // namespace ravo::test
