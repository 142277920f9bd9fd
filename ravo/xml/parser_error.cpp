#include <ravo/xml/parser_error.h>

namespace ravo {

EParserError::~EParserError() = default;

}  // namespace ravo
