#include "support.h"
#include <ravo/codec/texts.h>
#include <ravo/common/stream_records.h>
#include <ravo/formout/form_values.h>
#include <ravo/formout/machine_free.h>
#include <ravo/runtime/byte_stream.h>
#include <ravo/runtime/little_endian.h>
#include <ravo/runtime/text.h>

#include <limits>
#include <span>

using ravo::c::BytesIn;
using ravo::c::FailNullResult;
using ravo::c::FailRange;
using ravo::c::Guarded;
using ravo::c::IsBroken;
using ravo::c::kNoMoment;
using ravo::c::ReadBytes;
using ravo::c::ReadText;
using ravo::c::TextIn;
using ravo::c::TextOut;
using ravo::c::Units;
using ravo::c::WriteBytes;
using ravo::c::WriteText;
namespace forms = ravo::RavoFileCommon;

namespace {

std::string FormBytes(std::string_view text) { return ravo::codec::EncodedWindows1250OfSystem(Units(text)); }

// Writes the bytes that `put` writes to a stream.
template <class Put>
ravo_status Streamed(const TextOut& out, ravo_error* error, Put put) {
  return Guarded(error, [&] {
    ravo::MemoryStream stream;
    put(stream);
    const std::span<const std::byte> bytes = stream.Bytes();
    return WriteBytes(out, {reinterpret_cast<const char*>(bytes.data()), bytes.size()}, error);
  });
}

// Where a string record has its text.
struct RecordParts {
  std::string_view text;
  std::size_t missing = 0;  // bytes that the record promises and does not have
  std::size_t end = 0;
};

// `bytes` has at least the four of the length, and it is not negative.
RecordParts PartsOfRecord(std::string_view bytes, std::size_t from, std::uint32_t promised) {
  const std::string_view text = bytes.substr(from + sizeof promised, promised);
  return {text, promised - text.size(), from + sizeof promised + text.size() + 1};
}

}  // namespace

ravo_status ravo_suite_win_1250_to_pdf_doc_encoding(const char* text, size_t text_length, void* buffer,
                                                    size_t size, size_t* length, ravo_error* error) {
  const TextIn input = ReadText(text, text_length, error);
  if (input.status != RAVO_OK) return input.status;
  return Streamed({static_cast<char*>(buffer), size, length}, error, [&](ravo::ByteStream& stream) {
    ravo::formout::WriteTextString(stream, FormBytes(input.text));
  });
}

ravo_status ravo_suite_fill_pdf_field(const char* name, size_t name_length, const char* value,
                                      size_t value_length, int32_t as_unicode, void* buffer, size_t size,
                                      size_t* length, ravo_error* error) {
  const TextIn field = ReadText(name, name_length, error);
  if (field.status != RAVO_OK) return field.status;
  const TextIn text = ReadText(value, value_length, error);
  if (text.status != RAVO_OK) return text.status;
  return Streamed({static_cast<char*>(buffer), size, length}, error, [&](ravo::ByteStream& stream) {
    ravo::formout::WriteField(stream, FormBytes(field.text), FormBytes(text.text), as_unicode != 0);
  });
}

ravo_status ravo_suite_fill_pdf_field_as_integer(const char* name, size_t name_length, int32_t value,
                                                 void* buffer, size_t size, size_t* length,
                                                 ravo_error* error) {
  const TextIn field = ReadText(name, name_length, error);
  if (field.status != RAVO_OK) return field.status;
  return Streamed({static_cast<char*>(buffer), size, length}, error, [&](ravo::ByteStream& stream) {
    ravo::formout::WriteIntegerField(stream, FormBytes(field.text), value);
  });
}

ravo_status ravo_suite_date_2_pdf(ravo_suite_moment moment, int32_t without_year, int32_t leading_zeros,
                                  char* buffer, size_t size, size_t* length, ravo_error* error) {
  return Guarded(
      error,
      [&] {
        const std::u16string date = forms::Date2PDF(moment, without_year != 0, leading_zeros != 0);
        return WriteText({buffer, size, length}, ravo::ToUtf8(date), error);
      },
      kNoMoment);
}

ravo_status ravo_suite_date_2_xml(ravo_suite_moment moment, char* buffer, size_t size, size_t* length,
                                  ravo_error* error) {
  return Guarded(
      error,
      [&] {
        return WriteText({buffer, size, length}, ravo::ToUtf8(forms::Date2XML(moment)), error);
      },
      kNoMoment);
}

ravo_status ravo_suite_bool_2_xml(int32_t value, char* buffer, size_t size, size_t* length,
                                  ravo_error* error) {
  return Guarded(error, [&] {
    return WriteText({buffer, size, length}, ravo::ToUtf8(forms::Bool2XML(value != 0)), error);
  });
}

ravo_status ravo_suite_string_to_stream(const void* bytes, size_t bytes_length, void* buffer, size_t size,
                                        size_t* length, ravo_error* error) {
  const BytesIn text = ReadBytes(bytes, bytes_length, error);
  if (text.status != RAVO_OK) return text.status;
  return Streamed({static_cast<char*>(buffer), size, length}, error, [&](ravo::ByteStream& stream) {
    ravo::RavoInterfaceCommon::StringToStream(&stream, text.bytes);
  });
}

ravo_status ravo_suite_string_from_stream(const void* bytes, size_t bytes_length, size_t from, void* buffer,
                                          size_t size, size_t* length, size_t* end, ravo_error* error) {
  if (end == nullptr) return FailNullResult(error);
  const BytesIn input = ReadBytes(bytes, bytes_length, error);
  if (input.status != RAVO_OK) return input.status;
  const TextOut out{static_cast<char*>(buffer), size, length};
  if (IsBroken(out)) return WriteBytes(out, {}, error);
  if (from > bytes_length || bytes_length - from < sizeof(std::uint32_t))
    return FailRange(error, "no record begins there");
  const std::uint32_t promised = ravo::ReadLittle32(std::as_bytes(std::span(input.bytes)), from);
  if (promised > std::numeric_limits<std::int32_t>::max())
    return FailRange(error, "the length of the record is negative");
  const RecordParts record = PartsOfRecord(input.bytes, from, promised);
  *end = record.end;
  return WriteBytes(out, record.text, error, record.missing);
}
