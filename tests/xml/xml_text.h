#pragma once

#include <ravo/xml/document.h>
#include <ravo/xml/tokenizer.h>

#include <algorithm>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Documents of the tests as streams, and their tokens as plain values.
namespace ravo::test {

inline std::span<const std::byte> BytesOf(std::string_view text) { return std::as_bytes(std::span(text)); }

/// A stream that returns at most `most` bytes a read and ends one read at the offset `first_most`.
class SplitStream final : public ByteStream {
 public:
  explicit SplitStream(std::string_view bytes, std::size_t most = SIZE_MAX, std::size_t first_most = SIZE_MAX)
      : bytes_(bytes), most_(most), first_(first_most) {}

  [[nodiscard]] std::size_t Read(std::span<std::byte> to) override {
    const auto at = static_cast<std::size_t>(position_);
    if (at >= bytes_.size()) return 0;
    std::size_t count = std::min({to.size(), most_, bytes_.size() - at});
    if (at < first_) count = std::min(count, first_ - at);
    std::ranges::copy(BytesOf(bytes_.substr(at, count)), to.begin());
    position_ += static_cast<std::int64_t>(count);
    return count;
  }
  [[nodiscard]] std::size_t Write(std::span<const std::byte>) override { return 0; }
  [[nodiscard]] std::int64_t Position() const override { return position_; }
  void SetPosition(std::int64_t position) override { position_ = position; }
  [[nodiscard]] std::int64_t Size() const override { return static_cast<std::int64_t>(bytes_.size()); }

 private:
  std::string_view bytes_;
  std::size_t most_;
  std::size_t first_;
  std::int64_t position_ = 0;
};

struct TokenRow {
  int kind;
  std::string text;
  std::int32_t position;
  std::int32_t line;
  friend bool operator==(const TokenRow&, const TokenRow&) = default;
};

inline std::ostream& operator<<(std::ostream& out, const TokenRow& row) {
  return out << "{" << row.kind << ", '" << row.text << "', at " << row.position << ", line " << row.line
             << "}";
}

template <class Tokenizer = ECXMLTokenizer::TXMLTokenizer>
std::vector<TokenRow> TokensOf(ByteStream& stream) {
  std::vector<TokenRow> rows;
  Tokenizer tokenizer(stream);
  for (;; tokenizer.NextToken()) {
    rows.push_back(
        {tokenizer.Token(), tokenizer.TokenString(), tokenizer.SourcePos(), tokenizer.SourceLine()});
    if (tokenizer.Token() == ECXMLTokenizer::xtEndOfInput) return rows;
  }
}

inline std::vector<TokenRow> TokensOf(std::string_view text) {
  SplitStream stream(text);
  return TokensOf(stream);
}

inline std::string Saved(ECXMLParser::TECXMLParser& parser, bool xsl = false) {
  MemoryStream stream;
  parser.SaveToStream(stream, xsl);
  const auto bytes = stream.Bytes();
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

/// Loads the root, without a look at the beginning of the text.
inline void LoadRoot(ECXMLParser::TECXMLParser& parser, std::string_view text) {
  SplitStream stream(text);
  parser.Root()->LoadFromStream(stream);
}

}  // namespace ravo::test
