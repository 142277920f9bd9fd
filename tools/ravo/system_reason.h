#pragma once

#include <string>
#include <system_error>

namespace tool {

/// Returns why the system refused a file, for people: "there is no such file".
[[nodiscard]] std::string SystemReason(const std::error_code& code);

}  // namespace tool
