#include "component_runtime.h"

#include <stdexcept>

#ifdef _WIN32

#include <windows.h>

namespace ravo::test {

ComponentRuntime::ComponentRuntime() {
  if (FAILED(CoInitializeEx(nullptr, COINIT_MULTITHREADED))) throw std::runtime_error("no component runtime");
}
ComponentRuntime::~ComponentRuntime() { CoUninitialize(); }

}  // namespace ravo::test

#else

namespace ravo::test {

ComponentRuntime::ComponentRuntime() = default;
ComponentRuntime::~ComponentRuntime() = default;

}  // namespace ravo::test

#endif
