#include <ravo/platform/machine.h>

#include <algorithm>
#include <atomic>

namespace ravo::platform {
namespace {

// Null stands for the real machine, so that nothing needs to run before the first question.
std::atomic<const Machine*> substitute{nullptr};

}  // namespace

RegistryKey::~RegistryKey() = default;
VersionResource::~VersionResource() = default;
Machine::~Machine() = default;
FileSystem::~FileSystem() = default;

std::optional<std::u16string> RegistryKey::Text(std::u16string_view name) const {
  std::optional<std::u16string> text = StoredText(name);
  if (text) text->resize(std::min(text->find(u'\0'), text->size()));
  return text;
}

const Machine& CurrentMachine() noexcept {
  const Machine* machine = substitute.load(std::memory_order_acquire);
  return machine ? *machine : RealMachine();
}

ScopedMachine::ScopedMachine(const Machine& machine) noexcept : previous_(substitute.exchange(&machine)) {}

ScopedMachine::~ScopedMachine() { substitute.store(previous_, std::memory_order_release); }

}  // namespace ravo::platform
