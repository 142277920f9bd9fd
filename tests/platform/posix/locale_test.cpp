#include "support/scoped_environment.h"
#include <ravo/platform/posix/locale_pattern.h>
#include <ravo/platform/posix/posix_machine.h>
#include <ravo/runtime/text.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <locale.h>

namespace ravo::platform::posix {
namespace {

using test::ScopedEnvironment;
using ::testing::AnyOf;

bool HasLocale(const char* name) {
  const locale_t locale = newlocale(LC_ALL_MASK, name, nullptr);
  if (locale) freelocale(locale);
  return locale != nullptr;
}

TEST(PatternFromLocale, ConvertsEachConversion) {
  struct Row {
    std::u16string_view pattern;
    std::u16string_view result;
  };
  constexpr Row rows[] = {
      {u"%-d.%-m.%Y", u"d.m.yyyy"},
      {u"%d.%m.%Y", u"dd.mm.yyyy"},
      {u"%e. %B %Y", u"d. mmmm yyyy"},
      {u"%a %d %b %y", u"ddd dd mmm yy"},
      {u"%A, %h", u"dddd, mmm"},
      {u"%H:%M:%S", u"hh:nn:ss"},
      {u"%k.%M.%S", u"h.nn.ss"},
      {u"%I:%M:%S %p", u"hh:nn:ss ampm"},
      {u"%l:%M %P", u"h:nn ampm"},
      {u"%r", u"hh:nn:ss ampm"},
      {u"%T", u"hh:nn:ss"},
      {u"%R", u"hh:nn"},
      {u"%D", u"mm/dd/yy"},
      {u"%F", u"yyyy-mm-dd"},
      {u"%Od %OB %Ey", u"dd mmmm yy"},
      {u"%_d %-H %-S", u"d h s"},
      {u"%02d", u"dd"},
      {u"%T %Z", u"hh:nn:ss"},
      {u"%H%%%n%M%t", u"hh% nn"},
      {u"%Y年%m月%d日", u"yyyy年mm月dd日"},
      {u"%d de %B", u"dd \"de\" mmmm"},
      {u"%d d'%B", u"dd \"d'\"mmmm"},
      {u"%H \"h\" %M", u"hh '\"'\"h\"'\"' nn"},
      {u"%", u""},
      {u"%d%", u"dd"},
      {u"%d%-", u"dd"},
      {u"%Q", u""},
      {u"", u""},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(ToUtf8(PatternFromLocale(row.pattern)), ToUtf8(row.result)) << ToUtf8(row.pattern);
  }
}

void ExpectDefaults(const FormatSettings& settings) {
  const FormatSettings defaults;
  EXPECT_EQ(settings.decimal_separator, defaults.decimal_separator);
  EXPECT_EQ(settings.thousands_separator, defaults.thousands_separator);
  EXPECT_EQ(settings.short_date, defaults.short_date);
  EXPECT_EQ(settings.long_time, defaults.long_time);
  EXPECT_EQ(settings.am_text, defaults.am_text);
  EXPECT_EQ(settings.pm_text, defaults.pm_text);
  EXPECT_EQ(settings.short_day_names, defaults.short_day_names);
  EXPECT_EQ(settings.long_day_names, defaults.long_day_names);
  EXPECT_EQ(settings.short_month_names, defaults.short_month_names);
  EXPECT_EQ(settings.long_month_names, defaults.long_month_names);
}

TEST(PosixMachineLocale, OfNoCountryAndOfNoneAtAllAreTheDefaults) {
  for (const char* name : {"C", "POSIX", "C.UTF-8", "xx_XX.nowhere"}) {
    const ScopedEnvironment all("LC_ALL", name);
    ExpectDefaults(PosixLocale().Settings());
  }
}

TEST(PosixMachineLocale, Czech) {
  if (!HasLocale("cs_CZ.UTF-8")) GTEST_SKIP() << "the locale cs_CZ.UTF-8 is not installed";
  const ScopedEnvironment all("LC_ALL", "cs_CZ.UTF-8");
  const FormatSettings settings = PosixLocale().Settings();
  EXPECT_EQ(settings.decimal_separator, u',');
  EXPECT_THAT(settings.thousands_separator, AnyOf(u"\u202F", u"\u00A0"));
  EXPECT_THAT(settings.long_day_names[0], AnyOf(u"neděle", u"Neděle"));
  EXPECT_THAT(settings.long_day_names[1], AnyOf(u"pondělí", u"Pondělí"));
  EXPECT_THAT(settings.short_day_names[6], AnyOf(u"so", u"So"));
  EXPECT_EQ(settings.long_month_names[0], u"leden");
  EXPECT_EQ(settings.long_month_names[11], u"prosinec");
  EXPECT_EQ(settings.short_month_names[1], u"úno");
  EXPECT_THAT(settings.short_date, AnyOf(u"d.m.yyyy", u"dd.mm.yyyy"));
  EXPECT_EQ(settings.long_time, u"hh:nn:ss");
}

TEST(PosixMachineLocale, EachCategoryIsItsOwn) {
  if (!HasLocale("cs_CZ.UTF-8")) GTEST_SKIP() << "the locale cs_CZ.UTF-8 is not installed";
  const ScopedEnvironment no_all("LC_ALL", nullptr);
  const ScopedEnvironment language("LANG", "C");
  const ScopedEnvironment numbers("LC_NUMERIC", nullptr);
  const ScopedEnvironment time("LC_TIME", "cs_CZ.UTF-8");
  const FormatSettings settings = PosixLocale().Settings();
  EXPECT_EQ(settings.decimal_separator, u'.');
  EXPECT_EQ(settings.long_month_names[9], u"říjen");
}

TEST(PosixMachineLocale, NothingIsKeptAndTheProgramsLocaleStays) {
  if (!HasLocale("cs_CZ.UTF-8")) GTEST_SKIP() << "the locale cs_CZ.UTF-8 is not installed";
  const std::string before = setlocale(LC_ALL, nullptr);
  {
    const ScopedEnvironment all("LC_ALL", "cs_CZ.UTF-8");
    EXPECT_EQ(PosixLocale().Settings().decimal_separator, u',');
  }
  const ScopedEnvironment all("LC_ALL", "C");
  EXPECT_EQ(PosixLocale().Settings().decimal_separator, u'.');
  EXPECT_EQ(setlocale(LC_ALL, nullptr), before);
}

}  // namespace
}  // namespace ravo::platform::posix
