#include <ravo/platform/posix/posix_machine.h>
#include <ravo/runtime/undestroyed.h>

namespace ravo::platform {
namespace posix {

PosixMachine::~PosixMachine() = default;

}  // namespace posix

const Machine& RealMachine() noexcept {
  static const Undestroyed<posix::PosixMachine> machine;
  return machine.value;
}

}  // namespace ravo::platform
