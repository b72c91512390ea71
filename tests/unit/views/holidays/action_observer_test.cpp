// What a host's observer is told of the operator's actions in the Holidays window.
#include <functional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_drop_down_list.h"
#include "ferrowind/adapters/headless/headless_text_box.h"

#include "tests/support/recording_action_observer.h"
#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/views/holidays/holidays_world.h"

namespace ferrowind {
namespace {

using headless::CommandStep;
using testing::Date;
using ::testing::ElementsAre;
using testing::HolidaysWorld;
using testing::RecordingActionObserver;
using testing::Rows;
using testing::RunInFreshThread;

enum Button { kAdd, kEdit, kRemove, kRestore, kFilter, kAssign };

/// What is told while the operator plays the scene in the window for the whole calendar, its first two rules
/// selected.
std::vector<std::string> Told(const std::function<void(HolidaysWorld& world)>& scene) {
  RecordingActionObserver observer;
  RunInFreshThread([&] {
    HolidaysWorld world(&observer);
    ASSERT_TRUE(world.InitWithUsualRules(1));
    observer.events.clear();
    world.Show([&] {
      world.Grid().ClickRow(world.RowOf("Saturday"));
      world.Grid().ToggleRow(world.RowOf("Christmas Day"));
      scene(world);
    });
    world.window.reset();
  });
  return observer.events;
}

TEST(HolidaysActions, AnAssignmentTellsTheWriteOfEachRuleAndEndsWithTheWindow) {
  EXPECT_THAT(Told([](HolidaysWorld& world) { world.Action(kAssign).Click(); }),
              ElementsAre("began assign 2026 [Saturday, Christmas Day]", "write Saturday 0",
                          "write Christmas Day 0", "ended"));
}

TEST(HolidaysActions, AnAssignmentTellsOfARuleWhoseCallFailedAndGoesOn) {
  EXPECT_THAT(Told([](HolidaysWorld& world) {
                world.world.commands.FailAt(CommandStep::kExecute, {5, "It is locked"});
                world.Action(kAssign).Click();
              }),
              ElementsAre("began assign 2026 [Saturday, Christmas Day]", "write Saturday -1 It is locked",
                          "write Christmas Day 0", "ended"));
}

TEST(HolidaysActions, AnAssignmentTellsOfARuleThatCannotBeRead) {
  RecordingActionObserver observer;
  RunInFreshThread([&] {
    HolidaysWorld world(&observer);
    world.SetRules({HolidaysWorld::Rule(8, "No day", 3, {}, {})});
    ASSERT_TRUE(world.Init(1));
    observer.events.clear();
    world.Show([&] {
      world.Grid().ClickRow(1);
      world.Action(kAssign).Click();
    });
    EXPECT_EQ(world.world.services->Reports().size(), 1u);
  });
  EXPECT_THAT(observer.events,
              ElementsAre("began assign 2026 [No day]", ::testing::StartsWith("write No day -1 "), "ended"));
}

TEST(HolidaysActions, TheQuestionBeforeARemovalIsAboutTheRulesByName) {
  EXPECT_THAT(Told([](HolidaysWorld& world) {
                world.Answer("fmMessage", "cmdCancel");
                world.Action(kRemove).Click();
              }),
              ElementsAre("question remove [Saturday, Christmas Day]", "answered"));
}

TEST(HolidaysActions, ARemovalBeginsAfterItsQuestionAndStopsAtTheFirstRefusal) {
  EXPECT_THAT(Told([](HolidaysWorld& world) {
                world.AnswerMarking(4);
                world.Answer("fmMessage", "cmdOk");
                world.Action(kRemove).Click();
              }),
              ElementsAre("question remove [Saturday, Christmas Day]", "answered",
                          "began remove [Saturday, Christmas Day]", "write Saturday 4", "read 0", "ended"));
}

TEST(HolidaysActions, ARestorationTellsTheWriteOfEachRuleAndTheReadAfterThem) {
  EXPECT_THAT(Told([](HolidaysWorld& world) {
                world.Action(kFilter).Click();
                world.Grid().ClickRow(world.RowOf("Old holiday"));
                world.Action(kRestore).Click();
              }),
              ElementsAre("began show rules", "read 0", "ended", "began restore [Old holiday]",
                          "write Old holiday 0", "read 0", "ended"));
}

TEST(HolidaysActions, AnAdditionLastsUntilTheRulesAreReadAgain) {
  EXPECT_THAT(Told([](HolidaysWorld& world) {
                world.world.commands.Forget("CldIUCelebrate");
                world.world.commands.Answer("CldIUCelebrate").Returns(10);
                world.world.toolkit.ScriptModal("fmAddHoliday", [](headless::HeadlessForm& form) {
                  form.Part<headless::HeadlessDropDownList>("cmbHolidayType").ChooseByOperator("Celebration");
                  form.Part<headless::HeadlessTextBox>("txtName").TypeText("Founding Day");
                  form.Part<headless::HeadlessButton>("cmdOk").Click();
                });
                world.Action(kAdd).Click();
              }),
              ElementsAre("began add [Founding Day]", "write Founding Day 10", "began show rules", "read 0",
                          "ended", "ended"));
}

TEST(HolidaysActions, AChangeOfARuleIsToldAsSuch) {
  EXPECT_THAT(Told([](HolidaysWorld& world) {
                world.Answer("fmAddHoliday", "cmdOk");
                world.Grid().ClickRow(world.RowOf("Christmas Day"));
                world.Action(kEdit).Click();
              }),
              ElementsAre("began edit [Christmas Day]", "write Christmas Day 0", "began show rules", "read 0",
                          "ended", "ended"));
}

TEST(HolidaysActions, AnEditorThatIsClosedByItsCloseBoxIsFollowedByAReadOfTheRules) {
  EXPECT_THAT(Told([](HolidaysWorld& world) {
                world.world.toolkit.ScriptModal("fmAddHoliday", [&](headless::HeadlessForm& form) {
                  world.world.commands.FailAt(CommandStep::kExecute, {14, "The file is away"});
                  EXPECT_TRUE(form.CloseByOperator());
                });
                world.Action(kAdd).Click();
              }),
              ElementsAre("began show rules", "read -1 The file is away", "ended"));
}

TEST(HolidaysActions, AnEditorThatIsCancelledIsNoAction) {
  EXPECT_THAT(Told([](HolidaysWorld& world) {
                world.Answer("fmAddHoliday", "cmdCancel");
                world.Action(kAdd).Click();
              }),
              ::testing::IsEmpty());
}

TEST(HolidaysActions, AnAnswerThatLacksAPartIsNoGoodRead) {
  const Rows calendars = {{978, 2026}};
  const Rows types = {{2, "Holiday"}};
  const auto told_at = [&](int sets) {
    return Told([&](HolidaysWorld& world) {
      world.world.commands.Forget("CldAllInfo");
      auto& answer = world.world.commands.Answer("CldAllInfo").Gives({"ID1", "Year1"}, calendars);
      if (sets > 1) answer.Gives({"TID1", "Description1"}, types);
      world.Action(kFilter).Click();
    });
  };
  EXPECT_THAT(told_at(1),
              ElementsAre("began show rules", "read 0",
                          "read -1 The answer of the database lacks the types of holidays", "ended"));
  EXPECT_THAT(told_at(2), ElementsAre("began show rules", "read 0",
                                      "read -1 The answer of the database lacks the rules", "ended"));
}

TEST(HolidaysActions, AnAnswerWithoutARowOfTypesIsNoGoodRead) {
  EXPECT_THAT(Told([](HolidaysWorld& world) {
                world.world.commands.Forget("CldAllInfo");
                world.world.commands.Answer("CldAllInfo")
                    .Gives({"ID1", "Year1"}, {{978, 2026}})
                    .Gives({"TID1", "Description1"}, {})
                    .Gives({"ID2", "Name1", "Comment", "TID1", "D1", "MY", "MD", "WD", "Del"}, {})
                    .Gives({"FirstDay"}, {{1}});
                world.Action(kFilter).Click();
                EXPECT_TRUE(world.Messages().empty());
              }),
              ElementsAre("began show rules", "read 0",
                          "read -1 The answer of the database lacks the types of holidays", "ended"));
}

TEST(HolidaysActions, AFirstWeekdayThatCannotBeReadIsToldAsTheFailureThatTheOperatorSees) {
  std::string seen;
  const auto told = Told([&](HolidaysWorld& world) {
    world.world.commands.Forget("CldAllInfo");
    world.world.commands.Answer("CldAllInfo")
        .Gives({"ID1", "Year1"}, {{978, 2026}})
        .Gives({"TID1", "Description1"}, {{2, "Holiday"}})
        .Gives({"ID2", "Name1", "Comment", "TID1", "D1", "MY", "MD", "WD", "Del"}, {})
        .Gives({"FirstDay"}, {{"soon"}});
    world.Action(kFilter).Click();
    ASSERT_EQ(world.world.services->Reports().size(), 1u);
    seen = world.world.services->Reports().front().description;
  });
  EXPECT_THAT(told, ElementsAre("began show rules", "read 0", "read -1 " + seen, "ended"));
}

TEST(HolidaysActions, TypesThatCannotBeReadAreToldAsTheFailureThatTheOperatorSees) {
  RecordingActionObserver observer;
  std::string seen;
  RunInFreshThread([&] {
    HolidaysWorld world(&observer);
    world.world.commands.Answer("CldAllInfo")
        .Gives({"ID1", "Year1"}, {{978, 2026}})
        .Gives({"TID1"}, {{2}})
        .Gives({"ID2", "Name1", "Comment", "TID1", "D1", "MY", "MD", "WD", "Del"}, {})
        .Gives({"FirstDay"}, {{1}});
    EXPECT_FALSE(world.Init(1));
    ASSERT_EQ(world.world.services->Reports().size(), 1u);
    seen = world.world.services->Reports().front().description;
  });
  EXPECT_THAT(observer.events, ElementsAre("began open rules", "read 0", "read -1 " + seen, "ended"));
}

TEST(HolidaysActions, ARuleWithoutANameIsToldWithoutOne) {
  RecordingActionObserver observer;
  RunInFreshThread([&] {
    HolidaysWorld world(&observer);
    world.SetRules({{2, {}, "", 2, {}, {}, {}, 7, {}}});
    ASSERT_TRUE(world.Init(1));
    observer.events.clear();
    world.Show([&] {
      world.Grid().ClickRow(1);
      world.Action(kAssign).Click();
    });
    EXPECT_EQ(world.world.commands.CallsOf("CldIUMain").size(), 1u);
    EXPECT_TRUE(world.world.services->Reports().empty());
  });
  EXPECT_THAT(observer.events, ElementsAre("began assign 2026 []", "write 0", "ended"));
}

}  // namespace
}  // namespace ferrowind
