// How long the texts may be that procedures take: characters are counted, alike on every engine.

#include <cstddef>
#include <iterator>
#include <string>

#include <gmock/gmock.h>

#include "ferrowind/platform/values/text_limits.h"

#include "tests/contract/database/procedures_contract.h"

namespace ferrowind::contract {
namespace {

using platform::Date;
using platform::kLongestComment;
using platform::kLongestList;
using platform::kLongestName;
using platform::Value;

/// A text of that many characters, of one to four bytes each.
std::string TextOf(std::size_t characters) {
  static const std::string kLetters[] = {"n", "é", "祝", "\U0001F389"};
  std::string text;
  for (std::size_t i = 0; i < characters; ++i) text += kLetters[i % std::size(kLetters)];
  return text;
}

class Texts {
 public:
  std::string longest_name = TextOf(kLongestName);
  std::string name = longest_name + "x";
  std::string longest_comment = TextOf(kLongestComment);
  std::string comment = longest_comment + "x";
};

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

/// A list of one rule of a book.
std::string BookRule(const std::string& name, const std::string& expression, const std::string& comment,
                     const std::string& moved_name) {
  return R"([{"TID1": 4, "Name1": )" + Quoted(name) + R"(, "Expression": )" + Quoted(expression) +
         R"(, "Comment": )" + Quoted(comment) + R"(, "MovedName": )" + Quoted(moved_name) + "}]";
}

/// A list of one item of a plan, on a day of 2028.
std::string Item(const std::string& name, const std::string& comment, const std::string& day_comment) {
  return R"([{"TID1": 4, "Dates": ["2028-05-01"], "Name1": )" + Quoted(name) + R"(, "Comment": )" +
         Quoted(comment) + R"(, "DayComment": )" + Quoted(day_comment) + "}]";
}

Arguments Rule(const std::string& name, const std::string& comment, const Value& rule = {}) {
  return {{"Name1", name}, {"Comment", comment}, {"TID1", 2}, {"WD", 1}, {"ID2", rule}};
}

Arguments Exception(const Value& comment) {
  return {{"ID1", kEuro}, {"Year1", 2028}, {"TID1", 1}, {"ID2", 1}, {"Day1", 1}, {"Comment", comment}};
}

Arguments Book(const std::string& publisher, const std::string& document, const std::string& rules) {
  return {
      {"ID1", kEuro}, {"Expected", ""}, {"Publisher", publisher}, {"Document", document}, {"Rules", rules}};
}

Arguments Currency(const std::string& name) {
  return {{"CcyID", 998}, {"Ccy", "ZZZ"}, {"CcyType", 0}, {"Name", name}};
}

TEST_P(ProceduresContract, ARuleHasANameAndACommentOfTheLongestLength) {
  const Texts texts;
  ASSERT_EQ(caller().Return("CldIUCelebrate", Rule(texts.longest_name, texts.longest_comment)), 0);
  EXPECT_EQ(Rules().back().at(1), Value(texts.longest_name));
  EXPECT_EQ(Rules().back().at(2), Value(texts.longest_comment));
}

TEST_P(ProceduresContract, ARulesTextThatIsTooLongIsRefused) {
  const Texts texts;
  const auto rule = AddWeekdayRule("Old", 1);
  const auto before = Content();
  EXPECT_EQ(caller().Return("CldIUCelebrate", Rule(texts.name, "")), 7);
  EXPECT_EQ(caller().Return("CldIUCelebrate", Rule("New", texts.comment)), 7);
  EXPECT_EQ(caller().Return("CldIUCelebrate", Rule(texts.name, "", rule)), 7);
  EXPECT_EQ(caller().Return("CldIUCelebrate", Rule("New", texts.comment, rule)), 7);
  EXPECT_EQ(Content(), before);
}

TEST_P(ProceduresContract, ADaysCommentThatIsTooLongIsRefused) {
  const Texts texts;
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  const auto entry = LastEntry();
  EXPECT_EQ(caller().Return("CldIUMain", Exception(texts.comment)), 7);
  EXPECT_EQ(LastEntry(), entry);
  ASSERT_EQ(caller().Return("CldIUMain", Exception(texts.longest_comment)), 0);
  EXPECT_EQ(DayOn(Date(2028, 1, 1)).at(4), Value(texts.longest_comment));
}

TEST_P(ProceduresContract, ATextIsNotShorterForACharacterNulInIt) {
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  int return_value = -1;
  const std::string failure = FailureTextOf([&] {
    return_value =
        caller().Return("CldIUMain", Exception(std::string(1, '\0') + std::string(kLongestComment, 'x')));
  });
  if (failure.empty()) {
    EXPECT_EQ(return_value, 7);
  } else {
    EXPECT_THAT(failure, ::testing::HasSubstr("@Comment"));
  }
}

TEST_P(ProceduresContract, ABookHasTextsOfTheLongestLength) {
  const Texts texts;
  const auto rules =
      BookRule(texts.longest_name, texts.longest_comment, texts.longest_comment, texts.longest_name);
  ASSERT_EQ(caller().Return("CldIUBook", Book(texts.longest_name, texts.longest_comment, rules)), 0);
  const auto outcome = caller().Call("CldGetBook", {{"ID1", kEuro}});
  EXPECT_EQ(RowsOf(*outcome.record_sets.at(1)).at(0),
            (Row{kEuro, 1, texts.longest_name, 4, texts.longest_comment, texts.longest_comment,
                 texts.longest_name}));
}

TEST_P(ProceduresContract, ABooksTextThatIsTooLongIsRefused) {
  const Texts texts;
  const auto before = Content();
  const auto rules = BookRule("Name", "12-25", "", "");
  for (const Arguments& arguments : {Book(texts.name, "D", rules), Book("P", texts.comment, rules),
                                     Book("P", "D", BookRule(texts.name, "12-25", "", "")),
                                     Book("P", "D", BookRule("Name", texts.comment, "", "")),
                                     Book("P", "D", BookRule("Name", "12-25", texts.comment, "")),
                                     Book("P", "D", BookRule("Name", "12-25", "", texts.name))}) {
    EXPECT_EQ(caller().Return("CldIUBook", arguments), 7);
  }
  EXPECT_EQ(Content(), before);
}

TEST_P(ProceduresContract, TheRulesOfABookHaveAMegabyteAtMost) {
  const std::string rules = BookRule("Nàme", "12-25", "", "");
  const std::string most = rules + std::string(kLongestList - rules.size(), ' ');
  EXPECT_EQ(caller().Return("CldIUBook", Book("P", "D", most + " ")), 7);
  EXPECT_EQ(caller().Return("CldIUBook", Book("P", "D", most)), 0);
}

TEST_P(ProceduresContract, APlanHasTextsOfTheLongestLength) {
  const Texts texts;
  ASSERT_EQ(Apply(kEuro, 2028, Item(texts.longest_name, texts.longest_comment, texts.longest_comment)), 0);
  const Row day = DayOn(Date(2028, 5, 1));
  EXPECT_EQ(day.at(2), Value(texts.longest_name));
  EXPECT_EQ(day.at(3), Value(texts.longest_comment));
  EXPECT_EQ(day.at(4), Value(texts.longest_comment));
}

TEST_P(ProceduresContract, APlansTextThatIsTooLongIsRefused) {
  const Texts texts;
  const auto before = Content();
  EXPECT_EQ(Apply(kEuro, 2028, Item(texts.name, "", "")), 7);
  EXPECT_EQ(Apply(kEuro, 2028, Item("Name", texts.comment, "")), 7);
  EXPECT_EQ(Apply(kEuro, 2028, Item("Name", "", texts.comment)), 7);
  EXPECT_EQ(Content(), before);
}

TEST_P(ProceduresContract, ACurrencysNameThatIsTooLongIsRefused) {
  const Texts texts;
  EXPECT_EQ(caller().Return("CldIUCurrency", Currency(texts.name)), 7);
  EXPECT_EQ(caller().Return("CldIUCurrency", Currency(texts.longest_name)), 0);
}

}  // namespace
}  // namespace ferrowind::contract
