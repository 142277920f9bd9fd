#include <ravo/platform/posix/locale_pattern.h>
#include <ravo/platform/posix/posix_machine.h>

#include <algorithm>
#include <cuchar>
#include <cwchar>
#include <string>
#include <utility>

#include <langinfo.h>
#include <locale.h>  // NOLINT(modernize-deprecated-headers): newlocale is not in <clocale>

namespace ravo::platform::posix {
namespace {

// A locale of the C library, by name; the empty name means the environment's.
class NamedLocale {
 public:
  explicit NamedLocale(const std::string& name) : locale_(newlocale(LC_ALL_MASK, name.c_str(), nullptr)) {}
  NamedLocale(const NamedLocale&) = delete;
  NamedLocale& operator=(const NamedLocale&) = delete;
  ~NamedLocale() {
    if (locale_) freelocale(locale_);
  }

  [[nodiscard]] explicit operator bool() const { return locale_ != nullptr; }
  [[nodiscard]] std::string Fact(nl_item item) const { return nl_langinfo_l(item, locale_); }
  [[nodiscard]] std::u16string Text(nl_item item) const;

 private:
  locale_t locale_;
};

// Makes a locale this thread's for the lifetime of this object.
class ThreadLocale {
 public:
  explicit ThreadLocale(locale_t locale) : previous_(uselocale(locale)) {}
  ThreadLocale(const ThreadLocale&) = delete;
  ThreadLocale& operator=(const ThreadLocale&) = delete;
  ~ThreadLocale() { uselocale(previous_); }

 private:
  locale_t previous_;
};

// Decodes text in the charset of the current locale; each byte that is no character becomes U+FFFD.
std::u16string FromThreadCharset(std::string_view bytes) {
  constexpr auto not_complete = static_cast<std::size_t>(-2);
  constexpr auto second_unit = static_cast<std::size_t>(-3);
  std::u16string text;
  std::mbstate_t state{};
  // Untested: locale texts are well-formed UTF-8 without characters past U+FFFF.
  while (!bytes.empty() || !std::mbsinit(&state)) {
    char16_t unit = u'\xFFFD';
    std::size_t count = std::mbrtoc16(&unit, bytes.data(), bytes.size(), &state);
    if (count == second_unit) {
      count = 0;
    } else if (count == 0 || count >= not_complete) {
      state = {};
      count = bytes.empty() ? 0 : 1;
    }
    text.push_back(unit);
    bytes.remove_prefix(count);
  }
  return text;
}

std::u16string NamedLocale::Text(nl_item item) const {
  const ThreadLocale in_force(locale_);
  return FromThreadCharset(Fact(item));
}

// Untested: the tests set no locale C.UTF-8.
bool IsOfNoCountry(std::string_view name) { return name == "C" || name == "POSIX" || name.starts_with("C."); }

void SetNumberFacts(FormatSettings& settings, const NamedLocale& locale) {
  const std::u16string point = locale.Text(RADIXCHAR);
  // Untested: every locale has a decimal separator.
  if (!point.empty()) settings.decimal_separator = point.front();
  settings.thousands_separator = locale.Text(THOUSEP);
}

template <std::size_t Count>
void SetNames(std::array<std::u16string, Count>& names, const NamedLocale& locale, nl_item first) {
  for (std::size_t i = 0; i < Count; ++i) names[i] = locale.Text(first + static_cast<nl_item>(i));
}

void SetPattern(std::u16string& pattern, const NamedLocale& locale, nl_item item) {
  std::u16string converted = PatternFromLocale(locale.Text(item));
  // Untested: the installed locales have no pattern that cannot be converted.
  if (!converted.empty()) pattern = std::move(converted);
}

void SetTimeFacts(FormatSettings& settings, const NamedLocale& locale) {
  SetPattern(settings.short_date, locale, D_FMT);
  SetPattern(settings.long_time, locale, T_FMT);
  settings.am_text = locale.Text(AM_STR);
  settings.pm_text = locale.Text(PM_STR);
  SetNames(settings.short_day_names, locale, ABDAY_1);
  SetNames(settings.long_day_names, locale, DAY_1);
  SetNames(settings.short_month_names, locale, ABMON_1);
  // The names of months in the nominative.
  SetNames(settings.long_month_names, locale, ALTMON_1);
}

}  // namespace

FormatSettings PosixLocale::Settings() const {
  FormatSettings settings;
  const NamedLocale environment("");
  if (!environment) return settings;
  // The texts of a category are in the charset of that category's own locale.
  const auto set = [&](nl_item category_name, const auto& set_facts) {
    const std::string name = environment.Fact(category_name);
    const NamedLocale locale(name);
    // Untested: needs a locale that the system names and cannot open.
    if (locale && !IsOfNoCountry(name)) set_facts(settings, locale);
  };
  set(NL_LOCALE_NAME(LC_NUMERIC), SetNumberFacts);
  set(NL_LOCALE_NAME(LC_TIME), SetTimeFacts);
  return settings;
}

}  // namespace ravo::platform::posix
