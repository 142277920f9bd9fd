// Two writers driven by the same script of operations: one with the encoding's whole runs, one with single
// characters. Both have written the same after each operation.
#include <ravo/DIUnicode.h>
#include <ravo/runtime/error.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <span>
#include <string>

namespace {

using namespace ravo::DIUnicode;

void Require(bool condition) {
  if (!condition) std::abort();
}

bool (*hidden)(TDIUnicodeWriter&, char16_t) = nullptr;
bool WriteHidden(TDIUnicodeWriter& writer, char16_t ch) { return hidden(writer, ch); }

// Does nothing, returns replacements in sequence, writes itself, or gives up.
TDIInvalidCharEvent HandlerOf(std::uint8_t kind) {
  if (kind % 4 == 0) return {};
  return [kind](TDIUnicodeWriter& sender, char16_t invalid, char16_t& replacement, std::uint32_t attempt,
                TDIInvalidCharAction& action) {
    replacement = static_cast<char16_t>(replacement + kind);
    if (attempt > 3) replacement = u'?';
    if (kind % 4 == 2) {
      action = TDIInvalidCharAction::icOwnerWrite;
      sender.TryWriteCharW(static_cast<char16_t>(invalid & 0x7F));
    }
    if (kind % 4 == 3 && invalid % 2 != 0) action = TDIInvalidCharAction::icAbort;
  };
}

struct Side {
  TDIUnicodeWriter writer;
  ravo::MemoryStream stream;

  ~Side() { writer.SetDataStream(nullptr); }
};

bool Apply(Side& side, std::uint8_t operation, std::uint8_t argument, std::u16string_view text) {
  TDIUnicodeWriter& w = side.writer;
  const auto c = static_cast<char16_t>(argument * 257);
  switch (operation % 22) {
    case 0:
      return w.WriteCharW(c);
    case 1:
      return w.TryWriteCharW(c);
    case 2:
      return w.WriteInvalidChar(c);
    case 3:
      return w.WriteCharsW(c, argument);
    case 4:
      return w.WriteStrW(text);
    case 5:
      return w.WriteStrLineBreakW(text.substr(0, argument));
    case 6:
      return w.WriteBufW(text.data(),
                         static_cast<std::uint32_t>(std::min<std::size_t>(argument, text.size())));
    case 7:
      return w.WriteStrA("\xE8\xF8 abc", argument % 2 != 0 ? 1250 : 437);
    case 8:
      return w.WriteLineBreak();
    case 9:
      return w.WriteHexCodePoint(c);
    case 10:
      return w.WriteDecimalCodePoint(c);
    case 11:
      return w.WriteDecimalNumber(std::int64_t{argument} - 128, std::int64_t{argument} * 1000);
    case 12:
      w.WriteByte(argument);
      return true;
    case 13:
      w.WriteBufDirect(text.data(), static_cast<std::uint32_t>(2 * text.size()));
      return true;
    case 14:
      w.FlushDataBuffer();
      return true;
    case 15:
      w.RequestData();
      return true;
    case 16:
      w.IncDataSize();
      return true;
    case 17:
      w.SetDataSize(argument * 40U);
      return true;
    case 18:
      w.Clear();
      return true;
    case 19:
      w.SetDataStream(argument % 2 != 0 ? &side.stream : nullptr);
      return true;
    case 20:
      w.SetOnInvalidChar(HandlerOf(argument));
      return true;
    default:
      w.SetReplacementChar(c);
      return true;
  }
}

// Returns the result; 2 for an error.
int Answer(Side& side, std::uint8_t operation, std::uint8_t argument, std::u16string_view text) {
  try {
    return Apply(side, operation, argument, text) ? 1 : 0;
  } catch (const ravo::Error&) {
    return 2;
  }
}

}  // namespace

// The input: the encoding, the length of the script, the script in pairs of operation and argument, the text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t kHead = 2;
  if (size < kHead) return 0;
  const EncodingRow& row = EncodingRows()[data[0] % EncodingRows().size()];
  if (row.write == nullptr) return 0;
  const std::size_t pairs = std::min<std::size_t>(data[1] % 32, (size - kHead) / 2);
  const auto* const script = data + kHead;
  // Longer than a block of a stream plus the output of the script before it.
  constexpr std::size_t kLongestText = 3000;
  std::u16string text(std::min((size - kHead - 2 * pairs) / 2, kLongestText), u'\0');
  if (!text.empty()) std::memcpy(text.data(), script + 2 * pairs, 2 * text.size());
  Side sides[2];
  hidden = row.write->WriteChar;
  sides[0].writer.SetWriteMethods(*row.write);
  sides[1].writer.SetWriteMethods({row.write->Init, WriteHidden, row.write->Flush, row.write->Finalize});
  for (std::size_t i = 0; i < pairs; ++i) {
    const int answers[] = {Answer(sides[0], script[2 * i], script[2 * i + 1], text),
                           Answer(sides[1], script[2 * i], script[2 * i + 1], text)};
    Require(answers[0] == answers[1]);
    Require(std::ranges::equal(sides[0].writer.Data(), sides[1].writer.Data()));
    Require(sides[0].writer.DataCapacity() == sides[1].writer.DataCapacity());
    Require(std::ranges::equal(sides[0].stream.Bytes(), sides[1].stream.Bytes()));
    // Scripts that repeat long texts only take time.
    if (sides[0].writer.DataSize() > 1U << 15 || sides[0].stream.Size() > 1 << 15) break;
  }
  return 0;
}
