#include "form_file.h"

#include "csv_file.h"
#include "foreign_text.h"
#include "text.h"
#include <ravo/DIUnicode.h>
#include <ravo/RavoFileCommon.h>
#include <ravo/RavoInterface.h>

#include <charconv>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace tool {
namespace {

constexpr std::string_view kHeader = "%FDF-1.2\n%\xE2\xE3\xCF\xD3\n1 0 obj\n<</FDF<</Fields[";
constexpr std::string_view kTrailer = "]>>>>\nendobj\ntrailer\n<</Root 1 0 R>>\n%%EOF\n";

void Write(ravo::ByteStream& stream, std::string_view bytes) {
  stream.WriteChecked(std::as_bytes(std::span(bytes)));
}

std::optional<std::int32_t> Number(std::string_view text) {
  std::int32_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

// A form's texts are in parentheses and unescaped, so a text must not contain characters that end or change
// them.
bool FitsAForm(std::u16string_view text) {
  int open = 0;
  for (const char16_t ch : text) {
    if (ch == u'\\' || ch == u'\r') return false;
    if (ch == u'(') ++open;
    if (ch == u')' && --open < 0) return false;
  }
  return open == 0;
}

class FormWriter {
 public:
  FormWriter(const std::string& name, char delimiter)
      : file_(name, "reading", delimiter), field_(file_.Column("field")), value_(file_.Column("value")) {
    if (file_.HasColumn("kind")) kind_ = file_.Column("kind");
  }

  FormFile Run() {
    Write(stream_, kHeader);
    while (file_.Next()) WriteField();
    Write(stream_, kTrailer);
    const std::span<const std::byte> bytes = stream_.Bytes();
    return {std::string(reinterpret_cast<const char*>(bytes.data()), bytes.size()), file_.Rows()};
  }

 private:
  void WriteField() {
    const std::u16string name = FormText(field_);
    if (name.empty()) Refuse(Text("the field has no name"));
    const std::string kind = kind_ ? ForeignText(file_.Field(*kind_)) : std::string();
    if (kind == "number") {
      ravo::RavoFileCommon::FillPDFFieldAsInteger(stream_, name, NumberOf(value_));
    } else if (kind.empty() || kind == "text" || kind == "plain") {
      ravo::RavoFileCommon::FillPDFField(stream_, name, FormText(value_), kind != "plain");
    } else {
      Refuse(Text("'{0}' is not a kind; kinds are text, plain and number", {kind}));
    }
  }

  [[nodiscard]] std::u16string FormText(std::size_t column) const {
    const std::string text = ForeignText(file_.Field(column));
    std::u16string wide = ravo::FromUtf8(text);
    if (!FitsAForm(wide)) {
      Refuse(Text("'{0}' has a backslash, a carriage return or unbalanced parentheses", {text}));
    }
    if (const std::string lacking = Lacking(wide); !lacking.empty()) {
      Refuse(Text("the code page of forms lacks '{0}'", {lacking}));
    }
    return wide;
  }

  // Returns the first character that the forms' code page lacks.
  static std::string Lacking(std::u16string_view text) {
    const std::u16string back = ravo::FromCodePage(ravo::ToCodePage(text));
    for (std::size_t i = 0; i < text.size(); ++i) {
      if (i >= back.size() || back[i] != text[i]) return ravo::ToUtf8(text.substr(i, 1));
    }
    return {};
  }

  [[nodiscard]] std::int32_t NumberOf(std::size_t column) const {
    const std::optional<std::int32_t> number = Number(file_.Field(column));
    if (!number)
      Refuse(Text("'{0}' is not a whole number that fits 32 bits", {ForeignText(file_.Field(column))}));
    return *number;
  }

  [[noreturn]] void Refuse(const std::string& why) const { throw CsvError(file_.Line(), why); }

  CsvFile file_;
  std::size_t field_;
  std::size_t value_;
  std::optional<std::size_t> kind_;
  ravo::MemoryStream stream_;
};

}  // namespace

FormFile MakeFormFile(const std::string& name, char delimiter) { return FormWriter(name, delimiter).Run(); }

}  // namespace tool
