// Texts through reader and writer, beside the C library's iconv; lines beside std::getline with and without
// ICU's conversion of each line to UTF-16.
#include "ratio.h"
#include <ravo/DIUnicode.h>

#include <functional>
#include <memory>
#include <random>
#include <sstream>

#include <iconv.h>
#include <unicode/ucnv.h>

namespace {

using namespace ravo::DIUnicode;

constexpr std::size_t kText = std::size_t{1} << 20;
constexpr std::size_t kLongText = std::size_t{50} << 20;

constexpr std::u16string_view kCzech[] = {
    u"faktura č. 2026000579", u"příjmový doklad",   u"úhrada za zboží",
    u"předkontace 311/602",   u"středisko Žižkov",  u"1 250,00 Kč",
    u"základ daně",           u"snížená sazba",     u"odběratel",
    u"převodem z banky",      u"variabilní symbol", u"splatnost 14 dní"};
constexpr std::u16string_view kAscii[] = {u"invoice 2026000579", u"receipt",       u"payment for goods",
                                          u"account 311/602",    u"1,250.00",      u"reduced rate",
                                          u"customer",           u"bank transfer", u"due in 14 days"};

// Lines of sixty to a hundred characters with ";" between the phrases.
std::u16string TextOf(std::span<const std::u16string_view> phrases, std::size_t size) {
  std::mt19937 random(20240229);
  std::u16string text;
  for (std::size_t line_start = 0; text.size() < size;) {
    text += phrases[random() % phrases.size()];
    const bool full = text.size() - line_start > 60;
    text += full ? u"\r\n" : u"; ";
    if (full) line_start = text.size();
  }
  text.resize(size);
  return text;
}

std::string Encoded(std::u16string_view text, const TDIUnicodeWriteMethods& methods) {
  TDIUnicodeWriter writer;
  writer.SetWriteMethods(methods);
  writer.WriteStrW(text);
  return writer.DataToStrRaw();
}

// A stream that only counts the written bytes: the time of memory counts for neither side.
class CountingStream final : public ravo::ByteStream {
 public:
  [[nodiscard]] std::size_t Read(std::span<std::byte>) override { return 0; }
  [[nodiscard]] std::size_t Write(std::span<const std::byte> from) override {
    size_ += std::ssize(from);
    return from.size();
  }
  [[nodiscard]] std::int64_t Position() const override { return size_; }
  void SetPosition(std::int64_t) override {}
  [[nodiscard]] std::int64_t Size() const override { return size_; }

 private:
  std::int64_t size_ = 0;
};

// One iteration is the whole text; times are of one unit of the source.
void Register(const std::string& name, std::size_t items, std::function<std::size_t()> job) {
  benchmark::RegisterBenchmark(name.c_str(), [job = std::move(job), items](benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(job());
    state.counters["items"] = static_cast<double>(items);
  });
}

std::function<std::size_t()> ThroughReaderAndWriter(const std::string& source,
                                                    const TDIUnicodeReadMethods& from,
                                                    const TDIUnicodeWriteMethods& to) {
  const auto stream = std::make_shared<ravo::MemoryStream>(std::as_bytes(std::span(source)));
  return [stream, from, to] {
    stream->SetPosition(0);
    CountingStream target;
    TDIUnicodeWriter writer;
    writer.SetWriteMethods(to);
    writer.SetDataStream(&target);
    writer.WriteStream(stream.get(), from);
    writer.FlushDataBuffer();
    return static_cast<std::size_t>(target.Size());
  };
}

std::function<std::size_t()> ThroughIconv(const std::string& source, const char* from, const char* to) {
  const iconv_t converter = iconv_open(to, from);
  const auto target = std::make_shared<std::vector<char>>(4 * source.size());
  return [source, converter, target] {
    auto* in = const_cast<char*>(source.data());
    std::size_t in_left = source.size();
    char* out = target->data();
    std::size_t out_left = target->size();
    if (iconv(converter, &in, &in_left, &out, &out_left) == static_cast<std::size_t>(-1)) std::abort();
    return target->size() - out_left;
  };
}

struct Side {
  const TDIUnicodeReadMethods& read;
  const TDIUnicodeWriteMethods& write;
  const char* iconv_name;
};

void RegisterConversion(const std::string& job, std::u16string_view text, const Side& from, const Side& to) {
  const std::string source = Encoded(text, from.write);
  const auto ours = ThroughReaderAndWriter(source, from.read, to.write);
  const auto theirs = ThroughIconv(source, from.iconv_name, to.iconv_name);
  if (ours() != theirs()) std::abort();
  Register(job + "/ravo", source.size(), ours);
  Register(job + "/iconv", source.size(), theirs);
}

using Step = void (*)(TDIUnicodeReader& reader);

// Steps until the text ends; returns the collected text, so that it is used.
std::function<std::size_t()> Steps(std::shared_ptr<const std::string> source,
                                   const TDIUnicodeReadMethods& from, Step step) {
  return [source = std::move(source), from, step] {
    TDIUnicodeReader reader;
    reader.SetReadMethods(from);
    reader.SetSourceBufferAsStrA(*source);
    std::size_t sum = 0;
    reader.ReadChar();
    while (reader.CharOK()) {
      step(reader);
      sum += reader.DataSize();
    }
    return sum;
  };
}

std::function<std::size_t()> Lines(const std::shared_ptr<const std::string>& source, char end) {
  const auto stream = std::make_shared<std::istringstream>(*source);
  return [stream, end] {
    stream->clear();
    stream->seekg(0);
    std::size_t sum = 0;
    for (std::string line; std::getline(*stream, line, end);) sum += line.size();
    return sum;
  };
}

// The same work as a reader: each line is UTF-16 in the end.
std::function<std::size_t()> LinesByIcu(const std::shared_ptr<const std::string>& source, char end,
                                        const char* encoding) {
  const auto stream = std::make_shared<std::istringstream>(*source);
  UErrorCode error = U_ZERO_ERROR;
  const std::shared_ptr<UConverter> converter(ucnv_open(encoding, &error), ucnv_close);
  if (U_FAILURE(error)) std::abort();
  return [stream, end, converter] {
    stream->clear();
    stream->seekg(0);
    std::size_t sum = 0;
    std::u16string text;
    for (std::string line; std::getline(*stream, line, end);) {
      UErrorCode status = U_ZERO_ERROR;
      text.resize(std::max(text.size(), line.size() + 1));
      const int size = ucnv_toUChars(converter.get(), text.data(), static_cast<int>(text.size()), line.data(),
                                     static_cast<int>(line.size()), &status);
      if (U_FAILURE(status)) std::abort();
      sum += static_cast<std::size_t>(size);
    }
    return sum;
  };
}

void RegisterSteps(const std::string& job, const std::string& text, const TDIUnicodeReadMethods& from,
                   char end, Step step, const char* icu_name = nullptr) {
  const auto source = std::make_shared<const std::string>(text);
  Register(job + "/ravo", text.size(), Steps(source, from, step));
  Register(job + "/getline", text.size(), Lines(source, end));
  if (icu_name != nullptr) Register(job + "/getline+icu", text.size(), LinesByIcu(source, end, icu_name));
}

// Blocks of code lines: indentation, empty lines, blanks.
std::string WhiteText(std::size_t size) {
  std::mt19937 random(20240229);
  std::string text;
  while (text.size() < size) text.append(random() % 80, ' ').append(random() % 4, '\t').append("\r\n");
  text.resize(size);
  return text;
}

void RegisterReading() {
  const std::string utf8 = Encoded(TextOf(kCzech, kLongText), Write_UTF_8).substr(0, kLongText);
  const std::string windows = Encoded(TextOf(kCzech, kLongText), Write_Windows_1250);
  const Step read_line = [](TDIUnicodeReader& reader) { reader.ReadLine(); };
  const Step read_till = [](TDIUnicodeReader& reader) {
    reader.ZeroDataSize();
    reader.ReadCharsTill(u';');
    reader.ReadChar();
  };
  const std::string ascii = Encoded(TextOf(kAscii, kLongText), Write_US_ASCII);
  RegisterSteps("read_line_ascii", ascii, Read_Windows_1250, '\n', read_line, "windows-1250");
  RegisterSteps(
      "read_chars_till_ascii", ascii, Read_Windows_1250, '\n',
      [](TDIUnicodeReader& reader) {
        reader.ZeroDataSize();
        reader.ReadCharsTill(u'\n');
        reader.ReadChar();
      },
      "windows-1250");
  RegisterSteps("read_line_utf8", utf8, Read_UTF_8, '\n', read_line, "UTF-8");
  RegisterSteps("read_line_windows_1250", windows, Read_Windows_1250, '\n', read_line, "windows-1250");
  RegisterSteps("read_chars_till_utf8", utf8, Read_UTF_8, ';', read_till, "UTF-8");
  RegisterSteps("read_chars_till_1250", windows, Read_Windows_1250, ';', read_till, "windows-1250");
  RegisterSteps("skip_white_space_utf8", WhiteText(kLongText), Read_UTF_8, '\n',
                [](TDIUnicodeReader& reader) { reader.SkipWhiteSpace(); });
}

}  // namespace

int main(int argc, char** argv) {
  const std::u16string czech = TextOf(kCzech, kText);
  const std::u16string ascii = TextOf(kAscii, kText);
  const Side windows{Read_Windows_1250, Write_Windows_1250, "WINDOWS-1250"};
  const Side utf8{Read_UTF_8, Write_UTF_8, "UTF-8"};
  const Side utf16{Read_UTF_16_LE, Write_UTF_16_LE, "UTF-16LE"};
  RegisterConversion("stream_1250_to_utf16_czech", czech, windows, utf16);
  RegisterConversion("stream_1250_to_utf16_ascii", ascii, windows, utf16);
  RegisterConversion("stream_utf8_to_utf16_czech", czech, utf8, utf16);
  RegisterConversion("stream_utf8_to_utf16_ascii", ascii, utf8, utf16);
  RegisterConversion("stream_utf16_to_utf8_czech", czech, utf16, utf8);
  RegisterConversion("stream_utf8_to_1250_czech", czech, utf8, windows);
  RegisterReading();
  return ravo::bench::RunWithRatios(argc, argv);
}
