// The windows of planning: opened once, and told of each other's changes.
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/views/planning/planning_additions.h"

#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/views/calendars/calendars_world.h"

namespace ferrowind {
namespace {

using planning::CalendarKey;
using testing::CalendarsWorld;
using ::testing::ElementsAre;
using testing::RunInFreshThread;

struct FakeWindow : PlanningWindow {
  void ShowInFront() override {
    ++shown;
    if (on_show) on_show();
  }
  [[nodiscard]] bool IsOpen() const override { return is_open; }
  bool Close() override {
    if (!refuses) is_open = false;
    return !refuses;
  }

  int shown = 0;
  bool is_open = true;
  bool refuses = false;
  std::function<void()> on_show;
};

class TestedWindows : public PlanningWindows {
 public:
  using PlanningWindows::PlanningWindows;

  FakeWindow& OpenFake(const std::string& name) {
    std::shared_ptr<FakeWindow> made;
    Open(name, [&](const PlanningContext& context) {
      EXPECT_EQ(&context.windows, this);
      made = std::make_shared<FakeWindow>();
      made_windows.push_back(made);
      return made;
    });
    return *made_windows.back();
  }

  std::vector<std::shared_ptr<FakeWindow>> made_windows;
};

class PlanningWindowsTest : public ::testing::Test {
 protected:
  headless::World world_;
  const platform::Platform platform_ = world_.Platform();
  almanac::DateTables tables_;
  TestedWindows windows_{platform_, tables_};
};

TEST_F(PlanningWindowsTest, BringAnOpenOneToTheFrontInsteadOfOpeningItAgain) {
  windows_.OpenFake("history");
  EXPECT_EQ(windows_.OpenFake("history").shown, 2);
  EXPECT_EQ(windows_.made_windows.size(), 1u);
}

TEST_F(PlanningWindowsTest, OpenOneAnewThatWasClosedAndForgetIt) {
  windows_.OpenFake("history").Close();
  const std::weak_ptr<FakeWindow> closed = windows_.made_windows[0];
  windows_.OpenFake("history");
  ASSERT_EQ(windows_.made_windows.size(), 2u);
  windows_.made_windows.erase(windows_.made_windows.begin());
  EXPECT_TRUE(closed.expired());
}

TEST_F(PlanningWindowsTest, OfDifferentNamesAreOpenSideBySide) {
  windows_.OpenFake("plan of EUR 2028");
  windows_.OpenFake("plan of USD 2028");
  EXPECT_EQ(windows_.made_windows.size(), 2u);
}

TEST_F(PlanningWindowsTest, KeepNoneThatCouldNotBeMade) {
  struct Failing : PlanningWindows {
    using PlanningWindows::PlanningWindows;
    void OpenOne() {
      Open("plan", [](const PlanningContext&) -> std::shared_ptr<PlanningWindow> {
        throw platform::Failure(1, "no form");
      });
    }
  } failing(platform_, tables_);
  EXPECT_THROW(failing.OpenOne(), platform::Failure);
  EXPECT_THROW(failing.OpenOne(), platform::Failure);
  EXPECT_TRUE(failing.CloseAll());
}

TEST_F(PlanningWindowsTest, CloseAllButThoseThatRefuse) {
  windows_.OpenFake("a").refuses = true;
  windows_.OpenFake("b");
  EXPECT_FALSE(windows_.CloseAll());
  EXPECT_TRUE(windows_.made_windows[0]->is_open);
  EXPECT_FALSE(windows_.made_windows[1]->is_open);
  // The one that has stayed is still known.
  windows_.made_windows[0]->refuses = false;
  EXPECT_TRUE(windows_.CloseAll());
  EXPECT_FALSE(windows_.made_windows[0]->is_open);
}

TEST_F(PlanningWindowsTest, MayCloseWhileTheyComeToTheFront) {
  windows_.OpenFake("a");
  windows_.made_windows[0]->on_show = [&] { EXPECT_TRUE(windows_.CloseAll()); };
  EXPECT_NO_THROW(windows_.OpenFake("a"));
  EXPECT_FALSE(windows_.made_windows[0]->is_open);
}

TEST_F(PlanningWindowsTest, TellWhatWasChangedToWhoeverListens) {
  PlanningWindows::Changed told;
  auto listening = windows_.OnChanged([&](const auto& calendars) { told = calendars; });
  windows_.TellChanged({{978, 2028}, {840, 2028}});
  EXPECT_THAT(told, ElementsAre(CalendarKey(978, 2028), CalendarKey(840, 2028)));
  listening.Reset();
  windows_.TellChanged({});
  EXPECT_EQ(told.size(), 2u);
}

TEST(RefreshedCalendars, ReadTheCalendarsAnewWhenAWindowOfPlanningHasChangedSomething) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    almanac::DateTables tables;
    PlanningWindows windows(calendars.platform, tables);
    PlanningAdditions additions({calendars.platform, tables, windows});
    calendars.platform.additions = &additions;
    calendars.OpenAt("K978_2026");
    calendars.AnswerAllInfo({{978, 2026}, {978, 2028}});
    windows.TellChanged({{978, 2028}});
    EXPECT_EQ(calendars.CallsOf("CldGetMain").size(), 2u);
    EXPECT_EQ(calendars.Tree().Text("K978_2028"), "2028");
    EXPECT_EQ(calendars.Tree().Selected(), "K978_2026");
    EXPECT_TRUE(calendars.window->ForceClosing());
    calendars.world.log.Clear();
    windows.TellChanged({{978, 2028}});
    EXPECT_TRUE(calendars.world.log.Calls().empty());
  });
}

}  // namespace
}  // namespace ferrowind
