// Every function of libravo that takes a text, over any bytes: statuses and positions make sense, results are
// UTF-8 and as long as they say, conversions in pieces give what the whole gives, and texts compare as their
// keys do.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include <ravo.h>

namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

using TextFunction = ravo_status(RAVO_CALL*)(const char*, size_t, char*, size_t, size_t*, ravo_error*);
using AnswerFunction = ravo_status(RAVO_CALL*)(const char*, size_t, std::int32_t*, ravo_error*);

constexpr TextFunction kTextFunctions[] = {
    ravo_account_to_iban, ravo_account_of_iban,     ravo_isbn_to_13,  ravo_suite_extract_table_from_property,
    ravo_text_upper,      ravo_text_lower,          ravo_text_fold,   ravo_url_encode,
    ravo_url_decode,      ravo_suite_uid_to_string, ravo_text_proper, ravo_uri_without_fragment,
    ravo_uri_fragment};
constexpr AnswerFunction kAnswerFunctions[] = {
    ravo_suite_is_numbers, ravo_suite_valid_su, ravo_suite_valid_au,    ravo_suite_valid_ucet,
    ravo_suite_valid_vs,   ravo_reason_of,      ravo_suite_ucet_mod_11, ravo_day_read};

bool IsUtf8(std::string_view text) {
  std::int32_t answer = 0;
  return ravo_suite_is_numbers(text.data(), text.size(), &answer, nullptr) == RAVO_OK;
}

void CheckError(ravo_status status, const ravo_error& error) {
  Require(status != RAVO_INTERNAL && status != RAVO_ARGUMENT);
  if (status != RAVO_OK) Require(error.status == status && error.message[0] != '\0');
}

void CheckTextFunction(TextFunction function, std::string_view text) {
  ravo_error error = RAVO_ERROR_INIT;
  std::size_t length = 0;
  const ravo_status status = function(text.data(), text.size(), nullptr, 0, &length, &error);
  CheckError(status, error);
  if (status != RAVO_OK) return;
  std::string result(length + 1, 'x');
  Require(function(text.data(), text.size(), result.data(), result.size(), &length, nullptr) == RAVO_OK);
  Require(length + 1 == result.size() && result.back() == '\0');
  Require(IsUtf8(std::string_view(result).substr(0, length)));
  if (length == 0) return;
  std::size_t again = 0;
  Require(function(text.data(), text.size(), result.data(), length, &again, nullptr) == RAVO_BUFFER);
  Require(again == length && IsUtf8(result.c_str()));
}

void CheckStructs(std::string_view text) {
  ravo_error error = RAVO_ERROR_INIT;
  ravo_account account = RAVO_ACCOUNT_INIT;
  CheckError(ravo_account_read(text.data(), text.size(), &account, &error), error);
  ravo_birth birth = RAVO_BIRTH_INIT;
  CheckError(ravo_birth_read(text.data(), text.size(), 2461366, &birth, &error), error);
  ravo_suite_ean ean = RAVO_SUITE_EAN_INIT;
  CheckError(ravo_suite_calculate_ean(text.data(), text.size(), &ean, &error), error);
  ravo_money amount = 0;
  CheckError(ravo_money_read(text.data(), text.size(), ',', &amount, &error), error);
  ravo_suite_caption caption = RAVO_SUITE_CAPTION_INIT;
  CheckError(ravo_suite_caption_find(text.data(), text.size(), &caption, &error), error);
  for (ravo_kind kind = 1; ravo_kind_name(kind) != nullptr; ++kind) {
    const ravo_status status = ravo_check(kind, text.data(), text.size(), nullptr, 0, nullptr, &error);
    CheckError(status, error);
    if (status != RAVO_OK) Require(error.position <= text.size());
  }
}

void CheckPayments(std::string_view text) {
  ravo_payment payment = RAVO_PAYMENT_INIT;
  std::size_t last = 0;
  while (ravo_payment_find(text.data(), text.size(), payment.end, &payment, nullptr) == RAVO_OK) {
    Require(payment.begin < payment.end && payment.end <= text.size() && payment.end > last);
    last = payment.end;
  }
}

void CheckBanks(std::string_view text) {
  ravo_bank_list* list = nullptr;
  ravo_error error = RAVO_ERROR_INIT;
  const ravo_status status = ravo_bank_list_open(text.data(), text.size(), 2461366, &list, &error);
  CheckError(status, error);
  if (status != RAVO_OK) return;
  for (std::size_t i = 0; i < ravo_bank_count(list); ++i) {
    ravo_bank bank = RAVO_BANK_INIT;
    ravo_bank found = RAVO_BANK_INIT;
    Require(ravo_bank_at(list, i, &bank, nullptr) == RAVO_OK);
    Require(ravo_bank_find(list, bank.code, &found, nullptr) == RAVO_OK && found.name == bank.name);
    Require(IsUtf8(bank.name));
  }
  ravo_bank_list_close(list);
}

struct Answer {
  ravo_status status = RAVO_OK;
  std::size_t position = 0;
  std::string bytes;
};

Answer Whole(ravo_encoding from, ravo_encoding to, ravo_convert_policy policy, std::string_view bytes) {
  ravo_error error = RAVO_ERROR_INIT;
  Answer answer;
  answer.bytes.resize(bytes.size() * 8 + 16);
  std::size_t length = 0;
  answer.status = ravo_convert(from, bytes.data(), bytes.size(), to, policy, answer.bytes.data(),
                               answer.bytes.size(), &length, nullptr, nullptr, &error);
  if (answer.status != RAVO_OK) Require(error.position <= bytes.size());
  answer.position = answer.status == RAVO_OK ? 0 : error.position;
  answer.bytes.resize(answer.status == RAVO_OK ? length : 0);
  return answer;
}

Answer InPieces(ravo_encoding from, ravo_encoding to, ravo_convert_policy policy, std::string_view bytes,
                std::size_t piece) {
  ravo_error error = RAVO_ERROR_INIT;
  ravo_converter* converter = nullptr;
  Answer answer;
  answer.status = ravo_converter_open(from, to, policy, &converter, &error);
  for (std::size_t at = 0; answer.status == RAVO_OK; at += piece) {
    const std::string_view part = bytes.substr(at, piece);
    const bool is_last = at + part.size() == bytes.size();
    answer.status = ravo_converter_push(converter, part.data(), part.size(), is_last, &error);
    char buffer[7];
    std::size_t length = 0;
    while (ravo_converter_pull(converter, buffer, sizeof buffer, &length, nullptr) == RAVO_OK && length != 0)
      answer.bytes.append(buffer, length);
    if (is_last) break;
  }
  ravo_converter_close(converter);
  answer.position = answer.status == RAVO_OK ? 0 : error.position;
  if (answer.status != RAVO_OK) answer.bytes.clear();
  return answer;
}

void CheckConversion(std::string_view bytes) {
  if (bytes.size() < 4) return;
  const auto number = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  const auto count = static_cast<ravo_encoding>(ravo_encoding_count());
  const ravo_encoding from = number(0) % count;
  const ravo_encoding to = number(1) % count;
  const ravo_convert_policy policy = number(2) % 2;
  const std::string_view text = bytes.substr(4);
  const Answer whole = Whole(from, to, policy, text);
  const Answer pieces = InPieces(from, to, policy, text, number(3) % 16 + 1U);
  Require(whole.status == pieces.status && whole.position == pieces.position && whole.bytes == pieces.bytes);
}

std::string KeyOf(std::string_view text, std::uint32_t flags) {
  std::size_t length = 0;
  Require(ravo_czech_key(text.data(), text.size(), flags, nullptr, 0, &length, nullptr) == RAVO_OK);
  std::string key(length, 'x');
  Require(ravo_czech_key(text.data(), text.size(), flags, key.data(), length, nullptr, nullptr) == RAVO_OK);
  return key;
}

void CheckOrder(std::string_view bytes) {
  if (bytes.empty() || !IsUtf8(bytes.substr(1))) return;
  const std::uint32_t flags = static_cast<unsigned char>(bytes[0]) % 8;
  const std::string_view text = bytes.substr(1);
  const std::size_t end = text.find('\n');
  const std::string_view a = text.substr(0, end);
  const std::string_view b = end == std::string_view::npos ? text : text.substr(end + 1);
  std::int32_t order = 0;
  Require(ravo_compare_czech(a.data(), a.size(), b.data(), b.size(), flags, &order, nullptr) == RAVO_OK);
  const int keys = KeyOf(a, flags).compare(KeyOf(b, flags));
  Require(order == (keys > 0) - (keys < 0));
}

void CheckDetection(std::string_view bytes) {
  ravo_detection detection = RAVO_DETECTION_INIT;
  Require(ravo_encoding_detect(bytes.data(), bytes.size(), RAVO_DETECT_MAC, &detection, nullptr) == RAVO_OK);
  Require(detection.candidates >= 1 && detection.candidates <= ravo_encoding_count());
  Require(detection.is_sure == 0 || detection.candidates == 1);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  for (const TextFunction function : kTextFunctions) CheckTextFunction(function, text);
  for (const AnswerFunction function : kAnswerFunctions) {
    ravo_error error = RAVO_ERROR_INIT;
    std::int32_t answer = 0;
    CheckError(function(text.data(), text.size(), &answer, &error), error);
  }
  CheckStructs(text);
  CheckPayments(text);
  CheckBanks(text);
  CheckConversion(text);
  CheckOrder(text);
  CheckDetection(text);
  return 0;
}
