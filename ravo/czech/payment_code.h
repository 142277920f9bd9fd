#pragma once

#include <ravo/czech/reason.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

/// The texts of Czech QR codes: payments (Short Payment Descriptor, "SPD*1.0*ACC:...*AM:450.00") by standard
/// 26 of the Czech Banking Association, and invoices (Short Invoice Descriptor, "SID*1.0*ID:...").
///
/// A code is a header and attributes between asterisks, each a key, a colon and a value. Asterisks, percent
/// signs and characters beyond ASCII are percent-encoded, by the bytes of their UTF-8. A payment code may
/// hold an invoice code in X-INV.
namespace ravo::czech {

/// Which of the two codes.
enum class PaymentCodeKind : std::uint8_t { Payment, Invoice };

/// An attribute: "AM" and "450.00".
struct PaymentCodeField {
  std::string_view key;
  std::string_view value;
};

/// The bytes of the largest QR code of error correction M.
inline constexpr std::size_t kPaymentCodeRoom = 2331;
/// More than either standard has keys.
inline constexpr std::size_t kPaymentCodeFields = 48;

/// The text of a code, in ASCII.
struct PaymentCodeText {
  std::array<char, kPaymentCodeRoom> characters{};
  std::uint16_t size = 0;

  /// A view of this object's characters: valid while the object is.
  [[nodiscard]] constexpr std::string_view View() const noexcept { return {characters.data(), size}; }
};

/// A code that was read. The fields are views of the text that was read.
struct PaymentCode {
  PaymentCodeKind kind = PaymentCodeKind::Payment;
  std::uint16_t count = 0;
  std::array<PaymentCodeField, kPaymentCodeFields> room{};  ///< percent-encoded values

  /// The attributes in the order of the text.
  [[nodiscard]] constexpr std::span<const PaymentCodeField> Fields() const noexcept {
    return std::span(room).first(count);
  }
  /// Returns the percent-encoded value of a key, empty for a key that the code lacks.
  [[nodiscard]] std::string_view Value(std::string_view key) const noexcept;
};

/// What the writer answers: the text, or the reason and where the fields are at fault.
struct WrittenPaymentCode {
  PaymentCodeText text;
  Code code = Code::Correct;
  std::size_t field = 0;     ///< the index of the field at fault; the number of fields if one is missing
  std::size_t position = 0;  ///< in bytes of its value

  /// Returns whether the text was written.
  [[nodiscard]] constexpr explicit operator bool() const noexcept { return code == Code::Correct; }
};

/// Returns the text of a code with these attributes, in their order.
///
/// Values are UTF-8 and not percent-encoded: "CZ6508000000192000145399" or with "+" and a BIC, "450.00",
/// "20261231". Lengths are in characters. With `checksum`, CRC32 comes last: of the header and the other
/// attributes in the order of their keys. Refused: all `PaymentCode...` but `PaymentCodeHeader`, and the
/// reasons of accounts, IČO and DIČ. Keys that the standard does not have are written as they are. Never
/// throws, never allocates.
///
///     WritePaymentCode(PaymentCodeKind::Payment, {{{"ACC", "CZ6508000000192000145399"}, {"AM", "450.00"}}})
[[nodiscard]] WrittenPaymentCode WritePaymentCode(PaymentCodeKind kind,
                                                  std::span<const PaymentCodeField> fields,
                                                  bool checksum = false) noexcept;

/// Returns an invoice code for X-INV of a payment code: it may lack AM, which the payment has.
[[nodiscard]] WrittenPaymentCode WriteInvoiceInside(std::span<const PaymentCodeField> fields) noexcept;

/// Returns the attributes of a code, correct in form: each by the rules of its key, and the checksum if there
/// is one.
///
/// Refused: as by the writer, and `PaymentCodeHeader` for another beginning or version. One asterisk may
/// follow the last attribute. Keys that the standard does not have pass. An invoice code in X-INV is read
/// too; it may lack AM, which the payment has.
[[nodiscard]] Parsed<PaymentCode> ParsePaymentCode(std::string_view text) noexcept;

/// Decodes a percent-encoded value into `to` and returns the number of bytes, at most `value.size()`.
///
/// A percent sign without two hexadecimal digits stays as it is. Precondition: `to` has room.
std::size_t DecodePaymentValue(std::string_view value, std::span<char> to) noexcept;

/// Returns whether the standard has that key in codes of that kind.
[[nodiscard]] bool IsPaymentKey(PaymentCodeKind kind, std::string_view key) noexcept;

}  // namespace ravo::czech
