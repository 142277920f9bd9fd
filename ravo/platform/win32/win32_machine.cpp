#include <ravo/platform/machine.h>
#include <ravo/platform/win32/win32_machine.h>
#include <ravo/runtime/undestroyed.h>

namespace ravo::platform {
namespace {

struct Win32Machine {
  Win32System system;
  Win32Folders folders;
  Win32Diagnostics diagnostics;
  Win32Drives drives;
  Win32Registry registry;
  Win32Paths paths;
  Win32Files files;
  Win32Locale locale;
  Win32CodePages code_pages;
  Win32Resources resources;
  Win32Components components;
  Machine chapters{&system, &folders, &diagnostics, &drives,    &registry,  &paths,
                   &files,  &locale,  &code_pages,  &resources, &components};
};

constinit const Undestroyed<Win32Machine> real_machine;

}  // namespace

const Machine& RealMachine() noexcept { return real_machine.value.chapters; }

}  // namespace ravo::platform
