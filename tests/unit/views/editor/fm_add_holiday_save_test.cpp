#include <gtest/gtest.h>

#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/views/editor/editor_world.h"

namespace ferrowind {
namespace {

using platform::Date;
using platform::Value;
using testing::EditorWorld;
using testing::RunInFreshThread;
using Parameters = std::vector<std::pair<std::string, Value>>;

TEST(HolidayEditorSave, AWeekdayRuleCarriesItsWeekdayAndNoDate) {
  RunInFreshThread([] {
    EditorWorld world;
    ASSERT_TRUE(world.InitToAdd(2));
    world.Types().Choose(0);
    world.NameBox().SetText(" Monday ");
    world.CommentBox().SetText(" first ");
    world.Weekdays().Choose(0);
    world.ClickOk();
    ASSERT_EQ(world.world.commands.CallsOf("CldIUCelebrate").size(), 1u);
    EXPECT_EQ(
        world.world.commands.CallsOf("CldIUCelebrate")[0].parameters,
        (Parameters{{"@Name1", "Monday"}, {"@Comment", "first"}, {"@TID1", 2}, {"@WD", std::int16_t{1}}}))
        << "the list position is saved, whatever weekday it names";
    EXPECT_EQ(world.editor->Result(), 0);
    EXPECT_TRUE(world.Form().HasUnloaded());
    EXPECT_TRUE(world.Messages().empty());
  });
}

TEST(HolidayEditorSave, EscIsCancel) {
  RunInFreshThread([] {
    EditorWorld world;
    ASSERT_TRUE(world.InitToAdd());
    world.Types().Choose(1);
    world.NameBox().SetText("Nothing");
    world.Show([](headless::HeadlessForm& form) { form.PressEscape(); });
    EXPECT_EQ(world.editor->Result(), 1);
    EXPECT_TRUE(world.Form().HasUnloaded());
    EXPECT_TRUE(world.world.commands.CallsOf("CldIUCelebrate").empty());
  });
}

TEST(HolidayEditorSave, EveryWeekdayPositionIsSavedAsItself) {
  for (std::int32_t position = 1; position <= 7; ++position) {
    RunInFreshThread([&] {
      EditorWorld world;
      ASSERT_TRUE(world.InitToAdd());
      world.Types().Choose(0);
      world.NameBox().SetText("Weekday");
      world.Weekdays().Choose(position - 1);
      world.ClickOk();
      EXPECT_EQ(world.world.commands.CallsOf("CldIUCelebrate").at(0).Parameter("@WD"),
                Value(static_cast<std::int16_t>(position)));
    });
  }
}

TEST(HolidayEditorSave, AFullDateRuleTakesTheDateOfTheFullDatePicker) {
  RunInFreshThread([] {
    EditorWorld world;
    ASSERT_TRUE(world.InitToAdd());
    world.Types().Choose(1);
    world.NameBox().SetText("Labour Day");
    world.FullDate().SetDate(Date(2026, 5, 1));
    world.HolidayPoint().SetDate(Date(2026, 6, 2));
    world.ClickOk();
    EXPECT_EQ(world.world.commands.CallsOf("CldIUCelebrate").at(0).parameters,
              (Parameters{{"@Name1", "Labour Day"},
                          {"@Comment", ""},
                          {"@TID1", 3},
                          {"@D1", Date(2026, 5, 1)},
                          {"@MY", std::int16_t{5}},
                          {"@MD", std::int16_t{1}}}));
  });
}

TEST(HolidayEditorSave, AHolidayPointRuleTakesTheDateOfTheHolidayPointPicker) {
  RunInFreshThread([] {
    EditorWorld world;
    ASSERT_TRUE(world.InitToAdd());
    world.Types().Choose(2);
    world.NameBox().SetText("Easter");
    world.FullDate().SetDate(Date(2026, 5, 1));
    world.HolidayPoint().SetDate(Date(2028, 2, 29));
    world.ClickOk();
    const auto call = world.world.commands.CallsOf("CldIUCelebrate").at(0);
    EXPECT_EQ(call.Parameter("@D1"), Value(Date(2028, 2, 29)));
    EXPECT_EQ(call.Parameter("@MY"), Value(std::int16_t{2}));
    EXPECT_EQ(call.Parameter("@MD"), Value(std::int16_t{29}));
  });
}

TEST(HolidayEditorSave, ARuleOfAFurtherTypeTakesTheHiddenHolidayPointPicker) {
  RunInFreshThread([] {
    EditorWorld world;
    world.types = std::make_shared<platform::RecordSet>(std::vector<std::string>{"TID1", "Description1"},
                                                        std::vector<std::vector<Value>>{{5, "Special"}});
    ASSERT_TRUE(world.InitToAdd());
    world.Types().Choose(0);
    world.NameBox().SetText("Odd");
    world.HolidayPoint().SetDate(Date(2026, 6, 2));
    world.ClickOk();
    EXPECT_EQ(world.world.commands.CallsOf("CldIUCelebrate").at(0).Parameter("@D1"), Value(Date(2026, 6, 2)));
  });
}

TEST(HolidayEditorSave, ADateThatCannotBeReadIsNotSavedAndTheDialogStaysOnIt) {
  for (const std::int32_t type : {1, 2}) {
    RunInFreshThread([&] {
      EditorWorld world;
      ASSERT_TRUE(world.InitToAdd());
      world.Types().Choose(type);
      world.NameBox().SetText("Celebration");
      auto& picker = type == 1 ? world.FullDate() : world.HolidayPoint();
      world.Show([&](headless::HeadlessForm& form) {
        picker.TypeNoDate("31 April");
        form.Part<headless::HeadlessButton>("cmdOk").Click();
        EXPECT_TRUE(form.IsShown());
        EXPECT_EQ(form.FocusedControl(), picker.Name());
        EXPECT_EQ(picker.RefusedText(), "31 April");
        EXPECT_EQ(world.world.toolkit.BeepCount(), 1);
        EXPECT_TRUE(world.world.commands.Calls().empty());
        picker.PickDate(Date(2026, 4, 30));
        form.Part<headless::HeadlessButton>("cmdOk").Click();
      });
      ASSERT_EQ(world.world.commands.CallsOf("CldIUCelebrate").size(), 1u);
      EXPECT_EQ(world.world.commands.CallsOf("CldIUCelebrate")[0].Parameter("@D1"), Value(Date(2026, 4, 30)));
      EXPECT_TRUE(world.Messages().empty());
    });
  }
}

TEST(HolidayEditorSave, ADateThatCannotBeReadCanStillBeCancelled) {
  RunInFreshThread([] {
    EditorWorld world;
    ASSERT_TRUE(world.InitToAdd());
    world.Types().Choose(1);
    world.NameBox().SetText("Celebration");
    world.Show([&](headless::HeadlessForm& form) {
      world.FullDate().TypeNoDate("31 April");
      form.Part<headless::HeadlessButton>("cmdOk").Click();
      form.Part<headless::HeadlessButton>("cmdCancel").Click();
    });
    EXPECT_EQ(world.editor->Result(), 1);
    EXPECT_TRUE(world.world.commands.Calls().empty());
  });
}

TEST(HolidayEditorSave, OnlyTheDateOfTheChosenTypeHasToBeOne) {
  RunInFreshThread([] {
    EditorWorld world;
    ASSERT_TRUE(world.InitToAdd());
    world.NameBox().SetText("Celebration");
    world.Show([&](headless::HeadlessForm& form) {
      world.Types().ChooseByOperator("Holiday point");
      world.HolidayPoint().TypeNoDate("31 April");
      world.Types().ChooseByOperator("Celebration");
      form.Part<headless::HeadlessButton>("cmdOk").Click();
    });
    EXPECT_EQ(world.world.commands.CallsOf("CldIUCelebrate").size(), 1u);
  });
}

TEST(HolidayEditorSave, AHiddenPickerGivesTheLastDayThatItShowed) {
  RunInFreshThread([] {
    EditorWorld world;
    world.types = std::make_shared<platform::RecordSet>(
        std::vector<std::string>{"TID1", "Description1"},
        std::vector<std::vector<Value>>{{4, "Holiday point"}, {5, "Special"}});
    ASSERT_TRUE(world.InitToAdd());
    world.NameBox().SetText("Odd");
    world.Show([&](headless::HeadlessForm& form) {
      world.Types().ChooseByOperator("Holiday point");
      world.HolidayPoint().PickDate(Date(2026, 6, 2));
      world.HolidayPoint().TypeNoDate("31 April");
      world.Types().ChooseByOperator("Special");
      form.Part<headless::HeadlessButton>("cmdOk").Click();
    });
    EXPECT_EQ(world.world.commands.CallsOf("CldIUCelebrate").at(0).Parameter("@D1"), Value(Date(2026, 6, 2)));
  });
}

TEST(HolidayEditorSave, ANewRuleLiesInTheYearOfTheCalendar) {
  RunInFreshThread([] {
    EditorWorld world;
    world.editor->SetYear(2028);
    ASSERT_TRUE(world.InitToAdd());
    world.Types().Choose(1);
    world.NameBox().SetText("Today");
    world.ClickOk();
    EXPECT_EQ(world.world.commands.CallsOf("CldIUCelebrate").at(0).Parameter("@D1"),
              Value(Date(2028, 1, 15)));
  });
}

TEST(HolidayEditorSave, AnEditedRuleIsNamedByItsIdentifierLast) {
  RunInFreshThread([] {
    EditorWorld world;
    ASSERT_TRUE(world.InitToEdit({8, "Christmas Day", "old", 3, Date(1999, 12, 25), 12, 25, {}, {}}));
    world.CommentBox().SetText("new");
    world.ClickOk();
    EXPECT_EQ(world.world.commands.CallsOf("CldIUCelebrate").at(0).parameters,
              (Parameters{{"@Name1", "Christmas Day"},
                          {"@Comment", "new"},
                          {"@TID1", 3},
                          {"@D1", Date(1999, 12, 25)},
                          {"@MY", std::int16_t{12}},
                          {"@MD", std::int16_t{25}},
                          {"@ID2", 8}}));
  });
}

TEST(HolidayEditorSave, AnEditedRuleWithoutAnIdentifierIsSavedWithoutOne) {
  RunInFreshThread([] {
    EditorWorld world;
    world.row = std::make_shared<platform::RecordSet>(std::vector<std::string>{"Name1", "TID1"},
                                                      std::vector<std::vector<Value>>{{"Short", 3}});
    ASSERT_TRUE(world.editor->Init(kEditRule, world.types, 1, world.row, world.column_map));
    world.ClickOk();
    ASSERT_EQ(world.world.commands.CallsOf("CldIUCelebrate").size(), 1u);
    EXPECT_EQ(world.world.commands.CallsOf("CldIUCelebrate")[0].parameters.back().first, "@MD");
    EXPECT_TRUE(world.Messages().empty());
    EXPECT_TRUE(world.Form().HasUnloaded());
  });
}

TEST(HolidayEditorSave, ReturnValuesTwoAndTenReportTheDuplicateName) {
  for (const std::int32_t value : {2, 10}) {
    RunInFreshThread([&] {
      EditorWorld world;
      world.AnswerWith(value);
      ASSERT_TRUE(world.InitToEdit({8, "Christmas Day", "", 3, Date(1999, 12, 25), 12, 25, {}, {}}));
      world.ClickOk();
      EXPECT_EQ(world.Messages(),
                std::vector<std::string>{"Tessaro Calendar. There is duplicate holiday name"});
      EXPECT_EQ(world.editor->Result(), 0) << "closes as after a save";
      EXPECT_TRUE(world.Form().HasUnloaded());
    });
  }
}

TEST(HolidayEditorSave, AnyOtherReturnValueReportsThatTheRuleWasNotSaved) {
  for (const std::int32_t value : {1, 3, 7, -1}) {
    RunInFreshThread([&] {
      EditorWorld world;
      world.AnswerWith(value);
      ASSERT_TRUE(world.InitToEdit({8, "Christmas Day", "", 3, Date(1999, 12, 25), 12, 25, {}, {}}));
      world.ClickOk();
      EXPECT_EQ(world.Messages(),
                std::vector<std::string>{"Tessaro Calendar. Can't add holiday to database"});
      EXPECT_EQ(world.editor->Result(), 0);
    });
  }
}

TEST(HolidayEditorSave, AFailedCallReportsItsCauseFirst) {
  RunInFreshThread([] {
    EditorWorld world;
    world.world.commands.FailAt(headless::CommandStep::kExecute, platform::Failure(77, "disk full"));
    ASSERT_TRUE(world.InitToEdit({8, "Christmas Day", "", 3, Date(1999, 12, 25), 12, 25, {}, {}}));
    world.ClickOk();
    ASSERT_EQ(world.world.services->Reports().size(), 1u);
    EXPECT_EQ(world.world.services->Reports()[0], (headless::ReportedError{77, "disk full"}));
    EXPECT_EQ(world.Messages(), std::vector<std::string>{"Tessaro Calendar. Can't add holiday to database"});
  });
}

TEST(HolidayEditorSave, OkHidesLetsMessagesRunAndUnloadsInThisOrder) {
  RunInFreshThread([] {
    EditorWorld world;
    ASSERT_TRUE(world.InitToEdit({8, "Christmas Day", "", 3, Date(1999, 12, 25), 12, 25, {}, {}}));
    world.ClickOk();
    const auto& log = world.world.log;
    const auto executed = log.StartingWith("command.Execute");
    ASSERT_EQ(executed.size(), 1u);
    const auto hide = log.PositionOf("fmAddHoliday.Hide()");
    const auto pending = log.PositionOf("toolkit.ProcessPendingEvents()");
    const auto unload = log.PositionOf("fmAddHoliday.Unload()");
    ASSERT_TRUE(hide && pending && unload);
    EXPECT_LT(*log.PositionOf(executed[0]), *hide);
    EXPECT_LT(*hide, *pending);
    EXPECT_LT(*pending, *unload);
  });
}

TEST(HolidayEditorSave, CancelStoresNothingAndReportsOne) {
  RunInFreshThread([] {
    EditorWorld world;
    ASSERT_TRUE(world.InitToEdit({8, "Christmas Day", "", 3, Date(1999, 12, 25), 12, 25, {}, {}}));
    world.Show(
        [](headless::HeadlessForm& form) { form.Part<headless::HeadlessButton>("cmdCancel").Click(); });
    EXPECT_EQ(world.editor->Result(), 1);
    EXPECT_TRUE(world.world.commands.Calls().empty());
    EXPECT_TRUE(world.Form().HasUnloaded());
  });
}

TEST(HolidayEditorSave, ClosingTheFrameStoresNothingAndLeavesTheResultAtZero) {
  RunInFreshThread([] {
    EditorWorld world;
    ASSERT_TRUE(world.InitToEdit({8, "Christmas Day", "", 3, Date(1999, 12, 25), 12, 25, {}, {}}));
    world.Show([](headless::HeadlessForm& form) { EXPECT_TRUE(form.CloseByOperator()); });
    EXPECT_EQ(world.editor->Result(), 0);
    EXPECT_TRUE(world.world.commands.Calls().empty());
  });
}

TEST(HolidayEditorSave, ANameOfTenThousandCharactersIsSavedWhole) {
  RunInFreshThread([] {
    EditorWorld world;
    const std::string name(10000, 'n');
    ASSERT_TRUE(world.InitToAdd());
    world.Types().Choose(1);
    world.NameBox().SetText(name);
    world.ClickOk();
    EXPECT_EQ(world.world.commands.CallsOf("CldIUCelebrate").at(0).Parameter("@Name1"), Value(name));
  });
}

TEST(HolidayEditorSave, ATextThatIsRefusedForItsLengthIsNamedBeforeTheMessage) {
  RunInFreshThread([] {
    EditorWorld world;
    ASSERT_TRUE(world.InitToAdd());
    world.AnswerWith(7);
    world.Types().Choose(0);
    world.Weekdays().Choose(0);
    world.NameBox().SetText(std::string(201, 'n'));
    world.ClickOk();
    EXPECT_EQ(world.world.services->Reports().at(0).description,
              "The name has 201 characters; it may have 200 at most");
    EXPECT_EQ(world.Messages().size(), 1U);
  });
}

}  // namespace
}  // namespace ferrowind
