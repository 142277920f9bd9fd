// String families beside what a program would use instead, on ASCII and on Czech text.
#include "ratio.h"
#include <ravo/DIUtils.h>

#include <algorithm>
#include <clocale>
#include <cstring>
#include <cwchar>
#include <functional>
#include <random>

#include <curl/curl.h>
#include <fnmatch.h>
#include <glib.h>
#include <libxml/uri.h>
#include <unicode/uchar.h>
#include <unicode/ustring.h>
#include <utf8.h>

namespace {

using namespace ravo::DIUtils;
using Text = std::u16string;

constexpr std::u16string_view kAscii =
    u"The quick brown fox jumps over the lazy dog, invoice No. 2024/0042. ";
constexpr std::u16string_view kCzech = u"Příliš žluťoučký kůň úpěl ďábelské ódy, faktura č. 2024/0042. ";

Text Repeated(std::u16string_view piece, std::size_t length) {
  Text text;
  while (text.size() < length) text += piece;
  text.resize(length);
  return text;
}

// The words of a text in random order: a repeated text is one that the processor's branch predictor learns.
Text Shuffled(std::u16string_view words, std::size_t length) {
  std::vector<std::u16string_view> list;
  for (std::size_t at = 0; at < words.size(); at = words.find(u' ', at) + 1)
    list.push_back(words.substr(at, words.find(u' ', at) + 1 - at));
  std::mt19937 random(20240229);
  Text text;
  while (text.size() < length) text += list[random() % list.size()];
  text.resize(length);
  return text;
}

void Register(const std::string& job, std::string_view name, std::function<std::size_t()> work) {
  const std::string full_name = job + "/" + std::string(name);
  benchmark::RegisterBenchmark(full_name.c_str(), [work](benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(work());
  });
}

std::wstring Wide(const Text& text) { return {text.begin(), text.end()}; }
std::string Bytes(const Text& text) { return StrEncodeUtf8(text); }
std::int32_t Size(const Text& text) { return static_cast<std::int32_t>(text.size()); }

// A text that ends with the search text and starts with many of its first characters, or with none.
void RegisterSearch(const std::string& job, Text text, const Text& search) {
  text += search;
  Register("StrPosW_" + job, ravo::bench::kOurs, [=] { return StrPosW(search, text); });
  Register("StrPosW_" + job, "std::search", [=] {
    return static_cast<std::size_t>(std::search(text.begin(), text.end(), search.begin(), search.end()) -
                                    text.begin());
  });
  Register("StrPosW_" + job, "memmem", [=] {
    const void* found = memmem(text.data(), 2 * text.size(), search.data(), 2 * search.size());
    return static_cast<std::size_t>(static_cast<const char16_t*>(found) - text.data());
  });
  Register("StrPosW_" + job, "icu", [=] {
    return static_cast<std::size_t>(u_strFindFirst(text.data(), Size(text), search.data(), Size(search)) -
                                    text.data());
  });
  Register("StrPosIW_" + job, ravo::bench::kOurs, [=] { return StrPosIW(search, text); });
  Register("StrPosIW_" + job, "icu", [=] {
    UErrorCode error = U_ZERO_ERROR;
    Text folded(text.size() + 16, u'\0');
    Text folded_search(search.size() + 16, u'\0');
    const auto n =
        u_strFoldCase(folded.data(), Size(folded), text.data(), Size(text), U_FOLD_CASE_DEFAULT, &error);
    const auto m = u_strFoldCase(folded_search.data(), Size(folded_search), search.data(), Size(search),
                                 U_FOLD_CASE_DEFAULT, &error);
    return static_cast<std::size_t>(u_strFindFirst(folded.data(), n, folded_search.data(), m) -
                                    folded.data());
  });
}

void RegisterComparison(const std::string& job, const Text& text) {
  const Text other = StrToUpperW(text);
  const std::wstring wide = Wide(text);
  const std::wstring wide_other = Wide(other);
  for (const std::string name : {"StrSameIW_", "StrCompIW_"}) {
    if (name == "StrSameIW_")
      Register(name + job, ravo::bench::kOurs, [=] { return StrSameIW(text, other); });
    else
      Register(name + job, ravo::bench::kOurs,
               [=] { return static_cast<std::size_t>(StrCompIW(text, other)); });
    Register(name + job, "wcscasecmp",
             [=] { return static_cast<std::size_t>(wcscasecmp(wide.c_str(), wide_other.c_str())); });
    Register(name + job, "icu", [=] {
      UErrorCode error = U_ZERO_ERROR;
      return static_cast<std::size_t>(
          u_strCaseCompare(text.data(), Size(text), other.data(), Size(other), 0, &error));
    });
  }
}

void RegisterNatural() {
  const Text left = u"faktura-2024-000123-verze9.pdf";
  const Text right = u"faktura-2024-000123-verze10.pdf";
  const std::string narrow_left = Bytes(left);
  const std::string narrow_right = Bytes(right);
  Register("StrCompNumW", ravo::bench::kOurs,
           [=] { return static_cast<std::size_t>(StrCompNumW(left, right)); });
  Register("StrCompNumW", "strverscmp",
           [=] { return static_cast<std::size_t>(strverscmp(narrow_left.c_str(), narrow_right.c_str())); });
}

void RegisterMask(const std::string& job, const Text& text, const Text& mask) {
  const std::string narrow = Bytes(text);
  const std::string narrow_mask = Bytes(mask);
  Register("StrMatchWildW_" + job, ravo::bench::kOurs, [=] { return StrMatchWildW(text, mask); });
  Register("StrMatchWildW_" + job, "fnmatch",
           [=] { return static_cast<std::size_t>(fnmatch(narrow_mask.c_str(), narrow.c_str(), 0)); });
}

Text FindAndAppend(const Text& text, const Text& search, const Text& replacement) {
  Text result;
  std::size_t from = 0;
  for (std::size_t at; (at = text.find(search, from)) != Text::npos; from = at + search.size()) {
    result += text.substr(from, at - from);
    result += replacement;
  }
  return result += text.substr(from);
}

void RegisterReplace(const std::string& job, const Text& text, const Text& search) {
  const Text replacement = u"<>";
  Register("StrReplaceW_" + job, ravo::bench::kOurs,
           [=] { return StrReplaceW(text, search, replacement).size(); });
  Register("StrReplaceW_" + job, "find_append",
           [=] { return FindAndAppend(text, search, replacement).size(); });
}

void RegisterUtf8(const std::string& job, const Text& text) {
  const std::string bytes = Bytes(text);
  Register("BufDecodeUtf8_" + job, ravo::bench::kOurs,
           [=] { return BufDecodeUtf8(bytes.data(), bytes.size()).size(); });
  Register("BufDecodeUtf8_" + job, "icu", [=] {
    UErrorCode error = U_ZERO_ERROR;
    Text result(bytes.size(), u'\0');
    std::int32_t length = 0;
    u_strFromUTF8(result.data(), Size(result), &length, bytes.data(), static_cast<std::int32_t>(bytes.size()),
                  &error);
    result.resize(static_cast<std::size_t>(length));
    return result.size();
  });
  Register("BufDecodeUtf8_" + job, "utfcpp", [=] { return utf8::utf8to16(bytes).size(); });
  Register("BufEncodeUtf8_" + job, ravo::bench::kOurs,
           [=] { return BufEncodeUtf8(text.data(), text.size()).size(); });
  Register("BufEncodeUtf8_" + job, "icu", [=] {
    UErrorCode error = U_ZERO_ERROR;
    std::string result(3 * text.size(), '\0');
    std::int32_t length = 0;
    u_strToUTF8(result.data(), static_cast<std::int32_t>(result.size()), &length, text.data(), Size(text),
                &error);
    result.resize(static_cast<std::size_t>(length));
    return result.size();
  });
  Register("BufEncodeUtf8_" + job, "utfcpp", [=] { return utf8::utf16to8(text).size(); });
}

void RegisterUrl(const std::string& job, const Text& text) {
  const std::string bytes = Bytes(text);
  const std::string encoded = StrEncodeUrlA(bytes);
  Register("StrEncodeUrlA_" + job, ravo::bench::kOurs, [=] { return StrEncodeUrlA(bytes).size(); });
  Register("StrEncodeUrlA_" + job, "glib", [=] {
    char* result = g_uri_escape_string(bytes.c_str(), "@*", false);
    const std::size_t size = std::strlen(result);
    g_free(result);
    return size;
  });
  Register("StrEncodeUrlA_" + job, "curl", [=] {
    char* result = curl_easy_escape(nullptr, bytes.data(), static_cast<int>(bytes.size()));
    const std::size_t size = std::strlen(result);
    curl_free(result);
    return size;
  });
  Register("StrEncodeUrlA_" + job, "libxml2", [=] {
    xmlChar* result = xmlURIEscapeStr(reinterpret_cast<const xmlChar*>(bytes.c_str()), BAD_CAST "@*");
    const std::size_t size = std::strlen(reinterpret_cast<const char*>(result));
    xmlFree(result);
    return size;
  });
  Register("StrDecodeUrlA_" + job, ravo::bench::kOurs, [=] { return StrDecodeUrlA(encoded).size(); });
  Register("StrDecodeUrlA_" + job, "glib", [=] {
    char* result = g_uri_unescape_string(encoded.c_str(), nullptr);
    const std::size_t size = result ? std::strlen(result) : 0;
    g_free(result);
    return size;
  });
  Register("StrDecodeUrlA_" + job, "curl", [=] {
    int length = 0;
    char* result = curl_easy_unescape(nullptr, encoded.data(), static_cast<int>(encoded.size()), &length);
    curl_free(result);
    return static_cast<std::size_t>(length);
  });
  Register("StrDecodeUrlA_" + job, "libxml2", [=] {
    char* result = xmlURIUnescapeString(encoded.data(), static_cast<int>(encoded.size()), nullptr);
    const std::size_t size = std::strlen(result);
    xmlFree(result);
    return size;
  });
}

}  // namespace

int main(int argc, char** argv) {
  // Without a locale that has the letters, wcscasecmp would stop at the first one past ASCII.
  std::setlocale(LC_CTYPE, "cs_CZ.UTF-8");
  constexpr std::size_t kMiB = std::size_t{1} << 20;
  RegisterSearch("rare_ascii", Repeated(kAscii, kMiB), u"#hash");
  RegisterSearch("common_ascii", Repeated(kAscii, kMiB), u"other");
  RegisterSearch("rare_czech", Repeated(kCzech, kMiB), u"ŕada");
  RegisterSearch("common_czech", Repeated(kCzech, kMiB), u"žlutý");
  RegisterSearch("short", Repeated(kCzech, 35), u"žlutý");
  RegisterComparison("short_ascii", Repeated(kAscii, 12));
  RegisterComparison("short_czech", Repeated(kCzech, 12));
  RegisterComparison("long_ascii", Repeated(kAscii, 4096));
  RegisterComparison("long_czech", Repeated(kCzech, 4096));
  RegisterNatural();
  RegisterMask("file", u"faktura-2024-000123-verze9.pdf", u"*-2024-*verze?.pdf");
  RegisterMask("pieces", Repeated(kAscii, 4000), u"*fox*lazy*0042*dog*quick*");
  RegisterMask("hard", Text(4000, u'a'), u"*" + Text(2000, u'a') + u"b");
  const Text middle = u"*" + Text(1000, u'a') + u"b" + Text(1000, u'a');
  RegisterMask("hard_middle", Text(4000, u'a'), middle);
  RegisterMask("hard_ones", Text(4000, u'a'), middle + u"?a*");
  RegisterReplace("many_hits", Repeated(kAscii, 65536), u"o");
  RegisterReplace("few_hits", Repeated(kAscii, 65536) + u"needle", u"needle");
  for (const auto& [name, size] : {std::pair{"_4k", 4096U}, {"", 65536U}, {"_1m", 1048576U}}) {
    RegisterUtf8(std::string("ascii") + name, Shuffled(kAscii, size));
    RegisterUtf8(std::string("czech") + name, Shuffled(kCzech, size));
  }
  RegisterUrl("ascii", Repeated(kAscii, 65536));
  RegisterUrl("czech", Repeated(kCzech, 65536));
  return ravo::bench::RunWithRatios(argc, argv);
}
