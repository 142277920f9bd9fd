#include <ravo/sysinfo/report_lines.h>

#include <initializer_list>
#include <string>

namespace ravo::sysinfo {
namespace {

void AddJoined(StringList& lines, std::initializer_list<std::u16string_view> pieces) {
  std::u16string line;
  for (const std::u16string_view piece : pieces) line += piece;
  lines.Add(std::move(line));
}

}  // namespace

void AddHeading(StringList& lines, std::u16string_view indent, std::u16string_view caption) {
  AddJoined(lines, {indent, caption});
}

void AddSubHeading(StringList& lines, std::u16string_view indent, std::u16string_view caption) {
  AddJoined(lines, {indent, u"\t", caption});
}

void AddRow(StringList& lines, std::u16string_view indent, std::u16string_view caption,
            std::u16string_view value) {
  AddJoined(lines, {indent, u"\t", caption, u": ", value});
}

void AddNestedRow(StringList& lines, std::u16string_view indent, std::u16string_view caption,
                  std::u16string_view value) {
  AddJoined(lines, {indent, u"\t\t", caption, u": ", value});
}

}  // namespace ravo::sysinfo
