#include <ravo/platform/library_entry.h>

#include <windows.h>

// Windows calls this when it maps and unmaps the library; it never refuses a load.
extern "C" BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) ravo::platform::LibraryAttached(library);
  if (reason == DLL_PROCESS_DETACH) ravo::platform::LibraryDetached();
  return TRUE;
}
