#pragma once

#include <ravo/platform/diagnostics.h>
#include <ravo/platform/posix/posix_machine.h>
#include <ravo/platform/registry.h>
#include <ravo/platform/resources.h>

#include <string>
#include <utility>

/// The chapters that only Linux and its C library answer: the kernel's files in /proc and /sys, mounts, the
/// dynamic loader, names of error codes. Root folders are those of `posix_machine.h`. A namespace `linux`
/// would clash with a macro that compilers predefine.
namespace ravo::platform::gnu_linux {

class LinuxSystem final : public posix::PosixSystem {
 public:
  explicit LinuxSystem(std::string root = {}) : root_(std::move(root)) {}
  [[nodiscard]] MemoryFigures Memory() const override;

 private:
  std::string root_;
};

/// The codes are those of `errno`.
class LinuxDiagnostics final : public DiagnosticCalls {
 public:
  [[nodiscard]] std::u16string ErrorText(std::uint32_t code) const override;
  [[nodiscard]] std::uint32_t LastErrorCode() const noexcept override;
  /// Linux has no channel to a debugger.
  void DebugOutput(std::u16string_view) const override {}
};

/// A few keys that describe the computer and its system.
class LinuxRegistry final : public RegistryCalls {
 public:
  explicit LinuxRegistry(std::string root = {}) : root_(std::move(root)) {}
  [[nodiscard]] std::unique_ptr<RegistryKey> OpenKey(RegistryRoot root,
                                                     std::u16string_view path) const override;

 private:
  std::string root_;
};

class LinuxResources final : public ResourceCalls {
 public:
  [[nodiscard]] std::optional<std::u16string_view> ResourceText(ModuleHandle module,
                                                                std::uint16_t id) const override;
  [[nodiscard]] ModuleHandle LoadResources(std::u16string_view file) const override;
  void UnloadResources(ModuleHandle module) const override;
};

}  // namespace ravo::platform::gnu_linux
