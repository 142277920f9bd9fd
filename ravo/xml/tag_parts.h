#pragma once

#include <ravo/runtime/string_list.h>
#include <ravo/xml/code_page.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Names and attributes of tags, as bytes of the 8-bit code page.
namespace ravo::xml {

/// The body of an opening tag as it is written: the name, then for each attribute a blank, its name, "=" and
/// its escaped value in double quotes.
struct TagBody {
  std::string_view bytes;
  std::size_t name_size = 0;
};

/// Sets `body` to the part of `tag` between its brackets, if the source has the tag just as it would be
/// saved.
///
/// Returns false for any other tag. `kReadAhead` bytes after the tag must be readable. Copies nothing.
[[nodiscard]] bool TakePlainBody(std::string_view tag, TagBody& body) noexcept;

/// Name and attributes of a tag in any form.
struct TagParts {
  std::string name;
  /// Attributes as lines of the form name=value, unescaped.
  std::vector<std::string> lines;
};

/// Reads the bytes of a tag, "<" and ">" included, as they are in the source.
[[nodiscard]] TagParts ReadTag(std::string_view tag);

/// The lines as text of `page`.
[[nodiscard]] StringList ListOf(const std::vector<std::string>& lines, const CodePage& page);

/// Appends the lines to a body that holds a name; false if a line has no "=": only a list can hold it then.
[[nodiscard]] bool AppendLines(std::string& body, const std::vector<std::string>& lines);

/// An attribute of a body.
struct WrittenAttribute {
  std::string_view name;
  std::string_view value;
};

/// Removes the first attribute from `rest`, the part of a body after the name, and returns it.
[[nodiscard]] WrittenAttribute TakeAttribute(std::string_view& rest) noexcept;

}  // namespace ravo::xml
