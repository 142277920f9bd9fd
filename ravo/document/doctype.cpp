#include "doctype.h"

#include <algorithm>
#include <optional>

namespace ravo::document {
namespace {

class DoctypeReader {
 public:
  DoctypeReader(ScannedDocument& document, std::size_t begin)
      : document_(document), text_(document.text), begin_(begin) {}

  std::size_t Run() {
    for (std::size_t at = PastName();;) {
      at = FindAny("\"'[>", at);
      if (text_[at] == '>') return at + 1;
      if (text_[at] == '[') {
        at = PastSubset(at + 1);
      } else {
        document_.has_outer_declarations = true;
        at = PastLiteral(at);
      }
    }
  }

 private:
  [[noreturn]] static void Fail(std::size_t at) { throw DocumentError(Message::BadDoctype, at); }

  [[nodiscard]] std::size_t PastSpace(std::size_t at) const {
    return std::min(text_.find_first_not_of(kXmlSpace, at), text_.size());
  }

  [[nodiscard]] std::size_t FindAny(std::string_view characters, std::size_t at) const {
    const std::size_t found = text_.find_first_of(characters, at);
    if (found == std::string_view::npos) Fail(begin_);
    return found;
  }

  [[nodiscard]] std::size_t Past(std::string_view word, std::size_t at) const {
    const std::size_t found = text_.find(word, at);
    if (found == std::string_view::npos) Fail(begin_);
    return found + word.size();
  }

  [[nodiscard]] std::size_t PastLiteral(std::size_t at) const { return Past(text_.substr(at, 1), at + 1); }

  [[nodiscard]] std::size_t PastName() const {
    constexpr std::size_t kWord = 9;  // "<!DOCTYPE"
    const std::size_t name = PastSpace(begin_ + kWord);
    const std::size_t end = EndOfXmlName(text_, name);
    if (name == begin_ + kWord || end == name) Fail(name);
    return end;
  }

  // Past the "]" that ends the declarations inside of the document.
  std::size_t PastSubset(std::size_t at) {
    for (;;) {
      at = FindAny("<%]", at);
      if (text_[at] == ']') return at + 1;
      at = PastItem(at);
    }
  }

  std::size_t PastItem(std::size_t at) {
    const std::string_view rest = text_.substr(at);
    if (rest.starts_with("<!--")) return Past("-->", at + 4);
    if (rest.starts_with("<?")) return Past("?>", at + 2);
    if (rest.starts_with('<')) return PastDeclaration(at);
    document_.has_outer_declarations = true;  // a parameter entity
    return at + 1;
  }

  std::size_t PastDeclaration(std::size_t begin) {
    std::optional<Span> literal;
    for (std::size_t at = begin + 1;;) {
      at = FindAny("\"'>", at);
      if (text_[at] == '>') {
        if (literal) TakeEntity(begin, *literal);
        return at + 1;
      }
      const std::size_t end = PastLiteral(at);
      if (!literal) literal = Span{at + 1, end - 1};
      at = end;
    }
  }

  // `literal` is the first one of the declaration: the value, or the identifier of an external entity.
  void TakeEntity(std::size_t begin, Span literal) {
    constexpr std::string_view kWord = "<!ENTITY";
    const std::size_t name = PastSpace(begin + kWord.size());
    if (!text_.substr(begin).starts_with(kWord) || text_[name] == '%') return;
    const std::size_t name_end = EndOfXmlName(text_, name);
    const std::string_view between = Span{name_end, literal.begin}.Of(text_);
    const bool is_external =
        between.find("SYSTEM") != std::string_view::npos || between.find("PUBLIC") != std::string_view::npos;
    const std::string_view value = literal.Of(text_);
    const bool is_opaque = is_external || value.find_first_of("<&%") != std::string_view::npos;
    // The first declaration of a name counts.
    document_.entities.try_emplace(std::string(Span{name, name_end}.Of(text_)),
                                   DocumentEntity{std::string(value), is_opaque});
  }

  ScannedDocument& document_;
  std::string_view text_;
  std::size_t begin_;
};

}  // namespace

std::size_t ReadDoctype(ScannedDocument& document, std::size_t begin) {
  return DoctypeReader(document, begin).Run();
}

}  // namespace ravo::document
