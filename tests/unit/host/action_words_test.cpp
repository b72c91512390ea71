#include "host/desktop/action_words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_locale.h"

namespace ferrowind::host {
namespace {

using platform::ActionKind;
using platform::ActionStep;
using platform::Date;
using platform::Failure;
using platform::OperatorAction;

class ActionWordsTest : public ::testing::Test {
 protected:
  static OperatorAction Euro2028(ActionKind kind, std::vector<std::string> rules = {}) {
    OperatorAction action;
    action.kind = kind;
    action.currency = "EUR";
    action.year = 2028;
    action.rules = std::move(rules);
    return action;
  }
  static OperatorAction ChristmasException() {
    auto action = Euro2028(ActionKind::kExceptDay);
    action.day = Date(2028, 12, 25);
    return action;
  }
  static ActionStep Done(const std::string& rule = "") { return {rule, 0, {}}; }
  static ActionStep Failed(const std::string& text, const std::string& rule = "") {
    return {rule, -1, Failure(8, text)};
  }
  static ActionRecord Record(OperatorAction action, std::vector<ActionStep> writes,
                             std::optional<std::int32_t> changed_days = {}) {
    return {std::move(action), std::move(writes), {}, changed_days, {}};
  }

  headless::HeadlessLocale locale_;
  ActionWords words_{locale_};
};

TEST_F(ActionWordsTest, ACommandNamesWhatItIsAbout) {
  EXPECT_EQ(words_.Command(Euro2028(ActionKind::kRefresh)), "Refresh");
  EXPECT_EQ(words_.Command(Euro2028(ActionKind::kShowDays)), "Show EUR 2028");
  EXPECT_EQ(words_.Command(Euro2028(ActionKind::kCreateCalendar)), "New calendar EUR 2028");
  EXPECT_EQ(words_.Command(Euro2028(ActionKind::kOpenRules)), "Assign holiday, EUR 2028");
  EXPECT_EQ(words_.Command(Euro2028(ActionKind::kApplyPlan)), "Apply the plan of EUR 2028");
  EXPECT_EQ(words_.Command(Euro2028(ActionKind::kUndo)), "Undo a change of EUR 2028");
  EXPECT_EQ(words_.Command({ActionKind::kStoreBook, "EUR", 0, {}, {}}), "Save the rule book of EUR");
  EXPECT_EQ(words_.Command(ChristmasException()), "Except Monday 25 December 2028, EUR");
  EXPECT_EQ(words_.Command(Euro2028(ActionKind::kAssignRules, {"Saturday"})),
            "Assign \"Saturday\" to EUR 2028");
  EXPECT_EQ(words_.Command(Euro2028(ActionKind::kAssignRules, {"Saturday", "Sunday"})),
            "Assign 2 rules to EUR 2028");
}

TEST_F(ActionWordsTest, ASuccessSaysWhatWasDoneAndCountsTheDays) {
  EXPECT_EQ(words_.Success(Record(ChristmasException(), {Done()}, 1)),
            "Excepted Monday 25 December 2028, EUR");
  EXPECT_EQ(words_.Success(Record(Euro2028(ActionKind::kCreateCalendar), {Done()})),
            "Created the calendar EUR 2028");
  EXPECT_EQ(words_.Success(Record(Euro2028(ActionKind::kApplyPlan), {Done()})),
            "Applied the plan of EUR 2028");
  EXPECT_EQ(words_.Success(Record(Euro2028(ActionKind::kUndo), {Done()})), "Undid a change of EUR 2028");
  EXPECT_EQ(words_.Success(Record({ActionKind::kStoreBook, "EUR", 0, {}, {}}, {Done()})),
            "Saved the rule book of EUR");
  EXPECT_EQ(words_.Success(Record({ActionKind::kApplyPlan, {}, 0, {}, {}}, {Done(), Failed("No"), Done()})),
            "Applied the plans of 2 calendars");
  EXPECT_EQ(words_.Success(Record({ActionKind::kUndo, {}, 0, {}, {}}, {Done(), Done()})),
            "Undid the changes of 2 calendars");
  const auto assign = Euro2028(ActionKind::kAssignRules, {"Saturday", "Sunday"});
  EXPECT_EQ(words_.Success(Record(assign, {Done("Saturday"), Done("Sunday")}, 115)),
            "Assigned 2 rules to EUR 2028: 115 days set");
  EXPECT_EQ(words_.Success(Record(assign, {Done("Saturday"), Done("Sunday")}, 0)),
            "Assigned 2 rules to EUR 2028: no day set");
  EXPECT_EQ(words_.Success(Record(assign, {Done("Saturday"), Done("Sunday")})),
            "Assigned 2 rules to EUR 2028");
  EXPECT_EQ(words_.Success(Record(assign, {Done("Saturday"), Failed("No", "Sunday")}, 1)),
            "Assigned 1 of 2 rules to EUR 2028: 1 day set");
  EXPECT_EQ(words_.Success(Record(Euro2028(ActionKind::kRemoveRules, {"Sunday"}), {Done("Sunday")})),
            "Removed \"Sunday\"");
}

TEST_F(ActionWordsTest, WhatChangedNothingIsNoSuccess) {
  EXPECT_EQ(words_.Success(Record(ChristmasException(), {Failed("No")})), "");
  EXPECT_EQ(words_.Success(Record(Euro2028(ActionKind::kRefresh), {})), "");
}

TEST_F(ActionWordsTest, ARefusalOfOneThingGivesItsReason) {
  EXPECT_EQ(words_.Refusal(Record(ChristmasException(), {Failed("The database x is read-only")})),
            "Except Monday 25 December 2028, EUR: refused.\nThe database x is read-only");
}

TEST_F(ActionWordsTest, ARefusalAmongManyCountsAndNamesTheRefusedByTheirReasons) {
  const auto assign = Euro2028(ActionKind::kAssignRules, {"A", "B", "C", "D"});
  const auto record =
      Record(assign, {Done("A"), Failed("It is locked", "B"), {"C", 4, {}}, Failed("It is locked", "D")}, 52);
  EXPECT_EQ(words_.Refusal(record),
            "Assign 4 rules to EUR 2028: 52 days set, 3 refused.\n"
            "It is locked: \"B\", \"D\"\n"
            "The database does not know the rule: \"C\"");
}

TEST_F(ActionWordsTest, ARefusalSaysWhatWasAssignedWhenTheDaysWereNotReadAgain) {
  const auto assign = Euro2028(ActionKind::kAssignRules, {"A", "B"});
  EXPECT_EQ(words_.Refusal(Record(assign, {Done("A"), Failed("Gone", "B")})),
            "Assign 2 rules to EUR 2028: 1 assigned, 1 refused.\nGone: \"B\"");
}

TEST_F(ActionWordsTest, ARefusalCountsWhatWasNotTriedAfterIt) {
  const auto remove = Euro2028(ActionKind::kRemoveRules, {"A", "", "C", "D"});
  EXPECT_EQ(words_.Refusal(Record(remove, {Done("A"), {"", 4, {}}})),
            "Remove 4 rules: 1 done, 1 refused, 2 not tried.\n"
            "The database does not know the rule: a rule without a name");
}

TEST_F(ActionWordsTest, EveryReturnValueHasAMeaning) {
  for (const auto& [value, meaning] :
       std::vector<std::pair<int, std::string>>{{2, "There is a rule of that name already"},
                                                {10, "A removed rule has that name: it can be restored"},
                                                {3, "The database does not know the currency"},
                                                {4, "The database does not know the rule"},
                                                {5, "The database does not know the calendar"},
                                                {6, "The calendar exists already"},
                                                {7, "A value is missing or out of range"},
                                                {99, "The database refused it, with the number 99"}}) {
    EXPECT_EQ(words_.Reason(ActionKind::kAddRule, {"", value, {}}), meaning);
  }
}

TEST_F(ActionWordsTest, AValueOfANewCalendarThatIsOutOfRangeIsItsYear) {
  EXPECT_EQ(words_.Reason(ActionKind::kCreateCalendar, {"", 7, {}}), "A calendar's year is 1900 to 3000.");
  EXPECT_EQ(words_.Reason(ActionKind::kCreateCalendar, {"", 6, {}}), "The calendar exists already");
}

TEST_F(ActionWordsTest, AReasonIsOneLineWithoutAPassword) {
  EXPECT_EQ(words_.Reason(ActionKind::kRefresh, Failed("it\n\t is  down: postgresql://anna:secret@h/x\n")),
            "it is down: postgresql://anna:***");
}

TEST_F(ActionWordsTest, AFailedReadSaysThatWhatIsShownMayBeOld) {
  EXPECT_EQ(words_.FailedRead(Euro2028(ActionKind::kRefresh), {"It is down", "It is away"}),
            "Refresh: the database did not do what was asked. What is shown may be out of date.\n"
            "It is down\nIt is away");
}

TEST_F(ActionWordsTest, AQuestionNamesEveryRule) {
  EXPECT_EQ(words_.Question(Euro2028(ActionKind::kRemoveRules, {"Saturday", "Sunday"})),
            "To be removed (2): \"Saturday\", \"Sunday\"");
  EXPECT_EQ(words_.Question(Euro2028(ActionKind::kRemoveRules, {"Saturday"})), "To be removed: \"Saturday\"");
  EXPECT_EQ(words_.Question(Euro2028(ActionKind::kRemoveRules)), "");
}

}  // namespace
}  // namespace ferrowind::host
