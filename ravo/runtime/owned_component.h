#pragma once

#include <ravo/runtime/component_object.h>
#include <ravo/runtime/owned_object.h>

#include <atomic>
#include <cstdint>

namespace ravo {

/// A component that implements `Interface` and the platform's interfaces that it derives from. References are
/// counted, but its owner frees it, or its creator if it has no owner: no reference may outlive it.
template <class Interface>
class OwnedComponent : public TComponent, public Interface {
 public:
  using TComponent::TComponent;

  /// Stores an interface in `object` as `ComponentObject` does.
  ResultCode RAVO_STDCALL QueryInterface(const Guid& interface_id, void** object) noexcept override {
    return AnswerQuery<Interface>(*this, interface_id, object);
  }

  /// Adds a reference; returns the new count, which includes the owner's reference.
  std::uint32_t RAVO_STDCALL AddRef() noexcept override { return ++references_; }

  /// Removes a reference without freeing the component; returns the new count.
  std::uint32_t RAVO_STDCALL Release() noexcept override { return --references_; }

 private:
  std::atomic<std::uint32_t> references_{1};
};

}  // namespace ravo
