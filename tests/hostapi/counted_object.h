#pragma once

#include <ravo/runtime/component_object.h>

#include <atomic>
#include <concepts>

namespace ravo::test {

/// The objects and references that are alive; both 0 after a correct test.
struct Counts {
  std::atomic<int> objects{0};
  std::atomic<int> references{0};
};

/// Counts the object and its references.
template <class Base>
class CountedBase : public Base {
 public:
  explicit CountedBase(Counts& counts) : counts_(counts) { ++counts_.objects, ++counts_.references; }
  ~CountedBase() override { --counts_.objects; }

  std::uint32_t RAVO_STDCALL AddRef() noexcept override {
    ++counts_.references;
    return Base::AddRef();
  }

  std::uint32_t RAVO_STDCALL Release() noexcept override {
    --counts_.references;
    return Base::Release();
  }

 private:
  Counts& counts_;
};

/// An object with a dual interface and no operations of its own.
template <class Interface>
class CountedObject final : public CountedBase<DispatchObject<Interface>> {
 public:
  using CountedBase<DispatchObject<Interface>>::CountedBase;

  ResultCode RAVO_STDCALL Invoke(std::int32_t, const Guid&, std::uint32_t, std::uint16_t, DispatchArguments*,
                                 DispatchValue*, DispatchError*, std::uint32_t*) noexcept override {
    return result_code::kMemberNotFound;
  }
};

/// An object that supports only the platform's base interface.
using RefusingObject = CountedBase<ComponentObject<IUnknown>>;

}  // namespace ravo::test
