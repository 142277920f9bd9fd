#pragma once

#include "type_library_win32.h"

#include <string>
#include <vector>

namespace ravo::test {

/// Entries of the component runtime's registry under the classes of the current user, removed on destruction.
/// Existing entries of another program are an error and stay unchanged.
class Registration {
 public:
  /// Registers a class that a library, or a program, serves.
  void AddLibraryServer(const Guid& class_id, const std::wstring& file);
  void AddProgramServer(const Guid& class_id, const std::wstring& command);
  /// Registers how calls of an interface are marshalled between processes: by its type library, which is
  /// written to `file`.
  void AddInterface(const ServedType& type, const std::wstring& file);

  Registration() = default;
  Registration(const Registration&) = delete;
  Registration& operator=(const Registration&) = delete;
  ~Registration();

 private:
  void AddKey(const std::wstring& key);
  std::vector<std::wstring> keys_;
  std::vector<std::wstring> files_;
};

/// Returns the path of a file beside this program.
[[nodiscard]] std::wstring BesideThisProgram(const std::wstring& name);

}  // namespace ravo::test
