#pragma once

#include "columns.h"

#include <array>
#include <span>
#include <string>
#include <type_traits>

/// Columns of answers: a code for each row, and a column of texts or numbers beside it.
///
/// A rule computes an `Answer`, or anything with a `value` and a `code`, from the bytes of a row; a writer
/// takes the values. `AnswerTexts` and `AnswerNumbers` join the two and a column; what they throw is for
/// `Guarded`.
namespace ravo::c {

/// What a rule says of a row. The value of a row that is not correct is empty.
template <class Value>
struct Answer {
  Value value{};
  std::uint16_t code = RAVO_CODE_CORRECT;
};

/// The code of a refused text.
[[nodiscard]] inline czech::Code CodeOfRefusal(czech::Code code, std::string_view text) noexcept {
  return WellFormedLength(text) == text.size() ? code : czech::Code{RAVO_CODE_NOT_UTF8};
}

/// The codes of a block, then those of the caller.
class CodesOfRows {
 public:
  explicit CodesOfRows(const ravo_answers& answers) noexcept : answers_(answers) {}

  void Put(std::size_t row, std::uint16_t code) noexcept { block_[row % kBlockRows] = code; }

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
  std::array<std::uint16_t, kBlockRows> block_;
  std::size_t wrong_ = 0;  // null rows too
  std::size_t nulls_ = 0;
};

/// Takes no values: codes alone are wanted.
struct NoValues {
  struct Nothing {};

  template <class Value>
  [[nodiscard]] bool Put(std::size_t /*row*/, const Value& /*value*/) noexcept {
    return true;
  }
  [[nodiscard]] static std::span<std::uint8_t> Room() noexcept { return {}; }
  [[nodiscard]] ravo_status Finish(ravo_error* /*error*/) const noexcept { return RAVO_OK; }
};

/// A column of numbers of the caller.
template <class Number>
class NumbersOfRows {
 public:
  explicit NumbersOfRows(Number* numbers) noexcept : numbers_(numbers) {}

  [[nodiscard]] bool Put(std::size_t row, Number number) noexcept {
    numbers_[row] = number;
    return true;
  }
  [[nodiscard]] ravo_status Finish(ravo_error* /*error*/) const noexcept { return RAVO_OK; }

 private:
  Number* numbers_;
};

/// A column of texts of the caller, row by row.
class TextsOfRows {
 public:
  explicit TextsOfRows(ravo_texts& texts) noexcept
      : texts_(texts), most_(texts.layout == RAVO_LAYOUT_OFFSETS_32 ? INT32_MAX : PTRDIFF_MAX) {
    StoreOffset(0);
  }

  /// False if the text does not fit the width, or its end an offset.
  template <std::size_t capacity>
  [[nodiscard]] bool Put(std::size_t row, const czech::FixedText<capacity>& text) noexcept {
    if (texts_.layout == RAVO_LAYOUT_FIXED) return PutFixed(text);
    Append(text);
    return EndRow(row);
  }
  [[nodiscard]] bool Put(std::size_t row, std::string_view text) noexcept {
    if (texts_.layout == RAVO_LAYOUT_FIXED) return PutFixed(text);
    if (MakeRoom(text.size()) && text.data() != texts_.data + length_)
      std::copy_n(text.data(), text.size(), texts_.data + length_);
    length_ += text.size();
    return EndRow(row);
  }

  /// Where the next text goes: one that is already there is not copied.
  [[nodiscard]] std::span<std::uint8_t> Room() const noexcept {
    if (!fits_ || texts_.data == nullptr) return {};
    return {reinterpret_cast<std::uint8_t*>(texts_.data) + length_, texts_.data_size - length_};
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
    return length_ <= most_;
  }

  // Whole words, of which the next text overwrites what is too much.
  template <std::size_t capacity>
  [[nodiscard]] bool PutFixed(const czech::FixedText<capacity>& text) noexcept {
    const auto width = static_cast<std::size_t>(texts_.width);
    const bool has_words = fits_ && width <= text.kRoom && texts_.data_size - length_ >= text.kRoom;
    if (!has_words || text.size > width) return PutFixed(text.View());
    CopyWords(text, width, texts_.data + length_);
    length_ += width;
    return length_ <= most_;
  }

  template <std::size_t capacity>
  void Append(const czech::FixedText<capacity>& text) noexcept {
    if (fits_ && texts_.data_size - length_ >= text.kRoom) {
      CopyWords(text, text.size, texts_.data + length_);
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

  [[nodiscard]] bool EndRow(std::size_t row) noexcept {
    if (length_ > most_) return false;
    StoreOffset(row + 1);
    return true;
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
  std::size_t most_;
  std::size_t length_ = 0;
  bool fits_ = true;
};

/// What a dictionary keeps of the answer for an entry: the next answer may overwrite the text of a view.
template <class Result>
struct Keeping {
  using Kept = Result;
};
template <>
struct Keeping<Answer<std::string_view>> {
  struct Kept {
    Kept() = default;
    explicit Kept(const Answer<std::string_view>& answer) : value(answer.value), code(answer.code) {}

    std::string value;
    std::uint16_t code = RAVO_CODE_CORRECT;
  };
};

/// The job that asks a rule.
template <class Rule, class Writer>
class AnswersJob {
 public:
  using Result = std::invoke_result_t<Rule&, std::string_view>;
  using Kept = typename Keeping<Result>::Kept;

  AnswersJob(Rule& rule, Writer writer, const ravo_answers& answers) noexcept
      : rule_(rule), codes_(answers), writer_(writer) {}

  [[nodiscard]] Result Of(std::string_view value) {
    if constexpr (requires { rule_.BeginIn(writer_.Room()); }) rule_.BeginIn(writer_.Room());
    return rule_(value);
  }
  template <class Given>
  [[nodiscard]] bool Put(std::size_t row, const Given& given) noexcept {
    codes_.Put(row, static_cast<std::uint16_t>(given.code));
    return writer_.Put(row, given.value);
  }
  /// False if an empty value fits no more.
  [[nodiscard]] bool PutNull(std::size_t row) noexcept {
    codes_.Put(row, RAVO_CODE_NULL);
    return writer_.Put(row, decltype(Result::value){});
  }
  void EndBlock(std::size_t first, std::size_t end) noexcept { codes_.EndBlock(first, end); }
  [[nodiscard]] ravo_status Finish(ravo_answers& answers, ravo_error* error) const noexcept {
    codes_.WriteCounts(answers);
    return writer_.Finish(error);
  }

 private:
  Rule& rule_;
  CodesOfRows codes_;
  Writer writer_;
};

/// Returns RAVO_OK, or why answers cannot be written at all.
[[nodiscard]] ravo_status CheckAnswers(const ravo_answers* answers, ravo_error* error) noexcept;
/// The same for a function that writes numbers and no texts.
[[nodiscard]] ravo_status CheckNumbers(const ravo_column& column, const void* numbers,
                                       const ravo_answers& answers, ravo_error* error) noexcept;

/// Returns RAVO_OK, or why a column cannot be read or its answers not be written.
template <ValuesOfRows values>
[[nodiscard]] ravo_status CheckAnswered(const ravo_column* column, const Run& run,
                                        const ravo_answers* answers, ravo_error* error) noexcept {
  const ravo_status status = CheckColumn(column, values, run.flags, error);
  return status == RAVO_OK ? CheckAnswers(answers, error) : status;
}

/// Asks a rule for every row and writes its answers. Precondition: `CheckAnswered` accepted the column.
template <ValuesOfRows values = kTexts, class Writer, class Rule>
[[nodiscard]] ravo_status AnswerRows(const ravo_column& column, const Run& run, ravo_answers& answers,
                                     Writer writer, Rule rule, ravo_error* error) {
  AnswersJob<Rule, Writer> job(rule, writer, answers);
  const ravo_status status = RunColumn<values>(column, run, job, error);
  return status == RAVO_OK ? job.Finish(answers, error) : status;
}

/// Asks a rule for every row and writes codes, and texts if there is room for texts.
template <ValuesOfRows values, class Rule>
[[nodiscard]] ravo_status AnswerTexts(const ravo_column* column, const Run& run, ravo_answers* answers,
                                      ravo_error* error, Rule rule) {
  const ravo_status status = CheckAnswered<values>(column, run, answers, error);
  if (status != RAVO_OK) return status;
  if (answers->texts == nullptr)
    return AnswerRows<values>(*column, run, *answers, NoValues(), std::move(rule), error);
  return AnswerRows<values>(*column, run, *answers, TextsOfRows(*answers->texts), std::move(rule), error);
}

/// Asks a rule for every row and writes codes and numbers.
template <ValuesOfRows values, class Number, class Rule>
[[nodiscard]] ravo_status AnswerNumbers(const ravo_column* column, const Run& run, Number* numbers,
                                        ravo_answers* answers, ravo_error* error, Rule rule) {
  ravo_status status = CheckAnswered<values>(column, run, answers, error);
  if (status == RAVO_OK) status = CheckNumbers(*column, numbers, *answers, error);
  if (status != RAVO_OK) return status;
  return AnswerRows<values>(*column, run, *answers, NumbersOfRows<Number>(numbers), std::move(rule), error);
}

}  // namespace ravo::c
