"""The bank holidays of five currencies, derived from the law or the authority's own rule for any year since 2022.

Nothing here reads the delivered data: the tests compare the two.
"""

import calendar
import datetime
import math

MONDAY, THURSDAY, SATURDAY, SUNDAY = 0, 3, 5, 6


def nth_weekday(year, month, weekday, n):
    """The n-th such weekday of the month, counted from its end when n is negative."""
    days = [day for day in calendar.Calendar().itermonthdates(year, month)
            if day.month == month and day.weekday() == weekday]
    return days[n - 1 if n > 0 else n]


def easter_sunday(year):
    """By the anonymous Gregorian algorithm of 1876."""
    a, b, c = year % 19, year // 100, year % 100
    d, e = b // 4, b % 4
    g = (8 * b + 13) // 25
    h = (19 * a + b - d - g + 15) % 30
    i, k = c // 4, c % 4
    l = (32 + 2 * e + 2 * i - h - k) % 7
    m = (a + 11 * h + 22 * l) // 451
    month, day = divmod(h + l - 7 * m + 114, 31)
    return datetime.date(year, month, day + 1)


def after_easter(year, days):
    return easter_sunday(year) + datetime.timedelta(days)


def equinox_in_japan(year, mean_equinox):
    """The day of the equinox at Japan's meridian.

    Julian ephemeris day of the mean equinox by a polynomial in thousands of years since 2000, corrected by the
    largest periodic terms; right to a few minutes, and no equinox of the years under test is near midnight.
    """
    y = (year - 2000) / 1000
    mean = sum(coefficient * y ** power for power, coefficient in enumerate(mean_equinox))
    t = (mean - 2451545.0) / 36525
    w = math.radians(35999.373 * t - 2.47)
    delta_lambda = 1 + 0.0334 * math.cos(w) + 0.0007 * math.cos(2 * w)
    terms = [(485, 324.96, 1934.136), (203, 337.23, 32964.467), (199, 342.08, 20.186), (182, 27.85, 445267.112),
             (156, 73.14, 45036.886), (136, 171.52, 22518.443), (77, 222.54, 65928.934), (74, 296.72, 3034.906),
             (70, 243.58, 9037.513), (58, 119.81, 33718.147), (52, 297.17, 150.678), (50, 21.02, 2281.226)]
    s = sum(a * math.cos(math.radians(b + c * t)) for a, b, c in terms)
    julian_day = mean + 0.00001 * s / delta_lambda
    instant = datetime.datetime(2000, 1, 1, 12) + datetime.timedelta(days=julian_day - 2451545.0, hours=9)
    return instant.date()


def vernal_equinox_day(year):
    return equinox_in_japan(year, [2451623.80984, 365242.37404, 0.05169, -0.00411, -0.00057])


def autumnal_equinox_day(year):
    return equinox_in_japan(year, [2451810.21715, 365242.01767, -0.11575, 0.00337, 0.00078])


def euro(year):
    """TARGET closing days, the same every year since 2002."""
    return {
        datetime.date(year, 1, 1): "New Year's Day",
        after_easter(year, -2): "Good Friday",
        after_easter(year, 1): "Easter Monday",
        datetime.date(year, 5, 1): "Labour Day (1 May)",
        datetime.date(year, 12, 25): "Christmas Day",
        datetime.date(year, 12, 26): "St Stephen's Day",
    }


def us_dollar(year):
    """Federal Reserve Banks: the holidays of 5 U.S.C. 6103; one on a Sunday is kept on the Monday, one on a Saturday
    is not kept on another day."""
    holidays = {
        datetime.date(year, 1, 1): "New Year's Day",
        nth_weekday(year, 1, MONDAY, 3): "Birthday of Martin Luther King, Jr.",
        nth_weekday(year, 2, MONDAY, 3): "Washington's Birthday",
        nth_weekday(year, 5, MONDAY, -1): "Memorial Day",
        datetime.date(year, 6, 19): "Juneteenth National Independence Day",
        datetime.date(year, 7, 4): "Independence Day",
        nth_weekday(year, 9, MONDAY, 1): "Labor Day (September)",
        nth_weekday(year, 10, MONDAY, 2): "Columbus Day",
        datetime.date(year, 11, 11): "Veterans Day",
        nth_weekday(year, 11, THURSDAY, 4): "Thanksgiving Day",
        datetime.date(year, 12, 25): "Christmas Day",
    }
    for date, name in list(holidays.items()):
        if date.weekday() == SUNDAY:
            holidays[date + datetime.timedelta(1)] = f"{name} (observed)"
    return holidays


def pound_sterling(year):
    """England and Wales: the Banking and Financial Dealings Act 1971, and Good Friday and Christmas Day by common
    law; a holiday on a weekend has a substitute on the next weekday that is free."""
    holidays = {
        datetime.date(year, 1, 1): "New Year's Day",
        after_easter(year, -2): "Good Friday",
        after_easter(year, 1): "Easter Monday",
        nth_weekday(year, 5, MONDAY, 1): "Early May bank holiday",
        nth_weekday(year, 5, MONDAY, -1): "Spring bank holiday",
        nth_weekday(year, 8, MONDAY, -1): "Summer bank holiday",
        datetime.date(year, 12, 25): "Christmas Day",
        datetime.date(year, 12, 26): "Boxing Day",
    }
    for date, name in list(holidays.items()):
        if date.weekday() in (SATURDAY, SUNDAY):
            substitute = date
            while substitute.weekday() in (SATURDAY, SUNDAY) or substitute in holidays:
                substitute += datetime.timedelta(1)
            holidays[substitute] = f"{name} (substitute day)"
    return holidays


def yen(year):
    """The Act on National Holidays with its substitute and citizens' holidays, and the bank holidays of the
    Enforcement Order of the Banking Act."""
    national = {
        datetime.date(year, 1, 1): "New Year's Day",
        nth_weekday(year, 1, MONDAY, 2): "Coming of Age Day",
        datetime.date(year, 2, 11): "National Foundation Day",
        datetime.date(year, 2, 23): "The Emperor's Birthday",
        vernal_equinox_day(year): "Vernal Equinox Day",
        datetime.date(year, 4, 29): "Showa Day",
        datetime.date(year, 5, 3): "Constitution Memorial Day",
        datetime.date(year, 5, 4): "Greenery Day",
        datetime.date(year, 5, 5): "Children's Day",
        nth_weekday(year, 7, MONDAY, 3): "Marine Day",
        datetime.date(year, 8, 11): "Mountain Day",
        nth_weekday(year, 9, MONDAY, 3): "Respect for the Aged Day",
        autumnal_equinox_day(year): "Autumnal Equinox Day",
        nth_weekday(year, 10, MONDAY, 2): "Sports Day",
        datetime.date(year, 11, 3): "Culture Day",
        datetime.date(year, 11, 23): "Labor Thanksgiving Day",
    }
    holidays = dict(national)
    one_day = datetime.timedelta(1)
    for date in national:
        if date.weekday() == SUNDAY:
            substitute = date
            while substitute in national:
                substitute += one_day
            holidays[substitute] = "Substitute Holiday"
    for date in national:
        between = date + one_day
        if between not in holidays and between + one_day in national:
            holidays[between] = "Citizens' Holiday"
    holidays[datetime.date(year, 1, 2)] = "Bank holiday (2 January)"
    holidays[datetime.date(year, 1, 3)] = "Bank holiday (3 January)"
    holidays[datetime.date(year, 12, 31)] = "Bank holiday (31 December)"
    return holidays


def swiss_franc(year):
    """Zurich bank holidays, on which the Swiss interbank clearing does not settle."""
    return {
        datetime.date(year, 1, 1): "New Year's Day",
        datetime.date(year, 1, 2): "Berchtold's Day",
        after_easter(year, -2): "Good Friday",
        after_easter(year, 1): "Easter Monday",
        datetime.date(year, 5, 1): "Labour Day (1 May)",
        after_easter(year, 39): "Ascension Day",
        after_easter(year, 50): "Whit Monday",
        datetime.date(year, 8, 1): "Swiss National Day",
        datetime.date(year, 12, 25): "Christmas Day",
        datetime.date(year, 12, 26): "St Stephen's Day",
    }


BY_CURRENCY = {"EUR": euro, "USD": us_dollar, "GBP": pound_sterling, "JPY": yen, "CHF": swiss_franc}
