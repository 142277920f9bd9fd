#pragma once

#include <ravo/czech/reason.h>

#include <cstdint>
#include <initializer_list>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace ravo::document {

/// What is wrong with a document, a path or a value, and what the suite does to a document: one for each row
/// of messages.inc.
enum class Message : std::uint8_t {
#define RAVO_DOCUMENT_MESSAGE(name, code, czech, english) name,
#include "messages.inc"
#undef RAVO_DOCUMENT_MESSAGE
};

/// Returns the stable code of a message, such as "close-tag"; a text that ends with NUL.
[[nodiscard]] std::string_view CodeOf(Message message);

/// Returns `text` with the values in the places "{0}" to "{9}". Places without a value stay.
[[nodiscard]] std::string FilledIn(std::string_view text, std::span<const std::string_view> values);

/// A message and the values in its sentence.
struct Fault {
  Fault(Message what, std::initializer_list<std::string_view> words)
      : message(what), values(words.begin(), words.end()) {}

  /// Returns one sentence in UTF-8, without a full stop.
  [[nodiscard]] std::string Sentence(czech::Language language) const;

  Message message;
  std::vector<std::string> values;
  std::vector<Fault> reasons;  ///< at most one, whose sentence is the value after `values`
};

/// A fault on its way to the caller; `what` is its English sentence.
class Refusal : public std::runtime_error {
 public:
  explicit Refusal(Fault fault)
      : std::runtime_error(fault.Sentence(czech::Language::English)), fault_(std::move(fault)) {}
  [[nodiscard]] const Fault& What() const { return fault_; }

 private:
  Fault fault_;
};

}  // namespace ravo::document
