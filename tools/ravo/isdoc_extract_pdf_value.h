#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Values of PDF (ISO 32000-1, 7.3), read from bytes that may be anything.
namespace tool {

/// A value. Names and strings are decoded; what a reference refers to is looked up by its number.
struct PdfValue {
  enum class Kind : std::uint8_t { Null, Number, Name, String, Array, Dictionary, Reference };
  Kind kind = Kind::Null;
  std::int64_t number = 0;  ///< whole numbers and the numbers of references; booleans and fractions are null
  std::string text;
  /// Elements, or the values of a dictionary.
  std::vector<PdfValue> items;
  std::vector<std::string> keys;  ///< of a dictionary, one for each item

  [[nodiscard]] bool IsName(std::string_view name) const { return kind == Kind::Name && text == name; }
  /// Returns the value of a key, or null.
  [[nodiscard]] const PdfValue* Find(std::string_view key) const;
};

/// Reads the values of a PDF in order.
class PdfReader {
 public:
  PdfReader(std::string_view bytes, std::size_t at) : bytes_(bytes), at_(at) {}

  /// Returns the next value; nothing at the end, and for a value that is nested too deep or too long.
  [[nodiscard]] std::optional<PdfValue> Next() { return Value(0); }
  /// Returns whether the word is next, and moves past it.
  bool Take(std::string_view word);
  /// Returns a number without a sign, which is next.
  [[nodiscard]] std::optional<std::int64_t> Unsigned();
  void SkipBlanks();

  [[nodiscard]] std::size_t At() const { return at_; }

 private:
  std::optional<PdfValue> Value(int depth);
  std::optional<PdfValue> Array(int depth);
  std::optional<PdfValue> Dictionary(int depth);
  std::optional<PdfValue> Number();
  std::optional<PdfValue> Name();
  std::optional<PdfValue> Literal();
  std::optional<PdfValue> Hexadecimal();
  void AppendEscape(std::string& text);
  [[nodiscard]] bool IsAt(std::string_view text) const { return bytes_.substr(at_).starts_with(text); }
  [[nodiscard]] char Peek() const { return at_ < bytes_.size() ? bytes_[at_] : '\0'; }

  std::string_view bytes_;
  std::size_t at_;
  std::size_t values_ = 0;
};

/// Whether a byte is white space in PDF.
[[nodiscard]] bool IsPdfBlank(char c);

/// Returns a text string in UTF-8: UTF-16 or UTF-8 by its byte-order mark, else as Latin-1, which differs
/// from PDF's own encoding in punctuation alone.
[[nodiscard]] std::string PdfText(std::string_view bytes);

}  // namespace tool
