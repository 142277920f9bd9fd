"""Checks of the form of numbers and codes: one function for each kind.

A result is true if the text is correct in form; it never says that something exists. Texts are taken as people write
them: with a label, with blanks of all widths.

>>> from ravo import check
>>> result = check.ico("046 25 781")
>>> result
Check('ico', value='04625781')
>>> if not check.ico("04625782"):
...     print("wrong")
wrong
>>> wrong = check.iban("CZ65 0800 0000 1920 0014 5398")
>>> wrong.reason, wrong.position, wrong.message
('iban.checksum', 2, 'wrong: the check digits do not match')
>>> check.of("vs", "VS: 2026000579").value
'2026000579'
"""
from __future__ import annotations

from . import _ravo
from ._ravo import Check
from ._ravo import check_account as account
from ._ravo import check_bic as bic
from ._ravo import check_dic as dic
from ._ravo import check_ean as ean
from ._ravo import check_iban as iban
from ._ravo import check_ico as ico
from ._ravo import check_isbn as isbn
from ._ravo import check_ks as ks
from ._ravo import check_of as of
from ._ravo import check_psc as psc
from ._ravo import check_rc as rc
from ._ravo import check_ss as ss
from ._ravo import check_vat as vat
from ._ravo import check_vs as vs

TYPE_CHECKING = False
if TYPE_CHECKING:
    from datetime import date

    from .records import Account, Birth, Language, Payment

KINDS: tuple[str, ...] = _ravo.kinds()
"""The names of all kinds."""

__all__ = ["Check", "KINDS", "account", "account_of_iban", "account_parts", "account_to_iban", "bic", "birth", "dic", "ean", "iban", "ico",
           "isbn", "isbn_to_13", "ks", "of", "payments", "psc", "rc", "respell", "sentence", "ss", "title", "vat", "vs"]


def respell(kind: str, text: str) -> str:
    """Returns the usual spelling of a text that is correct in form; ravo.Error if it is not.

    >>> respell("iban", "CZ6508000000192000145399")
    'CZ65 0800 0000 1920 0014 5399'
    """
    return _ravo.respell(kind, text)


def title(kind: str, language: Language | None = None) -> str:
    """Returns the name of a kind for people, in English if there is no other language.

    >>> from ravo.records import Language
    >>> title("vs"), title("vs", Language.CZECH)
    ('variable symbol', 'variabilní symbol')
    """
    return _ravo.kind_title(kind, _number(language)) or ""


def sentence(reason: str, language: Language | None = None) -> str:
    """Returns the sentence of a reason, in English if there is no other language; ravo.Error if there is no such reason.

    >>> sentence("ico.checksum")
    'wrong: the check digit does not match'
    """
    return _ravo.reason_sentence(_ravo.reason_of(reason), _number(language)) or ""


def _number(language: Language | None) -> int:
    return _ravo.ENGLISH if language is None else language


def account_parts(text: str) -> Account:
    """Returns prefix, number and bank of a Czech account.

    >>> account_parts("19-2000145399/0800")
    Account(number=2000145399, prefix=19, bank=800)
    """
    return _ravo.account_read(text)


def account_to_iban(text: str) -> str:
    """Returns the IBAN of a Czech account.

    >>> account_to_iban("19-2000145399/0800")
    'CZ6508000000192000145399'
    """
    return _ravo.account_to_iban(text)


def account_of_iban(text: str) -> str:
    """Returns the account of a Czech IBAN; ravo.Error ("unknown") for an IBAN of another country.

    >>> account_of_iban("CZ65 0800 0000 1920 0014 5399")
    '19-2000145399/0800'
    """
    return _ravo.account_of_iban(text)


def birth(text: str, today: date | None = None) -> Birth:
    """Returns what a birth number tells; ravo.Error ("rc.future") if the day of birth is after `today`.

    Without `today`, it is the current date.

    >>> birth("880125/1680").born
    datetime.date(1988, 1, 25)
    """
    if today is None:
        from datetime import date

        today = date.today()
    return _ravo.birth_read(text, today)


def isbn_to_13(text: str) -> str:
    """Returns the ISBN of thirteen digits of a book.

    >>> isbn_to_13("0-306-40615-2")
    '9780306406157'
    """
    return _ravo.isbn_to_13(text)


def payments(text: str) -> list[Payment]:
    """Returns the accounts, IBANs and payment symbols in a text, in their order, with their places in characters.

    >>> [(found.kind, found.canonical) for found in payments("Zaplaťte na účet 19-2000145399/0800, VS 2026000579.")]
    [('account', '19-2000145399/0800'), ('vs', '2026000579')]
    """
    return _ravo.payments(text)
