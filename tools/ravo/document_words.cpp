#include "document_words.h"

#include "text.h"
#include "user_language.h"

namespace tool {
namespace {

using ravo::document::Message;

// What the program offers; empty where it offers nothing.
std::string HelpFor(Message message) {
  switch (message) {
    case Message::UnknownEncoding:
      return Text("; `ravo encodings` lists those that can be read");
    case Message::StatefulEncoding:
      return Text("; convert the document to UTF-8 with `ravo convert` first");
    case Message::NothingThereAdd:
      return Text("; --add adds an attribute, or the next element of a name");
    case Message::HasElements:
      return Text("; set their texts, or replace the whole content with --raw");
    case Message::HasOthers:
      return Text("; --raw replaces the whole content");
    case Message::Unwritable:
      return Text("; --references writes it as a reference");
    default:
      return {};
  }
}

}  // namespace

std::string WordsOf(const ravo::document::Fault& fault) {
  return fault.Sentence(UserLanguage()) + HelpFor(fault.message);
}

std::string WordsOf(const ravo::document::PlacedError& error) {
  const auto [line, column] = error.Place();
  return std::to_string(line) + ":" + std::to_string(column) + ": " + WordsOf(error.What());
}

}  // namespace tool
