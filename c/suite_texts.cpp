#include "support.h"
#include <ravo/common/descriptions.h>
#include <ravo/common/diacritics.h>
#include <ravo/common/identifiers.h>
#include <ravo/common/machine_free.h>
#include <ravo/common/qualified_names.h>
#include <ravo/runtime/text.h>

using ravo::c::FailArgument;
using ravo::c::Guarded;
using ravo::c::ReadBytes;
using ravo::c::ReadText;
using ravo::c::TextIn;
using ravo::c::TextOut;
using ravo::c::Units;
using ravo::c::WriteBytes;
using ravo::c::WriteText;
using ravo::c::WriteTexts;
namespace suite = ravo::RavoInterfaceCommon;

namespace {

// Writes the text in UTF-16 that `form` makes.
template <class Form>
ravo_status Formed(const TextOut& out, ravo_error* error, Form form) {
  return Guarded(error, [&] { return WriteText(out, ravo::ToUtf8(form()), error); });
}

}  // namespace

ravo_status ravo_suite_adresa_expand(const char* adresa, size_t adresa_length, char* ulice, size_t ulice_size,
                                     size_t* ulice_length, char* cislo, size_t cislo_size,
                                     size_t* cislo_length, ravo_error* error) {
  const TextIn address = ReadText(adresa, adresa_length, error);
  if (address.status != RAVO_OK) return address.status;
  return Guarded(error, [&] {
    std::u16string street;
    std::u16string number;
    suite::AdresaExpand(Units(address.text), street, number);
    return WriteTexts({ulice, ulice_size, ulice_length}, ravo::ToUtf8(street),
                      {cislo, cislo_size, cislo_length}, ravo::ToUtf8(number), error);
  });
}

ravo_status ravo_suite_doklad_description(const char* prefix, size_t prefix_length, const char* number,
                                          size_t number_length, const char* suffix, size_t suffix_length,
                                          char* buffer, size_t size, size_t* length, ravo_error* error) {
  const TextIn before = ReadText(prefix, prefix_length, error);
  if (before.status != RAVO_OK) return before.status;
  const TextIn middle = ReadText(number, number_length, error);
  if (middle.status != RAVO_OK) return middle.status;
  const TextIn after = ReadText(suffix, suffix_length, error);
  if (after.status != RAVO_OK) return after.status;
  return Formed({buffer, size, length}, error, [&] {
    return suite::DokladDescription(Units(before.text), Units(middle.text), Units(after.text));
  });
}

ravo_status ravo_suite_parse_zaloha_file(const char* pattern, size_t pattern_length, const char* firma,
                                         size_t firma_length, ravo_suite_moment moment, char* buffer,
                                         size_t size, size_t* length, ravo_error* error) {
  const TextIn name = ReadText(pattern, pattern_length, error);
  if (name.status != RAVO_OK) return name.status;
  const TextIn company = ReadText(firma, firma_length, error);
  if (company.status != RAVO_OK) return company.status;
  return Formed({buffer, size, length}, error, [&] {
    return ravo::common::BackupName(Units(name.text), Units(company.text), moment, moment);
  });
}

ravo_status ravo_suite_extract_table_from_property(const char* name, size_t name_length, char* buffer,
                                                   size_t size, size_t* length, ravo_error* error) {
  const TextIn property = ReadText(name, name_length, error);
  if (property.status != RAVO_OK) return property.status;
  return Formed({buffer, size, length}, error,
                [&] { return suite::ExtractTableFromProperty(Units(property.text)); });
}

ravo_status ravo_suite_remove_table_from_properties(const char* table, size_t table_length,
                                                    const char* properties, size_t properties_length,
                                                    char* buffer, size_t size, size_t* length,
                                                    ravo_error* error) {
  const TextIn name = ReadText(table, table_length, error);
  if (name.status != RAVO_OK) return name.status;
  const TextIn list = ReadText(properties, properties_length, error);
  if (list.status != RAVO_OK) return list.status;
  return Formed({buffer, size, length}, error,
                [&] { return suite::RemoveTableFromProperties(Units(name.text), Units(list.text)); });
}

ravo_status ravo_suite_uid_to_string(const char* uid, size_t uid_length, char* buffer, size_t size,
                                     size_t* length, ravo_error* error) {
  const TextIn text = ReadText(uid, uid_length, error);
  if (text.status != RAVO_OK) return text.status;
  return Formed({buffer, size, length}, error, [&] {
    if (uid == nullptr) return suite::UIDToString({}, true);
    return suite::UIDToString(ravo::Variant(std::u16string(Units(text.text).View())), true);
  });
}

ravo_status ravo_suite_timestamp_to_bytes(const char* text, size_t text_length, void* buffer, size_t size,
                                          size_t* length, ravo_error* error) {
  const TextIn digits = ReadText(text, text_length, error);
  if (digits.status != RAVO_OK) return digits.status;
  return Guarded(error, [&] {
    const auto bytes = suite::TimestampToBytes(Units(digits.text));
    return WriteBytes({static_cast<char*>(buffer), size, length},
                      {reinterpret_cast<const char*>(bytes.data()), bytes.size()}, error);
  });
}

ravo_status ravo_suite_bytes_to_str(int64_t bytes, int32_t with_bytes, int32_t decimal, const char* thousands,
                                    size_t thousands_length, char* buffer, size_t size, size_t* length,
                                    ravo_error* error) {
  if (decimal <= ' ' || decimal >= 0x7F) return FailArgument(error, "the separator is unusable");
  const TextIn separator = ReadText(thousands, thousands_length, error);
  if (separator.status != RAVO_OK) return separator.status;
  return Formed({buffer, size, length}, error, [&] {
    ravo::FormatSettings locale;
    locale.decimal_separator = static_cast<char16_t>(decimal);
    locale.thousands_separator = Units(separator.text).View();
    return ravo::common::BytesText(bytes, with_bytes != 0, locale);
  });
}

ravo_status ravo_suite_remove_diacritics(const void* bytes, size_t bytes_length, void* buffer, size_t size,
                                         size_t* length, ravo_error* error) {
  const auto [input, status] = ReadBytes(bytes, bytes_length, error);
  if (status != RAVO_OK) return status;
  return Guarded(error, [&, &text = input] {
    return WriteBytes({static_cast<char*>(buffer), size, length}, suite::RemoveDiacritics(text), error);
  });
}
