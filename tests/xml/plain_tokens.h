#pragma once

#include "xml_text.h"

/// The tokenizer's rules, step by step, for a document in memory: a witness that shares no code with the
/// tokenizer. `window` is the size of the buffer in those rules.
namespace ravo::test {

class PlainTokenizer {
 public:
  PlainTokenizer(std::string_view text, std::size_t window) : text_(text), window_(window) {}

  /// Returns every token up to the end of the input; an error ends them and sets `failed`.
  std::vector<TokenRow> All() {
    std::vector<TokenRow> rows;
    while (!failed) {
      const TokenRow row = Next();
      if (failed) break;
      rows.push_back(row);
      if (row.kind == 0) break;
    }
    return rows;
  }

  bool failed = false;

 private:
  char At(std::size_t i) const { return i < limit_ && i < text_.size() ? text_[i] : '\0'; }

  // The whole lines from `at_` on that fit into the window may be scanned.
  void Refill() {
    const std::size_t end = std::min(text_.size(), std::max(at_ + window_, loaded_));
    loaded_ = end;
    limit_ = end;
    if (end - at_ < window_) return;
    std::size_t line = end - 1;
    while (line > at_ && text_[line - 1] != '\n') --line;
    limit_ = line;
    failed = line == at_;
  }

  void Skip() {
    for (;;) {
      const char ch = At(at_);
      if (ch == '\0') {
        Refill();
        if (failed || At(at_) == '\0') return;
        continue;
      }
      if (static_cast<unsigned char>(ch) > 32) return;
      if (ch == '\n') ++line_;
      ++at_;
    }
  }

  static std::string Lower(std::string_view text) {
    std::string lower(text);
    for (char& ch : lower) {
      if (ch >= 'A' && ch <= 'Z') ch = static_cast<char>(ch + 32);
    }
    return lower;
  }

  static std::string Without(std::string text, const std::string& what, const std::string& with) {
    std::string out;
    for (std::size_t i = 0; i < text.size();) {
      if (text.compare(i, what.size(), what) == 0) {
        out += with;
        i += what.size();
      } else {
        out += text[i++];
      }
    }
    return out;
  }

  static std::string Normal(std::string text) {
    text = Without(Without(std::move(text), "\r\n", ""), "\n\r", "");
    while (text.find("  ") != std::string::npos) text = Without(std::move(text), "  ", " ");
    return text;
  }

  int Tag() {
    std::size_t end = text_.find('>', at_);
    if (Lower(text_.substr(at_, 9)) == "<![cdata[") {
      end = at_ + 9;
      for (char before = ' ';; ++end) {
        if (end >= text_.size()) break;
        if (before == ']' && text_[end] == ']') break;
        before = text_[end];
      }
      failed = end + 1 >= text_.size();
      if (!failed) Consume(end + 2);
      return 9;
    }
    if (end == std::string_view::npos) {
      failed = true;
      return 0;
    }
    const std::string tag = Lower(text_.substr(at_, end + 1 - at_));
    Consume(end + 1);
    if (tag.starts_with("<?xml")) return 8;
    if (tag.starts_with("<!--")) return 6;
    if (tag.ends_with("/>")) return 12;
    return tag.starts_with("</") ? 11 : 10;
  }

  // A token that is longer than the lines that may be scanned ends them.
  void Consume(std::size_t end) {
    if (end > limit_) {
      if (end > loaded_) {
        const std::size_t start = at_;
        std::size_t room = std::max(window_, grown_);
        loaded_ = std::min(text_.size(), start + room);
        while (end > loaded_) {
          room = std::max<std::size_t>(room * 2, 64);
          loaded_ = std::min(text_.size(), start + room);
        }
        grown_ = room;
      }
      limit_ = end;
    }
    at_ = end;
  }

  TokenRow Next() {
    Skip();
    if (failed) return {};
    const std::size_t start = at_;
    const std::int32_t line = line_;
    int kind = 0;
    if (At(at_) == '<') {
      kind = Tag();
    } else if (At(at_) != '\0') {
      std::size_t last = at_;
      for (std::size_t i = at_; At(i) != '\0' && At(i) != '<'; ++i) {
        if (static_cast<unsigned char>(At(i)) > 32) last = i;
      }
      at_ = last + 1;
      kind = 9;
    }
    if (failed) return {};
    return {kind, Normal(std::string(text_.substr(start, at_ - start))), static_cast<std::int32_t>(start),
            line};
  }

  std::string_view text_;
  std::size_t window_;
  std::size_t at_ = 0;
  std::size_t limit_ = 0;
  std::size_t loaded_ = 0;
  std::size_t grown_ = 0;
  std::int32_t line_ = 1;
};

/// A tokenizer with a buffer of another size.
class SmallTokenizer final : public ECXMLTokenizer::TXMLTokenizer {
 public:
  SmallTokenizer(ByteStream& stream, std::size_t size) : TXMLTokenizer(stream, size) { NextToken(); }
};

/// Returns the tokens of a document both ways; an error is a last row of its own.
inline const TokenRow kFailed = {-1, "failed", 0, 0};

inline std::vector<TokenRow> SmallTokens(ByteStream& stream, std::size_t size) {
  std::vector<TokenRow> rows;
  try {
    for (SmallTokenizer tokenizer(stream, size);; tokenizer.NextToken()) {
      rows.push_back(
          {tokenizer.Token(), tokenizer.TokenString(), tokenizer.SourcePos(), tokenizer.SourceLine()});
      if (tokenizer.Token() == ECXMLTokenizer::xtEndOfInput) return rows;
    }
  } catch (const EParserError&) {
    rows.push_back(kFailed);
  }
  return rows;
}

inline std::vector<TokenRow> PlainTokens(std::string_view text, std::size_t size) {
  PlainTokenizer plain(text, size);
  auto rows = plain.All();
  if (plain.failed) rows.push_back(kFailed);
  return rows;
}

}  // namespace ravo::test
