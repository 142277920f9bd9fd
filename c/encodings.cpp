#include "columns_answers.h"
#include "encoding_number.h"
#include "handles.h"
#include "piece_converter.h"
#include <ravo/codec/byte_order_mark.h>
#include <ravo/convert/byte_conversions.h>

using ravo::c::Answer;
using ravo::c::BytesOf;
using ravo::c::Fail;
using ravo::c::FailArgument;
using ravo::c::FailNullResult;
using ravo::c::FailStruct;
using ravo::c::FailUnknown;
using ravo::c::Fill;
using ravo::c::Guarded;
using ravo::c::IsBroken;
using ravo::c::IsKnown;
using ravo::c::PieceConverter;
using ravo::c::ReadBytes;
using ravo::c::ReadText;
using ravo::c::TextOut;
namespace codec = ravo::codec;
namespace convert = ravo::convert;

namespace {

// Null for a number that is no encoding's.
const codec::Encoding* RowOf(ravo_encoding encoding) {
  const auto rows = codec::Encodings();
  return encoding >= 0 && static_cast<std::size_t>(encoding) < rows.size()
             ? &rows[static_cast<std::size_t>(encoding)]
             : nullptr;
}

ravo_status Found(const codec::Encoding* row, ravo_encoding* encoding, ravo_error* error) {
  if (row == nullptr) return FailUnknown(error, "there is no such encoding");
  *encoding = ravo::c::NumberOf(*row);
  return RAVO_OK;
}

// Why two encodings cannot be converted into each other; empty if they can.
std::string_view Obstacle(ravo_encoding from, ravo_encoding to, ravo_convert_policy policy) {
  const codec::Encoding* const source = RowOf(from);
  const codec::Encoding* const target = RowOf(to);
  if (source == nullptr || target == nullptr) return "the encoding is unknown";
  if (source->decode_one == nullptr) return "the encoding cannot be read";
  if (target->encode_one == nullptr) return "the encoding cannot be written";
  if (policy != RAVO_CONVERT_STRICT && policy != RAVO_CONVERT_REPLACE) return "the policy is unknown";
  return {};
}

convert::Conversion ConversionOf(ravo_encoding from, ravo_encoding to, ravo_convert_policy policy) {
  convert::Conversion conversion;
  conversion.from = RowOf(from);
  conversion.to = RowOf(to);
  conversion.measures = false;
  if (policy == RAVO_CONVERT_REPLACE) conversion.replacement = codec::kReplacement;
  return conversion;
}

// Bytes of the caller that are filled piece by piece, as long as they fit.
class Filler {
 public:
  explicit Filler(const TextOut& out) : out_(out) {}

  [[nodiscard]] std::span<std::uint8_t> Rest() const {
    if (length_ >= out_.size) return {};
    return {reinterpret_cast<std::uint8_t*>(out_.buffer) + length_, out_.size - length_};
  }

  // Bytes that were written into the rest stay there.
  void Add(std::string_view bytes) {
    if (length_ <= out_.size && bytes.size() <= out_.size - length_ && bytes.data() != out_.buffer + length_)
      std::copy_n(bytes.data(), bytes.size(), out_.buffer + length_);
    length_ += bytes.size();
  }

  [[nodiscard]] ravo_status Finish(ravo_error* error) const {
    if (out_.length != nullptr) *out_.length = length_;
    if (length_ <= out_.size || out_.buffer == nullptr) return RAVO_OK;
    return Fail(error, {RAVO_BUFFER, 0, 0, "the result is longer than its buffer"});
  }

 private:
  TextOut out_;
  std::size_t length_ = 0;
};

bool IsAscii(std::string_view text) {
  std::size_t at = 0;
  for (; text.size() - at >= sizeof(std::uint64_t); at += sizeof(std::uint64_t)) {
    if ((ravo::c::LoadAt<std::uint64_t>(text.data() + at, 0) & 0x8080'8080'8080'8080) != 0) return false;
  }
  return std::ranges::all_of(text.substr(at), [](char byte) { return (byte & 0x80) == 0; });
}

// Converts rows, each of which is a whole text.
class RowConverter {
 public:
  explicit RowConverter(const convert::Conversion& conversion)
      : keeps_ascii_(conversion.from->decode_until != nullptr && conversion.to->decode_until != nullptr),
        from_(*conversion.from),
        to_(*conversion.to),
        converter_(conversion) {}

  /// Begins the next text in memory of the caller, where it stays if there is room for it.
  void BeginIn(codec::ByteRoom memory) { memory_ = memory; }

  [[nodiscard]] Answer<std::string_view> operator()(std::string_view text) {
    if (const auto size = ConvertBytes(text)) return {{reinterpret_cast<char*>(memory_.data()), *size}};
    if (keeps_ascii_ && IsAscii(text)) return {text};
    converted_.bytes.BeginIn(memory_);
    if (converter_.ConvertAtOnce(BytesOf(text), converted_.bytes)) return {converted_.bytes.Text()};
    converted_.fault.reset();
    converter_.Restart();
    converter_.Convert(BytesOf(text), convert::Following::Nothing, converted_);
    // After a fault too: the next text begins anew.
    converter_.Finish(converted_.bytes);
    if (!converted_.fault) return {converted_.bytes.Text()};
    const bool lacks = converted_.fault->kind == convert::Fault::Kind::Lacking;
    return {{}, lacks ? std::uint16_t{RAVO_CODE_LACKING} : std::uint16_t{RAVO_CODE_MALFORMED}};
  }

 private:
  // Converts a short text in the memory of the caller.
  [[nodiscard]] std::optional<std::size_t> ConvertBytes(std::string_view text) {
    constexpr std::size_t kShort = 32;
    if (text.size() > kShort || text.size() * convert::ByteConversions::kMostBytes > memory_.size())
      return std::nullopt;
    return HasByteConversions() ? by_byte_->Convert(BytesOf(text), memory_) : std::nullopt;
  }

  // To make them takes as long as to convert some hundred texts.
  [[nodiscard]] bool HasByteConversions() {
    constexpr std::size_t kManyTexts = 512;
    if (by_byte_) return true;
    if (from_.table == nullptr || to_.encode_run == nullptr || ++short_texts_ < kManyTexts) return false;
    by_byte_.emplace(from_, to_);
    return true;
  }

  bool keeps_ascii_;
  const codec::Encoding& from_;
  const codec::Encoding& to_;
  std::optional<convert::ByteConversions> by_byte_;
  std::size_t short_texts_ = 0;
  codec::ByteRoom memory_;
  convert::TextConverter converter_;
  convert::Converted converted_;
};

bool IsFixed(const ravo_column* column) {
  return column != nullptr && column->size >= sizeof *column &&
         (column->layout == RAVO_LAYOUT_FIXED || IsFixed(column->dictionary));
}

// Whether NULs at the end of a value, which are left out, can be a part of its last character.
bool LosesNuls(const ravo_column* column, const codec::Encoding& from) {
  constexpr std::string_view kWideEngines[] = {"Utf16", "Utf32", "Ucs2", "Ucs4"};
  return std::ranges::find(kWideEngines, from.engine) != std::end(kWideEngines) && IsFixed(column);
}

struct Listener {
  ravo_progress progress;
  void* context;
};

ravo_status ConvertWhole(std::string_view bytes, PieceConverter& converter, Filler& filler,
                         const Listener& listener, ravo_error* error) {
  constexpr std::size_t kPiece = std::size_t{1} << 16;  // between two reports of progress
  std::size_t done = 0;
  do {
    const std::string_view piece = bytes.substr(done, kPiece);
    done += piece.size();
    converter.BeginIn(filler.Rest());
    const ravo_status status = converter.Convert(piece, done == bytes.size(), error);
    if (status != RAVO_OK) return status;
    filler.Add(converter.Made());
    const std::int32_t answer =
        listener.progress == nullptr ? 0 : listener.progress(listener.context, done, bytes.size());
    if (answer != 0) return ravo::c::FailStopped(error, answer, done);
  } while (done != bytes.size());
  return filler.Finish(error);
}

}  // namespace

struct ravo_converter : ravo::c::Handle {
  PieceConverter pieces;
  std::size_t pulled = 0;
  bool failed = false;
};

size_t ravo_encoding_count(void) { return codec::Encodings().size(); }

ravo_status ravo_encoding_at(ravo_encoding encoding, ravo_encoding_info* info, ravo_error* error) {
  if (!IsKnown(info)) return FailStruct(error);
  const codec::Encoding* const row = RowOf(encoding);
  if (row == nullptr) return FailUnknown(error, "there is no such encoding");
  Fill(*info, {0, row->name.data(), row->label.data(), row->aliases.data(), row->notes.data(),
               static_cast<int32_t>(row->code_page), row->decode_one != nullptr, row->encode_one != nullptr});
  return RAVO_OK;
}

ravo_status ravo_encoding_find(const char* name, size_t name_length, ravo_encoding* encoding,
                               ravo_error* error) {
  if (encoding == nullptr) return FailNullResult(error);
  const auto [input, status] = ReadText(name, name_length, error);
  if (status != RAVO_OK) return status;
  return Found(codec::FindEncoding(input), encoding, error);
}

ravo_status ravo_encoding_of_code_page(int32_t code_page, ravo_encoding* encoding, ravo_error* error) {
  if (encoding == nullptr) return FailNullResult(error);
  const auto number = static_cast<std::uint32_t>(code_page);
  return Found(code_page <= 0 ? nullptr : codec::FindEncoding(number), encoding, error);
}

ravo_status ravo_encoding_of_mark(const void* bytes, size_t bytes_length, ravo_encoding* encoding,
                                  size_t* mark_length, ravo_error* error) {
  if (encoding == nullptr) return FailNullResult(error);
  const auto [input, status] = ReadBytes(bytes, bytes_length, error);
  if (status != RAVO_OK) return status;
  const codec::ByteOrderMark mark = codec::FindByteOrderMark(BytesOf(input));
  if (mark.order == codec::ByteOrder::Unknown) return FailUnknown(error, "there is no byte-order mark");
  if (mark_length != nullptr) *mark_length = mark.length;
  return Found(codec::FindEncoding(mark.encoding), encoding, error);
}

ravo_status ravo_convert(ravo_encoding from, const void* bytes, size_t bytes_length, ravo_encoding to,
                         ravo_convert_policy policy, void* buffer, size_t size, size_t* length,
                         ravo_progress progress, void* context, ravo_error* error) {
  if (const auto obstacle = Obstacle(from, to, policy); !obstacle.empty())
    return FailArgument(error, obstacle);
  const TextOut out{static_cast<char*>(buffer), size, length};
  if (IsBroken(out)) return FailArgument(error, "the buffer is null, but its size is not 0");
  const auto [input, status] = ReadBytes(bytes, bytes_length, error);
  if (status != RAVO_OK) return status;
  return Guarded(error, [&, &text = input] {
    PieceConverter converter(ConversionOf(from, to, policy));
    Filler filler(out);
    return ConvertWhole(text, converter, filler, {progress, context}, error);
  });
}

ravo_status ravo_convert_column(ravo_encoding from, const ravo_column* column, uint32_t flags,
                                ravo_encoding to, ravo_convert_policy policy, ravo_answers* answers,
                                ravo_progress progress, void* context, ravo_error* error) {
  if (const auto obstacle = Obstacle(from, to, policy); !obstacle.empty())
    return FailArgument(error, obstacle);
  if (LosesNuls(column, *RowOf(from)))
    return FailArgument(error,
                        "values of one width cannot have the encoding: NULs at their end are left out");
  return Guarded(error, [&] {
    return ravo::c::AnswerTexts<ravo::c::kTexts>(column, {flags, progress, context}, answers, error,
                                                 RowConverter(ConversionOf(from, to, policy)));
  });
}

ravo_status ravo_converter_open(ravo_encoding from, ravo_encoding to, ravo_convert_policy policy,
                                ravo_converter** converter, ravo_error* error) {
  if (converter == nullptr) return FailNullResult(error);
  if (const auto obstacle = Obstacle(from, to, policy); !obstacle.empty())
    return FailArgument(error, obstacle);
  return Guarded(error, [&] {
    *converter = new ravo_converter{{}, PieceConverter(ConversionOf(from, to, policy))};
    return RAVO_OK;
  });
}

void ravo_converter_close(ravo_converter* converter) { ravo::c::Close(converter); }

ravo_status ravo_converter_push(ravo_converter* converter, const void* bytes, size_t bytes_length,
                                int32_t is_last, ravo_error* error) {
  if (!IsOpen(converter)) return FailArgument(error, "the converter is null or closed");
  const auto [input, status] = ReadBytes(bytes, bytes_length, error);
  if (status != RAVO_OK) return status;
  if (converter->failed) return FailArgument(error, "the converter has failed or is at its end");
  // Also if there is no memory in the middle.
  converter->failed = true;
  const ravo_status result =
      Guarded(error, [&, &text = input] { return converter->pieces.Convert(text, is_last != 0, error); });
  converter->failed = result != RAVO_OK || is_last != 0;
  return result;
}

ravo_status ravo_converter_pull(ravo_converter* converter, void* buffer, size_t size, size_t* length,
                                ravo_error* error) {
  if (!IsOpen(converter)) return FailArgument(error, "the converter is null or closed");
  if (length == nullptr) return FailNullResult(error);
  if (buffer == nullptr && size != 0) return FailArgument(error, "the buffer is null, but its size is not 0");
  const std::string_view made = converter->pieces.Made().substr(converter->pulled);
  *length = made.copy(static_cast<char*>(buffer), size);
  converter->pulled += *length;
  if (*length == made.size()) {
    converter->pieces.Clear();
    converter->pulled = 0;
  }
  return RAVO_OK;
}
