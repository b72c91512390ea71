"""A database with small rule books, whose plans a person knows by heart."""

import json

import ferrowindctl
from ferrowindctl import DONE

EURO, DOLLAR, KRONA = 978, 840, 752

WEEKEND = [{"Name1": "Saturday", "TID1": 2, "Expression": "weekday Saturday", "Comment": "Weekend"},
           {"Name1": "Sunday", "TID1": 2, "Expression": "weekday Sunday", "Comment": "Weekend"}]
GOOD_FRIDAY = {"Name1": "Good Friday", "TID1": 4, "Expression": "easter-2", "Comment": "Friday before Easter Sunday"}
CHRISTMAS = {"Name1": "Christmas Day", "TID1": 3, "Expression": "12-25", "Comment": "25 December"}
INDEPENDENCE = {"Name1": "Independence Day", "TID1": 3, "Expression": "07-04 sunday to monday", "Comment": "4 July"}


class WithSmallBooks(ferrowindctl.InAFolder):
    """EUR has weekends, Good Friday and Christmas Day, USD weekends and Independence Day; there are no calendars."""

    def setUp(self):
        super().setUp()
        self.assert_run(DONE, "init", self.url(), "--empty")
        self.store_book(EURO, [*WEEKEND, GOOD_FRIDAY, CHRISTMAS])
        self.store_book(DOLLAR, [*WEEKEND, INDEPENDENCE])

    def store_book(self, currency, rules, since=None):
        [books, _] = self.call("CldGetBook", f"ID1={currency}")
        expected = books[0]["Fingerprint"] if books else ""
        self.call("CldIUBook", f"ID1={currency}", f"Expected={expected}", "Publisher=Small Bank", "Document=Closing days",
                  "Rules=" + json.dumps(rules), *([f"FromYear={since}"] if since else []))

    def ctl(self, status, *arguments, **options):
        """Standard output and standard error of a run that ends with that status."""
        result = ferrowindctl.run(*arguments, **options)
        output, errors = result.stdout.decode(), result.stderr.decode()
        self.assertEqual(result.returncode, status, output + errors)
        self.assertNotIn("Sanitizer", errors)
        return output, errors

    def apply(self, currency, years):
        self.ctl(DONE, "apply", self.url(), currency, years, "--yes")

    def days(self, currency, year):
        """The days of the calendar that have a rule, by date: its name and the day's own comment."""
        [rows] = self.call("CldGetMain", f"ID1={currency}", f"Year1={year}")
        return {row["ODate"]: (row["Name1"], row["Comment"]) for row in rows if row["ID2"] is not None}

    def holidays(self, currency, year):
        return {date: name for date, (name, _) in self.days(currency, year).items() if name not in ("Saturday", "Sunday")}

    def rule(self, name):
        rules = self.call("CldAllInfo")[2]
        return next(rule["ID2"] for rule in rules if rule["Name1"] == name)

    def assign(self, currency, date, name, comment=None):
        """Gives a day of an existing calendar that rule."""
        rules = {rule["Name1"]: rule for rule in self.call("CldAllInfo")[2]}
        [days] = self.call("CldGetMain", f"ID1={currency}", f"Year1={date[:4]}")
        number = next(day["Day1"] for day in days if day["ODate"] == date)
        self.call("CldIUMain", f"ID1={currency}", f"Year1={date[:4]}", f"TID1={rules[name]['TID1']}",
                  f"ID2={rules[name]['ID2']}", f"Day1={number}", f"ODate={date}", *([f"Comment={comment}"] if comment else []))

    def except_day(self, currency, date, reason=None):
        self.assign(currency, date, "Working day by exception", reason)
