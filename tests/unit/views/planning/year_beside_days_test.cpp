// The year at a glance beside the days of the Calendars window.
#include "ferrowind/views/planning/year_beside_days.h"

#include <gmock/gmock.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_text_box.h"
#include "ferrowind/adapters/headless/headless_year_view.h"

#include "tests/support/fault_scenario.h"
#include "tests/unit/views/planning/planned_window.h"

namespace ferrowind {
namespace {

using platform::Date;
using platform::YearCell;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::PlannedWindow;
using testing::RunInFreshThread;
using ::testing::SizeIs;

constexpr std::int32_t kGoodFriday = 5;
const Date kDay(2028, 4, 14);

class YearWindow : public PlannedWindow {
 public:
  YearWindow() {
    Give(kDay, kGoodFriday);
    Give(Date(2028, 4, 17), kGoodFriday);
  }
  void ClickTool() { Tools().ClickTool("ID_YearPlanner"); }
  [[nodiscard]] headless::HeadlessYearView& Year() { return Part<headless::HeadlessYearView>("yvDays"); }
  [[nodiscard]] static YearCell On(const Date& day) {
    return {"978", static_cast<std::int16_t>(day.DayOfYear())};
  }
  void AnswerReason(const std::string& reason) {
    world.toolkit.ScriptModal("fmExceptMess", [reason](headless::HeadlessForm& form) {
      form.Part<headless::HeadlessTextBox>("txtMessage").TypeText(reason);
      form.Part<headless::HeadlessButton>("cmdExcept").Click();
    });
  }
  /// The window is open at `kDay`, with or without the year.
  void Require(bool is_visible) {
    if (!window) OpenAt(kDay);
    if (Tools().ToolPressed("ID_YearPlanner") != is_visible) ClickTool();
  }
  [[nodiscard]] bool IsExcepted(const Date& day) {
    const auto& days = Tables().calendars.at({kEuro, day.Year()});
    return days[static_cast<std::size_t>(day.DayOfYear()) - 1].rule == 1;
  }
  /// The window reads the days anew then, which is not for the year to answer for.
  void FailNothingOnceTold() {
    told_ = windows.OnChanged([this](const auto&) { world.faults.Disarm(); });
  }
  [[nodiscard]] std::size_t Messages() {
    return world.log.StartingWith("services.ShowMessage(").size() +
           world.log.StartingWith("services.ReportError(").size();
  }

 private:
  platform::Subscription told_;
};

TEST(YearBesideDays, IsHiddenUntilTheOperatorAsksForItAndComesBackAsItWasLeft) {
  RunInFreshThread([] {
    YearWindow calendars;
    calendars.OpenAt(kDay);
    EXPECT_FALSE(calendars.Year().Visible());
    EXPECT_THAT(calendars.Year().Content().calendars, IsEmpty()) << "nothing is read for what nobody sees";
    calendars.ClickTool();
    EXPECT_TRUE(calendars.Year().Visible());
    EXPECT_EQ(calendars.Year().Content().year, 2028);
    calendars.Close();
    calendars.Open();
    EXPECT_TRUE(calendars.Year().Visible());
    EXPECT_TRUE(calendars.Tools().ToolPressed("ID_YearPlanner"));
    calendars.ClickTool();
    calendars.Close();
    calendars.Open();
    EXPECT_FALSE(calendars.Year().Visible());
  });
}

TEST(YearBesideDays, FollowsTheGridAndIsFollowedByIt) {
  RunInFreshThread([] {
    YearWindow calendars;
    calendars.OpenAt(kDay);
    calendars.ClickTool();
    EXPECT_EQ(calendars.Year().Current(), YearWindow::On(kDay));
    calendars.ClickDay(Date(2028, 6, 1));
    EXPECT_EQ(calendars.Year().Current(), YearWindow::On(Date(2028, 6, 1)));
    calendars.Year().ClickDay(YearWindow::On(Date(2028, 7, 4)));
    EXPECT_EQ(calendars.Grid().CurrentRow(), Date(2028, 7, 4).DayOfYear());
    EXPECT_EQ(calendars.Year().TextOf(YearWindow::On(kDay)), "2028-04-14, Good Friday, closed");
  });
}

TEST(YearBesideDays, FindsTheDayInAGridThatIsSortedOtherwise) {
  RunInFreshThread([] {
    YearWindow calendars;
    calendars.OpenAt(kDay);
    calendars.ClickTool();
    const auto index = calendars.Grid().ColumnByKey("FullDate").Index();
    calendars.Grid().SortKeys().Add(index, -1, 0);
    calendars.Grid().Refresh(false);
    calendars.Year().ClickDay(YearWindow::On(Date(2028, 1, 2)));
    EXPECT_EQ(calendars.Grid().CurrentRow(), 365);
  });
}

TEST(YearBesideDays, ShowsTheGridsDayMenuForItsDay) {
  RunInFreshThread([] {
    YearWindow calendars;
    calendars.OpenAt(kDay);
    calendars.ClickTool();
    calendars.world.log.Clear();
    calendars.Year().RightClickDay(YearWindow::On(Date(2028, 7, 4)));
    calendars.Year().ActivateDay();
    calendars.Year().PressMenuKey();
    EXPECT_EQ(calendars.world.log.CountOf("ssatb.ShowPopupMenu(\"ID_StatesMenu\")"), 3U);
    EXPECT_EQ(calendars.Grid().CurrentRow(), Date(2028, 7, 4).DayOfYear());
  });
}

TEST(YearBesideDays, ExceptsTheSelectedDaysWithOneMessage) {
  RunInFreshThread([] {
    YearWindow calendars;
    calendars.OpenAt(kDay);
    calendars.ClickTool();
    calendars.Year().ClickDay(YearWindow::On(kDay));
    calendars.Year().ExtendToDay(YearWindow::On(Date(2028, 4, 17)));
    EXPECT_THAT(calendars.Year().Selected(), SizeIs(4)) << "the grid that follows takes none out";
    calendars.AnswerReason("busy");
    calendars.Tools().ChooseFromNextPopup("ID_ExceptDays");
    calendars.Year().PressMenuKey();
    EXPECT_EQ(calendars.Year().TextOf(YearWindow::On(kDay)), "2028-04-14, Working day by exception: busy");
    EXPECT_EQ(calendars.Year().TextOf(YearWindow::On(Date(2028, 4, 17))),
              "2028-04-17, Working day by exception: busy");
    EXPECT_EQ(calendars.Year().TextOf(YearWindow::On(Date(2028, 4, 18))), "2028-04-18, working day");
    EXPECT_EQ(calendars.Grid().CurrentRow(), Date(2028, 4, 17).DayOfYear());
    EXPECT_EQ(calendars.Messages(), 0U);
  });
}

TEST(YearBesideDays, OffersTheSelectionOnlyWhereThereIsOne) {
  RunInFreshThread([] {
    YearWindow calendars;
    calendars.OpenAt(kDay);
    calendars.ClickTool();
    calendars.Year().PressMenuKey();
    EXPECT_FALSE(calendars.Tools().ToolEnabled("ID_ExceptDays"));
    calendars.Year().ToggleDay(YearWindow::On(Date(2028, 4, 17)));
    calendars.Year().PressMenuKey();
    EXPECT_TRUE(calendars.Tools().ToolEnabled("ID_ExceptDays"));
  });
}

TEST(YearBesideDays, ExceptsTheRowsThatAreMarkedInTheGridWhileItIsHidden) {
  RunInFreshThread([] {
    YearWindow calendars;
    calendars.OpenAt(kDay);
    calendars.Grid().ExtendToRow(Date(2028, 4, 17).DayOfYear());
    calendars.AnswerReason("busy");
    calendars.Tools().ChooseFromNextPopup("ID_ExceptDays");
    calendars.Grid().RightClickRow(Date(2028, 4, 17).DayOfYear());
    calendars.ClickTool();
    EXPECT_EQ(calendars.Year().TextOf(YearWindow::On(kDay)), "2028-04-14, Working day by exception: busy");
    EXPECT_EQ(calendars.Year().TextOf(YearWindow::On(Date(2028, 4, 17))),
              "2028-04-17, Working day by exception: busy");
  });
}

TEST(YearBesideDays, OpensTheYearPlannerOfTheCalendarOnShow) {
  RunInFreshThread([] {
    YearWindow calendars;
    calendars.Open();
    EXPECT_FALSE(calendars.Tools().ToolEnabled("ID_YearWindow"));
    calendars.Close();
    calendars.OpenAt(kDay);
    calendars.Tools().ClickTool("ID_YearWindow");
    EXPECT_EQ(calendars.world.toolkit.FormNamed("fmYearPlanner").Caption(), "Year planner - EUR 2028");
  });
}

TEST(YearBesideDays, KeepsTheYearThatItCouldNotReadAnewAndSaysSo) {
  RunInFreshThread([] {
    YearWindow calendars;
    calendars.OpenAt(kDay);
    calendars.ClickTool();
    int unread = 0;
    for (int call = 1; call <= 200 && unread == 0; ++call) {
      calendars.world.faults.FailAtCall(call);
      calendars.Tools().ClickTool("ID_Refresh");
      calendars.world.faults.Disarm();
      if (!calendars.Tools().ToolEnabled("ID_YearWindow")) {
        // The days have gone as well.
        calendars.Close();
        calendars.OpenAt(kDay);
        continue;
      }
      ASSERT_THAT(calendars.Year().Content().calendars, SizeIs(1)) << "call " << call;
      EXPECT_EQ(calendars.Year().TextOf(YearWindow::On(kDay)), "2028-04-14, Good Friday, closed");
      if (calendars.Year().Content().legend.front().text != "As it was before") continue;
      ++unread;
      EXPECT_THAT(calendars.Tools().ToolDescription("ID_YearPlanner"),
                  HasSubstr("The year cannot be read: "));
    }
    EXPECT_GT(unread, 0);
    calendars.Tools().ClickTool("ID_Refresh");
    EXPECT_EQ(calendars.Year().Content().legend.front().text, "Weekend");
  });
}

TEST(YearBesideDays, ShowsNothingWhenTheCalendarCannotBeReadAndSaysSo) {
  RunInFreshThread([] {
    YearWindow calendars;
    calendars.OpenAt(kDay);
    calendars.world.faults.FailAtCall(1);
    calendars.ClickTool();
    calendars.world.faults.Disarm();
    EXPECT_EQ(calendars.Messages(), 0U) << "the operator can go on with the days";
    EXPECT_THAT(calendars.Year().Content().calendars, IsEmpty());
    EXPECT_EQ(calendars.Year().Content().legend.front().text, "Cannot be read");
    EXPECT_THAT(calendars.Tools().ToolDescription("ID_YearPlanner"), HasSubstr("The year cannot be read: "));
    calendars.Tools().ClickTool("ID_Refresh");
    EXPECT_THAT(calendars.Year().Content().calendars, SizeIs(1));
  });
}

TEST(YearBesideDays, IsShownOnceItCanBeReadWhicheverCallFails) {
  testing::FailEachCall<YearWindow>({.arrange =
                                         [](YearWindow& calendars) {
                                           calendars.Require(false);
                                           calendars.Tools().ClickTool("ID_Refresh");
                                         },
                                     .act = [](YearWindow& calendars) { calendars.ClickTool(); },
                                     .look =
                                         [](YearWindow& calendars) {
                                           EXPECT_TRUE(calendars.Tools().ToolPressed("ID_YearPlanner"));
                                           EXPECT_TRUE(calendars.Year().Visible());
                                           calendars.Tools().ClickTool("ID_Refresh");
                                           EXPECT_THAT(calendars.Year().Content().calendars, SizeIs(1));
                                         },
                                     // The year says so itself.
                                     .is_silent = [](const std::string&) { return true; }},
                                    10);
}

TEST(YearBesideDays, ExceptsAllOfTheSelectedDaysOrNoneWhicheverCallFails) {
  const Date other(2028, 4, 17);
  testing::FailEachCall<YearWindow>({.arrange =
                                         [&](YearWindow& calendars) {
                                           if (!calendars.window) calendars.FailNothingOnceTold();
                                           calendars.Require(true);
                                           calendars.Give(kDay, kGoodFriday);
                                           calendars.Give(other, kGoodFriday);
                                           calendars.Tools().ClickTool("ID_Refresh");
                                           calendars.Year().ClickDay(YearWindow::On(kDay));
                                           calendars.Year().ExtendToDay(YearWindow::On(other));
                                           calendars.AnswerReason("busy");
                                         },
                                     .act =
                                         [](YearWindow& calendars) {
                                           calendars.Tools().ChooseFromNextPopup("ID_ExceptDays");
                                           calendars.Year().PressMenuKey();
                                         },
                                     .look =
                                         [&](YearWindow& calendars) {
                                           EXPECT_EQ(calendars.IsExcepted(kDay), calendars.IsExcepted(other));
                                           calendars.Tools().ClickTool("ID_Refresh");
                                           EXPECT_EQ(calendars.Year().TextOf(YearWindow::On(kDay)),
                                                     calendars.IsExcepted(kDay)
                                                         ? "2028-04-14, Working day by exception: busy"
                                                         : "2028-04-14, Good Friday, closed");
                                         }},
                                    40);
}

}  // namespace
}  // namespace ferrowind
