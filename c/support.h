#pragma once

#include "ravo.h"
#include <ravo/czech/fixed_text.h>
#include <ravo/czech/reason.h>
#include <ravo/runtime/error.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <new>
#include <optional>
#include <string>
#include <string_view>

/// What every function of the C interface does at its border: read texts, write results, report failures.
namespace ravo::c {

/// A failure on its way to the caller.
struct Failure {
  ravo_status status = RAVO_OK;
  std::int32_t code = 0;
  std::size_t position = 0;
  std::string_view message{};
};

/// Fills `*error`, if there is one of a known size, and returns the status.
[[gnu::cold]] inline ravo_status Fail(ravo_error* error, const Failure& failure) noexcept {
  if (error == nullptr || error->size < sizeof(ravo_error)) return failure.status;
  error->status = failure.status;
  error->code = failure.code;
  error->position = failure.position;
  const std::size_t size = std::min(failure.message.size(), sizeof error->message - 1);
  std::copy_n(failure.message.data(), size, error->message);
  error->message[size] = '\0';
  return failure.status;
}

[[gnu::cold]] inline ravo_status FailArgument(ravo_error* error, std::string_view message) noexcept {
  return Fail(error, {RAVO_ARGUMENT, 0, 0, message});
}

/// The refusal of a check.
[[gnu::cold]] inline ravo_status FailWrong(ravo_error* error, czech::Code code,
                                           std::size_t position) noexcept {
  return Fail(error, {RAVO_WRONG, static_cast<std::int32_t>(code), position,
                      czech::Sentence(code, czech::Language::English)});
}

/// The refusal of a rule of ravo/czech: what is out of range is RAVO_RANGE, everything else has a reason.
[[gnu::cold]] inline ravo_status FailRefused(ravo_error* error, czech::Code code,
                                             std::size_t position) noexcept {
  if (code != czech::Code::DayRange && code != czech::Code::MoneyRange)
    return FailWrong(error, code, position);
  return Fail(error, {RAVO_RANGE, 0, position, czech::Sentence(code, czech::Language::English)});
}

[[gnu::cold]] inline ravo_status FailUnknown(ravo_error* error, std::string_view message) noexcept {
  return Fail(error, {RAVO_UNKNOWN, 0, 0, message});
}

[[gnu::cold]] inline ravo_status FailRange(ravo_error* error, std::string_view message) noexcept {
  return Fail(error, {RAVO_RANGE, 0, 0, message});
}

/// The end of work by a callback of the caller.
[[gnu::cold]] inline ravo_status FailStopped(ravo_error* error, std::int32_t answer,
                                             std::size_t position) noexcept {
  return Fail(error, {RAVO_STOPPED, answer, position, "the caller stopped the work"});
}

/// The refusal of what is not XML, at a place that has a line and a column.
template <class Place>
[[gnu::cold]] ravo_status FailPlaced(ravo_error* error, const Place& place, std::size_t position,
                                     std::string_view why) {
  std::string message =
      "line " + std::to_string(place.line) + ", column " + std::to_string(place.column) + ": ";
  return Fail(error, {RAVO_WRONG, 0, position, message.append(why)});
}

[[gnu::cold]] inline ravo_status FailNullResult(ravo_error* error) noexcept {
  return FailArgument(error, "the result is null");
}

/// Where a text stops being well-formed UTF-8; its length if it is well-formed.
[[nodiscard]] std::size_t WellFormedLength(std::string_view text) noexcept;

/// A text of the caller, or the status with which the function must return.
struct TextIn {
  std::string_view text;
  ravo_status status = RAVO_OK;
};

/// Reads a text that may be ill-formed.
[[nodiscard]] inline TextIn ReadAnyText(const char* text, std::size_t length, ravo_error* error) noexcept {
  if (text == nullptr) {
    if (length == 0) return {};
    return {{}, FailArgument(error, "the text is null, but its length is not 0")};
  }
  return {std::string_view(text, length == RAVO_NUL_TERMINATED ? std::strlen(text) : length)};
}

[[nodiscard]] inline ravo_status CheckUtf8(std::string_view text, ravo_error* error) noexcept {
  const std::size_t good = WellFormedLength(text);
  if (good == text.size()) return RAVO_OK;
  return Fail(error, {RAVO_UTF8, 0, good, "the text is not UTF-8"});
}

[[nodiscard]] inline TextIn ReadText(const char* text, std::size_t length, ravo_error* error) noexcept {
  TextIn read = ReadAnyText(text, length, error);
  if (read.status == RAVO_OK) read.status = CheckUtf8(read.text, error);
  return read;
}

/// Bytes of the caller, or the status with which the function must return.
struct BytesIn {
  std::string_view bytes;
  ravo_status status = RAVO_OK;
};

[[nodiscard]] inline BytesIn ReadBytes(const void* bytes, std::size_t length, ravo_error* error) noexcept {
  if (bytes != nullptr && length != RAVO_NUL_TERMINATED)
    return {std::string_view(static_cast<const char*>(bytes), length)};
  if (length == 0) return {};
  return {{},
          FailArgument(error, bytes == nullptr ? "the bytes are null, but their length is not 0"
                                               : "bytes have no NUL that ends them")};
}

/// Whether a struct of the caller is there and has at least the size that this library knows.
template <class Struct>
[[nodiscard]] bool IsKnown(const Struct* result) noexcept {
  return result != nullptr && result->size >= sizeof(Struct);
}

[[gnu::cold]] inline ravo_status FailStruct(ravo_error* error) noexcept {
  return FailArgument(error, "the result is null, or its size is not set");
}

/// Fills a struct of the caller and keeps its size.
template <class Struct>
void Fill(Struct& result, Struct value) noexcept {
  value.size = result.size;
  result = value;
}

/// UTF-16 of a text that is well-formed UTF-8. Allocates for long texts alone.
class Units {
 public:
  explicit Units(std::string_view text);
  Units(const Units&) = delete;
  Units& operator=(const Units&) = delete;

  [[nodiscard]] std::u16string_view View() const noexcept { return {units_, count_}; }
  operator std::u16string_view() const noexcept { return View(); }

 private:
  // No text has more units than bytes.
  std::array<char16_t, 256> few_;
  std::u16string many_;
  char16_t* units_ = few_.data();
  std::size_t count_ = 0;
};

/// The buffer of a caller for a text.
struct TextOut {
  char* buffer = nullptr;
  std::size_t size = 0;
  std::size_t* length = nullptr;
};

/// Copies at least the first bytes of a value of a check, and zeros after it, into room for all of it. Word
/// by word, as checks write it: a longer load would wait for the stores before it.
template <std::size_t capacity>
void CopyWords(const czech::FixedText<capacity>& text, std::size_t least, char* to) noexcept {
  for (std::size_t at = 0; at < least; at += 8) std::memcpy(to + at, &text.characters[at], 8);
}

/// Writes a result as ravo.h says under "Results".
[[nodiscard]] ravo_status WriteText(const TextOut& out, std::string_view text, ravo_error* error) noexcept;

/// The same for a value of a check, with zeros after it.
template <std::size_t capacity>
[[nodiscard]] ravo_status WriteFixed(const TextOut& out, const czech::FixedText<capacity>& text,
                                     ravo_error* error) noexcept {
  static_assert(czech::FixedText<capacity>::kRoom > capacity);
  if (out.buffer == nullptr || out.size < text.kRoom) return WriteText(out, text.View(), error);
  CopyWords(text, text.size + std::size_t{1}, out.buffer);
  if (out.length != nullptr) *out.length = text.size;
  return RAVO_OK;
}

/// Writes bytes and zeros after them, without NUL: all or none.
[[nodiscard]] ravo_status WriteBytes(const TextOut& out, std::string_view bytes, ravo_error* error,
                                     std::size_t zeros = 0) noexcept;

/// Whether a buffer is null although its size is not 0.
[[nodiscard]] inline bool IsBroken(const TextOut& out) noexcept {
  return out.buffer == nullptr && out.size != 0;
}

/// Writes two results, or none if a buffer is broken.
[[nodiscard]] inline ravo_status WriteTexts(const TextOut& first, std::string_view first_text,
                                            const TextOut& second, std::string_view second_text,
                                            ravo_error* error) noexcept {
  if (IsBroken(second)) return WriteText(second, second_text, error);
  const ravo_status status = WriteText(first, first_text, error);
  if (status == RAVO_ARGUMENT) return status;
  const ravo_status other = WriteText(second, second_text, error);
  return status != RAVO_OK ? status : other;
}

inline constexpr std::string_view kOutOfRange = "a number or the result is out of range";
inline constexpr std::string_view kNoMoment = "the moment is not in the years 1 to 9999";

/// Calls `work`, which returns a status, and turns every exception into one. `out_of_range` is the message
/// of an `Error`: a function of several numbers names the one.
template <class Work>
[[nodiscard]] ravo_status Guarded(ravo_error* error, Work work,
                                  std::string_view out_of_range = kOutOfRange) noexcept {
  try {
    return work();
  } catch (const std::bad_alloc&) {
    return Fail(error, {RAVO_MEMORY, 0, 0, "there is no memory left"});
  } catch (const Error&) {
    return FailRange(error, out_of_range);
  } catch (...) {
    return Fail(error, {RAVO_INTERNAL, 0, 0, "a fault of the library"});
  }
}

/// The work of most functions with one text and one result: reads the text, writes what `compute` returns.
/// `compute` takes a text in UTF-16.
template <class Result, class Compute>
[[nodiscard]] ravo_status FromUnits(const char* text, std::size_t text_length, Result* result,
                                    ravo_error* error, Compute compute) noexcept {
  if (result == nullptr) return FailNullResult(error);
  const auto [input, status] = ReadText(text, text_length, error);
  if (status != RAVO_OK) return status;
  return Guarded(error, [&, &input = input] {
    *result = compute(Units(input).View());
    return RAVO_OK;
  });
}

/// The same for a result that is computed from numbers.
template <class Result, class Compute>
[[nodiscard]] ravo_status Computed(Result* result, ravo_error* error, Compute compute,
                                   std::string_view out_of_range = kOutOfRange) noexcept {
  if (result == nullptr) return FailNullResult(error);
  return Guarded(
      error,
      [&] {
        *result = compute();
        return RAVO_OK;
      },
      out_of_range);
}

}  // namespace ravo::c
