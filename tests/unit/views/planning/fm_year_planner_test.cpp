#include "ferrowind/views/planning/fm_year_planner.h"

#include <cstdio>
#include <fstream>
#include <functional>

#include <gmock/gmock.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_drop_down_list.h"
#include "ferrowind/adapters/headless/headless_form.h"
#include "ferrowind/adapters/headless/headless_label.h"
#include "ferrowind/adapters/headless/headless_status_bar.h"
#include "ferrowind/adapters/headless/headless_table.h"
#include "ferrowind/adapters/headless/headless_text_box.h"
#include "ferrowind/adapters/headless/headless_tool_bar.h"
#include "ferrowind/adapters/headless/headless_year_view.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/planning/entry_changes.h"
#include "ferrowind/planning/history_list.h"
#include "ferrowind/views/planning/planning_windows.h"
#include "ferrowind/views/planning/year_content.h"

#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/planning/memory_planning_world.h"

namespace ferrowind {
namespace {

using headless::HeadlessYearView;
using planning::CalendarKey;
using planning::kDollar;
using planning::kEuro;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using testing::RunInFreshThread;
using ::testing::SizeIs;

constexpr const char* kEuroKey = "978";

/// EUR and USD 2028 with two days closed in a row.
class PlannerWorld : public planning::MemoryPlanningWorld {
 public:
  PlannerWorld() {
    static_cast<void>(SharedServicesObject());
    const std::int32_t fair = AddPoint("Fair", "2028-04-14");
    for (const std::int32_t currency : {kEuro, kDollar}) {
      CreateCalendar(currency, 2028);
      Assign(currency, "2028-04-14", 4, fair);
      Assign(currency, "2028-04-15", 4, fair);
    }
    changed_ = windows.OnChanged([this](const auto& calendars) { told_changes.push_back(calendars); });
  }

  void Open(const std::vector<std::int32_t>& currencies = {kEuro}, int year = 2028) {
    RunHandler(platform, [&] { windows.OpenYearPlanner(currencies, year); });
    form_ = std::static_pointer_cast<headless::HeadlessForm>(
        world.toolkit.FormNamed("fmYearPlanner").shared_from_this());
  }
  [[nodiscard]] headless::HeadlessForm& Form() const { return *form_; }
  [[nodiscard]] HeadlessYearView& View() const { return Form().Part<HeadlessYearView>("yvYear"); }
  [[nodiscard]] headless::HeadlessToolBar& Tools() const {
    return Form().Part<headless::HeadlessToolBar>("tbYear");
  }
  [[nodiscard]] std::string Status() const {
    return Form().Part<headless::HeadlessStatusBar>("sbYear").PanelText(1);
  }
  [[nodiscard]] std::string Summary() const {
    return Form().Part<headless::HeadlessLabel>("lblSummary").Text();
  }
  void Type(const std::string& box, const std::string& text) const {
    Form().Part<headless::HeadlessTextBox>(box).ReplaceText(text);
  }
  void ClickShow() const { Form().Part<headless::HeadlessButton>("cmdShow").Click(); }
  void AnswerReason(const std::string& reason, const std::string& button = "cmdExcept") {
    world.toolkit.ScriptModal("fmExceptMess", [=](headless::HeadlessForm& form) {
      if (!reason.empty()) form.Part<headless::HeadlessTextBox>("txtMessage").TypeText(reason);
      form.Part<headless::HeadlessButton>(button).Click();
    });
  }
  /// Lets the operator ask for the selected days to be closed, and answer as `answer` does.
  void CloseDaysAs(const std::function<void(headless::HeadlessForm&)>& answer) {
    world.toolkit.ScriptModal("fmCloseDays", answer);
    Tools().ClickTool("ID_CloseDays");
  }
  [[nodiscard]] std::vector<std::string> Reports() const {
    std::vector<std::string> reports = world.log.StartingWith("services.ReportError(");
    for (const auto& message : world.log.StartingWith("services.ShowMessage(")) reports.push_back(message);
    return reports;
  }
  /// The days of that calendar that are exceptions.
  [[nodiscard]] static std::vector<std::string> ExceptionsOf(const std::string& code, std::int32_t currency) {
    std::vector<std::string> exceptions;
    for (const auto& day : DaysOf(code, currency, 2028)) {
      if (day.find("exception") != std::string::npos) exceptions.push_back(day.substr(0, 10));
    }
    return exceptions;
  }

  almanac::DateTables tables;
  PlanningWindows windows{platform, tables};
  std::vector<PlanningWindows::Changed> told_changes;

 private:
  std::shared_ptr<headless::HeadlessForm> form_;
  platform::Subscription changed_;
};

std::string LabelOf(headless::HeadlessForm& form, const std::string& name) {
  return form.Part<headless::HeadlessLabel>(name).Text();
}

headless::HeadlessTable& Days(headless::HeadlessForm& dialog) {
  return dialog.Part<headless::HeadlessTable>("tblDays");
}

TEST(YearPlannerWindow, ShowsTheYearOfACurrency) {
  RunInFreshThread([] {
    PlannerWorld world;
    world.Open();
    EXPECT_EQ(world.Form().Caption(), "Year planner - EUR 2028");
    EXPECT_EQ(world.Summary(), "364 working days, 0 weekend days, 2 holidays");
    EXPECT_EQ(world.View().Content().year, 2028);
    EXPECT_EQ(world.Form().FocusedControl(), "yvYear");
    EXPECT_EQ(world.Status(), "1 day selected, 0 of them closed");
  });
}

TEST(YearPlannerWindow, OpensTheHistoryOfADayFromItsMenu) {
  RunInFreshThread([] {
    PlannerWorld world;
    world.Open({kEuro, kDollar});
    world.View().ClickDay({kJointCalendar, 105});
    EXPECT_FALSE(world.Tools().ToolEnabled("ID_DayHistory")) << "of which calendar";
    world.View().ClickDay({kEuroKey, 105});
    EXPECT_TRUE(world.Tools().ToolEnabled("ID_DayHistory"));
    world.Tools().ChooseFromNextPopup("ID_DayHistory");
    world.View().PressMenuKey();
    const auto& choices =
        world.world.toolkit.FormNamed("fmHistory").Part<headless::HeadlessDropDownList>("cmbCalendar");
    EXPECT_EQ(choices.ItemText(choices.Chosen()), "EUR, Friday 14 April 2028");
  });
}

TEST(YearPlannerWindow, OpensOnceForTheSameCurrenciesAndYear) {
  RunInFreshThread([] {
    PlannerWorld world;
    world.Open();
    world.Open();
    EXPECT_EQ(world.world.toolkit.CountOfForms("fmYearPlanner"), 1U);
    world.Open({kEuro, kDollar});
    EXPECT_EQ(world.world.toolkit.CountOfForms("fmYearPlanner"), 2U);
  });
}

TEST(YearPlannerWindow, ExceptsASelectedRangeWithOneReason) {
  RunInFreshThread([] {
    PlannerWorld world;
    world.Open();
    world.View().ClickDay({kEuroKey, 104});
    EXPECT_FALSE(world.Tools().ToolEnabled("ID_ExceptDays")) << "it is open";
    world.View().ExtendToDay({kEuroKey, 107});
    EXPECT_EQ(world.Status(), "4 days selected, 2 of them closed");
    const std::size_t calls = world.world.database->History().size();
    world.AnswerReason("ready early");
    world.Tools().ClickTool("ID_ExceptDays");
    EXPECT_THAT(PlannerWorld::ExceptionsOf("EUR", kEuro), ElementsAre("2028-04-14", "2028-04-15"));
    EXPECT_EQ(world.world.database->History().size(), calls + 1);
    EXPECT_EQ(world.View().TextOf({kEuroKey, 105}), "2028-04-14, Working day by exception: ready early");
    EXPECT_EQ(world.Status(), "2 days are working days by exception now");
    EXPECT_THAT(world.told_changes, ElementsAre(ElementsAre(CalendarKey(kEuro, 2028))));
    EXPECT_THAT(world.Reports(), IsEmpty());
  });
}

TEST(YearPlannerWindow, ExceptsDaysWithoutAReasonFromTheDayMenu) {
  RunInFreshThread([] {
    PlannerWorld world;
    world.Open();
    world.View().ClickDay({kEuroKey, 104});
    EXPECT_FALSE(world.Tools().ToolEnabled("ID_ExceptDaysPlain")) << "it is open";
    world.View().ExtendToDay({kEuroKey, 107});
    const std::size_t calls = world.world.database->History().size();
    world.Tools().ChooseFromNextPopup("ID_ExceptDaysPlain");
    world.View().PressMenuKey();
    EXPECT_THAT(PlannerWorld::ExceptionsOf("EUR", kEuro), ElementsAre("2028-04-14", "2028-04-15"));
    EXPECT_EQ(world.world.database->History().size(), calls + 1);
    EXPECT_EQ(world.View().TextOf({kEuroKey, 105}), "2028-04-14, Working day by exception");
    EXPECT_EQ(world.Status(), "2 days are working days by exception now");
    EXPECT_THAT(world.told_changes, ElementsAre(ElementsAre(CalendarKey(kEuro, 2028))));
    EXPECT_EQ(world.world.toolkit.CountOfForms("fmExceptMess"), 0U) << "nothing is asked";
  });
}

TEST(YearPlannerWindow, ExceptsNothingWithoutAReasonByTheKeyWhereAllIsOpen) {
  RunInFreshThread([] {
    PlannerWorld world;
    world.Open();
    world.View().ClickDay({kEuroKey, 104});
    const std::size_t calls = world.world.database->History().size();
    world.Form().PressShortcut("Ctrl+Shift+E");
    EXPECT_EQ(world.world.database->History().size(), calls);
    world.View().ClickDay({kEuroKey, 105});
    world.Form().PressShortcut("Ctrl+Shift+E");
    EXPECT_THAT(PlannerWorld::ExceptionsOf("EUR", kEuro), ElementsAre("2028-04-14"));
  });
}

TEST(YearPlannerWindow, LeavesItsExceptionsInTheHistoryWithTheirDaysAndReason) {
  RunInFreshThread([] {
    PlannerWorld world;
    world.Open();
    world.View().ClickDay({kEuroKey, 104});
    world.View().ExtendToDay({kEuroKey, 107});
    world.AnswerReason("ready early");
    world.Tools().ClickTool("ID_ExceptDays");
    planning::HistoryList history;
    history.Show({kEuro, 2028}, false);
    const auto& newest = history.Lines().front();
    EXPECT_EQ(newest.told.Sentence(), "Excepted 2 days of EUR 2028: ready early");
    std::vector<std::string> days;
    for (const auto& change : planning::LoadChanges(newest.entry, history.Currencies()).changes) {
      days.push_back(change.what + ": " + change.behind);
    }
    EXPECT_THAT(days, ElementsAre("Friday 14 April 2028: Working day by exception: ready early",
                                  "Saturday 15 April 2028: Working day by exception: ready early"));
  });
}

TEST(YearPlannerWindow, ExceptsDaysOfSeveralCalendarsTogether) {
  RunInFreshThread([] {
    PlannerWorld world;
    world.Open({kEuro, kDollar});
    world.View().ClickDay({"joint", 105});
    world.AnswerReason("all work");
    world.Tools().ClickTool("ID_ExceptDays");
    EXPECT_THAT(PlannerWorld::ExceptionsOf("EUR", kEuro), ElementsAre("2028-04-14"));
    EXPECT_THAT(PlannerWorld::ExceptionsOf("USD", kDollar), ElementsAre("2028-04-14"));
    EXPECT_THAT(world.told_changes,
                ElementsAre(ElementsAre(CalendarKey(kEuro, 2028), CalendarKey(kDollar, 2028))));
  });
}

TEST(YearPlannerWindow, ExceptsNothingWhenTheReasonIsCancelled) {
  RunInFreshThread([] {
    PlannerWorld world;
    world.Open();
    world.View().ClickDay({kEuroKey, 105});
    world.AnswerReason("", "cmdCancel");
    world.Tools().ClickTool("ID_ExceptDays");
    EXPECT_THAT(PlannerWorld::ExceptionsOf("EUR", kEuro), IsEmpty());
    EXPECT_THAT(world.told_changes, IsEmpty());
  });
}

TEST(YearPlannerWindow, LeavesACalendarAloneThatSomebodyElseHasChanged) {
  RunInFreshThread([] {
    PlannerWorld world;
    world.Open({kEuro, kDollar});
    PlannerWorld::Except(kEuro, "2028-04-15", "another hand");
    world.View().ClickDay({"joint", 105});
    world.AnswerReason("all work");
    world.Tools().ClickTool("ID_ExceptDays");
    EXPECT_THAT(PlannerWorld::ExceptionsOf("EUR", kEuro), ElementsAre("2028-04-15"));
    EXPECT_THAT(PlannerWorld::ExceptionsOf("USD", kDollar), ElementsAre("2028-04-14"));
    EXPECT_THAT(world.Reports(), Contains(HasSubstr("EUR 2028 was changed by somebody else")));
    EXPECT_EQ(world.View().TextOf({kEuroKey, 106}),
              "EUR, 2028-04-15, Working day by exception: another hand");
  });
}

TEST(YearPlannerWindow, ClosesADayOfSeveralCurrenciesAsAHolidayThatIsNew) {
  RunInFreshThread([] {
    PlannerWorld world;
    world.Open({kEuro, kDollar});
    world.View().ClickDay({"joint", 126});
    EXPECT_FALSE(world.Tools().ToolEnabled("ID_ExceptDays"));
    world.CloseDaysAs([](headless::HeadlessForm& dialog) {
      EXPECT_EQ(dialog.FocusedControl(), "txtName");
      EXPECT_FALSE(dialog.Part<headless::HeadlessButton>("cmdCloseDays").Enabled());
      EXPECT_THAT(LabelOf(dialog, "lblMeaning"), HasSubstr("Type what the holiday is called"));
      dialog.Part<headless::HeadlessTextBox>("txtName").TypeText("Mourning");
      EXPECT_EQ(LabelOf(dialog, "lblMeaning"), "A new holiday point, on the days that are closed here.");
      EXPECT_EQ(LabelOf(dialog, "lblSummary"), "2 days will be closed, and entered in no rule book.");
      EXPECT_THAT(Days(dialog).RowKeys(), ElementsAre("978/126", "978/book", "840/126", "840/book"));
      EXPECT_THAT(Days(dialog).Texts("840/126"),
                  ElementsAre("USD 2028", "Friday 5 May 2028", "working day", "is closed"));
      dialog.Part<headless::HeadlessButton>("cmdCloseDays").Click();
    });
    EXPECT_THAT(PlannerWorld::DaysOf("EUR", kEuro, 2028), Contains("2028-05-05 Mourning"));
    EXPECT_THAT(PlannerWorld::DaysOf("USD", kDollar, 2028), Contains("2028-05-05 Mourning"));
    EXPECT_EQ(world.Status(), "2 days are closed now");
    EXPECT_EQ(world.View().TextOf({kEuroKey, 126}), "EUR, 2028-05-05, Mourning, closed");
    EXPECT_THAT(world.told_changes, ElementsAre(IsEmpty())) << "rules are others, too";
    EXPECT_THAT(world.Reports(), IsEmpty());
  });
}

TEST(YearPlannerWindow, ClosesDaysAsAKnownHolidayAndLeavesOutWhatIsUnchecked) {
  RunInFreshThread([] {
    PlannerWorld world;
    world.Open({kEuro, kDollar});
    world.View().ClickDay({"joint", 126});
    world.CloseDaysAs([](headless::HeadlessForm& dialog) {
      dialog.Part<headless::HeadlessDropDownList>("cmbKnown").ChooseByOperator("Fair");
      EXPECT_EQ(dialog.Part<headless::HeadlessTextBox>("txtName").Text(), "Fair");
      EXPECT_EQ(LabelOf(dialog, "lblMeaning"), "The holiday point Fair.");
      Days(dialog).ClickBox("978/126");
      EXPECT_THAT(Days(dialog).RowKeys(), ElementsAre("978/126", "840/126", "840/book"));
      EXPECT_EQ(Days(dialog).Cell("978/126", "Becomes").text, "stays open");
      Days(dialog).ClickBox("840/126");
      EXPECT_FALSE(dialog.Part<headless::HeadlessButton>("cmdCloseDays").Enabled()) << "nothing is left";
      Days(dialog).ClickBox("840/126");
      dialog.Part<headless::HeadlessButton>("cmdCloseDays").Click();
    });
    EXPECT_THAT(PlannerWorld::DaysOf("EUR", kEuro, 2028), Not(Contains("2028-05-05 Fair")));
    EXPECT_THAT(PlannerWorld::DaysOf("USD", kDollar, 2028), Contains("2028-05-05 Fair"));
  });
}

TEST(YearPlannerWindow, TellsThatAnnouncedHolidaysAreInTheRuleBooks) {
  RunInFreshThread([] {
    PlannerWorld world;
    PlannerWorld::GiveBook(kEuro, "EUR", "");
    PlannerWorld::GiveBook(kDollar, "USD", "");
    world.Open({kEuro, kDollar});
    world.View().ClickDay({"joint", 126});
    world.CloseDaysAs([](headless::HeadlessForm& dialog) {
      dialog.Part<headless::HeadlessTextBox>("txtName").TypeText("Mourning");
      EXPECT_EQ(LabelOf(dialog, "lblSummary"), "2 days will be closed and entered in 2 rule books.");
      dialog.Part<headless::HeadlessButton>("cmdCloseDays").Click();
    });
    EXPECT_EQ(world.Status(), "2 days are closed now and entered in 2 rule books");
  });
}

/// Closes 5 May 2028 in the calendars of both currencies, and in their books.
void CloseTheFifthOfMay(PlannerWorld& world) {
  PlannerWorld::GiveBook(kEuro, "EUR", "");
  PlannerWorld::GiveBook(kDollar, "USD", "");
  world.Open({kEuro, kDollar});
  world.View().ClickDay({"joint", 126});
  world.CloseDaysAs([](headless::HeadlessForm& dialog) {
    dialog.Part<headless::HeadlessTextBox>("txtName").TypeText("Mourning");
    dialog.Part<headless::HeadlessButton>("cmdCloseDays").Click();
  });
}

std::size_t RulesInBook(std::int32_t currency, const std::string& code) {
  return planning::LoadBook(currency, code, {})->book->rules.size();
}

TEST(YearPlannerWindow, UndoesWhatWasClosedInAllCalendarsAndBooksInOneStep) {
  RunInFreshThread([] {
    PlannerWorld world;
    CloseTheFifthOfMay(world);
    ASSERT_EQ(RulesInBook(kEuro, "EUR"), 2U);
    EXPECT_TRUE(world.Tools().ToolEnabled("ID_Undo"));
    world.Form().PressShortcut("Ctrl+Z");
    EXPECT_THAT(PlannerWorld::DaysOf("EUR", kEuro, 2028), SizeIs(2));
    EXPECT_THAT(PlannerWorld::DaysOf("USD", kDollar, 2028), SizeIs(2));
    EXPECT_EQ(RulesInBook(kEuro, "EUR"), 1U);
    EXPECT_EQ(RulesInBook(kDollar, "USD"), 1U);
    EXPECT_EQ(world.Status(), "4 changes are undone");
    EXPECT_FALSE(world.Tools().ToolEnabled("ID_Undo"));
    EXPECT_THAT(world.Reports(), IsEmpty());
  });
}

TEST(YearPlannerWindow, UndoesWhatAnotherPlannerThatIsClosedHasChanged) {
  RunInFreshThread([] {
    PlannerWorld world;
    CloseTheFifthOfMay(world);
    EXPECT_TRUE(world.Form().CloseByOperator());
    world.Open({kEuro, kDollar});
    EXPECT_TRUE(world.Tools().ToolEnabled("ID_Undo"));
    world.Tools().ClickTool("ID_Undo");
    EXPECT_THAT(PlannerWorld::DaysOf("EUR", kEuro, 2028), SizeIs(2));
    EXPECT_EQ(RulesInBook(kDollar, "USD"), 1U);
    EXPECT_FALSE(world.Tools().ToolEnabled("ID_Undo"));
  });
}

TEST(YearPlannerWindow, OffersNoUndoOnceAnotherWindowHasUndoneIt) {
  RunInFreshThread([] {
    PlannerWorld world;
    CloseTheFifthOfMay(world);
    const auto history = planning::LoadHistory({}, std::nullopt, 4);
    for (const auto& entry : history.entries) {
      EXPECT_EQ(planning::UndoEntry(entry).kind, planning::UndoOutcome::Kind::kDone);
    }
    EXPECT_TRUE(world.Tools().ToolEnabled("ID_Undo")) << "by another program";
    world.Tools().ClickTool("ID_RefreshYear");
    EXPECT_FALSE(world.Tools().ToolEnabled("ID_Undo"));
  });
}

TEST(YearPlannerWindow, UndoesOneStepAfterTheOtherTheNewestFirst) {
  RunInFreshThread([] {
    PlannerWorld world;
    CloseTheFifthOfMay(world);
    world.View().ClickDay({kEuroKey, 105});
    world.Form().PressShortcut("Ctrl+Shift+E");
    ASSERT_THAT(PlannerWorld::ExceptionsOf("EUR", kEuro), ElementsAre("2028-04-14"));
    world.Tools().ClickTool("ID_Undo");
    EXPECT_THAT(PlannerWorld::ExceptionsOf("EUR", kEuro), IsEmpty());
    EXPECT_EQ(RulesInBook(kEuro, "EUR"), 2U);
    world.Tools().ClickTool("ID_Undo");
    EXPECT_THAT(PlannerWorld::DaysOf("USD", kDollar, 2028), SizeIs(2));
    EXPECT_EQ(RulesInBook(kEuro, "EUR"), 1U);
    EXPECT_FALSE(world.Tools().ToolEnabled("ID_Undo"));
    EXPECT_THAT(world.Reports(), IsEmpty());
  });
}

TEST(YearPlannerWindow, UndoesTheRestWhereSomebodyElseHasChangedTheDaySince) {
  RunInFreshThread([] {
    PlannerWorld world;
    CloseTheFifthOfMay(world);
    world.world.database->SetUser("anna");
    PlannerWorld::Except(kDollar, "2028-05-05", "Open after all");
    world.Tools().ClickTool("ID_Undo");
    EXPECT_THAT(PlannerWorld::DaysOf("EUR", kEuro, 2028), SizeIs(2));
    EXPECT_THAT(PlannerWorld::ExceptionsOf("USD", kDollar), ElementsAre("2028-05-05"));
    EXPECT_EQ(world.Status(), "3 changes are undone");
    EXPECT_THAT(world.Reports(), ElementsAre(HasSubstr("anna")));
    EXPECT_FALSE(world.Tools().ToolEnabled("ID_Undo"));
  });
}

TEST(YearPlannerWindow, UndoesNothingThatTheUserHasChangedElsewhereWhileTheReasonWasAskedFor) {
  RunInFreshThread([] {
    PlannerWorld world;
    world.Open();
    world.View().ClickDay({kEuroKey, 105});
    world.world.toolkit.ScriptModal("fmExceptMess", [](headless::HeadlessForm& dialog) {
      PlannerWorld::GiveBook(kEuro, "EUR", "");
      dialog.Part<headless::HeadlessTextBox>("txtMessage").TypeText("ready early");
      dialog.Part<headless::HeadlessButton>("cmdExcept").Click();
    });
    world.Tools().ClickTool("ID_ExceptDays");
    ASSERT_THAT(PlannerWorld::ExceptionsOf("EUR", kEuro), ElementsAre("2028-04-14"));
    world.Tools().ClickTool("ID_Undo");
    EXPECT_THAT(PlannerWorld::ExceptionsOf("EUR", kEuro), IsEmpty());
    EXPECT_EQ(world.Status(), "1 change is undone");
    const auto stored = planning::LoadBook(kEuro, "EUR", {});
    EXPECT_TRUE(stored && stored->book) << "entered by another program of the same user";
  });
}

TEST(YearPlannerWindow, UndoesNothingBeforeAnythingWasChangedHere) {
  RunInFreshThread([] {
    PlannerWorld world;
    world.Open();
    EXPECT_FALSE(world.Tools().ToolEnabled("ID_Undo"));
    world.Form().PressShortcut("Ctrl+Z");
    EXPECT_THAT(PlannerWorld::DaysOf("EUR", kEuro, 2028), SizeIs(2));
  });
}

TEST(YearPlannerWindow, ClosesNothingWhenTheQuestionIsCancelled) {
  RunInFreshThread([] {
    PlannerWorld world;
    world.Open();
    world.View().ClickDay({kEuroKey, 126});
    world.CloseDaysAs([](headless::HeadlessForm& dialog) {
      dialog.Part<headless::HeadlessTextBox>("txtName").TypeText("Mourning");
      dialog.Part<headless::HeadlessButton>("cmdCancel").Click();
    });
    EXPECT_THAT(PlannerWorld::DaysOf("EUR", kEuro, 2028), Not(Contains(HasSubstr("Mourning"))));
    EXPECT_THAT(world.told_changes, IsEmpty());
  });
}

TEST(YearPlannerWindow, OffersToCloseDaysOnlyWhereOneIsOpen) {
  RunInFreshThread([] {
    PlannerWorld world;
    world.Open();
    const auto is_offered = [&] { return world.Tools().ToolEnabled("ID_CloseDays"); };
    world.View().ClickDay({kEuroKey, 105});
    EXPECT_FALSE(is_offered()) << "it is closed";
    world.View().ExtendToDay({kEuroKey, 104});
    EXPECT_TRUE(is_offered());
    world.Tools().ClickTool("ID_YearAfter");
    EXPECT_FALSE(is_offered()) << "there is no such calendar";
  });
}

TEST(YearPlannerWindow, ClosesNoDayOfACalendarThatSomebodyElseHasChanged) {
  RunInFreshThread([] {
    PlannerWorld world;
    world.Open({kEuro, kDollar});
    PlannerWorld::Except(kEuro, "2028-04-15", "another hand");
    world.View().ClickDay({"joint", 126});
    world.CloseDaysAs([](headless::HeadlessForm& dialog) {
      dialog.Part<headless::HeadlessTextBox>("txtName").TypeText("Mourning");
      dialog.Part<headless::HeadlessButton>("cmdCloseDays").Click();
    });
    EXPECT_THAT(PlannerWorld::DaysOf("EUR", kEuro, 2028), Not(Contains(HasSubstr("Mourning"))));
    EXPECT_THAT(PlannerWorld::DaysOf("USD", kDollar, 2028), Contains("2028-05-05 Mourning"));
    EXPECT_THAT(world.Reports(), Contains(HasSubstr("EUR 2028 was changed by somebody else")));
    EXPECT_THAT(world.View().TextOf({kEuroKey, 106}), HasSubstr("another hand"));
    EXPECT_EQ(world.Status(), "1 day is closed now");
  });
}

TEST(YearPlannerWindow, ShowsTheDayMenuByMouseMenuKeyAndEnter) {
  RunInFreshThread([] {
    PlannerWorld world;
    world.Open();
    world.View().RightClickDay({kEuroKey, 105});
    world.View().PressMenuKey();
    world.View().ActivateDay();
    EXPECT_EQ(world.world.log.CountOf("tbYear.ShowPopupMenu(\"ID_YearDayMenu\")"), 3U);
  });
}

TEST(YearPlannerWindow, GoesFromYearToYearUpToTheLast) {
  RunInFreshThread([] {
    PlannerWorld world;
    world.Open();
    world.Tools().ClickTool("ID_YearAfter");
    EXPECT_EQ(world.Form().Caption(), "Year planner - EUR 2029");
    EXPECT_EQ(world.Summary(), "There is no such calendar");
    world.Tools().ClickTool("ID_YearBefore");
    EXPECT_EQ(world.Form().Caption(), "Year planner - EUR 2028");
    world.Type("txtYear", "3000");
    world.ClickShow();
    EXPECT_FALSE(world.Tools().ToolEnabled("ID_YearAfter"));
    EXPECT_TRUE(world.Tools().ToolEnabled("ID_YearBefore"));
  });
}

TEST(YearPlannerWindow, ShowsTheCurrenciesAndTheYearThatAreTyped) {
  RunInFreshThread([] {
    PlannerWorld world;
    world.Open();
    world.Type("txtCurrencies", "all");
    world.ClickShow();
    EXPECT_THAT(world.View().Content().calendars, SizeIs(3));
    world.Type("txtYear", "28");
    world.ClickShow();
    EXPECT_THAT(world.Summary(), HasSubstr("\"28\" is no year"));
    EXPECT_EQ(world.Form().FocusedControl(), "txtYear");
    EXPECT_EQ(world.View().Content().year, 2028);
    world.Type("txtYear", "2028");
    world.Type("txtCurrencies", "EUR XQQ");
    world.ClickShow();
    EXPECT_EQ(world.Summary(), "The database has no currency XQQ.");
    EXPECT_EQ(world.Form().FocusedControl(), "txtCurrencies");
    EXPECT_THAT(world.Reports(), IsEmpty()) << "nothing has failed";
    world.Type("txtCurrencies", "EUR");
    world.ClickShow();
    EXPECT_THAT(world.Summary(), HasSubstr("working days"));
  });
}

TEST(YearPlannerWindow, TakesTheCurrencyWhoseCodeMeansAllForNothingElse) {
  RunInFreshThread([] {
    PlannerWorld planner;
    planner.world.database->Tables().currencies.push_back({8, "ALL", 0, "Lek"});
    planner.Open({8});
    EXPECT_EQ(planner.Form().Caption(), "Year planner - ALL (Lek) 2028");
    planner.Type("txtCurrencies", "EUR 8");
    planner.ClickShow();
    EXPECT_THAT(planner.Summary(), HasSubstr("no calendar of ALL (Lek)"));
    planner.Type("txtCurrencies", "008");
    EXPECT_EQ(planner.Form().Part<headless::HeadlessTextBox>("txtCurrencies").Text(), "008");
    planner.ClickShow();
    EXPECT_EQ(planner.Form().Caption(), "Year planner - ALL (Lek) 2028");
    planner.Type("txtCurrencies", "all");
    planner.ClickShow();
    EXPECT_EQ(planner.Form().Caption(), "Year planner - USD, EUR 2028");
  });
}

TEST(YearPlannerWindow, FollowsChangesOfItsCalendarsByOtherWindows) {
  RunInFreshThread([] {
    PlannerWorld world;
    world.Open();
    PlannerWorld::Except(kEuro, "2028-04-14", "elsewhere");
    const auto is_seen = [&] {
      return world.View().TextOf({kEuroKey, 105}).find("elsewhere") != std::string::npos;
    };
    world.windows.TellChanged({{kDollar, 2028}, {kEuro, 2027}});
    EXPECT_FALSE(is_seen());
    world.windows.TellChanged({{kEuro, 2028}});
    EXPECT_TRUE(is_seen());
    PlannerWorld::Except(kEuro, "2028-04-15", "later");
    world.windows.TellChanged({});
    EXPECT_THAT(world.View().TextOf({kEuroKey, 106}), HasSubstr("later"));
  });
}

TEST(YearPlannerWindow, SavesAndPrintsWhatItShows) {
  RunInFreshThread([] {
    PlannerWorld world;
    world.Open();
    const std::string path = std::string(std::tmpnam(nullptr)) + ".pdf";
    world.world.toolkit.AnswerNextFile(path);
    world.Tools().ClickTool("ID_SaveYearPdf");
    std::ifstream file(path);
    std::string heading;
    std::getline(file, heading);
    EXPECT_EQ(heading, "EUR 2028");
    EXPECT_EQ(world.Status(), "Saved as " + path);
    std::remove(path.c_str());
    world.world.toolkit.AnswerNextFile(std::nullopt);
    world.Tools().ClickTool("ID_SaveYearPicture");
    EXPECT_EQ(world.world.log.StartingWith("yvYear.SavePages(").size(), 1U) << "no file was chosen";
    world.Tools().ClickTool("ID_PrintYear");
    EXPECT_TRUE(world.world.log.Contains("yvYear.PrintPages(\"EUR 2028\")"));
  });
}

TEST(YearPlannerWindow, TellsThatAFileCannotBeWritten) {
  RunInFreshThread([] {
    PlannerWorld world;
    world.Open();
    world.world.toolkit.AnswerNextFile("/nowhere/at/all.png");
    world.Tools().ClickTool("ID_SaveYearPicture");
    EXPECT_THAT(world.Reports(), ElementsAre(HasSubstr("/nowhere/at/all.png")));
  });
}

TEST(YearPlannerWindow, KeepsItsPlaceAndIsGoneOnceClosed) {
  RunInFreshThread([] {
    PlannerWorld world;
    world.Open();
    world.world.log.Clear();
    EXPECT_TRUE(world.Form().CloseByOperator());
    EXPECT_THAT(world.world.log.Containing("Window Year Planner"), SizeIs(4));
    world.windows.TellChanged({});
    world.Open();
    EXPECT_EQ(world.world.toolkit.CountOfForms("fmYearPlanner"), 2U);
  });
}

/// Fails each call that `work` makes in turn. The window must stay usable and close.
void FailEachCallOf(
    const std::function<void(PlannerWorld&)>& work, int least_calls,
    const std::function<void(PlannerWorld&)>& arrange = [](PlannerWorld& world) {
      world.View().ClickDay({"joint", 105});
    }) {
  int call = 1;
  for (bool has_fired = true; has_fired; ++call) {
    RunInFreshThread([&] {
      PlannerWorld world;
      world.Open({kEuro, kDollar});
      arrange(world);
      world.world.faults.FailAtCall(call);
      EXPECT_NO_THROW(work(world));
      has_fired = world.world.faults.HasFired();
      SCOPED_TRACE("call " + std::to_string(call) + ", " + world.world.faults.FailedCall());
      world.world.faults.Disarm();
      ASSERT_TRUE(world.Form().IsShown());
      world.Tools().ClickTool("ID_RefreshYear");
      EXPECT_THAT(world.View().Content().calendars, SizeIs(3));
      EXPECT_TRUE(world.Form().CloseByOperator());
    });
  }
  EXPECT_GT(call, least_calls) << "nothing was called";
}

TEST(YearPlannerFaults, AtAnyCallOfExceptingDaysLeaveTheWindowUsable) {
  FailEachCallOf(
      [](PlannerWorld& world) {
        world.world.toolkit.ScriptModal("fmExceptMess", [](headless::HeadlessForm& form) {
          form.Part<headless::HeadlessButton>("cmdExcept").Click();
        });
        world.Tools().ClickTool("ID_ExceptDays");
      },
      20);
}

TEST(YearPlannerFaults, AtAnyCallOfClosingDaysLeaveTheWindowUsable) {
  FailEachCallOf(
      [](PlannerWorld& world) {
        world.CloseDaysAs([](headless::HeadlessForm& dialog) {
          dialog.Part<headless::HeadlessTextBox>("txtName").ReplaceText("Mourning");
          auto& close_days = dialog.Part<headless::HeadlessButton>("cmdCloseDays");
          if (!close_days.Enabled()) return dialog.Part<headless::HeadlessButton>("cmdCancel").Click();
          close_days.Click();
        });
      },
      40,
      [](PlannerWorld& world) {
        PlannerWorld::GiveBook(kEuro, "EUR", "");
        world.View().ClickDay({kEuroKey, 126});
      });
}

TEST(YearPlannerFaults, AtAnyCallOfUndoingLeaveTheWindowUsable) {
  FailEachCallOf([](PlannerWorld& world) { world.Tools().ClickTool("ID_Undo"); }, 20,
                 [](PlannerWorld& world) { CloseTheFifthOfMay(world); });
}

TEST(YearPlannerFaults, AtAnyCallOfShowingAnotherYearLeaveTheWindowUsable) {
  FailEachCallOf([](PlannerWorld& world) { world.Tools().ClickTool("ID_YearAfter"); }, 5);
}

TEST(YearPlannerFaults, AtAnyCallOfOpeningGiveAWindowOrAReport) {
  int call = 1;
  for (bool has_fired = true; has_fired; ++call) {
    RunInFreshThread([&] {
      PlannerWorld world;
      world.world.faults.FailAtCall(call);
      RunHandler(world.platform, [&] { world.windows.OpenYearPlanner({kEuro, kDollar}, 2028); });
      has_fired = world.world.faults.HasFired();
      SCOPED_TRACE("call " + std::to_string(call) + ", " + world.world.faults.FailedCall());
      world.world.faults.Disarm();
      world.Open({kEuro, kDollar});
      EXPECT_THAT(world.View().Content().calendars, SizeIs(3));
      EXPECT_TRUE(world.Form().CloseByOperator());
    });
  }
  EXPECT_GT(call, 10) << "nothing was called";
}

}  // namespace
}  // namespace ferrowind
