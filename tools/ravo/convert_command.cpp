#include "commands.h"
#include "console.h"
#include "convert_file.h"
#include "encoding_label.h"
#include "file_reason.h"
#include "nearest.h"
#include "progress.h"
#include "spelling.h"
#include "text.h"
#include "text_file.h"
#include <ravo/codec/texts.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace tool {
namespace {

namespace codec = ravo::codec;

struct ConvertOptions {
  std::string from;
  std::string to;
  std::vector<std::string> files;
  std::optional<std::string> output;
  std::string replacement;
  bool translit = false;
};

// Ends the command with its message.
struct ConvertRefused {
  std::string message;
  Answer answer = Answer::WrongUsage;
};

// Where the bytes go: to a file that is there once it is whole, or on to standard output.
class ConvertTarget {
 public:
  explicit ConvertTarget(const std::optional<std::string>& name) {
    if (name && *name != kInputName) file_.emplace(*name);
  }

  // Returns false if the output does not take them.
  bool Write(std::string_view bytes) {
    if (file_) return file_->Write(bytes);
    if (!shown_) return is_whole_ = tool::Write(Channel::Out, bytes);
    text_ += bytes;
    return true;
  }

  // An empty text, or why it failed.
  [[nodiscard]] std::string Finish(Outcome& outcome) {
    if (file_) return file_->Finish();
    outcome.out = std::move(text_);
    return is_whole_ ? "" : Text("cannot be written");
  }

 private:
  std::optional<WholeFile> file_;
  // A console takes characters, not bytes: they are shown together.
  bool shown_ = IsTerminal(Channel::Out);
  bool is_whole_ = true;
  std::string text_;
};

// In the usual spelling: windows-1250.
std::string UsualName(std::string_view name) {
  std::string usual(name);
  for (char& c : usual) c = c == '_' ? '-' : c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
  return usual;
}

std::vector<std::string> EncodingNames() {
  std::vector<std::string> names;
  for (const codec::Encoding& row : codec::Encodings()) {
    names.push_back(UsualName(row.name));
    for (std::string_view rest = row.aliases; !rest.empty();) {
      const std::size_t length = std::min(rest.find(' '), rest.size());
      names.emplace_back(rest.substr(0, length));
      rest.remove_prefix(std::min(length + 1, rest.size()));
    }
  }
  return names;
}

SourceEncoding EncodingNamed(const std::string& name) {
  if (const auto encoding = SourceEncodingOf(name)) return *encoding;
  const std::string meant = DidYouMean(name, EncodingNames());
  throw ConvertRefused{Text("there is no encoding {0}.", {name}) + (meant.empty() ? "" : " " + meant) + " " +
                       Text("The command `ravo encodings` lists them.")};
}

SourceEncoding SourceOf(const std::string& name) {
  const SourceEncoding encoding = EncodingNamed(name);
  if (encoding.row != nullptr && encoding.row->decode_one == nullptr)
    throw ConvertRefused{Text("{0} cannot be read", {name})};
  return encoding;
}

const codec::Encoding& TargetOf(const std::string& name) {
  if (name.empty() || name == "auto")
    throw ConvertRefused{Text("the output needs an encoding; --to names it")};
  const SourceEncoding encoding = EncodingNamed(name);
  if (encoding.row->encode_one == nullptr) throw ConvertRefused{Text("{0} cannot be written", {name})};
  // As Windows writes it; the mark tells.
  return encoding.order_is_open && encoding.row->name.starts_with("UTF")
             ? *codec::FindEncoding(encoding.row->name == "UTF_16_BE" ? "UTF_16_LE" : "UTF_32_LE")
             : *encoding.row;
}

bool WantsMark(const std::string& to) {
  const auto encoding = SourceEncodingOf(to);
  return encoding && encoding->order_is_open && encoding->row->name.starts_with("UTF");
}

char32_t SingleCharacter(const std::string& utf8) {
  const ExactEncoding encoding(*codec::FindEncoding("UTF_8"));
  codec::State state;
  const codec::ByteSpan bytes(reinterpret_cast<const std::uint8_t*>(utf8.data()), utf8.size());
  const Character character = encoding.Read(state, bytes, true);
  if (character.reading != Character::Reading::Whole || character.bytes != utf8.size())
    throw ConvertRefused{Text("--replace wants one character")};
  return character.code;
}

Conversion ConversionOf(const ConvertOptions& options) {
  Conversion conversion;
  conversion.to = &TargetOf(options.to);
  if (options.translit) conversion.spelling = SpellingOf;
  if (!options.replacement.empty()) conversion.replacement = SingleCharacter(options.replacement);
  return conversion;
}

std::size_t ReadBytes(std::ifstream& file, std::span<std::uint8_t> to) {
  file.read(reinterpret_cast<char*>(to.data()), static_cast<std::streamsize>(to.size()));
  if (file.bad()) throw ConvertRefused{Text("cannot be read to its end")};
  return static_cast<std::size_t>(file.gcount());
}

ByteSource OpenSource(const std::string& name) {
  if (name == kInputName)
    return {[](std::span<std::uint8_t> to) { return ReadInput(std::as_writable_bytes(to)); }, 0};
  const std::filesystem::path path = PathOf(name);
  std::error_code error;
  const auto file = std::make_shared<std::ifstream>(path, std::ios::binary);
  if (!*file || std::filesystem::is_directory(path, error))
    throw ConvertRefused{Text("cannot be read: {0}", {WhyUnreadable(name)})};
  const auto size = std::filesystem::file_size(path, error);
  return {[file](std::span<std::uint8_t> to) { return ReadBytes(*file, to); },
          error ? 0 : static_cast<std::int64_t>(size)};
}

std::string CodePointText(char32_t code) {
  std::array<char, 12> text{};
  std::snprintf(text.data(), text.size(), "U+%04X", static_cast<unsigned>(code));
  return text.data();
}

std::string HexOf(const std::string& bytes) {
  std::string text;
  for (const char byte : bytes) {
    std::array<char, 4> digits{};
    std::snprintf(digits.data(), digits.size(), "%02X",
                  static_cast<unsigned>(static_cast<unsigned char>(byte)));
    text += (text.empty() ? "" : " ") + std::string(digits.data());
  }
  return text;
}

std::string DescribedEnd(const ConversionEnd& end, const Conversion& conversion) {
  switch (end.fault.kind) {
    case Fault::Kind::Lacking:
      return Text("{0} cannot be written in {1}",
                  {CodePointText(end.fault.code), ShortLabel(conversion.to->label)});
    case Fault::Kind::CutShort:
      return Text("the text ends inside a character of {0} (bytes: {1})",
                  {ShortLabel(end.from->label), HexOf(end.fault.bytes)});
    default:
      return Text("bytes that cannot be read in {0}: {1}",
                  {ShortLabel(end.from->label), HexOf(end.fault.bytes)});
  }
}

void ConvertFile(FileConverter& converter, const ConvertOptions& options, const Conversion& conversion,
                 const std::string& name, Outcome& outcome) try {
  ByteSource source = OpenSource(name);
  Progress progress(name, source.Size());
  const auto note = [&](const std::string& what) { Complain(outcome, name + ": " + what, Answer::Yes); };
  const auto end = converter.Convert(SourceOf(options.from), source, note,
                                     [&progress](std::int64_t done) { progress.Show(done); });
  if (end)
    throw ConvertRefused{
        std::to_string(end->line) + ":" + std::to_string(end->column) + ": " + DescribedEnd(*end, conversion),
        Answer::No};
} catch (const ConvertRefused& refused) {
  throw ConvertRefused{name + ":" + (refused.answer == Answer::No ? "" : " ") + refused.message,
                       refused.answer};
} catch (const std::runtime_error&) {
  throw ConvertRefused{name + ": " + Text("cannot be read to its end")};
}

// Several threads help as long as one of them writes.
unsigned ConvertThreads() { return std::clamp(std::thread::hardware_concurrency(), 1U, 4U); }

void Convert(const ConvertOptions& options, Outcome& outcome) {
  static_cast<void>(SourceOf(options.from));
  const Conversion conversion = ConversionOf(options);
  const auto files =
      options.files.empty() ? std::vector<std::string>{std::string(kInputName)} : options.files;
  ConvertTarget target(options.output);
  bool takes_more = true;
  FileConverter converter(conversion, ConvertThreads(), [&](std::string_view bytes) {
    return takes_more = bytes.empty() || target.Write(bytes);
  });
  if (WantsMark(options.to)) takes_more = target.Write(codec::Encoded(*conversion.to, u"\uFEFF"));
  for (const std::string& file : files) {
    if (takes_more) ConvertFile(converter, options, conversion, file, outcome);
  }
  if (takes_more) converter.Finish();
  const std::string failure = target.Finish(outcome);
  if (!failure.empty())
    throw ConvertRefused{options.output.value_or(Text("standard output")) + ": " + failure};
}

void Run(const ConvertOptions& options, Outcome& outcome) {
  try {
    Convert(options, outcome);
  } catch (const ConvertRefused& refused) {
    Complain(outcome, refused.message, refused.answer);
  }
}

constexpr const char* kConvertFooter = ToTranslate(
    "ENCODING is a name, an alias or a code page number of `ravo encodings`. Without -f, or with -f auto, "
    "the text\n"
    "decides: by its byte-order mark, its zero bytes, its sequences of UTF-8, or by the letters of Czech in\n"
    "Windows-1250, ISO 8859-2 and code page 852; what was taken is told on standard error. utf-16, utf-32, "
    "ucs-2 and\n"
    "ucs-4 without a byte order follow the byte-order mark; as the output, utf-16 and utf-32 begin with "
    "one.\n"
    "\n"
    "Several files become one. The file of -o is there only once all of it is right: until then, and "
    "wherever the\n"
    "conversion ends early, an old file stays as it was. Standard output gets the text as it is converted, "
    "up to\n"
    "what ends it. --translit writes what the output's encoding lacks in other characters, such as e for ê "
    "and\n"
    "EUR for the euro; --replace writes one character for what is left, and for bytes that cannot be read.\n"
    "\n"
    "Exit status: 0 converted; 1 something cannot be read or written in these encodings (with line and\n"
    "column); 2 wrong usage, or a file that cannot be read or written.\n"
    "\n"
    "Examples:\n"
    "  ravo convert -t utf-8 export.txt -o export-utf8.txt\n"
    "  ravo convert -f windows-1250 -t utf-8 export.txt -o export-utf8.txt\n"
    "  ravo convert -f utf-8 -t 1250 --translit --replace '?' letter.txt > letter-1250.txt\n");

}  // namespace

void AddConvertCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("convert", Text("Converts texts from one encoding to another"));
  const auto options = std::make_shared<ConvertOptions>();
  command
      ->add_option("-f,--from", options->from,
                   Text("The encoding of the files; without it, or with auto, found out"))
      ->type_name(Text("ENCODING"));
  command->add_option("-t,--to", options->to, Text("The encoding of the output"))
      ->type_name(Text("ENCODING"))
      ->required();
  command->add_option(Text("FILE"), options->files, Text("The files; none, or -, is standard input"));
  command
      ->add_option("-o,--output", options->output,
                   Text("The file to write; else, or with -, standard output"))
      ->type_name(Text("FILE"));
  command->add_flag("--translit", options->translit,
                    Text("Spell characters that the output lacks with others"));
  command
      ->add_option(
          "--replace", options->replacement,
          Text("The character to write for those that cannot be; without it they end the conversion"))
      ->type_name(Text("CHAR"));
  command->footer(Text(kConvertFooter));
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool
