#include "commands.h"
#include "console.h"
#include "convert_text.h"
#include "progress.h"
#include "text_file.h"
#include <ravo/codec/texts.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace tool {
namespace {

namespace codec = ravo::codec;

struct ConvertOptions {
  std::string from;
  std::string to;
  std::vector<std::string> files;
  std::string output;
  std::string replacement;
};

// Where the bytes go: to a file that is there once it is whole, or on to standard output.
class Target {
 public:
  explicit Target(const std::string& name) {
    if (!name.empty()) file_.emplace(name);
  }

  void Write(std::string_view bytes) {
    // `Finish` tells what the file did not take.
    if (file_)
      static_cast<void>(file_->Write(bytes));
    else if (shown_)
      text_ += bytes;
    else if (!tool::Write(Channel::Out, bytes))
      throw std::runtime_error("the output cannot be written");
  }

  // An empty text, or why it failed.
  [[nodiscard]] std::string Finish(Outcome& outcome) {
    if (file_) return file_->Finish();
    outcome.out = std::move(text_);
    return {};
  }

 private:
  std::optional<WholeFile> file_;
  // A console takes characters, not bytes: they are shown together.
  bool shown_ = IsTerminal(Channel::Out);
  std::string text_;
};

const codec::Encoding& Named(const std::string& name) {
  const codec::Encoding* const row = codec::FindEncoding(std::string_view(name));
  if (row == nullptr) throw CLI::ValidationError("convert: no encoding " + name + "; see ravo encodings");
  return *row;
}

char16_t SingleUnit(const std::string& utf8) {
  const std::u16string text = codec::Decoded(Named("UTF_8"), utf8);
  if (text.size() != 1 || text[0] == codec::kReplacement)
    throw CLI::ValidationError("convert: --replace wants one character up to U+FFFF");
  return text[0];
}

Conversion ConversionOf(const ConvertOptions& options) {
  Conversion conversion;
  conversion.from = options.from == "auto" ? nullptr : &Named(options.from);
  conversion.to = &Named(options.to);
  if (conversion.from != nullptr && conversion.from->decode_one == nullptr)
    throw CLI::ValidationError("convert: " + options.from + " cannot be read");
  if (conversion.to->encode_one == nullptr)
    throw CLI::ValidationError("convert: " + options.to + " cannot be written");
  if (!options.replacement.empty()) conversion.replacement = SingleUnit(options.replacement);
  return conversion;
}

// How the bytes of a file are read; empty if it cannot be.
Converter::Read Open(const std::string& name, std::int64_t& size) {
  if (name == kInputName) return [](std::span<std::byte> to) { return ReadInput(to); };
  const std::filesystem::path path = PathOf(name);
  std::error_code error;
  const auto file = std::make_shared<std::ifstream>(path, std::ios::binary);
  if (!*file || std::filesystem::is_directory(path, error)) return {};
  const auto bytes = std::filesystem::file_size(path, error);
  size = error ? 0 : static_cast<std::int64_t>(bytes);
  return [file](std::span<std::byte> to) {
    file->read(reinterpret_cast<char*>(to.data()), static_cast<std::streamsize>(to.size()));
    if (file->bad()) throw std::runtime_error("cannot be read");
    return static_cast<std::size_t>(file->gcount());
  };
}

bool Complain(Outcome& outcome, const std::string& what, Answer answer) {
  outcome.err += "ravo: " + what + "\n";
  outcome.answer = answer;
  return false;
}

bool ConvertFile(Converter& converter, const std::string& name, Outcome& outcome) {
  std::int64_t size = 0;
  const Converter::Read read = Open(name, size);
  if (!read) return Complain(outcome, name + ": cannot be read", Answer::WrongUsage);
  Progress progress(name, size);
  const Refusal refusal = converter.Convert(read, [&progress](std::int64_t done) { progress.Show(done); });
  return refusal ? Complain(outcome, name + ":" + *refusal, Answer::No) : true;
}

void Run(const ConvertOptions& options, Outcome& outcome) {
  const Conversion conversion = ConversionOf(options);
  const auto files =
      options.files.empty() ? std::vector<std::string>{std::string(kInputName)} : options.files;
  Target target(options.output);
  Converter converter(conversion, [&target](std::string_view bytes) { target.Write(bytes); });
  for (const std::string& file : files) {
    if (!ConvertFile(converter, file, outcome)) return;
  }
  converter.Finish();
  const std::string failure = target.Finish(outcome);
  if (!failure.empty()) Complain(outcome, options.output + ": " + failure, Answer::WrongUsage);
}

constexpr const char* kConvertFooter =
    "ENCODING is a name, an alias or a code page number of `ravo encodings`; -f auto goes by the byte-order "
    "mark,\n"
    "which is left out, and takes text without one for UTF-8. Several files become one. The file of -o is "
    "there only\n"
    "once all of it is right: until then, and wherever the conversion ends early, an old file stays as it "
    "was.\n"
    "Standard output gets the text as it is converted, up to what ends it.\n"
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
