#include "columns.h"
#include <ravo/czech/kinds.h>

#include <array>

using ravo::c::CheckColumn;
using ravo::c::Fail;
using ravo::c::FailArgument;
using ravo::c::Guarded;
using ravo::c::RunColumn;
namespace czech = ravo::czech;

namespace {

czech::Code CodeOfRefusal(czech::Code code, std::string_view text) noexcept {
  return ravo::c::WellFormedLength(text) == text.size() ? code : czech::Code{RAVO_CODE_NOT_UTF8};
}

// What correct texts are spelled as. A text that is correct in form is UTF-8: only refused ones are looked
// at.
struct CanonicalForm {
  using Text = czech::FixedText<34>;
  static czech::Parsed<Text> Of(czech::Kind kind, std::string_view text) noexcept {
    return czech::Check(kind, text);
  }
};
struct UsualSpelling {
  using Text = czech::FixedText<42>;
  static czech::Parsed<Text> Of(czech::Kind kind, std::string_view text) noexcept {
    return czech::Respell(kind, text);
  }
};

// The codes of a block, then those of the caller.
class CodesOfRows {
 public:
  explicit CodesOfRows(const ravo_answers& answers) noexcept : answers_(answers) {}

  void Put(std::size_t row, std::uint16_t code) noexcept { block_[row % ravo::c::kBlockRows] = code; }

  void EndBlock(std::size_t first, std::size_t end) noexcept {
    const std::size_t count = end - first;
    if (answers_.codes != nullptr) std::copy_n(block_.data(), count, answers_.codes + first);
    if (answers_.validity != nullptr) WriteBits(answers_.validity + first / 8, count);
    for (std::size_t i = 0; i < count; ++i) {
      nulls_ += block_[i] == RAVO_CODE_NULL ? 1U : 0U;
      wrong_ += block_[i] != RAVO_CODE_CORRECT ? 1U : 0U;
    }
  }

  void WriteCounts(ravo_answers& answers) const noexcept {
    answers.wrong = wrong_ - nulls_;
    answers.nulls = nulls_;
  }

 private:
  void WriteBits(std::uint8_t* bits, std::size_t count) const noexcept {
    for (std::size_t i = 0; i < count; i += 8) {
      unsigned byte = 0;
      for (std::size_t bit = 0; bit < std::min<std::size_t>(8, count - i); ++bit)
        byte |= (block_[i + bit] == RAVO_CODE_CORRECT ? 1U : 0U) << bit;
      bits[i / 8] = static_cast<std::uint8_t>(byte);
    }
  }

  const ravo_answers& answers_;
  std::array<std::uint16_t, ravo::c::kBlockRows> block_;
  std::size_t wrong_ = 0;  // null rows too
  std::size_t nulls_ = 0;
};

// A column of texts of the caller, row by row.
class TextsOfRows {
 public:
  explicit TextsOfRows(ravo_texts& texts) noexcept : texts_(texts) { StoreOffset(0); }

  // False if the text does not fit the width, or its end an offset.
  template <std::size_t capacity>
  [[nodiscard]] bool Put(std::size_t row, const czech::FixedText<capacity>& text) noexcept {
    if (texts_.layout == RAVO_LAYOUT_FIXED) return PutFixed(text.View());
    Append(text);
    if (texts_.layout == RAVO_LAYOUT_OFFSETS_32 && length_ > INT32_MAX) return false;
    StoreOffset(row + 1);
    return true;
  }

  [[nodiscard]] ravo_status Finish(ravo_error* error) const noexcept {
    texts_.data_length = length_;
    if (fits_ || texts_.data == nullptr) return RAVO_OK;
    return Fail(error, {RAVO_BUFFER, 0, 0, "the texts are longer than their buffer"});
  }

 private:
  [[nodiscard]] bool PutFixed(std::string_view text) noexcept {
    const auto width = static_cast<std::size_t>(texts_.width);
    if (text.size() > width) return false;
    if (MakeRoom(width)) {
      char* const value = texts_.data + length_;
      std::fill_n(std::copy_n(text.data(), text.size(), value), width - text.size(), '\0');
    }
    length_ += width;
    return true;
  }

  // A copy of known length is a few instructions: the next text overwrites what is too much of it.
  template <std::size_t capacity>
  void Append(const czech::FixedText<capacity>& text) noexcept {
    if (fits_ && texts_.data_size - length_ >= capacity) {
      std::copy_n(text.characters.data(), capacity, texts_.data + length_);
    } else if (MakeRoom(text.size)) {
      std::copy_n(text.characters.data(), text.size, texts_.data + length_);
    }
    length_ += text.size;
  }

  // After the first text that does not fit, none is written.
  [[nodiscard]] bool MakeRoom(std::size_t size) noexcept {
    fits_ = fits_ && size <= texts_.data_size - length_;
    return fits_;
  }

  void StoreOffset(std::size_t index) noexcept {
    if (texts_.layout == RAVO_LAYOUT_OFFSETS_32) Store<std::int32_t>(index);
    if (texts_.layout == RAVO_LAYOUT_OFFSETS_64) Store<std::int64_t>(index);
  }

  template <class Offset>
  void Store(std::size_t index) noexcept {
    const auto offset = static_cast<Offset>(length_);
    std::memcpy(static_cast<char*>(texts_.offsets) + index * sizeof offset, &offset, sizeof offset);
  }

  ravo_texts& texts_;
  std::size_t length_ = 0;
  bool fits_ = true;
};

// Codes alone.
class CodesJob {
 public:
  using Result = std::uint16_t;

  CodesJob(czech::Kind kind, const ravo_answers& answers) noexcept : kind_(kind), codes_(answers) {}

  [[nodiscard]] Result Of(std::string_view text) const noexcept {
    const czech::Code code = czech::Refusal(kind_, text);
    if (code == czech::Code::Correct) return RAVO_CODE_CORRECT;
    return static_cast<Result>(CodeOfRefusal(code, text));
  }
  [[nodiscard]] bool Put(std::size_t row, Result code) noexcept {
    codes_.Put(row, code);
    return true;
  }
  void PutNull(std::size_t row) noexcept { codes_.Put(row, RAVO_CODE_NULL); }
  void EndBlock(std::size_t first, std::size_t end) noexcept { codes_.EndBlock(first, end); }
  [[nodiscard]] ravo_status Finish(ravo_answers& answers, ravo_error* /*error*/) const noexcept {
    codes_.WriteCounts(answers);
    return RAVO_OK;
  }

 private:
  czech::Kind kind_;
  CodesOfRows codes_;
};

// Codes, and texts of one form.
template <class Form>
class FormsJob {
 public:
  /// Its code is that of the row.
  using Result = czech::Parsed<typename Form::Text>;

  FormsJob(czech::Kind kind, const ravo_answers& answers) noexcept
      : kind_(kind), codes_(answers), texts_(*answers.texts) {}

  [[nodiscard]] Result Of(std::string_view text) const noexcept {
    Result checked = Form::Of(kind_, text);
    if (!checked) checked = {{}, CodeOfRefusal(checked.code, text)};
    return checked;
  }
  [[nodiscard]] bool Put(std::size_t row, const Result& result) noexcept {
    codes_.Put(row, static_cast<std::uint16_t>(result.code));
    return texts_.Put(row, result.value);
  }
  void PutNull(std::size_t row) noexcept {
    codes_.Put(row, RAVO_CODE_NULL);
    (void)texts_.Put(row, typename Form::Text());
  }
  void EndBlock(std::size_t first, std::size_t end) noexcept { codes_.EndBlock(first, end); }
  [[nodiscard]] ravo_status Finish(ravo_answers& answers, ravo_error* error) const noexcept {
    codes_.WriteCounts(answers);
    return texts_.Finish(error);
  }

 private:
  czech::Kind kind_;
  CodesOfRows codes_;
  TextsOfRows texts_;
};

std::string_view FaultOfTexts(const ravo_texts& texts) noexcept {
  if (texts.size < sizeof texts) return "the size of the texts is unknown";
  const bool has_offsets = texts.layout == RAVO_LAYOUT_OFFSETS_32 || texts.layout == RAVO_LAYOUT_OFFSETS_64;
  if (!has_offsets && texts.layout != RAVO_LAYOUT_FIXED) return "texts cannot be written in that layout";
  if (has_offsets && texts.offsets == nullptr) return "the offsets of the texts are null";
  if (!has_offsets && texts.width <= 0) return "the width is not above 0";
  if (texts.data == nullptr && texts.data_size != 0) return "the buffer is null, but its size is not 0";
  return {};
}

ravo_status CheckAnswers(const ravo_answers* answers, ravo_error* error) noexcept {
  if (answers == nullptr) return FailArgument(error, "the answers are null");
  if (answers->size < sizeof *answers) return FailArgument(error, "the size of the answers is unknown");
  const std::string_view fault = answers->texts == nullptr ? "" : FaultOfTexts(*answers->texts);
  return fault.empty() ? RAVO_OK : FailArgument(error, fault);
}

template <class Job>
ravo_status RunCheck(czech::Kind kind, const ravo_column& column, const ravo::c::Run& run,
                     ravo_answers& answers, ravo_error* error) {
  Job job(kind, answers);
  const ravo_status status = RunColumn(column, run, job, error);
  return status == RAVO_OK ? job.Finish(answers, error) : status;
}

template <class Form>
ravo_status CheckedColumn(ravo_kind kind, const ravo_column* column, const ravo::c::Run& run,
                          ravo_answers* answers, ravo_error* error) noexcept {
  if (ravo_kind_name(kind) == nullptr) return FailArgument(error, "the kind is unknown");
  ravo_status status = CheckColumn(column, run.flags, error);
  if (status == RAVO_OK) status = CheckAnswers(answers, error);
  if (status != RAVO_OK) return status;
  const auto known = static_cast<czech::Kind>(kind);
  return Guarded(error, [&] {
    if (answers->texts == nullptr) return RunCheck<CodesJob>(known, *column, run, *answers, error);
    return RunCheck<FormsJob<Form>>(known, *column, run, *answers, error);
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
