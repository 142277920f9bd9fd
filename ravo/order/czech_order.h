// The room ravo/order: the order of texts in lists that people read.
//
// Start with `CompareCzech`, the Czech alphabetical order of two texts. `CzechKeys` makes sort keys of the
// same order, for many texts. number_keys.h compares numbers by value, within texts and as amounts.
//
// The room has no locale: the order is the same on every machine. The suite's own natural order is not here
// but in ravo/utils/strings.
//
// A key is a string of bytes; keys compare byte by byte as the texts do. It has three levels, each after the
// other ones: letters (c before č, h before ch), then accents, then capitals. Each level is the weights of
// the characters in generated/czech_order_table.h; common weights at the end of a level are left out. Blanks
// and signs precede letters, and digits follow them, as in ČSN 97 6030.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace ravo::order {

struct CzechLetter;

struct CzechOrder {
  bool ignore_case = false;
  /// Runs of digits compare as numbers.
  bool natural = false;
  /// Digits precede letters, as in most programs.
  bool digits_first = false;
};

/// Returns -1, 0 or 1: whether the first of two texts comes before the second one, equals it, or comes after
/// it. It is how their keys compare, without making them. The texts must be UTF-8.
[[nodiscard]] int CompareCzech(std::string_view a, std::string_view b, const CzechOrder& order) noexcept;

/// Makes sort keys. Keeps its buffers: one for each thread.
class CzechKeys {
 public:
  explicit CzechKeys(const CzechOrder& order);

  /// Appends the key of a text, which must be UTF-8. Its bytes are at least 1, those of numbers apart.
  void Append(std::string_view utf8, std::string& key);

 private:
  void AppendLetter(const CzechLetter& letter, std::string& key);
  void AppendElement(std::uint32_t element, std::string& key);
  void AppendUnlisted(char32_t code, std::string& key);
  void AppendLevels(std::string& key);

  CzechOrder order_;
  // First bytes of primary weights as they are in keys.
  std::array<char, 256> leads_{};
  std::string secondary_;
  std::string tertiary_;
};

}  // namespace ravo::order
