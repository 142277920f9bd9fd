#!/usr/bin/env python3
"""Lists in docs/c-interface.md each public C++ name with its function of c/ravo.h, or the reason why it has none."""

import pathlib
import re
from collections.abc import Iterator

from common import ROOT, command_line, has_block, outdated, table, with_block, write
from layering import include_graph, public_files
from reference import declarations, name_of
from source_tree import Planting, read

PAGE = "docs/c-interface.md"
HEADER = "c/ravo.h"
Rule = tuple[str, str, str]  # header, names, functions of C or a reason, as regular expressions and text

OWN = "the caller's language has its own"
MACHINE = "asks the machine: clock, locale, files, registry or system"
PROGRAM = "still in the program"
LATER = "not yet"
MODULES = "of modules of the suite, which are C++"
PARTS = "inside of the library"
# The first rule that fits a name holds.
RULES: list[Rule] = [
    ("ravo/czech/(reading|weights|fixed_text|country|national_accounts|isbn_ranges|payment_code_values)", ".*", PARTS),
    ("ravo/czech/account", "Account|ParseAccount|Format", "ravo_account_read, ravo_check, ravo_respell"),
    ("ravo/czech/account", "IbanOf", "ravo_account_to_iban"),
    ("ravo/czech/account", "AccountOf", "ravo_account_of_iban"),
    ("ravo/czech/banks", "Bank|FindBank|BankAnswer", "ravo_bank_find"),
    ("ravo/czech/banks", "BankList|BuiltInBanks", "ravo_bank_count, ravo_bank_at, ravo_bank_list_date"),
    ("ravo/czech/banks", "ReadBankList", "ravo_bank_list_open, ravo_bank_list_close"),
    ("ravo/czech/birth_number", "Format", "ravo_respell"),
    ("ravo/czech/birth_number", ".*", "ravo_birth_read, ravo_check"),
    ("ravo/czech/day", "Exists|InCalendar|DayOf|Day", "ravo_day_of"),
    ("ravo/czech/day", "PartsOf", "ravo_date_of"),
    ("ravo/czech/day", "Weekday", "ravo_weekday_of"),
    ("ravo/czech/day_text", "DateText|DateForm", "ravo_day_format"),
    ("ravo/czech/day_text", "TakeDate", "ravo_day_read"),
    ("ravo/czech/holidays", "Holidays?", "ravo_holiday_count, ravo_holiday_at"),
    ("ravo/czech/holidays", "EasterSunday", "ravo_easter_sunday"),
    ("ravo/czech/holidays", "DayOfHoliday", "ravo_holiday_day"),
    ("ravo/czech/holidays", "HolidaysOn|HolidaysOfDay", "ravo_holiday_on"),
    ("ravo/czech/holidays", "IsWorkingDay", "ravo_is_working_day"),
    ("ravo/czech/holidays", "NextWorkingDay", "ravo_next_working_day"),
    ("ravo/czech/holidays", "WorkingDaysBetween", "ravo_working_days_between"),
    ("ravo/czech/holidays", "TermInDays|Term", "ravo_term_in_days"),
    ("ravo/czech/holidays", "TermInMonths", "ravo_term_in_months"),
    ("ravo/czech/holidays", "DaysOverdue", "ravo_days_overdue"),
    ("ravo/czech/isbn", "ToIsbn13", "ravo_isbn_to_13"),
    ("ravo/czech/kinds", "AllKinds|KindText|Kind", "ravo_kind_name"),
    ("ravo/czech/kinds", "KindOf", "ravo_kind_of"),
    ("ravo/czech/kinds", "KindName", "ravo_kind_title"),
    ("ravo/czech/kinds", "Check|Refusal", "ravo_check"),
    ("ravo/czech/kinds", "Respell", "ravo_respell"),
    ("ravo/czech/payment_text", ".*", "ravo_payment_find"),
    ("ravo/czech/payment_code", "WritePaymentCode|WrittenPaymentCode|PaymentCodeText|View", "ravo_spayd_write, ravo_sid_write"),
    ("ravo/czech/payment_code", "WriteInvoiceInside", "ravo_sid_write"),
    ("ravo/czech/payment_code", "IsPaymentKey", "the members of the two codes in `ravo.h`"),
    ("ravo/czech/payment_code", ".*", "ravo_payment_code_read, ravo_payment_code_at"),
    ("ravo/czech/reason", "CodeText|Code", "ravo_reason_name"),
    ("ravo/czech/reason", "CodeOf", "ravo_reason_of"),
    ("ravo/czech/reason", "Sentence|Language|Parsed", "ravo_reason_sentence"),
    ("ravo/czech/vat", "ComputeVat|VatAmounts", "ravo_vat_compute"),
    ("ravo/czech/vat", "RoundToCrowns|CrownRounding|RoundedTotal", "ravo_money_to_crowns"),
    ("ravo/czech/vat", "Recapitulate|VatLine|VatPer|VatRow|VatRecapitulation", "ravo_vat_recapitulate"),
    ("ravo/czech/vat", "VatCoefficient", "a step of ravo_vat_compute"),
    ("ravo/czech/vat_rates", "VatRates?", "ravo_vat_rate_count, ravo_vat_rate_at"),
    ("ravo/czech/vat_rates", "VatPercentOn|VatRateKind", "ravo_vat_percent_on"),
    ("ravo/czech/vat_rates", "VatRateKindOn", "ravo_vat_kind_on"),
    ("ravo/czech/vat_rates", "VatMethods|VatMethodRow|VatMethod", "ravo_vat_way_count, ravo_vat_way_at"),
    ("ravo/czech/vat_rates", "IsLawful", "ravo_vat_is_lawful"),
    ("ravo/czech/(bic|dic|ean|iban|ico|isbn|post_code|symbols|vat_number)", ".*", "ravo_check, ravo_respell"),
    ("ravo/catalogue/captions", ".*", "ravo_suite_caption_count, ravo_suite_caption_at, ravo_suite_caption_find"),
    ("ravo/catalogue/table_catalogue", "TableRows|TableRow|TableModule.*", "ravo_suite_table_count, ravo_suite_table_at"),
    ("ravo/catalogue/table_catalogue", "TableDescription|GetTableDescription", "ravo_suite_table_name, ravo_suite_table_find"),
    ("ravo/catalogue/module_tables", "get_description", "ravo_suite_table_find, which tells the module"),
    ("ravo/catalogue/.*", ".*", MODULES),
    ("ravo/common/accounts", "IsNumbers", "ravo_suite_is_numbers"),
    ("ravo/common/accounts", "ValidSU", "ravo_suite_valid_su"),
    ("ravo/common/accounts", "ValidAU", "ravo_suite_valid_au"),
    ("ravo/common/accounts", "ValidUcet", "ravo_suite_valid_ucet"),
    ("ravo/common/accounts", "UcetNaSUAU", "ravo_suite_ucet_na_su_au"),
    ("ravo/common/accounts", "ValidVS", "ravo_suite_valid_vs"),
    ("ravo/common/accounts", "UcetMod11", "ravo_suite_ucet_mod_11"),
    ("ravo/common/accounts", "CalculateEAN", "ravo_suite_calculate_ean"),
    ("ravo/common/backup_name", "ParseZalohaFile", "ravo_suite_parse_zaloha_file"),
    ("ravo/common/byte_size", "BytesToStr", "ravo_suite_bytes_to_str"),
    ("ravo/common/calendar", "DateToSQLString", "ravo_suite_sql_date"),
    ("ravo/common/calendar", "TimeToSQLString", "ravo_suite_sql_time"),
    ("ravo/common/calendar", "DateTimeToSQLString", "ravo_suite_sql_date_time"),
    ("ravo/common/calendar", "ChangeMonth", "ravo_suite_change_month"),
    ("ravo/common/calendar", "ChangeYear", "ravo_suite_change_year"),
    ("ravo/common/calendar", "IsLeapYear", "ravo_is_leap_year"),
    ("ravo/common/calendar", "DaysPerMonth", "ravo_days_in_month"),
    ("ravo/common/calendar", "FirstLastDay", "ravo_month_begin, ravo_month_end"),
    ("ravo/common/descriptions", "AdresaExpand", "ravo_suite_adresa_expand"),
    ("ravo/common/descriptions", "DokladDescription", "ravo_suite_doklad_description"),
    ("ravo/common/diacritics", "RemoveDiacritics", "ravo_suite_remove_diacritics"),
    ("ravo/common/float_separator", ".*", OWN),
    ("ravo/common/identifiers", "UIDToString", "ravo_suite_uid_to_string"),
    ("ravo/common/identifiers", "TimestampToBytes", "ravo_suite_timestamp_to_bytes"),
    ("ravo/common/qualified_names", "ExtractTableFromProperty", "ravo_suite_extract_table_from_property"),
    ("ravo/common/qualified_names", "RemoveTableFromProperties", "ravo_suite_remove_table_from_properties"),
    ("ravo/common/rounding", "RoundValue|TRoundType", "ravo_suite_round_value"),
    ("ravo/common/rounding", "RoundValueFloat", "ravo_suite_round_value_float"),
    ("ravo/common/rounding", "RoundDPH", "ravo_suite_round_dph"),
    ("ravo/common/rounding_step", ".*", PARTS),
    ("ravo/common/stream_records", "StringToStream", "ravo_suite_string_to_stream"),
    ("ravo/common/stream_records", "StringFromStream", "ravo_suite_string_from_stream"),
    ("ravo/common/stream_records", "Variant.*", "the bytes as they are: nothing is before or after them"),
    ("ravo/common/text_checksum", "CalcCRC32|ExtractCRCCase", "ravo_crc32"),
    ("ravo/common/text_helpers", "CharPosition", OWN),
    ("ravo/common/text_helpers", "DebugStr", MACHINE),
    ("ravo/formout/form_fields", "Win1250ToPDFDocEncoding", "ravo_suite_win_1250_to_pdf_doc_encoding"),
    ("ravo/formout/form_fields", "FillPDFField", "ravo_suite_fill_pdf_field"),
    ("ravo/formout/form_fields", "FillPDFFieldAsInteger", "ravo_suite_fill_pdf_field_as_integer"),
    ("ravo/formout/form_values", "Date2PDF", "ravo_suite_date_2_pdf"),
    ("ravo/formout/form_values", "Date2XML", "ravo_suite_date_2_xml"),
    ("ravo/formout/form_values", "Bool2XML", "ravo_suite_bool_2_xml"),
    ("ravo/frame/resource_string", "PlainCaption", "the text without each \"&\""),
    ("ravo/(frame|hostapi)/.*", ".*", MODULES),
    ("ravo/package", "GetPackageInfoTable", "ravo_suite_module_count, ravo_suite_module_at; C already in the suite's library"),
    ("ravo/package", ".*", "C already in the suite's library; libravo needs no start and no stop"),
    ("ravo/platform/.*", ".*", MACHINE),
    ("ravo/runtime/currency", "Currency|FromUnits", "ravo_money_format, ravo_money_read"),
    ("ravo/runtime/currency", "CurrencyText", "ravo_money_format"),
    ("ravo/runtime/currency", "TryParseCurrency|ParseCurrency", "ravo_money_read"),
    ("ravo/runtime/currency", "RoundedTo|Rounding", "ravo_money_round"),
    ("ravo/runtime/currency", "TimesRatio", "ravo_money_times_ratio"),
    ("ravo/runtime/currency", "TimesRate", "ravo_money_times_rate"),
    ("ravo/runtime/date_time", "EncodeDate|EncodeTime|EncodeDateTime", "ravo_suite_moment_of"),
    ("ravo/runtime/date_time", "SplitDateTime|TimeOfDay|.*Parts", "ravo_suite_moment_parts"),
    ("ravo/runtime/date_time", "DayOfWeek", "ravo_weekday_of"),
    ("ravo/runtime/date_time", "IsGregorianLeapYear", "ravo_is_leap_year"),
    ("ravo/runtime/(component|dispatch|owned_).*", ".*", MODULES),
    ("ravo/runtime/(wide_string|variant|object_list|string_list|byte_stream)", ".*", "containers, which the caller's language has"),
    ("ravo/runtime/error", ".*", "ravo_status and ravo_error"),
    ("ravo/runtime/.*", ".*", OWN),
    ("ravo/sysinfo/captions", ".*", "of modules of the suite; ravo_machine_report has those of the report"),
    ("ravo/sysinfo/system_info", "FileVersion|GetTempDirectory", MACHINE),
    ("ravo/sysinfo/.*", ".*", "ravo_machine_report, of which it is a part"),
    ("ravo/unicode/characters/mappings", "CharToCaseFoldW", "ravo_character_to_case_fold, ravo_text_fold"),
    ("ravo/unicode/characters/mappings", "CharToUpperW", "ravo_character_to_upper, ravo_text_upper"),
    ("ravo/unicode/characters/mappings", "CharToLowerW", "ravo_character_to_lower, ravo_text_lower"),
    ("ravo/unicode/characters/mappings", "CharToTitleW", "ravo_character_to_title"),
    ("ravo/unicode/characters/mappings", "CharCanonicalCombiningClassW", "ravo_character_combining_class"),
    ("ravo/unicode/characters/decompositions", ".*", "ravo_character_decompose"),
    ("ravo/unicode/characters/categories", "CharIsLetterCommonW", "ravo_character_is"),
    ("ravo/unicode/characters/categories", ".*", "ravo_character_is, ravo_character_category, ravo_character_category_name"),
    ("ravo/unicode/characters/character_kinds", ".*", "ravo_character_is"),
    ("ravo/unicode/code_pages", "FromCodePage|ToCodePage", "ravo_convert with ravo_encoding_of_code_page"),
    ("ravo/unicode/code_pages", "CodePageFromLocale", MACHINE),
    ("ravo/unicode/encodings", "EncodingRows|EncodingRow", "ravo_encoding_count, ravo_encoding_at"),
    ("ravo/unicode/encodings", "FindEncoding", "ravo_encoding_find"),
    ("ravo/unicode/encodings", "FindEncodingByCodePage", "ravo_encoding_of_code_page"),
    ("ravo/unicode/encodings", ".*", "ravo_convert"),
    ("ravo/unicode/unicode_(reader|writer)", ".*", "ravo_converter_open, ravo_converter_push, ravo_converter_pull, ravo_converter_close"),
    ("ravo/unicode/.*", ".*", MODULES),
    ("ravo/utils/calendar", "Current.*", MACHINE),
    ("ravo/utils/calendar", "EasterSunday.*|IsHolidayInGermany.*", "for years and a country that are not ours: ravo_easter_sunday, ravo_holiday_on"),
    ("ravo/utils/calendar", "ISOWeekNumber.*", "ravo_week_of"),
    ("ravo/utils/calendar", "ISOWeekToJulianDate", "ravo_day_of_week"),
    ("ravo/utils/calendar", ".*OfMonth.*|DaysInMonth.*", "ravo_month_begin, ravo_month_end, ravo_days_in_month"),
    ("ravo/utils/calendar", "IncMonths?", "ravo_add_months"),
    ("ravo/utils/calendar", ".*Week.*", "ravo_weekday_of"),
    ("ravo/utils/calendar", ".*I[sS][oO]Date.*", "ravo_day_format, ravo_day_read"),
    ("ravo/utils/calendar", "IsLeapYear", "ravo_is_leap_year"),
    ("ravo/utils/calendar", ".*", "ravo_day_of, ravo_date_of"),
    ("ravo/utils/checksums", ".*", "ravo_crc32"),
    ("ravo/utils/(hashes|hash_stream|lookup2)", ".*", "ravo_suite_hash"),
    ("ravo/utils/strings/wildcards", ".*", "ravo_text_match, ravo_text_match_with"),
    ("ravo/utils/strings/url", "StrEncodeUrlA", "ravo_url_encode"),
    ("ravo/utils/strings/url", "StrDecodeUrlA", "ravo_url_decode"),
    ("ravo/utils/strings/url", "StrTr?imUriFragment[AW]", "ravo_uri_without_fragment"),
    ("ravo/utils/strings/url", "StrExtractUriFragmentW", "ravo_uri_fragment"),
    ("ravo/utils/strings/letter_case", "ProperCase.*", "ravo_text_proper"),
    ("ravo/utils/strings/letter_case", "StrToUpper.*", "ravo_text_upper"),
    ("ravo/utils/strings/letter_case", "StrToLower.*", "ravo_text_lower"),
    ("ravo/utils/strings/natural_order", ".*A", "ravo_suite_compare_num_bytes"),
    ("ravo/utils/strings/natural_order", ".*", "ravo_suite_compare_num"),
    ("ravo/utils/strings/.*", ".*", OWN),
    ("ravo/utils/random", "init_genrand", "ravo_random_open"),
    ("ravo/utils/random", "init_by_array", "ravo_random_open_array"),
    ("ravo/utils/random", "init_by_StrA", "ravo_random_open_bytes"),
    ("ravo/utils/random", "genrand_int31", "ravo_random_int31"),
    ("ravo/utils/random", "genrand_int32", "ravo_random_int32"),
    ("ravo/utils/random", "genrand_int63", "ravo_random_int63"),
    ("ravo/utils/random", "genrand_int64", "ravo_random_int64"),
    ("ravo/utils/random", "genrand_real1", "ravo_random_real1"),
    ("ravo/utils/random", "genrand_real2", "ravo_random_real2"),
    ("ravo/utils/random", "genrand_real3", "ravo_random_real3"),
    ("ravo/utils/random", "genrand_res53", "ravo_random_res53"),
    ("ravo/utils/random", "StrRandom.*", "ravo_random_text"),
    ("ravo/utils/random", ".*", "ravo_random_open, ravo_random_close"),
    ("ravo/utils/(environment|file_names|files|folders|whole_files)", ".*", MACHINE),
    ("ravo/utils/.*", ".*", OWN),
    ("ravo/xml/document", "TECXMLParser|LoadFromStream", "ravo_suite_tree_open, ravo_suite_tree_close"),
    ("ravo/xml/document", "SaveToStream", "ravo_suite_tree_save"),
    ("ravo/xml/document", "Root|GetRoot", "the item 0 of ravo_suite_tree_open"),
    ("ravo/xml/document", "Clear", "ravo_suite_tree_open of nothing"),
    ("ravo/xml/document", "Encoding|SetEncoding", "ravo_suite_tree_encoding, ravo_suite_tree_set_encoding"),
    ("ravo/xml/document", "StyleSheet|SetStyleSheet", "ravo_suite_tree_style_sheet, ravo_suite_tree_set_style_sheet"),
    ("ravo/xml/document", "LoadFromFile|SaveToFile", MACHINE),
    ("ravo/xml/document", "(Set)?(On|Before).*|(Set)?XMLItemChanged", "events of what the caller does itself"),
    ("ravo/xml/(document|item)", "(Set)?CrLfInAsString", "only how the suite's own texts are laid out"),
    ("ravo/xml/document", "TXMLTagItem.*", "for modules that cut documents by hand: ravo_suite_tokens"),
    ("ravo/xml/document", ".*", MODULES),
    ("ravo/xml/escape", "StrToXML", "ravo_suite_str_to_xml"),
    ("ravo/xml/escape", "XMLToStr", "ravo_suite_xml_to_str"),
    ("ravo/xml/escape", ".*", PARTS),
    ("ravo/xml/item", "TXMLItem|SubItems", "ravo_suite_item_child"),
    ("ravo/xml/item", "SubItemCount", "ravo_suite_item_child_count"),
    ("ravo/xml/item", "Parent", "ravo_suite_item_parent"),
    ("ravo/xml/item", "Parser|SetParser", "an item belongs to the tree that it is in"),
    ("ravo/xml/item", "IndexOfName|GetNamedItem", "ravo_suite_item_find, ravo_suite_item_add"),
    ("ravo/xml/item", "SetName", "ravo_suite_item_set_name"),
    ("ravo/xml/item", "SetText", "ravo_suite_item_set_text"),
    ("ravo/xml/item", "Text", "ravo_suite_item_text"),
    ("ravo/xml/item", "Params", "ravo_suite_item_attribute_count, ravo_suite_item_attribute_at, ravo_suite_item_attribute"),
    ("ravo/xml/item", "SetParams", "ravo_suite_item_set_attribute"),
    ("ravo/xml/item", "New", "ravo_suite_item_add"),
    ("ravo/xml/item", "Delete|Clear", "ravo_suite_item_delete"),
    ("ravo/xml/item", "Move|IndexOf", "ravo_suite_item_move"),
    ("ravo/xml/item", "SetParent", "ravo_suite_item_add and ravo_suite_item_delete: an item listed twice has no number"),
    ("ravo/xml/item", "AsString|XMLItemAsString", "ravo_suite_item_as_string"),
    ("ravo/xml/item", "XMLItemName", "ravo_suite_item_name and its attributes"),
    ("ravo/xml/item", "Data|SetData|DoChanged", "the caller knows its items by their numbers"),
    ("ravo/xml/item", "LoadFrom.*|SetAsString", "ravo_suite_tree_open, for the whole document"),
    ("ravo/xml/item", "CheckedIndex", PARTS),
    ("ravo/xml/parser_error", ".*", "RAVO_WRONG of ravo_suite_tree_open"),
    ("ravo/xml/tokenizer", "TXML.*Tokenizer|NextToken|Token|TokenString|SourceLine|SourcePos", "ravo_suite_tokens"),
    ("ravo/xml/tokenizer", "CheckToken.*|Error.*|Token(Int|Float|SymbolIs|ComponentIdent)|HexToBinary",
     "for kinds of tokens that no document has"),
    ("ravo/xml/.*", ".*", PARTS),
]
# What no public header has.
BESIDE = [
    ("`ravo convert` without `--from`", "detection of encodings", "`ravo_encoding_detect`, `ravo_encoding_candidate_at`"),
    ("`ravo sort`", "Czech alphabetical order, numbers by value", "`ravo_compare_czech`, `ravo_czech_key`, `ravo_compare_numbers`, `ravo_number_key`"),
]
# What has no counterpart in a C++ header of its own.
OF_C = {
    "ravo_version", "ravo_build_info", "ravo_encoding_of_mark", "ravo_check_column", "ravo_respell_column", "ravo_crc32_column", "ravo_bank_find_column", "ravo_column_of_arrow",
    "ravo_suite_table_find_column", "ravo_money_round_column", "ravo_day_read_column", "ravo_day_format_column", "ravo_convert_column",
    "ravo_arrow_stream", "ravo_invoice_open", "ravo_invoice_close", "ravo_invoice_head_of", "ravo_invoice_party_of", "ravo_invoice_totals_of",
    "ravo_invoice_line_count", "ravo_invoice_line_at", "ravo_invoice_rate_count", "ravo_invoice_rate_at", "ravo_invoice_payment_count",
    "ravo_encoding_detect", "ravo_encoding_candidate_at", "ravo_compare_czech", "ravo_czech_key", "ravo_compare_numbers", "ravo_number_key",
    "ravo_invoice_payment_at", "ravo_invoice_finding_count", "ravo_invoice_finding_at", "ravo_invoice_rule_sentence",
    "ravo_document_open", "ravo_document_close", "ravo_document_encoding", "ravo_document_get", "ravo_document_set", "ravo_document_save",
    "ravo_document_write", "ravo_document_check", "ravo_document_finding_at", "ravo_document_finding_sentence",
}
TYPE = re.compile(r"^\s*(?:template\s*<[^>]*>\s*)?(?:struct|class|enum class|enum)\s+(?:RAVO_API\s+|alignas\(\w+\)\s+)*(\w+)\b([^;{]*)(;|\{)", re.MULTILINE)
NO_NAME = re.compile(r"~|operator|(?:void|bool|switch|if|while|for|memcpy|copy_n|one|date|name|Name|new|delete|no|int)$")


def names_in(header: str) -> list[str]:
    """The functions and types that a header declares."""
    text = re.sub(r"namespace detail \{.*?\n\}  // namespace detail", "", header, flags=re.DOTALL)
    found = [name_of(piece) for piece in declarations(text.splitlines())]
    found += [name for name, _, end in TYPE.findall(text) if end == "{"]
    return sorted({name for name in found if name and not NO_NAME.match(name)})


def public_names(root: pathlib.Path) -> Iterator[tuple[str, list[str]]]:
    czech = sorted(path.relative_to(root).as_posix() for path in (root / "ravo/czech").glob("*.h"))
    headers = dict.fromkeys([*public_files(include_graph(root)), *czech])
    for header in headers:
        if header.endswith(".h") and (names := names_in(read(root / header))):
            yield header, names


def answer(header: str, name: str, rules: list[Rule]) -> int:
    """The index of the rule for a name; -1 if there is none."""
    return next((i for i, (where, what, _) in enumerate(rules)
                 if re.fullmatch(where, header.removesuffix(".h")) and re.fullmatch(what, name)), -1)


def rows(root: pathlib.Path, rules: list[Rule]) -> dict[str, list[tuple[str, str]]]:
    """By header: names that share an answer, and the answer."""
    found: dict[str, list[tuple[str, str]]] = {}
    for header, names in public_names(root):
        groups: dict[int, list[str]] = {}
        for name in names:
            groups.setdefault(answer(header, name, rules), []).append(name)
        found[header] = [(", ".join(f"`{name}`" for name in group), re.sub(r"\b(ravo_\w+)", r"`\1`", rules[i][2]) if i >= 0 else "?")
                         for i, group in groups.items()]
    return found


def render(root: pathlib.Path, rules: list[Rule] = RULES) -> dict[str, str]:
    parts = []
    for header, lines in sorted(rows(root, rules).items()):
        parts.append(f"### {header}\n\n" + table(("C++", "C, or why not"), lines))
    beside = table(("where", "what", "C, or why not"), BESIDE)
    return {PAGE: with_block(read(root / PAGE), "\n".join(parts) + "\n### What no public header has\n\n" + beside)}


def check(root: pathlib.Path, rules: list[Rule] = RULES) -> list[str]:
    functions = set(re.findall(r"RAVO_CALL (\w+)\(", read(root / HEADER)))
    told = {name for _, _, what in rules for name in re.findall(r"\bravo_\w+", what)} - {"ravo_status", "ravo_error"}
    used = {answer(header, name, rules) for header, names in public_names(root) for name in names}
    findings = [] if has_block(read(root / PAGE)) else [f"{PAGE}: needs exactly one block"]
    findings += [f"{header}: {name}: has neither a C function nor a reason"
                 for header, names in public_names(root) for name in names if answer(header, name, rules) < 0]
    findings += [f"{HEADER}: has no function {name}, which a rule names" for name in sorted(told - functions)]
    if rules is RULES:
        findings += [f"{HEADER}: {name}: no rule names it" for name in sorted(functions - told - OF_C)]
        findings += [f"rule {rules[i][:2]}: fits no name" for i in range(len(rules)) if i not in used]
    return findings + outdated(root, render(root, rules), "tools/pages/c_interface.py --write")


_RULES: list[Rule] = [("ravo/czech/ico", "ParseIco|Ico", "ravo_check"), ("ravo/czech/day", ".*", OWN)]
_EMPTY = "# C\n\n<!-- written by x; do not edit -->\n<!-- end of what is written -->\n"
_HEADERS = {
    "ravo/czech/ico.h": "struct Ico {\n};\nIco ParseIco(std::string_view text) noexcept;\nstruct Other;\n",
    "ravo/czech/day.h": "int Weekday(int day);\n",
    HEADER: "ravo_status RAVO_CALL ravo_check(int kind);\n",
}
_PAGE = with_block(_EMPTY, "### ravo/czech/day.h\n\n" + table(("C++", "C, or why not"), [("`Weekday`", OWN)]) +
                   "\n### ravo/czech/ico.h\n\n" + table(("C++", "C, or why not"), [("`Ico`, `ParseIco`", "`ravo_check`")]) +
                   "\n### What no public header has\n\n" + table(("where", "what", "C, or why not"), BESIDE))


def _tree(**changed: str) -> dict[str, str]:
    return {PAGE: _PAGE, **_HEADERS, **{name.replace("__", "/").replace("_h", ".h"): text for name, text in changed.items()}}


PLANTINGS: list[Planting] = [
    ("a good tree", _tree(), None),
    ("a name without an answer", _tree(ravo__czech__ico_h=_HEADERS["ravo/czech/ico.h"] + "Ico Second(int i);\n"), "ico.h: Second: has neither"),
    ("a function that is gone", _tree(c__ravo_h=""), "has no function ravo_check"),
    ("a page of before", _tree(ravo__czech__day_h="int Weekday(int day);\nint Month(int day);\n"), "writes it"),
]

if __name__ == "__main__":
    command_line(check, PLANTINGS, lambda root: check(root, _RULES))
    write(ROOT, render(ROOT))
