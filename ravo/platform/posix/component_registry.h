#pragma once

#include <ravo/runtime/component_factory.h>

#include <cstdint>
#include <map>
#include <memory>
#include <shared_mutex>

namespace ravo::platform::posix {

/// The classes that this process offers, by class identifier: what stands in the place of a component runtime
/// where the system has none. All threads may use it at once.
class ComponentRegistry {
 public:
  /// Answers `kAlreadyRegistered` where the class is offered already; else `registration` receives a number,
  /// never 0.
  [[nodiscard]] ResultCode Offer(const Guid& class_id, ComponentFactory factory, std::uint32_t& registration);

  /// A number that is not in use does nothing.
  void Revoke(std::uint32_t registration);

  /// A new object of the class. The factory runs outside the registry's lock: it may create, offer and revoke
  /// classes itself, and it may still be running when its class is revoked.
  [[nodiscard]] ResultCode Create(const Guid& class_id, ComponentPtr<IUnknown>& instance) const;

 private:
  struct Entry {
    std::uint32_t registration;
    std::shared_ptr<const ComponentFactory> factory;
  };

  [[nodiscard]] std::shared_ptr<const ComponentFactory> FactoryOf(const Guid& class_id) const;

  mutable std::shared_mutex mutex_;
  std::map<Guid, Entry> entries_;
  std::uint32_t last_ = 0;
};

/// The one of this process.
[[nodiscard]] ComponentRegistry& ProcessComponents();

}  // namespace ravo::platform::posix
