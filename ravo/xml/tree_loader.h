#pragma once

#include <ravo/xml/document.h>
#include <ravo/xml/item_access.h>
#include <ravo/xml/tokenizer.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ravo::xml {

/// Builds an item from tokens without telling anybody on the way. Children are listed when their parent is
/// closed, all at once.
class TreeLoader {
 public:
  TreeLoader(ECXMLParser::TXMLItem& top, ECXMLTokenizer::TXMLTokenizer& tokenizer);
  TreeLoader(const TreeLoader&) = delete;
  TreeLoader& operator=(const TreeLoader&) = delete;

  /// Whatever was built stays where an error passes through.
  void Run();

 private:
  using Item = ECXMLParser::TXMLItem;
  using Pieces = std::vector<std::string>;

  // An open element. Its children that are not listed yet begin at `first_child`; its texts are joined when
  // there are several.
  struct Frame {
    Item* item;
    std::size_t first_child;
    std::unique_ptr<Pieces> texts;
  };

  void TakeToken();
  void TakeText();
  void TakeOpenTag();
  void TakeCloseTag();
  void TakeStandAloneTag();
  Frame& Current();
  Item* NewChild(Frame& parent);
  void CloseFrame();
  void CloseFrameOrDrop() noexcept;
  [[nodiscard]] static std::string Joined(const Pieces& pieces);
  void JoinText(Frame& frame, std::string_view text);
  std::string_view TokenText(std::string& scratch) const;

  ECXMLTokenizer::TXMLTokenizer& tokenizer_;
  ECXMLParser::TECXMLParser* parser_;
  struct ReleaseArena {
    void operator()(ItemArena* arena) const noexcept { arena->Release(); }
  };
  std::unique_ptr<ItemArena, ReleaseArena> arena_;
  std::vector<Frame> open_;
  std::vector<Item*> children_;
};

/// What a header says of the document: the names of its encoding and of its style sheet.
void TakeHeader(ECXMLParser::TECXMLParser* parser, std::u16string_view header);

/// The text of a token: that of a CDATA section without its markers.
[[nodiscard]] std::string_view TextOfToken(std::string_view token) noexcept;

/// Raises what is said of content for which no element is open.
[[noreturn]] void RaiseOutside(const ECXMLTokenizer::TXMLTokenizer& tokenizer);

/// Builds an item from tokens step by step, each change reported as it happens.
void LoadReporting(ECXMLParser::TXMLItem& top, ECXMLTokenizer::TXMLTokenizer& tokenizer);

}  // namespace ravo::xml
