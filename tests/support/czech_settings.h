#pragma once

#include <ravo/runtime/format_settings.h>

namespace ravo::test {

/// The Czech locale as Windows has it.
[[nodiscard]] FormatSettings CzechSettings();

}  // namespace ravo::test
