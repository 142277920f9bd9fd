#pragma once

#include <ravo/runtime/export.h>

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

namespace ravo {

/// Root of everything this library raises. The message is UTF-16, as everywhere in the suite; `what` gives
/// the same text in UTF-8.
class RAVO_API Error : public std::exception {
 public:
  /// The message, which may be empty.
  explicit Error(std::u16string_view message);
  Error(const Error&) = default;
  Error& operator=(const Error&) = default;
  ~Error() override;

  /// What happened, for people.
  [[nodiscard]] const std::u16string& Message() const noexcept { return message_; }
  /// The same in UTF-8.
  [[nodiscard]] const char* what() const noexcept override { return utf8_.c_str(); }

 private:
  std::u16string message_;
  std::string utf8_;
};

/// An index, a count or a narrowing conversion left its range.
class RAVO_API RangeError : public Error {
 public:
  using Error::Error;
  ~RangeError() override;
};

/// A signed operation left its type.
class RAVO_API OverflowError : public Error {
 public:
  using Error::Error;
  ~OverflowError() override;
};

/// A text is not what it should be converted to: a number, a date, an identifier.
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

/// What a stream was asked to do when it failed.
enum class StreamOperation : std::uint8_t { Open, Read, Write };

/// A stream could not be opened, or moved fewer bytes than a checked operation asked for.
class RAVO_API StreamError : public Error {
 public:
  /// What failed, and the message.
  StreamError(StreamOperation operation, std::u16string_view message);
  ~StreamError() override;

  /// What the stream was asked to do.
  [[nodiscard]] StreamOperation Operation() const noexcept { return operation_; }

 private:
  StreamOperation operation_;
};

/// A variant holds no value of the kind that was asked for.
class RAVO_API VariantError : public Error {
 public:
  using Error::Error;
  ~VariantError() override;
};

/// The component runtime refused; `Code` is the platform's own code.
class RAVO_API ComponentError : public Error {
 public:
  /// The platform's code, and the message.
  ComponentError(std::int32_t code, std::u16string_view message);
  ~ComponentError() override;

  /// The platform's code.
  [[nodiscard]] std::int32_t Code() const noexcept { return code_; }

 private:
  std::int32_t code_;
};

}  // namespace ravo
