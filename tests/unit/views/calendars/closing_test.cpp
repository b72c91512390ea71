// How the Calendars window sizes itself, closes, and asks whether to.
#include <memory>
#include <optional>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_grid.h"

#include "tests/unit/views/calendars/calendars_world.h"

namespace ferrowind {
namespace {

using headless::HeadlessButton;
using headless::HeadlessForm;
using testing::CalendarsWorld;
using ::testing::ElementsAre;
using testing::ExpectInOrder;
using testing::RunInFreshThread;

const std::string kSaveLayout =
    std::string("services.SaveGridLayout(gexCalendar, \"") + testing::kLayoutSection + "\")";
const std::string kWrite = std::string("services.WriteSetting(\"") + testing::kPlacementSection + "\", ";

void Answer(CalendarsWorld& calendars, const std::string& button) {
  calendars.world.toolkit.ScriptModal(
      "fmMessage", [button](HeadlessForm& form) { form.Part<HeadlessButton>(button).Click(); });
}

TEST(CalendarsClosing, RaisesOnClosingThenSavesLayoutAndPlacementThenLetsPendingEventsRun) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    auto& form = calendars.Form();
    form.SetLeft(10);
    form.SetTop(20);
    form.SetWidth(5000);
    form.SetHeight(4000);
    calendars.world.log.Clear();
    const auto closing = calendars.window->OnClosing([&] { calendars.world.log.Record("OnClosing"); });
    EXPECT_TRUE(form.CloseByOperator());
    EXPECT_THAT(calendars.world.log.Calls(),
                ElementsAre("operator.fmCalendar.CloseByOperator()", "OnClosing", kSaveLayout,
                            kWrite + R"("Left", 10))", kWrite + R"("Top", 20))", kWrite + R"("Width", 5000))",
                            kWrite + R"("Height", 4000))", "toolkit.ProcessPendingEvents()"));
    EXPECT_TRUE(form.HasUnloaded());
  });
}

TEST(CalendarsClosing, SurvivesBeingDroppedByTheHandlerOfOnClosing) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    const auto form = calendars.Form().shared_from_this();
    const std::weak_ptr<fmCalendar> observer = calendars.window;
    platform::Subscription closing = calendars.window->OnClosing([&] { calendars.window.reset(); });
    EXPECT_TRUE(form->CloseByOperator());
    EXPECT_TRUE(observer.expired());
    EXPECT_TRUE(calendars.world.log.Contains(kSaveLayout));
    EXPECT_TRUE(calendars.world.log.Contains("toolkit.ProcessPendingEvents()"));
  });
}

TEST(CalendarsClosing, TakesItsOpenDialogAlongAndLivesUntilThatHasReturned) {
  struct DialogTool {
    const char* dialog;
    void (*open)(CalendarsWorld& calendars);
  };
  static constexpr DialogTool kTools[] = {
      {"fmExceptMess", [](CalendarsWorld& calendars) { calendars.ChooseForDay(1, "ID_Except2"); }},
      {"fmSelectYear", [](CalendarsWorld& calendars) { calendars.Click("ID_New"); }}};
  for (const DialogTool& tool : kTools) {
    RunInFreshThread([&tool] {
      CalendarsWorld calendars;
      calendars.OpenAt("K978_2026");
      const auto form = calendars.Form().shared_from_this();
      const std::weak_ptr<fmCalendar> observer = calendars.window;
      auto* const window = calendars.window.get();
      const auto closing = window->OnClosing([&] { calendars.window.reset(); });
      calendars.world.toolkit.ScriptModal(tool.dialog, [&](HeadlessForm& dialog) {
        EXPECT_TRUE(window->ForceClosing());
        EXPECT_FALSE(dialog.IsShown());
        EXPECT_FALSE(observer.expired());
        calendars.world.log.Clear();
      });
      tool.open(calendars);
      EXPECT_TRUE(form->HasUnloaded());
      EXPECT_TRUE(observer.expired());
      EXPECT_TRUE(calendars.SeenByOperator().empty());
      EXPECT_TRUE(calendars.world.log.StartingWith("command.").empty());
      EXPECT_TRUE(calendars.world.log.StartingWith("tvCalendar.").empty());
      EXPECT_EQ(calendars.world.toolkit.LockedElement(), "");
    });
  }
}

TEST(CalendarsClosing, TakesTheHolidaysWindowAndWhatIsOpenOnItAlong) {
  struct Command {
    const char* button;
    const char* dialog;
  };
  for (const Command command : {Command{"cmdAction0", "fmAddHoliday"}, Command{"cmdAction2", "fmMessage"}}) {
    RunInFreshThread([command] {
      CalendarsWorld calendars;
      calendars.OpenAt("K978_2026");
      calendars.AnswerAllInfoWithARule();
      auto& toolkit = calendars.world.toolkit;
      toolkit.ScriptModal("fmEnterHolidays", [&](HeadlessForm& holidays) {
        holidays.Part<headless::HeadlessGrid>("gexHolidays").ClickRow(1);
        holidays.Part<HeadlessButton>(command.button).Click();
        EXPECT_TRUE(holidays.HasUnloaded());
      });
      toolkit.ScriptModal(command.dialog, [&](HeadlessForm& dialog) {
        EXPECT_TRUE(calendars.window->ForceClosing());
        EXPECT_FALSE(dialog.IsShown());
        calendars.world.log.Clear();
      });
      calendars.ChooseForDay(1, "ID_AssignMany");
      EXPECT_TRUE(calendars.Form().HasUnloaded());
      EXPECT_TRUE(calendars.SeenByOperator().empty());
      EXPECT_TRUE(calendars.world.log.StartingWith("command.").empty());
    });
  }
}

TEST(CalendarsClosing, WhileADialogThatWasAnsweredClosesReloadsNothing) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    platform::Subscription closing;
    calendars.world.toolkit.ScriptModal("fmSelectYear", [&](HeadlessForm& dialog) {
      closing = dialog.OnCloseQuery([&](bool&) {
        EXPECT_TRUE(calendars.window->ForceClosing());
        calendars.world.log.Clear();
      });
      dialog.Part<HeadlessButton>("cmdCreate").Click();
    });
    calendars.Click("ID_New");
    EXPECT_EQ(calendars.CallsOf("CldIUMain").size(), 1u);
    EXPECT_TRUE(calendars.world.log.StartingWith("command.").empty());
    EXPECT_TRUE(calendars.world.log.StartingWith("tvCalendar.").empty());
  });
}

TEST(CalendarsClosing, WhileTheEditorThatWasAnsweredClosesReloadsNothing) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.AnswerAllInfoWithARule();
    auto& toolkit = calendars.world.toolkit;
    platform::Subscription closing;
    toolkit.ScriptModal("fmEnterHolidays",
                        [](HeadlessForm& holidays) { holidays.Part<HeadlessButton>("cmdAction0").Click(); });
    toolkit.ScriptModal("fmAddHoliday", [&](HeadlessForm& editor) {
      closing = editor.OnCloseQuery([&](bool&) {
        EXPECT_TRUE(calendars.window->ForceClosing());
        calendars.world.log.Clear();
      });
      EXPECT_TRUE(editor.CloseByOperator());
    });
    calendars.ChooseForDay(1, "ID_AssignMany");
    EXPECT_TRUE(calendars.world.log.StartingWith("command.").empty());
    EXPECT_TRUE(calendars.SeenByOperator().empty());
  });
}

TEST(CalendarsClosing, AFailureOfTheSettingsIsReportedAndTheWindowClosesAllTheSame) {
  for (int call = 1; call <= 5; ++call) {
    RunInFreshThread([call] {
      CalendarsWorld calendars;
      calendars.Open();
      calendars.world.faults.FailAtCall(call);
      EXPECT_TRUE(calendars.Form().CloseByOperator());
      EXPECT_TRUE(calendars.world.faults.HasFired());
      EXPECT_TRUE(calendars.Form().HasUnloaded());
      EXPECT_EQ(calendars.world.services->Reports().size(), 1u);
    });
  }
}

TEST(CalendarsForceClosing, ClosesTheWindowAndIsTrue) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    int closings = 0;
    const auto closing = calendars.window->OnClosing([&] { ++closings; });
    EXPECT_TRUE(calendars.window->ForceClosing());
    EXPECT_EQ(closings, 1);
    EXPECT_TRUE(calendars.Form().HasUnloaded());
    ExpectInOrder(calendars.world.log,
                  {"fmCalendar.Unload()", kSaveLayout, "toolkit.ProcessPendingEvents()"});
  });
}

TEST(CalendarsForceClosing, AsksAnOpenHolidaysWindowFirstAndClosesNothingWhenThatRefuses) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    auto& holidays = calendars.UseFakeHolidaysWindow();
    holidays.agrees_to_close = false;
    int closings = 0;
    const auto closing = calendars.window->OnClosing([&] { ++closings; });
    std::optional<bool> has_closed;
    holidays.while_shown = [&] { has_closed = calendars.window->ForceClosing(); };
    calendars.ChooseForDay(1, "ID_AssignMany");
    EXPECT_EQ(has_closed, std::optional(false));
    EXPECT_EQ(closings, 0);
    EXPECT_FALSE(calendars.Form().HasUnloaded());
    EXPECT_TRUE(calendars.Form().IsShown());
    EXPECT_EQ(calendars.world.log.CountOf("holidays.ForceClosing()"), 1u);
    EXPECT_FALSE(calendars.world.log.Contains("fmCalendar.Unload()"));
  });
}

TEST(CalendarsForceClosing, ThatWasRefusedAsksAgainTheNextTime) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    auto& holidays = calendars.UseFakeHolidaysWindow();
    holidays.while_shown = [&] {
      holidays.agrees_to_close = false;
      EXPECT_FALSE(calendars.window->ForceClosing());
      holidays.agrees_to_close = true;
      EXPECT_TRUE(calendars.window->ForceClosing());
    };
    calendars.ChooseForDay(1, "ID_AssignMany");
    EXPECT_EQ(calendars.world.log.CountOf("holidays.ForceClosing()"), 2u);
    EXPECT_TRUE(calendars.Form().HasUnloaded());
  });
}

TEST(CalendarsForceClosing, WhileTheHolidaysWindowAgreesForgetsItAndClosesBoth) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    auto& holidays = calendars.UseFakeHolidaysWindow();
    std::optional<bool> has_closed;
    holidays.while_shown = [&] {
      has_closed = calendars.window->ForceClosing();
      // Its owner has forgotten it: only the command under way and this test still hold it.
      EXPECT_EQ(calendars.window->holidays.use_count(), 2);
    };
    calendars.ChooseForDay(1, "ID_AssignMany");
    EXPECT_EQ(has_closed, std::optional(true));
    ExpectInOrder(calendars.world.log, {"holidays.ForceClosing()", "fmCalendar.Unload()"});
    EXPECT_TRUE(calendars.Form().HasUnloaded());
  });
}

TEST(CalendarsForceClosing, DuringItsOwnClosingDoesNotCloseTwice) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    int closings = 0;
    const auto closing = calendars.window->OnClosing([&] {
      ++closings;
      static_cast<void>(calendars.window->ForceClosing());
    });
    EXPECT_TRUE(calendars.window->ForceClosing());
    EXPECT_EQ(closings, 1);
    EXPECT_EQ(calendars.world.log.CountOf(kSaveLayout), 1u);
  });
}

TEST(CalendarsResize, GivesTheSplitterTheInnerHeightLessTheUpperPane) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    calendars.Form().ControlNamed("ssspUp").SetHeight(600);
    calendars.Form().ResizeByOperator(9000, 8000 + HeadlessForm::kFrameHeight);
    EXPECT_EQ(calendars.Form().ControlNamed("sssp").Height(), 7400);
  });
}

TEST(CalendarsResize, ThatLeavesNoRoomIsIgnored) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    calendars.Form().ControlNamed("ssspUp").SetHeight(600);
    calendars.Form().ResizeByOperator(9000, 8000 + HeadlessForm::kFrameHeight);
    calendars.Form().ResizeByOperator(2000, 500);
    EXPECT_EQ(calendars.Form().ControlNamed("sssp").Height(), 7400);
    EXPECT_TRUE(calendars.SeenByOperator().empty());
  });
}

TEST(CalendarsExitQuestion, IsTrueForCancelAloneByIntention) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    Answer(calendars, "cmdOk");
    EXPECT_EQ(calendars.window->AskToExit(), std::optional(false));
    Answer(calendars, "cmdCancel");
    EXPECT_EQ(calendars.window->AskToExit(), std::optional(true));
  });
}

TEST(CalendarsExitQuestion, HasItsTitleAndTextAndBothButtons) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    Answer(calendars, "cmdOk");
    static_cast<void>(calendars.window->AskToExit());
    ExpectInOrder(calendars.world.log,
                  {R"(lblMessage.SetText("You wish exit calendars. Ok ?"))",
                   R"(fmMessage.SetCaption("Exit from calendars"))", "cmdCancel.SetVisible(True)",
                   "fmMessage.ShowModal()", "fmMessage.Unload()"});
  });
}

TEST(CalendarsExitQuestion, IsNotAskedByClosingTheWindow) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    EXPECT_TRUE(calendars.Form().CloseByOperator());
    EXPECT_EQ(calendars.world.toolkit.CountOfForms("fmMessage"), 0u);
  });
}

}  // namespace
}  // namespace ferrowind
