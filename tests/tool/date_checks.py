"""`ravo date` beside Python's calendar."""

import calendar
import datetime
import json
import random

from harness import NO, YES


def months_later(date, months):
    """The same day of another month, or its last day; none outside the years 1 to 9999."""
    year, month = divmod(date.year * 12 + date.month - 1 + months, 12)
    if not 1 <= year <= 9999:
        return None
    return datetime.date(year, month + 1, min(date.day, calendar.monthrange(year, month + 1)[1]))


def facts_of(date):
    year, week, weekday = date.isocalendar()
    last = calendar.monthrange(date.year, date.month)[1]
    return {"date": date.isoformat(), "weekday": calendar.day_name[weekday - 1], "iso-week": f"{year:04}-W{week:02}", "month-days": last,
            "month-first": date.replace(day=1).isoformat(), "month-last": date.replace(day=last).isoformat(),
            "leap-year": calendar.isleap(date.year), "julian-day": date.toordinal() + 1721425, "sql-date": f"{date.year:04}{date.month:02}{date.day:02}"}


def check_dates(program):
    """Days drawn from all years, and their steps, have the facts that Python computes."""
    number = random.Random(20261122)
    for _ in range(40):
        date = datetime.date.fromordinal(number.randrange(1, datetime.date.max.toordinal() + 1))
        months, years = number.randrange(-30, 31), number.randrange(-3, 4)
        written = number.choice([date.isoformat(), f"{date.day}. {date.month}. {date.year:04}", f"{date.day:02}.{date.month:02}.{date.year:04}"])
        wanted = months_later(date, 12 * years + months)
        options = [written] if number.randrange(2) else [f"{written}{years:+}y{months:+}m"]
        if len(options) == 1 and options[0] == written:
            options += ["--month", str(months), "--year", str(years)]
        result = program.run(["date", "--json", *options])
        if wanted is None:
            if (result.status, result.out) != (NO, ""):
                yield f"date {options}: {result}"
            continue
        facts = json.loads(result.out)
        wrong = {key: facts[key] for key, value in facts_of(wanted).items() if facts[key] != value}
        differs = "" if facts["suite"]["date"] == facts["date"] else f"the suite's modules give {facts['suite']['date']} "
        if wrong or result.status != YES or differs not in result.err:
            yield f"date {options}: {wrong}, {result}"
