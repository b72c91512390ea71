"""Answers questions about business days, a line each, as `ferrowindctl date serve` does: by the Python module.

usage: answer_questions.py URL"""

import datetime
import sys

import ferrowind_business_days as business_days
from ferrowind_business_days import Calendars, Convention

STATES = {business_days.DayState.OPEN: "open", business_days.DayState.CLOSED: "closed",
          business_days.DayState.NOT_PREPARED: "not prepared"}


def answer(calendars: Calendars, question: str, subject: str, date: str, last: str = "") -> object:
    day = datetime.date.fromisoformat(date)
    if question == "spot":
        return calendars.pair(subject).spot_date(day)
    if question == "value":
        return calendars.pair(subject).value_date(day, last)
    calendar = calendars.calendar(*subject.split(","))
    match question:
        case "is":
            return STATES[calendar.state(day)]
        case "next":
            return calendar.next(day)
        case "previous":
            return calendar.previous(day)
        case "adjust":
            return calendar.adjust(day, Convention.named(last))
        case "add":
            return calendar.add(day, int(last))
        case "between":
            return calendar.between(day, datetime.date.fromisoformat(last))
        case "month-end":
            return calendar.month_end(day)
    raise ValueError(f"{question} is no question")


def main() -> None:
    with Calendars.open(sys.argv[1]) as calendars:
        for line in sys.stdin:
            try:
                print(answer(calendars, *line.split()))
            except business_days.Error as error:
                print(f"error: {error}")


if __name__ == "__main__":
    main()
