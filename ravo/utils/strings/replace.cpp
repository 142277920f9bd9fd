#include <ravo/runtime/error.h>
#include <ravo/utils/strings/find.h>
#include <ravo/utils/strings/replace.h>
#include <ravo/utils/strings/white_space.h>

#include <algorithm>

namespace ravo::DIUtils {
namespace {

using strings::Exact;
using strings::Find;
using strings::Folded;
using strings::kNone;
using strings::String;
using strings::View;
using ViewA = std::string_view;
using ViewW = std::u16string_view;

// A loop that reaches this length without shortening the text counts as endless.
constexpr std::size_t kMostCharacters = std::size_t{1} << 26;
constexpr std::size_t kMostPasses = 10000;

template <class Fold, class Char>
String<Char> Replaced(View<Char> text, View<Char> search, View<Char> replacement) {
  String<Char> result;
  std::size_t at = Find<Fold>(search, text, 0);
  // Extra capacity avoids most reallocations.
  if (at != kNone) result.reserve(text.size() + (replacement.size() > search.size() ? text.size() / 8 : 0));
  std::size_t copied = 0;
  for (; at != kNone; at = Find<Fold>(search, text, copied)) {
    result.append(text.data() + copied, at - copied).append(replacement);
    copied = at + search.size();
  }
  return result.append(text.data() + copied, text.size() - copied);
}

template <class Fold, class Char>
String<Char> ReplacedInALoop(View<Char> text, View<Char> search, View<Char> replacement) {
  String<Char> result(text);
  if (Find<Fold>(search, text, 0) == kNone) return result;
  if (Find<Fold>(search, replacement, 0) != kNone) {
    throw RangeError(u"The replacement contains the search text");
  }
  const bool may_be_endless = replacement.size() >= search.size();
  const std::size_t most_passes = std::max(kMostPasses, text.size());
  for (std::size_t pass = 0; Find<Fold>(search, View<Char>(result), 0) != kNone; ++pass) {
    if (may_be_endless && (pass == most_passes || result.size() > std::max(kMostCharacters, text.size()))) {
      throw RangeError(u"The replacement has no end");
    }
    result = Replaced<Fold, Char>(result, search, replacement);
  }
  return result;
}

template <class Char>
String<Char> CharReplaced(View<Char> text, Char search, Char replacement) {
  String<Char> result(text);
  std::replace(result.begin(), result.end(), search, replacement);
  return result;
}

template <class Fold, class Char>
String<Char> WithoutSpans(View<Char> text, View<Char> from, View<Char> to) {
  String<Char> result;
  std::size_t copied = 0;
  for (;;) {
    const std::size_t start = Find<Fold>(from, text, copied);
    const std::size_t end = start == kNone ? kNone : Find<Fold>(to, text, start + from.size());
    if (end == kNone) return result.append(text.data() + copied, text.size() - copied);
    result.append(text.data() + copied, start - copied);
    copied = end + to.size();
  }
}

template <class Char>
String<Char> WithoutSpacing(View<Char> text) {
  String<Char> result(text);
  std::erase_if(result, strings::WhiteSpaceTest());
  return result;
}

}  // namespace

std::string StrReplaceA(ViewA text, ViewA search, ViewA replacement) {
  return Replaced<Exact>(text, search, replacement);
}
std::u16string StrReplaceW(ViewW text, ViewW search, ViewW replacement) {
  return Replaced<Exact>(text, search, replacement);
}
std::u16string StrReplace(ViewW text, ViewW search, ViewW replacement) {
  return StrReplaceW(text, search, replacement);
}
std::string StrReplaceIA(ViewA text, ViewA search, ViewA replacement) {
  return Replaced<Folded>(text, search, replacement);
}
std::u16string StrReplaceIW(ViewW text, ViewW search, ViewW replacement) {
  return Replaced<Folded>(text, search, replacement);
}

std::string StrReplaceLoopA(ViewA text, ViewA search, ViewA replacement) {
  return ReplacedInALoop<Exact>(text, search, replacement);
}
std::u16string StrReplaceLoopW(ViewW text, ViewW search, ViewW replacement) {
  return ReplacedInALoop<Exact>(text, search, replacement);
}
std::string StrReplaceLoopIA(ViewA text, ViewA search, ViewA replacement) {
  return ReplacedInALoop<Folded>(text, search, replacement);
}
std::u16string StrReplaceLoopIW(ViewW text, ViewW search, ViewW replacement) {
  return ReplacedInALoop<Folded>(text, search, replacement);
}

std::string StrReplaceCharA(ViewA text, char search, char replacement) {
  return CharReplaced(text, search, replacement);
}
std::u16string StrReplaceCharW(ViewW text, char16_t search, char16_t replacement) {
  return CharReplaced(text, search, replacement);
}

std::string StrRemoveFromToIA(ViewA text, ViewA from, ViewA to) {
  return WithoutSpans<Folded>(text, from, to);
}
std::u16string StrRemoveFromToIW(ViewW text, ViewW from, ViewW to) {
  return WithoutSpans<Folded>(text, from, to);
}

std::string StrRemoveSpacingA(ViewA text) { return WithoutSpacing(text); }
std::u16string StrRemoveSpacingW(ViewW text) { return WithoutSpacing(text); }

}  // namespace ravo::DIUtils
