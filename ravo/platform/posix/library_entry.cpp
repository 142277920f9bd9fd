#include <ravo/platform/library_entry.h>

// The dynamic loader runs these when it maps and unmaps the shared library.

[[gnu::constructor]] static void Attach() { ravo::platform::LibraryAttached(ravo::platform::ThisModule()); }

[[gnu::destructor]] static void Detach() { ravo::platform::LibraryDetached(); }
