#include "check_texts.h"

#include <algorithm>
#include <iterator>

namespace tool {
namespace {

struct TextRow {
  CheckText text;
  std::string_view code;  // for translators; it never changes
  std::string_view english;
};

constexpr TextRow kTexts[] = {
    {CheckText::Line, "check.line", "line {1}"},
    {CheckText::LineOfFile, "check.line-of-file", "{1}: line {2}"},
    {CheckText::ReasonInvalid, "check.reason.invalid", "not valid"},
    {CheckText::ReasonEmpty, "check.reason.empty", "empty"},
    {CheckText::ReasonTooLong, "check.reason.too-long", "too long"},
    {CheckText::ReasonNoCheckDigit, "check.reason.no-check-digit", "without check digit"},
    {CheckText::ReasonWrongCheckDigit, "check.reason.wrong-check-digit", "wrong check digit"},
    {CheckText::ReasonRagged, "check.reason.ragged", "another number of fields"},
    {CheckText::ReasonOpenQuote, "check.reason.open-quote", "a quote is never closed"},
    {CheckText::ReasonTextAfterQuote, "check.reason.text-after-quote", "text after a closing quote"},
    {CheckText::ReasonWrongByte, "check.reason.wrong-byte", "a byte that is not of the encoding"},
    {CheckText::FieldCount, "check.field-count", "{1} fields, not {2}"},
    {CheckText::WrongByteAt, "check.wrong-byte-at", "byte {1} at offset {2} is not {3}"},
    {CheckText::Rows, "check.rows", "{1} rows, {2} with findings"},
    {CheckText::Valid, "check.valid", "valid"},
    {CheckText::LeftOut, "check.left-out", "{1} findings shown, {2} left out"},
    {CheckText::Detected, "check.detected", "{1}, delimiter {2}"},
    {CheckText::DidYouMean, "check.did-you-mean", "; did you mean '{1}'?"},
    {CheckText::NoColumn, "check.no-column", "there is no column '{1}'{2}\n  columns, split at {3}: {4}"},
    {CheckText::NoColumnNumber, "check.no-column-number",
     "there is no column {1}, only {2}\n  columns, split at {3}: {4}"},
    {CheckText::SameName, "check.same-name", "columns {1} are all named '{2}'; name one by its number"},
    {CheckText::SameNameButForCase, "check.same-name-but-for-case",
     "columns {1} are named '{2}' but for case; name one exactly or by its number"},
    {CheckText::NoFirstRow, "check.no-first-row", "has no first row with column names"},
    {CheckText::BrokenFirstRow, "check.broken-first-row", "line {1}: {2}, in the row with column names"},
    {CheckText::IsFolder, "check.is-folder", "is a folder"},
    {CheckText::CannotBeRead, "check.cannot-be-read", "cannot be read: {1}"},
    {CheckText::ReadFailed, "check.read-failed", "cannot be read to its end"},
    {CheckText::WideText, "check.wide-text", "is {1}; convert it first: ravo convert -f auto -t utf-8"},
    {CheckText::OutputFailed, "check.output-failed", "the output cannot be written"},
    {CheckText::OneFileOnly, "check.one-file-only", "--rejects and --clean take one file to check"},
    {CheckText::SameOutput, "check.same-output", "--rejects and --clean name the same file"},
};

// Whether each row stands at the place of its text.
constexpr bool IsInOrder() {
  for (std::size_t i = 0; i < std::size(kTexts); ++i) {
    if (static_cast<std::size_t>(kTexts[i].text) != i) return false;
  }
  return std::size(kTexts) == static_cast<std::size_t>(CheckText::SameOutput) + 1;
}
static_assert(IsInOrder());

}  // namespace

std::string Say(CheckText text, std::initializer_list<std::string_view> arguments) {
  const std::string_view pattern = kTexts[static_cast<std::size_t>(text)].english;
  std::string said;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    if (pattern[i] != '{') {
      said += pattern[i];
      continue;
    }
    said += arguments.begin()[pattern[i + 1] - '1'];
    i += 2;
  }
  return said;
}

std::string Say(Reason reason) {
  return Say(static_cast<CheckText>(static_cast<int>(CheckText::ReasonInvalid) + static_cast<int>(reason)));
}

}  // namespace tool
