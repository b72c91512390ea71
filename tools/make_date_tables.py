#!/usr/bin/python3
"""Writes the tables of database/seed/tables that can be computed; tables of announced days are kept by hand.

usage: tools/make_date_tables.py [--check]

Needs the Debian package python3-ephem: new moons and the sun's place are wanted to a minute, because some new moons
come that near to midnight. With --check nothing is written, and a table that differs is an error.
"""

import datetime
import functools
import math
import pathlib
import sys
from typing import Callable, NamedTuple

import ephem

FOLDER = pathlib.Path(__file__).resolve().parent.parent / "database" / "seed" / "tables"
# A year before the first that plans know the days of, so that rules may count days from a table across the new year.
FIRST_YEAR = 2014
LAST_YEAR = 2100
CHINA = 8
KOREA = 9
CHILE_IN_WINTER = -4
# As datetime counts them.
WEEKDAYS = ("Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun")


class Table(NamedTuple):
    name: str
    """What the dates are, a comment line each."""
    comment: tuple[str, ...]
    """The dates of a year, ascending."""
    dates: Callable[[int], list[datetime.date]]
    first_year: int = FIRST_YEAR
    last_year: int = LAST_YEAR


class Month(NamedTuple):
    """A month of the lunisolar calendar of eastern Asia."""

    number: int
    is_leap: bool
    first_day: datetime.date


def local_day(moment: ephem.Date, utc_offset: int) -> datetime.date:
    return (moment.datetime() + datetime.timedelta(hours=utc_offset)).date()


@functools.cache
def new_moons(year: int, utc_offset: int) -> list[datetime.date]:
    """The days of new moon from November of the year before to the end of the year."""
    moons = []
    moment = ephem.Date((year - 1, 11, 1))
    while local_day(moment, utc_offset) < datetime.date(year + 1, 1, 1):
        moment = ephem.next_new_moon(moment)
        moons.append(local_day(moment, utc_offset))
    return moons


def longitude_of_sun(midnight: datetime.date, utc_offset: int) -> float:
    """Degrees from the equinox of date, at the beginning of a day."""
    moment = datetime.datetime.combine(midnight, datetime.time()) - datetime.timedelta(hours=utc_offset)
    return math.degrees(ephem.Ecliptic(ephem.Sun(moment), epoch=moment).lon)


def has_principal_term(first: datetime.date, after_last: datetime.date, utc_offset: int) -> bool:
    """Whether the sun enters a twelfth of its way on a day of the month."""
    begin = longitude_of_sun(first, utc_offset) // 30
    return longitude_of_sun(after_last, utc_offset) // 30 != begin


@functools.cache
def months_between_solstices(year: int, utc_offset: int) -> list[Month]:
    """The months from the one with the winter solstice of the year before to before the one with the year's own.

    Of thirteen months the first without a principal term is leap and has the number of the one before it.
    """
    solstices = [local_day(ephem.next_winter_solstice((y, 1, 1)), utc_offset) for y in (year - 1, year)]
    moons = sorted({*new_moons(year, utc_offset), *new_moons(year + 1, utc_offset)})
    first, last = (max(i for i, moon in enumerate(moons) if moon <= solstice) for solstice in solstices)
    wants_leap = last - first == 13
    months = []
    number = 10
    for i in range(first, last):
        is_leap = wants_leap and not has_principal_term(moons[i], moons[i + 1], utc_offset)
        if is_leap:
            wants_leap = False
        else:
            number = number % 12 + 1
        months.append(Month(number, is_leap, moons[i]))
    return months


def lunar_date(month: int, day: int, utc_offset: int) -> Callable[[int], list[datetime.date]]:
    """A day of the lunisolar calendar, such as 8-15, by the sky over the meridian of the offset."""

    def dates(year: int) -> list[datetime.date]:
        months = {m.first_day: m for y in (year, year + 1) for m in months_between_solstices(y, utc_offset)}
        found = {m.first_day + datetime.timedelta(days=day - 1)
                 for m in months.values() if m.number == month and not m.is_leap}
        return sorted(date for date in found if date.year == year)

    return dates


def solar_term(degrees: int, month: int, utc_offset: int) -> Callable[[int], list[datetime.date]]:
    """The day of a month on which the sun has gone so far from the equinox of spring."""

    def dates(year: int) -> list[datetime.date]:
        day = datetime.date(year, month, 1)
        while longitude_of_sun(day + datetime.timedelta(days=1), utc_offset) < degrees:
            day += datetime.timedelta(days=1)
        return [day]

    return dates


def days_to_hebrew_new_year(year: int) -> int:
    """From the calendar's first day, before the two rules on the lengths of years; a day has 25,920 parts."""
    months = (235 * year - 234) // 19
    days = 29 * months + (12084 + 13753 * months) // 25920
    # Never on a Sunday, Wednesday or Friday.
    return days + 1 if 3 * (days + 1) % 7 < 3 else days


def rosh_hashanah(year: int) -> datetime.date:
    """The new year that falls in autumn of a year of the common era."""
    before, day, after = (days_to_hebrew_new_year(year + 3761 + shift) for shift in (-1, 0, 1))
    # No year has 356 days, and none 382.
    postponed = 2 if after - day == 356 else 1 if day - before == 382 else 0
    return datetime.date.fromordinal(day + postponed - 1373427)


def passover(year: int) -> datetime.date:
    """15 Nisan; from there to the new year the lengths of the months never differ."""
    return rosh_hashanah(year) - datetime.timedelta(days=163)


def independence_day_of_israel(year: int) -> datetime.date:
    """5 Iyar, but no part of it or of the memorial day before it on a sabbath or a Saturday night (law of 2004)."""
    day = passover(year) + datetime.timedelta(days=20)
    shift = {"Fri": -1, "Sat": -2, "Mon": 1}.get(WEEKDAYS[day.weekday()], 0)
    return day + datetime.timedelta(days=shift)


def tisha_b_av(year: int) -> datetime.date:
    """9 Av; the fast is kept on the Sunday when that is a sabbath."""
    day = passover(year) + datetime.timedelta(days=112)
    return day + datetime.timedelta(days=1) if WEEKDAYS[day.weekday()] == "Sat" else day


CHINESE = "of the Chinese calendar (GB/T 33661-2017), computed."
KOREAN = "of the Korean calendar, which is the Chinese one by the new moons of Korea's time (UTC+09:00), computed."
HEBREW = "of the Hebrew calendar, computed."

TABLES = (
    Table("chinese-new-year", (f"The first day of the first month {CHINESE}",), lunar_date(1, 1, CHINA)),
    Table("buddhas-birthday", (f"The 8th day of the fourth month {CHINESE}",), lunar_date(4, 8, CHINA)),
    Table("dragon-boat-festival", (f"The 5th day of the fifth month {CHINESE}",), lunar_date(5, 5, CHINA)),
    Table("mid-autumn-festival", (f"The 15th day of the eighth month {CHINESE}",), lunar_date(8, 15, CHINA)),
    Table("double-ninth-festival", (f"The 9th day of the ninth month {CHINESE}",), lunar_date(9, 9, CHINA)),
    Table("qingming-festival", ("The day on which the sun reaches 15 degrees, by China's time (UTC+08:00), computed.",),
          solar_term(15, 4, CHINA)),
    Table("korean-new-year", (f"The first day of the first month {KOREAN}",), lunar_date(1, 1, KOREA)),
    Table("korean-buddhas-birthday", (f"The 8th day of the fourth month {KOREAN}",), lunar_date(4, 8, KOREA)),
    Table("chuseok", (f"The 15th day of the eighth month {KOREAN}",), lunar_date(8, 15, KOREA)),
    Table("june-solstice-chile", ("The day of the June solstice by Chile's winter time (UTC-04:00), computed.",),
          solar_term(90, 6, CHILE_IN_WINTER)),
    Table("passover", (f"The first day of Passover, 15 Nisan {HEBREW}",), lambda year: [passover(year)]),
    Table("rosh-hashanah", (f"The first day of the year, 1 Tishri {HEBREW}",), lambda year: [rosh_hashanah(year)]),
    Table("tisha-b-av", (f"The fast of 9 Av {HEBREW}", "On a sabbath it is kept on the Sunday."),
          lambda year: [tisha_b_av(year)]),
    Table("independence-day-of-israel",
          (f"5 Iyar {HEBREW}", "Kept on the Thursday before when it is a Friday or Saturday, on Tuesday when a Monday."),
          lambda year: [independence_day_of_israel(year)]),
)


def text_of(table: Table) -> str:
    lines = [f"# {line}" for line in (*table.comment, "Made by tools/make_date_tables.py.")]
    lines.append(f"years {table.first_year} {table.last_year}")
    for year in range(table.first_year, table.last_year + 1):
        dates = table.dates(year)
        if not dates:
            raise ValueError(f"{table.name} has no date in {year}")
        lines.extend(date.isoformat() for date in dates)
    return "\n".join(lines) + "\n"


def main(arguments: list[str]) -> int:
    if arguments not in ([], ["--check"]):
        print(__doc__, file=sys.stderr)
        return 2
    differing = 0
    for table in TABLES:
        path = FOLDER / f"{table.name}.txt"
        text = text_of(table)
        if not arguments:
            path.write_text(text, encoding="utf-8")
        elif not path.is_file() or path.read_text(encoding="utf-8") != text:
            print(f"{path.name} differs from what is computed")
            differing += 1
    return 1 if differing else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
