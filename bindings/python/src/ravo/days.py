"""Days of the calendar, as bookkeeping counts them. Days are datetime.date, of the years 1 to 9999."""
from __future__ import annotations

from datetime import date

from . import _ravo
from .records import DateForm, Week

__all__ = ["DateForm", "Week", "add_months", "days_in_month", "format", "is_leap_year", "month_begin", "month_end", "read", "week", "week_begin"]


def read(text: str) -> date:
    """Returns the day of a date as people write it; ravo.Error if it is none.

    >>> read("21. 11. 2026"), read("20261121") == read("2026-11-21")
    (datetime.date(2026, 11, 21), True)
    """
    return _ravo.day_read(text)


def format(day: date, form: DateForm = DateForm.CZECH) -> str:
    """Returns a date as a text.

    >>> format(date(2026, 11, 21)), format(date(2026, 11, 21), DateForm.COMPACT)
    ('21. 11. 2026', '20261121')
    """
    return _ravo.day_format(day, form)


def add_months(day: date, months: int) -> date:
    """Returns the day `months` months later, or earlier if negative; a day past the end of the month is its last one.

    >>> add_months(date(2026, 1, 31), 1)
    datetime.date(2026, 2, 28)
    """
    return _ravo.add_months(day, months)


def month_begin(day: date) -> date:
    """Returns the first day of the month of a day.

    >>> month_begin(date(2026, 11, 21))
    datetime.date(2026, 11, 1)
    """
    return _ravo.month_begin(day)


def month_end(day: date) -> date:
    """Returns the last day of the month of a day.

    >>> month_end(date(2024, 2, 1))
    datetime.date(2024, 2, 29)
    """
    return _ravo.month_end(day)


def days_in_month(year: int, month: int) -> int:
    """Returns how many days a month has.

    >>> days_in_month(2026, 2)
    28
    """
    return _ravo.days_in_month(year, month)


def is_leap_year(year: int) -> bool:
    """Returns whether a year of the Gregorian calendar is a leap year.

    >>> is_leap_year(1900), is_leap_year(2000)
    (False, True)
    """
    return _ravo.is_leap_year(year)


def week(day: date) -> Week:
    """Returns the ISO 8601 week of a day.

    >>> week(date(2027, 1, 1))
    Week(year=2026, week=53)
    """
    return _ravo.week_of(day)


def week_begin(year: int, week: int) -> date:
    """Returns the Monday of an ISO 8601 week; ravo.Error if the year has no such week.

    >>> week_begin(2026, 53)
    datetime.date(2026, 12, 28)
    """
    return _ravo.day_of_week(year, week)
