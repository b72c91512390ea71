// The start of the Calendars window.
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/platform/values/conversion.h"

#include "tests/unit/views/calendars/calendars_world.h"

namespace ferrowind {
namespace {

using platform::Failure;
using testing::CalendarsWorld;
using testing::Date;
using testing::ExpectInOrder;
using testing::NumberedMessage;
using testing::Rows;
using testing::RunInFreshThread;
using testing::Value;
using Texts = std::vector<std::string>;

const std::string kLoadLayout =
    std::string("services.LoadGridLayout(gexCalendar, \"") + testing::kLayoutSection + "\")";

void ExpectFailedStart(CalendarsWorld& calendars, const Texts& seen) {
  int closings = 0;
  calendars.window = testing::CalendarsWindowUnderTest::Create(calendars.platform);
  const auto closing = calendars.window->OnClosing([&] { ++closings; });
  auto& form = calendars.world.toolkit.FormNamed("fmCalendar");
  EXPECT_FALSE(calendars.window->Init(calendars.headers, calendars.holiday_headers));
  EXPECT_EQ(calendars.SeenByOperator(), seen);
  EXPECT_EQ(closings, 1);
  EXPECT_TRUE(form.HasUnloaded());
  EXPECT_FALSE(form.IsShown());
  ASSERT_FALSE(seen.empty());
  ExpectInOrder(calendars.world.log, {seen.back(), "fmCalendar.Unload()"});
  // No question is asked once the window is closing after a failed start.
  EXPECT_EQ(calendars.window->AskToExit(), std::nullopt);
}

TEST(CalendarsStart, GoesThroughItsStepsInOrder) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    ASSERT_TRUE(calendars.Start());
    ExpectInOrder(
        calendars.world.log,
        {"fmCalendar.Load()", "services.SettingsRoot()", R"(anim.Open("/component/Progress.pra"))",
         R"(dictionary.dic_GetDicRecByFilter("Ccy", "CcyType = 0"))", "tvCalendar.Clear()",
         R"(tvCalendar.AddRoot("K392", "JPY", "Currency"))", R"(command.SetText("CldAllInfo"))",
         R"(tvCalendar.AddChild("K840", "K840_2026", "2026", "Calendar"))",
         R"(gexCalendar.AddColumn("Date", 0, 1, "FullDate"))",
         R"(gexCalendar.AddColumn("Month name", 0, 1, "MonthName"))",
         "gexCalendar.Columns(HolidayType).SetHasValueList(True)",
         R"(gexCalendar.Columns(HolidayType).ValueList.Add(4, "Holiday point"))",
         R"(gexCalendar.AddFormat("FC_Holiday", "HolidayType", 0, "Holiday"))",
         R"(gexCalendar.AddFormat("FC_Celebrate", "HolidayType", 0, "Celebration"))",
         R"(gexCalendar.AddFormat("FC_HolidayPoint", "HolidayType", 0, "Holiday point"))", kLoadLayout});
    EXPECT_EQ(calendars.world.log.Calls().back(), kLoadLayout);
    EXPECT_TRUE(calendars.SeenByOperator().empty());
    EXPECT_FALSE(calendars.Form().IsShown());
    EXPECT_FALSE(calendars.Form().HasUnloaded());
  });
}

TEST(CalendarsStart, HasTheDesignOfTheWindow) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    ASSERT_TRUE(calendars.Start());
    EXPECT_EQ(calendars.Form().Caption(), "Calendars");
    EXPECT_EQ(calendars.Form().Design().border, platform::FormBorder::kSizable);
    for (const char* name :
         {"tvCalendar", "gexCalendar", "ssatb", "pctToolBar", "ssspUp", "sssp", "sbCalendar", "anim"}) {
      EXPECT_EQ(calendars.Form().ControlNamed(name).Name(), name);
    }
  });
}

TEST(CalendarsStart, RestoresThePlacementFromTheSectionBelowTheSettingsRoot) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.world.services->PutSetting(testing::kPlacementSection, "Left", 111.0F);
    calendars.world.services->PutSetting(testing::kPlacementSection, "Top", 222.0F);
    calendars.world.services->PutSetting(testing::kPlacementSection, "Width", 9000.0F);
    calendars.world.services->PutSetting(testing::kPlacementSection, "Height", 7000.0F);
    ASSERT_TRUE(calendars.Start());
    EXPECT_EQ(calendars.Form().Left(), 111);
    EXPECT_EQ(calendars.Form().Top(), 222);
    EXPECT_EQ(calendars.Form().Width(), 9000);
    EXPECT_EQ(calendars.Form().Height(), 7000);
  });
}

TEST(CalendarsStart, IgnoresAnAnimationThatIsNotThere) {
  RunInFreshThread([] {
    testing::CalendarsWorld calendars;
    const auto elsewhere = platform::Platform{calendars.platform.objects, calendars.platform.commands,
                                              calendars.platform.toolkit, calendars.platform.locale,
                                              calendars.platform.clock,   "/nowhere"};
    const auto window = testing::CalendarsWindowUnderTest::Create(elsewhere);
    EXPECT_TRUE(window->Init(calendars.headers, calendars.holiday_headers));
    EXPECT_TRUE(calendars.world.log.Contains(R"(anim.Open("/nowhere/Progress.pra"))"));
    EXPECT_TRUE(calendars.SeenByOperator().empty());
  });
}

TEST(CalendarsStart, BuildsTheColumnsOfTheMapItIsGiven) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.headers->LocalNames("Description")->SetVisible(false);
    calendars.headers->LocalNames("FullDate")->SetCaption("Datum");
    ASSERT_TRUE(calendars.Start());
    EXPECT_EQ(calendars.Grid().ColumnCount(), 9);
    EXPECT_FALSE(calendars.Grid().ColumnByKey("Description").Visible());
    EXPECT_EQ(calendars.Grid().ColumnByKey("FullDate").Caption(), "Datum");
  });
}

TEST(CalendarsStart, StartsWithADisabledGridAndNothingSelected) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    EXPECT_FALSE(calendars.Grid().Enabled());
    EXPECT_EQ(calendars.Tree().Selected(), std::nullopt);
    EXPECT_TRUE(calendars.CallsOf("CldGetMain").empty());
  });
}

TEST(CalendarsStart, AsksForTheStartInformationWithoutParameters) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    ASSERT_TRUE(calendars.Start());
    ASSERT_EQ(calendars.CallsOf("CldAllInfo").size(), 1u);
    EXPECT_TRUE(calendars.CallsOf("CldAllInfo")[0].parameters.empty());
    EXPECT_TRUE(calendars.world.log.StartingWith("command.SetParameter").empty());
  });
}

TEST(CalendarsStart, RestoresTheLayoutThatTheLastWindowSaved) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    calendars.Grid().ColumnByKey("Comment").SetVisible(false);
    calendars.Form().CloseByOperator();
    calendars.Open();
    EXPECT_FALSE(calendars.Grid().ColumnByKey("Comment").Visible());
  });
}

TEST(CalendarsStart, AFailedStartKeepsTheLayoutThatItNeverLoaded) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    calendars.Grid().ColumnByKey("Comment").SetVisible(false);
    calendars.Form().CloseByOperator();
    calendars.AnswerAllInfo(CalendarsWorld::UsualCalendars(), {});
    for (int i = 0; i < 2; ++i) ASSERT_FALSE(calendars.Start());
    calendars.AnswerAllInfo(CalendarsWorld::UsualCalendars());
    calendars.Open();
    EXPECT_FALSE(calendars.Grid().ColumnByKey("Comment").Visible());
  });
}

TEST(CalendarsStart, ADamagedLayoutLeavesTheColumnsOfTheMap) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    calendars.Form().CloseByOperator();
    calendars.world.services->DamageLayout(testing::kLayoutSection);
    calendars.Open();
    EXPECT_EQ(calendars.Grid().ColumnCount(), 9);
    EXPECT_TRUE(calendars.Grid().ColumnByKey("Comment").Visible());
    EXPECT_TRUE(calendars.SeenByOperator().empty());
  });
}

TEST(CalendarsStart, APlacementOfWrongTypesAndAbsurdNumbersDoesNotKeepTheWindowFromOpening) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    const auto put = [&](const char* name, const Value& value) {
      calendars.world.services->PutSetting(testing::kPlacementSection, name, value);
    };
    put("Left", "far left");
    put("Top", Date(2026, 1, 1));
    put("Width", 1e300);
    put("Height", -5.0F);
    calendars.Open();
    EXPECT_TRUE(calendars.Form().IsShown());
    EXPECT_EQ(calendars.Form().Width(),
              calendars.Form().Design().client_width + headless::HeadlessForm::kFrameWidth);
    EXPECT_TRUE(calendars.SeenByOperator().empty());
  });
}

TEST(CalendarsStart, ASecondWindowHasTheFormatsOnce) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    calendars.Form().CloseByOperator();
    calendars.Open();
    EXPECT_EQ(calendars.Grid().FormatCount(), 3);
  });
}

TEST(CalendarsStart, FormatsThatTheGridHasAlreadyAreKept) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.window = testing::CalendarsWindowUnderTest::Create(calendars.platform);
    auto& grid = calendars.world.toolkit.FormNamed("fmCalendar").Part<headless::HeadlessGrid>("gexCalendar");
    grid.AddFormat({.key = "FC_Own", .column_key = "Comment", .compared = "x"});
    ASSERT_TRUE(calendars.window->Init(calendars.headers, calendars.holiday_headers));
    EXPECT_EQ(grid.FormatCount(), 1);
  });
}

TEST(CalendarsStart, WithoutCurrenciesEndsWithErrorFive) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.world.dictionary->SetTable("Ccy",
                                         std::make_shared<platform::RecordSet>(Texts{"CcyType"}, Rows{{0}}));
    ExpectFailedStart(calendars, {NumberedMessage("Can't load currency")});
    EXPECT_TRUE(calendars.CallsOf("CldAllInfo").empty());
    EXPECT_EQ(calendars.world.toolkit.LockedElement(), "");
  });
}

TEST(CalendarsStart, WithoutTheDictionaryObjectEndsWithErrorFive) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    Module().dictionary.reset();
    ExpectFailedStart(calendars, {NumberedMessage("Can't load currency")});
  });
}

TEST(CalendarsStart, TracesTheCauseOfAFailureThatTheMessageDoesNotTell) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    Module().dictionary.reset();
    ExpectFailedStart(calendars, {NumberedMessage("Can't load currency")});
    EXPECT_THAT(calendars.world.services->Traces(),
                ::testing::Contains("Failure 91: There is no dictionary object"));
  });
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.AnswerAllInfo({{959, 2026}});
    ExpectFailedStart(calendars, {NumberedMessage("Can't load relation currency to calendars")});
    EXPECT_THAT(calendars.world.services->Traces(),
                ::testing::Contains(::testing::StartsWith("Failure 35601: ")));
  });
}

TEST(CalendarsStart, AFailedCallForTheCalendarsIsReportedBeforeErrorSix) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.world.commands.FailAt(headless::CommandStep::kExecute, Failure(-2147217843, "Login failed"));
    ExpectFailedStart(calendars, {R"(services.ReportError(-2147217843, "Login failed"))",
                                  NumberedMessage("Can't load relation currency to calendars")});
  });
}

TEST(CalendarsStart, ANonZeroReturnForTheCalendarsIsErrorSixAlone) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.world.commands.Forget("CldAllInfo");
    calendars.world.commands.Answer("CldAllInfo").Returns(3).Gives({"ID1", "Year1"}, {}).Gives({"TID1"}, {});
    ExpectFailedStart(calendars, {NumberedMessage("Can't load relation currency to calendars")});
  });
}

TEST(CalendarsStart, AMissingRecordSetIsErrorSix) {
  for (const bool has_calendars : {true, false}) {
    RunInFreshThread([has_calendars] {
      CalendarsWorld calendars;
      calendars.world.commands.Forget("CldAllInfo");
      auto& answer = calendars.world.commands.Answer("CldAllInfo");
      if (has_calendars) answer.Gives({"ID1", "Year1"}, {});
      ExpectFailedStart(calendars, {NumberedMessage("Can't load relation currency to calendars")});
    });
  }
}

TEST(CalendarsStart, ACalendarOfACurrencyThatIsNotInTheTreeIsErrorSix) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.AnswerAllInfo({{978, 2026}, {959, 2026}, {840, 2026}});
    ExpectFailedStart(calendars, {NumberedMessage("Can't load relation currency to calendars")});
    EXPECT_TRUE(
        calendars.world.log.Contains(R"(tvCalendar.AddChild("K978", "K978_2026", "2026", "Calendar"))"));
    EXPECT_FALSE(
        calendars.world.log.Contains(R"(tvCalendar.AddChild("K840", "K840_2026", "2026", "Calendar"))"));
  });
}

TEST(CalendarsStart, OnlyCurrenciesOfTypeZeroAreInTheTree) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.world.dictionary->SetCurrencies({{978, "EUR"}, {959, "XAU", 1}, {840, "USD"}});
    ASSERT_TRUE(calendars.Start());
    EXPECT_EQ(calendars.Tree().Roots(), (Texts{"K978", "K840"}));
  });
}

TEST(CalendarsStart, WithoutHolidayTypesEndsWithErrorThree) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.AnswerAllInfo(CalendarsWorld::UsualCalendars(), {});
    ExpectFailedStart(calendars, {NumberedMessage("Can't load holiday types from database")});
    EXPECT_FALSE(calendars.world.log.Contains(kLoadLayout));
  });
}

TEST(CalendarsStart, AnUnreadableHolidayTypeIsReportedBeforeErrorThree) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.AnswerAllInfo(CalendarsWorld::UsualCalendars(), {{1, Value()}});
    ExpectFailedStart(calendars, {R"(services.ReportError(94, "Invalid use of Null"))",
                                  NumberedMessage("Can't load holiday types from database")});
  });
}

TEST(CalendarsStart, AMapWithoutTheTypeColumnEndsWithErrorThree) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.headers = std::make_shared<GridFields>();
    ExpectFailedStart(calendars,
                      {R"(services.ReportError(35601, "The grid gexCalendar has no column HolidayType"))",
                       NumberedMessage("Can't load holiday types from database")});
  });
}

TEST(CalendarsStart, MissingTextsForTheFormatsAreReportedBeforeErrorThree) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.AnswerAllInfo(CalendarsWorld::UsualCalendars(), {{1, "Working day"}, {2, "Holiday"}});
    ExpectFailedStart(calendars, {R"(services.ReportError(35601, "The value list has no value 3"))",
                                  NumberedMessage("Can't load holiday types from database")});
  });
}

TEST(CalendarsStart, AWindowThatIsDroppedWhileItsStartFailsLivesUntilTheStartHasReturned) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.world.commands.Forget("CldAllInfo");
    calendars.window = testing::CalendarsWindowUnderTest::Create(calendars.platform);
    const std::weak_ptr<fmCalendar> observer = calendars.window;
    auto* const window = calendars.window.get();
    const auto closing = window->OnClosing([&] { calendars.window.reset(); });
    EXPECT_FALSE(window->Init(calendars.headers, calendars.holiday_headers));
    EXPECT_TRUE(observer.expired());
  });
}

TEST(CalendarsStart, HidesAColumnForAsLongAsTheMapDoesWhateverTheStoredLayoutSays) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    calendars.Form().CloseByOperator();
    calendars.headers->LocalNames("Comment")->SetVisible(false);
    calendars.Open();
    EXPECT_FALSE(calendars.Grid().ColumnByKey("Comment").Visible());
    calendars.Form().CloseByOperator();
    calendars.headers->LocalNames("Comment")->SetVisible(true);
    calendars.Open();
    EXPECT_TRUE(calendars.Grid().ColumnByKey("Comment").Visible());
  });
}

TEST(CalendarsStart, ComputesTheCellsOfAColumnAsTheHostSays) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.headers->Add("Initial", "Initial", "Initial");
    calendars.headers->LocalNames("Initial")->SetFunction([](const platform::RecordSet& day) {
      if (day["Name1"].IsEmpty()) throw 42;
      return Value(platform::ToText(day["Name1"]).substr(0, 1));
    });
    calendars.OpenAt("K978_2026");
    EXPECT_EQ(calendars.Grid().CellValue(1, "Initial"), Value("N"));
    EXPECT_TRUE(calendars.Grid().CellValue(2, "Initial").IsEmpty());
    EXPECT_EQ(calendars.Grid().CellValue(5, "Initial"), Value("G"));
    EXPECT_EQ(calendars.Grid().CellValue(5, "Month"), Value(4));
    EXPECT_TRUE(calendars.SeenByOperator().empty());
  });
}

}  // namespace
}  // namespace ferrowind
