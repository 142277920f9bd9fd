#include <ravo/runtime/error.h>
#include <ravo/runtime/text.h>

namespace ravo {

Error::Error(std::u16string_view message) : message_(message), utf8_(ToUtf8(message)) {}

StreamError::StreamError(StreamOperation operation, std::u16string_view message)
    : Error(message), operation_(operation) {}

ComponentError::ComponentError(std::int32_t code, std::u16string_view message)
    : Error(message), code_(code) {}

// Out of line: each class needs a single home for its type information, so that a `catch` outside the shared
// library recognises it.
Error::~Error() = default;
RangeError::~RangeError() = default;
OverflowError::~OverflowError() = default;
ConvertError::~ConvertError() = default;
DivisionByZero::~DivisionByZero() = default;
FloatError::~FloatError() = default;
StreamError::~StreamError() = default;
VariantError::~VariantError() = default;
ComponentError::~ComponentError() = default;

}  // namespace ravo
