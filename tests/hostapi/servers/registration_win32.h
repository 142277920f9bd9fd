#pragma once

#include "type_library_win32.h"

#include <string>
#include <vector>

namespace ravo::test {

/// Entries of the component runtime's registry below the classes of the current user, taken out again when
/// this goes. What somebody else registered is left alone: that is an error.
class Registration {
 public:
  /// A class that a library serves, and one that a program serves.
  void AddLibraryServer(const Guid& class_id, const std::wstring& file);
  void AddProgramServer(const Guid& class_id, const std::wstring& command);
  /// How calls of an interface travel between processes: as its type library says, which is written to
  /// `file`.
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

/// A file beside this program.
[[nodiscard]] std::wstring BesideThisProgram(const std::wstring& name);

}  // namespace ravo::test
