#include "interruption.h"

namespace tool {

// This system cannot delete a file that is open.
struct DeleteOnInterruption::Watch {};

DeleteOnInterruption::DeleteOnInterruption(const std::filesystem::path&) {}
DeleteOnInterruption::~DeleteOnInterruption() = default;

}  // namespace tool
