#include <ravo/platform/posix/posix_machine.h>
#include <ravo/runtime/undestroyed.h>

namespace ravo::platform {
namespace posix {

PosixMachine::~PosixMachine() = default;

}  // namespace posix

namespace {

constinit const Undestroyed<posix::PosixMachine> real_machine;

}  // namespace

const Machine& RealMachine() noexcept { return real_machine.value; }

}  // namespace ravo::platform
