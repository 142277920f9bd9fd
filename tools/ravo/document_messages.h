#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace tool {

/// The messages of `ravo xml`, one for each row of document_messages.inc.
enum class DocumentMessage {
#define RAVO_DOCUMENT_MESSAGE(name, code, text) name,
#include "document_messages.inc"
#undef RAVO_DOCUMENT_MESSAGE
};

/// Returns the code by which scripts recognise a message.
[[nodiscard]] std::string_view CodeOf(DocumentMessage message);

/// Returns the sentence in the user's language, with the values in their places.
[[nodiscard]] std::string MessageText(DocumentMessage message,
                                      std::initializer_list<std::string_view> values = {});

}  // namespace tool
