"""Business days and value dates of the calendars in a Ferrowind database.

    import datetime
    import ferrowind_business_days as business_days

    with business_days.Calendars.open("sqlite:calendars.db") as calendars:
        calendars.pair("EUR/JPY").spot_date(datetime.date(2026, 4, 30))

Days are datetime.date in and out. A day that nobody has prepared is never taken for open: answers that depend on one are
the exception NotPrepared. Any number of threads may ask at a time.
"""

from __future__ import annotations

import ctypes
import dataclasses
import datetime
import enum
import operator
from collections.abc import Mapping
from types import TracebackType
from typing import SupportsIndex

from ferrowind_business_days import _library
from ferrowind_business_days._failures import (
    DatabaseError, Error, InvalidArgument, NoBusinessDay, NotPrepared, UnknownCurrency)

__all__ = ["Calendar", "Calendars", "Changes", "Convention", "CurrencyPair", "DatabaseError", "DayState", "Error",
           "InvalidArgument", "NoBusinessDay", "NotPrepared", "UnknownCurrency", "__version__"]

__version__ = _library.version()

_EPOCH = datetime.date(1970, 1, 1).toordinal()
_INT32 = range(-2**31, 2**31)


class DayState(enum.Enum):
    """What is known of a day."""
    OPEN = 0
    CLOSED = 1
    NOT_PREPARED = 2


class Convention(enum.Enum):
    """Where a date goes that falls on a closed day."""
    UNADJUSTED = 0
    FOLLOWING = 1
    MODIFIED_FOLLOWING = 2
    MODIFIED_FOLLOWING_BIMONTHLY = 3
    PRECEDING = 4
    MODIFIED_PRECEDING = 5
    NEAREST = 6

    @classmethod
    def named(cls, name: str) -> Convention:
        """The convention of a name such as "ModifiedFollowing" or "MF"; InvalidArgument when there is none."""
        return cls(_library.number("convention_named", _library.text(name)))


@dataclasses.dataclass(frozen=True)
class Changes:
    """What a reload found to be another than before; codes of currencies, ascending."""
    added: list[str]
    changed: list[str]
    removed: list[str]
    has_other_conventions: bool

    def __bool__(self) -> bool:
        return bool(self.added or self.changed or self.removed or self.has_other_conventions)


def _day(date: datetime.date) -> int:
    return date.toordinal() - _EPOCH


def _date(day: int) -> datetime.date:
    return datetime.date.fromordinal(day + _EPOCH)


def _number(value: SupportsIndex) -> int:
    number = operator.index(value)
    if number not in _INT32:
        raise InvalidArgument(f"{number} is too large a number")
    return number


def _codes(text: bytes | None) -> list[str]:
    return text.decode().split(",") if text else []


class Calendar:
    """The business days of one currency, or of several joined: a day is open when it is open for all of them. It never
    changes, and outlives the Calendars that it comes from."""

    def __init__(self, handle: _library.Handle, currencies: tuple[str, ...]) -> None:
        self._handle = handle
        self._currencies = currencies

    def __repr__(self) -> str:
        return f"<Calendar {'+'.join(self._currencies)}>"

    def _date_of(self, question: str, *arguments: int) -> datetime.date:
        return _date(_library.number(question, self._handle.pointer, *arguments))

    def state(self, day: datetime.date) -> DayState:
        """Open, closed or not prepared."""
        return DayState(_library.number("state", self._handle.pointer, _day(day)))

    def is_business_day(self, day: datetime.date) -> bool:
        """Whether the day is open."""
        return _library.number("is_business_day", self._handle.pointer, _day(day)) != 0

    def next(self, day: datetime.date) -> datetime.date:
        """The first business day after the day."""
        return self._date_of("next", _day(day))

    def previous(self, day: datetime.date) -> datetime.date:
        """The last business day before the day."""
        return self._date_of("previous", _day(day))

    def adjust(self, day: datetime.date, convention: Convention) -> datetime.date:
        """The day, or where the convention moves it when it is closed."""
        return self._date_of("adjust", _day(day), convention.value)

    def add(self, day: datetime.date, count: int) -> datetime.date:
        """The `count`th business day after the day, before it when `count` is negative; with 0 the day itself."""
        return self._date_of("add", _day(day), _number(count))

    def between(self, start: datetime.date, end: datetime.date) -> int:
        """The business days behind `start`, up to and with `end`; negative when `end` is the earlier one."""
        return _library.number("between", self._handle.pointer, _day(start), _day(end))

    def month_end(self, day: datetime.date) -> datetime.date:
        """The last business day of the month that the day is in."""
        return self._date_of("month_end", _day(day))

    def closed_days(self, first: datetime.date, last: datetime.date) -> list[datetime.date]:
        """The closed days from `first` to `last`, ascending."""
        capacity = max(0, _day(last) - _day(first) + 1)
        days = (ctypes.c_int32 * capacity)()
        count = ctypes.c_size_t()
        _library.call("closed_days", self._handle.pointer, _day(first), _day(last), days, capacity,
                      ctypes.byref(count))
        return [_date(day) for day in days[:count.value]]

    def horizon(self) -> tuple[datetime.date, datetime.date] | None:
        """The first and the last prepared day, between which years may be missing; None when there is none."""
        first, last = ctypes.c_int32(), ctypes.c_int32()
        try:
            _library.call("horizon", self._handle.pointer, ctypes.byref(first), ctypes.byref(last))
        except NotPrepared:
            return None
        return _date(first.value), _date(last.value)

    def is_prepared(self, year: int) -> bool:
        """Whether all days of the year are prepared."""
        return _library.number("is_prepared", self._handle.pointer, _number(year)) != 0


class CurrencyPair:
    """On which days trades in a currency pair settle. It never changes, and outlives the Calendars that it comes from."""

    def __init__(self, handle: _library.Handle, name: str) -> None:
        self._handle = handle
        self._name = name

    def __repr__(self) -> str:
        return f"<CurrencyPair {self._name}>"

    @property
    def days_to_spot(self) -> int:
        """0, 1 or 2."""
        return _library.number("days_to_spot", self._handle.pointer)

    def spot_date(self, trade_date: datetime.date, *, trade_date_stays: bool = False) -> datetime.date:
        """The spot date of a trade of that day. A trade date on which a currency of the pair is closed counts as the next
        day on which both are open, unless it stays."""
        return _date(_library.number("spot_date", self._handle.pointer, _day(trade_date), int(trade_date_stays)))

    def value_date(self, trade_date: datetime.date, tenor: str, *, trade_date_stays: bool = False) -> datetime.date:
        """The day on which a trade of a tenor settles: "ON", "TN", "SPOT", "SN", "10D", "2W", "3M", "1Y", "IMM1"."""
        return _date(_library.number("value_date", self._handle.pointer, _day(trade_date), _library.text(tenor),
                                     int(trade_date_stays)))


class Calendars:
    """All calendars of a database, or calendars that are given, with the market's conventions."""

    def __init__(self, handle: _library.Handle) -> None:
        """For the two functions that follow."""
        self._handle = handle

    @classmethod
    def open(cls, url: str) -> Calendars:
        """Reads a database: "sqlite:PATH", or "postgresql://..." with a login that may read."""
        return cls(_library.Handle("set", "open", _library.text(url)))

    @classmethod
    def given(cls, years: Mapping[str, Mapping[int, str]], conventions: str | None = None) -> Calendars:
        """Calendars of these years, by currency and year: a text with a character a day, "1" closed and "0" open. The
        conventions are a text as in market_conventions.txt; without one those that come with the library."""
        rows = [_library.Year(_library.text(code), _library.text(days), _number(year))
                for code, of_currency in years.items() for year, days in of_currency.items()]
        return cls(_library.Handle(
            "set", "make", (_library.Year * len(rows))(*rows), len(rows), ctypes.sizeof(_library.Year),
            None if conventions is None else _library.text(conventions)))

    def reload(self) -> Changes:
        """Reads the database again, and tells what is another. Calendars and pairs that were taken before stay as they
        are. After a failure everything is as it was."""
        read = _library.ChangesRead(size=ctypes.sizeof(_library.ChangesRead))
        _library.call("reload", self._handle.pointer, ctypes.byref(read))
        return Changes(_codes(read.added), _codes(read.changed), _codes(read.removed), read.has_other_conventions != 0)

    @property
    def currencies(self) -> list[str]:
        """The codes of all currencies, ascending."""
        codes = ctypes.c_char_p()
        _library.call("currencies", self._handle.pointer, ctypes.byref(codes))
        return _codes(codes.value)

    def calendar(self, *currencies: str) -> Calendar:
        """The calendar of a currency, or of several joined."""
        codes = _library.text(",".join(currencies))
        return Calendar(_library.Handle("calendar", "calendar_of", self._handle.pointer, codes), currencies)

    def pair(self, pair: str) -> CurrencyPair:
        """The currency pair "EURUSD" or "EUR/USD"."""
        return CurrencyPair(_library.Handle("pair", "pair_of", self._handle.pointer, _library.text(pair)), pair)

    def close(self) -> None:
        """Gives the calendars back; those that were taken stay. A second time does nothing."""
        self._handle.close()

    def __enter__(self) -> Calendars:
        return self

    def __exit__(self, kind: type[BaseException] | None, error: BaseException | None,
                 traceback: TracebackType | None) -> None:
        self.close()
