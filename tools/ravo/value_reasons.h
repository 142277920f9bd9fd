#pragma once

#include "checks.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace tool {

/// Why a value is not valid.
struct ValueReason {
  std::string_view code;     ///< for scripts
  std::size_t position = 0;  ///< 1-based character that is wrong, or 0
  std::string message;       ///< for people
};

/// Returns why `value`, which `kind` does not accept, is not valid.
[[nodiscard]] ValueReason WhyInvalid(const CheckKind& kind, std::u16string_view value);

/// Returns how the suite's rule of a kind differs from the world's, for people; empty if it does not.
[[nodiscard]] std::string SuiteRuleNote(const CheckKind& kind);

}  // namespace tool
