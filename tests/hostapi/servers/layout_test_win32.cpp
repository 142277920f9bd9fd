#include <ravo/hostapi/interfaces.h>
#include <ravo/runtime/component_object.h>

#include <cstddef>

#include <gtest/gtest.h>
#include <windows.h>

// Compares the library's own declarations with those of the system's headers.
namespace ravo {
namespace {

static_assert(sizeof(DispatchValue) == sizeof(VARIANT) && alignof(DispatchValue) == alignof(VARIANT));
static_assert(offsetof(DispatchValue, int32) == offsetof(VARIANT, lVal));
static_assert(sizeof(DispatchArguments) == sizeof(DISPPARAMS));
static_assert(offsetof(DispatchArguments, named_ids) == offsetof(DISPPARAMS, rgdispidNamedArgs));
static_assert(offsetof(DispatchArguments, count) == offsetof(DISPPARAMS, cArgs));
static_assert(sizeof(DispatchError) == sizeof(EXCEPINFO) && alignof(DispatchError) == alignof(EXCEPINFO));
static_assert(offsetof(DispatchError, description) == offsetof(EXCEPINFO, bstrDescription));
static_assert(offsetof(DispatchError, help_context) == offsetof(EXCEPINFO, dwHelpContext));
static_assert(offsetof(DispatchError, fill_in) == offsetof(EXCEPINFO, pfnDeferredFillIn));
static_assert(offsetof(DispatchError, result) == offsetof(EXCEPINFO, scode));
static_assert(dispatch_type::kInt32 == VT_I4 && dispatch_type::kDouble == VT_R8 &&
              dispatch_type::kText == VT_BSTR && dispatch_type::kDispatch == VT_DISPATCH &&
              dispatch_type::kBoolean == VT_BOOL && dispatch_type::kUnknown == VT_UNKNOWN &&
              dispatch_type::kEmpty == VT_EMPTY);
static_assert(dispatch_call::kMethod == DISPATCH_METHOD &&
              dispatch_call::kPropertyGet == DISPATCH_PROPERTYGET &&
              dispatch_call::kPropertyPut == DISPATCH_PROPERTYPUT);
static_assert(result_code::kNotImplemented == E_NOTIMPL && result_code::kNoInterface == E_NOINTERFACE &&
              result_code::kNullPointer == E_POINTER &&
              result_code::kMemberNotFound == DISP_E_MEMBERNOTFOUND &&
              result_code::kUnknownName == DISP_E_UNKNOWNNAME && result_code::kBadIndex == DISP_E_BADINDEX &&
              result_code::kNoAggregation == CLASS_E_NOAGGREGATION &&
              result_code::kOutOfMemory == E_OUTOFMEMORY &&
              result_code::kClassNotRegistered == REGDB_E_CLASSNOTREG &&
              result_code::kAlreadyRegistered == CO_E_OBJISREG &&
              result_code::kServerFailed == CO_E_SERVER_EXEC_FAILURE &&
              result_code::kServerUnavailable == HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE));

class Echo final : public DispatchObject<RavoManager_TLB::IRavoBox> {
 public:
  ResultCode RAVO_STDCALL Invoke(std::int32_t id, const Guid&, std::uint32_t, std::uint16_t,
                                 DispatchArguments* arguments, DispatchValue* answer, DispatchError*,
                                 std::uint32_t*) noexcept override {
    answer->type = dispatch_type::kInt32;
    answer->int32 = arguments->values[0].int32 + id;
    return result_code::kOk;
  }
};

// A client that uses only the system's headers.
TEST(Layout, AClientOfTheSystemCallsAnObjectOfTheLibrary) {
  const auto object = MakeComponent<Echo>();
  auto* unknown = reinterpret_cast<::IUnknown*>(object.Get());
  ::IDispatch* dispatch = nullptr;
  ASSERT_EQ(unknown->QueryInterface(::IID_IDispatch, reinterpret_cast<void**>(&dispatch)), S_OK);
  UINT count = 7;
  EXPECT_EQ(dispatch->GetTypeInfoCount(&count), S_OK);
  EXPECT_EQ(count, 0U);
  VARIANTARG argument{};
  argument.vt = VT_I4;
  argument.lVal = 40;
  DISPPARAMS arguments{&argument, nullptr, 1, 0};
  VARIANT answer{};
  const ::IID none{};
  EXPECT_EQ(dispatch->Invoke(2, none, 0, DISPATCH_METHOD, &arguments, &answer, nullptr, nullptr), S_OK);
  EXPECT_EQ(answer.lVal, 42);
  EXPECT_EQ(dispatch->Release(), 1U);
}

TEST(Layout, IdentifiersAreThoseOfTheSystem) {
  EXPECT_EQ(reinterpret_cast<const Guid&>(::IID_IUnknown), IUnknown::kInterfaceId);
  EXPECT_EQ(reinterpret_cast<const Guid&>(::IID_IDispatch), IDispatch::kInterfaceId);
}

}  // namespace
}  // namespace ravo
