#include <ravo/platform/library_entry.h>

namespace {

bool process_ends = false;

// Objects of a library are destroyed before its destructor functions run where the process ends, and after
// them where the library alone is unmapped.
struct EndOfProcess {
  ~EndOfProcess() { process_ends = true; }
};
[[maybe_unused]] const EndOfProcess end_of_process;

}  // namespace

// The dynamic loader runs these when it maps and unmaps the shared library.

[[gnu::constructor]] static void Attach() { ravo::platform::LibraryAttached(ravo::platform::ThisModule()); }

// At the end of the process other threads may still read texts: what it leaves, the system takes back.
[[gnu::destructor]] static void Detach() {
  if (!process_ends) ravo::platform::LibraryDetached();
}
