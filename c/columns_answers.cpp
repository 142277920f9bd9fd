#include "columns_answers.h"

namespace ravo::c {
namespace {

std::string_view FaultOfTexts(const ravo_texts& texts) noexcept {
  if (texts.size < sizeof texts) return "the size of the texts is unknown";
  const bool has_offsets = texts.layout == RAVO_LAYOUT_OFFSETS_32 || texts.layout == RAVO_LAYOUT_OFFSETS_64;
  if (!has_offsets && texts.layout != RAVO_LAYOUT_FIXED) return "texts cannot be written in that layout";
  if (has_offsets && texts.offsets == nullptr) return "the offsets of the texts are null";
  if (!has_offsets && texts.width <= 0) return "the width is not above 0";
  if (texts.data == nullptr && texts.data_size != 0) return "the buffer is null, but its size is not 0";
  return {};
}

}  // namespace

ravo_status CheckAnswers(const ravo_answers* answers, ravo_error* error) noexcept {
  if (answers == nullptr) return FailArgument(error, "the answers are null");
  if (answers->size < sizeof *answers) return FailArgument(error, "the size of the answers is unknown");
  const std::string_view fault = answers->texts == nullptr ? "" : FaultOfTexts(*answers->texts);
  return fault.empty() ? RAVO_OK : FailArgument(error, fault);
}

ravo_status CheckNumbers(const ravo_column& column, const void* numbers, const ravo_answers& answers,
                         ravo_error* error) noexcept {
  if (answers.texts != nullptr) return FailArgument(error, "the function writes no texts");
  if (numbers == nullptr && column.length != 0) return FailArgument(error, "the results are null");
  return RAVO_OK;
}

}  // namespace ravo::c
