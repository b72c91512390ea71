// What CldIUCelebrate does.

#include <gmock/gmock.h>

#include "ferrowind/platform/values/failure.h"

#include "tests/contract/database/procedures_contract.h"

namespace ferrowind::contract {
namespace {

using platform::Date;
using platform::Value;
using ::testing::HasSubstr;

Arguments With(Arguments arguments, const Arguments& more) {
  for (const auto& replacement : more) {
    std::erase_if(arguments, [&](const auto& argument) { return argument.first == replacement.first; });
    arguments.push_back(replacement);
  }
  return arguments;
}

Arguments Without(Arguments arguments, const std::string& name) {
  std::erase_if(arguments, [&](const auto& argument) { return argument.first == name; });
  return arguments;
}

const Arguments kWeekdayRule = {{"Name1", "Saturday"}, {"Comment", "Weekend"}, {"TID1", 2}, {"WD", 7}};
const Arguments kDatedRule = {{"Name1", "Labour Day"},
                              {"Comment", "1 May"},
                              {"TID1", 3},
                              {"D1", Date(2026, 5, 1)},
                              {"MY", 5},
                              {"MD", 1}};

TEST_P(ProceduresContract, AWeekdayRuleIsInserted) {
  ASSERT_EQ(caller().Return("CldIUCelebrate", kWeekdayRule), 0);
  EXPECT_EQ(
      Rules().at(1),
      (Row{Value(2), Value("Saturday"), Value("Weekend"), Value(2), {}, {}, {}, Value(std::int16_t{7}), {}}));
}

TEST_P(ProceduresContract, ADatedRuleIsInserted) {
  for (const int type : {3, 4}) {
    ASSERT_EQ(caller().Return("CldIUCelebrate",
                              With(kDatedRule, {{"TID1", type}, {"Name1", "Type " + std::to_string(type)}})),
              0);
    EXPECT_EQ(Rules().back(), (Row{Value(type - 1),
                                   Value("Type " + std::to_string(type)),
                                   Value("1 May"),
                                   Value(type),
                                   Value(Date(2026, 5, 1)),
                                   Value(std::int16_t{5}),
                                   Value(std::int16_t{1}),
                                   {},
                                   {}}));
  }
}

TEST_P(ProceduresContract, ARuleMayDoWithoutAComment) {
  ASSERT_EQ(caller().Return("CldIUCelebrate", Without(kWeekdayRule, "Comment")), 0);
  EXPECT_EQ(Rules().back().at(2), Value());
}

TEST_P(ProceduresContract, ARuleFallsOnAnyDateThatThereIs) {
  int number = 1;
  for (const Date date : {Date(2024, 2, 29), Date(1900, 1, 1), Date(3000, 12, 31), Date(1899, 12, 31)}) {
    ++number;
    EXPECT_EQ(AddDatedRule("Rule " + std::to_string(number), 3, date), number);
    EXPECT_EQ(Rules().back().at(4), Value(date));
  }
}

TEST_P(ProceduresContract, ARuleIsUpdated) {
  ASSERT_EQ(caller().Return("CldIUCelebrate", kWeekdayRule), 0);
  ASSERT_EQ(caller().Return("CldIUCelebrate", kDatedRule), 0);
  ASSERT_EQ(
      caller().Return(
          "CldIUCelebrate",
          With(
              kDatedRule,
              {{"ID2", 3}, {"Name1", "May Day"}, {"Comment", "moved"}, {"D1", Date(2026, 5, 4)}, {"MD", 4}})),
      0);
  ASSERT_EQ(Rules().size(), 3U);
  EXPECT_EQ(Rules().at(1).at(1), Value("Saturday"));
  EXPECT_EQ(Rules().at(2), (Row{Value(3),
                                Value("May Day"),
                                Value("moved"),
                                Value(3),
                                Value(Date(2026, 5, 4)),
                                Value(std::int16_t{5}),
                                Value(std::int16_t{4}),
                                {},
                                {}}));
}

TEST_P(ProceduresContract, AnUpdateKeepsTheRulesOwnNameAndItsRemovalMark) {
  ASSERT_EQ(caller().Return("CldIUCelebrate", kWeekdayRule), 0);
  ASSERT_EQ(caller().Return("CldIUCelebrate", {{"ID2", 2}, {"Del", 2}}), 0);
  EXPECT_EQ(caller().Return("CldIUCelebrate", With(kWeekdayRule, {{"ID2", 2}, {"Name1", " SATURDAY "}})), 0);
  EXPECT_EQ(Rules().at(1).at(1), Value(" SATURDAY "));
  EXPECT_EQ(Rules().at(1).at(8), Value(std::int16_t{2}));
}

TEST_P(ProceduresContract, AnUpdateWithoutACommentClearsIt) {
  ASSERT_EQ(caller().Return("CldIUCelebrate", kWeekdayRule), 0);
  ASSERT_EQ(caller().Return("CldIUCelebrate", With(Without(kWeekdayRule, "Comment"), {{"ID2", 2}})), 0);
  EXPECT_EQ(Rules().at(1).at(2), Value());
}

TEST_P(ProceduresContract, ANameInUseIsRefusedWhateverItsLetterCaseAndOuterBlanks) {
  ASSERT_EQ(caller().Return("CldIUCelebrate", With(kWeekdayRule, {{"Name1", "Größter Tag Ω"}})), 0);
  const auto before = Rules();
  for (const std::string name : {"Größter Tag Ω", "GRÖßTER TAG ω", "  größter tag ω   "}) {
    EXPECT_EQ(caller().Return("CldIUCelebrate", With(kDatedRule, {{"Name1", name}})), 2) << name;
  }
  EXPECT_EQ(caller().Return("CldIUCelebrate", With(kDatedRule, {{"Name1", " working DAY by exception"}})), 2);
  EXPECT_EQ(Rules(), before);
}

TEST_P(ProceduresContract, NamesThatDifferWithinAreDifferent) {
  for (const std::string name : {"A B", "A  B", "AB", "A\tB", "A B.", "Ä B"}) {
    EXPECT_EQ(caller().Return("CldIUCelebrate", With(kWeekdayRule, {{"Name1", name}})), 0) << name;
  }
}

TEST_P(ProceduresContract, AnUpdateToANameInUseIsRefused) {
  ASSERT_EQ(caller().Return("CldIUCelebrate", kWeekdayRule), 0);
  ASSERT_EQ(caller().Return("CldIUCelebrate", kDatedRule), 0);
  const auto before = Rules();
  EXPECT_EQ(caller().Return("CldIUCelebrate", With(kDatedRule, {{"ID2", 3}, {"Name1", "saturday"}})), 2);
  EXPECT_EQ(Rules(), before);
}

TEST_P(ProceduresContract, ARemovedRulesNameIsRefusedWithAValueOfItsOwn) {
  ASSERT_EQ(caller().Return("CldIUCelebrate", kWeekdayRule), 0);
  ASSERT_EQ(caller().Return("CldIUCelebrate", {{"ID2", 2}, {"Del", 2}}), 0);
  EXPECT_EQ(caller().Return("CldIUCelebrate", With(kDatedRule, {{"Name1", "SATURDAY"}})), 10);
  ASSERT_EQ(caller().Return("CldIUCelebrate", {{"ID2", 2}, {"Del", 4}}), 0);
  EXPECT_EQ(caller().Return("CldIUCelebrate", With(kDatedRule, {{"Name1", "SATURDAY"}})), 2);
  EXPECT_EQ(Rules().size(), 2U);
}

TEST_P(ProceduresContract, TheRemovalMarkIsSetAndNothingElse) {
  ASSERT_EQ(caller().Return("CldIUCelebrate", kDatedRule), 0);
  Row expected = Rules().at(1);
  for (const std::int16_t mark : {std::int16_t{2}, std::int16_t{2}, std::int16_t{4}, std::int16_t{4}}) {
    ASSERT_EQ(caller().Return("CldIUCelebrate", {{"ID2", 2}, {"Del", mark}}), 0);
    expected.at(8) = mark;
    EXPECT_EQ(Rules().at(1), expected);
  }
}

TEST_P(ProceduresContract, AnUnknownRuleIsNeitherUpdatedNorRemoved) {
  for (const std::int32_t unknown : {0, -1, 2, 2147483647}) {
    EXPECT_EQ(caller().Return("CldIUCelebrate", {{"ID2", unknown}, {"Del", 2}}), 4) << unknown;
    EXPECT_EQ(caller().Return("CldIUCelebrate", With(kWeekdayRule, {{"ID2", unknown}})), 4) << unknown;
  }
  EXPECT_EQ(Rules().size(), 1U);
}

TEST_P(ProceduresContract, TheBuiltInRuleIsNeitherUpdatedNorRemoved) {
  const auto before = Rules();
  EXPECT_EQ(caller().Return("CldIUCelebrate", {{"ID2", 1}, {"Del", 2}}), 7);
  EXPECT_EQ(caller().Return("CldIUCelebrate", {{"ID2", 1}, {"Del", 4}}), 7);
  EXPECT_EQ(caller().Return("CldIUCelebrate", With(kWeekdayRule, {{"ID2", 1}})), 7);
  EXPECT_EQ(caller().Return("CldIUCelebrate", With(kWeekdayRule, {{"ID2", 1}, {"TID1", 1}})), 7);
  EXPECT_EQ(Rules(), before);
}

TEST_P(ProceduresContract, ARuleKeepsItsType) {
  ASSERT_EQ(caller().Return("CldIUCelebrate", kDatedRule), 0);
  const auto before = Rules();
  EXPECT_EQ(caller().Return("CldIUCelebrate", With(kDatedRule, {{"ID2", 2}, {"TID1", 4}})), 7);
  EXPECT_EQ(caller().Return("CldIUCelebrate", With(kWeekdayRule, {{"ID2", 2}})), 7);
  EXPECT_EQ(Rules(), before);
}

TEST_P(ProceduresContract, ARuleWithAMissingValueIsRefused) {
  EXPECT_EQ(caller().Return("CldIUCelebrate"), 7);
  for (const std::string name : {"Name1", "TID1", "WD"}) {
    EXPECT_EQ(caller().Return("CldIUCelebrate", Without(kWeekdayRule, name)), 7) << name;
  }
  for (const std::string name : {"Name1", "TID1", "D1", "MY", "MD"}) {
    EXPECT_EQ(caller().Return("CldIUCelebrate", Without(kDatedRule, name)), 7) << name;
  }
  EXPECT_EQ(caller().Return("CldIUCelebrate", {{"Del", 2}}), 7);
  EXPECT_EQ(Rules().size(), 1U);
}

TEST_P(ProceduresContract, ARuleWithAValueOutOfRangeIsRefused) {
  for (const auto& wrong : Arguments{{"Name1", ""},
                                     {"Name1", "   "},
                                     {"TID1", 0},
                                     {"TID1", 1},
                                     {"TID1", 5},
                                     {"WD", 0},
                                     {"WD", 8},
                                     {"WD", -1}}) {
    EXPECT_EQ(caller().Return("CldIUCelebrate", With(kWeekdayRule, {wrong})), 7) << wrong.first;
  }
  for (const auto& wrong : Arguments{{"MY", 4},
                                     {"MY", 0},
                                     {"MY", 13},
                                     {"MD", 2},
                                     {"MD", 0},
                                     {"MD", 32},
                                     {"TID1", 2},
                                     {"D1", Date(2026, 5, 2)},
                                     {"WD", 1}}) {
    EXPECT_EQ(caller().Return("CldIUCelebrate", With(kDatedRule, {wrong})), 7) << wrong.first;
  }
  for (const auto& wrong : Arguments{{"D1", Date(2026, 5, 1)}, {"MY", 5}, {"MD", 1}}) {
    EXPECT_EQ(caller().Return("CldIUCelebrate", With(kWeekdayRule, {wrong})), 7) << wrong.first;
  }
  EXPECT_EQ(Rules().size(), 1U);
}

TEST_P(ProceduresContract, ARemovalMarkIsTwoOrFourAndComesWithTheRuleAlone) {
  ASSERT_EQ(caller().Return("CldIUCelebrate", kWeekdayRule), 0);
  const auto before = Rules();
  for (const int mark : {0, 1, 3, 5, -2}) {
    EXPECT_EQ(caller().Return("CldIUCelebrate", {{"ID2", 2}, {"Del", mark}}), 7) << mark;
  }
  for (const auto& extra : Arguments{{"Name1", "New"},
                                     {"Comment", "c"},
                                     {"TID1", 2},
                                     {"WD", 1},
                                     {"D1", Date(2026, 1, 1)},
                                     {"MY", 1},
                                     {"MD", 1}}) {
    EXPECT_EQ(caller().Return("CldIUCelebrate", {{"ID2", 2}, {"Del", 2}, extra}), 7) << extra.first;
  }
  EXPECT_EQ(Rules(), before);
}

TEST_P(ProceduresContract, ARulesTextsAreTextsOnlyWhateverTheyHold) {
  std::int32_t number = 1;
  for (const std::string& text : {std::string("'; DROP TABLE CldHoliday; --"), std::string("\" OR 1=1; --"),
                                  std::string("x' OR Name1 <> '"), std::string("%"), std::string("_"),
                                  std::string("NULL"), std::string("\u795D\u65E5 \U0001F389 \u05E2\u05D1"),
                                  std::string("line\nbreak\ttab"), std::string(200, 'n')}) {
    ASSERT_EQ(caller().Return("CldIUCelebrate", With(kWeekdayRule, {{"Name1", text}, {"Comment", text}})), 0);
    EXPECT_EQ(Rules().size(), static_cast<std::size_t>(++number));
    EXPECT_EQ(Rules().back().at(1), Value(text));
    EXPECT_EQ(Rules().back().at(2), Value(text));
    EXPECT_EQ(caller().Return("CldIUCelebrate", With(kDatedRule, {{"Name1", text}})), 2);
  }
}

TEST_P(ProceduresContract, ANameWithNulIsKeptWholeOrRefused) {
  const std::string name("a\0b", 3);
  int return_value = -1;
  const std::string failure = FailureTextOf([&] {
    return_value = caller().Return("CldIUCelebrate", With(kWeekdayRule, {{"Name1", name}}));
  });
  if (failure.empty()) {
    EXPECT_EQ(return_value, 0);
    EXPECT_EQ(Rules().back().at(1), Value(name));
    EXPECT_EQ(caller().Return("CldIUCelebrate", With(kWeekdayRule, {{"Name1", std::string("a\0c", 3)}})), 0);
    EXPECT_EQ(caller().Return("CldIUCelebrate", With(kWeekdayRule, {{"Name1", "a"}})), 0);
  } else {
    EXPECT_THAT(failure, HasSubstr("@Name1"));
    EXPECT_EQ(Rules().size(), 1U);
  }
}

}  // namespace
}  // namespace ferrowind::contract
