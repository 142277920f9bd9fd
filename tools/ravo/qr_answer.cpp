#include "qr_answer.h"

#include "columns.h"
#include "compression.h"
#include "console.h"
#include "document_file.h"
#include "isdoc_payment.h"
#include "json_text.h"
#include "output_file.h"
#include "qr_picture.h"
#include "text.h"
#include "user_language.h"
#include "whole_input.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <variant>
#include <vector>

namespace tool {
namespace {

namespace czech = ravo::czech;

// How a code is written.
enum class QrFormat { Text, Blocks, Svg, Png };

struct QrFormatRow {
  std::string_view name;
  std::string_view extension;
  QrFormat format;
};
// Files of blocks have no extension of their own.
constexpr QrFormatRow kQrFormats[] = {{"text", ".txt", QrFormat::Text},
                                      {"svg", ".svg", QrFormat::Svg},
                                      {"png", ".png", QrFormat::Png},
                                      {"blocks", "", QrFormat::Blocks}};

QrFormat FormatNamed(const std::string& name) {
  return std::ranges::find(kQrFormats, name, &QrFormatRow::name)->format;
}

std::optional<QrFormat> FormatOfFile(const std::string& name) {
  std::string lower = name;
  for (char& c : lower) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  for (const QrFormatRow& row : kQrFormats) {
    if (!row.extension.empty() && lower.ends_with(row.extension)) return row.format;
  }
  return std::nullopt;
}

// Which format is meant, or nothing and a message.
std::optional<QrFormat> FormatOf(const QrOptions& options, Outcome& outcome) {
  if (options.format == "png" && options.out.empty()) {
    Complain(outcome, Text("a PNG needs a file: give -o"), Answer::WrongUsage);
    return std::nullopt;
  }
  if (!options.format.empty()) return FormatNamed(options.format);
  if (options.out.empty())
    return IsTerminal(Channel::Out) && DrawsQrCodes() ? QrFormat::Blocks : QrFormat::Text;
  const auto format = FormatOfFile(options.out);
  if (!format) {
    Complain(outcome, Text("{0}: the name tells no format (.txt, .svg, .png); give --format", {options.out}),
             Answer::WrongUsage);
  }
  return format;
}

// Whether this build has the library that a format needs.
bool CanDraw(QrFormat format, Outcome& outcome) {
  if (format != QrFormat::Text && !DrawsQrCodes()) {
    // Untested: the builds that are tested have libqrencode.
    Complain(outcome, Text("this build of ravo cannot draw QR codes; --format text writes the text"),
             Answer::WrongUsage);
    return false;
  }
  if (format == QrFormat::Png && !HasCompression()) {
    // Untested: the builds that are tested have zlib.
    Complain(outcome, Text("this build of ravo cannot write PNG; --format svg can be written"),
             Answer::WrongUsage);
    return false;
  }
  return true;
}

std::string Drawn(const std::string& text, const QrModules& modules, QrFormat format,
                  const QrOptions& options, bool coloured) {
  switch (format) {
    case QrFormat::Blocks:
      return QrBlocks(modules, coloured) + text + "\n";
    case QrFormat::Svg:
      return QrSvg(modules);
    case QrFormat::Png:
      return QrPng(modules, options.scale);
    case QrFormat::Text:
      break;
  }
  return text + "\n";
}

Json FieldsJson(const czech::PaymentCode& code);

std::string DecodedValue(std::string_view value) {
  std::string text(value.size(), '\0');
  text.resize(czech::DecodePaymentValue(value, text));
  return text;
}

Json CodeJson(const std::string& text) {
  const auto code = czech::ParsePaymentCode(text);
  const bool is_payment = code.value.kind == czech::PaymentCodeKind::Payment;
  return {{"text", text}, {"kind", is_payment ? "payment" : "invoice"}, {"fields", FieldsJson(code.value)}};
}

// An invoice inside a payment is fields in its turn.
Json FieldsJson(const czech::PaymentCode& code) {
  Json fields = Json::object();
  for (const auto& [key, value] : code.Fields()) {
    const std::string decoded = DecodedValue(value);
    fields[std::string(key)] = key == "X-INV" ? CodeJson(decoded)["fields"] : Json(decoded);
  }
  return fields;
}

void WriteCodeJson(const PaymentAnswer& answer, const QrOptions& options, Outcome& outcome) {
  Json json = CodeJson(answer.text);
  json["notes"] = Json::array();
  for (const PaymentNote& note : answer.notes)
    json["notes"].push_back({{"code", note.code}, {"text", note.text}});
  if (!options.out.empty()) json["file"] = options.out;
  outcome.out = JsonText(json);
}

void WriteCode(const PaymentAnswer& answer, const QrOptions& options, QrFormat format, Outcome& outcome) {
  const auto modules = format == QrFormat::Text ? QrModules{} : QrModulesOf(answer.text);
  if (!modules) {
    return Complain(outcome, Text("the text is too long for a QR code"), Answer::WrongUsage);
  }
  outcome.coloured = options.out.empty() && format == QrFormat::Blocks && ShowsColours(Channel::Out);
  const std::string bytes = Drawn(answer.text, *modules, format, options, outcome.coloured);
  if (options.out.empty()) {
    outcome.out = bytes;
  } else if (const std::string failure = WriteTextFile(options.out, bytes); !failure.empty()) {
    Complain(outcome, options.out + ": " + failure, Answer::WrongUsage);
  }
}

std::variant<PaymentAnswer, PaymentFault> AskByInvoice(const QrOptions& options) {
  PaymentRequest request = options.request;
  std::vector<PaymentNote> notes;
  try {
    notes = FillFromInvoice(options.isdoc, options.with_invoice, request);
  } catch (const FileError& error) {
    return PaymentFault{error.what()};
  }
  auto asked = AskForPayment(request);
  if (auto* answer = std::get_if<PaymentAnswer>(&asked))
    answer->notes.insert(answer->notes.begin(), notes.begin(), notes.end());
  return asked;
}

std::variant<PaymentAnswer, PaymentFault> Ask(const QrOptions& options) {
  if (!options.isdoc.empty()) return AskByInvoice(options);
  if (options.with_invoice && options.request.invoice.empty())
    return PaymentFault{Text("--invoice needs KEY=VALUE, or --isdoc")};
  return AskForPayment(options.request);
}

void MakeCode(const QrOptions& options, Outcome& outcome) {
  const auto format = FormatOf(options, outcome);
  if (!format || !CanDraw(*format, outcome)) return;
  const auto asked = Ask(options);
  if (const auto* fault = std::get_if<PaymentFault>(&asked))
    return Complain(outcome, fault->message, Answer::WrongUsage);
  const auto& answer = std::get<PaymentAnswer>(asked);
  WriteCode(answer, options, *format, outcome);
  if (outcome.answer == Answer::Yes && options.json) WriteCodeJson(answer, options, outcome);
  if (options.json) return;
  for (const PaymentNote& note : answer.notes) Complain(outcome, note.text, Answer::Yes);
}

// One row a field; those of an invoice inside a payment follow it, with both keys.
void AddFieldRows(const czech::PaymentCode& code, const std::string& before, Columns& rows) {
  for (const auto& [key, value] : code.Fields()) {
    const std::string decoded = DecodedValue(value);
    if (key != "X-INV") {
      rows.Add({before + std::string(key), decoded});
    } else {
      AddFieldRows(czech::ParsePaymentCode(decoded).value, before + "X-INV/", rows);
    }
  }
}

Json RefusedJson(const std::string& text, czech::Code code, std::size_t position) {
  return {{"text", text},
          {"kind", nullptr},
          {"reason", czech::CodeText(code)},
          {"remark", czech::Sentence(code, UserLanguage())},
          {"position", position}};
}

void ReadCode(const QrOptions& options, Outcome& outcome) {
  std::string reason;
  auto text = options.read == kInputName ? ReadWhole(options.read, &reason) : std::optional(options.read);
  if (!text) return Complain(outcome, Text("standard input") + ": " + reason, Answer::WrongUsage);
  while (text->ends_with('\n') || text->ends_with('\r')) text->pop_back();
  const auto code = czech::ParsePaymentCode(*text);
  if (!code) {
    const std::string sentence(czech::Sentence(code.code, UserLanguage()));
    Complain(outcome, Text("character {0}: {1}", {std::to_string(code.position + 1), sentence}), Answer::No);
    if (options.json) outcome.out = JsonText(RefusedJson(*text, code.code, code.position));
    return;
  }
  Columns rows;
  AddFieldRows(code.value, "", rows);
  outcome.out = options.json ? JsonText(CodeJson(*text)) : rows.Text();
}

}  // namespace

void AnswerQr(const QrOptions& options, Outcome& outcome) {
  options.read.empty() ? MakeCode(options, outcome) : ReadCode(options, outcome);
}

}  // namespace tool
