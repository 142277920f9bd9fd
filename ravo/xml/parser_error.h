#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

namespace ravo {

/// Thrown if a document cannot be read as XML. The message ends with the line number.
class RAVO_API EParserError : public Error {
 public:
  using Error::Error;
  ~EParserError() override;
};

}  // namespace ravo
