#include "ferrowind/views/planning/fm_export.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>

#include <gmock/gmock.h>

#include "ferrowind/adapters/headless/headless_drop_down_list.h"
#include "ferrowind/data/run_handler.h"

#include "tests/support/component_world.h"
#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/views/planning/exchange_world.h"

namespace ferrowind {
namespace {

using headless::HeadlessForm;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using testing::RunInFreshThread;
using ::testing::StartsWith;

constexpr const char* kTwoHolidays =
    "date,weekday,name,type,currency\r\n"
    "2028-04-14,Friday,Good Friday,holiday,EUR\r\n"
    "2028-12-25,Monday,Christmas Day,holiday,EUR\r\n";

class ExportWorld : public testing::ExchangeWorld {
 public:
  void Open() { windows.OpenExport("EUR", 2028); }
  void ExportTo(const std::string& path) {
    world.toolkit.AnswerNextFile(path);
    Export();
  }
  void Export() { Click("fmExport", "cmdExport"); }
  void Type(const std::string& box, const std::string& text) { ExchangeWorld::Type("fmExport", box, text); }
  [[nodiscard]] std::string Outcome() { return TextOf("fmExport", "lblOutcome"); }
  [[nodiscard]] std::string Focused() { return Form("fmExport").FocusedControl(); }
};

TEST(ExportWindow, WritesTheHolidaysOfTheCalendarOnShow) {
  RunInFreshThread([] {
    ExportWorld world;
    world.Open();
    world.ExportTo(world.folder.Path("days.csv"));
    EXPECT_EQ(world.folder.Read("days.csv"), kTwoHolidays);
    EXPECT_EQ(world.Outcome(), "2 days of EUR 2028 are written to " + world.folder.Path("days.csv") + ".");
    EXPECT_EQ(world.world.log.StartingWith("toolkit.ChooseFileToSave(").size(), 1U);
    EXPECT_EQ(world.folder.CountOfFiles(), 1U);
  });
}

TEST(ExportWindow, WritesTheFormatThatTheNameTells) {
  RunInFreshThread([] {
    ExportWorld world;
    world.Open();
    for (const auto& [name, begin] : {std::pair("days.ics", "BEGIN:VCALENDAR"), std::pair("days.JSON", "["),
                                      std::pair("days.txt", "2028-04-14")}) {
      world.ExportTo(world.folder.Path(name));
      EXPECT_THAT(world.folder.Read(name), AllOf(HasSubstr(begin), HasSubstr("Good Friday"))) << name;
    }
    const std::string before = world.folder.Read("days.ics");
    world.ExportTo(world.folder.Path("again.ics"));
    EXPECT_EQ(world.folder.Read("again.ics"), before) << "the same days give the same file";
  });
}

TEST(ExportWindow, WritesWeekendsWhenTheyAreWanted) {
  RunInFreshThread([] {
    ExportWorld world;
    world.Open();
    world.Form("fmExport")
        .Part<headless::HeadlessDropDownList>("cmbDays")
        .ChooseByOperator("Holidays, weekends and working days by exception");
    world.ExportTo(world.folder.Path("days.csv"));
    EXPECT_THAT(world.folder.Read("days.csv"), HasSubstr("2028-01-02,Sunday,Sunday,weekend,EUR\r\n"));
  });
}

TEST(ExportWindow, WritesSeveralCurrenciesAndYearsButNotAsPlainText) {
  RunInFreshThread([] {
    ExportWorld world;
    ExportWorld::CreateCalendar(planning::kEuro, 2029);
    for (const int year : {2028, 2029}) ExportWorld::CreateCalendar(planning::kDollar, year);
    constexpr std::int32_t kPoint = 4;
    ExportWorld::Assign(planning::kDollar, "2029-07-04", kPoint,
                        ExportWorld::AddPoint("Independence Day", "2029-07-04"));
    world.Open();
    world.Type("txtCurrencies", "eur, USD");
    world.Type("txtLast", "2029");
    world.ExportTo(world.folder.Path("days.txt"));
    EXPECT_EQ(world.Outcome(),
              "No file was written. A text file names no currencies, so it can be of one alone.");
    EXPECT_EQ(world.folder.CountOfFiles(), 0U);
    world.ExportTo(world.folder.Path("days.csv"));
    EXPECT_THAT(
        world.folder.Read("days.csv"),
        AllOf(StartsWith(kTwoHolidays), HasSubstr("2029-07-04,Wednesday,Independence Day,holiday,USD\r\n")));
    EXPECT_THAT(world.Outcome(), StartsWith("3 days of EUR USD 2028-2029 are written to "));
  });
}

TEST(ExportWindow, AsksForNoFileForACalendarThatIsNotThere) {
  RunInFreshThread([] {
    ExportWorld world;
    world.Open();
    world.Type("txtLast", "2030");
    world.Export();
    EXPECT_EQ(world.Outcome(),
              "No file was written. There is no calendar EUR 2029, so nothing is known of its days.");
    EXPECT_EQ(world.world.toolkit.BeepCount(), 1);
    EXPECT_THAT(world.world.log.StartingWith("toolkit.ChooseFileToSave("), IsEmpty());
  });
}

TEST(ExportWindow, RefusesWhatIsTypedWrongAndGoesThere) {
  RunInFreshThread([] {
    ExportWorld world;
    world.Open();
    world.Type("txtFirst", "20x8");
    world.Export();
    EXPECT_EQ(world.Outcome(), "\"20x8\" is no year from 1900 to 3000.");
    EXPECT_EQ(world.Focused(), "txtFirst");
    world.Type("txtFirst", "2029");
    world.Export();
    EXPECT_EQ(world.Outcome(), "The last year is before the first one.");
    EXPECT_EQ(world.Focused(), "txtLast");
    world.Type("txtFirst", "2028");
    world.Type("txtCurrencies", "EUR ?");
    world.Export();
    EXPECT_THAT(world.Outcome(), HasSubstr("?"));
    EXPECT_EQ(world.Focused(), "txtCurrencies");
    EXPECT_THAT(world.world.log.StartingWith("toolkit.ChooseFileToSave("), IsEmpty());
  });
}

TEST(ExportWindow, TellsUntilSeenThatAFileCannotBeWrittenAndLeavesNoHalfOne) {
  RunInFreshThread([] {
    ExportWorld world;
    world.Open();
    world.ExportTo(world.folder.Path("nowhere/days.csv"));
    EXPECT_EQ(world.Outcome(), "No file was written. " + world.folder.Path("nowhere/days.csv") +
                                   " cannot be written: No such file or directory.");
    world.folder.Write("days.csv", "as before");
    // What cannot be replaced: the part that is written first is taken away again.
    std::filesystem::create_directory(world.folder.Path("days.csv.part"));
    world.ExportTo(world.folder.Path("days.csv"));
    EXPECT_THAT(world.Outcome(), StartsWith("No file was written. "));
    EXPECT_EQ(world.folder.Read("days.csv"), "as before");
    EXPECT_TRUE(world.Form("fmExport").IsShown());
  });
}

TEST(ExportWindow, RefusesANameWithoutAFormat) {
  RunInFreshThread([] {
    ExportWorld world;
    world.Open();
    world.ExportTo(world.folder.Path("days.pdf"));
    EXPECT_EQ(world.Outcome(),
              "No file was written. The name of the file tells its format and ends in .ics, .csv, .json or "
              ".txt.");
    EXPECT_EQ(world.folder.CountOfFiles(), 0U);
  });
}

TEST(ExportWindow, WritesNothingWhenTheFileIsTurnedDown) {
  RunInFreshThread([] {
    ExportWorld world;
    world.Open();
    world.world.toolkit.AnswerNextFile(std::nullopt);
    world.Export();
    EXPECT_EQ(world.Outcome(), "");
    EXPECT_EQ(world.folder.CountOfFiles(), 0U);
  });
}

TEST(ExportWindow, WritesNoFileWhenTheHostClosesItMeanwhile) {
  RunInFreshThread([] {
    ExportWorld world;
    world.Open();
    world.world.toolkit.ScriptNextFile([&] {
      EXPECT_TRUE(world.windows.CloseAll());
      return world.folder.Path("days.csv");
    });
    world.Export();
    EXPECT_EQ(world.folder.CountOfFiles(), 0U);
    EXPECT_THAT(testing::SeenByOperator(world.world.log), IsEmpty());
  });
}

TEST(ExportWindow, IsBroughtToTheFrontForAnotherCalendar) {
  RunInFreshThread([] {
    ExportWorld world;
    world.Open();
    world.windows.OpenExport("USD", std::nullopt);
    EXPECT_EQ(world.world.toolkit.CountOfForms("fmExport"), 1U);
    EXPECT_EQ(world.Form("fmExport").Part<headless::HeadlessTextBox>("txtCurrencies").Text(), "USD");
    EXPECT_EQ(world.Form("fmExport").Part<headless::HeadlessTextBox>("txtFirst").Text(), "2028");
    world.Form("fmExport").PressEscape();
    EXPECT_TRUE(world.windows.CloseAll());
  });
}

TEST(ExportFaults, AtAnyCallTellOfItOrWriteTheWholeFile) {
  RunInFreshThread([] {
    ExportWorld world;
    int call = 1;
    for (bool has_fired = true; has_fired; ++call) {
      world.Open();
      bool is_asked = false;
      world.world.toolkit.ScriptNextFile([&] {
        is_asked = true;
        return world.folder.Path("days.csv");
      });
      world.world.faults.FailAtCall(call);
      EXPECT_NO_THROW(world.Export());
      has_fired = world.world.faults.HasFired();
      SCOPED_TRACE("call " + std::to_string(call) + ", " + world.world.faults.FailedCall());
      world.world.faults.Disarm();
      const bool is_written = world.Outcome().starts_with("2 days of EUR 2028 are written");
      EXPECT_TRUE(is_written || world.Outcome().starts_with("No file was written. ")) << world.Outcome();
      EXPECT_EQ(world.folder.CountOfFiles(), is_written ? 1U : 0U);
      if (is_written) {
        EXPECT_EQ(world.folder.Read("days.csv"), kTwoHolidays);
      }
      // The answer that was not asked for waits.
      if (!is_asked) (void)world.platform.toolkit.ChooseFileToSave("", "", {{"", "csv"}});
      std::filesystem::remove(world.folder.Path("days.csv"));
      EXPECT_TRUE(world.windows.CloseAll());
    }
    EXPECT_GT(call, 20) << "nothing was called";
  });
}

}  // namespace
}  // namespace ferrowind
