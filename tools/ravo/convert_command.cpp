#include "commands.h"
#include "console.h"
#include "convert_text.h"
#include "progress.h"
#include "text_file.h"

#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace tool {
namespace {

using namespace ravo::DIUnicode;

struct ConvertOptions {
  std::string from;
  std::string to;
  std::vector<std::string> files;
  std::string output;
  std::string replacement;
};

// A source that is read from its start to its end.
class Source : public ravo::ByteStream {
 public:
  [[nodiscard]] std::size_t Write(std::span<const std::byte>) override { return 0; }
  [[nodiscard]] std::int64_t Position() const override { return position_; }
  void SetPosition(std::int64_t) override {}
  [[nodiscard]] std::int64_t Size() const override { return 0; }

 protected:
  std::size_t Advance(std::size_t count) {
    position_ += static_cast<std::int64_t>(count);
    return count;
  }

 private:
  std::int64_t position_ = 0;
};

class InputSource final : public Source {
 public:
  [[nodiscard]] std::size_t Read(std::span<std::byte> to) override { return Advance(ReadInput(to)); }
};

class FileSource final : public Source {
 public:
  explicit FileSource(std::ifstream file) : file_(std::move(file)) {}

  [[nodiscard]] std::size_t Read(std::span<std::byte> to) override {
    file_.read(reinterpret_cast<char*>(to.data()), static_cast<std::streamsize>(to.size()));
    if (file_.bad()) throw std::runtime_error("cannot be read");
    return Advance(static_cast<std::size_t>(file_.gcount()));
  }

 private:
  std::ifstream file_;
};

// Where the bytes go: to a file, or, to be shown at the end, into a text.
class Target final : public ravo::ByteStream {
 public:
  explicit Target(const std::string& name) {
    if (!name.empty()) file_ = std::make_unique<WholeFile>(name);
  }

  [[nodiscard]] std::size_t Write(std::span<const std::byte> from) override {
    const std::string_view bytes(reinterpret_cast<const char*>(from.data()), from.size());
    // What the file does not take is told in the end.
    if (file_ != nullptr)
      static_cast<void>(file_->Write(bytes));
    else
      text_ += bytes;
    return from.size();
  }
  [[nodiscard]] std::size_t Read(std::span<std::byte>) override { return 0; }
  [[nodiscard]] std::int64_t Position() const override { return 0; }
  void SetPosition(std::int64_t) override {}
  [[nodiscard]] std::int64_t Size() const override { return 0; }

  // An empty text, or why it failed.
  [[nodiscard]] std::string Finish(Outcome& outcome) {
    if (file_ != nullptr) return file_->Finish();
    outcome.out = std::move(text_);
    return {};
  }

 private:
  std::unique_ptr<WholeFile> file_;
  std::string text_;
};

const EncodingRow& Named(const std::string& name) {
  const EncodingRow* const row = FindEncoding(name);
  if (row == nullptr) throw CLI::ValidationError("convert: no encoding " + name + "; see ravo encodings");
  return *row;
}

char16_t SingleUnit(const std::string& utf8) {
  TDIUnicodeReader reader;
  reader.SetReadMethods(Read_UTF_8);
  reader.SetSourceBufferAsStrA(utf8);
  const bool one = reader.ReadChar() && reader.Char() != 0xFFFD && !reader.PeekChars(1);
  if (!one) throw CLI::ValidationError("convert: --replace wants one character up to U+FFFF");
  return reader.Char();
}

Conversion ConversionOf(const ConvertOptions& options) {
  Conversion conversion;
  conversion.from = options.from == "auto" ? nullptr : &Named(options.from);
  conversion.to = &Named(options.to);
  if (conversion.from != nullptr && conversion.from->read == nullptr)
    throw CLI::ValidationError("convert: " + options.from + " cannot be read");
  if (conversion.to->write == nullptr)
    throw CLI::ValidationError("convert: " + options.to + " cannot be written");
  if (!options.replacement.empty()) conversion.replacement = SingleUnit(options.replacement);
  return conversion;
}

// Null where the file cannot be read.
std::unique_ptr<ravo::ByteStream> Open(const std::string& name, std::int64_t& size) {
  if (name == "-") return std::make_unique<InputSource>();
  const std::filesystem::path path(std::u8string(name.begin(), name.end()));
  std::error_code error;
  std::ifstream file(path, std::ios::binary);
  if (!file || std::filesystem::is_directory(path, error)) return {};
  const auto bytes = std::filesystem::file_size(path, error);
  size = error ? 0 : static_cast<std::int64_t>(bytes);
  return std::make_unique<FileSource>(std::move(file));
}

bool Complain(Outcome& outcome, const std::string& what, Answer answer) {
  outcome.err += "ravo: " + what + "\n";
  outcome.answer = answer;
  return false;
}

bool ConvertFile(const Conversion& conversion, const std::string& name, TDIUnicodeWriter& writer,
                 Outcome& outcome) {
  std::int64_t size = 0;
  const auto source = Open(name, size);
  if (source == nullptr) return Complain(outcome, name + ": cannot be read", Answer::WrongUsage);
  Progress progress(name, size);
  const auto show = [&progress](std::int64_t done) { progress.Show(done); };
  const Refusal refusal = Convert(conversion, *source, writer, show);
  return refusal ? Complain(outcome, name + ":" + *refusal, Answer::No) : true;
}

void Run(const ConvertOptions& options, Outcome& outcome) {
  const Conversion conversion = ConversionOf(options);
  const auto files = options.files.empty() ? std::vector<std::string>{"-"} : options.files;
  Target target(options.output);
  TDIUnicodeWriter writer;
  writer.SetWriteMethods(*conversion.to->write);
  writer.SetDataStream(&target);
  for (const std::string& file : files) {
    if (!ConvertFile(conversion, file, writer, outcome)) return;
  }
  writer.FlushDataBuffer();
  const std::string failure = target.Finish(outcome);
  if (!failure.empty()) Complain(outcome, options.output + ": " + failure, Answer::WrongUsage);
}

constexpr const char* kConvertFooter =
    "ENCODING is a name, an alias or a code page number of `ravo encodings`; -f auto goes by the byte-order "
    "mark,\n"
    "which is left out, and takes text without one for UTF-8. Several files become one. The output is there "
    "only\n"
    "once all of it is right: until then, and wherever the conversion ends early, an old file stays as it "
    "was.\n"
    "\n"
    "Exit status: 0, 1 something cannot be read or written in these encodings (with line and column), 2 "
    "wrong\n"
    "usage or an unusable file.\n"
    "\n"
    "Examples:\n"
    "  ravo convert -f windows-1250 -t utf-8 export.txt -o export-utf8.txt\n"
    "  ravo convert -f auto -t 1250 --replace '?' letter.txt > letter-1250.txt\n";

}  // namespace

void AddConvertCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("convert", "Converts texts from one encoding to another");
  const auto options = std::make_shared<ConvertOptions>();
  command->add_option("-f,--from", options->from, "The encoding of the files, or auto")->required();
  command->add_option("-t,--to", options->to, "The encoding of the output")->required();
  command->add_option("FILE", options->files, "The files; none, or -, is standard input");
  command->add_option("-o,--output", options->output, "The file to write; else standard output");
  command->add_option("--replace", options->replacement,
                      "The character to write for those that cannot be; without it they end the conversion");
  command->footer(kConvertFooter);
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool
