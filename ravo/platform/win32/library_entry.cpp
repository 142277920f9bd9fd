#include <ravo/platform/library_entry.h>

#include <windows.h>

// Windows calls this when it maps and unmaps the library; it never refuses a load. At the end of the process
// (`reserved` is not null) the other threads have ended with whatever they held, so the system releases the
// rest.
extern "C" BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, LPVOID reserved) {
  if (reason == DLL_PROCESS_ATTACH) ravo::platform::LibraryAttached(library);
  if (reason == DLL_PROCESS_DETACH && !reserved) ravo::platform::LibraryDetached();
  return TRUE;
}
