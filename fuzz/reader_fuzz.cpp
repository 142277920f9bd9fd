// Two readers driven by the same script of operations over any bytes: one with the encoding's whole runs, one
// with single characters. Both are in the same state after each operation.
#include <ravo/DIUnicode.h>
#include <ravo/codec/kernels/kernel_set.h>
#include <ravo/runtime/error.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <span>
#include <vector>

namespace {

using namespace ravo::DIUnicode;
using namespace ravo::codec;
using Bytes = std::vector<std::uint8_t>;

void Require(bool condition) {
  if (!condition) std::abort();
}

// Returns a few bytes per read.
class PiecesStream final : public ravo::ByteStream {
 public:
  PiecesStream(std::span<const std::uint8_t> bytes, std::size_t most)
      : inner_(std::as_bytes(bytes)), most_(most) {}

  [[nodiscard]] std::size_t Read(std::span<std::byte> to) override {
    return inner_.Read(to.first(std::min(to.size(), most_)));
  }
  [[nodiscard]] std::size_t Write(std::span<const std::byte>) override { return 0; }
  [[nodiscard]] std::int64_t Position() const override { return inner_.Position(); }
  void SetPosition(std::int64_t position) override { inner_.SetPosition(position); }
  [[nodiscard]] std::int64_t Size() const override { return inner_.Size(); }

 private:
  ravo::MemoryStream inner_;
  std::size_t most_;
};

// Read methods of a stateless encoding, under a name that has no runs.
template <std::size_t slot>
struct Hidden {
  static inline bool (*read_char)(TDIUnicodeReader&, char16_t&) = nullptr;
  static bool ReadChar(TDIUnicodeReader& reader, char16_t& ch) { return read_char(reader, ch); }
};

struct Methods {
  TDIUnicodeReadMethods runs;
  TDIUnicodeReadMethods single;
};

template <std::size_t slot>
Methods MethodsOf(std::uint8_t choice) {
  const auto rows = EncodingRows();
  const EncodingRow& row = rows[choice % rows.size()];
  const TDIUnicodeReadMethods& read = row.read != nullptr ? *row.read : Read_Iso_8859_1;
  if (read.Init != nullptr) return {read, read};
  Hidden<slot>::read_char = read.ReadChar;
  return {read, {nullptr, Hidden<slot>::ReadChar, nullptr}};
}

// One of the two readers, with the data of its sources.
struct Side {
  explicit Side(bool by_runs) : runs(by_runs) {}
  ~Side() {
    reader.ClearSourceStack();
    reader.FreeSourceStream();
  }
  Side(const Side&) = delete;
  Side& operator=(const Side&) = delete;

  void Use(const Methods& methods) { reader.SetReadMethods(runs ? methods.runs : methods.single); }
  void Open(std::span<const std::uint8_t> bytes, std::uint8_t way) {
    if (way % 4 == 0 && reader.SourceStream() == nullptr) {
      reader.SetSourceBuffer(bytes);
    } else {
      reader.FreeSourceStream();
      const std::size_t most[] = {4096, 1, 7, 4096};
      reader.SetSourceStream(new PiecesStream(bytes, most[way % 4]));
    }
  }

  TDIUnicodeReader reader;
  bool runs;
};

bool IsAsciiLetter(char16_t c) { return (c | 0x20) >= u'a' && (c | 0x20) <= u'z'; }

void Apply(TDIUnicodeReader& r, std::uint8_t operation, std::uint8_t argument) {
  const auto c = static_cast<char16_t>(argument & 0x7F);
  const CharPredicate tests[] = {nullptr, CharIsAlphaW, IsAsciiLetter, CharIsDigitW};
  const CharPredicate test = tests[argument % 4];
  switch (operation % 44) {
    case 0:
      r.ReadChar();
      break;
    case 1:
      r.AddCharReadChar();
      break;
    case 2:
      r.PeekChars(argument);
      break;
    case 3:
      r.ClearPeekedChars();
      break;
    case 4:
      r.ResetCharLocation();
      break;
    case 5:
      static_cast<void>(r.ReadBOM());
      break;
    case 6:
      r.RewindSource();
      break;
    case 7:
      r.SourceStreamModified();
      break;
    case 8:
      r.PopSource();
      break;
    case 9:
      r.IncSourceBufferPosition();
      break;
    case 10:
      r.SetSourceBufferPosition(argument);
      break;
    case 11:
      r.FillSourceBuffer(argument % 2 != 0);
      break;
    case 12:
      r.ReadChars(c);
      break;
    case 13:
      r.SkipChars(c, u' ');
      break;
    case 14:
      r.ReadChars(test);
      break;
    case 15:
      r.SkipChars(test, c);
      break;
    case 16:
      r.ReadCharsTill(c);
      break;
    case 17:
      r.SkipCharsTill(c);
      break;
    case 18:
      r.ReadCharsTill(c, u'\r');
      break;
    case 19:
      r.ReadCharsTill(c, u'\n', u'\x10D');
      break;
    case 20:
      r.SkipCharsTill(test);
      break;
    case 21:
      r.ReadCharsTill(test);
      break;
    case 22:
      r.ReadDigits();
      break;
    case 23:
      r.SkipHexDigits();
      break;
    case 24:
      r.ReadWhiteSpace();
      break;
    case 25:
      r.SkipWhiteSpace();
      break;
    case 26:
      r.ReadCharsTillWhiteSpace();
      break;
    case 27:
      r.ReadTillEndOfLine();
      break;
    case 28:
      r.SkipTillEndOfLine();
      break;
    case 29:
      r.ReadLine();
      break;
    case 30:
      r.SkipLine();
      break;
    case 31:
      r.SkipEmptyLines(test);
      break;
    case 32:
      r.AddChar();
      break;
    case 33:
      r.AddCharCompact(c);
      break;
    case 34:
      r.AddStrCompactW(u"  x \t");
      break;
    case 35:
      r.ClearData();
      break;
    case 36:
      r.SetDataSize(argument);
      break;
    case 37:
      r.DeleteFromDataStart(argument);
      break;
    case 38:
      r.TrimDataRight(test);
      break;
    case 39:
      Require(r.TrimmedDataLength(test) == r.DataAsStrTrimW(test).size());
      break;
    case 40:
      Require(r.DataIsChars(test) || r.DataIsNotEmpty());
      break;
    case 41:
      Require(r.DataIsStrIW(r.DataAsStrW()));
      break;
    case 42:
      static_cast<void>(r.DataAsStr8());
      break;
    default:
      r.ZeroDataSize();
      break;
  }
}

// Returns whether the operation threw.
bool Raises(TDIUnicodeReader& reader, std::uint8_t operation, std::uint8_t argument) {
  try {
    Apply(reader, operation, argument);
    return false;
  } catch (const ravo::Error&) {
    return true;
  }
}

void RequireSame(const TDIUnicodeReader& one, const TDIUnicodeReader& other) {
  Require(one.CharOK() == other.CharOK() && one.Char() == other.Char());
  Require(one.CharPos() == other.CharPos() && one.CharLine() == other.CharLine() &&
          one.CharCol() == other.CharCol());
  Require(one.SourceBufferPosition() == other.SourceBufferPosition() &&
          one.SourceBufferSize() == other.SourceBufferSize());
  Require(one.SourceBufferPosition() <= one.SourceBufferSize());
  Require(one.PeekedChars() == other.PeekedChars() && one.Data() == other.Data() &&
          one.DataCapacity() == other.DataCapacity());
}

// Returns one of the kernels that this processor runs.
const KernelSet& KernelOf(std::uint8_t choice) {
  std::vector<const KernelSet*> kernels;
  for (const KernelSet& kernel : KernelSets()) {
    if (kernel.runs_here()) kernels.push_back(&kernel);
  }
  return *kernels[choice % kernels.size()];
}

constexpr std::uint8_t kPush = 0xFF;
constexpr std::uint8_t kSetMethods = 0xFE;

}  // namespace

// The input: the encoding, another one, the split of the bytes and the kernel, the length of the script, the
// script in pairs of operation and argument, the bytes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t kHead = 4;
  if (size < kHead) return 0;
  const Methods first = MethodsOf<0>(data[0]);
  const Methods second = MethodsOf<1>(data[1]);
  const ScopedKernels kernel(KernelOf(data[2] / 8));
  const std::size_t pairs = std::min<std::size_t>(data[3], (size - kHead) / 2);
  const auto* const script = data + kHead;
  // A separate block, so that an out-of-bounds read is detected.
  const Bytes bytes(script + 2 * pairs, data + size);
  Side sides[] = {Side(true), Side(false)};
  for (Side& side : sides) {
    side.reader.SetAutoFreeSourceStreams(data[2] % 2 != 0 ? TAutoFreeSourceStreams::afAll
                                                          : TAutoFreeSourceStreams::afAllButFirst);
    side.Use(first);
    side.Open(bytes, static_cast<std::uint8_t>(data[2] / 2));
  }
  std::size_t depth = 0;
  for (std::size_t i = 0; i < pairs; ++i) {
    const std::uint8_t operation = script[2 * i];
    const std::uint8_t argument = script[2 * i + 1];
    bool raised[2] = {false, false};
    for (std::size_t side = 0; side < 2; ++side) {
      if (operation == kPush && depth < 8) {
        sides[side].reader.PushSource(argument % 2 != 0);
        sides[side].Open(std::span(bytes).first(bytes.size() / 2), argument);
      } else if (operation == kSetMethods) {
        sides[side].Use(argument % 2 != 0 ? second : first);
      } else {
        raised[side] = Raises(sides[side].reader, operation, argument);
      }
    }
    if (operation == kPush) ++depth;
    Require(raised[0] == raised[1]);
    RequireSame(sides[0].reader, sides[1].reader);
  }
  return 0;
}
