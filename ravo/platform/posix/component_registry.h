#pragma once

#include <ravo/runtime/component_factory.h>

#include <cstdint>
#include <map>
#include <memory>
#include <shared_mutex>

namespace ravo::platform::posix {

/// The classes that this process offers, by class identifier: the component runtime of systems without one.
/// Thread-safe.
class ComponentRegistry {
 public:
  /// Offers a class; `registration` receives its number, never 0. Returns `kAlreadyRegistered` if the class
  /// is offered already.
  [[nodiscard]] ResultCode Offer(const Guid& class_id, ComponentFactory factory, std::uint32_t& registration);

  /// Revokes an offer; does nothing if the number is not in use.
  void Revoke(std::uint32_t registration);

  /// Creates an object of the class. The factory runs outside the registry's lock: it may create, offer and
  /// revoke classes itself, and may still be running when its class is revoked.
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

/// Returns the registry of this process.
[[nodiscard]] ComponentRegistry& ProcessComponents();

}  // namespace ravo::platform::posix
