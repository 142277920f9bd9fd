"""Czech holidays, working days, and the days on which terms end. Days before 2000 are not verified.

>>> from datetime import date
>>> from ravo import holidays
>>> [holiday.english for holiday in holidays.on(date(2026, 11, 17))]
["Day of the Struggle for Freedom and Democracy and International Students' Day"]
>>> holidays.is_working_day(date(2026, 11, 17))
False
"""
from __future__ import annotations

from datetime import date

from . import _ravo
from ._error import Error
from .records import Holiday, Term

__all__ = ["Holiday", "Term", "days_overdue", "easter_sunday", "is_working_day", "known", "next_working_day", "of_year", "on", "term_in_days",
           "term_in_months", "working_days_between"]


def known() -> list[Holiday]:
    """Returns all holidays, former ones included, by their place in the year.

    >>> known()[0].english
    'Restoration Day of the Independent Czech State'
    """
    return [_ravo.holiday_at(index) for index in range(_ravo.holiday_count())]


def on(day: date) -> list[Holiday]:
    """Returns the holidays of a day: none, one, or the two of 1 January."""
    found: list[Holiday] = []
    try:
        while True:
            found.append(_ravo.holiday_on(day, len(found)))
    except Error as error:
        if error.code != "unknown":
            raise
    return found


def of_year(year: int) -> list[tuple[date, Holiday]]:
    """Returns the holidays of a year with their days, by day.

    >>> [day.isoformat() for day, holiday in of_year(2026)][:4]
    ['2026-01-01', '2026-01-01', '2026-04-03', '2026-04-06']
    """
    return sorted((pair for index in range(_ravo.holiday_count()) if (pair := _in_year(index, year))), key=lambda pair: pair[0])


def _in_year(index: int, year: int) -> tuple[date, Holiday] | None:
    holiday = _ravo.holiday_at(index)
    return (_ravo.holiday_day(index, year), holiday) if holiday.first_year <= year <= holiday.last_year else None


def easter_sunday(year: int) -> date:
    """Returns Easter Sunday of a year from 1583 on.

    >>> easter_sunday(2026)
    datetime.date(2026, 4, 5)
    """
    return _ravo.easter_sunday(year)


def is_working_day(day: date) -> bool:
    """Returns whether a day is Monday to Friday and no holiday."""
    return _ravo.is_working_day(day)


def next_working_day(day: date) -> date:
    """Returns the first working day from `day` on, which may be `day` itself.

    >>> next_working_day(date(2026, 12, 24))
    datetime.date(2026, 12, 28)
    """
    return _ravo.next_working_day(day)


def working_days_between(begin: date, end: date) -> int:
    """Returns how many working days there are after `begin` up to and with `end`; negative if `end` is before `begin`.

    >>> working_days_between(date(2026, 12, 23), date(2026, 12, 31))
    4
    """
    return _ravo.working_days_between(begin, end)


def term_in_days(begin: date, days: int) -> Term:
    """Returns when a term of `days` days ends; the day of the event, `begin`, does not count.

    >>> term_in_days(date(2026, 12, 11), 14)
    Term(counted=datetime.date(2026, 12, 25), due=datetime.date(2026, 12, 28), verified=True)
    """
    return _ravo.term_in_days(begin, days)


def term_in_months(begin: date, months: int) -> Term:
    """Returns when a term of `months` months ends: on the day of the same number, or the month's last.

    >>> term_in_months(date(2026, 1, 31), 1).counted
    datetime.date(2026, 2, 28)
    """
    return _ravo.term_in_months(begin, months)


def days_overdue(due: date, today: date) -> int:
    """Returns how many days `today` is past the due day; 0 up to that day.

    >>> days_overdue(date(2026, 11, 20), date(2026, 11, 22))
    2
    """
    return _ravo.days_overdue(due, today)
