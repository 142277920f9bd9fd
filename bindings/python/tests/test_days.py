"""Days: the standard library is the witness of the calendar."""
import calendar
import pickle
from datetime import date, datetime, timedelta

import pytest
import ravo
from hypothesis import given
from hypothesis import strategies as some
from ravo import days, holidays, suite
from ravo.records import DateForm


@given(some.dates())
def test_days_are_those_of_datetime(day: date) -> None:
    assert days.week(day) == day.isocalendar()[:2]
    assert days.is_leap_year(day.year) == calendar.isleap(day.year)
    assert days.days_in_month(day.year, day.month) == calendar.monthrange(day.year, day.month)[1]
    assert days.month_begin(day) == day.replace(day=1)
    assert days.month_end(day).day == calendar.monthrange(day.year, day.month)[1]
    assert all(days.read(days.format(day, form)) == day for form in DateForm)


@given(some.dates(min_value=date(100, 1, 1), max_value=date(9900, 1, 1)), some.integers(-1000, 1000))
def test_months_are_added(day: date, months: int) -> None:
    moved = days.add_months(day, months)
    assert (moved.year * 12 + moved.month) - (day.year * 12 + day.month) == months
    assert moved.day == min(day.day, calendar.monthrange(moved.year, moved.month)[1])


@given(some.integers(1, 9998), some.integers(1, 53))
def test_weeks_begin_on_monday(year: int, week: int) -> None:
    try:
        assert days.week_begin(year, week) == date.fromisocalendar(year, week, 1)
    except ravo.Error as error:
        assert error.code == "range" and week == 53


def test_the_ends_of_the_calendar() -> None:
    assert days.month_end(date.max) == date.max
    with pytest.raises(ravo.Error) as raised:
        days.add_months(date.max, 1)
    assert raised.value.code == "range" and raised.value.position is None
    with pytest.raises(TypeError, match="expected datetime.date, not str"):
        days.month_end("2026-01-01")  # type: ignore[arg-type]
    with pytest.raises(ValueError, match="months is out of range"):
        days.add_months(date.min, 2**31)
    assert days.month_begin(datetime(2026, 11, 22, 13)) == date(2026, 11, 1)


@pytest.mark.parametrize("wrong", ["", "31. 2. 2026", "x", "2026-13-01"])
def test_other_texts_are_no_dates(wrong: str) -> None:
    with pytest.raises(ravo.Error):
        days.read(wrong)


@given(some.dates(min_value=date(1993, 1, 1), max_value=date(2100, 1, 1)), some.integers(-400, 400))
def test_working_days_are_counted_one_by_one(day: date, distance: int) -> None:
    other = day + timedelta(days=distance)
    low, high = min(day, other), max(day, other)
    counted = sum(holidays.is_working_day(low + timedelta(days=one)) for one in range(1, (high - low).days + 1))
    if distance >= 0:
        assert holidays.working_days_between(day, other) == counted
    assert holidays.working_days_between(low, high) == -holidays.working_days_between(high, low)


@given(some.dates(min_value=date(1993, 1, 1), max_value=date(2100, 1, 1)))
def test_a_working_day_is_no_holiday(day: date) -> None:
    assert holidays.is_working_day(day) == (day.weekday() < 5 and not holidays.on(day))
    assert holidays.next_working_day(day) >= day and holidays.is_working_day(holidays.next_working_day(day))


@given(some.integers(1583, 9999))
def test_easter(year: int) -> None:
    easter = pytest.importorskip("dateutil.easter")
    assert holidays.easter_sunday(year) == easter.easter(year)


def test_holidays_of_a_year() -> None:
    assert [(day.month, day.day) for day, _ in holidays.of_year(2026)] == [
        (1, 1), (1, 1), (4, 3), (4, 6), (5, 1), (5, 8), (7, 5), (7, 6), (9, 28), (10, 28), (11, 17), (12, 24), (12, 25), (12, 26)]
    assert len(holidays.on(date(2026, 1, 1))) == 2
    assert holidays.term_in_months(date(2026, 1, 31), 1).due == date(2026, 3, 2)
    assert holidays.days_overdue(date(2026, 11, 22), date(2026, 11, 1)) == 0
    holiday = holidays.known()[0]
    assert pickle.loads(pickle.dumps(holiday)) == holiday


@given(some.datetimes(min_value=datetime(1900, 1, 1), max_value=datetime(2900, 1, 1)))
def test_moments_of_the_suite(moment: datetime) -> None:
    moment = moment.replace(microsecond=moment.microsecond // 1000 * 1000)
    assert suite.sql_date_time(moment) == f"{moment:%Y%m%d %H:%M:%S}:{moment.microsecond // 1000:03}"
    assert suite.sql_date(moment.date()) + " " + suite.sql_time(moment) == suite.sql_date_time(moment)
    assert suite.change_month(moment, 1).month == moment.month % 12 + 1
    assert suite.change_year(moment, -1).year == moment.year - 1
