#pragma once

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

/// Takes the body out of a tag that stands in the document just as it would be written again; false for any
/// other tag. Nothing is copied. `kReadAhead` bytes behind the tag must be readable.
[[nodiscard]] bool TakePlainBody(std::string_view tag, TagBody& body) noexcept;

/// What a tag says, by the rules for tags of any form.
struct TagParts {
  std::string name;
  /// Attributes as lines of the form name=value, unescaped.
  std::vector<std::string> lines;
};

/// `tag` is a token's text: from its "<" to its ">", without line breaks of two bytes and double blanks.
[[nodiscard]] TagParts ReadTag(std::string_view tag);

/// Appends the lines to a body that holds a name; false where a line has no "=" or breaks: only a list can
/// hold it then.
[[nodiscard]] bool AppendLines(std::string& body, const std::vector<std::string>& lines);

/// An attribute of a body.
struct WrittenAttribute {
  std::string_view name;
  std::string_view value;
};

/// Takes the first attribute off the front of what stands behind the name in a body.
[[nodiscard]] WrittenAttribute TakeAttribute(std::string_view& rest) noexcept;

}  // namespace ravo::xml
