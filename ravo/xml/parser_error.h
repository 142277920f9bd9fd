#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace ravo {

/// A document that cannot be read as XML. The message ends with the number of the line.
class RAVO_API EParserError : public Error {
 public:
  using Error::Error;
  ~EParserError() override;
};

/// What fills a place of a message: a number or a text.
using MessageArgument = std::variant<std::int64_t, std::u16string>;

/// `format` with each "%s" and "%d" filled by the next argument of either kind and "%%" as "%". Raises
/// `ConvertError` for any other place and for one without an argument.
[[nodiscard]] std::u16string FormatMessageText(std::u16string_view format,
                                               std::span<const MessageArgument> arguments);

}  // namespace ravo
