#include "document_messages.h"

#include "text.h"

#include <array>
#include <cstddef>

namespace tool {
namespace {

struct MessageRow {
  std::string_view code;
  std::string_view text;
};

constexpr auto kMessages = std::to_array<MessageRow>({
#define RAVO_DOCUMENT_MESSAGE(name, code, text) {code, text},
#include "document_messages.inc"
#undef RAVO_DOCUMENT_MESSAGE
});

const MessageRow& RowOf(DocumentMessage message) { return kMessages[static_cast<std::size_t>(message)]; }

}  // namespace

std::string_view CodeOf(DocumentMessage message) { return RowOf(message).code; }

std::string MessageText(DocumentMessage message, std::initializer_list<std::string_view> values) {
  return Text(RowOf(message).text, values);
}

}  // namespace tool
