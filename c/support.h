#pragma once

#include "ravo.h"
#include <ravo/czech/reason.h>

#include <algorithm>
#include <cstring>
#include <new>
#include <optional>
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

/// Where a text stops being well-formed UTF-8; its length if it is well-formed.
[[nodiscard]] std::size_t WellFormedLength(std::string_view text) noexcept;

/// A text of the caller, or the status with which the function must return.
struct TextIn {
  std::string_view text;
  ravo_status status = RAVO_OK;
};

[[nodiscard]] inline TextIn ReadText(const char* text, std::size_t length, ravo_error* error) noexcept {
  if (text == nullptr) {
    if (length == 0) return {};
    return {{}, FailArgument(error, "the text is null, but its length is not 0")};
  }
  const std::string_view view(text, length == RAVO_NUL_TERMINATED ? std::strlen(text) : length);
  const std::size_t good = WellFormedLength(view);
  if (good == view.size()) return {view};
  return {{}, Fail(error, {RAVO_UTF8, 0, good, "the text is not UTF-8"})};
}

/// The buffer of a caller for a text.
struct TextOut {
  char* buffer = nullptr;
  std::size_t size = 0;
  std::size_t* length = nullptr;
};

/// Writes a result as ravo.h says under "Results".
[[nodiscard]] ravo_status WriteText(const TextOut& out, std::string_view text, ravo_error* error) noexcept;

/// Calls `work`, which returns a status, and turns every exception into one.
template <class Work>
[[nodiscard]] ravo_status Guarded(ravo_error* error, Work work) noexcept {
  try {
    return work();
  } catch (const std::bad_alloc&) {
    return Fail(error, {RAVO_MEMORY, 0, 0, "there is no memory left"});
  } catch (...) {
    return Fail(error, {RAVO_INTERNAL, 0, 0, "a fault of the library"});
  }
}

}  // namespace ravo::c
