#include <ravo/RavoManager_TLB.h>
#include <ravo/RavoProfileInfo_TLB.h>
#include <ravo/RavoZip_TLB.h>

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include <gtest/gtest.h>

namespace ravo {
namespace {

// An object of a declared interface with one operation after those of its base.
template <class Interface>
struct Above : Interface {
  virtual ResultCode RAVO_STDCALL Own(std::int32_t value) noexcept = 0;

 protected:
  ~Above() = default;
};

constexpr ResultCode kSeen = 1000;

template <class Interface>
class CustomObject final : public ComponentObject<Above<Interface>> {
 public:
  ResultCode RAVO_STDCALL Own(std::int32_t value) noexcept override { return kSeen + value; }
};

template <class Interface>
class DualObject final : public DispatchObject<Above<Interface>> {
 public:
  ResultCode RAVO_STDCALL Own(std::int32_t value) noexcept override { return kSeen + value; }
  ResultCode RAVO_STDCALL Invoke(std::int32_t, const Guid&, std::uint32_t, std::uint16_t, DispatchArguments*,
                                 DispatchValue*, DispatchError*, std::uint32_t*) noexcept override {
    return result_code::kMemberNotFound;
  }
};

// Calls by slot, as a client that knows only the operation table.
ResultCode CallSlot(void* object, std::size_t slot, std::int32_t value) {
  using Operation = ResultCode(RAVO_STDCALL*)(void*, std::int32_t);
  void** const table = *static_cast<void***>(object);
  return reinterpret_cast<Operation>(table[slot])(object, value);
}

template <class Interface>
void ExpectFirstSlot(const char* name) {
  constexpr bool kIsDual = std::derived_from<Interface, IDispatch>;
  using Object = std::conditional_t<kIsDual, DualObject<Interface>, CustomObject<Interface>>;
  const auto object = MakeComponent<Object>();
  Above<Interface>* const face = object.Get();
  EXPECT_EQ(CallSlot(face, kIsDual ? 7 : 3, 5), kSeen + 5) << name;
}

// The platform's base has three slots, its automation base four more.
TEST(OperationTable, OwnOperationsFollowTheBase) {
#define RAVO_HOST_INTERFACE(library, name, base, identifier, operations) \
  ExpectFirstSlot<library##_TLB::name>(#name);                           \
  ExpectFirstSlot<library##_TLB::name##Disp>(#name "Disp");
#include <ravo/hostapi/interfaces.inc>
}

}  // namespace
}  // namespace ravo
