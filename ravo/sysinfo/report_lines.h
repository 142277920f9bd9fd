#pragma once

#include <ravo/runtime/string_list.h>

#include <string_view>

/// The kinds of lines of the report. Depth is counted in tabs after the indent of the section.
namespace ravo::sysinfo {

/// Adds a caption at the indent itself.
void AddHeading(StringList& lines, std::u16string_view indent, std::u16string_view caption);

/// Adds a caption one tab deep.
void AddSubHeading(StringList& lines, std::u16string_view indent, std::u16string_view caption);

/// Adds "caption: value" one tab deep.
void AddRow(StringList& lines, std::u16string_view indent, std::u16string_view caption,
            std::u16string_view value);

/// Adds "caption: value" two tabs deep.
void AddNestedRow(StringList& lines, std::u16string_view indent, std::u16string_view caption,
                  std::u16string_view value);

}  // namespace ravo::sysinfo
