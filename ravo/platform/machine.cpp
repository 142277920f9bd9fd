#include <ravo/platform/code_pages.h>
#include <ravo/platform/components.h>
#include <ravo/platform/diagnostics.h>
#include <ravo/platform/drives.h>
#include <ravo/platform/files.h>
#include <ravo/platform/folders.h>
#include <ravo/platform/locale.h>
#include <ravo/platform/machine.h>
#include <ravo/platform/paths.h>
#include <ravo/platform/registry.h>
#include <ravo/platform/resources.h>
#include <ravo/platform/system.h>

#include <algorithm>
#include <atomic>

namespace ravo::platform {
namespace {

// Null means the real machine, so that no code has to run before the first question.
std::atomic<const Machine*> substitute{nullptr};

const Machine& CurrentMachine() noexcept {
  const Machine* machine = substitute.load(std::memory_order_acquire);
  return machine ? *machine : RealMachine();
}

}  // namespace

Chapter::~Chapter() = default;
RegistryKey::~RegistryKey() = default;
VersionResource::~VersionResource() = default;

std::optional<std::u16string> RegistryKey::Text(std::u16string_view name) const {
  std::optional<std::u16string> text = StoredText(name);
  if (text) text->resize(std::min(text->find(u'\0'), text->size()));
  return text;
}

const SystemCalls& System() noexcept { return *CurrentMachine().system; }
const FolderCalls& Folders() noexcept { return *CurrentMachine().folders; }
const DiagnosticCalls& Diagnostics() noexcept { return *CurrentMachine().diagnostics; }
const DriveCalls& Drives() noexcept { return *CurrentMachine().drives; }
const RegistryCalls& Registry() noexcept { return *CurrentMachine().registry; }
const PathCalls& Paths() noexcept { return *CurrentMachine().paths; }
const FileCalls& Files() noexcept { return *CurrentMachine().files; }
const LocaleCalls& Locale() noexcept { return *CurrentMachine().locale; }
const CodePageCalls& CodePages() noexcept { return *CurrentMachine().code_pages; }
const ResourceCalls& Resources() noexcept { return *CurrentMachine().resources; }
const ComponentCalls& Components() noexcept { return *CurrentMachine().components; }

ScopedMachine::ScopedMachine(const Machine& machine) noexcept
    : machine_(machine), previous_(substitute.exchange(&machine_)) {}

ScopedMachine::~ScopedMachine() { substitute.store(previous_, std::memory_order_release); }

}  // namespace ravo::platform
