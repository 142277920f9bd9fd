#pragma once

#include <ravo/runtime/export.h>

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

namespace ravo {

/// The base class of every error that this library throws. The message is UTF-16; `what` returns it in UTF-8.
class RAVO_API Error : public std::exception {
 public:
  /// Constructs an error with a message, which may be empty.
  explicit Error(std::u16string_view message);
  Error(const Error&) = default;
  Error& operator=(const Error&) = default;
  ~Error() override;

  /// Returns the message in UTF-16.
  [[nodiscard]] const std::u16string& Message() const noexcept { return message_; }
  /// Returns the message in UTF-8. The pointer is valid as long as the error.
  [[nodiscard]] const char* what() const noexcept override { return utf8_.c_str(); }

 private:
  std::u16string message_;
  std::string utf8_;
};

/// An index or a count is out of range, or a narrowing conversion does not fit.
class RAVO_API RangeError : public Error {
 public:
  using Error::Error;
  ~RangeError() override;
};

/// The result of an arithmetic operation does not fit its type.
class RAVO_API OverflowError : public Error {
 public:
  using Error::Error;
  ~OverflowError() override;
};

/// A text cannot be converted to a number, a date or an identifier, or a value is outside the range of its
/// target type.
class RAVO_API ConvertError : public Error {
 public:
  using Error::Error;
  ~ConvertError() override;
};

/// An integer was divided by zero.
class RAVO_API DivisionByZero : public Error {
 public:
  using Error::Error;
  ~DivisionByZero() override;
};

/// A floating-point operation has no result.
class RAVO_API FloatError : public Error {
 public:
  using Error::Error;
  ~FloatError() override;
};

/// The operation in which a stream failed.
enum class StreamOperation : std::uint8_t { Open, Read, Write };

/// A stream could not be opened, or transferred fewer bytes than a checked operation asked for.
class RAVO_API StreamError : public Error {
 public:
  /// Constructs an error with the operation that failed and a message.
  StreamError(StreamOperation operation, std::u16string_view message);
  ~StreamError() override;

  /// Returns the operation that failed.
  [[nodiscard]] StreamOperation Operation() const noexcept { return operation_; }

 private:
  StreamOperation operation_;
};

/// A variant holds no value of the requested kind.
class RAVO_API VariantError : public Error {
 public:
  using Error::Error;
  ~VariantError() override;
};

/// A call of the component runtime failed; `Code` returns its result code.
class RAVO_API ComponentError : public Error {
 public:
  /// Constructs an error with the platform's result code and a message.
  ComponentError(std::int32_t code, std::u16string_view message);
  ~ComponentError() override;

  /// Returns the platform's result code.
  [[nodiscard]] std::int32_t Code() const noexcept { return code_; }

 private:
  std::int32_t code_;
};

}  // namespace ravo
