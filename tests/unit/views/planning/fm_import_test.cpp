#include "ferrowind/views/planning/fm_import.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "ferrowind/adapters/headless/headless_drop_down_list.h"
#include "ferrowind/data/run_handler.h"

#include "tests/support/component_world.h"
#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/views/planning/exchange_world.h"

namespace ferrowind {
namespace {

using headless::HeadlessForm;
using headless::HeadlessTable;
using planning::CalendarKey;
using planning::kEuro;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using testing::RunInFreshThread;
using ::testing::SizeIs;
using Texts = std::vector<std::string>;

constexpr const char* kGoodFriday = "978/2028/105";
constexpr const char* kLabourDay = "978/2028/122";
constexpr const char* kChristmas = "978/2028/360";
constexpr const char* kBook = "978/2028/book";
/// Labour Day is new, Christmas Day is not listed.
constexpr const char* kList = "2028-04-14 Good Friday\n2028-05-01 Labour Day\n";

class ImportWorld : public testing::ExchangeWorld {
 public:
  void Open() {
    windows.OpenImport("EUR", 2028);
    form_ = std::static_pointer_cast<HeadlessForm>(Form("fmImport").shared_from_this());
  }
  /// Opens the window and asks for the preview of a list with that text.
  void Preview(const std::string& text, const std::string& name = "list.txt") {
    if (!form_ || form_->HasUnloaded()) Open();
    ExchangeWorld::Type("fmImport", "txtFile", folder.Write(name, text));
    form_->PressEnter();
  }
  [[nodiscard]] HeadlessForm& Dialog() { return *form_; }
  [[nodiscard]] std::string Outcome() { return Dialog().Part<headless::HeadlessLabel>("lblOutcome").Text(); }
  /// "7: what is wrong there" each.
  [[nodiscard]] Texts Faults() { return RowsOf(Dialog().Part<HeadlessTable>("tblFaults")); }
  [[nodiscard]] HeadlessTable& Lines() { return Form("fmYearPlan").Part<HeadlessTable>("tblPlan"); }
  [[nodiscard]] Texts Told() { return RowsOf(Form("fmYearPlan").Part<HeadlessTable>("tblOutcome")); }
  [[nodiscard]] static almanac::RuleBook BookOfEuro() { return *planning::LoadBook(kEuro, "EUR", {})->book; }
  [[nodiscard]] std::string Summary() {
    return Form("fmYearPlan").Part<headless::HeadlessLabel>("lblSummary").Text();
  }
  [[nodiscard]] std::size_t Entries() { return world.database->History().size(); }

 private:
  static Texts RowsOf(const HeadlessTable& table) {
    Texts rows;
    for (const std::string& key : table.RowKeys()) {
      std::string row;
      for (const std::string& cell : table.Texts(key)) row += (row.empty() ? "" : ": ") + cell;
      rows.push_back(std::move(row));
    }
    return rows;
  }

  std::shared_ptr<HeadlessForm> form_;
};

TEST(ImportWindow, MakesWayForThePlanOfTheList) {
  RunInFreshThread([] {
    ImportWorld world;
    world.Preview(kList);
    EXPECT_TRUE(world.Dialog().HasUnloaded());
    EXPECT_EQ(world.Form("fmYearPlan").Caption(), "Import of EUR 2028: list.txt");
    EXPECT_THAT(world.Lines().RowKeys(), ElementsAre(kChristmas, kLabourDay, kBook));
    EXPECT_THAT(world.Lines().Texts(kLabourDay)[3], "Labour Day");
    EXPECT_EQ(world.Lines().Cell(kChristmas, "Action").mark, platform::CellMark::kRemoved);
    EXPECT_EQ(world.Lines().Cell(kChristmas, "Why").text, "Not in the list");
    EXPECT_EQ(world.Lines().Cell(kBook, "Date").text, "Rule book");
    EXPECT_EQ(world.Lines().Cell(kBook, "Why").text, "gets it as a date of its own");
    EXPECT_TRUE(world.Lines().Checked(kBook));
    EXPECT_THAT(testing::SeenByOperator(world.world.log), IsEmpty());
  });
}

TEST(ImportWindow, EntersTheDaysInTheRuleBookWhosePlanWouldOpenThemAgain) {
  RunInFreshThread([] {
    ImportWorld world;
    world.Preview(kList);
    world.Click("fmYearPlan", "cmdApply");
    EXPECT_THAT(world.Told(),
                ElementsAre("EUR 2028 is as in the list now. The rule book of EUR has got 1 day. "
                            "2 days were changed."));
    EXPECT_EQ(world.BookOfEuro().rules.back().expression, almanac::DateExpression::Parse("2028-05-01"));
    EXPECT_EQ(world.BookOfEuro().rules.back().name, "Labour Day");
    EXPECT_THAT(world.Lines().RowKeys(), IsEmpty());
    EXPECT_TRUE(world.windows.CloseAll());

    world.windows.OpenYearPlan({{kEuro, 2028}});
    EXPECT_EQ(world.Summary(), "EUR 2028: 1 day.") << "Christmas Day again, and nothing of Labour Day";
  });
}

TEST(ImportWindow, LeavesTheRuleBookAloneWhenTheOperatorSaysSo) {
  RunInFreshThread([] {
    ImportWorld world;
    const std::size_t rules = world.BookOfEuro().rules.size();
    world.Preview(kList);
    world.Lines().ClickBox(kBook);
    EXPECT_EQ(world.Lines().Cell(kBook, "Why").text, "stays as it is: a difference on the board");
    world.Click("fmYearPlan", "cmdApply");
    EXPECT_THAT(world.Told(), ElementsAre("EUR 2028 is as in the list now. 2 days were changed."));
    EXPECT_EQ(world.BookOfEuro().rules.size(), rules);
    EXPECT_TRUE(world.windows.CloseAll());

    world.windows.OpenYearPlan({{kEuro, 2028}});
    EXPECT_FALSE(world.Lines().Checked(kLabourDay)) << "a plan does not open what a list has closed";
    EXPECT_EQ(world.Lines().Cell(kLabourDay, "Why").text, "Not in the rule book: Labour Day");
    world.Click("fmYearPlan", "cmdApply");
    EXPECT_THAT(ImportWorld::DaysOf("EUR", kEuro, 2028), Contains("2028-05-01 Labour Day"));
  });
}

TEST(ImportWindow, OffersTheRuleBookOnlyDaysThatItLeavesOpen) {
  RunInFreshThread([] {
    ImportWorld world;
    world.Preview("2028-04-14 Good Friday\n");
    EXPECT_THAT(world.Lines().RowKeys(), ElementsAre(kChristmas));
    EXPECT_TRUE(world.windows.CloseAll());
    world.Preview(kList);
    world.Lines().ClickBox(kLabourDay);
    EXPECT_THAT(world.Lines().RowKeys(), ElementsAre(kChristmas, kLabourDay)) << "a day that stays open";
  });
}

TEST(ImportWindow, TellsWhyTheRuleBookDoesNotGetTheDays) {
  RunInFreshThread([] {
    ImportWorld world;
    world.Preview(kList);
    // As another operator does meanwhile.
    planning::RemoveBook(kEuro, "EUR", planning::LoadBook(kEuro, "EUR", {})->fingerprint);
    world.Click("fmYearPlan", "cmdApply");
    EXPECT_THAT(world.Told(), ElementsAre(HasSubstr("The rule book of EUR does not get the days")));
    EXPECT_THAT(ImportWorld::DaysOf("EUR", kEuro, 2028), Contains("2028-05-01 Labour Day"));
  });
}

TEST(ImportWindow, ChangesTheDaysThatAreTakenInOneStepThatCanBeUndone) {
  RunInFreshThread([] {
    ImportWorld world;
    const Texts before = ImportWorld::DaysOf("EUR", kEuro, 2028);
    const std::size_t entries = world.Entries();
    world.Preview(kList);
    world.Lines().ClickBox(kChristmas);
    world.Click("fmYearPlan", "cmdApply");
    EXPECT_EQ(world.Entries(), entries + 2) << "the calendar and the rule book";
    EXPECT_THAT(ImportWorld::DaysOf("EUR", kEuro, 2028), Contains("2028-05-01 Labour Day"));
    EXPECT_THAT(ImportWorld::DaysOf("EUR", kEuro, 2028), Contains("2028-12-25 Christmas Day"));
    EXPECT_THAT(
        world.Told(),
        ElementsAre("EUR 2028 is as in the list now but for 1 day that is left out. The rule book of EUR has "
                    "got 1 day. 1 day was changed."));
    const std::size_t rules = world.BookOfEuro().rules.size();
    world.Click("fmYearPlan", "cmdUndo");
    EXPECT_EQ(world.BookOfEuro().rules.size(), rules - 1);
    EXPECT_EQ(ImportWorld::DaysOf("EUR", kEuro, 2028), before);
    EXPECT_THAT(world.Lines().RowKeys(), ElementsAre(kChristmas, kLabourDay, kBook));
  });
}

TEST(ImportWindow, TellsInThePlanWhatIsLeftOutOfTheList) {
  RunInFreshThread([] {
    ImportWorld world;
    world.Preview(
        "date,name,type,currency\n2028-04-14,Karfreitag,holiday,EUR\n2028-12-25,,holiday,EUR\n"
        "2028-12-24,Christmas Eve,half day,EUR\n2029-01-01,New Year,holiday,EUR\n"
        "2028-07-04,Independence Day,holiday,USD\n",
        "list.csv");
    EXPECT_THAT(world.Told(), SizeIs(4));
    EXPECT_THAT(world.Told(), Contains(HasSubstr("half day")));
    EXPECT_THAT(world.Told(), Contains(HasSubstr("other year")));
    EXPECT_THAT(world.Told(), Contains(HasSubstr("other currenc")));
    EXPECT_THAT(world.Told(), Contains("1 closed day keeps its name, which the list calls otherwise."));
    EXPECT_THAT(world.Lines().RowKeys(), IsEmpty());
    EXPECT_EQ(world.Lines().EmptyText(), "Every day is as in the list.");
  });
}

TEST(ImportWindow, GivesClosedDaysTheNamesOfTheListWhenAskedTo) {
  RunInFreshThread([] {
    ImportWorld world;
    world.Open();
    world.Dialog()
        .Part<headless::HeadlessDropDownList>("cmbNames")
        .ChooseByOperator("Closed days get the list's");
    world.Preview("2028-04-14 Karfreitag\n2028-12-25 Christmas Day\n");
    EXPECT_THAT(world.Lines().RowKeys(), ElementsAre(kGoodFriday));
    EXPECT_EQ(world.Lines().Texts(kGoodFriday)[3], "Karfreitag");
  });
}

TEST(ImportWindow, ReadsCalendarFilesByTheirContentWhateverTheirName) {
  RunInFreshThread([] {
    ImportWorld world;
    world.Preview(
        "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:x\r\nBEGIN:VEVENT\r\nUID:1\r\nDTSTAMP:20270101T000000Z\r\n"
        "DTSTART;VALUE=DATE:20280501\r\nSUMMARY:Labour Day\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n");
    EXPECT_THAT(world.Lines().RowKeys(), Contains(kLabourDay));
  });
}

TEST(ImportWindow, TellsEachFaultWithItsLineAndStays) {
  RunInFreshThread([] {
    ImportWorld world;
    const std::size_t entries = world.Entries();
    world.Preview("2028-04-14 Good Friday\n2028-02-30 Nothing\n2028-13-01 Nothing\n");
    EXPECT_TRUE(world.Dialog().IsShown());
    EXPECT_EQ(world.Outcome(), "This cannot be imported, and nothing was changed.");
    EXPECT_THAT(world.Faults(), ElementsAre(::testing::StartsWith("2: "), ::testing::StartsWith("3: ")));
    EXPECT_EQ(world.Dialog().FocusedControl(), "tblFaults");
    world.Dialog().Part<HeadlessTable>("tblFaults").ClickRow("1");
    EXPECT_THAT(world.Dialog().Part<headless::HeadlessLabel>("lblFault").Text(), HasSubstr("2028-13-01"));
    EXPECT_EQ(world.world.toolkit.BeepCount(), 1);
    EXPECT_EQ(world.Entries(), entries);
    world.Preview(kList);
    EXPECT_TRUE(world.Dialog().HasUnloaded()) << "the mended list is taken";
  });
}

TEST(ImportWindow, TellsHowManyFaultsThereAreWhenItTellsOnlyTheFirst) {
  RunInFreshThread([] {
    ImportWorld world;
    std::string list;
    for (int i = 0; i < 25; ++i) list += "2028-02-30 Nothing\n";
    world.Preview(list);
    EXPECT_THAT(world.Faults(), SizeIs(20));
    EXPECT_EQ(world.Outcome(),
              "This cannot be imported, and nothing was changed. Of 25 faults the first 20 are told.");
  });
}

TEST(ImportWindow, RefusesFilesThatAreNoListOfTheYear) {
  const struct {
    const char* what;
    std::string text;
    const char* fault;
  } kLists[] = {
      {"another encoding", "2028-05-01 F\xEAte du travail\n", "1: this is not UTF-8"},
      {"too long", std::string(50'000'000, ' '), "a list may have 4 MB at most"},
      {"another year", "2031-05-01 Labour Day\n", "2028"},
      {"nothing", "", "no day"},
      {"broken off", "BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\n", "breaks off"},
  };
  for (const auto& list : kLists) {
    SCOPED_TRACE(list.what);
    RunInFreshThread([&] {
      ImportWorld world;
      world.Preview(list.text);
      EXPECT_TRUE(world.Dialog().IsShown());
      EXPECT_THAT(world.Faults(), ElementsAre(HasSubstr(list.fault)));
      EXPECT_EQ(world.world.toolkit.CountOfForms("fmYearPlan"), 1U) << "that of the start";
    });
  }
}

TEST(ImportWindow, TellsWhyAFileCannotBeRead) {
  RunInFreshThread([] {
    ImportWorld world;
    world.Open();
    for (const auto& [path, why] : {std::pair("/nowhere/at/all.csv", "No such file or directory"),
                                    std::pair("/dev/null", "it is no file")}) {
      world.Type("fmImport", "txtFile", path);
      world.Dialog().PressEnter();
      EXPECT_THAT(world.Faults(), ElementsAre(HasSubstr(why)));
    }
  });
}

TEST(ImportWindow, RefusesWhatIsTypedWrongAndGoesThere) {
  RunInFreshThread([] {
    ImportWorld world;
    world.Open();
    world.Dialog().PressEnter();
    EXPECT_EQ(world.Outcome(), "Choose the file of the list.");
    EXPECT_EQ(world.Dialog().FocusedControl(), "txtFile");
    const std::string list = world.folder.Write("list.txt", kList);
    const struct {
      const char* box;
      const char* typed;
      const char* right;
      const char* why;
    } kTyped[] = {{"txtYear", "1776", "2028", "is no year"},
                  {"txtCurrency", "EUR USD", "EUR", "one currency at a time"},
                  {"txtCurrency", "", "EUR", "at least one currency"}};
    world.Type("fmImport", "txtFile", list);
    for (const auto& typed : kTyped) {
      world.Type("fmImport", typed.box, typed.typed);
      world.Dialog().PressEnter();
      EXPECT_THAT(world.Outcome(), HasSubstr(typed.why));
      EXPECT_EQ(world.Dialog().FocusedControl(), typed.box);
      world.Type("fmImport", typed.box, typed.right);
    }
    world.Dialog().PressEnter();
    EXPECT_TRUE(world.Dialog().HasUnloaded());
  });
}

TEST(ImportWindow, TakesTheFileThatIsChosen) {
  RunInFreshThread([] {
    ImportWorld world;
    const std::string list = world.folder.Write("list.txt", kList);
    world.Open();
    world.world.toolkit.AnswerNextFile(std::nullopt);
    world.Click("fmImport", "cmdChoose");
    EXPECT_EQ(world.Dialog().Part<headless::HeadlessTextBox>("txtFile").Text(), "");
    world.world.toolkit.AnswerNextFile(list);
    world.Click("fmImport", "cmdChoose");
    EXPECT_EQ(world.Dialog().Part<headless::HeadlessTextBox>("txtFile").Text(), list);
  });
}

TEST(ImportWindow, TakesTheQuestionForTheFileAlongWhenTheHostClosesIt) {
  RunInFreshThread([] {
    ImportWorld world;
    world.Open();
    world.world.toolkit.ScriptNextFile([&] {
      EXPECT_TRUE(world.windows.CloseAll());
      return "list.txt";
    });
    world.Click("fmImport", "cmdChoose");
    EXPECT_THAT(testing::SeenByOperator(world.world.log), IsEmpty());
  });
}

TEST(ImportWindow, ReplacesThePlanOfAnEarlierListOfTheCalendar) {
  RunInFreshThread([] {
    ImportWorld world;
    world.Preview(kList);
    const auto earlier = std::static_pointer_cast<HeadlessForm>(world.Form("fmYearPlan").shared_from_this());
    world.Preview("2028-12-25 Christmas Day\n2028-04-14 Good Friday\n", "later.txt");
    EXPECT_TRUE(earlier->HasUnloaded());
    EXPECT_EQ(world.Form("fmYearPlan").Caption(), "Import of EUR 2028: later.txt");
  });
}

TEST(ImportFaults, AtAnyCallOfThePreviewTellOfItOrShowIt) {
  RunInFreshThread([] {
    ImportWorld world;
    const std::size_t entries = world.Entries();
    int call = 1;
    for (bool has_fired = true; has_fired; ++call) {
      world.Open();
      world.world.log.Clear();
      world.world.faults.FailAtCall(call);
      EXPECT_NO_THROW(world.Preview(kList));
      has_fired = world.world.faults.HasFired();
      SCOPED_TRACE("call " + std::to_string(call) + ", " + world.world.faults.FailedCall());
      world.world.faults.Disarm();
      const bool is_shown = world.world.log.Contains("fmYearPlan.Show()");
      const bool is_told = !testing::SeenByOperator(world.world.log).empty();
      EXPECT_TRUE(is_shown || is_told || (world.Dialog().IsShown() && !world.Faults().empty()));
      EXPECT_TRUE(world.windows.CloseAll());
    }
    EXPECT_EQ(world.Entries(), entries) << "nothing is changed by a look";
    EXPECT_GT(call, 60) << "nothing was called";
  });
}

}  // namespace
}  // namespace ferrowind
