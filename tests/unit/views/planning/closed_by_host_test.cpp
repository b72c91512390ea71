// The host closes all windows, or an answered dialog is still closing, while the additions of planning ask.
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_text_box.h"
#include "ferrowind/adapters/headless/headless_year_view.h"

#include "tests/support/component_world.h"
#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/views/planning/planned_window.h"

namespace ferrowind {
namespace {

using headless::HeadlessButton;
using headless::HeadlessForm;
using platform::Date;
using ::testing::IsEmpty;
using testing::PlannedWindow;
using testing::RunInFreshThread;

constexpr std::int32_t kGoodFriday = 5;
const Date kDay(2028, 4, 14);

const Date kUndoableDay(2028, 5, 2);

/// The Calendars window at Good Friday of EUR 2028, in which the operator has excepted `kUndoableDay`.
class HostWorld : public PlannedWindow {
 public:
  HostWorld() {
    Give(kDay, kGoodFriday);
    Give(kDay.AddDays(3), kGoodFriday);
    Give(kUndoableDay, kGoodFriday);
    OpenAt(kDay);
    ChooseFor(kUndoableDay, "ID_Except");
    ClickDay(kDay);
    calendars_ = std::static_pointer_cast<HeadlessForm>(Form().shared_from_this());
  }

  void ChooseFor(const Date& day, const std::string& tool) {
    Tools().ChooseFromNextPopup(tool);
    Grid().RightClickRow(day.DayOfYear());
  }
  void CloseAll() {
    EXPECT_TRUE(window->ForceClosing());
    EXPECT_TRUE(windows.CloseAll());
    entries_ = EntryCount();
    forms_ = FormCount();
    world.log.Clear();
    // Counts the calls from now on.
    world.faults.FailAtCall(kNever);
  }
  /// Nobody is left to tell anything, or to read anything for.
  void ExpectAllClosed() {
    EXPECT_TRUE(calendars_->HasUnloaded());
    EXPECT_THAT(testing::SeenByOperator(world.log), IsEmpty());
    EXPECT_EQ(world.toolkit.LockedElement(), "");
    EXPECT_EQ(world.toolkit.WaitingTimers(), 0U);
    EXPECT_EQ(FormCount(), forms_) << "a window was opened";
  }
  void ExpectNothingDone() {
    // That the question was interrupted is traced.
    EXPECT_LE(world.faults.CallCount(), 1);
    EXPECT_EQ(EntryCount(), entries_);
  }

 private:
  static constexpr int kNever = 1'000'000;

  [[nodiscard]] std::size_t EntryCount() const { return world.database->History().size(); }
  [[nodiscard]] std::size_t FormCount() const {
    return world.toolkit.CountOfForms("fmYearPlan") + world.toolkit.CountOfForms("fmMessage") +
           world.toolkit.CountOfForms("fmCalendarThen");
  }

  std::shared_ptr<HeadlessForm> calendars_;
  std::size_t entries_ = 0;
  std::size_t forms_ = 0;
};

/// A question of an addition or of a window of planning.
struct Asking {
  const char* what;
  const char* dialog;
  void (*ask)(HostWorld& host);
  /// The answer that changes most.
  const char* yes;
};

void OpenPlanner(HostWorld& host) {
  host.windows.OpenYearPlanner({HostWorld::kEuro}, 2028);
  auto& view = host.world.toolkit.FormNamed("fmYearPlanner").Part<headless::HeadlessYearView>("yvYear");
  view.ClickDay({"978", static_cast<std::int16_t>(kDay.DayOfYear() - 1)});
  view.ExtendToDay({"978", static_cast<std::int16_t>(kDay.DayOfYear())});
}

void PressInPlanner(HostWorld& host, const char* shortcut) {
  host.world.toolkit.FormNamed("fmYearPlanner").PressShortcut(shortcut);
}

const Asking kAskings[] = {
    {"go to date", "fmGoToDate", [](HostWorld& host) { host.Form().PressShortcut("Ctrl+D"); }, "cmdGo"},
    {"undo", "fmMessage", [](HostWorld& host) { host.Form().PressShortcut("Ctrl+Z"); }, "cmdOk"},
    {"prepare a new calendar", "fmMessage",
     [](HostWorld& host) {
       host.world.toolkit.ScriptModal("fmSelectYear", [](HeadlessForm& dialog) {
         dialog.Part<headless::HeadlessTextBox>("txtYear").ReplaceText("2029");
         dialog.Part<HeadlessButton>("cmdCreate").Click();
       });
       host.Tools().ClickTool("ID_New");
     },
     "cmdOk"},
    {"except the marked rows", "fmExceptMess",
     [](HostWorld& host) {
       host.Grid().ExtendToRow(kDay.DayOfYear() + 3);
       host.ChooseFor(kDay.AddDays(3), "ID_ExceptDays");
     },
     "cmdExcept"},
    {"assign rules", "fmAssignPreview",
     [](HostWorld& host) {
       host.world.toolkit.ScriptModal("fmEnterHolidays", [](HeadlessForm& holidays) {
         holidays.Part<headless::HeadlessGrid>("gexHolidays").ClickRow(1);
         holidays.Part<HeadlessButton>("cmdAction5").Click();
         EXPECT_TRUE(holidays.HasUnloaded());
       });
       host.ChooseFor(kDay, "ID_AssignMany");
     },
     "cmdAssign"},
    {"except in the planner", "fmExceptMess",
     [](HostWorld& host) {
       OpenPlanner(host);
       PressInPlanner(host, "Ctrl+E");
     },
     "cmdExcept"},
    {"close days in the planner", "fmCloseDays",
     [](HostWorld& host) {
       OpenPlanner(host);
       PressInPlanner(host, "Ctrl+L");
     },
     "cmdCloseDays"},
    {"calendar at a moment", "fmAsOf",
     [](HostWorld& host) {
       host.windows.OpenHistory({.currency = HostWorld::kEuro, .year = 2028});
       host.world.toolkit.FormNamed("fmHistory").PressShortcut("Ctrl+D");
     },
     "cmdShow"},
};

TEST(ClosedByHost, TakesTheQuestionAlongAndDoesNothingOfIt) {
  for (const Asking& asking : kAskings) {
    SCOPED_TRACE(asking.what);
    RunInFreshThread([&] {
      HostWorld host;
      bool is_asked = false;
      host.world.toolkit.ScriptModal(asking.dialog, [&](HeadlessForm& dialog) {
        is_asked = true;
        host.CloseAll();
        EXPECT_FALSE(dialog.IsShown());
      });
      asking.ask(host);
      EXPECT_TRUE(is_asked);
      host.ExpectAllClosed();
      host.ExpectNothingDone();
    });
  }
}

TEST(ClosedByHost, KeepsWhatWasAnsweredJustBeforeAndShowsNothingMore) {
  for (const Asking& asking : kAskings) {
    SCOPED_TRACE(asking.what);
    RunInFreshThread([&] {
      HostWorld host;
      bool is_asked = false;
      platform::Subscription closing;
      host.world.toolkit.ScriptModal(asking.dialog, [&](HeadlessForm& dialog) {
        closing = dialog.OnCloseQuery([&](bool&) {
          if (!std::exchange(is_asked, true)) host.CloseAll();
        });
        if (dialog.Name() == "fmCloseDays") {
          dialog.Part<headless::HeadlessTextBox>("txtName").ReplaceText("Mourning");
        }
        dialog.Part<HeadlessButton>(asking.yes).Click();
      });
      asking.ask(host);
      EXPECT_TRUE(is_asked);
      host.ExpectAllClosed();
    });
  }
}

TEST(ClosedByHost, WritesNoFileThatIsStillAskedFor) {
  for (const char* shortcut : {"Ctrl+S", "Ctrl+Shift+S"}) {
    RunInFreshThread([shortcut] {
      HostWorld host;
      OpenPlanner(host);
      bool is_asked = false;
      host.world.toolkit.ScriptNextFile([&] {
        is_asked = true;
        host.CloseAll();
        return "/nowhere/at/all.pdf";
      });
      PressInPlanner(host, shortcut);
      EXPECT_TRUE(is_asked);
      host.ExpectAllClosed();
      host.ExpectNothingDone();
      EXPECT_THAT(host.world.log.StartingWith("yvYear.SavePages("), IsEmpty());
    });
  }
}

/// The tools wait until the operator rests on a day before they read its story and its history.
TEST(ClosedByHost, ReadsNothingThatItWaitedToRead) {
  RunInFreshThread([] {
    HostWorld host;
    host.Tools().ClickTool("ID_Refresh");
    EXPECT_GT(host.world.toolkit.WaitingTimers(), 0U);
    host.CloseAll();
    constexpr std::int32_t kLongEnough = 60'000;
    host.world.toolkit.Advance(kLongEnough);
    host.ExpectAllClosed();
    host.ExpectNothingDone();
  });
}

}  // namespace
}  // namespace ferrowind
