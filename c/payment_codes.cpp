#include "support.h"
#include <ravo/czech/payment_code.h>

#include <iterator>
#include <span>

using ravo::c::Fail;
using ravo::c::FailArgument;
using ravo::c::FailNullResult;
using ravo::c::FailUnknown;
using ravo::c::FailWrong;
using ravo::c::IsKnown;
using ravo::c::ReadText;
using ravo::c::TextOut;
using ravo::c::WriteText;
using ravo::c::WriteTexts;
namespace czech = ravo::czech;

namespace {

template <class Code>
struct Member {
  std::string_view key;
  const char* Code::*value;
};

constexpr Member<ravo_spayd> kSpayd[] = {
    {"ACC", &ravo_spayd::account},
    {"ALT-ACC", &ravo_spayd::other_accounts},
    {"AM", &ravo_spayd::amount},
    {"CC", &ravo_spayd::currency},
    {"RF", &ravo_spayd::reference},
    {"RN", &ravo_spayd::receiver},
    {"DT", &ravo_spayd::due},
    {"PT", &ravo_spayd::payment_type},
    {"MSG", &ravo_spayd::message},
    {"NT", &ravo_spayd::notify_by},
    {"NTA", &ravo_spayd::notify_to},
    {"X-PER", &ravo_spayd::retry_days},
    {"X-VS", &ravo_spayd::variable_symbol},
    {"X-SS", &ravo_spayd::specific_symbol},
    {"X-KS", &ravo_spayd::constant_symbol},
    {"X-ID", &ravo_spayd::own_id},
    {"X-URL", &ravo_spayd::url},
    {"X-INV", &ravo_spayd::invoice},
};

constexpr Member<ravo_sid> kSid[] = {
    {"ID", &ravo_sid::number},        {"DD", &ravo_sid::issued},          {"AM", &ravo_sid::amount},
    {"TP", &ravo_sid::tax_type},      {"TD", &ravo_sid::document_type},   {"SA", &ravo_sid::has_deposits},
    {"MSG", &ravo_sid::message},      {"ON", &ravo_sid::order},           {"VS", &ravo_sid::variable_symbol},
    {"VII", &ravo_sid::supplier_dic}, {"INI", &ravo_sid::supplier_ico},   {"VIR", &ravo_sid::customer_dic},
    {"INR", &ravo_sid::customer_ico}, {"DUZP", &ravo_sid::tax_point},     {"DPPD", &ravo_sid::tax_due},
    {"DT", &ravo_sid::due},           {"TB0", &ravo_sid::base_standard},  {"T0", &ravo_sid::tax_standard},
    {"TB1", &ravo_sid::base_reduced}, {"T1", &ravo_sid::tax_reduced},     {"TB2", &ravo_sid::base_second},
    {"T2", &ravo_sid::tax_second},    {"NTB", &ravo_sid::untaxed},        {"CC", &ravo_sid::currency},
    {"FX", &ravo_sid::exchange_rate}, {"FXA", &ravo_sid::exchange_count}, {"ACC", &ravo_sid::account},
    {"X-SW", &ravo_sid::software},    {"X-URL", &ravo_sid::url},
};

// The message says which value it is about.
[[gnu::cold]] ravo_status FailValue(ravo_error* error, ravo::c::Failure failure, std::string_view key) {
  std::array<char, sizeof(ravo_error::message)> message{};
  char* end = std::ranges::copy(key, message.data()).out;
  end = std::ranges::copy(std::string_view(": "), end).out;
  const auto room = static_cast<std::size_t>(message.data() + message.size() - end);
  end = std::ranges::copy(failure.message.substr(0, room), end).out;
  failure.message = {message.data(), static_cast<std::size_t>(end - message.data())};
  return Fail(error, failure);
}

// The values that are there, as the writer takes them.
class Fields {
 public:
  template <class Code, std::size_t kCount>
  Fields(const Code& code, const Member<Code> (&members)[kCount]) noexcept {
    for (const auto& [key, value] : members) {
      if (const char* const text = code.*value; text != nullptr) room_[count_++] = {key, text};
    }
  }

  [[nodiscard]] std::span<const czech::PaymentCodeField> All() const noexcept {
    return std::span(room_).first(count_);
  }

  [[nodiscard]] ravo_status CheckUtf8(ravo_error* error) const {
    for (const auto& [key, value] : All()) {
      const std::size_t good = ravo::c::WellFormedLength(value);
      if (good != value.size()) return FailValue(error, {RAVO_UTF8, 0, good, "the value is not UTF-8"}, key);
    }
    return RAVO_OK;
  }

  [[nodiscard]] ravo_status Finish(const czech::WrittenPaymentCode& written, const TextOut& out,
                                   ravo_error* error) const {
    if (written) return WriteText(out, written.text.View(), error);
    if (written.field >= count_) return FailWrong(error, written.code, 0);
    return FailValue(error,
                     {RAVO_WRONG, static_cast<std::int32_t>(written.code), written.position,
                      czech::Sentence(written.code, czech::Language::English)},
                     room_[written.field].key);
  }

 private:
  std::array<czech::PaymentCodeField, czech::kPaymentCodeFields> room_{};
  std::size_t count_ = 0;
};
static_assert(std::size(kSid) < czech::kPaymentCodeFields && std::size(kSpayd) < czech::kPaymentCodeFields);

[[gnu::cold]] ravo_status FailCode(ravo_error* error) {
  return FailArgument(error, "the code is null, or its size is not set");
}

}  // namespace

ravo_status ravo_spayd_write(const ravo_spayd* code, char* buffer, size_t size, size_t* length,
                             ravo_error* error) {
  if (!IsKnown(code)) return FailCode(error);
  const Fields fields(*code, kSpayd);
  if (const ravo_status status = fields.CheckUtf8(error); status != RAVO_OK) return status;
  const auto written =
      czech::WritePaymentCode(czech::PaymentCodeKind::Payment, fields.All(), code->checksum != 0);
  return fields.Finish(written, {buffer, size, length}, error);
}

ravo_status ravo_sid_write(const ravo_sid* code, char* buffer, size_t size, size_t* length,
                           ravo_error* error) {
  if (!IsKnown(code)) return FailCode(error);
  const Fields fields(*code, kSid);
  if (const ravo_status status = fields.CheckUtf8(error); status != RAVO_OK) return status;
  const auto written = code->inside != 0 ? czech::WriteInvoiceInside(fields.All())
                                         : czech::WritePaymentCode(czech::PaymentCodeKind::Invoice,
                                                                   fields.All(), code->checksum != 0);
  return fields.Finish(written, {buffer, size, length}, error);
}

ravo_status ravo_payment_code_read(const char* text, size_t text_length, ravo_payment_code* code,
                                   size_t* values, ravo_error* error) {
  if (code == nullptr || values == nullptr) return FailNullResult(error);
  const auto [input, status] = ReadText(text, text_length, error);
  if (status != RAVO_OK) return status;
  const auto parsed = czech::ParsePaymentCode(input);
  if (!parsed) return FailWrong(error, parsed.code, parsed.position);
  *code =
      parsed.value.kind == czech::PaymentCodeKind::Payment ? RAVO_PAYMENT_CODE_SPAYD : RAVO_PAYMENT_CODE_SID;
  *values = parsed.value.count;
  return RAVO_OK;
}

ravo_status ravo_payment_code_at(const char* text, size_t text_length, size_t index, char* key,
                                 size_t key_size, size_t* key_length, char* value, size_t value_size,
                                 size_t* value_length, ravo_error* error) {
  const auto [input, status] = ReadText(text, text_length, error);
  if (status != RAVO_OK) return status;
  const auto parsed = czech::ParsePaymentCode(input);
  if (!parsed) return FailWrong(error, parsed.code, parsed.position);
  if (index >= parsed.value.count) return FailUnknown(error, "the code has fewer values");
  const czech::PaymentCodeField field = parsed.value.Fields()[index];
  std::array<char, czech::kPaymentCodeRoom> room;
  const std::string_view decoded(room.data(), czech::DecodePaymentValue(field.value, room));
  return WriteTexts({key, key_size, key_length}, field.key, {value, value_size, value_length}, decoded,
                    error);
}
