#pragma once

#include <ravo/runtime/component_object.h>
#include <ravo/runtime/owned_object.h>

#include <atomic>
#include <cstdint>

namespace ravo {

/// A component that answers for `Interface` and the platform's interfaces below it. References are counted,
/// but its owner, or else its creator, frees it: no reference may outlive it.
template <class Interface>
class OwnedComponent : public TComponent, public Interface {
 public:
  using TComponent::TComponent;

  /// As `ComponentObject` does.
  ResultCode RAVO_STDCALL QueryInterface(const Guid& interface_id, void** object) noexcept override {
    return AnswerQuery<Interface>(*this, interface_id, object);
  }

  /// One reference more; answers how many there are, the owner's own among them.
  std::uint32_t RAVO_STDCALL AddRef() noexcept override { return ++references_; }

  /// One reference less, which does not free the component; answers how many are left.
  std::uint32_t RAVO_STDCALL Release() noexcept override { return --references_; }

 private:
  std::atomic<std::uint32_t> references_{1};
};

}  // namespace ravo
