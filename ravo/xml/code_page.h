#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ravo::xml {

/// The system's 8-bit code page as a table, for texts that are kept as bytes until somebody asks for them.
/// Tables live as long as the process, one for each code page that was in force.
class CodePage {
 public:
  /// The one in force.
  [[nodiscard]] static const CodePage& Current();

  /// Whether each of `bytes` comes back when it is widened and narrowed again.
  [[nodiscard]] bool IsFaithful(std::string_view bytes) const;

  [[nodiscard]] std::u16string Widened(std::string_view bytes) const;
  void AppendWidened(std::u16string& to, std::string_view bytes) const;

  /// Narrows a text into `bytes` where widening gives the very text back; false otherwise.
  [[nodiscard]] bool Narrow(std::u16string_view text, std::string& bytes) const;

 private:
  struct Mapping {
    char16_t unit;
    char byte;
  };

  CodePage();
  [[nodiscard]] bool IsSame(const CodePage& other) const;
  [[nodiscard]] const Mapping* Find(char16_t unit) const;

  // The one that was in force before.
  const CodePage* next_ = nullptr;
  std::uint32_t number_;
  // False where a byte alone is not a character; the machine is asked then.
  bool by_table_ = true;
  bool all_faithful_ = true;
  std::array<char16_t, 256> units_{};
  std::array<bool, 256> faithful_{};
  std::vector<Mapping> by_unit_;
};

}  // namespace ravo::xml
