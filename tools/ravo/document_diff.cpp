#include "document_diff.h"

#include <algorithm>
#include <cstddef>

namespace tool {
namespace {

using ravo::document::DocumentEdit;

std::size_t LineBegin(std::string_view text, std::size_t at) {
  const std::size_t before = at == 0 ? std::string_view::npos : text.rfind('\n', at - 1);
  return before == std::string_view::npos ? 0 : before + 1;
}

std::size_t LineEnd(std::string_view text, std::size_t at) {
  const std::size_t end = text.find('\n', at);
  return end == std::string_view::npos ? text.size() : end + 1;
}

// Writes the lines that edits change, hunk by hunk.
class DiffWriter {
 public:
  explicit DiffWriter(std::string_view utf8) : text_(utf8) {}

  // Takes the edits of the lines that the first one changes; returns their number.
  std::size_t Take(std::span<const DocumentEdit> edits) {
    const std::size_t begin = LineBegin(text_, edits[0].span.begin);
    std::size_t end = begin;
    std::size_t from = begin;
    std::size_t count = 0;
    std::string after;
    for (; count < edits.size() && (count == 0 || edits[count].span.begin < end); ++count) {
      after.append(text_.substr(from, edits[count].span.begin - from)).append(edits[count].utf8);
      from = edits[count].span.end;
      end = LineEnd(text_, from);
    }
    after += text_.substr(from, end - from);
    Write(begin, text_.substr(begin, end - begin), after);
    return count;
  }

  [[nodiscard]] const std::string& Text() const { return diff_; }

 private:
  void Write(std::size_t begin, std::string_view before, std::string_view after) {
    line_ += static_cast<std::size_t>(std::count(text_.begin() + static_cast<std::ptrdiff_t>(at_),
                                                 text_.begin() + static_cast<std::ptrdiff_t>(begin), '\n'));
    at_ = begin;
    if (before == after) return;
    std::string lines;
    const std::size_t removed = AppendLines(before, '-', lines);
    const std::size_t added = AppendLines(after, '+', lines);
    diff_ += "@@ -" + Range(line_, removed) + " +" + Range(line_ + shift_, added) + " @@\n" + lines;
    shift_ += added - removed;
  }

  // Appends lines, each after a sign; returns their number.
  static std::size_t AppendLines(std::string_view lines, char sign, std::string& to) {
    std::size_t count = 0;
    for (; !lines.empty(); ++count) {
      const std::size_t end = LineEnd(lines, 0);
      to += sign;
      to += lines.substr(0, end);
      if (!to.ends_with('\n')) to += "\n\\ No newline at end of file\n";
      lines.remove_prefix(end);
    }
    return count;
  }

  static std::string Range(std::size_t line, std::size_t count) {
    return std::to_string(line) + (count == 1 ? "" : "," + std::to_string(count));
  }

  std::string_view text_;
  std::string diff_;
  std::size_t at_ = 0;
  std::size_t line_ = 1;
  std::size_t shift_ = 0;  // lines added by the hunks so far; wraps around if more were removed
};

}  // namespace

std::string EditsDiff(const std::string& name, std::string_view utf8, std::span<const DocumentEdit> edits) {
  DiffWriter writer(utf8);
  while (!edits.empty()) edits = edits.subspan(writer.Take(edits));
  return writer.Text().empty() ? std::string() : "--- " + name + "\n+++ " + name + "\n" + writer.Text();
}

}  // namespace tool
