// The character database beside the International Components for Unicode and GLib: every code unit, and Czech
// text.
#include "ratio.h"
#include <ravo/unicode/characters.h>

#include <glib.h>
#include <unicode/uchar.h>

namespace {

using Units = std::u16string;

Units EveryUnit() {
  Units units;
  for (unsigned unit = 0; unit < 0xD800; ++unit) units.push_back(static_cast<char16_t>(unit));
  for (unsigned unit = 0xE000; unit < 0x10000; ++unit) units.push_back(static_cast<char16_t>(unit));
  return units;
}

Units CzechText() {
  Units text;
  while (text.size() < 60000) {
    text +=
        u"Příliš žluťoučký kůň úpěl ďábelské ódy. Faktura č. 2024/0042, splatnost 14 dní, základ daně 1 "
        u"234,50 Kč. ";
  }
  return text;
}

template <class Function>
void Register(const std::string& job, std::string_view name, const Units& units, Function function) {
  const std::string full_name = job + "/" + std::string(name);
  benchmark::RegisterBenchmark(full_name.c_str(), [units, function](benchmark::State& state) {
    for (auto _ : state) {
      unsigned sum = 0;
      for (const char16_t unit : units) sum += static_cast<unsigned>(function(unit));
      benchmark::DoNotOptimize(sum);
    }
    state.counters["items"] = static_cast<double>(units.size());
  });
}

// The cost of an empty call.
[[gnu::noipa]] unsigned Nothing(char16_t c) { return c; }

// Our functions and the rivals' are both called through function calls, as in any program.
void RegisterJobs(const std::string& text, const Units& units) {
  using namespace ravo::DIUnicode;
  const std::string_view ours = ravo::bench::kOurs;
  Register("upper_" + text, ours, units, [](char16_t c) { return CharToUpperW(c); });
  Register("upper_" + text, "icu", units, [](char16_t c) { return u_toupper(c); });
  Register("upper_" + text, "glib", units, [](char16_t c) { return g_unichar_toupper(c); });
  Register("lower_" + text, ours, units, [](char16_t c) { return CharToLowerW(c); });
  Register("lower_" + text, "icu", units, [](char16_t c) { return u_tolower(c); });
  Register("lower_" + text, "glib", units, [](char16_t c) { return g_unichar_tolower(c); });
  Register("fold_" + text, ours, units, [](char16_t c) { return CharToCaseFoldW(c); });
  Register("fold_" + text, "icu", units, [](char16_t c) { return u_foldCase(c, U_FOLD_CASE_DEFAULT); });
  Register("class_" + text, ours, units, [](char16_t c) { return CharCanonicalCombiningClassW(c); });
  Register("class_" + text, "icu", units, [](char16_t c) { return u_getCombiningClass(c); });
  Register("class_" + text, "glib", units, [](char16_t c) { return g_unichar_combining_class(c); });
  Register("letter_" + text, ours, units, [](char16_t c) { return CharIsLetterW(c); });
  Register("letter_" + text, "empty_call", units, [](char16_t c) { return Nothing(c); });
  Register("letter_" + text, "icu", units, [](char16_t c) { return u_isalpha(c); });
  Register("letter_" + text, "glib", units, [](char16_t c) { return g_unichar_isalpha(c); });
  Register("upper_case_" + text, ours, units, [](char16_t c) { return CharIsLetterUpperCaseW(c); });
  Register("upper_case_" + text, "icu", units,
           [](char16_t c) { return u_charType(c) == U_UPPERCASE_LETTER; });
  Register("upper_case_" + text, "glib", units, [](char16_t c) { return g_unichar_isupper(c); });
  Register("punctuation_" + text, ours, units, [](char16_t c) { return CharIsPunctuationW(c); });
  Register("punctuation_" + text, "icu", units, [](char16_t c) { return u_ispunct(c); });
  Register("punctuation_" + text, "glib", units, [](char16_t c) { return g_unichar_ispunct(c); });
  Register("white_space_" + text, ours, units, [](char16_t c) { return CharIsWhiteSpaceW(c); });
  Register("white_space_" + text, "icu", units, [](char16_t c) { return u_isUWhiteSpace(c); });
  Register("white_space_" + text, "glib", units, [](char16_t c) { return g_unichar_isspace(c); });
}

}  // namespace

int main(int argc, char** argv) {
  RegisterJobs("plane", EveryUnit());
  RegisterJobs("czech", CzechText());
  return ravo::bench::RunWithRatios(argc, argv);
}
