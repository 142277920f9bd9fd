#include "handles.h"

#ifdef RAVO_CHECK_HANDLES

#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <unordered_set>

namespace ravo::c {
namespace {

struct OpenHandles {
  std::mutex mutex;
  std::unordered_set<const Handle*> addresses;
};

// Never destroyed: a handle may outlive the static objects of the library.
OpenHandles& AllOpenHandles() {
  static auto* const all = new OpenHandles;
  return *all;
}

}  // namespace

Handle::Handle() {
  OpenHandles& all = AllOpenHandles();
  const std::lock_guard lock(all.mutex);
  all.addresses.insert(this);
}

Handle::~Handle() {
  OpenHandles& all = AllOpenHandles();
  const std::lock_guard lock(all.mutex);
  all.addresses.erase(this);
}

bool IsClosed(const Handle* handle) noexcept {
  if (handle == nullptr) return false;
  OpenHandles& all = AllOpenHandles();
  const std::lock_guard lock(all.mutex);
  return !all.addresses.contains(handle);
}

void RefuseClosed(const Handle* handle) noexcept {
  if (!IsClosed(handle)) return;
  std::fputs("libravo: a closed handle is used\n", stderr);
  std::abort();
}

}  // namespace ravo::c

#endif
