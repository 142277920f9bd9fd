#include "support/czech_settings.h"
#include "support/effort.h"
#include "support/fake_machine.h"
#include <ravo/common/byte_size.h>
#include <ravo/runtime/text.h>

#include <cfloat>
#include <cmath>
#include <random>

#include <gtest/gtest.h>

namespace ravo::RavoInterfaceCommon {
namespace {

struct Row {
  std::int64_t size;
  bool with_bytes;
  std::u16string_view text;
};

TEST(BytesToStr, CzechLocale) {
  test::FakeMachine machine;
  machine.locale = test::CzechSettings();
  const platform::ScopedMachine in_force(machine);
  constexpr Row rows[] = {
      {0, false, u"0 B"},
      {0, true, u"0 B"},
      {-1, true, u"-1 B"},
      {INT64_MIN, true, u"-9223372036854775808 B"},
      {1, false, u"1 B"},
      {1023, true, u"1023 B"},
      {1024, false, u"1024 B"},
      {1024, true, u"1024 B"},
      {1025, false, u"1 kB"},
      {1075, false, u"1 kB"},
      {1076, false, u"1,1 kB"},
      {1536, false, u"1,5 kB"},
      {1536, true, u"1,5 kB (1536 B)"},
      {2048, true, u"2 kB (2048 B)"},
      {1048575, false, u"1024 kB"},
      {1048576, true, u"1024 kB (1048576 B)"},
      {1048577, false, u"1,0 MB"},
      {1048577, true, u"1,0 MB (1048577 B)"},
      {1073741824, false, u"1\u00A0024,0 MB"},
      {5000000000, true, u"4\u00A0768,4 MB (5000000000 B)"},
      {INT64_MAX, false, u"8\u00A0796\u00A0093\u00A0022\u00A0208,0 MB"},
  };
  for (const Row& row : rows) EXPECT_EQ(BytesToStr(row.size, row.with_bytes), row.text) << row.size;
}

TEST(BytesToStr, SeparatorsAreTheLocales) {
  test::FakeMachine machine;
  const platform::ScopedMachine in_force(machine);
  EXPECT_EQ(BytesToStr(5000000000, true), u"4,768.4 MB (5000000000 B)");
  EXPECT_EQ(BytesToStr(1536, false), u"1.5 kB");
  machine.locale.thousands_separator = u"";
  EXPECT_EQ(BytesToStr(5000000000, false), u"4768.4 MB");
}

TEST(BytesToStr, TiesGoToTheEvenTenth) {
  test::FakeMachine machine;
  const platform::ScopedMachine in_force(machine);
  constexpr Row rows[] = {
      {1024 + 256, false, u"1.2 kB"},      {1024 + 768, false, u"1.8 kB"},
      {1048576 * 5 / 4, false, u"1.2 MB"}, {1048576 * 5 / 4 + 1, false, u"1.3 MB"},
      {1048576 * 7 / 4, false, u"1.8 MB"}, {1048576 * 7 / 4 - 1, false, u"1.7 MB"},
  };
  for (const Row& row : rows) EXPECT_EQ(BytesToStr(row.size, row.with_bytes), row.text) << row.size;
}

#if LDBL_MANT_DIG == 64

// The result of the processor's own 80-bit arithmetic, following the definition.
std::u16string Witness(std::int64_t size) {
  const bool large = size > 1048576;
  const auto tenths = std::llrint(static_cast<long double>(size) / (large ? 1048576.0L : 1024.0L) * 10.0L);
  const std::u16string whole = ToText(std::int64_t{tenths / 10});
  const std::u16string tenth = u"." + ToText(std::int64_t{tenths % 10});
  return large ? whole + tenth + u" MB" : whole + (tenths % 10 == 0 ? u"" : tenth) + u" kB";
}

class BytesToStrBesideTheProcessor : public testing::Test {
 protected:
  BytesToStrBesideTheProcessor() { machine_.locale.thousands_separator = u""; }
  static void Expect(std::int64_t size) { ASSERT_EQ(BytesToStr(size, false), Witness(size)) << size; }

 private:
  test::FakeMachine machine_;
  platform::ScopedMachine in_force_{machine_};
};

TEST_F(BytesToStrBesideTheProcessor, EverySizeInKilobytes) {
  for (std::int64_t size = 1025; size <= 1048576; size += test::StepUnderSanitizers(7)) Expect(size);
}

TEST_F(BytesToStrBesideTheProcessor, SizesAroundTies) {
  std::mt19937_64 random(1);
  for (int shift = 20; shift < 63; ++shift) {
    const std::int64_t step = std::int64_t{1} << 18;
    for (int i = 0; i < 200; ++i) {
      const auto place =
          static_cast<std::int64_t>((std::uint64_t{1} << shift) + random() % (std::uint64_t{1} << shift));
      for (std::int64_t near = -9; near <= 9; ++near) {
        Expect(std::max<std::int64_t>(place / step * step + near, 1048577));
      }
    }
  }
}

TEST_F(BytesToStrBesideTheProcessor, Edges) {
  for (int shift = 11; shift < 63; ++shift) {
    for (std::int64_t near = -2; near <= 2; ++near) Expect((std::int64_t{1} << shift) + near);
  }
  for (std::int64_t below = 0; below < 1000; ++below) Expect(INT64_MAX - below);
}

#endif

}  // namespace
}  // namespace ravo::RavoInterfaceCommon
