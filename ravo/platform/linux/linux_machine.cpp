#include <ravo/platform/linux/linux_machine.h>
#include <ravo/platform/machine.h>
#include <ravo/runtime/undestroyed.h>

namespace ravo::platform {
namespace {

struct LinuxMachine {
  gnu_linux::LinuxSystem system;
  posix::PosixFolders folders;
  gnu_linux::LinuxDiagnostics diagnostics;
  posix::PosixDrives drives;
  gnu_linux::LinuxRegistry registry;
  posix::PosixPaths paths;
  posix::PosixFiles files;
  posix::PosixLocale locale;
  posix::PosixCodePages code_pages;
  gnu_linux::LinuxResources resources;
  posix::PosixComponents components;
  Machine chapters{&system, &folders, &diagnostics, &drives,    &registry,  &paths,
                   &files,  &locale,  &code_pages,  &resources, &components};
};

}  // namespace

const Machine& RealMachine() noexcept {
  static const Undestroyed<LinuxMachine> machine;
  return machine.value.chapters;
}

namespace {

// A process forked while another thread asks for the first time would wait for that thread for ever.
[[maybe_unused]] const Machine& made_at_load = RealMachine();

}  // namespace

}  // namespace ravo::platform
