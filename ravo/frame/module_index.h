#pragma once

#include <ravo/package.h>

#include <array>
#include <atomic>
#include <cstddef>

/// Index of the listed records by instance. Readers take no lock and never wait: no other thread can block
/// them, not even one that a fork or the end of the process stopped.
namespace ravo::frame {

/// An instance that was listed once. Entries stay, only their records change: a reader can walk on from any
/// entry while a record is removed.
struct ModuleEntry {
  void* instance = nullptr;
  /// Null while the instance is not listed.
  std::atomic<RavoModule*> record{nullptr};
  ModuleEntry* next = nullptr;
};

/// One writer at a time; readers at any time.
class ModuleIndex {
 public:
  constexpr ModuleIndex() = default;

  /// Returns the entry of an instance, or null. For readers.
  [[nodiscard]] ModuleEntry* Find(const void* instance) const noexcept;

  /// Returns the entry of an instance; adds it if it is missing. The first `kRoom` entries need no memory. A
  /// later one throws `std::bad_alloc` if memory is short, and is never freed, because a reader may use it
  /// until the process ends.
  ModuleEntry& Make(void* instance);

  /// Returns the entry that has this record, or null.
  [[nodiscard]] ModuleEntry* Holding(const RavoModule& record) const noexcept;

 private:
  // More than the number of the suite's modules.
  static constexpr std::size_t kRoom = 128;

  std::array<ModuleEntry, kRoom> room_{};
  std::size_t used_ = 0;
  std::atomic<ModuleEntry*> head_{nullptr};
};

}  // namespace ravo::frame
