// Writing whole runs and single characters has identical results, invalid characters included.
#include "support/effort.h"
#include <ravo/DIUnicode.h>
#include <ravo/unicode/encoding_of.h>

#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::DIUnicode {
namespace {

using unicode::EncodingOf;

std::u16string RandomUnits(std::mt19937& random, std::size_t size) {
  std::u16string text;
  while (text.size() < size) {
    const char16_t units[] = {u'a',   u'\x10D', u'\xE8', u'\x20AC', 0x4E00,
                              0xD83D, 0xDE00,   0xFFFD,  u'\0',     static_cast<char16_t>(random())};
    text.append(random() % 5 == 0 ? random() % 70 : 1, units[random() % std::size(units)]);
  }
  return text;
}

// The same routine without runs.
const TDIUnicodeWriteMethods* hidden = nullptr;
bool WriteHidden(TDIUnicodeWriter& writer, char16_t ch) { return hidden->WriteChar(writer, ch); }

struct Outcome {
  bool written = true;
  std::string bytes;
  std::uint32_t capacity = 0;
  std::vector<std::u16string> asked;
  bool operator==(const Outcome&) const = default;
};

// `handler` 0: no handler; 1: gives another replacement; 2: writes by itself; 3: gives up at U+4E00.
Outcome Write(const TDIUnicodeWriteMethods& methods, std::span<const std::u16string> texts, unsigned handler,
              MemoryStream* stream) {
  Outcome outcome;
  TDIUnicodeWriter writer;
  writer.SetWriteMethods(methods);
  writer.SetDataStream(stream);
  if (handler != 0) {
    writer.SetOnInvalidChar([&outcome, handler](TDIUnicodeWriter& sender, char16_t invalid,
                                                char16_t& replacement, std::uint32_t attempt,
                                                TDIInvalidCharAction& action) {
      outcome.asked.push_back({invalid, replacement, static_cast<char16_t>(attempt)});
      replacement = u"\x4E00\x159!"[std::min<std::uint32_t>(attempt, 2)];
      // An encoding without digits would call the handler for them too.
      if (handler == 2 && invalid > 0x7F && sender.TryWriteCharW(u'0')) sender.WriteHexCodePoint(invalid);
      if (handler == 2) action = TDIInvalidCharAction::icOwnerWrite;
      if (handler == 3 && invalid == 0x4E00) action = TDIInvalidCharAction::icAbort;
    });
  }
  for (const std::u16string& text : texts) outcome.written = outcome.written && writer.WriteStrW(text);
  outcome.capacity = writer.DataCapacity();
  if (stream != nullptr) {
    writer.FlushDataBuffer();
    for (const std::byte byte : stream->Bytes()) outcome.bytes.push_back(static_cast<char>(byte));
  } else {
    outcome.bytes = writer.DataToStrRaw();
  }
  return outcome;
}

TEST(WriterRuns, GiveWhatSingleCharactersGive) {
  std::mt19937 random(73);
  for (const EncodingRow& row : EncodingRows()) {
    if (row.write == nullptr || row.write->Init != nullptr) continue;
    hidden = row.write;
    ASSERT_EQ(EncodingOf(TDIUnicodeWriteMethods{nullptr, WriteHidden, nullptr, nullptr}), nullptr);
    for (unsigned round = 0; round < 24; round += test::StepUnderSanitizers(5)) {
      std::vector<std::u16string> texts;
      for (int i = 0; i < 4; ++i)
        texts.push_back(RandomUnits(random, random() % (round % 8 == 0 ? 6000 : 300)));
      MemoryStream streams[2];
      const bool streamed = round % 2 == 0;
      const Outcome single =
          Write({nullptr, WriteHidden, nullptr, nullptr}, texts, round % 4, streamed ? &streams[0] : nullptr);
      const Outcome runs = Write(*row.write, texts, round % 4, streamed ? &streams[1] : nullptr);
      ASSERT_EQ(runs, single) << row.name << ", " << round;
    }
  }
}

// Every encoding reads its bytes 80 to FF with some texts between them.
TEST(ReaderRuns, OfEveryEncodingGiveWhatSingleCharactersGive) {
  std::mt19937 random(74);
  for (const EncodingRow& row : EncodingRows()) {
    if (row.read == nullptr || row.read->Init != nullptr) continue;
    static const TDIUnicodeReadMethods* hidden_read = nullptr;
    hidden_read = row.read;
    const TDIUnicodeReadMethods single{
        nullptr, [](TDIUnicodeReader& reader, char16_t& ch) { return hidden_read->ReadChar(reader, ch); },
        nullptr};
    for (unsigned round = 0; round < 32; ++round) {
      std::string bytes;
      while (bytes.size() < 400) {
        const char units[] = {'a', static_cast<char>(random()), ' ', ';', '\r', '\n'};
        const std::size_t which = random() % std::size(units);
        bytes.append(which == 0 ? random() % 40 : 1, units[which]);
      }
      const auto seed = static_cast<std::uint32_t>(random());
      std::vector<std::string> standings[2];
      for (const bool by_runs : {false, true}) {
        TDIUnicodeReader reader;
        reader.SetReadMethods(by_runs ? *row.read : single);
        reader.SetSourceBufferAsStrA(bytes);
        std::mt19937 steps(seed);
        while (reader.ReadChar()) {
          switch (steps() % 5) {
            case 0:
              reader.ReadCharsTill(u';');
              break;
            case 1:
              reader.ReadLine();
              break;
            case 2:
              reader.ReadWhiteSpace();
              break;
            case 3:
              reader.SkipCharsTill(u' ', u'\n', u'!');
              break;
            default:
              reader.ReadChars(CharIsAlphaW);
          }
          std::string standing = reader.DataAsStr8();
          for (const std::uint32_t number : {reader.CharPos(), reader.CharLine(), reader.CharCol(),
                                             reader.SourceBufferPosition(), std::uint32_t{reader.Char()}})
            standing.append(1, ' ').append(std::to_string(number));
          standings[by_runs ? 1 : 0].push_back(standing);
        }
      }
      ASSERT_EQ(standings[1], standings[0]) << row.name << ", " << round;
    }
  }
}

}  // namespace
}  // namespace ravo::DIUnicode
