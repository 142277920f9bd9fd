#pragma once

#include <ravo/runtime/component_object.h>

#include <atomic>
#include <concepts>

namespace ravo::test {

/// What objects under test leave behind: none of both when all went well.
struct Counts {
  std::atomic<int> objects{0};
  std::atomic<int> references{0};
};

/// Counts itself and the references to it.
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

/// An object of a dual interface without operations of its own.
template <class Interface>
class CountedObject final : public CountedBase<DispatchObject<Interface>> {
 public:
  using CountedBase<DispatchObject<Interface>>::CountedBase;

  ResultCode RAVO_STDCALL Invoke(std::int32_t, const Guid&, std::uint32_t, std::uint16_t, DispatchArguments*,
                                 DispatchValue*, DispatchError*, std::uint32_t*) noexcept override {
    return result_code::kMemberNotFound;
  }
};

/// An object that supports no interface but the platform's base.
using RefusingObject = CountedBase<ComponentObject<IUnknown>>;

}  // namespace ravo::test
