#pragma once

#include <string>
#include <string_view>

/// Windows-1250 by a plain table: a witness independent of the library's own tables.
namespace ravo::test {

/// The five unassigned bytes become the control character of the same number.
[[nodiscard]] std::u16string FromWindows1250(std::string_view bytes);

/// Code units that the code page lacks become "?".
[[nodiscard]] std::string ToWindows1250(std::u16string_view text);

}  // namespace ravo::test
