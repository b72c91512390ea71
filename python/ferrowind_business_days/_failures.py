"""The exceptions of the module, and which of them a status is."""


class Error(Exception):
    """A question that could not be answered; its text says why."""


class NotPrepared(Error):
    """The answer depends on a day that nobody has prepared. Such a day is never taken for open."""


class NoBusinessDay(Error):
    """All days are closed, for a year or within the month that must not be left."""


class InvalidArgument(Error, ValueError):
    """No tenor, no currency pair, days that are no year's, and the like."""


class UnknownCurrency(Error, LookupError):
    """There is no calendar of the currency."""


class DatabaseError(Error):
    """The database could not be read."""


# By the status of ferrowind_business_days.h.
_FAILURES: dict[int, type[Error]] = {1: NotPrepared, 2: NoBusinessDay, 3: InvalidArgument, 4: UnknownCurrency,
                                     5: DatabaseError}
_OUT_OF_MEMORY = 6


def failure_of(status: int, message: str) -> Exception:
    """The exception that stands for a status other than 0."""
    if status == _OUT_OF_MEMORY:
        return MemoryError(message)
    return _FAILURES.get(status, Error)(message)
