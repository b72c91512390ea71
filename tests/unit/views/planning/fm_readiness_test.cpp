#include "ferrowind/views/planning/fm_readiness.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_form.h"
#include "ferrowind/adapters/headless/headless_label.h"
#include "ferrowind/adapters/headless/headless_table.h"

#include "tests/unit/planning/report_world.h"

namespace ferrowind {
namespace {

using headless::HeadlessButton;
using headless::HeadlessForm;
using headless::HeadlessLabel;
using headless::HeadlessTable;
using planning::CalendarKey;
using planning::kEuro;
using planning::Rows;
using platform::CellMark;
using platform::CellTone;
using platform::Date;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using testing::RunInFreshThread;

using Opened = std::vector<std::vector<CalendarKey>>;

/// The board on 15 January 2026 over the small calendars.
class ReadinessWorld : public planning::ReportWorld {
 public:
  explicit ReadinessWorld(Rows calendars = planning::kSmallCalendars, Rows days = planning::kSmallDays,
                          Rows books = {{kEuro, "ECB", "Closing days", "f", {}}})
      : ReportWorld(std::move(calendars), std::move(days), std::move(books)) {
    window = fmReadiness::Create(
        {platform, tables, windows},
        {[this](const auto& calendars_of_plan, const auto& known) {
           opened.push_back(calendars_of_plan);
           for (const auto& [currency, year] : calendars_of_plan)
             codes_opened.push_back(known.FindOrNumber(currency).code);
         },
         [this](std::int32_t currency) { books_opened.push_back(currency); }, [this] { ++histories_opened; },
         [this](const std::string& currency, std::optional<int> year) {
           exchanges_opened.push_back("import " + currency + " " + std::to_string(year.value_or(0)));
         },
         [this](const std::string& currency, std::optional<int> year) {
           exchanges_opened.push_back("export " + currency + " " + std::to_string(year.value_or(0)));
         }});
  }
  void Show() { window->Show(); }

  [[nodiscard]] HeadlessForm& Form() const { return world.toolkit.FormNamed("fmReadiness"); }
  [[nodiscard]] HeadlessTable& Board() const { return Form().Part<HeadlessTable>("tblBoard"); }
  [[nodiscard]] HeadlessTable& Findings() const { return Form().Part<HeadlessTable>("tblFindings"); }
  [[nodiscard]] HeadlessButton& Button(const char* name) const { return Form().Part<HeadlessButton>(name); }
  /// What a label says, "" while it is hidden.
  [[nodiscard]] std::string Label(const char* name) const {
    auto& label = Form().Part<HeadlessLabel>(name);
    return label.Visible() ? label.Text() : std::string();
  }
  /// The key of the first finding whose sentence has that in it.
  [[nodiscard]] std::string FindingWith(const std::string& part) const {
    for (const std::string& key : Findings().RowKeys()) {
      if (Findings().Cell(key, "finding").text.find(part) != std::string::npos) return key;
    }
    ADD_FAILURE() << "no finding with " << part;
    return {};
  }

  almanac::DateTables tables;
  PlanningWindows windows{platform, tables};
  Opened opened;
  /// What the currencies of those are called by what came with them.
  std::vector<std::string> codes_opened;
  std::vector<std::int32_t> books_opened;
  int histories_opened = 0;
  std::vector<std::string> exchanges_opened;
  std::shared_ptr<fmReadiness> window;
};

// What is on show
// ----------------------------------------------------------------------------------------------------------------

TEST(Readiness, HasARowForEachCurrencyWithItsNameAndAWordForEachYear) {
  RunInFreshThread([] {
    ReadinessWorld board;
    board.Show();
    EXPECT_THAT(board.Board().RowKeys(), ElementsAre("EUR", "HRK", "USD"));
    EXPECT_THAT(board.Board().Texts("EUR"),
                ElementsAre("EUR", "Euro", "Not prepared", "Prepared", "Weekends only", "Differs by 2 days"));
    EXPECT_EQ(board.Board().Cell("EUR", "2026").mark, CellMark::kPrepared);
    EXPECT_EQ(board.Board().Cell("EUR", "2025").description, "EUR 2025 has no calendar.");
    EXPECT_EQ(board.Label("lblSummary"), "Prepared: 1 of 2 currencies for 2026, 0 of 2 currencies for 2027.");
  });
}

TEST(Readiness, HasAColumnForLastYearThisOneAndTheNextTwo) {
  RunInFreshThread([] {
    ReadinessWorld board;
    board.Show();
    std::vector<std::string> captions;
    for (const auto& column : board.Board().Columns()) captions.push_back(column.caption);
    EXPECT_THAT(captions,
                ElementsAre("Currency", "Name", "2025", "2026, this year", "2027, next year", "2028"));
    EXPECT_EQ(board.Board().CurrentColumn(), "2027");
  });
}

TEST(Readiness, ListsTheFindingsWorstFirstWithShapesForTheirLevels) {
  RunInFreshThread([] {
    ReadinessWorld board;
    board.Show();
    const auto keys = board.Findings().RowKeys();
    ASSERT_FALSE(keys.empty());
    EXPECT_EQ(board.Findings().Cell(keys.front(), "level").text, "Error");
    EXPECT_EQ(board.Findings().Cell(keys.front(), "level").mark, CellMark::kError);
    EXPECT_EQ(board.Findings().Cell(keys.back(), "level").text, "Note");
    EXPECT_THAT(board.Label("lblFindings"), HasSubstr("Findings of the review: "));
    EXPECT_EQ(board.Findings().Texts(board.FindingWith("EUR: Monday 25 December 2028"))[1], "EUR");
  });
}

TEST(Readiness, TellsOfACalendarWithoutHolidaysOnceAndLeadsToItsPlan) {
  RunInFreshThread([] {
    ReadinessWorld board(
        {{kEuro, 2026}, {kEuro, 2027}},
        {{kEuro, 2026, 359, 3, 3, {}}, {kEuro, 2027, 3, 2, 2, {}}, {kEuro, 2027, 10, 2, 2, {}}});
    board.Show();
    // A Sunday is where none should be, twice, and Christmas Day is missing.
    const std::string key =
        board.FindingWith("EUR 2027 is closed on weekends only. 3 days are not as planned.");
    for (const std::string& other : board.Findings().RowKeys())
      EXPECT_THAT(board.Findings().Cell(other, "finding").text, Not(HasSubstr("EUR: Sunday")));
    board.Findings().DoubleClickRow(key);
    EXPECT_THAT(board.opened, ElementsAre(ElementsAre(CalendarKey(kEuro, 2027))));
  });
}

TEST(Readiness, IsLoudAboutAnUnpreparedNextYearFromSeptemberOn) {
  RunInFreshThread([] {
    ReadinessWorld board;
    board.Show();
    EXPECT_THAT(board.Label("lblUrgent"), IsEmpty());
    EXPECT_EQ(board.Board().Cell("EUR", "2027").tone, CellTone::kNormal);
    board.world.clock.SetToday(Date(2026, 9, 1));
    board.Button("cmdRefresh").Click();
    EXPECT_EQ(board.Label("lblUrgent"), "2 currencies have no holidays in 2027, which begins in 122 days.");
    EXPECT_EQ(board.Board().Cell("EUR", "2027").tone, CellTone::kLoud);
  });
}

TEST(Readiness, SaysWhatADatabaseWithNothingLacks) {
  RunInFreshThread([] {
    ReadinessWorld board({}, {}, {});
    board.Show();
    EXPECT_EQ(board.Board().RowCount(), 0U);
    EXPECT_EQ(board.Board().EmptyText(), "There is no calendar and no rule book");
    EXPECT_FALSE(board.Button("cmdPlan").Enabled());
    EXPECT_FALSE(board.Button("cmdPrepareAll").Enabled());
  });
}

TEST(Readiness, TwoFindingsOfOneSentenceHaveARowEach) {
  RunInFreshThread([] {
    ReadinessWorld board;
    board.world.commands.Forget("CldGetContent");
    const std::vector<platform::Value> unreadable = {kEuro, 1, "Fair", 4, "now and then", {}, {}};
    board.AnswerContent(planning::kSmallCalendars, planning::kSmallDays,
                        {{kEuro, "ECB", "Closing days", "f", {}}}, {unreadable, unreadable});
    board.Show();
    int rows = 0;
    for (const std::string& key : board.Findings().RowKeys()) {
      rows +=
          board.Findings().Cell(key, "finding").text.starts_with("The book of EUR cannot be used") ? 1 : 0;
    }
    EXPECT_EQ(rows, 2);
  });
}

// Ways to the plans
// ---------------------------------------------------------------------------------------------------------------

TEST(Readiness, EnterADoubleClickAndTheButtonOpenTheYearPlanOfTheCell) {
  RunInFreshThread([] {
    ReadinessWorld board;
    board.Show();
    board.Board().ClickRow("EUR", "2028");
    board.Board().PressEnter();
    board.Board().DoubleClickRow("USD", "2025");
    board.Button("cmdPlan").Click();
    EXPECT_THAT(board.opened, ElementsAre(ElementsAre(CalendarKey(kEuro, 2028)),
                                          ElementsAre(CalendarKey(planning::kDollar, 2025)),
                                          ElementsAre(CalendarKey(planning::kDollar, 2025))));
    EXPECT_THAT(board.codes_opened, ElementsAre("EUR", "USD", "USD"));
  });
}

TEST(Readiness, ACurrencysNameStandsForItsNextYear) {
  RunInFreshThread([] {
    ReadinessWorld board;
    board.Show();
    board.Board().DoubleClickRow("EUR", "name");
    EXPECT_THAT(board.opened, ElementsAre(ElementsAre(CalendarKey(kEuro, 2027))));
  });
}

TEST(Readiness, PreparesTheNextYearOfAllCurrenciesThatAPlanWouldChange) {
  RunInFreshThread([] {
    ReadinessWorld board;
    board.Show();
    EXPECT_EQ(board.Button("cmdPrepareAll").Caption(), "Prepare all for 2027...");
    board.Button("cmdPrepareAll").Click();
    EXPECT_THAT(board.opened, ElementsAre(ElementsAre(CalendarKey(kEuro, 2027))));
  });
}

TEST(Readiness, PreparesTheYearAfterTheNextOnceNothingIsLeftOfTheNextOne) {
  RunInFreshThread([] {
    ReadinessWorld board({{kEuro, 2026}, {kEuro, 2027}},
                         {{kEuro, 2026, 359, 3, 3, {}}, {kEuro, 2027, 359, 3, 3, {}}});
    board.Show();
    EXPECT_EQ(board.Button("cmdPrepareAll").Caption(), "Prepare all for 2028...");
    board.Button("cmdPrepareAll").Click();
    EXPECT_THAT(board.opened, ElementsAre(ElementsAre(CalendarKey(kEuro, 2028))));
  });
}

TEST(Readiness, OffersNoPreparationOfAllWhenNothingWouldChange) {
  RunInFreshThread([] {
    ReadinessWorld board(
        {{kEuro, 2026}, {kEuro, 2027}, {kEuro, 2028}},
        {{kEuro, 2026, 359, 3, 3, {}}, {kEuro, 2027, 359, 3, 3, {}}, {kEuro, 2028, 360, 3, 3, {}}});
    board.Show();
    EXPECT_EQ(board.Button("cmdPrepareAll").Caption(), "Prepare all for 2027...");
    EXPECT_FALSE(board.Button("cmdPrepareAll").Enabled());
  });
}

TEST(Readiness, AFindingLeadsToThePlanOfItsYearOrToTheBookThatItIsAbout) {
  RunInFreshThread([] {
    ReadinessWorld board;
    board.Show();
    board.Findings().DoubleClickRow(board.FindingWith("EUR: Monday 25 December 2028"));
    EXPECT_THAT(board.opened, ElementsAre(ElementsAre(CalendarKey(kEuro, 2028))));
    const std::string no_book = board.FindingWith("2 currencies have no book");
    EXPECT_THAT(board.Findings().Cell(no_book, "finding").text, EndsWith(": HRK, USD."));
    board.Findings().DoubleClickRow(no_book);
    EXPECT_THAT(board.books_opened, ElementsAre(planning::kDollar)) << "the first that is money";
  });
}

TEST(Readiness, AFindingOfSeveralCurrenciesLeadsToOnePlanOfAllOrToTheFirstBook) {
  RunInFreshThread([] {
    ReadinessWorld board({{planning::kDollar, 2026}, {kEuro, 2026}}, {}, {});
    board.Show();
    const std::string missing = board.FindingWith("2 currencies have no calendar for 2027: EUR, USD.");
    EXPECT_EQ(board.Findings().Cell(missing, "currency").text, "2 currencies");
    EXPECT_EQ(board.Findings().Cell(missing, "currency").description, "EUR Euro, USD US Dollar");
    EXPECT_EQ(board.Findings().Cell(missing, "year").text, "2027");
    board.Findings().DoubleClickRow(missing);
    EXPECT_THAT(board.opened,
                ElementsAre(ElementsAre(CalendarKey(kEuro, 2027), CalendarKey(planning::kDollar, 2027))));
    EXPECT_THAT(board.codes_opened, ElementsAre("EUR", "USD"));
    board.Findings().DoubleClickRow(board.FindingWith("2 currencies have no book"));
    EXPECT_THAT(board.books_opened, ElementsAre(kEuro));
  });
}

TEST(Readiness, TheRuleBookOfTheCurrencyIsOneButtonAway) {
  RunInFreshThread([] {
    ReadinessWorld board;
    board.Show();
    board.Board().ClickRow("USD", "2026");
    board.Button("cmdBook").Click();
    EXPECT_THAT(board.books_opened, ElementsAre(planning::kDollar));
  });
}

TEST(Readiness, TheHistoryIsOneButtonAway) {
  RunInFreshThread([] {
    ReadinessWorld board;
    board.Show();
    board.Button("cmdHistory").Click();
    EXPECT_EQ(board.histories_opened, 1);
  });
}

TEST(Readiness, ListsAndFilesOfTheChosenCalendarAreOneButtonAway) {
  RunInFreshThread([] {
    ReadinessWorld board;
    board.Show();
    board.Board().ClickRow("USD", "2027");
    board.Button("cmdImport").Click();
    board.Button("cmdExport").Click();
    EXPECT_THAT(board.exchanges_opened, ElementsAre("import USD 2027", "export USD 2027"));
  });
}

TEST(Readiness, WithoutAWayToPlansOffersNone) {
  RunInFreshThread([] {
    ReadinessWorld board;
    board.window->Close();
    board.window = fmReadiness::Create({board.platform, board.tables, board.windows}, {});
    board.Show();
    EXPECT_FALSE(board.Button("cmdBook").Enabled());
    EXPECT_FALSE(board.Button("cmdHistory").Enabled());
    EXPECT_FALSE(board.Button("cmdImport").Enabled());
    EXPECT_FALSE(board.Button("cmdExport").Enabled());
    EXPECT_FALSE(board.Button("cmdPlan").Enabled());
    EXPECT_FALSE(board.Button("cmdPrepareAll").Enabled());
    EXPECT_NO_THROW(board.Board().DoubleClickRow("EUR", "2027"));
  });
}

// Reading again
// -------------------------------------------------------------------------------------------------------------------

TEST(Readiness, FollowsWhatOtherWindowsHaveChangedAndKeepsTheCellThatIsChosen) {
  RunInFreshThread([] {
    ReadinessWorld board;
    board.Show();
    board.Board().ClickRow("USD", "2028");
    Rows days = planning::kSmallDays;
    days[2] = {kEuro, 2027, 359, 3, 3, {}};
    board.AnswerMarkedDays(days);
    board.windows.TellChanged({{kEuro, 2027}});
    EXPECT_EQ(board.Board().Cell("EUR", "2027").text, "Prepared");
    EXPECT_EQ(board.Board().CurrentRow(), "USD");
    EXPECT_EQ(board.Board().CurrentColumn(), "2028");
  });
}

TEST(Readiness, HasOtherYearsOnceTheYearHasTurned) {
  RunInFreshThread([] {
    ReadinessWorld board;
    board.Show();
    board.world.clock.SetToday(Date(2027, 1, 1));
    board.window->Refresh();
    EXPECT_EQ(board.Board().Columns().back().key, "2029");
    EXPECT_EQ(board.Board().CurrentColumn(), "2028");
    EXPECT_EQ(board.Button("cmdPrepareAll").Caption(), "Prepare all for 2028...");
  });
}

TEST(Readiness, SaysWhyTheDatabaseCannotBeReadAndForgetsItWhenItCanAgain) {
  RunInFreshThread([] {
    ReadinessWorld board;
    board.world.commands.FailAt(headless::CommandStep::kExecute, platform::Failure(5, "The disk is full"));
    board.Show();
    EXPECT_EQ(board.Label("lblProblem"),
              "The database could not be read: Reading the calendars and the rule books: The disk is full");
    EXPECT_EQ(board.Board().EmptyText(), "Nothing could be read");
    EXPECT_FALSE(board.Button("cmdPrepareAll").Enabled());
    EXPECT_THAT(board.SeenByOperator(), IsEmpty());
    board.Button("cmdRefresh").Click();
    EXPECT_THAT(board.Label("lblProblem"), IsEmpty());
    EXPECT_EQ(board.Board().RowCount(), 3U);
  });
}

TEST(Readiness, KeepsWhatItHasReadWhenItCannotBeReadAgainAndSaysSo) {
  RunInFreshThread([] {
    ReadinessWorld board;
    board.Show();
    board.world.commands.FailAt(headless::CommandStep::kExecute, platform::Failure(5, "The disk is full"));
    board.Button("cmdRefresh").Click();
    EXPECT_THAT(board.Label("lblProblem"), HasSubstr("may be out of date"));
    EXPECT_EQ(board.Board().RowCount(), 3U);
  });
}

// Closing and faults
// --------------------------------------------------------------------------------------------------------------

TEST(Readiness, IsClosedByEscapeAndThenReadsNothing) {
  RunInFreshThread([] {
    ReadinessWorld board;
    board.Show();
    EXPECT_TRUE(board.Form().Design().closes_by_escape);
    EXPECT_TRUE(board.window->IsOpen());
    EXPECT_TRUE(board.Form().CloseByOperator());
    EXPECT_FALSE(board.window->IsOpen());
    board.world.log.Clear();
    board.windows.TellChanged({});
    EXPECT_THAT(board.world.log.Calls(), IsEmpty());
  });
}

TEST(Readiness, MayBeDroppedWhileItIsOnShow) {
  RunInFreshThread([] {
    ReadinessWorld board;
    board.Show();
    board.window.reset();
    EXPECT_NO_THROW(board.windows.TellChanged({}));
  });
}

TEST(Readiness, IsUsableAndCanBeClosedWhicheverCallFails) {
  constexpr int kMostCalls = 500;
  int call = 1;
  for (bool has_fired = true; has_fired && call < kMostCalls; ++call) {
    RunInFreshThread([&] {
      ReadinessWorld board;
      board.world.faults.FailAtCall(call);
      EXPECT_NO_THROW(board.Show());
      EXPECT_NO_THROW(board.Button("cmdRefresh").Click());
      has_fired = board.world.faults.HasFired();
      SCOPED_TRACE("call " + std::to_string(call) + ", " + board.world.faults.FailedCall());
      board.world.faults.Disarm();
      board.Button("cmdRefresh").Click();
      EXPECT_THAT(board.Label("lblProblem"), IsEmpty());
      EXPECT_EQ(board.Board().RowCount(), 3U);
      EXPECT_TRUE(board.window->Close());
      EXPECT_FALSE(board.window->IsOpen());
    });
  }
  EXPECT_GT(call, 30);
  EXPECT_LT(call, kMostCalls);
}

}  // namespace
}  // namespace ferrowind
