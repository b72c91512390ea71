"""ferrowindctl book: what the years should be is shown, checked and replaced, on both engines."""

import json
import unittest

import ferrowindctl
import server
from ferrowindctl import DONE, NOT_DONE

BOOK = """publisher Small Bank
document Settlement days

# kind      | name          | expression       | comment
weekday     | Sunday        | weekday Sunday   | Weekend
celebration | New Year's Day | 01-01           | 1 January
point       | Good Friday   | easter-2         |
celebration | Midsummer Day | 06-24 to next free day | 24 June | Midsummer Holiday
"""


class BookTests:
    """What holds on every engine; `make` gives the URL of a database that does not exist yet."""

    def setUp(self):
        super().setUp()
        self.database = self.make()
        self.assert_run(DONE, "init", self.database, "--empty")

    def write(self, text, name="book.txt"):
        self.path(name).write_text(text, encoding="utf-8")
        return self.path(name)

    def set_book(self, currency, text):
        return self.assert_run(DONE, "book", "set", self.database, currency, self.write(text))[0]

    def refuse_book(self, currency, text):
        """The errors about a text that `check` does not like and `set` does not store."""
        before = self.books()
        file = self.write(text)
        _, errors = self.assert_run(NOT_DONE, "book", "set", self.database, currency, file)
        result = ferrowindctl.run("book", "check", self.database, currency, file)
        self.assertEqual(result.returncode, NOT_DONE)
        self.assertEqual(self.books(), before)
        return errors

    def show(self, currency):
        return self.assert_run(DONE, "book", "show", self.database, currency)[0]

    def books(self):
        output, _ = self.assert_run(DONE, "call", self.database, "CldGetBook", "--format", "json")
        return json.loads(output)["results"]

    def history(self):
        output, _ = self.assert_run(DONE, "history", self.database, "--format", "json")
        return [row[3] for row in json.loads(output)["results"][0]["rows"]]

    def test_what_is_shown_can_be_set_again_and_is_the_same_then(self):
        self.assertEqual(self.set_book("sek", BOOK), "SEK has a book of 4 rules now.\n")
        shown = self.show("SEK")
        self.assertIn("publisher Small Bank\n", shown)
        self.assertRegex(shown, r"\ncelebration +\| Midsummer Day +\| 06-24 to next free day +\| 24 June +\| Midsummer Holiday\n")
        self.assertEqual(self.set_book("SEK", shown), "SEK has this book already.\n")
        self.assertEqual(self.history(), ["CldIUBook"])
        self.assertEqual(self.set_book("SEK", BOOK + "point | Fair | 2028-03-01 |\n"),
                         "+ point | Fair | 2028-03-01 |\nSEK has a new book of 5 rules now.\n")

    def test_prints_the_lines_that_are_removed_and_added(self):
        self.set_book("SEK", BOOK)
        lines = BOOK.replace("Small Bank", "Big Bank").replace("  ", " ").splitlines()
        # Good Friday before New Year's Day, and Midsummer Day for another day.
        lines[5], lines[6] = lines[6], lines[5]
        lines[7] = lines[7].replace("06-24", "06-23")
        output = self.set_book("SEK", "\n".join(lines))
        self.assertEqual(output, "- publisher Small Bank\n+ publisher Big Bank\n"
                                 "+ point | Good Friday | easter-2 |\n"
                                 "- point | Good Friday | easter-2 |\n"
                                 "- celebration | Midsummer Day | 06-24 to next free day | 24 June | Midsummer Holiday\n"
                                 "+ celebration | Midsummer Day | 06-23 to next free day | 24 June | Midsummer Holiday\n"
                                 "SEK has a new book of 4 rules now.\n")

    def test_does_not_overwrite_what_another_has_changed_since_the_text_was_shown(self):
        self.set_book("SEK", BOOK)
        one = self.show("SEK")
        self.assertRegex(one, r"\A# state \S+\npublisher ")
        self.set_book("SEK", one + "point | Fair | 2028-03-01 |\n")
        other = one + "point | Market | 2028-03-02 |\n"
        stored = self.books()
        _, errors = self.assert_run(NOT_DONE, "book", "set", self.database, "SEK", self.write(other))
        self.assertIn("another state of the book of SEK", errors)
        self.assertIn('"book show" it again', errors)
        # Nor is it the book of a currency that has none.
        self.assertIn("another state", self.assert_run(NOT_DONE, "book", "set", self.database, "DKK", self.path("book.txt"))[1])
        self.assertEqual(self.books(), stored)
        output = self.set_book("SEK", other.partition("\n")[2])
        self.assertEqual(output, "- point | Fair | 2028-03-01 |\n+ point | Market | 2028-03-02 |\nSEK has a new book of 5 rules now.\n")

    def test_takes_the_number_for_the_currency_whose_code_means_all(self):
        self.assertEqual(self.assert_run(DONE, "book", "set", self.database, "008", self.write(BOOK))[0],
                         "ALL has a book of 4 rules now.\n")
        self.assertEqual(self.show("8"), self.show("008"))
        self.assertEqual(self.assert_run(DONE, "book", "check", self.database, "8")[0], "The book is in order.\n")
        self.assertEqual(self.assert_run(DONE, "book", "check", self.database, "ALL")[0], "The book is in order.\n")
        for command in (("book", "show", self.database, "ALL"), ("why", self.database, "ALL", "2028-01-01")):
            self.assertIn("means all currencies, and here it takes one; write 8 ", self.assert_run(NOT_DONE, *command)[1])

    def test_reads_standard_input_too(self):
        for arguments in ((), ("-",)):
            output, _ = self.assert_run(DONE, "book", "set", self.database, "SEK", *arguments, input=BOOK.encode())
            self.assertIn("SEK has", output)
        _, errors = self.assert_run(NOT_DONE, "book", "set", self.database, "SEK", input=b"nonsense\n")
        self.assertIn("Standard input: Line 1, at 1: ", errors)

    def test_names_line_and_place_of_what_is_no_book(self):
        self.assertIn(f"{self.path('book.txt')}: Line 5, at ", self.refuse_book("SEK", BOOK.replace("weekday Sunday", "weekday Sonntag")))
        self.assertIn("Line 2, at ", self.refuse_book("SEK", BOOK.replace("document", "docment")))
        self.assertIn("Line 9, at ", self.refuse_book("SEK", BOOK + "holiday | A | 01-02 |\n"))
        self.assertIn("Line 1", self.refuse_book("SEK", ""))

    def test_names_every_wrong_line_of_a_text(self):
        wrong = BOOK.replace("weekday Sunday", "weekday Sonntag").replace("01-01", "13-01") + "nonsense\n"
        errors = self.refuse_book("SEK", wrong)
        file = self.path("book.txt")
        self.assertEqual([line.partition(", at")[0] for line in errors.splitlines()],
                         [f"ferrowindctl: {file}: Line {line}" for line in (5, 6, 9)] + ["ferrowindctl: nothing was changed"])
        output = ferrowindctl.run("book", "check", self.database, "SEK", file).stdout.decode()
        self.assertEqual(errors.replace("ferrowindctl: ", "").splitlines()[:-1], [line[:-1] for line in output.splitlines()])

    def test_names_the_lines_behind_the_faults_of_a_book(self):
        errors = self.refuse_book("SEK", BOOK + "\n\npoint | Fair | table no-such-table |\n")
        self.assertIn(f"{self.path('book.txt')}: Line 11 (Fair) asks for the table no-such-table", errors)

    def test_tells_a_clash_with_several_books_once(self):
        for currency in ("SEK", "DKK", "NOK", "EUR"):
            self.set_book(currency, BOOK)
        errors = self.refuse_book("USD", BOOK.replace("celebration | New Year's Day", "point | New Year's Day"))
        self.assertEqual(errors, "ferrowindctl: \"New Year's Day\" is a point in line 6 of USD and a celebration in "
                                 "DKK, NOK and 2 others: a name has one kind\nferrowindctl: nothing was changed\n")

    def test_names_every_fault_of_a_book(self):
        errors = self.refuse_book("SEK", BOOK.replace("01-01 ", "easter") + "point | Fair | table no-such-table |\n")
        self.assertIn("New Year's Day", errors)
        self.assertIn("no-such-table", errors)
        self.assertIn("ferrowindctl: nothing was changed\n", errors)

    def test_stores_no_book_that_opens_weekends_or_names_the_built_in_rule(self):
        head = "publisher P\ndocument D\n"
        self.assertIn("The book closes no weekday", self.refuse_book("SEK", head))
        self.assertIn("The book closes no weekday", self.refuse_book("SEK", head + "celebration | A | 01-01 |\n"))
        self.assertIn("the name of the built-in rule", self.refuse_book("SEK", BOOK + "point | working DAY by exception | 12-24 |\n"))

    def test_a_name_is_of_one_kind_in_all_books(self):
        self.set_book("SEK", BOOK)
        other = BOOK.replace("celebration | Midsummer Day", "point | Midsummer Day")
        self.assertIn("Midsummer Day", self.refuse_book("DKK", other))
        # The book that stands there is no other one.
        self.assertIn("new book", self.set_book("SEK", other))

    def test_check_says_that_a_book_is_in_order_and_finds_the_faults_of_a_stored_one(self):
        self.set_book("SEK", BOOK)
        for arguments in (("SEK",), ("ALL",), ("DKK", self.path("book.txt"))):
            self.assertEqual(self.assert_run(DONE, "book", "check", self.database, *arguments)[0], "The book is in order.\n")
        # Another program may store what no program of ours does.
        self.assert_run(DONE, "call", self.database, "CldIUBook", "ID1=208", "Expected=", "Publisher=A", "Document=B",
                        'Rules=[{"Name1":"Fair","TID1":4,"Expression":"sometimes"}]')
        for currency in ("DKK", "ALL"):
            output, _ = self.assert_run(NOT_DONE, "book", "check", self.database, currency)
            self.assertRegex(output, r"\ADKK: .*Fair.*sometimes.*\.\n\Z")
        _, errors = self.assert_run(NOT_DONE, "book", "show", self.database, "DKK")
        self.assertIn("cannot be read", errors)
        self.assertEqual(self.set_book("DKK", BOOK), "DKK has a new book of 4 rules now.\n")

    def test_stores_the_delivered_books_where_there_are_none(self):
        output, _ = self.assert_run(DONE, "book", "set", self.database, "chf", "--delivered")
        self.assertRegex(output, r"\ACHF has a book of \d+ rules now\.\n\Z")
        output, _ = self.assert_run(DONE, "book", "set", self.database, "ALL", "--delivered")
        self.assertEqual(len(output.splitlines()), 26)
        self.assertIn("CHF has this book already.\n", output)
        self.assertEqual(self.assert_run(DONE, "book", "check", self.database, "ALL")[0], "26 books are in order.\n")
        self.assert_run(DONE, "init", self.url("new.db"), "--year", "2026")
        stored = self.books()
        self.database = self.url("new.db")
        self.assertEqual(self.texts(stored), self.texts(self.books()))

    @staticmethod
    def texts(books):
        """Without the fingerprints, of which each engine has its own."""
        heads, rules = books
        return [row[:3] for row in heads["rows"]], rules

    def test_a_change_can_be_undone(self):
        self.set_book("SEK", BOOK)
        before = self.books()
        self.set_book("SEK", BOOK + "point | Fair | 2028-03-01 |\n")
        rows = json.loads(self.assert_run(DONE, "history", self.database, "--format", "json")[0])["results"][0]["rows"]
        self.assert_run(DONE, "undo", self.database, rows[-1][0])
        self.assertEqual(self.books(), before)

    def test_names_what_there_is_not(self):
        file = self.write(BOOK)
        for arguments, text in ((("show", self.database, "SEK"), "SEK has no rule book"),
                                (("check", self.database, "SEK"), "SEK has no rule book"),
                                (("show", self.database, "QQQ"), "no currency QQQ"),
                                (("set", self.database, "QQQ", file), "no currency QQQ"),
                                (("set", self.database, "XAU", file), "XAU"),
                                (("set", self.database, "AED", "--delivered"), "No rule book is delivered for AED"),
                                (("set", self.database, "ALL", file), "the book of one currency"),
                                (("check", self.database, "ALL", file), "the book of one currency"),
                                (("set", self.database, "SEK", file, "--delivered"), "not read from a file"),
                                (("set", self.database, "SEK", self.path("no.txt")), "no.txt cannot be read: No such file"),
                                (("set", self.database, "SEK", self.folder), "cannot be read: Is a directory")):
            with self.subTest(arguments=arguments):
                self.assertIn(text, self.assert_run(NOT_DONE, "book", *arguments)[1])
        self.assertEqual(self.history(), [])


class BooksOfAFile(BookTests, ferrowindctl.InAFolder):

    def make(self):
        return self.url()


class BooksOnAServer(BookTests, ferrowindctl.InAFolder):

    def make(self):
        self.on_server = server.Database(self)
        return self.on_server.uri

    def test_are_changed_by_operators_and_not_by_readers(self):
        file = self.write(BOOK)
        operator = self.on_server.login(self, f"operator_of_{self.on_server.name}", "sesame", role="ferrowind_operator")
        self.assert_run(DONE, "book", "set", operator, "SEK", file)
        reader = self.on_server.login(self, f"reader_of_{self.on_server.name}", "sesame", role="ferrowind_reader")
        _, errors = self.assert_run(NOT_DONE, "book", "set", reader, "DKK", file)
        self.assertIn("does not permit this", errors)
        self.assertNotIn("sesame", errors)


if __name__ == "__main__":
    unittest.main()
