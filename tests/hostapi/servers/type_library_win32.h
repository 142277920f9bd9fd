#pragma once

#include <ravo/runtime/guid.h>

#include <string>

namespace ravo::test {

/// A dual interface that the servers of these tests implement: operations 1 to `operations`.
struct ServedType {
  Guid library;
  const wchar_t* library_name;
  Guid identifier;
  const wchar_t* name;
  int operations;
};

/// Writes a type library with that interface, which the component runtime needs to marshal its calls between
/// processes. Returns the code of the first call that failed.
[[nodiscard]] long WriteTypeLibrary(const ServedType& type, const std::wstring& file);

}  // namespace ravo::test
