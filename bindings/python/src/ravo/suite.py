"""What the modules of the suite compute, with the oddities that stored documents depend on.

The checks are lenient; those of the country are in ravo.check. Moments are datetime.datetime without a time zone, to
the millisecond.
"""
from __future__ import annotations

from datetime import date, datetime, time, timedelta
from decimal import Decimal

from . import _ravo
from ._suite_tree import Item, Token, Tree, escape, tokens, unescape
from .checksums import suite_hash as hash
from .money import Amount
from .records import SuiteEan, SuiteModule, SuiteRounding, SuiteTokenKind

__all__ = ["Item", "SuiteEan", "SuiteModule", "SuiteRounding", "SuiteTokenKind", "Token", "Tree", "address_parts", "account_parts", "backup_name",
           "bytes_for_people", "change_month", "change_year", "compare_numbers", "document_name", "ean", "escape", "hash", "is_account",
           "is_analytic_account", "is_number", "is_payment_reference", "is_synthetic_account", "modules", "modulo_11", "pdf_date", "pdf_field",
           "pdf_text", "record_version", "remove_diacritics", "remove_table", "round_float", "round_value", "round_vat", "sql_date", "sql_date_time",
           "sql_time", "sql_uid", "string_record", "string_records", "table_of_property", "tokens", "unescape", "xml_date", "xml_flag"]


def is_number(text: str) -> bool:
    """Returns whether a text consists of digits, at least one.

    >>> is_number("0123"), is_number("")
    (True, False)
    """
    return _ravo.suite_is_numbers(text)


def is_synthetic_account(text: str) -> bool:
    """Returns whether a text is a synthetic account, three digits.

    >>> is_synthetic_account("321")
    True
    """
    return _ravo.suite_valid_su(text)


def is_analytic_account(text: str) -> bool:
    """Returns whether a text is an analytic account, up to three digits or nothing.

    >>> is_analytic_account("")
    True
    """
    return _ravo.suite_valid_au(text)


def is_account(text: str) -> bool:
    """Returns whether a text is an account of the chart of accounts, three to six digits.

    >>> is_account("321001")
    True
    """
    return _ravo.suite_valid_ucet(text)


def is_payment_reference(text: str) -> bool:
    """Returns whether a text is a payment reference with a valid Luhn check digit.

    >>> is_payment_reference("79927398713")
    True
    """
    return _ravo.suite_valid_vs(text)


def modulo_11(account: str) -> bool:
    """Returns whether the weighted sum of a bank account is divisible by 11; what follows the first "/" is ignored.

    >>> modulo_11("19-2000145399/0800")
    True
    """
    return _ravo.suite_ucet_mod_11(account)


def account_parts(account: str) -> tuple[str, str]:
    """Returns the first three characters of an account, and the next three without blanks around them.

    >>> account_parts("321001")
    ('321', '001')
    """
    return _ravo.suite_ucet_na_su_au(account)


def ean(code: str) -> SuiteEan:
    """Returns the check digits of an EAN: the one it has and the computed one, which are not compared.

    >>> ean("8594001234567").new_check
    '1'
    """
    return _ravo.suite_calculate_ean(code)


def round_value(amount: Amount, direction: int = SuiteRounding.MATH, decimals: int = 2) -> Decimal:
    """Returns an amount rounded to `decimals` places: 2 are hundredths, 0 whole crowns, -1 tens.

    Halves are recognized after the fraction is rounded to four places. A direction that is no SuiteRounding rounds
    nothing.

    >>> round_value("12.345"), round_value("12.01", SuiteRounding.UP, 0)
    (Decimal('12.35'), Decimal('13.00'))
    """
    return _ravo.suite_round_value(amount, direction, decimals)


def round_float(value: float, direction: int = SuiteRounding.MATH, decimals: int = 2) -> float:
    """Returns a float rounded to `decimals` places, with the errors of floats: DOWN lowers most exact values by one unit.

    >>> round_float(12.345678)
    12.35
    """
    return _ravo.suite_round_value_float(value, direction, decimals)


def round_vat(amount: Amount, letter: str) -> Decimal:
    """Returns an amount of VAT rounded by a letter: H hundredths, D tenths, P halves of a crown, N tenths away from zero, M
    whole crowns; any other letter rounds nothing.

    >>> round_vat("12.34", "P")
    Decimal('12.50')
    """
    return _ravo.suite_round_dph(amount, ord(letter))


def _moment(moment: date) -> float:
    at = moment.time() if isinstance(moment, datetime) else time()
    return _ravo.suite_moment_of(moment, ((at.hour * 60 + at.minute) * 60 + at.second) * 1000 + at.microsecond // 1000)


def _datetime(moment: float) -> datetime:
    day, milliseconds = _ravo.suite_moment_parts(moment)
    return datetime.combine(day, time()) + timedelta(milliseconds=milliseconds)


def sql_date(moment: date) -> str:
    """Returns the date of a moment for SQL.

    >>> sql_date(date(2010, 12, 31))
    '20101231'
    """
    return _ravo.suite_sql_date(_moment(moment))


def sql_time(moment: datetime) -> str:
    """Returns the time of a moment for SQL.

    >>> sql_time(datetime(2010, 12, 31, 13, 5, 9, 7000))
    '13:05:09:007'
    """
    return _ravo.suite_sql_time(_moment(moment))


def sql_date_time(moment: datetime) -> str:
    """Returns date and time of a moment for SQL.

    >>> sql_date_time(datetime(2010, 12, 31, 13, 5, 9, 7000))
    '20101231 13:05:09:007'
    """
    return _ravo.suite_sql_date_time(_moment(moment))


def change_month(moment: date, step: int) -> datetime:
    """Returns the same day of the next month if `step` is positive, else of the previous one; the time is dropped.

    >>> change_month(date(2010, 12, 31), 1)
    datetime.datetime(2011, 1, 31, 0, 0)
    """
    return _datetime(_ravo.suite_change_month(_moment(moment), step))


def change_year(moment: date, step: int) -> datetime:
    """Returns the same day of the next year if `step` is positive, else of the previous one; the time is dropped.

    >>> change_year(date(2010, 12, 31), -1)
    datetime.datetime(2009, 12, 31, 0, 0)
    """
    return _datetime(_ravo.suite_change_year(_moment(moment), step))


def address_parts(address: str) -> tuple[str, str]:
    """Returns street and house number of an address; the street is the whole text if the last word is no number.

    >>> address_parts("Nádražní 1234/5")
    ('Nádražní', '1234/5')
    """
    return _ravo.suite_adresa_expand(address)


def document_name(prefix: str, number: str, suffix: str) -> str:
    """Returns the name of a document.

    >>> document_name("FV", "0012", "2010")
    'FV0012/2010'
    """
    return _ravo.suite_doklad_description(prefix, number, suffix)


def backup_name(pattern: str, company: str, moment: datetime) -> str:
    """Returns the name of a backup: a pattern with its "%FIRMA%", "%DATUM%" and "%CAS%" replaced.

    >>> backup_name("%FIRMA%_%DATUM%", "A/B: s.r.o.", datetime(2011, 2, 3))
    'AB s.r.o._110203'
    """
    return _ravo.suite_parse_zaloha_file(pattern, company, _moment(moment))


def table_of_property(name: str) -> str:
    """Returns what is before the first "." of a name, or all of it.

    >>> table_of_property("Faktury.Cislo")
    'Faktury'
    """
    return _ravo.suite_extract_table_from_property(name)


def remove_table(table: str, properties: str) -> str:
    """Returns properties without the name of a table and "." before them.

    >>> remove_table("F", "F.A;F.B;G.C")
    'A;B;G.C'
    """
    return _ravo.suite_remove_table_from_properties(table, properties)


def sql_uid(uid: str) -> str:
    """Returns the identifier of a record between single quotes; quotes inside stay as they are.

    >>> sql_uid("{1}")
    "'{1}'"
    """
    return _ravo.suite_uid_to_string(uid)


def record_version(text: str) -> bytes:
    """Returns the eight bytes of a record version in hexadecimal; none for a text of three characters or fewer.

    >>> record_version("00000000000007D1")
    b'\\x00\\x00\\x00\\x00\\x00\\x00\\x07\\xd1'
    """
    return _ravo.suite_timestamp_to_bytes(text)


def bytes_for_people(count: int, with_bytes: bool = False, decimal: str = ",", thousands: str = "\N{NO-BREAK SPACE}") -> str:
    """Returns a number of bytes for people.

    >>> bytes_for_people(1536), bytes_for_people(1536, with_bytes=True)
    ('1,5 kB', '1,5 kB (1536 B)')
    """
    return _ravo.suite_bytes_to_str(count, with_bytes, ord(decimal), thousands)


def remove_diacritics(text: str) -> str:
    """Returns a text that Windows-1250 has, with 25 Czech letters replaced by their base letters.

    >>> remove_diacritics("Žluťoučký kůň")
    'Zlutoucky kun'
    """
    return _ravo.suite_remove_diacritics(text.encode("cp1250")).decode("cp1250")


def compare_numbers(a: str | bytes, b: str | bytes, ignore_case: bool = False) -> int:
    """Returns a negative number, 0 or a positive one: how the suite compares two texts with numbers, or bytes of any encoding.

    Zeros inside a number do not count, so that the order has cycles: not for sorting.

    >>> compare_numbers("FV9", "FV10") < 0, compare_numbers("105", "15") < 0
    (True, True)
    """
    if isinstance(a, str) and isinstance(b, str):
        return _ravo.suite_compare_num(a, b, ignore_case)
    if isinstance(a, str) or isinstance(b, str):
        raise TypeError("expected two str, or bytes twice")
    return _ravo.suite_compare_num_bytes(a, b, ignore_case)


def modules() -> list[SuiteModule]:
    """Returns the modules of the suite's library, as the package names them.

    >>> [module.name for module in modules() if module.is_main]
    ['RavoInterface']
    """
    return [_ravo.suite_module_at(index) for index in range(_ravo.suite_module_count())]


def pdf_text(text: str) -> bytes:
    """Returns a text as the text string of a PDF: the bytes FE FF and UTF-16, high byte first. Forms are in Windows-1250.

    >>> pdf_text("č")
    b'\\xfe\\xff\\x01\\\\r'
    """
    return _ravo.suite_win_1250_to_pdf_doc_encoding(text)


def pdf_field(name: str, value: str | int, as_unicode: bool = False) -> bytes:
    """Returns a field of a forms data file (FDF): of a text in Windows-1250 or as a text string, or of a number of a choice.

    Nothing is escaped.

    >>> pdf_field("Jmeno", "Rada"), pdf_field("Ano", 1)
    (b'<</T(Jmeno)/V(Rada)>>', b'<</T(Ano)/V/1>>')
    """
    if isinstance(value, str):
        return _ravo.suite_fill_pdf_field(name, value, as_unicode)
    return _ravo.suite_fill_pdf_field_as_integer(name, value)


def pdf_date(moment: date | None, without_year: bool = False, leading_zeros: bool = False) -> str:
    """Returns a date for a form; nothing for None.

    >>> pdf_date(date(2024, 3, 5)), pdf_date(date(2024, 3, 5), without_year=True), pdf_date(None)
    ('5.3.2024', '5.3.', '')
    """
    return _ravo.suite_date_2_pdf(0 if moment is None else _moment(moment), without_year, leading_zeros)


def xml_date(moment: date | None) -> str:
    """Returns a date for an XML export; nothing for None.

    >>> xml_date(date(2024, 3, 5))
    '2024-03-05'
    """
    return _ravo.suite_date_2_xml(0 if moment is None else _moment(moment))


def xml_flag(value: object) -> str:
    """Returns "X" for what is true, and nothing for what is not.

    >>> xml_flag(True), xml_flag(0)
    ('X', '')
    """
    return _ravo.suite_bool_2_xml(bool(value))


def string_record(data: bytes | bytearray | memoryview) -> bytes:
    """Returns a string record: the number of bytes in 32 bits, the bytes, which are text in Windows-1250, and a zero.

    >>> string_record("Řada".encode("cp1250"))
    b'\\x04\\x00\\x00\\x00\\xd8ada\\x00'
    """
    return _ravo.suite_string_to_stream(data)


def string_records(stream: bytes | bytearray | memoryview) -> list[bytes]:
    """Returns the bytes of each string record of a stream.

    A record may promise more bytes than there are: those are zeros. ravo.Error ("range") for fewer than four bytes where a
    record begins, or a negative number.

    >>> string_records(string_record(b"a") + string_record(b""))
    [b'a', b'']
    """
    records, begin = [], 0
    while begin < len(stream):
        record, begin = _ravo.suite_string_from_stream(stream, begin)
        records.append(record)
    return records
