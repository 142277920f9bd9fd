#include "interruption.h"

namespace tool {

// This system cannot delete a file that is open.
struct GoesOnInterruption::Watch {};

GoesOnInterruption::GoesOnInterruption(const std::filesystem::path&) {}
GoesOnInterruption::~GoesOnInterruption() = default;

}  // namespace tool
