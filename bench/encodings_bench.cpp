// Whole texts between encodings and UTF-16, beside ICU's converters and the C library's iconv.
#include "ratio.h"
#include <ravo/DIUnicode.h>
#include <ravo/unicode/encoding_of.h>

#include <cerrno>
#include <random>
#include <utility>

#include <iconv.h>
#include <unicode/ucnv.h>

namespace {

using Bytes = std::vector<std::uint8_t>;
using namespace ravo::DIUnicode;
using ravo::codec::Run;
using ravo::unicode::EncodingOf;

constexpr std::size_t kSize = 1024 * 1024;
constexpr std::size_t kPiece = 4096;

// Words of invoices and ledgers, with the usual share of accents.
constexpr std::u16string_view kCzech[] = {u"účet",
                                          u"předkontace",
                                          u"zákazník",
                                          u"dodavatel",
                                          u"faktura",
                                          u"částka",
                                          u"splatnost",
                                          u"úhrada",
                                          u"daňový",
                                          u"doklad",
                                          u"středisko",
                                          u"zakázka",
                                          u"měsíc",
                                          u"říjen",
                                          u"květen",
                                          u"pokladna",
                                          u"výdajový",
                                          u"příjmový",
                                          u"a",
                                          u"na",
                                          u"za",
                                          u"je",
                                          u"pro",
                                          u"společnost",
                                          u"s. r. o.",
                                          u"Žižkov",
                                          u"Ústí",
                                          u"ulice",
                                          u"číslo",
                                          u"1 250,00 Kč",
                                          u"DPH",
                                          u"základ",
                                          u"snížená",
                                          u"sazba",
                                          u"odběratel",
                                          u"skladem",
                                          u"kus",
                                          u"zboží",
                                          u"přeprava",
                                          u"celkem",
                                          u"zaplaceno",
                                          u"převodem",
                                          u"variabilní symbol",
                                          u"2026000579",
                                          u"výpis",
                                          u"banka",
                                          u"mzda",
                                          u"odpisy"};
constexpr std::u16string_view kEnglish[] = {
    u"account",  u"customer", u"supplier", u"invoice", u"amount",  u"due",         u"payment", u"tax",
    u"document", u"centre",   u"order",    u"month",   u"October", u"May",         u"cash",    u"and",
    u"on",       u"for",      u"is",       u"company", u"Ltd.",    u"street",      u"number",  u"1,250.00",
    u"VAT",      u"basis",    u"reduced",  u"rate",    u"stock",   u"piece",       u"goods",   u"carriage",
    u"total",    u"paid",     u"by",       u"bank",    u"wages",   u"depreciation"};

std::u16string TextOf(std::span<const std::u16string_view> words, std::size_t size) {
  std::mt19937 random(20240229);
  std::uniform_int_distribution<std::size_t> pick(0, words.size() - 1);
  std::u16string text;
  while (text.size() < size) text.append(words[pick(random)]).append(text.size() % 79 < 9 ? u"\r\n" : u" ");
  text.resize(size);
  return text;
}

Bytes BytesOf(const TDIUnicodeWriteMethods& methods, std::u16string_view text) {
  Bytes bytes(4 * text.size() + 4);
  const Run run = EncodingOf(methods)->encode_run(text, bytes);
  if (run.taken != text.size()) std::abort();
  bytes.resize(run.made);
  return bytes;
}

template <class Convert>
void Register(const std::string& job, std::string_view name, std::size_t size, Convert convert) {
  const std::string full_name = job + "/" + std::string(name);
  benchmark::RegisterBenchmark(full_name.c_str(), [size, convert](benchmark::State& state) mutable {
    for (auto _ : state) {
      if (!convert()) std::abort();
      benchmark::ClobberMemory();
    }
    state.counters["items"] = static_cast<double>(size);
  });
}

// ICU: one converter, reset for each text.
UConverter* Converter(const char* name) {
  UErrorCode error = U_ZERO_ERROR;
  UConverter* const converter = ucnv_open(name, &error);
  if (U_FAILURE(error)) std::abort();
  return converter;
}

// `room` is the size of the target in characters or bytes; it is reused until the source is consumed.
auto IcuDecode(const char* name, Bytes bytes, std::size_t room) {
  return [converter = Converter(name), bytes, text = std::u16string(room, u'\0')]() mutable {
    const char* from = reinterpret_cast<const char*>(bytes.data());
    const char* const end = from + bytes.size();
    UErrorCode error = U_BUFFER_OVERFLOW_ERROR;
    while (error == U_BUFFER_OVERFLOW_ERROR) {
      error = U_ZERO_ERROR;
      char16_t* to = text.data();
      ucnv_toUnicode(converter, &to, to + text.size(), &from, end, nullptr, 1, &error);
    }
    return U_SUCCESS(error) && from == end;
  };
}

auto IcuEncode(const char* name, std::u16string text, std::size_t room) {
  return [converter = Converter(name), text, bytes = Bytes(room)]() mutable {
    const char16_t* from = text.data();
    const char16_t* const end = from + text.size();
    UErrorCode error = U_BUFFER_OVERFLOW_ERROR;
    while (error == U_BUFFER_OVERFLOW_ERROR) {
      error = U_ZERO_ERROR;
      char* to = reinterpret_cast<char*>(bytes.data());
      ucnv_fromUnicode(converter, &to, to + bytes.size(), &from, end, nullptr, 1, &error);
    }
    return U_SUCCESS(error) && from == end;
  };
}

auto Iconv(const char* to_name, const char* from_name, std::string from, std::size_t room) {
  return [handle = iconv_open(to_name, from_name), from, to = std::string(room, '\0')]() mutable {
    char* source = from.data();
    std::size_t left = from.size();
    while (left > 0) {
      char* target = to.data();
      std::size_t rest = to.size();
      if (iconv(handle, &source, &left, &target, &rest) != 0 && errno != E2BIG) break;
    }
    return left == 0;
  };
}

// Ours, in either direction.
template <class Convert, class Source, class Target>
auto InPieces(Convert convert, Source source, Target target) {
  return [convert, source, target]() mutable {
    std::span from(std::as_const(source));
    while (!from.empty()) {
      const Run run = convert(from, target);
      if (run.taken == 0) return false;
      from = from.subspan(run.taken);
    }
    return true;
  };
}

auto Decode(const TDIUnicodeReadMethods& methods, const Bytes& bytes, std::size_t room) {
  return InPieces(EncodingOf(methods)->decode_run, bytes, std::u16string(room, u'\0'));
}

auto Encode(const TDIUnicodeWriteMethods& methods, const std::u16string& text, std::size_t room) {
  return InPieces(EncodingOf(methods)->encode_run, text, Bytes(room));
}

std::string AsChars(const Bytes& bytes) { return {bytes.begin(), bytes.end()}; }

std::string AsChars(std::u16string_view text) {
  return {reinterpret_cast<const char*>(text.data()), 2 * text.size()};
}

struct Encoding {
  std::string job;
  const char* name;
  const TDIUnicodeReadMethods* read;
  const TDIUnicodeWriteMethods* write;
  std::size_t most_bytes;
};

// `room` characters are converted at once, and as many bytes as they may need.
void RegisterJobs(const Encoding& encoding, const std::string& language, const std::u16string& text,
                  std::size_t room) {
  const Bytes bytes = BytesOf(*encoding.write, text);
  const std::string in = encoding.job + "_to_utf16_" + language;
  Register(in, ravo::bench::kOurs, text.size(), Decode(*encoding.read, bytes, room));
  Register(in, "icu", text.size(), IcuDecode(encoding.name, bytes, room));
  Register(in, "iconv", text.size(), Iconv("UTF-16LE", encoding.name, AsChars(bytes), 2 * room));
  const std::string out = "utf16_to_" + encoding.job + "_" + language;
  const std::size_t bytes_room = encoding.most_bytes * room;
  Register(out, ravo::bench::kOurs, text.size(), Encode(*encoding.write, text, bytes_room));
  Register(out, "icu", text.size(), IcuEncode(encoding.name, text, bytes_room));
  Register(out, "iconv", text.size(), Iconv(encoding.name, "UTF-16LE", AsChars(text), bytes_room));
}

}  // namespace

int main(int argc, char** argv) {
  const Encoding encodings[] = {{"1250", "windows-1250", &Read_Windows_1250, &Write_Windows_1250, 1},
                                {"utf8", "UTF-8", &Read_UTF_8, &Write_UTF_8, 3},
                                {"utf16be", "UTF-16BE", &Read_UTF_16_BE, &Write_UTF_16_BE, 2}};
  const std::u16string czech = TextOf(kCzech, kSize);
  const std::u16string ascii = TextOf(kEnglish, kSize);
  // The whole text at once, and in blocks of a typical stream size.
  for (const Encoding& encoding : encodings) {
    RegisterJobs(encoding, "czech", czech, kSize);
    RegisterJobs(encoding, "ascii", ascii, kSize);
    RegisterJobs(encoding, "czech_4k", czech, kPiece);
    RegisterJobs(encoding, "ascii_4k", ascii, kPiece);
  }
  return ravo::bench::RunWithRatios(argc, argv);
}
