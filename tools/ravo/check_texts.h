#pragma once

#include "reasons.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace tool {

/// The texts of `ravo check` for people.
enum class CheckText : std::uint8_t {
  // Findings.
  Line,
  LineOfFile,
  ReasonInvalid,
  ReasonEmpty,
  ReasonTooLong,
  ReasonNoCheckDigit,
  ReasonWrongCheckDigit,
  ReasonRagged,
  ReasonOpenQuote,
  ReasonTextAfterQuote,
  ReasonWrongByte,
  FieldCount,
  WrongByteAt,
  // The summary.
  Rows,
  Valid,
  LeftOut,
  // Standard error.
  Detected,
  DidYouMean,
  NoColumn,
  NoColumnNumber,
  SameName,
  SameNameButForCase,
  NoFirstRow,
  BrokenFirstRow,
  IsFolder,
  CannotBeRead,
  ReadFailed,
  WideText,
  OutputFailed,
  OneFileOnly,
  SameOutput,
};

/// Returns a text with {1}, {2} ... replaced by the arguments.
[[nodiscard]] std::string Say(CheckText text, std::initializer_list<std::string_view> arguments = {});

/// Returns the text of a reason.
[[nodiscard]] std::string Say(Reason reason);

}  // namespace tool
