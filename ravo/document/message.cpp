#include "message.h"

#include <array>
#include <cstddef>

namespace ravo::document {
namespace {

struct MessageRow {
  std::string_view code;
  std::string_view czech;
  std::string_view english;
};

constexpr auto kMessages = std::to_array<MessageRow>({
#define RAVO_DOCUMENT_MESSAGE(name, code, czech, english) {code, czech, english},
#include "messages.inc"
#undef RAVO_DOCUMENT_MESSAGE
});

const MessageRow& RowOf(Message message) { return kMessages[static_cast<std::size_t>(message)]; }

bool IsPlace(std::string_view text, std::size_t at, std::size_t values) {
  return text[at] == '{' && at + 2 < text.size() && text[at + 2] == '}' && text[at + 1] >= '0' &&
         static_cast<std::size_t>(text[at + 1] - '0') < values;
}

}  // namespace

std::string_view CodeOf(Message message) { return RowOf(message).code; }

std::string FilledIn(std::string_view text, std::span<const std::string_view> values) {
  std::string filled;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (!IsPlace(text, at, values.size())) {
      filled += text[at];
      continue;
    }
    filled += values[static_cast<std::size_t>(text[at + 1] - '0')];
    at += 2;
  }
  return filled;
}

std::string Fault::Sentence(czech::Language language) const {
  const std::string reason = reasons.empty() ? std::string() : reasons[0].Sentence(language);
  std::vector<std::string_view> words(values.begin(), values.end());
  words.push_back(reason);
  const MessageRow& row = RowOf(message);
  return FilledIn(language == czech::Language::Czech ? row.czech : row.english, words);
}

}  // namespace ravo::document
