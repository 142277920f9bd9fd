#include <ravo/runtime/error.h>
#include <ravo/runtime/message_text.h>
#include <ravo/runtime/text.h>

#include <limits>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace ravo {
namespace {

using Arguments = std::vector<MessageArgument>;

std::u16string Formatted(std::u16string_view format, const Arguments& arguments) {
  const FormatSettings settings{.decimal_separator = u',', .thousands_separator = u"."};
  return FormatMessageText(format, arguments, settings);
}

std::int64_t Int(std::int64_t value) { return value; }
std::u16string Str(const char16_t* text) { return text; }

TEST(FormatMessageText, Rows) {
  struct Row {
    std::u16string_view format;
    Arguments arguments;
    std::u16string_view text;
  };
  const std::vector<Row> rows{
      {u"", {}, u""},
      {u"100 %%", {}, u"100 %"},
      {u"%s: %d", {Str(u"čp."), Int(-7)}, u"čp.: -7"},
      {u"%D%S", {Int(1), Str(u"x")}, u"1x"},
      // Integers.
      {u"%5d|%-5d|%.4d|%6.4d", {Int(-7), Int(-7), Int(-7), Int(-7)}, u"   -7|-7   |-0007| -0007"},
      {u"%d", {Int(std::numeric_limits<std::int64_t>::min())}, u"-9223372036854775808"},
      {u"%u %u", {Int(7), Int(-1)}, u"7 18446744073709551615"},
      {u"%x %.4X %x", {Int(254), Int(254), Int(-1)}, u"FE 00FE FFFFFFFFFFFFFFFF"},
      // Texts.
      {u"%.2s|%5s|%-5s|%.0s", {Str(u"abc"), Str(u"abc"), Str(u"abc"), Str(u"abc")}, u"ab|  abc|abc  |"},
      // Floats and amounts.
      {u"%f %.0f %.4f", {Extended{1234.5}, Extended{2.5}, Currency{-1}}, u"1234,50 3 -0,0001"},
      {u"%n %.1n", {Currency{12345678900}, Extended{999999.96875}}, u"1.234.567,89 1.000.000,0"},
      {u"%g %.3g %g", {Extended{0.1}, Extended{123456}, Currency{15000}}, u"0,1 1,23E5 1,5"},
      {u"%e %.3e", {Extended{1.5}, Extended{-0.00125}}, u"1,50000000000000E+000 -1,25E-003"},
      {u"%8.1f|%-8.1f|", {Extended{1.25}, Extended{1.25}}, u"     1,3|1,3     |"},
      {u"%f %n",
       {std::numeric_limits<Extended>::infinity(), -std::numeric_limits<Extended>::infinity()},
       u"INF -INF"},
      // Indices and "*".
      {u"%1:s %0:s %s", {Str(u"a"), Str(u"b")}, u"b a b"},
      {u"%0:d %0:x", {Int(10)}, u"10 A"},
      {u"%1:-4d|", {Str(u""), Int(5)}, u"5   |"},
      {u"%:s", {Str(u"a")}, u"a"},
      {u"%*d|%-*d|%.*f", {Int(4), Int(1), Int(4), Int(1), Int(3), Extended{0.5}}, u"   1|1   |0,500"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Formatted(row.format, row.arguments), row.text) << ToUtf8(row.format);
  }
}

TEST(FormatMessageText, WhatDoesNotFitRaises) {
  struct Row {
    std::u16string_view format;
    Arguments arguments;
  };
  const std::vector<Row> rows{
      {u"%", {Int(1)}},
      {u"%5", {Int(1)}},
      {u"%-", {Int(1)}},
      {u"%.", {Int(1)}},
      {u"%q", {Int(1)}},
      {u"%m", {Currency{1}}},
      {u"%p", {Int(1)}},
      {u"%s", {}},
      {u"%s%s", {Str(u"")}},
      {u"%1:s", {Str(u"")}},
      {u"%d", {Str(u"1")}},
      {u"%s", {Int(1)}},
      {u"%f", {Int(1)}},
      {u"%d", {Extended{1}}},
      {u"%x", {Currency{1}}},
      {u"%5:-:d", {Int(1)}},
      {u"%*d", {Str(u"1")}},
      {u"%*d", {Int(-1), Int(1)}},
      {u"%65536d", {Int(1)}},
      {u"%.99999999999d", {Int(1)}},
      {u"%*d", {Int(65536), Int(1)}},
      {u"%99999999999999999999:d", {Int(1)}},
  };
  for (const Row& row : rows) {
    EXPECT_THROW((void)Formatted(row.format, row.arguments), ConvertError) << ToUtf8(row.format);
  }
  EXPECT_EQ(Formatted(u"%65535d", {Int(1)}).size(), 65535u);
}

}  // namespace
}  // namespace ravo
