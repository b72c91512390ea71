// What stays told to the operator, how long, and what is told once only.

#include "host/desktop/operator_news.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_locale.h"

namespace ferrowind::host {
namespace {

using platform::ActionKind;
using platform::ActionStep;
using platform::Failure;
using platform::OperatorAction;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

ActionStep Done() { return {"", 0, {}}; }
ActionStep Returned(std::int32_t value) { return {"", value, {}}; }
ActionStep Failed(const std::string& text) { return {"", -1, Failure(8, text)}; }

class OperatorNewsTest : public ::testing::Test {
 protected:
  OperatorNewsTest() {
    subscriptions_.push_back(news_.OnTrouble([this](const std::string& text) { troubles_.push_back(text); }));
    subscriptions_.push_back(news_.OnNote([this](const std::string& text) { notes_.push_back(text); }));
    subscriptions_.push_back(news_.OnBusy([this](bool is_busy) { busy_.push_back(is_busy); }));
    subscriptions_.push_back(news_.OnAction([this] { ++actions_; }));
  }

  static OperatorAction Action(ActionKind kind, std::vector<std::string> rules = {}) {
    OperatorAction action;
    action.kind = kind;
    action.currency = "EUR";
    action.year = 2028;
    action.rules = std::move(rules);
    return action;
  }
  void Do(ActionKind kind, const std::vector<ActionStep>& writes, const std::vector<ActionStep>& reads,
          const std::vector<std::string>& shown = {}, std::vector<std::string> rules = {}) {
    news_.ActionBegan(Action(kind, std::move(rules)));
    for (const auto& step : writes) news_.WriteEnded(step);
    for (const auto& text : shown) news_.FailureShown(text);
    for (const auto& step : reads) news_.ReadEnded(step);
    news_.ActionEnded();
  }

  headless::HeadlessLocale locale_;
  std::string time_ = "14:05:10";
  OperatorNews news_{locale_, [this] { return time_; }};
  std::vector<std::string> troubles_;
  std::vector<std::string> notes_;
  std::vector<bool> busy_;
  int actions_ = 0;
  std::vector<platform::Subscription> subscriptions_;
};

TEST_F(OperatorNewsTest, TellsOfAChangeWhenAnActionHasEndedThatMadeOne) {
  int changes = 0;
  const auto changed = news_.OnChange([&changes] { ++changes; });
  Do(ActionKind::kRefresh, {}, {Done()});
  Do(ActionKind::kExceptDay, {Returned(5)}, {Done()});
  EXPECT_EQ(changes, 0);
  Do(ActionKind::kAssignRules, {Returned(5), Done(), Done()}, {Done()});
  EXPECT_EQ(changes, 1);
  news_.ActionBegan(Action(ActionKind::kExceptDay));
  news_.WriteEnded(Done());
  EXPECT_EQ(changes, 1);
  news_.ActionEnded();
  EXPECT_EQ(changes, 2);
}

TEST_F(OperatorNewsTest, ARefusedWriteStaysToldWhateverIsReadAfterIt) {
  Do(ActionKind::kExceptDay, {Failed("The database is read-only")}, {Done()});
  EXPECT_EQ(news_.Trouble(), "14:05:10: Except, EUR: refused.\nThe database is read-only");
  Do(ActionKind::kRefresh, {}, {Done(), Done()});
  Do(ActionKind::kShowDays, {}, {Done()});
  EXPECT_THAT(news_.Trouble(), HasSubstr("read-only"));
  EXPECT_EQ(troubles_.size(), 1u);
}

TEST_F(OperatorNewsTest, ARefusedWriteIsForgottenWhenAWriteSucceedsOrItIsDismissed) {
  Do(ActionKind::kExceptDay, {Returned(5)}, {Done()});
  EXPECT_THAT(news_.Trouble(), HasSubstr("does not know the calendar"));
  Do(ActionKind::kExceptDay, {Done()}, {Done()});
  EXPECT_EQ(news_.Trouble(), "");
  Do(ActionKind::kExceptDay, {Returned(5)}, {Done()});
  news_.Dismiss();
  EXPECT_EQ(news_.Trouble(), "");
  EXPECT_EQ(troubles_.size(), 4u);
  news_.Dismiss();
  EXPECT_EQ(troubles_.size(), 4u);
}

TEST_F(OperatorNewsTest, EachRefusedChangeStaysToldTheNewestFirst) {
  Do(ActionKind::kRemoveRules, {Returned(4)}, {}, {}, {"A"});
  time_ = "14:06:00";
  Do(ActionKind::kRemoveRules, {Returned(4)}, {Failed("It is down")}, {}, {"B"});
  EXPECT_EQ(
      news_.Trouble(),
      "14:06:00: Remove \"B\": refused.\nThe database does not know the rule\n"
      "14:05:10: Remove \"A\": refused.\nThe database does not know the rule\n"
      "14:06:00: Remove \"B\": the database did not do what was asked. What is shown may be out of date.\n"
      "It is down");
}

TEST_F(OperatorNewsTest, TheSameRefusalAgainTakesThePlaceOfTheOlderOne) {
  Do(ActionKind::kRemoveRules, {Returned(4)}, {}, {}, {"A"});
  Do(ActionKind::kExceptDay, {Returned(5)}, {});
  time_ = "14:06:00";
  Do(ActionKind::kRemoveRules, {Returned(4)}, {}, {}, {"A"});
  EXPECT_EQ(news_.Trouble(),
            "14:06:00: Remove \"A\": refused.\nThe database does not know the rule\n"
            "14:05:10: Except, EUR: refused.\nThe database does not know the calendar");
}

TEST_F(OperatorNewsTest, AChangeThatIsMadeOrADismissalEndsTheTroubleOfAllRefusedOnes) {
  const auto refuse_two = [this] {
    Do(ActionKind::kRemoveRules, {Returned(4)}, {}, {}, {"A"});
    Do(ActionKind::kRemoveRules, {Returned(4)}, {}, {}, {"B"});
    EXPECT_THAT(news_.Trouble(), HasSubstr("\"A\""));
  };
  refuse_two();
  Do(ActionKind::kExceptDay, {Done()}, {});
  EXPECT_EQ(news_.Trouble(), "");
  refuse_two();
  news_.Dismiss();
  EXPECT_EQ(news_.Trouble(), "");
}

TEST_F(OperatorNewsTest, ARefusalThatIsToldWithAMessageIsToldAnewWhenMoreOfTheActionIsKnown) {
  news_.ActionBegan(Action(ActionKind::kRestoreRules, {"A", "B"}));
  news_.WriteEnded(Returned(4));
  news_.MessageOpens();
  EXPECT_THAT(news_.Trouble(), HasSubstr("1 not tried"));
  news_.MessageClosed();
  news_.WriteEnded(Returned(4));
  news_.ActionEnded();
  EXPECT_THAT(news_.Trouble(), HasSubstr("0 done, 2 refused"));
  EXPECT_THAT(news_.Trouble(), Not(HasSubstr("not tried")));
}

TEST_F(OperatorNewsTest, AnActionThatWasDoneInPartStaysTold) {
  Do(ActionKind::kAssignRules, {Done(), Returned(7)}, {Done()}, {}, {"A", "B"});
  EXPECT_THAT(news_.Trouble(), HasSubstr("1 refused"));
  EXPECT_EQ(news_.Note(), "Assigned 1 of 2 rules to EUR 2028");
}

TEST_F(OperatorNewsTest, AFailedReadIsForgottenWithTheFirstActionThatReadsAll) {
  Do(ActionKind::kRefresh, {}, {Failed("It is down")});
  EXPECT_THAT(news_.Trouble(), HasSubstr("Refresh: the database did not do what was asked."));
  Do(ActionKind::kRefresh, {}, {Failed("It is down"), Done()});
  EXPECT_THAT(news_.Trouble(), HasSubstr("It is down"));
  Do(ActionKind::kShowDays, {}, {Done()});
  EXPECT_EQ(news_.Trouble(), "");
}

TEST_F(OperatorNewsTest, AnActionThatReadsNothingLeavesAFailedReadTold) {
  Do(ActionKind::kRefresh, {}, {Failed("It is down")});
  Do(ActionKind::kShowDays, {}, {});
  EXPECT_THAT(news_.Trouble(), HasSubstr("It is down"));
}

TEST_F(OperatorNewsTest, OneFailureOfAWriteAndOfTheReadsAfterItIsToldOnce) {
  Do(ActionKind::kExceptDay, {Failed("It is down")}, {Failed("It is down")});
  EXPECT_EQ(news_.Trouble(), "14:05:10: Except, EUR: refused.\nIt is down");
  Do(ActionKind::kRefresh, {}, {Failed("Gone"), Failed("Gone")});
  EXPECT_THAT(news_.Trouble(), HasSubstr("is down\n14:05:10: Refresh"));
  EXPECT_THAT(news_.Trouble(), Not(HasSubstr("Gone\nGone")));
}

TEST_F(OperatorNewsTest, AFailureThatTheComponentHasShownIsNotToldAgain) {
  Do(ActionKind::kRemoveRules, {Done(), Failed("It is down")}, {Failed("It is down")}, {"It is down"},
     {"A", "B", "C"});
  EXPECT_EQ(news_.Trouble(), "");
  EXPECT_EQ(news_.Note(), "Removed 1 of 3 rules");
  Do(ActionKind::kRefresh, {}, {Failed("It is down")});
  EXPECT_THAT(news_.Trouble(), HasSubstr("It is down"));
}

TEST_F(OperatorNewsTest, AReasonThatTheComponentsMessageLacksIsTold) {
  Do(ActionKind::kAddRule, {Returned(2)}, {Done()}, {}, {"Sunday"});
  EXPECT_EQ(news_.Trouble(), "");
  Do(ActionKind::kAddRule, {Returned(10)}, {Done()}, {}, {"Sunday"});
  EXPECT_THAT(news_.Trouble(), HasSubstr("A removed rule has that name"));
  Do(ActionKind::kCreateCalendar, {Returned(6)}, {Done()});
  EXPECT_THAT(news_.Trouble(), HasSubstr("The calendar exists already"));
}

TEST_F(OperatorNewsTest, ARefusalThatIsShownLeavesAnEarlierOneTold) {
  Do(ActionKind::kExceptDay, {Returned(5)}, {Done()});
  Do(ActionKind::kRemoveRules, {Failed("It is down")}, {}, {"It is down"}, {"A"});
  EXPECT_THAT(news_.Trouble(), HasSubstr("does not know the calendar"));
}

TEST_F(OperatorNewsTest, ASuccessIsNotedAndARefusalEndsTheNote) {
  news_.ActionBegan(Action(ActionKind::kAssignRules, {"A", "B"}));
  news_.WriteEnded(Done());
  news_.WriteEnded(Done());
  news_.DaysReread(115);
  news_.ActionEnded();
  Do(ActionKind::kRefresh, {}, {Done()});
  EXPECT_EQ(news_.Note(), "Assigned 2 rules to EUR 2028: 115 days set");
  Do(ActionKind::kExceptDay, {Returned(5)}, {Done()});
  EXPECT_EQ(news_.Note(), "");
}

TEST_F(OperatorNewsTest, AQuestionIsNotedUntilItIsAnswered) {
  Do(ActionKind::kCreateCalendar, {Done()}, {});
  news_.QuestionOpens(Action(ActionKind::kRemoveRules, {"Saturday"}));
  EXPECT_EQ(news_.Note(), "To be removed: \"Saturday\"");
  news_.QuestionClosed();
  EXPECT_EQ(news_.Note(), "Created the calendar EUR 2028");
  EXPECT_EQ(notes_.size(), 3u);
}

TEST_F(OperatorNewsTest, AnActionWithinAnotherIsAPartOfIt) {
  news_.ActionBegan(Action(ActionKind::kCreateCalendar));
  news_.WriteEnded(Done());
  Do(ActionKind::kRefresh, {}, {Failed("It is down")});
  EXPECT_EQ(news_.Trouble(), "");
  news_.ActionEnded();
  EXPECT_THAT(news_.Trouble(), HasSubstr("New calendar EUR 2028"));
  EXPECT_EQ(actions_, 1);
}

TEST_F(OperatorNewsTest, IsBusyWhileAnActionRunsAndNoMessageIsOpen) {
  news_.MessageOpens();
  news_.MessageClosed();
  EXPECT_TRUE(busy_.empty());
  news_.ActionBegan(Action(ActionKind::kRemoveRules));
  news_.MessageOpens();
  news_.MessageOpens();
  news_.MessageClosed();
  EXPECT_THAT(busy_, ElementsAre(true, false));
  news_.MessageClosed();
  news_.ActionEnded();
  EXPECT_THAT(busy_, ElementsAre(true, false, true, false));
}

TEST_F(OperatorNewsTest, WhatHasFailedSoFarIsToldWhileTheMessageOfItsConsequenceIsOpen) {
  Do(ActionKind::kExceptDay, {Returned(5)}, {Done()});
  news_.ActionBegan(Action(ActionKind::kOpenCalendars));
  news_.ReadEnded(Failed("It is down"));
  news_.MessageOpens();
  EXPECT_THAT(news_.Trouble(), HasSubstr("Open calendars: the database did not do what was asked."));
  EXPECT_THAT(news_.Trouble(), HasSubstr("does not know the calendar"));
  news_.MessageClosed();
  news_.ActionEnded();
  EXPECT_THAT(news_.Trouble(), HasSubstr("It is down"));
  EXPECT_EQ(troubles_.size(), 2u);
}

TEST_F(OperatorNewsTest, AMessageEndsNoTroubleBeforeItsActionIsOver) {
  Do(ActionKind::kExceptDay, {Returned(5)}, {Failed("It is down")});
  news_.ActionBegan(Action(ActionKind::kRestoreRules, {"A", "B"}));
  news_.WriteEnded(Done());
  news_.ReadEnded(Done());
  news_.MessageOpens();
  EXPECT_EQ(troubles_.size(), 1u);
  news_.MessageClosed();
  news_.ActionEnded();
  EXPECT_EQ(news_.Trouble(), "");
}

TEST_F(OperatorNewsTest, AnEndWithoutABeginningIsNoAction) {
  news_.ActionEnded();
  news_.WriteEnded(Returned(5));
  Do(ActionKind::kRefresh, {}, {Done()});
  EXPECT_EQ(actions_, 1);
  EXPECT_EQ(news_.Trouble(), "");
}

}  // namespace
}  // namespace ferrowind::host
