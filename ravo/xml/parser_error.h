#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

namespace ravo {

/// A document that cannot be read as XML. The message ends with the number of the line.
class RAVO_API EParserError : public Error {
 public:
  using Error::Error;
  ~EParserError() override;
};

}  // namespace ravo
