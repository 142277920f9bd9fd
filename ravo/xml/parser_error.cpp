#include <ravo/runtime/text.h>
#include <ravo/xml/parser_error.h>

namespace ravo {
namespace {

std::u16string TextOf(const MessageArgument& argument) {
  const auto* number = std::get_if<std::int64_t>(&argument);
  return number != nullptr ? ToText(*number) : std::get<std::u16string>(argument);
}

}  // namespace

EParserError::~EParserError() = default;

std::u16string FormatMessageText(std::u16string_view format, std::span<const MessageArgument> arguments) {
  std::u16string text;
  for (std::size_t at = 0; at < format.size(); ++at) {
    if (format[at] != u'%') {
      text += format[at];
      continue;
    }
    const char16_t kind = ++at < format.size() ? format[at] : u'\0';
    if (kind == u'%') {
      text += kind;
    } else if ((kind == u's' || kind == u'd') && !arguments.empty()) {
      text += TextOf(arguments.front());
      arguments = arguments.subspan(1);
    } else {
      throw ConvertError(u"The format '" + std::u16string(format) + u"' does not fit its arguments");
    }
  }
  return text;
}

}  // namespace ravo
