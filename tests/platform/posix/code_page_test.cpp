#include <ravo/platform/posix/posix_machine.h>

#include <cerrno>
#include <optional>

#include <gtest/gtest.h>
#include <iconv.h>

namespace ravo::platform::posix {
namespace {

// The C library's decoding of a byte; no value if it has none.
std::optional<char16_t> Witness(iconv_t converter, char byte) {
  char16_t unit = 0;
  char* from = &byte;
  char* to = reinterpret_cast<char*>(&unit);
  std::size_t from_left = 1;
  std::size_t to_left = sizeof unit;
  const bool is_defined = iconv(converter, &from, &from_left, &to, &to_left) != static_cast<std::size_t>(-1);
  return is_defined ? std::optional(unit) : std::nullopt;
}

TEST(CodePage, EveryByteIsWhatTheCLibrarySays) {
  const PosixCodePages machine;
  const iconv_t converter = iconv_open("UTF-16LE", "CP1250");
  ASSERT_NE(converter, reinterpret_cast<iconv_t>(-1));
  int undefined = 0;
  for (unsigned value = 0; value < 256; ++value) {
    const char byte = static_cast<char>(value);
    const auto expected = Witness(converter, byte);
    if (!expected) ++undefined;
    const std::u16string text = machine.FromCodePage({&byte, 1});
    EXPECT_EQ(text, std::u16string(1, expected.value_or(static_cast<char16_t>(value)))) << value;
    EXPECT_EQ(machine.ToCodePage(text), std::string(1, byte)) << value;
  }
  EXPECT_EQ(undefined, 5);
  iconv_close(converter);
}

TEST(CodePage, EveryUnitWithoutAByteBecomesAQuestionMark) {
  const PosixCodePages machine;
  EXPECT_EQ(machine.CodePage(), 1250u);
  int mapped = 0;
  for (unsigned value = 0; value < 0x10000; ++value) {
    const std::u16string text(1, static_cast<char16_t>(value));
    const std::string bytes = machine.ToCodePage(text);
    ASSERT_EQ(bytes.size(), 1u);
    if (machine.FromCodePage(bytes) == text) {
      ++mapped;
    } else {
      EXPECT_EQ(bytes, "?") << value;
    }
  }
  EXPECT_EQ(mapped, 256);
}

TEST(CodePage, Texts) {
  const PosixCodePages machine;
  EXPECT_EQ(machine.ToCodePage(u"Žluťoučký kůň"), "\x8Elu\x9Dou\xE8k\xFD k\xF9\xF2");
  EXPECT_EQ(machine.FromCodePage("\x8Elu\x9Dou\xE8k\xFD k\xF9\xF2"), u"Žluťoučký kůň");
  EXPECT_EQ(machine.ToCodePage(u"a\U0001F600b"), "a??b");
  EXPECT_EQ(machine.FromCodePage(std::string_view("a\0b", 3)), std::u16string_view(u"a\0b", 3));
  EXPECT_EQ(machine.ToCodePage(u""), "");
}

}  // namespace
}  // namespace ravo::platform::posix
