#pragma once

#include <ravo/czech/reason.h>
#include <ravo/runtime/text.h>

#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace ravo::czech {

inline void PrintTo(Code code, std::ostream* out) { *out << CodeText(code); }

}  // namespace ravo::czech

namespace ravo::test {

/// An input in UTF-8 and what is expected of it: the canonical form, or a code and the position in
/// characters.
struct SpellingRow {
  std::string_view input;
  std::string_view canonical;  ///< empty if it is refused
  czech::Code code = czech::Code::Correct;
  std::size_t position = 0;  ///< in characters
};

/// How many UTF-8 units the first `characters` of `text` take.
[[nodiscard]] inline std::size_t Utf8Position(std::string_view text, std::size_t characters) {
  return ToUtf8(FromUtf8(text).substr(0, characters)).size();
}

/// Expects of both encodings what the row says. `parse` takes either; `canonical` gives the text of a value.
template <class Parse, class Canonical>
void ExpectSpelling(const SpellingRow& row, Parse parse, Canonical canonical) {
  SCOPED_TRACE(std::string(row.input));
  const auto narrow = parse(row.input);
  const auto wide = parse(std::u16string_view(FromUtf8(row.input)));
  EXPECT_EQ(narrow.code, row.code);
  EXPECT_EQ(wide.code, row.code);
  EXPECT_EQ(wide.position, row.position);
  EXPECT_EQ(narrow.position, Utf8Position(row.input, row.position));
  if (row.code != czech::Code::Correct) return;
  EXPECT_EQ(canonical(narrow.value).View(), row.canonical);
  EXPECT_EQ(canonical(wide.value).View(), row.canonical);
}

}  // namespace ravo::test
