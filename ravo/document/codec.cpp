#include "codec.h"

#include <ravo/document/characters.h>
#include <ravo/unicode/unicode_reader.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <vector>

namespace ravo::document {
namespace {

using namespace DIUnicode;

constexpr char32_t kNothing = 0xFFFD;

class Utf8Codec final : public DocumentCodec {
 public:
  [[nodiscard]] Character DecodeOne(std::string_view bytes, std::size_t at) const override {
    const Utf8Character character = FirstCharacter(std::string_view(bytes).substr(at));
    return {character.code, character.size};
  }
  [[nodiscard]] std::size_t Decode(std::string_view bytes, std::size_t at, std::string& utf8) const override {
    const std::size_t end = at + ValidUtf8Length(bytes.substr(at));
    utf8 += bytes.substr(at, end - at);
    return end;
  }
  [[nodiscard]] bool Encode(char32_t c, std::string& to) const override {
    AppendUtf8(c, to);
    return true;
  }
};

// Code units of two or four bytes.
class WideCodec final : public DocumentCodec {
 public:
  WideCodec(std::size_t unit, bool is_big) : unit_(unit), is_big_(is_big) {}

  [[nodiscard]] Character DecodeOne(std::string_view bytes, std::size_t at) const override {
    if (bytes.size() - at < unit_) return {};
    const char32_t first = Unit(bytes, at);
    if (unit_ == 4) return first < 0x110000 && !IsSurrogate(first) ? Character{first, 4} : Character{};
    if (!IsSurrogate(first)) return {first, 2};
    if (first >= 0xDC00 || bytes.size() - at < 4) return {};
    const char32_t second = Unit(bytes, at + 2);
    if (second < 0xDC00 || second > 0xDFFF) return {};
    return {0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00), 4};
  }

  [[nodiscard]] bool Encode(char32_t c, std::string& to) const override {
    if (unit_ == 4 || c < 0x10000) {
      Append(c, to);
    } else {
      Append(0xD800 + ((c - 0x10000) >> 10), to);
      Append(0xDC00 + (c - 0x10000) % 0x400, to);
    }
    return true;
  }

 private:
  static bool IsSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }

  [[nodiscard]] char32_t Unit(std::string_view bytes, std::size_t at) const {
    char32_t value = 0;
    for (std::size_t i = 0; i < unit_; ++i) {
      value = value << 8 | static_cast<unsigned char>(bytes[at + (is_big_ ? i : unit_ - 1 - i)]);
    }
    return value;
  }

  void Append(char32_t value, std::string& to) const {
    for (std::size_t i = 0; i < unit_; ++i) {
      to += static_cast<char>(value >> 8 * (is_big_ ? unit_ - 1 - i : i) & 0xFF);
    }
  }

  std::size_t unit_;
  bool is_big_;
};

// Returns what a reader makes of the bytes of one character; U+FFFD if nothing.
char32_t ReadCharacter(const TDIUnicodeReadMethods& methods, std::string_view bytes) {
  TDIUnicodeReader reader;
  reader.SetReadMethods(methods);
  reader.SetSourceBufferAsStrA(bytes);
  return reader.ReadChar() ? reader.Char() : kNothing;
}

class SingleByteCodec final : public DocumentCodec {
 public:
  explicit SingleByteCodec(const EncodingRow& row) : row_(&row) {
    for (std::size_t i = 0; i < characters_.size(); ++i) {
      const char byte = static_cast<char>(i);
      characters_[i] = ReadCharacter(*row.read, {&byte, 1});
    }
  }

  [[nodiscard]] Character DecodeOne(std::string_view bytes, std::size_t at) const override {
    const char32_t c = characters_[static_cast<unsigned char>(bytes[at])];
    return c == kNothing ? Character{} : Character{c, 1};
  }

  [[nodiscard]] bool Encode(char32_t c, std::string& to) const override {
    if (c > 0xFFFF || c == kNothing) return false;
    const auto bytes = EncodedCharacter(*row_, static_cast<char16_t>(c));
    to.append(bytes.begin(), bytes.end());
    return !bytes.empty();
  }

 private:
  const EncodingRow* row_;
  std::array<char32_t, 256> characters_;
};

// The library reads GB 18030 up to U+FFFF and does not write it, so this inverts what it reads.
class Gb18030Codec final : public DocumentCodec {
 public:
  [[nodiscard]] Character DecodeOne(std::string_view bytes, std::size_t at) const override {
    const std::size_t size = SizeAt(bytes, at);
    if (size == 0) return {};
    if (size == 4 && static_cast<unsigned char>(bytes[at]) >= 0x90) {
      const std::uint32_t number = Number(bytes.substr(at, 4)) - kBeyond;
      return number < 0x100000 ? Character{0x10000 + number, 4} : Character{};
    }
    const char32_t c = ReadCharacter(Read_GB_18030, bytes.substr(at, size));
    return c == kNothing && bytes.substr(at, size) != "\x84\x31\xA4\x37" ? Character{} : Character{c, size};
  }

  [[nodiscard]] bool Encode(char32_t c, std::string& to) const override {
    if (c < 0x80) {
      to += static_cast<char>(c);
      return true;
    }
    if (c >= 0x10000) {
      AppendNumber(c - 0x10000 + kBeyond, to);
      return true;
    }
    const auto found = Written().find(c);
    if (found == Written().end()) return false;
    to += found->second;
    return true;
  }

 private:
  static constexpr std::uint32_t kBeyond = (0x90 - 0x81) * 12600;

  static std::size_t SizeAt(std::string_view bytes, std::size_t at) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[at + i]); };
    if (byte(0) < 0x80) return 1;
    const std::size_t left = bytes.size() - at;
    if (byte(0) == 0x80 || byte(0) == 0xFF || left < 2) return 0;
    if (byte(1) >= 0x40) return byte(1) == 0x7F || byte(1) == 0xFF ? 0 : 2;
    const bool is_four = byte(1) >= 0x30 && byte(1) <= 0x39 && left >= 4 && byte(2) >= 0x81 &&
                         byte(2) <= 0xFE && byte(3) >= 0x30 && byte(3) <= 0x39;
    return is_four ? 4 : 0;
  }

  static std::uint32_t Number(std::string_view bytes) {
    const auto at = [&](std::size_t i, unsigned first) {
      return static_cast<unsigned char>(bytes[i]) - first;
    };
    return ((at(0, 0x81) * 10 + at(1, 0x30)) * 126 + at(2, 0x81)) * 10 + at(3, 0x30);
  }

  static void AppendNumber(std::uint32_t number, std::string& to) {
    to += static_cast<char>(0x81 + number / 12600);
    to += static_cast<char>(0x30 + number / 1260 % 10);
    to += static_cast<char>(0x81 + number / 10 % 126);
    to += static_cast<char>(0x30 + number % 10);
  }

  [[nodiscard]] const std::map<char32_t, std::string>& Written() const {
    static const std::map<char32_t, std::string> written = AllRead();
    return written;
  }

  static std::map<char32_t, std::string> AllRead() {
    std::map<char32_t, std::string> all;
    const auto add = [&](const std::string& bytes) {
      const char32_t c = ReadCharacter(Read_GB_18030, bytes);
      if (c != kNothing) all.try_emplace(c, bytes);
    };
    for (int lead = 0x81; lead < 0xFF; ++lead) {
      for (int trail = 0x40; trail < 0xFF; ++trail) {
        if (trail != 0x7F) add({static_cast<char>(lead), static_cast<char>(trail)});
      }
    }
    // Four bytes stand for 39420 characters up to U+FFFF.
    constexpr std::uint32_t kFours = 39420;
    for (std::uint32_t number = 0; number < kFours; ++number) {
      std::string bytes;
      AppendNumber(number, bytes);
      add(bytes);
    }
    return all;
  }
};

}  // namespace

std::size_t DocumentCodec::Decode(std::string_view bytes, std::size_t at, std::string& utf8) const {
  while (at < bytes.size()) {
    const auto [c, size] = DecodeOne(bytes, at);
    if (size == 0) break;
    AppendUtf8(c, utf8);
    at += size;
  }
  return at;
}

std::shared_ptr<const DocumentCodec> CodecOf(const EncodingRow& row) {
  const bool is_big = row.name.ends_with("_BE");
  if (row.engine == "Utf8") return std::make_shared<Utf8Codec>();
  if (row.engine == "Utf16" || row.engine == "Ucs2") return std::make_shared<WideCodec>(2, is_big);
  if (row.engine == "Utf32" || row.engine == "Ucs4") return std::make_shared<WideCodec>(4, is_big);
  if (row.engine == "SingleByte") return std::make_shared<SingleByteCodec>(row);
  if (row.engine == "Gb18030") return std::make_shared<Gb18030Codec>();
  return nullptr;
}

}  // namespace ravo::document
