#include "ferrowind/almanac/book_text.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/almanac/text_error.h"

#include "tests/support/failure_of.h"

namespace ferrowind::almanac {
namespace {

using ::ferrowind::testing::FailureOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kHead = "publisher P\ndocument D\n";

RuleBook SmallBook() {
  RuleBook book;
  book.publisher = "Bank of Gr\xC3\xBCn";
  book.document = "Bank holidays, https://example.org/#days";
  book.rules = {
      {"Saturday", RuleKind::kWeekday, DateExpression::Parse("weekday Saturday"), "Weekend", ""},
      {"J\xC3\xBCl", RuleKind::kCelebration, DateExpression::Parse("12-25 saturday to friday"), "25 December",
       "J\xC3\xBCl's eve"},
      {"Working # Saturday", RuleKind::kWorkingDay, DateExpression::Parse("2026-02-14"), "", ""},
      {"Eid", RuleKind::kPoint, DateExpression::Parse("table eid+1 to next free day"), "", "Eid (observed)"},
  };
  return book;
}

void ExpectRefused(const std::string& text, std::size_t line, std::size_t place, const std::string& reason) {
  try {
    (void)ReadBook(text);
    ADD_FAILURE() << "taken: " << text;
  } catch (const TextError& error) {
    EXPECT_EQ(error.Line(), line) << text;
    EXPECT_EQ(error.Place(), place) << text;
    EXPECT_EQ(error.Description(),
              "Line " + std::to_string(line) + ", at " + std::to_string(place) + ": " + reason);
  }
}

TEST(BookText, IsReadWithItsHeadAndRules) {
  const RuleBook book = ReadBook(
      "# A book.\n\npublisher  European Central Bank \ndocument\tTARGET closing days\r\n"
      "  WEEKDAY | Saturday | weekday saturday | Weekend\n"
      "working day|Working Saturday|2026-02-14\n"
      "celebration | Christmas Day | 12-25 to next free day | 25 December | Christmas Day (substitute day)\n"
      "point | Good Friday | easter-2 |\n");
  EXPECT_EQ(book.publisher, "European Central Bank");
  EXPECT_EQ(book.document, "TARGET closing days");
  ASSERT_EQ(book.rules.size(), 4U);
  EXPECT_EQ(book.rules[0], (BookRule{"Saturday", RuleKind::kWeekday,
                                     DateExpression::Parse("weekday Saturday"), "Weekend", ""}));
  EXPECT_EQ(book.rules[1], (BookRule{"Working Saturday", RuleKind::kWorkingDay,
                                     DateExpression::Parse("2026-02-14"), "", ""}));
  EXPECT_EQ(book.rules[2], (BookRule{"Christmas Day", RuleKind::kCelebration,
                                     DateExpression::Parse("12-25 to next free day"), "25 December",
                                     "Christmas Day (substitute day)"}));
  EXPECT_EQ(book.rules[3],
            (BookRule{"Good Friday", RuleKind::kPoint, DateExpression::Parse("easter-2"), "", ""}));
}

TEST(BookText, SaysSinceWhenItHolds) {
  EXPECT_EQ(ReadBook("since\t2015\n" + kHead).since, 2015);
  EXPECT_EQ(ReadBook(kHead).since, std::nullopt);
  RuleBook book = SmallBook();
  book.since = 1999;
  EXPECT_THAT(WriteBook(book), ::testing::HasSubstr("#days\nsince 1999\n\n# kind"));
  EXPECT_EQ(ReadBook(WriteBook(book)), book);
  EXPECT_EQ(PlainLinesOf(book)[2], "since 1999");
}

TEST(BookText, NamesTheLineAndPlaceOfAWrongFirstYear) {
  for (const char* year : {"", "1899", "2200", "15", "2015 2016", "2015."}) {
    ExpectRefused(kHead + "since " + year, 3, *year == '\0' ? 6 : 7, "a year 1900 to 2199 is expected");
  }
  ExpectRefused(kHead + "since 2015\nsince 2015", 4, 1, "there is a line \"since\" already");
}

TEST(BookText, MayHaveNoRules) { EXPECT_THAT(ReadBook(kHead).rules, IsEmpty()); }

TEST(BookText, IsReadAsItWasWritten) { EXPECT_EQ(ReadBook(WriteBook(SmallBook())), SmallBook()); }

TEST(BookText, IsWrittenInColumns) {
  EXPECT_EQ(
      WriteBook(SmallBook()),
      "publisher Bank of Gr\xC3\xBCn\n"
      "document Bank holidays, https://example.org/#days\n"
      "\n"
      "# kind      | name               | expression                   | comment [| name of the moved day]\n"
      "weekday     | Saturday           | weekday Saturday             | Weekend\n"
      "celebration | J\xC3\xBCl                | 12-25 Saturday to Friday     | 25 December | J\xC3\xBCl's "
      "eve\n"
      "working day | Working # Saturday | 2026-02-14                   |\n"
      "point       | Eid                | table eid+1 to next free day |  | Eid (observed)\n");
}

TEST(BookText, NamesTheLineAndPlaceOfAWrongExpression) {
  ExpectRefused(kHead + "point | Good Friday | 12-32 | x", 3, 26,
                "a day of the month is expected in \"12-32\"");
  ExpectRefused(kHead + "point | Good Friday |", 3, 22,
                "a date such as 12-25, easter-2 or 1st Monday of 05 is expected in \"\"");
}

TEST(BookText, QuotesTheBeginningOfALongWrongExpression) {
  std::string letters;
  for (int i = 0; i < 101; ++i) letters += "\xC3\xA4";
  // The quotation ends before the letter that it would cut.
  ExpectRefused(kHead + "point | A | x" + letters, 3, 13,
                "a date such as 12-25, easter-2 or 1st Monday of 05 is expected in \"x" +
                    letters.substr(0, 198) + "...\"");
}

TEST(BookText, NamesTheLineAndPlaceOfAWrongRule) {
  ExpectRefused(kHead + " holiday | A | 01-01", 3, 2,
                "one of working day, weekday, celebration and point is expected");
  ExpectRefused(kHead + "point |  | 01-01", 3, 10, "a name is expected");
  ExpectRefused(kHead + "point | A", 3, 9, "\"| expression | comment\" is missing after the name");
  ExpectRefused(kHead + "point | A | 01-01 | c | m | x", 3, 29, "the end of the line is expected");
  ExpectRefused(kHead + "\npoint A 01-01", 4, 1,
                "publisher, document, since or a rule \"kind | name | expression | comment\" is expected");
}

TEST(BookText, NamesEveryWrongLine) {
  const BookReading reading = ReadWholeBook(
      "publisher P\n# wrong lines follow\npoint | A | 12-32\npoint | B | 12-31\nnonsense\n\xFF\na\x01 | b\n"
      "holiday | A | 01-01\n");
  std::vector<std::size_t> lines;
  for (const TextError& error : reading.errors) lines.push_back(error.Line());
  EXPECT_THAT(lines, ElementsAre(3, 5, 6, 7, 8, 8));
  EXPECT_EQ(reading.errors.back().Description(), "Line 8, at 1: the line \"document NAME\" is missing");
  EXPECT_THAT(reading.lines, ElementsAre(4));
  ASSERT_EQ(reading.book.rules.size(), 1U);
  EXPECT_EQ(reading.book.rules[0].name, "B");
}

TEST(BookText, HasPlainLinesThatAreReadAsTheSameBook) {
  const std::vector<std::string> lines = PlainLinesOf(SmallBook());
  EXPECT_EQ(lines.front(), "publisher Bank of Gr\xC3\xBCn");
  EXPECT_EQ(lines[2], "weekday | Saturday | weekday Saturday | Weekend");
  std::string text;
  for (const std::string& line : lines) text += line + '\n';
  EXPECT_EQ(ReadBook(text), SmallBook());
}

TEST(BookText, NamesWhatItsHeadLacks) {
  ExpectRefused("", 1, 1, "the line \"publisher NAME\" is missing");
  ExpectRefused("publisher P\n", 1, 1, "the line \"document NAME\" is missing");
  ExpectRefused("publisher\n", 1, 10, "a name is expected");
  ExpectRefused(kHead + "document E\n", 3, 1, "there is a line \"document\" already");
  ExpectRefused("publishers P\n", 1, 1,
                "publisher, document, since or a rule \"kind | name | expression | comment\" is expected");
}

TEST(BookText, RefusesWhatIsNoUtf8) {
  ExpectRefused(kHead + "point | \xFF | 01-01", 3, 1, "the line is no UTF-8");
}

TEST(BookText, RefusesControlCharactersButTabs) {
  ExpectRefused(kHead + "point | A\x01 | 01-01", 3, 10, "the line holds a control character");
  ExpectRefused(kHead + "point | A\rB | 01-01", 3, 10, "the line holds a control character");
  EXPECT_EQ(ReadBook(kHead + "point\t|\tA\tB\t|\t01-01").rules[0].name, "A\tB");
}

TEST(BookText, TakesTenThousandRules) {
  std::string text = kHead;
  for (int i = 0; i < 10'000; ++i) text += "point | Day " + std::to_string(i) + " | 1st Monday of 05 | c\n";
  EXPECT_EQ(ReadBook(text).rules.size(), 10'000U);
}

TEST(BookText, IsNotWrittenWhenItCouldNotBeReadAgain) {
  const auto refusal = [](auto change) {
    RuleBook book = SmallBook();
    change(book);
    return FailureOf([&] { (void)WriteBook(book); }).Description();
  };
  EXPECT_EQ(refusal([](RuleBook& book) { book.publisher = ""; }),
            "The publisher is empty and cannot stand in the text of a book");
  EXPECT_EQ(refusal([](RuleBook& book) { book.document = "a\nb"; }),
            "The document \"a b\" cannot stand in the text of a book: it holds a line break or another "
            "control character");
  EXPECT_EQ(refusal([](RuleBook& book) { book.rules[0].name = "A|B"; }),
            "The name of a rule \"A|B\" cannot stand in the text of a book: it holds \"|\"");
  EXPECT_EQ(refusal([](RuleBook& book) { book.rules[1].comment = " c"; }),
            "The comment \" c\" cannot stand in the text of a book: it begins or ends with a blank");
  EXPECT_EQ(refusal([](RuleBook& book) { book.rules[1].moved_name = "\xFF"; }),
            "The name of a moved day \"?\" cannot stand in the text of a book: it is no UTF-8");
}

}  // namespace
}  // namespace ferrowind::almanac
