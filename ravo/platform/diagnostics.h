#pragma once

#include <ravo/platform/chapter.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace ravo::platform {

/// Error codes and the debugger.
class DiagnosticCalls : public Chapter {
 public:
  /// Returns the system's message for one of its error codes, line end included; empty if it has none in
  /// fewer than 256 units.
  [[nodiscard]] virtual std::u16string ErrorText(std::uint32_t code) const = 0;
  /// Returns the code of the calling thread's last failed call.
  [[nodiscard]] virtual std::uint32_t LastErrorCode() const noexcept = 0;
  /// Sends a text to an attached debugger; does nothing if the system has no such channel.
  virtual void DebugOutput(std::u16string_view text) const = 0;
};

/// Returns this chapter of the machine in force.
[[nodiscard]] const DiagnosticCalls& Diagnostics() noexcept;

}  // namespace ravo::platform
