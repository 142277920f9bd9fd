#pragma once

#ifdef _WIN32

#include <objbase.h>
#include <windows.h>

/// On Windows each thread initializes the component runtime before it creates an object.
struct ComponentThread {
  ComponentThread() { initialised = SUCCEEDED(CoInitializeEx(nullptr, COINIT_MULTITHREADED)); }
  ComponentThread(const ComponentThread&) = delete;
  ComponentThread& operator=(const ComponentThread&) = delete;
  ~ComponentThread() {
    if (initialised) CoUninitialize();
  }
  bool initialised;
};

#else

/// Other systems need no initialization.
struct ComponentThread {
  ComponentThread() {}
};

#endif
