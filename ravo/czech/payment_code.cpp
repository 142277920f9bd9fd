#include <ravo/czech/payment_code.h>
#include <ravo/czech/payment_code_values.h>

#include <algorithm>
#include <optional>

namespace ravo::czech {
namespace {

using detail::ValueFault;

constexpr std::string_view kChecksumKey = "CRC32";
constexpr std::string_view kHexDigits = "0123456789ABCDEF";

constexpr std::string_view HeaderOf(PaymentCodeKind kind) noexcept {
  return kind == PaymentCodeKind::Payment ? "SPD*1.0" : "SID*1.0";
}

// The value of a hexadecimal digit of either case, or nothing.
std::optional<unsigned> HexValue(char c) noexcept {
  if (c >= 'a' && c <= 'f') c = static_cast<char>(c - 'a' + 'A');
  const std::size_t found = kHexDigits.find(c);
  if (found == std::string_view::npos) return std::nullopt;
  return static_cast<unsigned>(found);
}

// The byte that "%XX" at `at` means, or nothing.
std::optional<char> EscapeAt(std::string_view value, std::size_t at) noexcept {
  if (value[at] != '%' || value.size() - at < 3) return std::nullopt;
  const auto high = HexValue(value[at + 1]);
  const auto low = HexValue(value[at + 2]);
  if (!high || !low) return std::nullopt;
  return static_cast<char>(*high << 4 | *low);
}

// Where the decoded byte number `index` begins in the encoded value.
std::size_t EncodedPosition(std::string_view value, std::size_t index) noexcept {
  std::size_t at = 0;
  while (at < value.size() && index-- > 0) at += EscapeAt(value, at) ? 3 : 1;
  return at;
}

std::optional<std::size_t> WrongEscape(std::string_view value) noexcept {
  for (std::size_t at = value.find('%'); at != std::string_view::npos; at = value.find('%', at + 1)) {
    if (!EscapeAt(value, at)) return at;
  }
  return std::nullopt;
}

// CRC-32 as of ISO 3309, of a text in pieces.
class Checksum {
 public:
  void Add(std::string_view text) noexcept {
    for (const char c : text) AddByte(static_cast<unsigned char>(c));
  }
  [[nodiscard]] std::uint32_t Value() const noexcept { return ~state_; }

 private:
  void AddByte(unsigned byte) noexcept {
    state_ ^= byte;
    for (int bit = 0; bit < 8; ++bit) state_ = state_ >> 1 ^ (0xEDB88320U & (0U - (state_ & 1U)));
  }

  std::uint32_t state_ = ~std::uint32_t{0};
};

// The header and the other attributes by key.
std::uint32_t ChecksumOf(const PaymentCode& code) noexcept {
  auto sorted = code.room;
  const auto fields = std::span(sorted).first(code.count);
  std::ranges::sort(fields, {}, &PaymentCodeField::key);
  Checksum checksum;
  checksum.Add(HeaderOf(code.kind));
  for (const auto& [key, value] : fields) {
    if (key == kChecksumKey) continue;
    for (const std::string_view piece : {std::string_view("*"), key, std::string_view(":"), value})
      checksum.Add(piece);
  }
  return checksum.Value();
}

std::array<char, 8> HexText(std::uint32_t number) noexcept {
  std::array<char, 8> text{};
  for (std::size_t i = text.size(); i-- > 0; number >>= 4) text[i] = kHexDigits[number & 15];
  return text;
}

bool IsKey(std::string_view key) noexcept {
  const auto belongs = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-'; };
  return !key.empty() && std::ranges::all_of(key, belongs);
}

bool HasKey(std::span<const PaymentCodeField> fields, std::string_view key) noexcept {
  return std::ranges::find(fields, key, &PaymentCodeField::key) != fields.end();
}

bool IsComplete(PaymentCodeKind kind, std::span<const PaymentCodeField> fields, bool inside) noexcept {
  return std::ranges::all_of(detail::PaymentKeys(), [&](const detail::PaymentKey& row) {
    const bool needed =
        row.need == detail::ValueNeed::Always || (row.need == detail::ValueNeed::Alone && !inside);
    return row.kind != kind || !needed || HasKey(fields, row.key);
  });
}

// Appends to a text as long as there is room.
class Appender {
 public:
  explicit Appender(PaymentCodeText& text) : text_(text) {}

  void Append(std::string_view piece) noexcept {
    overflowed_ = overflowed_ || piece.size() > text_.characters.size() - text_.size;
    if (overflowed_) return;
    std::ranges::copy(piece, text_.characters.data() + text_.size);
    text_.size = static_cast<std::uint16_t>(text_.size + piece.size());
  }
  // A plus sign is plain in accounts alone: decoders of forms take it for a blank.
  void AppendEncoded(std::string_view value, bool plain_plus) noexcept {
    for (const char& c : value) {
      const auto byte = static_cast<unsigned char>(c);
      const bool plain = byte < 0x7F && c != '*' && c != '%' && (c != '+' || plain_plus);
      if (plain) {
        Append({&c, 1});
      } else {
        const char escape[] = {'%', kHexDigits[byte >> 4], kHexDigits[byte & 15]};
        Append({escape, 3});
      }
    }
  }
  [[nodiscard]] bool Overflowed() const noexcept { return overflowed_; }

 private:
  PaymentCodeText& text_;
  bool overflowed_ = false;
};

// The first fault of a field among those before it. A checksum is the writer's own work.
ValueFault CheckField(PaymentCodeKind kind, std::span<const PaymentCodeField> before,
                      const PaymentCodeField& field) noexcept {
  if (!IsKey(field.key)) return {Code::PaymentCodeKey, 0};
  if (HasKey(before, field.key)) return {Code::PaymentCodeTwice, 0};
  return detail::CheckPaymentValue(detail::FindPaymentKey(kind, field.key), field.value);
}

// Divides a text into fields and checks each.
class Reader {
 public:
  Reader(std::string_view text, bool inside) noexcept : text_(text), inside_(inside) {}

  Parsed<PaymentCode> Run() noexcept {
    if (text_.empty()) return {{}, Code::PaymentCodeEmpty, 0};
    if (!ReadHeader()) return {{}, Code::PaymentCodeHeader, 0};
    while (at_ < text_.size() && fault_.code == Code::Correct) ReadField();
    if (fault_.code == Code::Correct) CheckWhole();
    return {code_, fault_.code, fault_.position};
  }

 private:
  bool ReadHeader() noexcept {
    for (const auto kind : {PaymentCodeKind::Payment, PaymentCodeKind::Invoice}) {
      const std::string_view header = HeaderOf(kind);
      const bool is_this = text_.starts_with(header) && text_.substr(header.size()).starts_with('*');
      if (!is_this) continue;
      code_.kind = kind;
      at_ = header.size() + 1;
      return true;
    }
    return false;
  }

  void ReadField() noexcept {
    const std::size_t begin = at_;
    const std::size_t end = std::min(text_.find('*', begin), text_.size());
    const std::string_view field = text_.substr(begin, end - begin);
    const std::size_t colon = field.find(':');
    at_ = end + 1;
    if (colon == std::string_view::npos) return Fail(Code::PaymentCodeField, begin);
    if (code_.count == kPaymentCodeFields) return Fail(Code::PaymentCodeRoom, begin);
    CheckEncoded({field.substr(0, colon), field.substr(colon + 1)}, begin);
  }

  void CheckEncoded(PaymentCodeField field, std::size_t begin) noexcept {
    const std::size_t value_begin = begin + field.key.size() + 1;
    if (field.value.size() > kPaymentCodeRoom) return Fail(Code::PaymentCodeRoom, begin);
    if (const auto wrong = WrongEscape(field.value))
      return Fail(Code::PaymentCodeEncoding, value_begin + *wrong);
    std::array<char, kPaymentCodeRoom> room;
    const std::string_view value(room.data(), DecodePaymentValue(field.value, room));
    const ValueFault fault = CheckField(code_.kind, code_.Fields(), {field.key, value});
    const bool of_key = fault.code == Code::PaymentCodeKey || fault.code == Code::PaymentCodeTwice;
    if (fault.code != Code::Correct)
      return Fail(fault.code, of_key ? begin : value_begin + EncodedPosition(field.value, fault.position));
    code_.room[code_.count++] = field;
  }

  void CheckWhole() noexcept {
    if (!IsComplete(code_.kind, code_.Fields(), inside_)) return Fail(Code::PaymentCodeMissing, text_.size());
    const std::string_view written = code_.Value(kChecksumKey);
    if (written.empty()) return;
    const auto wanted = HexText(ChecksumOf(code_));
    if (written == std::string_view(wanted.data(), wanted.size())) return;
    Fail(Code::PaymentCodeChecksum, static_cast<std::size_t>(written.data() - text_.data()));
  }

  void Fail(Code code, std::size_t position) noexcept { fault_ = {code, position}; }

  std::string_view text_;
  std::size_t at_ = 0;
  PaymentCode code_;
  ValueFault fault_;
  bool inside_;
};

void AppendChecksum(Appender& appender, WrittenPaymentCode& written) noexcept {
  const auto code = Reader(written.text.View(), false).Run();
  const auto digits = HexText(ChecksumOf(code.value));
  for (const std::string_view piece :
       {std::string_view("*"), kChecksumKey, std::string_view(":"), std::string_view(digits.data(), 8)})
    appender.Append(piece);
}

WrittenPaymentCode Refusal(Code code, std::size_t field, std::size_t position) noexcept {
  return {{}, code, field, position};
}

WrittenPaymentCode Write(PaymentCodeKind kind, std::span<const PaymentCodeField> fields, bool checksum,
                         bool inside) noexcept {
  WrittenPaymentCode written;
  Appender appender(written.text);
  if (fields.size() >= kPaymentCodeFields) return Refusal(Code::PaymentCodeRoom, kPaymentCodeFields - 1, 0);
  appender.Append(HeaderOf(kind));
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const ValueFault fault = CheckField(kind, fields.first(i), fields[i]);
    if (fault.code != Code::Correct) return Refusal(fault.code, i, fault.position);
    // The writer computes it: a given one could be wrong.
    if (fields[i].key == kChecksumKey) return Refusal(Code::PaymentCodeKey, i, 0);
    for (const std::string_view piece : {std::string_view("*"), fields[i].key, std::string_view(":")})
      appender.Append(piece);
    const auto* const key = detail::FindPaymentKey(kind, fields[i].key);
    appender.AppendEncoded(fields[i].value, key && key->form <= detail::ValueForm::Accounts);
    if (appender.Overflowed()) return Refusal(Code::PaymentCodeRoom, i, 0);
  }
  if (!IsComplete(kind, fields, inside)) return Refusal(Code::PaymentCodeMissing, fields.size(), 0);
  if (checksum) AppendChecksum(appender, written);
  if (appender.Overflowed()) return Refusal(Code::PaymentCodeRoom, fields.size(), 0);
  return written;
}

}  // namespace

std::string_view PaymentCode::Value(std::string_view key) const noexcept {
  const auto fields = Fields();
  const auto found = std::ranges::find(fields, key, &PaymentCodeField::key);
  return found == fields.end() ? std::string_view() : found->value;
}

WrittenPaymentCode WritePaymentCode(PaymentCodeKind kind, std::span<const PaymentCodeField> fields,
                                    bool checksum) noexcept {
  return Write(kind, fields, checksum, false);
}

WrittenPaymentCode WriteInvoiceInside(std::span<const PaymentCodeField> fields) noexcept {
  return Write(PaymentCodeKind::Invoice, fields, false, true);
}

Parsed<PaymentCode> ParsePaymentCode(std::string_view text) noexcept { return Reader(text, false).Run(); }

std::size_t DecodePaymentValue(std::string_view value, std::span<char> to) noexcept {
  std::size_t count = 0;
  for (std::size_t at = 0; at < value.size(); ++count) {
    const auto escaped = EscapeAt(value, at);
    to[count] = escaped.value_or(value[at]);
    at += escaped ? 3 : 1;
  }
  return count;
}

bool IsPaymentKey(PaymentCodeKind kind, std::string_view key) noexcept {
  return detail::FindPaymentKey(kind, key) != nullptr;
}

namespace detail {

ValueFault CheckInvoiceInside(std::string_view text) noexcept {
  // Asked first: a payment code inside would be read in its turn.
  if (!text.starts_with(HeaderOf(PaymentCodeKind::Invoice))) return {Code::PaymentCodeHeader, 0};
  const auto invoice = Reader(text, true).Run();
  return {invoice.code, invoice.position};
}

}  // namespace detail
}  // namespace ravo::czech
