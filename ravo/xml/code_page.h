#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ravo::xml {

/// The system's 8-bit code page as a table, to widen texts that are kept as bytes.
///
/// Tables live as long as the process, one for each code page that was in force.
class CodePage {
 public:
  /// Returns the code page in force.
  [[nodiscard]] static const CodePage& Current();

  /// Returns whether `bytes` are the same after widening and narrowing.
  [[nodiscard]] bool IsRoundTrip(std::string_view bytes) const;

  [[nodiscard]] std::u16string Widened(std::string_view bytes) const;
  void AppendWidened(std::u16string& to, std::string_view bytes) const;

  /// Sets `bytes` to `text` narrowed. Returns false if widening does not give the same text back.
  [[nodiscard]] bool Narrow(std::u16string_view text, std::string& bytes) const;

 private:
  struct Mapping {
    char16_t unit;
    char byte;
  };

  CodePage();
  [[nodiscard]] bool IsSame(const CodePage& other) const;
  [[nodiscard]] const Mapping* Find(char16_t unit) const;

  // The table made before this one.
  const CodePage* next_ = nullptr;
  std::uint32_t number_;
  // False if some characters have several bytes; the machine converts then.
  bool by_table_ = true;
  bool all_round_trip_ = true;
  std::array<char16_t, 256> units_{};
  std::array<bool, 256> round_trip_{};
  std::vector<Mapping> by_unit_;
};

}  // namespace ravo::xml
