#include <ravo/platform/posix/posix_machine.h>

#include <cstddef>
#include <new>

namespace ravo::platform {
namespace posix {

PosixMachine::~PosixMachine() = default;

}  // namespace posix

const Machine& RealMachine() noexcept {
  // Never destroyed: it is asked while the process ends, too.
  alignas(posix::PosixMachine) static std::byte place[sizeof(posix::PosixMachine)];
  static const Machine* const machine = new (place) posix::PosixMachine;
  return *machine;
}

}  // namespace ravo::platform
