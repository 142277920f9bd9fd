#pragma once

#include <cstdint>

namespace ravo::utils {

/// The operating system as the module `DISystemCompat` records it when it starts. Nothing in the library
/// reads the record.
struct SystemRecord {
  std::uint32_t platform_id = 0;
  std::uint32_t major = 0;
  std::uint32_t minor = 0;
};

/// Returns the record of the last start; zeros before the first.
[[nodiscard]] const SystemRecord& RecordedSystem() noexcept;

}  // namespace ravo::utils
