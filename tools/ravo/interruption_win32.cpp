#include "interruption.h"

namespace tool {

// A file that a program still has open cannot be removed on this system.
struct GoesOnInterruption::Watch {};

GoesOnInterruption::GoesOnInterruption(const std::filesystem::path&) {}
GoesOnInterruption::~GoesOnInterruption() = default;

}  // namespace tool
