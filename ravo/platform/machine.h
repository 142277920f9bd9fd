#pragma once

/// The only room that talks to the operating system.
///
/// The library asks the system in its own terms. The questions are grouped in chapters, one small abstract
/// class each: `system.h`, `folders.h`, `diagnostics.h`, `drives.h`, `registry.h`, `paths.h`, `files.h`,
/// `locale.h`, `code_pages.h`, `resources.h`, `components.h`. A caller includes the header of its chapter and
/// asks `platform::Drives().LogicalDrives()`. A question without an answer returns no value or an empty text
/// and throws nothing unless its comment says so.
///
/// `win32/` answers for Windows, `posix/` and, for what only Linux has, `linux/` for Linux. The sources of
/// this folder itself know no system: file streams, version resources, patterns of dates. A `Machine` is one
/// object per chapter; tests put another one in force, for which `tests/support/fake_machine.h` has a fake of
/// each chapter. CONTRIBUTING.md says how to add a question.
///
/// The room is private: no installed header includes a chapter, and no name of `ravo::platform` leaves the
/// library. Public headers use the leaf headers `file_handle.h`, `registry_root.h` and `text_size.h`, and
/// `file_stream.h`.
namespace ravo::platform {

class SystemCalls;
class FolderCalls;
class DiagnosticCalls;
class DriveCalls;
class RegistryCalls;
class PathCalls;
class FileCalls;
class LocaleCalls;
class CodePageCalls;
class ResourceCalls;
class ComponentCalls;

/// One object per chapter, none of them null. A copy with one pointer replaced is a machine with another
/// chapter.
struct Machine {
  const SystemCalls* system = nullptr;
  const FolderCalls* folders = nullptr;
  const DiagnosticCalls* diagnostics = nullptr;
  const DriveCalls* drives = nullptr;
  const RegistryCalls* registry = nullptr;
  const PathCalls* paths = nullptr;
  const FileCalls* files = nullptr;
  const LocaleCalls* locale = nullptr;
  const CodePageCalls* code_pages = nullptr;
  const ResourceCalls* resources = nullptr;
  const ComponentCalls* components = nullptr;
};

/// Returns the machine that the operating system answers for. `win32/` and `linux/` define it.
[[nodiscard]] const Machine& RealMachine() noexcept;

/// Puts a machine in force for the lifetime of this object. For tests; not for several threads at once.
class ScopedMachine {
 public:
  /// The chapters must outlive this object.
  explicit ScopedMachine(const Machine& machine) noexcept;
  ScopedMachine(const ScopedMachine&) = delete;
  ScopedMachine& operator=(const ScopedMachine&) = delete;
  ~ScopedMachine();

 private:
  const Machine machine_;
  const Machine* previous_;
};

}  // namespace ravo::platform
