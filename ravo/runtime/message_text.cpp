#include <ravo/runtime/binary_float.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/float_text.h>
#include <ravo/runtime/message_text.h>
#include <ravo/runtime/text.h>

#include <algorithm>
#include <cstddef>
#include <optional>

namespace ravo {
namespace {

constexpr std::int64_t kLargestNumber = 65535;
constexpr int kDecimals = 2;

// A parsed placeholder.
struct Place {
  bool is_left = false;
  std::optional<int> width;
  std::optional<int> precision;
  char16_t kind = u'\0';
};

std::u16string FilledUp(std::u16string_view digits, const Place& place) {
  const std::size_t least = static_cast<std::size_t>(place.precision.value_or(0));
  return std::u16string(least - std::min(least, digits.size()), u'0') + std::u16string(digits);
}

std::u16string SignedText(std::int64_t value, const Place& place) {
  const std::u16string text = ToText(value);
  return value < 0 ? u'-' + FilledUp(std::u16string_view(text).substr(1), place) : FilledUp(text, place);
}

std::u16string DecimalText(const DecimalNumber& number, const Place& place, const FormatSettings& settings) {
  const char16_t separator = settings.decimal_separator;
  switch (place.kind) {
    case u'f':
      return FixedText(number, place.precision.value_or(kDecimals), separator);
    case u'n':
      return NumberText(number, place.precision.value_or(kDecimals), separator, settings.thousands_separator);
    case u'g':
      return GeneralText(number, separator, place.precision.value_or(kFloatDigits));
    default:
      return ScientificText(number, place.precision.value_or(kFloatDigits), separator);
  }
}

std::u16string FloatText(Extended value, const Place& place, const FormatSettings& settings) {
  const bool is_finite = FloatBits<Extended>::Kind(value) == FloatKind::Finite;
  return is_finite ? DecimalText(ToDecimal(value), place, settings)
                   : GeneralText(value, settings.decimal_separator);
}

std::u16string InWidth(std::u16string text, const Place& place) {
  const auto width = static_cast<std::size_t>(place.width.value_or(0));
  if (text.size() < width) text.insert(place.is_left ? text.size() : 0, width - text.size(), u' ');
  return text;
}

// Formats a message placeholder by placeholder.
class Formatter {
 public:
  Formatter(std::u16string_view format, std::span<const MessageArgument> arguments,
            const FormatSettings& settings)
      : format_(format), rest_(format), arguments_(arguments), settings_(settings) {}

  [[nodiscard]] std::u16string Text() {
    std::u16string text;
    while (!rest_.empty()) {
      const std::u16string_view plain = rest_.substr(0, rest_.find(u'%'));
      text += plain;
      rest_.remove_prefix(plain.size());
      if (!rest_.empty()) text += Percent();
    }
    return text;
  }

 private:
  [[noreturn]] void RaiseMisfit() const {
    throw ConvertError(u"The format '" + std::u16string(format_) + u"' does not fit its arguments");
  }

  bool Take(char16_t ch) {
    if (!rest_.starts_with(ch)) return false;
    rest_.remove_prefix(1);
    return true;
  }

  std::u16string Percent() {
    rest_.remove_prefix(1);
    if (Take(u'%')) return u"%";
    const Place place = TakePlace();
    return InWidth(Argument(place), place);
  }

  // A number before a colon is an index, else a width.
  Place TakePlace() {
    Place place;
    place.width = TakeNumber();
    if (Take(u':')) {
      next_ = static_cast<std::size_t>(place.width.value_or(0));
      place.width.reset();
    }
    if (!place.width) {
      place.is_left = Take(u'-');
      place.width = TakeNumber();
    }
    if (Take(u'.')) place.precision = TakeNumber().value_or(0);
    if (rest_.empty()) RaiseMisfit();
    place.kind = AsciiLower(rest_.front());
    rest_.remove_prefix(1);
    return place;
  }

  std::optional<int> TakeNumber() {
    if (Take(u'*')) return Limited(Next<std::int64_t>());
    std::optional<int> number;
    while (!rest_.empty() && rest_.front() >= u'0' && rest_.front() <= u'9') {
      number = Limited(number.value_or(0) * std::int64_t{10} + (rest_.front() - u'0'));
      rest_.remove_prefix(1);
    }
    return number;
  }

  [[nodiscard]] int Limited(std::int64_t number) const {
    if (number < 0 || number > kLargestNumber) RaiseMisfit();
    return static_cast<int>(number);
  }

  const MessageArgument& Peek() {
    if (next_ >= arguments_.size()) RaiseMisfit();
    return arguments_[next_];
  }

  template <class Sort>
  const Sort& Next() {
    const auto* argument = std::get_if<Sort>(&Peek());
    if (argument == nullptr) RaiseMisfit();
    ++next_;
    return *argument;
  }

  std::u16string Argument(const Place& place) {
    switch (place.kind) {
      case u'd':
        return SignedText(Next<std::int64_t>(), place);
      case u'u':
        return FilledUp(ToText(static_cast<std::uint64_t>(Next<std::int64_t>())), place);
      case u'x':
        return FilledUp(ToHex(static_cast<std::uint64_t>(Next<std::int64_t>()), 1), place);
      case u's':
        return Next<std::u16string>().substr(0, Cut(place));
      case u'e':
      case u'f':
      case u'g':
      case u'n':
        return Number(place);
      default:
        RaiseMisfit();
    }
  }

  [[nodiscard]] static std::size_t Cut(const Place& place) {
    return place.precision ? static_cast<std::size_t>(*place.precision) : std::u16string::npos;
  }

  std::u16string Number(const Place& place) {
    if (!std::holds_alternative<Currency>(Peek())) return FloatText(Next<Extended>(), place, settings_);
    return DecimalText(ToDecimal(Next<Currency>().raw, Currency::kPlaces), place, settings_);
  }

  std::u16string_view format_;
  std::u16string_view rest_;
  std::span<const MessageArgument> arguments_;
  const FormatSettings& settings_;
  std::size_t next_ = 0;
};

}  // namespace

std::u16string FormatMessageText(std::u16string_view format, std::span<const MessageArgument> arguments,
                                 const FormatSettings& settings) {
  return Formatter(format, arguments, settings).Text();
}

}  // namespace ravo
