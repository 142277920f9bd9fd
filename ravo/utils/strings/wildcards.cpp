#include <ravo/utils/strings/find.h>
#include <ravo/utils/strings/wildcards.h>

namespace ravo::DIUtils {
namespace {

using strings::Exact;
using strings::Folded;
using strings::kNone;
using strings::View;

// A mask is split at its wild characters. The first piece must match at the start of the text, the last one
// at its end. Each piece between them may take its first match, because a later match leaves less text to the
// rest.
template <class Fold, class Char>
class Matcher {
 public:
  Matcher(View<Char> text, Char wild, Char one) : text_(text), wild_(wild), one_(one) {}

  bool Matches(View<Char> mask) {
    const std::size_t first_wild = mask.find(wild_);
    if (first_wild == View<Char>::npos) return text_.size() == mask.size() && MatchesAt(0, mask);
    const std::size_t last_wild = mask.rfind(wild_);
    return TakeStart(mask.substr(0, first_wild)) && TakeEnd(mask.substr(last_wild + 1)) &&
           TakeBetween(mask.substr(first_wild, last_wild - first_wild));
  }

 private:
  bool MatchesAt(std::size_t at, View<Char> piece) const {
    for (std::size_t i = 0; i < piece.size(); ++i) {
      if (piece[i] != one_ && !strings::SameChar<Fold>(piece[i], text_[at + i])) return false;
    }
    return true;
  }

  bool TakeStart(View<Char> piece) {
    if (piece.size() > text_.size() || !MatchesAt(0, piece)) return false;
    text_.remove_prefix(piece.size());
    return true;
  }

  bool TakeEnd(View<Char> piece) {
    if (piece.size() > text_.size() || !MatchesAt(text_.size() - piece.size(), piece)) return false;
    text_.remove_suffix(piece.size());
    return true;
  }

  // `mask` is empty or begins with a wild character.
  bool TakeBetween(View<Char> mask) {
    while (!mask.empty()) {
      mask.remove_prefix(1);
      const View<Char> piece = mask.substr(0, mask.find(wild_));
      mask.remove_prefix(piece.size());
      if (piece.empty()) continue;
      const std::size_t at = FindPiece(piece);
      if (at == kNone) return false;
      text_.remove_prefix(at + piece.size());
    }
    return true;
  }

  std::size_t FindPiece(View<Char> piece) const {
    if (piece.find(one_) == View<Char>::npos) return strings::Find<Fold>(piece, text_, 0);
    if (piece.size() > text_.size()) return kNone;
    for (std::size_t at = 0; at <= text_.size() - piece.size(); ++at) {
      if (MatchesAt(at, piece)) return at;
    }
    return kNone;
  }

  View<Char> text_;
  Char wild_;
  Char one_;
};

template <class Fold, class Char>
bool Matches(View<Char> text, View<Char> mask, Char wild, Char one) {
  return Matcher<Fold, Char>(text, wild, one).Matches(mask);
}

}  // namespace

bool StrMatchWildA(std::string_view text, std::string_view mask, char wild, char one) noexcept {
  return Matches<Exact>(text, mask, wild, one);
}
bool StrMatchWildW(std::u16string_view text, std::u16string_view mask, char16_t wild, char16_t one) noexcept {
  return Matches<Exact>(text, mask, wild, one);
}
bool StrMatchWild(std::u16string_view text, std::u16string_view mask, char16_t wild, char16_t one) noexcept {
  return StrMatchWildW(text, mask, wild, one);
}
bool StrMatchWildIA(std::string_view text, std::string_view mask, char wild, char one) noexcept {
  return Matches<Folded>(text, mask, wild, one);
}
bool StrMatchWildIW(std::u16string_view text, std::u16string_view mask, char16_t wild,
                    char16_t one) noexcept {
  return Matches<Folded>(text, mask, wild, one);
}
bool StrMatchWildI(std::u16string_view text, std::u16string_view mask, char16_t wild, char16_t one) noexcept {
  return StrMatchWildIW(text, mask, wild, one);
}

bool StrMatchesA(std::string_view text, std::string_view mask) noexcept {
  return StrMatchWildA(text, mask, '*', '?');
}
bool StrMatchesIA(std::string_view text, std::string_view mask) noexcept {
  return StrMatchWildIA(text, mask, '*', '?');
}

}  // namespace ravo::DIUtils
