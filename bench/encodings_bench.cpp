// Whole texts between encodings and UTF-16, beside ICU's converters and the C library's iconv.
#include "ratio.h"
#include <ravo/DIUnicode.h>
#include <ravo/unicode/encodings/runs.h>

#include <cstring>
#include <random>

#include <iconv.h>
#include <unicode/ucnv.h>

namespace {

using Bytes = std::vector<std::uint8_t>;
using namespace ravo::DIUnicode;

constexpr std::size_t kSize = 1024 * 1024;

// Words of invoices and ledgers, with as many accents as such texts have.
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
  const Run run = EncodeRunOf(methods)(text, bytes);
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

auto IcuDecode(const char* name, Bytes bytes) {
  return [converter = Converter(name), bytes, text = std::u16string(bytes.size(), u'\0')]() mutable {
    UErrorCode error = U_ZERO_ERROR;
    const char* from = reinterpret_cast<const char*>(bytes.data());
    const char* const end = from + bytes.size();
    char16_t* to = text.data();
    ucnv_toUnicode(converter, &to, to + text.size(), &from, end, nullptr, 1, &error);
    return U_SUCCESS(error) && from == end;
  };
}

auto IcuEncode(const char* name, std::u16string text) {
  return [converter = Converter(name), text, bytes = Bytes(4 * text.size())]() mutable {
    UErrorCode error = U_ZERO_ERROR;
    char* to = reinterpret_cast<char*>(bytes.data());
    const char16_t* from = text.data();
    ucnv_fromUnicode(converter, &to, to + bytes.size(), &from, from + text.size(), nullptr, 1, &error);
    return U_SUCCESS(error) && from == text.data() + text.size();
  };
}

auto Iconv(const char* to_name, const char* from_name, std::string from) {
  return [handle = iconv_open(to_name, from_name), from, to = std::string(4 * from.size(), '\0')]() mutable {
    char* source = from.data();
    char* target = to.data();
    std::size_t left = from.size();
    std::size_t room = to.size();
    return iconv(handle, &source, &left, &target, &room) == 0 && left == 0;
  };
}

auto Decode(const TDIUnicodeReadMethods& methods, Bytes bytes) {
  return [run = DecodeRunOf(methods), bytes, text = std::u16string(bytes.size(), u'\0')]() mutable {
    return run(bytes, text).taken == bytes.size();
  };
}

auto Encode(const TDIUnicodeWriteMethods& methods, std::u16string text) {
  return [run = EncodeRunOf(methods), text, bytes = Bytes(4 * text.size() + 4)]() mutable {
    return run(text, bytes).taken == text.size();
  };
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
};

void RegisterJobs(const Encoding& encoding, const std::string& language, const std::u16string& text) {
  const Bytes bytes = BytesOf(*encoding.write, text);
  const std::string in = encoding.job + "_to_utf16_" + language;
  Register(in, ravo::bench::kOurs, text.size(), Decode(*encoding.read, bytes));
  Register(in, "icu", text.size(), IcuDecode(encoding.name, bytes));
  Register(in, "iconv", text.size(), Iconv("UTF-16LE", encoding.name, AsChars(bytes)));
  const std::string out = "utf16_to_" + encoding.job + "_" + language;
  Register(out, ravo::bench::kOurs, text.size(), Encode(*encoding.write, text));
  Register(out, "icu", text.size(), IcuEncode(encoding.name, text));
  Register(out, "iconv", text.size(), Iconv(encoding.name, "UTF-16LE", AsChars(text)));
}

}  // namespace

int main(int argc, char** argv) {
  const Encoding encodings[] = {{"1250", "windows-1250", &Read_Windows_1250, &Write_Windows_1250},
                                {"utf8", "UTF-8", &Read_UTF_8, &Write_UTF_8},
                                {"utf16be", "UTF-16BE", &Read_UTF_16_BE, &Write_UTF_16_BE}};
  for (const Encoding& encoding : encodings) {
    RegisterJobs(encoding, "czech", TextOf(kCzech, kSize));
    RegisterJobs(encoding, "ascii", TextOf(kEnglish, kSize));
  }
  return ravo::bench::RunWithRatios(argc, argv);
}
