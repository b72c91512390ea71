// What CldGetBook and CldIUBook do.

#include <gmock/gmock.h>

#include "tests/contract/database/procedures_contract.h"

namespace ferrowind::contract {
namespace {

using platform::Value;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr const char* kRules = R"([
  {"Name1": "Saturday", "TID1": 2, "Expression": "weekday Saturday", "Comment": "Weekend"},
  {"Name1": "Christmas Day", "TID1": 3, "Expression": "12-25 to next free day", "Comment": null,
   "MovedName": "Christmas Day, substitute"
},
  {"TID1": 4, "Expression": "easter-2", "Name1": "Großer \"Freitag\" 祝日 \u00e9"}])";

class Book {
 public:
  Book(ProcedureCaller& caller, const Value& currency)
      : outcome_(caller.Call("CldGetBook", {{"ID1", currency}})) {}

  [[nodiscard]] int ReturnValue() const { return outcome_.return_value; }
  [[nodiscard]] std::vector<Row> Heads() const { return RowsOf(*outcome_.record_sets.at(0)); }
  [[nodiscard]] std::vector<Row> Rules() const { return RowsOf(*outcome_.record_sets.at(1)); }
  [[nodiscard]] Value Fingerprint() const { return Heads().at(0).at(3); }

 private:
  platform::CallOutcome outcome_;
};

Arguments BookOf(std::int32_t currency, const Value& expected, const Value& rules) {
  return {{"ID1", currency},
          {"Expected", expected},
          {"Publisher", "European Central Bank"},
          {"Document", "Calendar of TARGET closing days <https://www.ecb.europa.eu>"},
          {"Rules", rules}};
}

TEST_P(ProceduresContract, ACurrencyWithoutABookHasEmptySets) {
  const Book book(caller(), kEuro);
  EXPECT_EQ(book.ReturnValue(), 0);
  EXPECT_THAT(book.Heads(), IsEmpty());
  EXPECT_THAT(book.Rules(), IsEmpty());
}

TEST_P(ProceduresContract, ABookIsGivenAsItWasStored) {
  ASSERT_EQ(caller().Return("CldIUBook", BookOf(kEuro, "", kRules)), 0);
  const Book book(caller(), kEuro);
  ASSERT_THAT(book.Heads(), SizeIs(1));
  EXPECT_EQ(book.Heads()[0][0], Value(kEuro));
  EXPECT_EQ(book.Heads()[0][1], Value("European Central Bank"));
  EXPECT_EQ(book.Heads()[0][2], Value("Calendar of TARGET closing days <https://www.ecb.europa.eu>"));
  EXPECT_NE(book.Fingerprint(), Value(""));
  EXPECT_THAT(
      book.Rules(),
      ElementsAre(
          Row{kEuro, 1, "Saturday", 2, "weekday Saturday", "Weekend", {}},
          Row{kEuro, 2, "Christmas Day", 3, "12-25 to next free day", {}, "Christmas Day, substitute"},
          Row{kEuro, 3, "Großer \"Freitag\" 祝日 é", 4, "easter-2", {}, {}}));
}

TEST_P(ProceduresContract, AllBooksAreGivenByCurrencyAndPosition) {
  ASSERT_EQ(StoreBook(kEuro, kRules), 0);
  ASSERT_EQ(StoreBook(kDollar, R"([{"Name1": "Sunday", "TID1": 2, "Expression": "weekday Sunday"}])"), 0);
  const Book all(caller(), {});
  ASSERT_THAT(all.Heads(), SizeIs(2));
  EXPECT_EQ(all.Heads()[0][0], Value(kDollar));
  EXPECT_EQ(all.Heads()[1][0], Value(kEuro));
  ASSERT_THAT(all.Rules(), SizeIs(4));
  EXPECT_EQ(all.Rules()[0][0], Value(kDollar));
  EXPECT_EQ(all.Rules()[3][1], Value(3));
  EXPECT_THAT(Book(caller(), kDollar).Rules(), SizeIs(1));
}

TEST_P(ProceduresContract, AStoredBookReplacesTheWholeOfTheOneBefore) {
  ASSERT_EQ(StoreBook(kEuro, kRules), 0);
  const Value first = Book(caller(), kEuro).Fingerprint();
  ASSERT_EQ(StoreBook(kEuro, R"([{"Name1": "Sunday", "TID1": 2, "Expression": "weekday Sunday"}])"), 0);
  EXPECT_THAT(Book(caller(), kEuro).Rules(),
              ElementsAre(Row{kEuro, 1, "Sunday", 2, "weekday Sunday", {}, {}}));
  EXPECT_NE(Book(caller(), kEuro).Fingerprint(), first);
  ASSERT_EQ(StoreBook(kEuro, kRules), 0);
  EXPECT_EQ(Book(caller(), kEuro).Fingerprint(), first);
  ASSERT_EQ(StoreBook(kEuro, "[]"), 0);
  EXPECT_THAT(Book(caller(), kEuro).Heads(), SizeIs(1));
  EXPECT_THAT(Book(caller(), kEuro).Rules(), IsEmpty());
}

TEST_P(ProceduresContract, ABooksFingerprintFollowsEachOfItsTexts) {
  std::vector<Value> seen;
  const auto store = [&](const std::string& publisher, const std::string& document,
                         const std::string& rules) {
    const Book before(caller(), kEuro);
    ASSERT_EQ(
        caller().Return("CldIUBook", {{"ID1", kEuro},
                                      {"Expected", before.Heads().empty() ? Value("") : before.Fingerprint()},
                                      {"Publisher", publisher},
                                      {"Document", document},
                                      {"Rules", rules}}),
        0);
    const Value fingerprint = Book(caller(), kEuro).Fingerprint();
    EXPECT_THAT(seen, ::testing::Not(::testing::Contains(fingerprint))) << publisher << document << rules;
    seen.push_back(fingerprint);
  };
  store("P", "D", "[]");
  store("PD", "", "[]");
  store("P", "D", R"([{"Name1": "A", "TID1": 3, "Expression": "01-01"}])");
  store("P", "D", R"([{"Name1": "B", "TID1": 3, "Expression": "01-01"}])");
  store("P", "D", R"([{"Name1": "A", "TID1": 4, "Expression": "01-01"}])");
  store("P", "D", R"([{"Name1": "A", "TID1": 3, "Expression": "01-02"}])");
  store("P", "D", R"([{"Name1": "A", "TID1": 3, "Expression": "01-01", "Comment": ""}])");
  store("P", "D", R"([{"Name1": "A", "TID1": 3, "Expression": "01-01", "MovedName": ""}])");
  store("P", "D", R"([{"Name1": "A", "TID1": 3, "Expression": "01-01", "Comment": "C"}])");
  store("P", "D", R"([{"Name1": "A", "TID1": 3, "Expression": "01-01", "MovedName": "C"}])");
  store("P", "D", R"([{"Name1": "A", "TID1": 3, "Expression": "01-01"},
                      {"Name1": "B", "TID1": 3, "Expression": "01-02"}])");
  store("P", "D", R"([{"Name1": "B", "TID1": 3, "Expression": "01-02"},
                      {"Name1": "A", "TID1": 3, "Expression": "01-01"}])");
}

TEST_P(ProceduresContract, ABookSaysSinceWhenItHolds) {
  ASSERT_EQ(StoreBook(kEuro, kRules), 0);
  const Book of_all_years(caller(), kEuro);
  EXPECT_EQ(of_all_years.Heads().at(0).at(4), Value());
  for (const std::int32_t year : {1900, 2015, 3000}) {
    ASSERT_EQ(StoreBook(kEuro, kRules, year), 0);
    const Book book(caller(), kEuro);
    EXPECT_EQ(book.Heads().at(0).at(4), Value(year));
    EXPECT_EQ(book.Rules(), of_all_years.Rules());
    EXPECT_NE(book.Fingerprint(), of_all_years.Fingerprint());
  }
  const auto before = Content();
  for (const std::int32_t year : {1899, 3001, 0, -1}) EXPECT_EQ(StoreBook(kEuro, kRules, year), 7) << year;
  const Value fingerprint = Book(caller(), kEuro).Fingerprint();
  EXPECT_EQ(caller().Return("CldIUBook", {{"ID1", kEuro}, {"Expected", fingerprint}, {"FromYear", 2015}}), 7)
      << "a removal with a year";
  EXPECT_EQ(Content(), before);
  ASSERT_EQ(caller().Return("CldIUBook", BookOf(kEuro, fingerprint, kRules)), 0);
  EXPECT_EQ(Book(caller(), kEuro).Heads().at(0).at(4), Value()) << "what is left out is gone";
}

TEST_P(ProceduresContract, ABookThatAnotherHasChangedIsNotReplaced) {
  ASSERT_EQ(StoreBook(kEuro, kRules), 0);
  const auto before = Content();
  EXPECT_EQ(caller().Return("CldIUBook", BookOf(kEuro, "", "[]")), 8);
  EXPECT_EQ(caller().Return("CldIUBook", BookOf(kEuro, "something else", "[]")), 8);
  EXPECT_EQ(caller().Return("CldIUBook", BookOf(kDollar, "something else", "[]")), 8);
  EXPECT_EQ(caller().Return("CldIUBook", {{"ID1", kEuro}, {"Expected", ""}}), 8);
  EXPECT_EQ(Content(), before);
}

TEST_P(ProceduresContract, ABookIsRemovedByACallWithoutTexts) {
  ASSERT_EQ(StoreBook(kEuro, kRules), 0);
  const Value fingerprint = Book(caller(), kEuro).Fingerprint();
  ASSERT_EQ(caller().Return("CldIUBook", {{"ID1", kEuro}, {"Expected", fingerprint}}), 0);
  EXPECT_THAT(Book(caller(), kEuro).Heads(), IsEmpty());
  EXPECT_THAT(Book(caller(), kEuro).Rules(), IsEmpty());
  EXPECT_EQ(caller().Return("CldIUBook", {{"ID1", kEuro}, {"Expected", ""}}), 0);
}

TEST_P(ProceduresContract, OnlyMoneyHasABook) {
  for (const int currency : {kNoCurrency, kGold}) {
    EXPECT_EQ(caller().Return("CldIUBook", BookOf(currency, "", "[]")), 3) << currency;
    EXPECT_EQ(caller().Return("CldGetBook", {{"ID1", currency}}), 3) << currency;
  }
}

TEST_P(ProceduresContract, ABookWithAValueMissingIsRefused) {
  ASSERT_EQ(StoreBook(kEuro, kRules), 0);
  const Value fingerprint = Book(caller(), kEuro).Fingerprint();
  const auto before = Content();
  for (std::size_t missing = 0; missing < 5; ++missing) {
    Arguments arguments = BookOf(kEuro, fingerprint, "[]");
    arguments[missing].second = {};
    EXPECT_EQ(caller().Return("CldIUBook", arguments), 7) << arguments[missing].first;
  }
  Arguments removal = BookOf(kEuro, fingerprint, {});
  removal[2].second = {};
  EXPECT_EQ(caller().Return("CldIUBook", removal), 7);
  EXPECT_EQ(caller().Return("CldIUBook", {{"ID1", kEuro}}), 7);
  EXPECT_EQ(Content(), before);
}

TEST_P(ProceduresContract, RulesOfAnotherShapeAreRefusedAndLeaveTheBook) {
  ASSERT_EQ(StoreBook(kEuro, kRules), 0);
  const auto before = Content();
  for (const char* rules : {
           "",
           " ",
           "null",
           "7",
           "\"text\"",
           "{}",
           "[",
           "[]]",
           "[null]",
           "[[]]",
           "[1]",
           "[{}]",
           "not JSON",
           R"({"Name1": "A", "TID1": 3, "Expression": "01-01"})",
           R"([{"Name1": "A", "TID1": 3, "Expression": "01-01"},])",
           R"([{"Name1": "A", "TID1": 3}])",
           R"([{"Name1": "A", "Expression": "01-01"}])",
           R"([{"TID1": 3, "Expression": "01-01"}])",
           R"([{"Name1": null, "TID1": 3, "Expression": "01-01"}])",
           R"([{"Name1": " ", "TID1": 3, "Expression": "01-01"}])",
           R"([{"Name1": 7, "TID1": 3, "Expression": "01-01"}])",
           R"([{"Name1": ["A"], "TID1": 3, "Expression": "01-01"}])",
           R"([{"Name1": "A", "TID1": 0, "Expression": "01-01"}])",
           R"([{"Name1": "A", "TID1": 5, "Expression": "01-01"}])",
           R"([{"Name1": "A", "TID1": 3.5, "Expression": "01-01"}])",
           R"([{"Name1": "A", "TID1": "3", "Expression": "01-01"}])",
           R"([{"Name1": "A", "TID1": true, "Expression": "01-01"}])",
           R"([{"Name1": "A", "TID1": null, "Expression": "01-01"}])",
           R"([{"Name1": "A", "TID1": 99999999999999999999, "Expression": "01-01"}])",
           R"([{"Name1": "A", "TID1": 3, "Expression": ""}])",
           R"([{"Name1": "A", "TID1": 3, "Expression": "  "}])",
           R"([{"Name1": "A", "TID1": 3, "Expression": null}])",
           R"([{"Name1": "A", "TID1": 3, "Expression": 7}])",
           R"([{"Name1": "A", "TID1": 3, "Expression": "01-01", "Comment": 7}])",
           R"([{"Name1": "A", "TID1": 3, "Expression": "01-01", "MovedName": {}}])",
           R"([{"Name1": "A", "TID1": 3, "Expression": "01-01", "Unknown": "x"}])",
           R"([{"name1": "A", "TID1": 3, "Expression": "01-01"}])",
           R"([{"Name1": "A", "TID1": 3, "Expression": "01-01", "Name1": "B"}])",
           R"([{"Name1": "A\u0000B", "TID1": 3, "Expression": "01-01"}])",
           R"([{"Name1": "A", "TID1": 3, "Expression": "01-01", "Comment": "\ud800"}])",
       }) {
    EXPECT_EQ(caller().Return("CldIUBook", BookOf(kEuro, Book(caller(), kEuro).Fingerprint(), rules)), 7)
        << rules;
  }
  EXPECT_EQ(Content(), before);
}

TEST_P(ProceduresContract, ABookHasTenThousandRulesAtMost) {
  std::string rules;
  for (int rule = 0; rule < 10000; ++rule) {
    rules += R"(, {"Name1": "Rule )" + std::to_string(rule) + R"(", "TID1": 3, "Expression": "01-01"})";
  }
  rules.front() = '[';
  EXPECT_EQ(StoreBook(kEuro, rules + R"(, {"Name1": "One more", "TID1": 3, "Expression": "01-01"}])"), 7);
  EXPECT_THAT(Book(caller(), kEuro).Heads(), IsEmpty());
  EXPECT_EQ(StoreBook(kEuro, rules + "]"), 0);
  const Book book(caller(), kEuro);
  ASSERT_THAT(book.Rules(), SizeIs(10000));
  EXPECT_EQ(book.Rules().back().at(2), Value("Rule 9999"));
}

}  // namespace
}  // namespace ferrowind::contract
