#include "ferrowind/views/planning/fm_year_plan.h"

#include <gmock/gmock.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_drop_down_list.h"
#include "ferrowind/adapters/headless/headless_form.h"
#include "ferrowind/adapters/headless/headless_label.h"
#include "ferrowind/adapters/headless/headless_table.h"
#include "ferrowind/adapters/headless/headless_tool_bar.h"

#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/planning/memory_planning_world.h"

namespace ferrowind {
namespace {

using headless::HeadlessButton;
using headless::HeadlessTable;
using planning::CalendarKey;
using planning::kDollar;
using planning::kEuro;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::RunInFreshThread;
using ::testing::SizeIs;
using Texts = std::vector<std::string>;

constexpr const char* kGoodFriday = "978/2028/105";
constexpr const char* kChristmas = "978/2028/360";

/// Books of EUR and USD with Good Friday and Christmas Day, and a calendar EUR 2028 without any.
class PlanWorld : public planning::MemoryPlanningWorld {
 public:
  PlanWorld() {
    static_cast<void>(SharedServicesObject());
    for (const auto& [id, code] : {std::pair(kEuro, "EUR"), std::pair(kDollar, "USD")}) {
      GiveBook(id, code,
               "point | Good Friday | easter-2 | Friday before Easter Sunday\n"
               "celebration | Christmas Day | 12-25 | 25 December\n");
    }
    CreateCalendar(kEuro, 2028);
    changed_ = windows.OnChanged([this](const auto& calendars) { told_changes.push_back(calendars); });
  }

  void Open(const std::vector<CalendarKey>& calendars = {{kEuro, 2028}}) {
    windows.OpenYearPlan(calendars);
    // Kept, so that a test can look at it after it was closed.
    form_ = std::static_pointer_cast<headless::HeadlessForm>(
        world.toolkit.FormNamed("fmYearPlan").shared_from_this());
  }

  [[nodiscard]] headless::HeadlessForm& Form() const { return *form_; }
  [[nodiscard]] HeadlessTable& Lines() const { return Form().Part<HeadlessTable>("tblPlan"); }
  [[nodiscard]] HeadlessTable& Outcome() const { return Form().Part<HeadlessTable>("tblOutcome"); }
  [[nodiscard]] HeadlessButton& Button(const std::string& name) const {
    return Form().Part<HeadlessButton>(name);
  }
  [[nodiscard]] std::string Summary() const {
    return Form().Part<headless::HeadlessLabel>("lblSummary").Text();
  }
  void ClickTool(const std::string& id) const {
    Form().Part<headless::HeadlessToolBar>("tbPlan").ClickTool(id);
  }
  [[nodiscard]] Texts OutcomeTexts() const {
    Texts texts;
    for (const std::string& row : Outcome().RowKeys()) texts.push_back(Outcome().Texts(row).front());
    return texts;
  }

  almanac::DateTables tables;
  /// Brings words when the test gives some.
  platform::Platform spoken = platform;
  PlanningWindows windows{spoken, tables};
  std::vector<PlanningWindows::Changed> told_changes;

 private:
  std::shared_ptr<headless::HeadlessForm> form_;
  platform::Subscription changed_;
};

TEST(YearPlanWindow, TellsOfEachDayWhatStandsThereWhatShouldAndWhy) {
  RunInFreshThread([] {
    PlanWorld world;
    world.Open();
    EXPECT_EQ(world.Form().Caption(), "Plan of EUR 2028");
    EXPECT_EQ(world.Summary(), "EUR 2028: 2 days.");
    EXPECT_THAT(world.Lines().RowKeys(), ElementsAre(kGoodFriday, kChristmas));
    EXPECT_THAT(world.Lines().Texts(kGoodFriday),
                ElementsAre("14 April 2028", "Friday", "working day", "Good Friday", "add",
                            "Easter Sunday 16 April 2028, two days before"));
    EXPECT_EQ(world.Lines().Cell(kGoodFriday, "Action").mark, platform::CellMark::kAdded);
    EXPECT_TRUE(world.Lines().Checked(kGoodFriday));
  });
}

TEST(YearPlanWindow, HasConflictsFirstAndExceptionsUnchecked) {
  RunInFreshThread([] {
    PlanWorld world;
    PlanWorld::Except(kEuro, "2028-12-25", "Stock-taking");
    world.Open();
    EXPECT_THAT(world.Lines().RowKeys(), ElementsAre(kChristmas, kGoodFriday));
    EXPECT_FALSE(world.Lines().Checked(kChristmas));
    EXPECT_EQ(world.Lines().Cell(kChristmas, "Why").tone, platform::CellTone::kNormal) << "to be seen";
    EXPECT_EQ(world.Lines().Cell(kChristmas, "Action").mark, platform::CellMark::kException);
    EXPECT_EQ(world.Lines().Cell(kChristmas, "Why").text, "25 December; now open by exception: Stock-taking");
    EXPECT_EQ(world.Summary(), "EUR 2028: 1 day; unchanged: 1 working day by exception.");
  });
}

TEST(YearPlanWindow, TellsWithoutABoxWhatCannotBeDone) {
  RunInFreshThread([] {
    PlanWorld world;
    (void)PlanWorld::AddPoint("Christmas Day", "2028-12-24");
    world.Open({{kEuro, 2028}, {826, 2028}});
    const HeadlessTable& lines = world.Lines();
    EXPECT_THAT(lines.RowKeys(), ElementsAre("826/2028/not-planned", kChristmas, "978/2028", kGoodFriday));
    EXPECT_THAT(lines.Texts("826/2028/not-planned").back(), HasSubstr("GBP has no book"));
    EXPECT_EQ(lines.Cell("826/2028/not-planned", "Should").mark, platform::CellMark::kError);
    EXPECT_EQ(lines.Row(kChristmas).checked, std::nullopt);
    EXPECT_THAT(lines.Cell(kChristmas, "Why").text, HasSubstr("\"Christmas Day\" is a holiday point"));
    EXPECT_EQ(lines.Cell(kChristmas, "Should").mark, platform::CellMark::kError);
  });
}

TEST(YearPlanWindow, SaysInFullWhatTheCurrentLineSays) {
  RunInFreshThread([] {
    PlanWorld world;
    world.Open({{kEuro, 2028}, {kDollar, 2028}});
    const auto& sentence = world.Form().Part<headless::HeadlessLabel>("lblLine");
    EXPECT_EQ(sentence.Text(), "EUR 2028: 2 days.");
    world.Lines().ClickRow(kGoodFriday);
    EXPECT_EQ(sentence.Text(),
              "EUR 2028, Friday 14 April 2028: Easter Sunday 16 April 2028, two days before.");
    world.Button("cmdApply").Click();
    EXPECT_EQ(sentence.Text(), "USD 2028: as planned.");
  });
}

TEST(YearPlanWindow, HasTheFocusInTheLinesAndOnWhatWasDone) {
  RunInFreshThread([] {
    PlanWorld world;
    world.Open({{kEuro, 2028}, {kDollar, 2028}});
    EXPECT_EQ(world.Form().FocusedControl(), "tblPlan");
    world.Button("cmdApply").Click();
    EXPECT_EQ(world.Form().FocusedControl(), "tblOutcome");
  });
}

TEST(YearPlanWindow, AppliesTheCheckedDaysAndTellsWhatWasDone) {
  RunInFreshThread([] {
    PlanWorld world;
    world.Open();
    world.Lines().ClickBox(kGoodFriday);
    EXPECT_EQ(world.Summary(), "EUR 2028: 1 day; unchanged: 1 day that is left out.");
    EXPECT_EQ(world.Lines().Cell(kGoodFriday, "Why").tone, platform::CellTone::kQuiet);
    EXPECT_FALSE(world.Outcome().Visible());
    world.Button("cmdApply").Click();
    EXPECT_THAT(PlanWorld::DaysOf("EUR", kEuro, 2028), ElementsAre("2028-12-25 Christmas Day"));
    EXPECT_TRUE(world.Outcome().Visible());
    EXPECT_THAT(world.OutcomeTexts(),
                ElementsAre("EUR 2028 is as planned now but for 1 day that is left out. 1 day was changed."));
    EXPECT_THAT(world.Lines().RowKeys(), ElementsAre(kGoodFriday));
    EXPECT_FALSE(world.Lines().Checked(kGoodFriday));
    EXPECT_FALSE(world.Button("cmdApply").Enabled()) << "there is nothing left to do";
    EXPECT_THAT(world.told_changes, ElementsAre(ElementsAre(CalendarKey(kEuro, 2028))));
  });
}

TEST(YearPlanWindow, TakesSeveralSelectedDaysOutTogether) {
  RunInFreshThread([] {
    PlanWorld world;
    world.Open();
    world.Lines().ClickRow(kGoodFriday);
    world.Lines().ExtendToRow(kChristmas);
    world.Lines().PressSpace();
    EXPECT_EQ(world.Summary(), "EUR 2028 is as planned but for 2 days that are left out.");
    EXPECT_FALSE(world.Button("cmdApply").Enabled());
    world.Lines().PressSpace();
    EXPECT_EQ(world.Summary(), "EUR 2028: 2 days.");
  });
}

TEST(YearPlanWindow, OfTheCurrencyWhoseCodeMeansAllNamesItInItsCaption) {
  RunInFreshThread([] {
    PlanWorld world;
    world.world.database->Tables().currencies.push_back({8, "ALL", 0, "Lek"});
    world.Open({{8, 2028}});
    EXPECT_EQ(world.Form().Caption(), "Plan of ALL (Lek) 2028");
  });
}

TEST(YearPlanWindow, OfSeveralCalendarsHasShortDatesWithTheirWeekdaysAndRoomForTheReason) {
  RunInFreshThread([] {
    PlanWorld world;
    world.Open({{kEuro, 2028}, {kDollar, 2028}});
    EXPECT_THAT(world.Lines().Texts(kGoodFriday),
                ElementsAre("EUR 2028", "2028-04-14 Fri", "working day", "Good Friday",
                            "Easter Sunday 16 April 2028, two days before"));
    EXPECT_EQ(world.Lines().Cell(kGoodFriday, "Should").mark, platform::CellMark::kAdded);
    EXPECT_EQ(world.Lines().Cell(kGoodFriday, "Should").description, "add");
    auto& filter = world.Form().Part<headless::HeadlessDropDownList>("cmbCalendar");
    filter.Choose(1);
    EXPECT_THAT(world.Lines().Texts(kGoodFriday),
                ElementsAre("2028-04-14 Fri", "working day", "Good Friday",
                            "Easter Sunday 16 April 2028, two days before"));
    EXPECT_THAT(world.Lines().Texts("978/2028"), ElementsAre("EUR 2028", "", "", "2 days"));
    filter.Choose(0);
    EXPECT_EQ(world.Lines().Texts(kGoodFriday).front(), "EUR 2028");
  });
}

TEST(YearPlanWindow, TakesAWholeCalendarOutByItsLine) {
  RunInFreshThread([] {
    PlanWorld world;
    world.Open({{kEuro, 2028}, {kDollar, 2028}});
    EXPECT_EQ(world.Form().Caption(), "Plans of 2 calendars");
    EXPECT_THAT(world.Lines().RowKeys(),
                ElementsAre("978/2028", kGoodFriday, kChristmas, "840/2028", "840/2028/105", "840/2028/360"));
    EXPECT_THAT(world.Lines().Texts("840/2028"),
                ElementsAre("USD 2028", "", "", "", "a new calendar, 2 days"));
    world.Lines().ClickBox("840/2028");
    EXPECT_FALSE(world.Lines().Checked("840/2028/105"));
    EXPECT_EQ(world.Lines().Texts("840/2028").back(), "no calendar is made");
    world.Lines().ClickBox("840/2028/105");
    EXPECT_TRUE(world.Lines().Checked("840/2028")) << "a day of it is taken";
    world.Lines().ClickBox("840/2028");
    world.Button("cmdApply").Click();
    EXPECT_THAT(planning::LoadRules().calendars, ElementsAre(CalendarKey(kEuro, 2028)));
    world.Lines().ClickBox("840/2028");
    EXPECT_TRUE(world.Lines().Checked("840/2028/360"));
  });
}

TEST(YearPlanWindow, ShowsOneOfSeveralCalendarsWhenAskedAndAppliesAll) {
  RunInFreshThread([] {
    PlanWorld world;
    world.Open({{kEuro, 2028}, {kDollar, 2028}});
    auto& filter = world.Form().Part<headless::HeadlessDropDownList>("cmbCalendar");
    EXPECT_EQ(filter.ItemText(0), "All calendars");
    EXPECT_EQ(filter.ItemText(2), "USD 2028");
    filter.Choose(2);
    EXPECT_THAT(world.Lines().RowKeys(), ElementsAre("840/2028", "840/2028/105", "840/2028/360"));
    EXPECT_EQ(world.Summary(), "2 calendars: 4 days. Only USD 2028 is on show.");
    world.Button("cmdApply").Click();
    EXPECT_THAT(world.OutcomeTexts(), ElementsAre("EUR 2028 is as planned now. 2 days were changed.",
                                                  "USD 2028 is made. 2 days were changed."));
    filter.Choose(0);
    EXPECT_EQ(world.Summary(), "2 calendars are as planned.");
  });
}

TEST(YearPlanWindow, ShowsTheDaysThatStayWhenAsked) {
  RunInFreshThread([] {
    PlanWorld world;
    world.Open();
    world.Button("cmdApply").Click();
    EXPECT_THAT(world.Lines().RowKeys(), IsEmpty());
    EXPECT_EQ(world.Lines().EmptyText(), "Every day is as planned.");
    world.ClickTool("ID_AllDays");
    EXPECT_THAT(world.Lines().RowKeys(), ElementsAre(kGoodFriday, kChristmas));
    EXPECT_EQ(world.Lines().Texts(kChristmas)[4], "keep");
    world.ClickTool("ID_AllDays");
    EXPECT_THAT(world.Lines().RowKeys(), IsEmpty());
  });
}

TEST(YearPlanWindow, TellsThatAPlanBecameStaleAndShowsTheNewOneWithTheTakeOuts) {
  RunInFreshThread([] {
    PlanWorld world;
    world.Open();
    world.Lines().ClickBox(kGoodFriday);
    PlanWorld::Except(kEuro, "2028-12-25", "Stock-taking");
    world.Button("cmdApply").Click();
    EXPECT_THAT(world.OutcomeTexts(), ElementsAre(HasSubstr("EUR 2028 was changed meanwhile")));
    EXPECT_EQ(world.Outcome().Cell("0", "Outcome").mark, platform::CellMark::kWarning);
    EXPECT_EQ(world.world.toolkit.BeepCount(), 1);
    EXPECT_THAT(world.Lines().RowKeys(), ElementsAre(kChristmas, kGoodFriday));
    EXPECT_FALSE(world.Lines().Checked(kGoodFriday));
    EXPECT_THAT(world.told_changes, IsEmpty());
  });
}

TEST(YearPlanWindow, OffersToUndoWhatItHasApplied) {
  RunInFreshThread([] {
    PlanWorld world;
    world.Open();
    EXPECT_FALSE(world.Button("cmdUndo").Visible());
    world.Button("cmdApply").Click();
    ASSERT_TRUE(world.Button("cmdUndo").Visible());
    world.Button("cmdUndo").Click();
    EXPECT_THAT(PlanWorld::DaysOf("EUR", kEuro, 2028), IsEmpty());
    EXPECT_THAT(world.OutcomeTexts(), ElementsAre("EUR 2028 is as it was before."));
    EXPECT_FALSE(world.Button("cmdUndo").Visible());
    EXPECT_EQ(world.Summary(), "EUR 2028: 2 days.");
    EXPECT_THAT(world.told_changes, SizeIs(2));
  });
}

/// A language in which each text is the English one in brackets.
class BracketedWords : public platform::Words {
 public:
  [[nodiscard]] std::optional<std::string> Translate(const std::string& text,
                                                     std::optional<std::int64_t> number) const override {
    std::string translated = "[" + text + "]";
    if (const auto place = translated.find("%n"); number && place != std::string::npos) {
      translated.replace(place, 2, std::to_string(*number));
    }
    return translated;
  }
};

TEST(YearPlanWindow, SaysAllInTheOperatorsLanguage) {
  RunInFreshThread([] {
    const BracketedWords words;
    PlanWorld world;
    world.spoken.words = &words;
    AttachPlatform(world.spoken);
    PlanWorld::Except(kEuro, "2028-12-25", "Stock-taking");
    world.Open({{kEuro, 2028}, {kDollar, 2028}});
    Texts texts = {world.Form().Caption(),
                   world.Summary(),
                   world.Lines().EmptyText(),
                   world.Outcome().Columns().front().caption,
                   world.Form().Part<headless::HeadlessLabel>("lblLine").Text(),
                   world.Form().Part<headless::HeadlessLabel>("lblCalendar").Text(),
                   world.Form().Part<headless::HeadlessDropDownList>("cmbCalendar").ItemText(0),
                   world.Lines().Cell("978/2028", "Why").text,
                   world.Lines().Cell(kGoodFriday, "Now").text,
                   world.Lines().Cell(kGoodFriday, "Should").description,
                   world.Lines().Cell(kChristmas, "Why").text};
    for (const char* button : {"cmdUndo", "cmdApply", "cmdClose"})
      texts.push_back(world.Button(button).Caption());
    for (const auto& column : world.Lines().Columns()) texts.push_back(column.caption);
    for (const char* tool : {"ID_Refresh", "ID_AllDays"}) {
      texts.push_back(world.Form().Part<headless::HeadlessToolBar>("tbPlan").ToolDescription(tool));
    }
    world.Button("cmdApply").Click();
    texts.push_back(world.OutcomeTexts().front());
    for (const std::string& text : texts) EXPECT_EQ(text.front(), '[') << text;
  });
}

TEST(YearPlanWindow, HasKeysForUndoingAndClosing) {
  RunInFreshThread([] {
    PlanWorld world;
    world.Open();
    auto& tools = world.Form().Part<headless::HeadlessToolBar>("tbPlan");
    EXPECT_FALSE(tools.ToolEnabled("ID_UndoPlan"));
    world.Button("cmdApply").Click();
    EXPECT_TRUE(tools.PressShortcut("Ctrl+Z"));
    EXPECT_THAT(PlanWorld::DaysOf("EUR", kEuro, 2028), IsEmpty());
    EXPECT_TRUE(tools.PressShortcut("Ctrl+W"));
    EXPECT_TRUE(world.Form().HasUnloaded());
  });
}

TEST(YearPlanWindow, KeepsTellingOfAFailureUntilTheNextCall) {
  RunInFreshThread([] {
    PlanWorld world;
    world.Open({{kEuro, 2028}, {kDollar, 2028}});
    world.world.faults.FailAtCall(1);
    world.Button("cmdApply").Click();
    world.world.faults.Disarm();
    EXPECT_THAT(world.OutcomeTexts(),
                ElementsAre(HasSubstr("Applying the plan of EUR 2028: "), "USD 2028 was not tried."));
    EXPECT_EQ(world.Outcome().Cell("0", "Outcome").mark, platform::CellMark::kError);
    world.ClickTool("ID_AllDays");
    world.Lines().ClickBox(kGoodFriday);
    EXPECT_THAT(world.OutcomeTexts(), SizeIs(2));
    world.Button("cmdApply").Click();
    EXPECT_THAT(world.OutcomeTexts(),
                ElementsAre("EUR 2028 is as planned now but for 1 day that is left out. 1 day was changed.",
                            "USD 2028 is made. 2 days were changed."));
  });
}

TEST(YearPlanWindow, CallsACalendarByItsCurrencyAsSoonAsThatCanBeRead) {
  RunInFreshThread([] {
    PlanWorld world;
    world.world.faults.FailAtCall(1);
    world.Open();
    world.world.faults.Disarm();
    EXPECT_EQ(world.Form().Caption(), "Plan of 978 2028");
    world.ClickTool("ID_Refresh");
    EXPECT_EQ(world.Form().Caption(), "Plan of EUR 2028");
  });
}

TEST(YearPlanWindow, TellsWhatWentWrongFirst) {
  RunInFreshThread([] {
    PlanWorld world;
    world.Open({{kEuro, 2028}, {kDollar, 2028}});
    PlanWorld::CreateCalendar(kDollar, 2028);
    world.Button("cmdApply").Click();
    EXPECT_THAT(world.OutcomeTexts(), ElementsAre(HasSubstr("USD 2028 was changed meanwhile"),
                                                  "EUR 2028 is as planned now. 2 days were changed."));
  });
}

TEST(YearPlanWindow, PlansAnewWhenAskedAndWhenAnotherWindowHasChangedOneOfItsCalendars) {
  RunInFreshThread([] {
    PlanWorld world;
    world.Open();
    PlanWorld::Except(kEuro, "2028-12-25", "Stock-taking");
    world.windows.TellChanged({{kDollar, 2028}});
    EXPECT_EQ(world.Summary(), "EUR 2028: 2 days.") << "another calendar";
    world.windows.TellChanged({{kEuro, 2028}});
    EXPECT_EQ(world.Summary(), "EUR 2028: 1 day; unchanged: 1 working day by exception.");
    PlanWorld::Except(kEuro, "2028-04-14", "Stock-taking");
    world.ClickTool("ID_Refresh");
    EXPECT_EQ(world.Summary(), "EUR 2028 is as planned but for 2 working days by exception.");
    PlanWorld::GiveBook(kEuro, "EUR", "point | Fair | 2028-03-01 |\n");
    world.windows.TellChanged({});
    EXPECT_EQ(world.Summary(), "EUR 2028: 1 day.") << "any calendar may have changed";
  });
}

TEST(YearPlanWindow, IsOpenOnceForTheSameCalendarsAndClosesByEscape) {
  RunInFreshThread([] {
    PlanWorld world;
    world.Open();
    world.windows.OpenYearPlan({{kEuro, 2028}});
    EXPECT_EQ(world.world.toolkit.CountOfForms("fmYearPlan"), 1U);
    world.windows.OpenYearPlan({{kDollar, 2028}});
    EXPECT_EQ(world.world.toolkit.CountOfForms("fmYearPlan"), 2U);
    world.Form().PressEscape();
    EXPECT_TRUE(world.Form().HasUnloaded());
    world.windows.OpenYearPlan({{kEuro, 2028}});
    EXPECT_EQ(world.world.toolkit.CountOfForms("fmYearPlan"), 3U);
  });
}

TEST(YearPlanWindow, ComesBackWhereItWasClosed) {
  RunInFreshThread([] {
    PlanWorld world;
    world.Open();
    world.Form().ResizeByOperator(9000, 7000);
    world.Form().SetLeft(480);
    world.Button("cmdClose").Click();
    world.Open();
    EXPECT_EQ(world.Form().Width(), 9000);
    EXPECT_EQ(world.Form().Left(), 480);
  });
}

/// Four calendars of EUR, of which a dialog tells how far they are.
class ManyPlansWorld : public PlanWorld {
 public:
  ManyPlansWorld() { Open({{kEuro, 2028}, {kEuro, 2029}, {kEuro, 2030}, {kEuro, 2031}}); }

  /// What the dialog says at each step up to the last of `steps`; it is stopped then, unless it has closed.
  Texts StepsShown(std::size_t steps, const std::string& button) {
    Texts shown;
    world.toolkit.ScriptModal("fmProgress", [&](headless::HeadlessForm& dialog) {
      while (dialog.IsShown() && shown.size() < steps) {
        shown.push_back(dialog.Part<headless::HeadlessLabel>("lblStep").Text());
        world.toolkit.Advance(1000);
      }
      if (dialog.IsShown()) dialog.Part<HeadlessButton>("cmdStop").Click();
    });
    Button(button).Click();
    return shown;
  }
};

TEST(YearPlanWindow, TellsHowFarItIsWithManyCalendars) {
  RunInFreshThread([] {
    ManyPlansWorld world;
    // A second of the toolkit's time does them all.
    EXPECT_THAT(world.StepsShown(9, "cmdApply"), ElementsAre("Applying the plan of EUR 2028, 1 of 4."));
    EXPECT_THAT(world.OutcomeTexts(), ElementsAre("EUR 2028 is as planned now. 2 days were changed.",
                                                  "EUR 2029 is made. 2 days were changed.",
                                                  "EUR 2030 is made. 2 days were changed.",
                                                  "EUR 2031 is made. 2 days were changed."));
    EXPECT_THAT(world.StepsShown(9, "cmdUndo"), ElementsAre("Undoing the plan of EUR 2031, 1 of 4."));
    EXPECT_FALSE(world.Button("cmdUndo").Visible());
  });
}

TEST(YearPlanWindow, IsStoppedBetweenTwoOfManyCalendarsAndTellsWhatWasDone) {
  RunInFreshThread([] {
    ManyPlansWorld world;
    world.world.toolkit.ScriptModal("fmProgress", [&](headless::HeadlessForm& dialog) {
      const auto& step = dialog.Part<headless::HeadlessLabel>("lblStep");
      while (step.Text() != "Applying the plan of EUR 2030, 3 of 4.") world.world.toolkit.Advance(1);
      dialog.PressEscape();
    });
    world.Button("cmdApply").Click();
    EXPECT_THAT(world.OutcomeTexts(),
                ElementsAre("Stopped after 2 of 4 calendars; the others are as they were.",
                            "EUR 2028 is as planned now. 2 days were changed.",
                            "EUR 2029 is made. 2 days were changed."));
    EXPECT_EQ(world.Summary(), "2 calendars: 4 days.");
    EXPECT_TRUE(world.Button("cmdApply").Enabled());
    EXPECT_THAT(world.told_changes,
                ElementsAre(ElementsAre(CalendarKey(kEuro, 2028), CalendarKey(kEuro, 2029))));
    world.world.toolkit.Advance(1000);
    EXPECT_THAT(planning::LoadRules().calendars, SizeIs(2)) << "nothing goes on behind it";
  });
}

TEST(YearPlanWindow, GoesNoFurtherWhenTheHostClosesItWhileItWorksAndTellsWhatWasDone) {
  RunInFreshThread([] {
    ManyPlansWorld world;
    world.world.toolkit.ScriptModal("fmProgress", [&](headless::HeadlessForm& dialog) {
      const auto& step = dialog.Part<headless::HeadlessLabel>("lblStep");
      while (step.Text() != "Applying the plan of EUR 2029, 2 of 4.") world.world.toolkit.Advance(1);
      EXPECT_TRUE(world.windows.CloseAll());
      EXPECT_FALSE(dialog.IsShown());
    });
    EXPECT_NO_THROW(world.Button("cmdApply").Click());
    EXPECT_TRUE(world.Form().HasUnloaded());
    EXPECT_THAT(world.told_changes, ElementsAre(ElementsAre(CalendarKey(kEuro, 2028))));
    EXPECT_THAT(world.OutcomeTexts(), IsEmpty());
    world.world.toolkit.Advance(1000);
    EXPECT_THAT(planning::LoadRules().calendars, SizeIs(1)) << "nothing goes on behind it";
  });
}

TEST(YearPlanWindow, MayBeClosedByWhoeverLearnsOfItsChanges) {
  RunInFreshThread([] {
    PlanWorld world;
    world.Open();
    const auto closing = world.windows.OnChanged([&](const auto&) { EXPECT_TRUE(world.windows.CloseAll()); });
    EXPECT_NO_THROW(world.Button("cmdApply").Click());
    EXPECT_TRUE(world.Form().HasUnloaded());
    EXPECT_NO_THROW(world.windows.TellChanged({}));
  });
}

TEST(YearPlanFaults, AtAnyCallOfApplyingAndPlanningAnewLeaveTheWindowUsable) {
  int call = 1;
  for (bool has_fired = true; has_fired; ++call) {
    RunInFreshThread([&] {
      PlanWorld world;
      world.Open();
      world.world.faults.FailAtCall(call);
      EXPECT_NO_THROW(world.Button("cmdApply").Click());
      has_fired = world.world.faults.HasFired();
      SCOPED_TRACE("call " + std::to_string(call) + ", " + world.world.faults.FailedCall());
      world.world.faults.Disarm();
      ASSERT_TRUE(world.Form().IsShown());
      world.ClickTool("ID_Refresh");
      EXPECT_THAT(world.Lines().RowKeys(), SizeIs(world.Button("cmdApply").Enabled() ? 2 : 0));
      EXPECT_TRUE(world.Form().CloseByOperator());
      EXPECT_TRUE(world.Form().HasUnloaded());
    });
  }
  EXPECT_GT(call, 60) << "nothing was called";
}

TEST(YearPlanFaults, AtAnyCallOfOpeningGiveAWindowOrAFailure) {
  int call = 1;
  for (bool has_fired = true; has_fired; ++call) {
    RunInFreshThread([&] {
      PlanWorld world;
      world.world.faults.FailAtCall(call);
      bool is_open = true;
      try {
        world.Open();
      } catch (const platform::Failure& failure) {
        EXPECT_EQ(failure.Number(), headless::FaultPlan::kFaultNumber);
        is_open = false;
      }
      has_fired = world.world.faults.HasFired();
      SCOPED_TRACE("call " + std::to_string(call) + ", " + world.world.faults.FailedCall());
      world.world.faults.Disarm();
      if (is_open) {
        EXPECT_TRUE(world.Form().IsShown());
      }
      EXPECT_TRUE(world.windows.CloseAll());
    });
  }
  EXPECT_GT(call, 40) << "nothing was called";
}

TEST(YearPlanFaults, AtAnyCallOfClosingLetTheWindowClose) {
  int call = 1;
  for (bool has_fired = true; has_fired; ++call) {
    RunInFreshThread([&] {
      PlanWorld world;
      world.Open();
      world.world.faults.FailAtCall(call);
      EXPECT_NO_THROW(EXPECT_TRUE(world.Form().CloseByOperator()));
      has_fired = world.world.faults.HasFired();
      EXPECT_TRUE(world.Form().HasUnloaded());
    });
  }
  EXPECT_GT(call, 2) << "nothing was called";
}

}  // namespace
}  // namespace ferrowind
