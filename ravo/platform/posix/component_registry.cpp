#include <ravo/platform/posix/component_registry.h>

#include <mutex>
#include <utility>

namespace ravo::platform::posix {
ResultCode ComponentRegistry::Offer(const Guid& class_id, ComponentFactory factory,
                                    std::uint32_t& registration) {
  auto shared = std::make_shared<const ComponentFactory>(std::move(factory));
  const std::unique_lock lock(mutex_);
  const auto [place, is_new] = entries_.try_emplace(class_id, Entry{last_ + 1, std::move(shared)});
  if (!is_new) return result_code::kAlreadyRegistered;
  registration = ++last_;
  return result_code::kOk;
}

void ComponentRegistry::Revoke(std::uint32_t registration) {
  std::shared_ptr<const ComponentFactory> last_use;  // ends outside the lock, with whatever the factory holds
  const std::unique_lock lock(mutex_);
  for (auto entry = entries_.begin(); entry != entries_.end(); ++entry) {
    if (entry->second.registration != registration) continue;
    last_use = std::move(entry->second.factory);
    entries_.erase(entry);
    return;
  }
}

std::shared_ptr<const ComponentFactory> ComponentRegistry::FactoryOf(const Guid& class_id) const {
  const std::shared_lock lock(mutex_);
  const auto entry = entries_.find(class_id);
  return entry == entries_.end() ? nullptr : entry->second.factory;
}

ResultCode ComponentRegistry::Create(const Guid& class_id, ComponentPtr<IUnknown>& instance) const {
  const auto factory = FactoryOf(class_id);
  return factory ? MakeInstance(*factory, instance) : result_code::kClassNotRegistered;
}

ComponentRegistry& ProcessComponents() {
  // Never destroyed: objects of other modules may be revoked after the library's own statics are destroyed.
  static ComponentRegistry& registry = *new ComponentRegistry;
  return registry;
}

}  // namespace ravo::platform::posix
