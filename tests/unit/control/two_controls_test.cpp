// Controls with surroundings of their own on one thread.
#include <memory>
#include <utility>

#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_tool_bar.h"
#include "ferrowind/adapters/headless/headless_tree.h"
#include "ferrowind/adapters/headless/world.h"
#include "ferrowind/control/calendar.h"
#include "ferrowind/data/module_state.h"

#include "tests/support/expect_failure.h"
#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/control/desk.h"

namespace ferrowind {
namespace {

using headless::HeadlessButton;
using headless::HeadlessForm;
using testing::Desk;
using testing::ExpectFailure;
using testing::RunInFreshThread;

/// The outside objects of the thread, with the currency EUR; must outlive all controls.
class OutsideObjects {
 public:
  OutsideObjects() {
    world_.dictionary->SetCurrencies({{978, "EUR"}});
    const platform::Platform platform = world_.Platform();
    const InSurroundings surroundings(platform);
    EnsureDictionaryObject();
    static_cast<void>(SharedServicesObject());
  }

 private:
  headless::World world_;
};

TEST(TwoControls, EachOpensItsWindowAndReadsItsDataInItsOwnSurroundings) {
  RunInFreshThread([] {
    const OutsideObjects outside;
    const Desk first;
    const Desk second;
    first.control->Show();
    EXPECT_EQ(first.CallsOf("CldAllInfo"), 1u);
    EXPECT_EQ(second.CallsOf("CldAllInfo"), 0u);
    second.control->Show();
    EXPECT_TRUE(first.Window().IsShown());
    EXPECT_TRUE(second.Window().IsShown());
    first.Click("ID_Refresh");
    first.Click("ID_Refresh");
    EXPECT_EQ(first.CallsOf("CldAllInfo"), 3u);
    EXPECT_EQ(second.CallsOf("CldAllInfo"), 1u);
    second.Click("ID_Refresh");
    EXPECT_EQ(first.CallsOf("CldAllInfo"), 3u);
    EXPECT_EQ(second.CallsOf("CldAllInfo"), 2u);
  });
}

TEST(TwoControls, OneKeepsItsSurroundingsWhileTheOtherWorksInTheMiddleOfItsDialog) {
  RunInFreshThread([] {
    const OutsideObjects outside;
    Desk first;
    const Desk second;
    first.control->Show();
    second.control->Show();
    first.Window().Part<headless::HeadlessTree>("tvCalendar").ClickNode("K978");
    first.world.toolkit.ScriptModal("fmSelectYear", [&](HeadlessForm& dialog) {
      second.Click("ID_Refresh");
      dialog.Part<HeadlessButton>("cmdCreate").Click();
    });
    first.Click("ID_New");
    EXPECT_EQ(second.CallsOf("CldAllInfo"), 2u);
    EXPECT_EQ(first.CallsOf("CldAllInfo"), 2u);
    EXPECT_EQ(first.CallsOf("CldIUMain"), 1u);
    EXPECT_EQ(second.CallsOf("CldIUMain"), 0u);
  });
}

TEST(TwoControls, EitherCanBeDestroyedFirst) {
  for (const bool is_first_to_go : {true, false}) {
    RunInFreshThread([is_first_to_go] {
      const OutsideObjects outside;
      Desk first;
      Desk second;
      Desk& going = is_first_to_go ? first : second;
      const Desk& staying = is_first_to_go ? second : first;
      going.control->Show();
      staying.control->Show();
      going.Destroy();
      staying.Click("ID_Refresh");
      EXPECT_EQ(staying.CallsOf("CldAllInfo"), 2u);
      EXPECT_TRUE(staying.control->ForceClosing());
      staying.control->Show();
      EXPECT_EQ(staying.CallsOf("CldAllInfo"), 3u);
    });
  }
}

TEST(TwoControls, ADestroyedOneLeavesNoSurroundingsBehind) {
  RunInFreshThread([] {
    const OutsideObjects outside;
    Desk first;
    Desk second;
    EXPECT_EQ(&AttachedPlatform(), second.platform.get());
    first.Destroy();
    EXPECT_EQ(&AttachedPlatform(), second.platform.get());
    second.Destroy();
    constexpr std::int32_t kObjectNotSet = 91;
    ExpectFailure([] { static_cast<void>(AttachedPlatform()); }, kObjectNotSet);
  });
}

TEST(TwoControls, ShareTheOutsideObjectsOfTheOneThatNeededThemFirst) {
  RunInFreshThread([] {
    Desk first;
    Desk second;
    second.control->Show();
    EXPECT_TRUE(first.world.log.Contains(R"(objects.CreateObject("TessaroDicInProc.DictionaryClass"))"));
    EXPECT_FALSE(second.world.log.Contains(R"(objects.CreateObject("TessaroDicInProc.DictionaryClass"))"));
    // Its window was the first to need them.
    EXPECT_TRUE(second.world.log.Contains(R"(objects.CreateObject("Tessaro.SharedServices"))"));
    first.control->Show();
    EXPECT_FALSE(first.world.log.Contains(R"(objects.CreateObject("Tessaro.SharedServices"))"));
    first.Destroy();
    second.Destroy();
  });
}

TEST(TwoControls, OneThatIsDestroyedInTheMiddleOfItsDialogLeavesTheOtherAlone) {
  RunInFreshThread([] {
    const OutsideObjects outside;
    Desk first;
    const Desk second;
    first.control->Show();
    second.control->Show();
    first.Window().Part<headless::HeadlessTree>("tvCalendar").ClickNode("K978");
    const auto window = first.Window().shared_from_this();
    first.world.toolkit.ScriptModal("fmSelectYear", [&](HeadlessForm& dialog) {
      first.control.reset();
      EXPECT_FALSE(dialog.IsShown());
    });
    first.Click("ID_New");
    EXPECT_TRUE(window->HasUnloaded());
    EXPECT_EQ(first.CallsOf("CldIUMain"), 0u);
    EXPECT_EQ(first.CallsOf("CldAllInfo"), 1u);
    second.Click("ID_Refresh");
    EXPECT_EQ(second.CallsOf("CldAllInfo"), 2u);
  });
}

}  // namespace
}  // namespace ferrowind
