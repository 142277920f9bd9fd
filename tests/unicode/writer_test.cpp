// The Data of a writer, its stream, and characters that the encoding lacks.
#include "support/counted_stream.h"
#include "support/error_text.h"
#include "support/fake_machine.h"
#include "support/fake_stream.h"
#include "support/scratch_folder.h"
#include <ravo/DIUnicode.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::DIUnicode {
namespace {

using test::ErrorText;
using namespace std::string_view_literals;
using Action = TDIInvalidCharAction;

std::string_view TextOf(const MemoryStream& stream) {
  return {reinterpret_cast<const char*>(stream.Bytes().data()), stream.Bytes().size()};
}

// Writes ASCII only.
bool WriteAscii(TDIUnicodeWriter& writer, char16_t ch) {
  if (ch > 0x7F) return false;
  writer.WriteByte(static_cast<std::uint8_t>(ch));
  return true;
}
constexpr TDIUnicodeWriteMethods kAscii{nullptr, WriteAscii, nullptr, nullptr};

// Writes nothing at all.
constexpr TDIUnicodeWriteMethods kNothing{nullptr, [](TDIUnicodeWriter&, char16_t) { return false; }, nullptr,
                                          nullptr};

// Encodes two bytes per character, low byte first.
bool WritePair(TDIUnicodeWriter& writer, char16_t ch) {
  writer.WriteByte(static_cast<std::uint8_t>(ch & 0xFF));
  writer.WriteByte(static_cast<std::uint8_t>(ch >> 8));
  return true;
}
constexpr TDIUnicodeWriteMethods kWritePairs{nullptr, WritePair, nullptr, nullptr};

// Keeps one character pending in the state; counts calls.
std::vector<std::string> write_calls;
void HoldInit(TDIUnicodeWriter& writer) {
  EXPECT_EQ(writer.State(), 0u);
  write_calls.emplace_back("Init");
}
bool HoldWriteChar(TDIUnicodeWriter& writer, char16_t ch) {
  if (writer.State() != 0) writer.WriteByte(static_cast<std::uint8_t>(writer.State()));
  writer.SetState(ch);
  return true;
}
void HoldFlush(TDIUnicodeWriter& writer) { HoldWriteChar(writer, 0); }
void HoldFinalize(TDIUnicodeWriter&) { write_calls.emplace_back("Finalize"); }
constexpr TDIUnicodeWriteMethods kHolding{HoldInit, HoldWriteChar, HoldFlush, HoldFinalize};

TEST(TDIUnicodeWriter, BeginsEmpty) {
  TDIUnicodeWriter writer;
  EXPECT_EQ(writer.ReplacementChar(), u'?');
  EXPECT_EQ(writer.DataSize(), 0u);
  EXPECT_EQ(writer.DataCapacity(), 0u);
  EXPECT_EQ(writer.DataStream(), nullptr);
  EXPECT_EQ(writer.State(), 0u);
  EXPECT_FALSE(writer.OnInvalidChar());
  EXPECT_TRUE(writer.WriteCharW(u'\xE8'));
  EXPECT_FALSE(writer.TryWriteCharW(0x10D)) << "ISO-8859-1 lacks it";
  EXPECT_EQ(writer.DataToStrRaw(), "\xE8");
}

TEST(TDIUnicodeWriter, GrowsByAQuarterAndFour) {
  TDIUnicodeWriter writer;
  std::uint32_t capacity = 0;
  for (std::uint32_t size = 0; size < 5000; ++size) {
    ASSERT_EQ(writer.DataSize(), size);
    writer.WriteByte(static_cast<std::uint8_t>(size));
    if (size == capacity) capacity = (size + size / 4 + 4) / 4 * 4;
    ASSERT_EQ(writer.DataCapacity(), capacity);
  }
  for (std::uint32_t i = 0; i < 5000; ++i) ASSERT_EQ(writer.Data()[i], i & 0xFF);
}

TEST(WriteBufDirect, GrowsAsSingleBytesDo) {
  const std::string bytes(777, 'x');
  TDIUnicodeWriter whole;
  TDIUnicodeWriter single;
  for (int i = 0; i < 20; ++i) {
    whole.WriteBufDirect(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
    for (const char byte : bytes) single.WriteByte(static_cast<std::uint8_t>(byte));
    ASSERT_EQ(whole.DataCapacity(), single.DataCapacity());
    ASSERT_EQ(whole.DataToStrRaw(), single.DataToStrRaw());
  }
  whole.WriteBufDirect(nullptr, 0);
  whole.WriteStrRaw("\0\xFF"sv);
  EXPECT_TRUE(whole.DataToStrRaw().ends_with("x\0\xFF"sv));
}

TEST(IncDataSize, StaysInTheBuffer) {
  TDIUnicodeWriter writer;
  EXPECT_EQ(ErrorText([&] { writer.IncDataSize(); }), u"Class TDIUnicodeWriter: Data is not assigned");
  writer.RequestData();
  EXPECT_EQ(writer.DataCapacity(), 4u);
  for (int i = 0; i < 4; ++i) writer.IncDataSize();
  EXPECT_EQ(writer.DataToStrRaw(), "\0\0\0\0"sv);
  EXPECT_EQ(ErrorText([&] { writer.IncDataSize(); }), u"Class TDIUnicodeWriter: DataSize out of bounds (5)");
}

TEST(WriterSetDataSize, ShortensAndLengthens) {
  MemoryStream stream;
  TDIUnicodeWriter writer;
  writer.SetDataSize(3);
  EXPECT_EQ(writer.DataToStrRaw(), "\0\0\0"sv);
  EXPECT_EQ(writer.DataCapacity(), 4u);
  writer.SetDataSize(0);
  writer.WriteStrRaw("abcdef");
  writer.SetDataSize(2);
  writer.SetDataSize(4);
  EXPECT_EQ(writer.DataToStrRaw(), "ab\0\0"sv) << "what was there does not come back";
  writer.SetDataStream(&stream);
  EXPECT_EQ(ErrorText([&] { writer.SetDataSize(4097); }),
            u"Class TDIUnicodeWriter: DataSize out of bounds (4097)");
  writer.SetDataSize(4096);
}

TEST(WriterClear, ForgetsAllAndBeginsAnew) {
  write_calls.clear();
  TDIUnicodeWriter writer;
  writer.SetWriteMethods(kHolding);
  writer.WriteStrW(u"abc");
  writer.Clear();
  EXPECT_EQ(writer.DataCapacity(), 0u);
  EXPECT_EQ(write_calls, (std::vector<std::string>{"Init", "Finalize", "Init"}));
  writer.WriteStrW(u"de");
  writer.FlushDataBuffer();
  EXPECT_EQ(writer.DataToStrRaw(), "de");
}

TEST(WriterClear, KeepsTheBufferOfAStream) {
  MemoryStream stream;
  TDIUnicodeWriter writer;
  writer.SetDataStream(&stream);
  writer.WriteStrRaw("lost");
  writer.Clear();
  EXPECT_EQ(writer.DataSize(), 0U);
  writer.WriteStrRaw("kept");
  writer.FlushDataBuffer();
  EXPECT_EQ(TextOf(stream), "kept");
}

TEST(SetWriteMethods, InitialisesAndFinalises) {
  write_calls.clear();
  {
    TDIUnicodeWriter writer;
    writer.SetWriteMethods(kHolding);
    writer.WriteCharW(u'x');
    writer.SetWriteMethods(writer.WriteMethods());
    EXPECT_EQ(writer.State(), 0u);
    writer.SetWriteMethods({HoldInit, nullptr, nullptr, nullptr});
    EXPECT_EQ(write_calls, (std::vector<std::string>{"Init", "Finalize", "Init", "Finalize"}));
    writer.WriteCharW(u'\xE8');
    EXPECT_EQ(writer.DataToStrRaw(), "\xE8");
    writer.SetWriteMethods(kHolding);
  }
  EXPECT_EQ(write_calls.back(), "Finalize");
}

TEST(SetDataStream, PassesBlocksOn) {
  MemoryStream inner;
  test::StingyStream stream(inner, 100000);
  TDIUnicodeWriter writer;
  writer.WriteStrRaw("collected ");
  writer.SetDataStream(&stream);
  EXPECT_EQ(writer.DataStream(), &stream);
  EXPECT_EQ(writer.DataCapacity(), 4096u);
  writer.WriteStrRaw(std::string(4085, 'x'));
  EXPECT_EQ(stream.Calls(), 0u);
  writer.WriteStrW(u"yz");
  EXPECT_EQ(stream.Calls(), 1u);
  EXPECT_EQ(inner.Size(), 4096);
  EXPECT_EQ(writer.DataToStrRaw(), "z");
  writer.FlushDataBuffer();
  EXPECT_EQ(writer.DataSize(), 0u);
  EXPECT_EQ(TextOf(inner), "collected " + std::string(4085, 'x') + "yz");
  writer.FlushDataBuffer();
  EXPECT_EQ(stream.Calls(), 2u);
}

TEST(SetDataStream, WritesWhatWaitsForTheOneBefore) {
  MemoryStream first;
  MemoryStream second;
  TDIUnicodeWriter writer;
  writer.SetDataStream(&first);
  writer.WriteStrRaw("a");
  writer.SetDataStream(&second);
  EXPECT_EQ(TextOf(first), "a");
  writer.WriteStrRaw("b");
  writer.SetDataStream(nullptr);
  EXPECT_EQ(TextOf(second), "b");
  writer.WriteStrRaw(std::string(5000, 'c'));
  EXPECT_EQ(writer.DataSize(), 5000u);
}

TEST(TDIUnicodeWriter, FlushesWhenItGoes) {
  MemoryStream stream;
  {
    TDIUnicodeWriter writer;
    writer.SetWriteMethods(kHolding);
    writer.SetDataStream(&stream);
    writer.WriteStrW(u"abc");
    EXPECT_EQ(stream.Size(), 0);
  }
  EXPECT_EQ(TextOf(stream), "abc");
}

TEST(TDIUnicodeWriter, RaisesWhereTheStreamDoesNotTakeItAll) {
  test::SpanStream refusing({});
  TDIUnicodeWriter writer;
  writer.SetDataStream(&refusing);
  writer.WriteStrRaw("a");
  EXPECT_THROW(writer.FlushDataBuffer(), StreamError);
  EXPECT_EQ(writer.DataToStrRaw(), "a");
}

TEST(FreeDataStream, FlushesAndFrees) {
  int freed = 0;
  TDIUnicodeWriter writer;
  writer.FreeDataStream();
  writer.SetDataStream(new test::CountedStream("", freed));
  writer.WriteStrRaw("a");
  writer.FreeDataStream();
  EXPECT_EQ(freed, 1);
  EXPECT_EQ(writer.DataStream(), nullptr);
  EXPECT_EQ(writer.DataSize(), 0u);
}

TEST(FreeDataStream, FreesAlsoAStreamThatRefusesTheRest) {
  // Refuses every write, and records its deletion.
  class Refusing final : public ByteStream {
   public:
    explicit Refusing(int& freed) : freed_(freed) {}
    ~Refusing() override { ++freed_; }
    [[nodiscard]] std::size_t Read(std::span<std::byte>) override { return 0; }
    [[nodiscard]] std::size_t Write(std::span<const std::byte>) override { return 0; }
    [[nodiscard]] std::int64_t Position() const override { return 0; }
    void SetPosition(std::int64_t) override {}
    [[nodiscard]] std::int64_t Size() const override { return 0; }

   private:
    int& freed_;
  };
  int freed = 0;
  TDIUnicodeWriter writer;
  writer.SetDataStream(new Refusing(freed));
  writer.WriteStrRaw("a");
  EXPECT_THROW(writer.FreeDataStream(), StreamError);
  EXPECT_EQ(freed, 1);
  EXPECT_EQ(writer.DataStream(), nullptr);
}

// A buffer larger than the block of a stream is written block by block.
TEST(WriteBufDirect, PassesLargeBuffersOn) {
  for (const std::size_t size : {4095U, 4096U, 4097U, 8192U, 10'000U}) {
    std::string bytes(size, 'x');
    for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<char>('a' + i % 23);
    MemoryStream stream;
    TDIUnicodeWriter writer;
    writer.SetDataStream(&stream);
    writer.WriteStrRaw("<");
    writer.WriteStrRaw(bytes);
    writer.WriteStrRaw(">");
    writer.FlushDataBuffer();
    EXPECT_EQ(TextOf(stream), "<" + bytes + ">");
    writer.SetDataStream(nullptr);
  }
}

TEST(FlushDataBuffer, FlushesTheEncoder) {
  TDIUnicodeWriter writer;
  writer.SetWriteMethods(kHolding);
  writer.WriteStrW(u"ab");
  EXPECT_EQ(writer.DataToStrRaw(), "a");
  writer.FlushDataBuffer();
  EXPECT_EQ(writer.DataToStrRaw(), "ab");
}

TEST(WriterSaveData, WritesTheData) {
  const test::ScratchFolder folder;
  TDIUnicodeWriter writer;
  writer.WriteStrW(u"a\xE8");
  MemoryStream stream;
  writer.SaveDataToStream(&stream);
  EXPECT_EQ(TextOf(stream), "a\xE8");
  writer.SaveDataToFile(folder.File(u"a.txt"));
  std::ifstream file(folder.Path() / "a.txt", std::ios::binary);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), "a\xE8");
  EXPECT_EQ(ErrorText([&] { writer.SaveDataToStream(nullptr); }),
            u"Class TDIUnicodeWriter: Destination stream is not assigned");
}

TEST(WriterDataToStr, ReadsTheDataAsUtf16) {
  test::FakeMachine machine;
  const platform::ScopedMachine in_force(machine);
  TDIUnicodeWriter writer;
  EXPECT_EQ(writer.DataToStrW(), u"");
  writer.SetWriteMethods(kWritePairs);
  writer.WriteStrW(u"a\x10D");
  writer.WriteByte(7);
  EXPECT_EQ(writer.DataToStr(), u"a\x10D");
  EXPECT_EQ(writer.DataToStrW(), u"a\x10D");
  EXPECT_EQ(writer.DataToStrA(), "a\xE8");
  EXPECT_EQ(writer.DataToStrA(1250), "a\xE8");
  EXPECT_EQ(writer.DataToStrA(4711), "");
  EXPECT_EQ(writer.DataToStrRaw(), "a\0\x0D\x01\x07"sv);
}

// The arguments of a call of the handler.
struct Asked {
  char16_t invalid;
  char16_t replacement;
  std::uint32_t attempt;
  bool operator==(const Asked&) const = default;
};

class InvalidChars : public ::testing::Test {
 protected:
  InvalidChars() { writer.SetWriteMethods(kAscii); }

  // Sets a handler that gives these replacements in order, repeating the last one.
  void AnswerWith(std::u16string replacements) {
    writer.SetOnInvalidChar([this, replacements](TDIUnicodeWriter& sender, char16_t invalid,
                                                 char16_t& replacement, std::uint32_t attempt,
                                                 Action& action) {
      EXPECT_EQ(&sender, &writer);
      EXPECT_EQ(action, Action::icWrite);
      asked.push_back({invalid, replacement, attempt});
      replacement = replacements[std::min<std::size_t>(asked.size(), replacements.size()) - 1];
    });
  }

  TDIUnicodeWriter writer;
  std::vector<Asked> asked;
};

TEST_F(InvalidChars, BecomeTheReplacement) {
  EXPECT_TRUE(writer.WriteCharW(0x10D));
  writer.SetReplacementChar(u'!');
  EXPECT_TRUE(writer.WriteCharW(0x10D));
  EXPECT_TRUE(writer.WriteInvalidChar(u'a')) << "also one that could be written";
  writer.SetReplacementChar(0x159);
  EXPECT_TRUE(writer.WriteCharW(0x10D));
  EXPECT_EQ(writer.DataToStrRaw(), "?!!?");
  EXPECT_FALSE(writer.TryWriteCharW(0x10D));
  EXPECT_EQ(writer.DataSize(), 4u);
}

TEST_F(InvalidChars, FailWhereNotEvenTheLastResortCanBeWritten) {
  writer.SetWriteMethods(kNothing);
  EXPECT_FALSE(writer.WriteCharW(u'a'));
  EXPECT_FALSE(writer.WriteStrW(u"ab"));
  EXPECT_FALSE(writer.WriteCharsW(u'a', 2));
  EXPECT_TRUE(writer.WriteCharsW(u'a', 0));
  EXPECT_FALSE(writer.WriteLineBreak());
  EXPECT_FALSE(writer.WriteHexCodePoint(u'a'));
  EXPECT_FALSE(writer.WriteDecimalNumber(-1));
  EXPECT_FALSE(writer.WriteStrLineBreakA("a"));
}

TEST_F(InvalidChars, HandlerBringsTheReplacement) {
  AnswerWith(u"x");
  EXPECT_TRUE(writer.WriteCharW(0x10D));
  EXPECT_EQ(writer.DataToStrRaw(), "x");
  EXPECT_EQ(asked, (std::vector<Asked>{{0x10D, u'?', 0}}));
}

TEST_F(InvalidChars, HandlerThatKeepsTheReplacementIsAskedOnce) {
  writer.SetReplacementChar(0x159);
  AnswerWith(u"\x159");
  EXPECT_TRUE(writer.WriteCharW(0x10D));
  EXPECT_EQ(asked, (std::vector<Asked>{{0x10D, 0x159, 0}}));
  EXPECT_EQ(writer.DataToStrRaw(), "?") << "the last resort";
  EXPECT_EQ(writer.ReplacementChar(), 0x159);
}

TEST_F(InvalidChars, HandlerIsAskedAgainAboutEachNewReplacement) {
  AnswerWith(u"\x159\x161\x17E\x17E");
  EXPECT_TRUE(writer.WriteCharW(0x10D));
  EXPECT_EQ(asked,
            (std::vector<Asked>{{0x10D, u'?', 0}, {0x10D, 0x159, 1}, {0x10D, 0x161, 2}, {0x10D, 0x17E, 3}}));
  EXPECT_EQ(writer.DataToStrRaw(), "?");
  asked.clear();
  AnswerWith(u"\x159z");
  EXPECT_TRUE(writer.WriteCharW(0x10D));
  EXPECT_EQ(asked.size(), 2u);
  EXPECT_EQ(writer.DataToStrRaw(), "?z");
}

TEST_F(InvalidChars, HandlerMayWriteByItself) {
  writer.SetOnInvalidChar(
      [](TDIUnicodeWriter& sender, char16_t invalid, char16_t& replacement, std::uint32_t, Action& action) {
        sender.WriteStrW(u"&#");
        sender.WriteDecimalCodePoint(invalid);
        sender.WriteCharW(u';');
        replacement = u'!';
        action = Action::icOwnerWrite;
      });
  EXPECT_TRUE(
      writer.WriteStrW(u"a\x10D"
                       u"b"));
  EXPECT_EQ(writer.DataToStrRaw(), "a&#269;b");
}

TEST_F(InvalidChars, HandlerMayGiveUp) {
  writer.SetOnInvalidChar([](TDIUnicodeWriter&, char16_t, char16_t&, std::uint32_t, Action& action) {
    action = Action::icAbort;
  });
  EXPECT_FALSE(writer.WriteCharW(0x10D));
  EXPECT_FALSE(
      writer.WriteStrW(u"a\x10D"
                       u"b"));
  EXPECT_EQ(writer.DataToStrRaw(), "a") << "nothing behind it is written";
}

TEST_F(InvalidChars, LineBreaksAskNobody) {
  writer.SetWriteMethods(kNothing);
  AnswerWith(u"x");
  EXPECT_FALSE(writer.WriteLineBreak());
  EXPECT_TRUE(asked.empty());
}

TEST(WriterText, WritesTextsAndBreaks) {
  test::FakeMachine machine;
  const platform::ScopedMachine in_force(machine);
  TDIUnicodeWriter writer;
  writer.SetWriteMethods(kWritePairs);
  EXPECT_TRUE(writer.WriteBufW(u"abcdef", 2));
  EXPECT_TRUE(writer.WriteBufW(nullptr, 0));
  EXPECT_TRUE(writer.WriteStrLineBreakW(u"\x10D"));
  EXPECT_TRUE(writer.WriteBufA("\xE8xyz", 1, 1250));
  EXPECT_TRUE(writer.WriteStrA("\xF8"));
  EXPECT_TRUE(writer.WriteStrA("lost", 4711)) << "nobody knows this code page";
  EXPECT_TRUE(writer.WriteStrLineBreakA("\x9E", 1250));
  EXPECT_TRUE(writer.WriteCharsW(u'.', 3));
  EXPECT_TRUE(writer.WriteLineBreak());
  EXPECT_EQ(writer.DataToStr(), u"ab\x10D\r\n\x10D\x159\x17E\r\n...\r\n");
}

// Encodings that lack everything, or all but one character: a member that fails returns false.
TEST(WriterText, IsFalseWhereACharacterCannotBeWritten) {
  TDIUnicodeWriter writer;
  writer.SetWriteMethods(kNothing);
  EXPECT_FALSE(writer.WriteStrLineBreakW(u"a"));
  EXPECT_FALSE(writer.WriteStrLineBreakA("a", 1250));
  EXPECT_FALSE(writer.WriteLineBreak());
  EXPECT_FALSE(writer.WriteStrLineBreakW(u""));
  EXPECT_FALSE(writer.WriteDecimalNumber(std::int64_t{7}));
  EXPECT_EQ(writer.DataSize(), 0U);
  const TDIUnicodeWriteMethods all_but_line_feed{
      nullptr, [](TDIUnicodeWriter& to, char16_t ch) { return ch != u'\n' && WriteAscii(to, ch); }, nullptr,
      nullptr};
  writer.SetWriteMethods(all_but_line_feed);
  EXPECT_FALSE(writer.WriteLineBreak());
  EXPECT_FALSE(writer.WriteStrLineBreakW(u"a"));
  EXPECT_FALSE(writer.WriteStrLineBreakA("b", 1250));
  EXPECT_EQ(writer.DataToStrRaw(), "\ra\rb\r");
}

TEST(WriteCodePoint, HasNoLeadingZeros) {
  struct Row {
    char16_t c;
    std::string_view hex;
    std::string_view decimal;
  };
  constexpr Row rows[] = {{0, "0", "0"},
                          {9, "9", "9"},
                          {10, "A", "10"},
                          {0x10D, "10D", "269"},
                          {0xABC, "ABC", "2748"},
                          {0x1000, "1000", "4096"},
                          {0xFFFF, "FFFF", "65535"}};
  for (const Row& row : rows) {
    TDIUnicodeWriter writer;
    EXPECT_TRUE(writer.WriteHexCodePoint(row.c));
    EXPECT_EQ(writer.DataToStrRaw(), row.hex);
    writer.Clear();
    EXPECT_TRUE(writer.WriteDecimalCodePoint(row.c));
    EXPECT_EQ(writer.DataToStrRaw(), row.decimal);
  }
}

std::string Decimal(std::int64_t number, std::int64_t start_div) {
  TDIUnicodeWriter writer;
  EXPECT_TRUE(writer.WriteDecimalNumber(number, start_div));
  return writer.DataToStrRaw();
}

TEST(WriteDecimalNumber, WritesDigits) {
  struct Row {
    std::int64_t number;
    std::int64_t start_div;
    std::string_view text;
  };
  constexpr Row rows[] = {{0, 1, "0"},
                          {7, 100, "007"},
                          {-7, 100, "-007"},
                          {1234, 10, "1234"},
                          {5, 0, "5"},
                          {5, -100, "5"},
                          {5, 99, "05"},
                          {100, 100, "100"},
                          {99, 1000, "0099"},
                          {INT64_MAX, 1, "9223372036854775807"},
                          {INT64_MIN, 1, "-9223372036854775808"},
                          {1, 1'000'000'000'000'000'000, "0000000000000000001"}};
  for (const Row& row : rows) EXPECT_EQ(Decimal(row.number, row.start_div), row.text);
  TDIUnicodeWriter writer;
  EXPECT_TRUE(writer.WriteDecimalNumber(42));
  EXPECT_TRUE(writer.WriteDecimalNumber(std::int32_t{INT32_MIN}));
  EXPECT_TRUE(writer.WriteDecimalNumber(std::int64_t{-3}));
  EXPECT_TRUE(writer.WriteDecimalNumber(8, 10));
  EXPECT_EQ(writer.DataToStrRaw(), "42-2147483648-308");
}

TEST(WriteStream, WritesEveryCharacter) {
  std::string bytes;
  for (int i = 0; i < 10000; ++i) bytes.push_back(static_cast<char>(i * 7));
  MemoryStream source(std::as_bytes(std::span(bytes)));
  source.SetPosition(10);
  TDIUnicodeWriter writer;
  EXPECT_TRUE(writer.WriteStream(&source, {}));
  EXPECT_EQ(writer.DataToStrRaw(), bytes.substr(10));
  EXPECT_TRUE(writer.WriteStream(nullptr, {}));
  EXPECT_EQ(writer.DataSize(), 9990u);
  source.SetPosition(0);
  writer.Clear();
  writer.SetWriteMethods(kNothing);
  EXPECT_FALSE(writer.WriteStream(&source, {}));
}

TEST(WriteFile, WritesEveryCharacter) {
  const test::ScratchFolder folder;
  folder.Write("a.txt", "abc\xE8");
  TDIUnicodeWriter writer;
  EXPECT_TRUE(writer.WriteFile(folder.File(u"a.txt"), {}));
  EXPECT_EQ(writer.DataToStrRaw(), "abc\xE8");
  EXPECT_THROW(writer.WriteFile(folder.File(u"none.txt"), {}), StreamError);
}

TEST(CodePageFromLocale, FallsBackOnTheSystem) {
  test::FakeMachine machine;
  machine.code_page = 1252;
  machine.locale_code_pages[0x0405] = 1250;
  const platform::ScopedMachine in_force(machine);
  EXPECT_EQ(CodePageFromLocale(0x0405), 1250u);
  EXPECT_EQ(CodePageFromLocale(0x0409), 1252u);
}

}  // namespace
}  // namespace ravo::DIUnicode
