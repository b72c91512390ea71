#include <gtest/gtest.h>

#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/views/editor/editor_world.h"

namespace ferrowind {
namespace {

using platform::Date;
using platform::Value;
using testing::EditorWorld;
using testing::RunInFreshThread;

TEST(HolidayEditor, OffersEveryTypeButTheFirstWithItsCode) {
  RunInFreshThread([] {
    EditorWorld world;
    ASSERT_TRUE(world.InitToAdd());
    ASSERT_EQ(world.Types().Count(), 3);
    EXPECT_EQ(world.Types().ItemText(0), "Holiday");
    EXPECT_EQ(world.Types().ItemData(0), 2);
    EXPECT_EQ(world.Types().ItemText(2), "Holiday point");
    EXPECT_EQ(world.Types().ItemData(2), 4);
    EXPECT_EQ(world.Types().Chosen(), -1);
  });
}

TEST(HolidayEditor, ReadsTheTypesFromTheFirstRowWhereverTheirCursorStands) {
  RunInFreshThread([] {
    EditorWorld world;
    while (!world.types->Eof()) world.types->MoveNext();
    ASSERT_TRUE(world.InitToAdd());
    EXPECT_EQ(world.Types().Count(), 3);
  });
}

TEST(HolidayEditor, WithoutHolidayTypesReportsErrorThreeAndIsNotReady) {
  RunInFreshThread([] {
    EditorWorld world;
    world.types = std::make_shared<platform::RecordSet>(std::vector<std::string>{"Other"},
                                                        std::vector<std::vector<Value>>{{1}});
    EXPECT_FALSE(world.InitToAdd());
    EXPECT_EQ(world.Messages(),
              std::vector<std::string>{"Tessaro Calendar. Can't load holiday types from database"});
  });
}

TEST(HolidayEditor, WithoutARecordSetOfTypesReportsErrorThreeAndIsNotReady) {
  RunInFreshThread([] {
    EditorWorld world;
    world.types = nullptr;
    EXPECT_FALSE(world.InitToAdd());
    EXPECT_EQ(world.Messages(),
              std::vector<std::string>{"Tessaro Calendar. Can't load holiday types from database"});
  });
}

TEST(HolidayEditor, ATypeCodeThatIsNoNumberEndsTheLoadWithErrorThree) {
  RunInFreshThread([] {
    EditorWorld world;
    world.types = std::make_shared<platform::RecordSet>(
        std::vector<std::string>{"TID1", "Description1"},
        std::vector<std::vector<Value>>{{2, "Holiday"}, {"x", "Broken"}});
    EXPECT_FALSE(world.InitToAdd());
    EXPECT_EQ(world.Messages().size(), 1u);
  });
}

TEST(HolidayEditor, WithTheFirstTypeOnlyTheListIsEmptyAndOkStaysDisabled) {
  RunInFreshThread([] {
    EditorWorld world;
    world.types = std::make_shared<platform::RecordSet>(std::vector<std::string>{"TID1", "Description1"},
                                                        std::vector<std::vector<Value>>{{1, "Working day"}});
    ASSERT_TRUE(world.InitToAdd());
    EXPECT_EQ(world.Types().Count(), 0);
    world.NameBox().SetText("Anything");
    EXPECT_FALSE(world.IsEnabled("cmdOk"));
  });
}

TEST(HolidayEditor, TheWeekdayListBeginsOnTheFirstWeekdayAndNumbersThePositions) {
  const char* const kNames[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
  for (std::int32_t first = 1; first <= 7; ++first) {
    RunInFreshThread([&] {
      EditorWorld world;
      ASSERT_TRUE(world.InitToAdd(first));
      ASSERT_EQ(world.Weekdays().Count(), 7);
      for (std::int32_t i = 0; i < 7; ++i) {
        EXPECT_EQ(world.Weekdays().ItemText(i), kNames[(first - 1 + i) % 7]);
        EXPECT_EQ(world.Weekdays().ItemData(i), i + 1);
      }
    });
  }
}

TEST(HolidayEditor, ToAddIsCaptionedAddHolidayWithNothingChosenAndEverythingDisabled) {
  RunInFreshThread([] {
    EditorWorld world;
    ASSERT_TRUE(world.InitToAdd());
    EXPECT_EQ(world.Form().Caption(), "Add holiday");
    EXPECT_EQ(world.NameBox().Text(), "");
    EXPECT_EQ(world.CommentBox().Text(), "");
    EXPECT_FALSE(world.IsEnabled("frmFields"));
    EXPECT_FALSE(world.IsEnabled("cmdOk"));
    EXPECT_TRUE(world.IsEnabled("cmbHolidayType"));
  });
}

TEST(HolidayEditor, InAnUnknownModeSetsNeitherCaptionNorFieldsAndIsReady) {
  RunInFreshThread([] {
    EditorWorld world;
    world.world.log.Clear();
    EXPECT_TRUE(world.editor->Init(2, world.types, 1, nullptr, nullptr));
    EXPECT_TRUE(world.world.log.StartingWith("fmAddHoliday.SetCaption").empty());
    EXPECT_EQ(world.Types().Chosen(), -1);
  });
}

TEST(HolidayEditor, BothPickersShowDayAndMonthWithTwoBlanksBetween) {
  RunInFreshThread([] {
    EditorWorld world;
    EXPECT_EQ(world.FullDate().CustomFormat(), "d  MMMM");
    EXPECT_EQ(world.HolidayPoint().CustomFormat(), "d  MMMM");
  });
}

TEST(HolidayEditor, ShowsTodayInTheYearOfTheCalendarInBothPickers) {
  RunInFreshThread([] {
    EditorWorld world;
    world.editor->SetYear(2028);
    ASSERT_TRUE(world.InitToAdd());
    EXPECT_EQ(world.FullDate().Date(), Date(2028, 1, 15));
    EXPECT_EQ(world.HolidayPoint().Date(), Date(2028, 1, 15));
  });
}

TEST(HolidayEditor, ShowsTheLastOfFebruaryForALeapDayInACalendarOfACommonYear) {
  RunInFreshThread([] {
    EditorWorld world;
    world.FullDate().SetDate(Date(2028, 2, 29));
    world.editor->SetYear(2027);
    EXPECT_EQ(world.FullDate().Date(), Date(2027, 2, 28));
  });
}

TEST(HolidayEditor, KeepsItsYearForACalendarWhoseYearIsNone) {
  RunInFreshThread([] {
    EditorWorld world;
    for (const std::int32_t year : {0, -1, 10000, 2147483647, -2147483647 - 1}) world.editor->SetYear(year);
    EXPECT_EQ(world.FullDate().Date(), Date(2026, 1, 15));
    EXPECT_TRUE(world.Messages().empty());
  });
}

TEST(HolidayEditor, ToEditADatedRuleShowsItsDateWhateverTheYearOfTheCalendar) {
  RunInFreshThread([] {
    EditorWorld world;
    world.editor->SetYear(2028);
    ASSERT_TRUE(world.InitToEdit({8, "Christmas Day", "", 3, Date(1999, 12, 25), 12, 25, {}, {}}));
    EXPECT_EQ(world.FullDate().Date(), Date(1999, 12, 25));
  });
}

struct TypeLook {
  const char* type;
  bool weekday;
  bool full_date_label;
  bool full_date;
  bool holiday_point;
};

TEST(HolidayEditor, ShowsTheControlsThatTheChosenTypeNeeds) {
  for (const TypeLook& look :
       {TypeLook{"Holiday", true, false, false, false}, TypeLook{"Celebration", false, true, true, false},
        TypeLook{"Holiday point", false, true, false, true}}) {
    RunInFreshThread([&] {
      EditorWorld world;
      ASSERT_TRUE(world.InitToAdd());
      EXPECT_TRUE(world.IsVisible("dtpHolidayPoint")) << "while no type is chosen";
      EXPECT_FALSE(world.IsVisible("dtpFullDate"));
      world.Show([&](headless::HeadlessForm& form) {
        world.Types().ChooseByOperator(look.type);
        EXPECT_TRUE(world.IsEnabled("frmFields"));
        EXPECT_EQ(world.IsVisible("lblDayOfWeek"), look.weekday) << look.type;
        EXPECT_EQ(world.IsVisible("cmbDayOfWeek"), look.weekday) << look.type;
        EXPECT_EQ(world.IsVisible("lblFullDate"), look.full_date_label) << look.type;
        EXPECT_EQ(world.IsVisible("dtpFullDate"), look.full_date) << look.type;
        EXPECT_EQ(world.IsVisible("dtpHolidayPoint"), look.holiday_point) << look.type;
        form.Hide();
      });
    });
  }
}

TEST(HolidayEditor, ForATypeBeyondTheKnownOnesShowsTheDateLabelAndNoPicker) {
  RunInFreshThread([] {
    EditorWorld world;
    world.types = std::make_shared<platform::RecordSet>(std::vector<std::string>{"TID1", "Description1"},
                                                        std::vector<std::vector<Value>>{{5, "Special"}});
    ASSERT_TRUE(world.InitToAdd());
    world.Types().Choose(0);
    EXPECT_TRUE(world.IsVisible("lblFullDate"));
    EXPECT_FALSE(world.IsVisible("dtpFullDate"));
    EXPECT_FALSE(world.IsVisible("dtpHolidayPoint"));
  });
}

TEST(HolidayEditor, OkNeedsATypeANameAndForAWeekdayRuleAWeekday) {
  RunInFreshThread([] {
    EditorWorld world;
    ASSERT_TRUE(world.InitToAdd());
    world.Types().Choose(1);
    EXPECT_FALSE(world.IsEnabled("cmdOk")) << "no name";
    world.NameBox().SetText("   ");
    EXPECT_FALSE(world.IsEnabled("cmdOk")) << "a name of blanks";
    world.NameBox().SetText(" New Year ");
    EXPECT_TRUE(world.IsEnabled("cmdOk"));
    EXPECT_EQ(world.NameBox().Text(), " New Year ") << "typing is left alone";
    world.Types().Choose(0);
    EXPECT_FALSE(world.IsEnabled("cmdOk")) << "a weekday rule without a weekday";
    world.Weekdays().Choose(2);
    EXPECT_TRUE(world.IsEnabled("cmdOk"));
    world.Weekdays().Choose(-1);
    EXPECT_FALSE(world.IsEnabled("cmdOk"));
    world.Types().Choose(-1);
    EXPECT_FALSE(world.IsEnabled("cmdOk"));
    EXPECT_FALSE(world.IsEnabled("frmFields"));
  });
}

TEST(HolidayEditor, LeavingATextBoxRemovesItsOuterBlanks) {
  RunInFreshThread([] {
    EditorWorld world;
    ASSERT_TRUE(world.InitToAdd());
    world.Types().Choose(1);
    world.Show([&](headless::HeadlessForm& form) {
      world.NameBox().TypeText("  New  Year ");
      world.CommentBox().TypeText(" free ");
      EXPECT_EQ(world.NameBox().Text(), "New  Year");
      world.NameBox().SetFocus();
      EXPECT_EQ(world.CommentBox().Text(), "free");
      form.Hide();
    });
  });
}

TEST(HolidayEditor, ToEditAWeekdayRuleFillsItAndFixesTypeWeekdayAndDates) {
  RunInFreshThread([] {
    EditorWorld world;
    ASSERT_TRUE(
        world.InitToEdit({7, "Saturday", "weekend", std::int16_t{2}, {}, {}, {}, std::int16_t{7}, {}}));
    EXPECT_EQ(world.Form().Caption(), "Edit holiday");
    EXPECT_EQ(world.NameBox().Text(), "Saturday");
    EXPECT_EQ(world.CommentBox().Text(), "weekend");
    EXPECT_EQ(world.Types().ItemData(world.Types().Chosen()), 2);
    EXPECT_EQ(world.Weekdays().ItemData(world.Weekdays().Chosen()), 7);
    EXPECT_FALSE(world.IsEnabled("cmbHolidayType"));
    EXPECT_FALSE(world.IsEnabled("cmbDayOfWeek"));
    EXPECT_FALSE(world.IsEnabled("dtpFullDate"));
    EXPECT_FALSE(world.IsEnabled("dtpHolidayPoint"));
    EXPECT_TRUE(world.IsEnabled("cmdOk"));
    EXPECT_TRUE(world.IsVisible("cmbDayOfWeek"));
  });
}

TEST(HolidayEditor, ToEditADatedRuleShowsItsDateInBothPickersAndNoWeekday) {
  RunInFreshThread([] {
    EditorWorld world;
    ASSERT_TRUE(world.InitToEdit({8, "Christmas Day", "", 3, Date(1999, 12, 25), 12, 25, {}, {}}));
    EXPECT_EQ(world.FullDate().Date(), Date(1999, 12, 25));
    EXPECT_EQ(world.HolidayPoint().Date(), Date(1999, 12, 25));
    EXPECT_FALSE(world.IsEnabled("cmbDayOfWeek"));
    EXPECT_EQ(world.Weekdays().Chosen(), -1);
    EXPECT_FALSE(world.IsEnabled("dtpFullDate"));
    EXPECT_FALSE(world.IsEnabled("dtpHolidayPoint"));
  });
}

TEST(HolidayEditor, ToEditARuleWithoutNameOrCommentFillsTheRest) {
  RunInFreshThread([] {
    EditorWorld world;
    ASSERT_TRUE(world.InitToEdit({8, {}, {}, 3, Date(2026, 5, 1), 5, 1, {}, {}}));
    EXPECT_EQ(world.NameBox().Text(), "");
    EXPECT_EQ(world.CommentBox().Text(), "");
    EXPECT_EQ(world.FullDate().Date(), Date(2026, 5, 1));
    EXPECT_FALSE(world.IsEnabled("cmdOk"));
    EXPECT_TRUE(world.Messages().empty());
    EXPECT_TRUE(world.world.services->Reports().empty());
  });
}

TEST(HolidayEditor, ToEditARuleNamedByBlanksKeepsOkDisabledUntilItHasAName) {
  RunInFreshThread([] {
    EditorWorld world;
    ASSERT_TRUE(world.InitToEdit({8, "   ", "", 3, Date(2026, 5, 1), 5, 1, {}, {}}));
    EXPECT_FALSE(world.IsEnabled("cmdOk"));
    world.NameBox().SetText("May Day");
    EXPECT_TRUE(world.IsEnabled("cmdOk"));
  });
}

TEST(HolidayEditor, ToEditARuleWithoutADateLeavesThePickersAtTodayAndDisabled) {
  RunInFreshThread([] {
    EditorWorld world;
    ASSERT_TRUE(world.InitToEdit({8, "Dateless", "", 3, {}, {}, {}, {}, {}}));
    EXPECT_EQ(world.FullDate().Date(), Date(2026, 1, 15));
    EXPECT_FALSE(world.IsEnabled("dtpFullDate"));
  });
}

TEST(HolidayEditor, ToEditARuleOfATypeThatIsNotOfferedReportsErrorEightAndEndsTheFill) {
  for (const Value& type : {Value(1), Value(9), Value()}) {
    RunInFreshThread([&] {
      EditorWorld world;
      EXPECT_FALSE(world.InitToEdit({8, "Odd", "", type, Date(1999, 12, 25), 12, 25, {}, {}}));
      EXPECT_EQ(world.Messages(),
                std::vector<std::string>{"Tessaro Calendar. Can't define correction holiday type"});
      EXPECT_EQ(world.NameBox().Text(), "Odd") << "filled before the type";
      EXPECT_TRUE(world.IsEnabled("cmbHolidayType"));
      EXPECT_EQ(world.FullDate().Date(), Date(2026, 1, 15)) << "not filled any more";
    });
  }
}

TEST(HolidayEditor, ToEditARuleOfAWeekdayThatIsNoneReportsErrorNine) {
  for (const Value& weekday : {Value(0), Value(8), Value("x")}) {
    RunInFreshThread([&] {
      EditorWorld world;
      EXPECT_FALSE(world.InitToEdit({8, "Odd", "", 2, {}, {}, {}, weekday, {}}));
      EXPECT_EQ(world.Messages(),
                std::vector<std::string>{"Tessaro Calendar. Can't define correction weekday"});
      EXPECT_FALSE(world.IsEnabled("cmbHolidayType")) << "the type was filled before";
    });
  }
}

TEST(HolidayEditor, ToEditARuleOfWhichFieldsAreMissingOrNoDateFillsTheRestAndSaysNothing) {
  RunInFreshThread([] {
    EditorWorld world;
    world.row = std::make_shared<platform::RecordSet>(std::vector<std::string>{"Name1", "TID1"},
                                                      std::vector<std::vector<Value>>{{"Short", 3}});
    EXPECT_TRUE(world.editor->Init(kEditRule, world.types, 1, world.row, world.column_map));
    EXPECT_EQ(world.NameBox().Text(), "Short");
    for (const char* control : {"cmbHolidayType", "cmbDayOfWeek", "dtpFullDate", "dtpHolidayPoint"}) {
      EXPECT_FALSE(world.IsEnabled(control)) << control;
    }
    EXPECT_TRUE(world.Messages().empty());
    EXPECT_TRUE(world.world.services->Reports().empty());
  });
  RunInFreshThread([] {
    EditorWorld world;
    EXPECT_TRUE(world.InitToEdit({8, "Undated", "", 3, "no date", 5, 1, {}, {}}));
    EXPECT_EQ(world.FullDate().Date(), Date(2026, 1, 15));
    EXPECT_FALSE(world.IsEnabled("dtpFullDate"));
    EXPECT_FALSE(world.IsEnabled("dtpHolidayPoint"));
    EXPECT_TRUE(world.Messages().empty());
    EXPECT_TRUE(world.world.services->Reports().empty());
  });
}

TEST(HolidayEditor, ToEditWithoutARowReportsErrorEight) {
  RunInFreshThread([] {
    EditorWorld world;
    EXPECT_FALSE(world.editor->Init(kEditRule, world.types, 1, nullptr, world.column_map));
    EXPECT_EQ(world.Messages(),
              std::vector<std::string>{"Tessaro Calendar. Can't define correction holiday type"});
  });
}

}  // namespace
}  // namespace ferrowind
