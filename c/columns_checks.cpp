#include "columns_answers.h"
#include <ravo/czech/kinds.h>

using ravo::c::Answer;
using ravo::c::AnswerRows;
using ravo::c::CodeOfRefusal;
using ravo::c::FailArgument;
using ravo::c::NoValues;
using ravo::c::TextsOfRows;
namespace czech = ravo::czech;

namespace {

// What correct texts are spelled as. A text that is correct in form is UTF-8: only refused ones are looked
// at.
struct CanonicalForm {
  [[nodiscard]] czech::Parsed<czech::FixedText<34>> operator()(std::string_view text) const noexcept {
    auto checked = czech::Check(kind, text);
    if (!checked) checked = {{}, CodeOfRefusal(checked.code, text)};
    return checked;
  }
  czech::Kind kind;
};
struct UsualSpelling {
  [[nodiscard]] czech::Parsed<czech::FixedText<42>> operator()(std::string_view text) const noexcept {
    auto checked = czech::Respell(kind, text);
    if (!checked) checked = {{}, CodeOfRefusal(checked.code, text)};
    return checked;
  }
  czech::Kind kind;
};

// Codes alone.
struct CodeOfText {
  [[nodiscard]] Answer<NoValues::Nothing> operator()(std::string_view text) const noexcept {
    const czech::Code code = czech::Refusal(kind, text);
    if (code == czech::Code::Correct) return {};
    return {{}, static_cast<std::uint16_t>(CodeOfRefusal(code, text))};
  }
  czech::Kind kind;
};

template <class Spelling>
ravo_status CheckedColumn(ravo_kind kind, const ravo_column* column, const ravo::c::Run& run,
                          ravo_answers* answers, ravo_error* error) noexcept {
  if (ravo_kind_name(kind) == nullptr) return FailArgument(error, "the kind is unknown");
  const ravo_status status = ravo::c::CheckAnswered<ravo::c::kTexts>(column, run, answers, error);
  if (status != RAVO_OK) return status;
  const auto known = static_cast<czech::Kind>(kind);
  return ravo::c::Guarded(error, [&] {
    if (answers->texts != nullptr)
      return AnswerRows(*column, run, *answers, TextsOfRows(*answers->texts), Spelling{known}, error);
    return AnswerRows(*column, run, *answers, NoValues(), CodeOfText{known}, error);
  });
}

}  // namespace

ravo_status ravo_check_column(ravo_kind kind, const ravo_column* column, uint32_t flags,
                              ravo_answers* answers, ravo_progress progress, void* context,
                              ravo_error* error) {
  return CheckedColumn<CanonicalForm>(kind, column, {flags, progress, context}, answers, error);
}

ravo_status ravo_respell_column(ravo_kind kind, const ravo_column* column, uint32_t flags,
                                ravo_answers* answers, ravo_progress progress, void* context,
                                ravo_error* error) {
  return CheckedColumn<UsualSpelling>(kind, column, {flags, progress, context}, answers, error);
}
