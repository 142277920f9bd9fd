#pragma once

#include <ravo/runtime/string_list.h>

#include <string_view>

/// The kinds of lines that the report is made of. Depth is counted in tabs behind the section's own indent.
namespace ravo::sysinfo {

/// A caption at the depth of the indent itself.
void AddHeading(StringList& lines, std::u16string_view indent, std::u16string_view caption);

/// A caption one tab deep.
void AddSubHeading(StringList& lines, std::u16string_view indent, std::u16string_view caption);

/// "caption: value" one tab deep.
void AddRow(StringList& lines, std::u16string_view indent, std::u16string_view caption,
            std::u16string_view value);

/// "caption: value" two tabs deep.
void AddNestedRow(StringList& lines, std::u16string_view indent, std::u16string_view caption,
                  std::u16string_view value);

}  // namespace ravo::sysinfo
