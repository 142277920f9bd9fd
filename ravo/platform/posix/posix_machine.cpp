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

namespace {

// A process forked while another thread asked for the first time would wait for that thread for ever.
[[maybe_unused]] const Machine& made_at_load = RealMachine();

}  // namespace

}  // namespace ravo::platform
