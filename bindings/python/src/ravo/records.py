"""What functions return, and the numbers they take.

Written by tools/generate/python_interface.py from c/ravo.h; not to be edited by hand.
"""
from __future__ import annotations

from datetime import date
from decimal import Decimal
from enum import IntEnum
from typing import NamedTuple


class Language(IntEnum):
    """Languages of sentences."""

    CZECH = 0
    ENGLISH = 1


class Sex(IntEnum):
    """The sex that a birth number tells."""

    MALE = 0
    FEMALE = 1


class DateForm(IntEnum):
    """How a date is written."""

    ISO = 0  # 2026-11-21
    CZECH = 1  # 21. 11. 2026
    COMPACT = 2  # 20261121


class Rounding(IntEnum):
    """How an amount between two multiples of a step is rounded."""

    HALF_AWAY = 0  # to the nearest multiple, halves away from zero
    AWAY = 1  # to the multiple farther from zero
    TOWARD = 2  # to the multiple nearer to zero


class VatKind(IntEnum):
    """Which of the rates."""

    ZERO = 0  # no tax
    STANDARD = 1  # základní
    REDUCED = 2  # snížená; from 2015 to 2023 the first of two
    SECOND_REDUCED = 3  # druhá snížená, 2015 to 2023


class VatMethod(IntEnum):
    """How the tax comes from an amount."""

    BASE = 0  # base times rate
    TOTAL_BY_COEFFICIENT = 1  # total times a coefficient of four decimals
    TOTAL = 2  # total less total / (1 + rate)


class VatPer(IntEnum):
    """Where the tax of a document is computed."""

    DOCUMENT = 0  # once for each rate, of the sum of its lines
    LINE = 1  # of each line, then added


class PaymentCode(IntEnum):
    """Which of the two codes."""

    SPAYD = 0  # a payment
    SID = 1  # an invoice


class InvoiceVersion(IntEnum):
    """Whether the checks know a document."""

    KNOWN = 0  # ISDOC 6
    OTHER = 1  # ISDOC of another version: findings say little
    NONE = 2  # no document of ISDOC


class InvoiceRole(IntEnum):
    """The two sides of the business."""

    SUPPLIER = 0
    CUSTOMER = 1


class InvoiceWay(IntEnum):
    """The ways in which a tax comes about."""

    NONE = 0  # no lawful way gives it
    UNTAXED = 1  # there is no tax
    BASE = 2  # of the base
    TOTAL = 3  # of the amount with tax
    COEFFICIENT = 4  # of the amount with tax, by a coefficient of four decimals
    LINES = 5  # the taxes of the lines added


class InvoiceSeverity(IntEnum):
    """How grave a finding is."""

    NOTE = 0  # lawful, or within half a haléř for each line; worth a look
    ERROR = 1  # the document breaks a rule


class OrderFlags(IntEnum):
    """How texts compare."""

    PLAIN = 0  # as said above
    IGNORE_CASE = 1  # small letters and capitals are equal
    NATURAL = 2  # runs of the digits 0 to 9 compare by value: "FV9" before "FV10"
    DIGITS_FIRST = 4  # digits precede letters, as in most programs


class CharacterProperty(IntEnum):
    """What a character can be. In brackets: the category of Unicode."""

    UNASSIGNED = 0  # (Cn) no character, in the version of the tables
    LETTER_UPPER_CASE = 1  # (Lu)
    LETTER_LOWER_CASE = 2  # (Ll)
    LETTER_TITLE_CASE = 3  # (Lt) such as U+01C5
    LETTER_MODIFIER = 4  # (Lm)
    LETTER_OTHER = 5  # (Lo) a letter without case
    MARK_NON_SPACING = 6  # (Mn)
    MARK_SPACING_COMBINED = 7  # (Mc)
    MARK_ENCLOSING = 8  # (Me)
    NUMBER_DECIMAL = 9  # (Nd) a decimal digit of any script
    NUMBER_LETTER = 10  # (Nl) such as U+2160, the Roman one
    NUMBER_OTHER = 11  # (No) such as U+00BD, a half
    PUNCTUATION_CONNECTOR = 12  # (Pc) such as the low line
    PUNCTUATION_DASH = 13  # (Pd)
    PUNCTUATION_OPEN = 14  # (Ps)
    PUNCTUATION_CLOSE = 15  # (Pe)
    PUNCTUATION_INITIAL_QUOTE = 16  # (Pi)
    PUNCTUATION_FINAL_QUOTE = 17  # (Pf)
    PUNCTUATION_OTHER = 18  # (Po)
    SYMBOL_MATH = 19  # (Sm)
    SYMBOL_CURRENCY = 20  # (Sc)
    SYMBOL_MODIFIER = 21  # (Sk)
    SYMBOL_OTHER = 22  # (So)
    SEPARATOR_SPACE = 23  # (Zs)
    SEPARATOR_LINE = 24  # (Zl)
    SEPARATOR_PARAGRAPH = 25  # (Zp)
    OTHER_CONTROL = 26  # (Cc)
    OTHER_FORMAT = 27  # (Cf)
    OTHER_SURROGATE = 28  # (Cs)
    OTHER_PRIVATE_USE = 29  # (Co)
    LETTER = 30  # (L) numbers 1 to 5
    MARK = 31  # (M) numbers 6 to 8
    NUMBER = 32  # (N) numbers 9 to 11
    PUNCTUATION = 33  # (P) numbers 12 to 18
    SYMBOL = 34  # (S) numbers 19 to 22
    SEPARATOR = 35  # (Z) numbers 23 to 25
    OTHER = 36  # (C) numbers 26 to 29: without the unassigned ones
    LETTER_COMMON = 37  # a letter of the Latin, Greek and Cyrillic blocks
    WHITE_SPACE = 38  # by the property White_Space
    ALPHA = 39  # a letter
    ALPHA_NUM = 40  # a letter or a decimal digit of any script
    DIGIT = 41  # a decimal digit of any script
    HEX_DIGIT = 42  # 0 to 9, A to F, a to f
    HANGUL = 43  # a syllable, U+AC00 to U+D7A3
    CR_LF = 44  # carriage return or line feed
    LOW_LINE = 45  # "_"
    QUOTE = 46  # U+0022 or U+0027
    WORD_SEPARATOR = 47  # assigned, and no letter, mark, number, connector, surrogate
    WHITE_SPACE_OR_AMPERSAND = 48  # white space or "&"
    WHITE_SPACE_OR_COLON = 49  # white space or ":"
    WHITE_SPACE_OR_NO_BREAK_SPACE = 50  # white space, of which U+00A0 is
    WHITE_SPACE_GT = 51  # white space or ">"
    WHITE_SPACE_LT = 52  # white space or "<"
    WHITE_SPACE_HYPHEN = 53  # white space or "-"
    WHITE_SPACE_HYPHEN_GT = 54  # white space, "-" or ">"


class Decomposition(IntEnum):
    """How a character is decomposed."""

    CANONICAL = 0  # the full canonical one, marks in canonical order: "é" is "e" and U+0301
    COMPATIBLE = 1  # the full compatibility one, or the canonical one if there is no other
    HANGUL = 2  # the letters of a Hangul syllable, which the others leave alone


class SuiteHashOf(IntEnum):
    """How bytes or characters count in the suite's hash."""

    BYTES = 0  # the bytes
    UPPER_BYTES = 1  # the bytes in upper case, as letters of Windows-1250
    TEXT = 2  # the little-endian bytes of the text in UTF-16
    FOLDED_TEXT = 3  # the case-folded UTF-16 units of the text


class DetectFlags(IntEnum):
    """Which texts are possible."""

    PLAIN = 0  # Czech texts of Windows, DOS and Unix, and of every form of Unicode
    MAC = 1  # and those of the Macintosh: Mac Central European


class Evidence(IntEnum):
    """Why an encoding was detected. It is sure for the numbers 1 to 5."""

    MARK = 1  # a byte-order mark
    ZEROS = 2  # the zero bytes of UTF-16 or UTF-32
    ASCII = 3  # ASCII characters only, which count as UTF-8
    UTF8 = 4  # bytes that are valid UTF-8, too many for chance
    CZECH = 5  # it looks most like Czech in this encoding
    ALIKE = 6  # several encodings read it alike
    CLOSE = 7  # several encodings are possible
    FOREIGN = 8  # it does not look like Czech in any encoding
    BINARY = 9  # zero bytes: it may not be text


class ConvertPolicy(IntEnum):
    """What becomes of bytes and characters that cannot be converted."""

    STRICT = 0  # the conversion fails at its position
    REPLACE = 1  # it becomes U+FFFD, or "?" if the encoding lacks that


class DocumentFlags(IntEnum):
    """How values are read and set."""

    RAW = 1  # the value is XML as it is written: references and tags
    REFERENCES = 2  # set: a character that the encoding lacks becomes a reference such as &#x159;
    ADD = 4  # set: add a missing attribute, or a missing next element of a name


class SuiteRounding(IntEnum):
    """The direction of the suite's rounding. Any other number up to 255 means no rounding."""

    UP = 0  # away from zero
    DOWN = 1  # toward zero
    MATH = 2  # halves away from zero


class SuiteTokenKind(IntEnum):
    """Kinds of tokens."""

    COMMENT = 6
    HEADER = 8  # <? ... ?>
    TEXT = 9  # text between tags, or a CDATA section
    OPEN_TAG = 10
    CLOSE_TAG = 11
    STAND_ALONE_TAG = 12


class MachineLayer(IntEnum):
    """Which part of the suite asks for the report."""

    CLIENT = 0  # a client with a user interface
    BUSINESS = 1  # the application layer


class Account(NamedTuple):
    """A Czech bank account."""

    number: int  # at most ten digits
    prefix: int  # at most six digits; 0 for none
    bank: int  # the bank code: 800 is 0800


class Birth(NamedTuple):
    """What a birth number tells."""

    born: date  # the day of birth
    sex: Sex  # women have 50 added to the month
    second_series: bool  # 20 is added to the month
    remainder_ten: bool  # it is not divisible by eleven and right all the same


class Week(NamedTuple):
    """A week by ISO 8601."""

    year: int  # the year of its Thursday
    week: int  # 1 to 53


class Holiday(NamedTuple):
    """A public holiday."""

    czech: str  # its name by law
    english: str  # its name in English
    law: str  # the law that gave it this form: "245/2000"
    first_year: int  # the first year in which it holds
    last_year: int  # the last; 9999 if there is no end
    month: int  # 1 to 12; 0 if it follows Easter
    day: int  # of the month, or days after Easter Sunday


class Term(NamedTuple):
    """When a term ends."""

    counted: date  # as the days or months count
    due: date  # the same, or the next working day if it is not one
    verified: bool  # the holidays up to there are verified


class VatRate(NamedTuple):
    """A rate."""

    law: str  # the law that set it: "500/2012"
    first: date  # the first day on which it is in force
    last: date  # the last; 31 December 9999 if there is no end
    kind: VatKind  # which
    percent: int  # 21 is 21 %


class VatWay(NamedTuple):
    """A way of computing the tax."""

    law: str  # the law that has it: "235/2004"
    first: date  # the first day on which it is lawful
    last: date  # the last; 31 December 9999 if there is no end
    method: VatMethod  # which


class VatAmounts(NamedTuple):
    """Base, tax and total of an amount."""

    base: Decimal  # without the tax
    tax: Decimal  # whole haléře
    total: Decimal  # both
    half: bool  # the exact tax ends on half a haléř


class EncodingInfo(NamedTuple):
    """What is known of an encoding."""

    name: str  # "Windows_1250"
    label: str  # for people
    aliases: str  # other names, separated by blanks
    notes: str  # remarks; may be empty
    code_page: int  # Windows number; 0 if it has none
    can_read: bool  # it can be converted from
    can_write: bool  # it can be converted to


class Detection(NamedTuple):
    """The encoding that a text seems to have."""

    candidates: int  # how many cannot be told apart; 1 if it is sure
    encoding: int  # the most likely one
    evidence: Evidence  # why
    is_sure: bool  # there is no doubt


class DocumentFinding(NamedTuple):
    """A finding of xml.Document.check."""

    name: str  # the stable name of its class: "comment", "encoding"
    line: int  # from 1
    column: int  # in characters, from 1


class SuiteEan(NamedTuple):
    """The check digits of an EAN."""

    valid: bool  # the text has 7, 8, 12 or 13 digits
    old_check: str  # the check digit of the code; a blank if it has none
    new_check: str  # the computed one; a blank if the text is no code
    full_code: str  # the code with the computed digit; empty if the text is no code


class SuiteTable(NamedTuple):
    """A table, or tables that share a name."""

    name: str  # in Czech
    module: str  # the module that has it: "RavoMzdaConstants"
    first: int  # the first identifier
    last: int  # the last identifier


class SuiteCaption(NamedTuple):
    """A caption or message."""

    name: str  # "rPropertySazbaNulova"
    text: str  # in Czech; "&" marks the accelerator
    group: str  # the title of its group, in English
    prefix: str  # what the names of the group begin with
    id: int  # in the string table


class SuiteModule(NamedTuple):
    """A module of the suite's library."""

    name: str  # "DIUnicode"
    uses: str  # the modules that start before it, separated by blanks
    order: int  # its place in the order in which modules start, from 0; they stop in reverse
    is_main: int  # 1 for the main module, else 0


class Bank(NamedTuple):
    """A bank."""

    bic: str | None  # None if it has none
    name: str
    code: int  # 800 is 0800
    clears: bool  # it takes part in the clearing system CERTIS


class Payment(NamedTuple):
    """A piece of payment data in a text."""

    begin: int  # where it begins, past its label, in bytes
    end: int  # where it ends; the next search begins there
    kind: str  # an account, an IBAN or one of the three symbols
    canonical: str  # as ravo_check writes it


class VatRow(NamedTuple):
    """The part of a document that has one rate."""

    base: Decimal
    tax: Decimal
    total: Decimal
    lines: int  # how many lines have the rate
    percent: int  # the percentage on the day
    half: bool  # any of its taxes ends on half a haléř


class VatSummary(NamedTuple):
    """A document by rates."""

    rows: tuple[VatRow, ...]  # by ravo_vat_kind
    sum: VatRow  # of all rows; its percentage is 0


class InvoiceHead(NamedTuple):
    """What an invoice says once."""

    number: str  # of the document
    type: str  # "1" an invoice, to "7", as the standard numbers them
    uuid: str
    issued: str
    tax_point: str
    currency: str  # of the books
    foreign_currency: str  # of the document, if it is another
    note: str
    version: InvoiceVersion  # whether the checks know it


class InvoiceParty(NamedTuple):
    """One side of the business."""

    ico: str  # company number
    dic: str  # the number for VAT, or else the first tax number
    name: str
    street: str
    building: str
    post_code: str
    city: str
    country: str  # its code: "CZ"


class InvoiceLine(NamedTuple):
    """A line."""

    number: str
    text: str  # what was sold
    quantity: str
    unit: str
    unit_price: str
    rate: str  # in percent
    base: str  # without the tax
    tax: str
    total: str  # with the tax
    reverse_charge: bool  # the customer owes the tax


class InvoiceRate(NamedTuple):
    """A row of the recapitulation."""

    rate: str  # in percent
    base: str  # without the tax
    tax: str
    total: str  # with the tax
    claimed_base: str  # of taxed deposits
    claimed_tax: str
    claimed_total: str
    difference_base: str  # less the taxed deposits
    difference_tax: str
    difference_total: str
    reverse_charge: bool  # the customer owes the tax
    way: InvoiceWay  # the lawful way that gives the tax


class InvoiceTotals(NamedTuple):
    """The sums of an invoice."""

    base: str  # without the tax
    tax: str
    total: str  # with the tax
    claimed_base: str  # of taxed deposits
    claimed_total: str
    difference_base: str  # less the taxed deposits
    difference_total: str
    rounding: str
    paid_deposits: str  # deposits that are not taxed
    payable: str  # what is to be paid


class InvoicePayment(NamedTuple):
    """A payment of an invoice."""

    amount: str
    means: str  # its code: "10" in cash, "42" by bank transfer
    due: str
    account: str  # without the bank
    bank: str  # its code
    iban: str
    bic: str
    variable_symbol: str
    constant_symbol: str
    specific_symbol: str


class InvoiceFinding(NamedTuple):
    """What is wrong with an invoice."""

    name: str  # the stable name of the rule: "sum.lines"
    element: str  # the name of the element
    found: str  # what is there; "" if nothing is
    expected: str  # what should be there; "" if the rule says it all
    rule: int  # its number, for isdoc.sentence
    reason: str | None  # why a check refuses what is there; None if none does
    severity: InvoiceSeverity  # how grave it is
    line: int  # in the text, from 1
    column: int  # in characters, from 1
