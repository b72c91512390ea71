#include "ferrowind/views/dialogs/fm_wait.h"

#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_form.h"
#include "ferrowind/adapters/headless/headless_label.h"

#include "tests/support/component_world.h"
#include "tests/support/run_in_fresh_thread.h"

namespace ferrowind {
namespace {

using testing::ComponentWorld;
using testing::RunInFreshThread;

TEST(WaitNotice, IsABoxWithoutATitleInTheMiddleOfTheScreen) {
  RunInFreshThread([] {
    ComponentWorld component;
    const fmWait notice(component.platform.toolkit);
    const auto& form = component.world.toolkit.FormNamed("fmWait");
    EXPECT_EQ(form.Caption(), "");
    EXPECT_EQ(form.Design().border, platform::FormBorder::kNone);
    EXPECT_EQ(form.Design().start, platform::FormStart::kCenterScreen);
    EXPECT_EQ(form.Design().client_width, 4680);
    EXPECT_EQ(form.Design().client_height, 750);
  });
}

TEST(WaitNotice, ShowsTheTextOfItsCallerUntilItIsUnloaded) {
  RunInFreshThread([] {
    ComponentWorld component;
    fmWait notice(component.platform.toolkit);
    auto& form = component.world.toolkit.FormNamed("fmWait");
    EXPECT_EQ(form.Part<headless::HeadlessLabel>("lblMessage").Text(), "Message");
    notice.SetMessage("Assigning holidays");
    notice.Show();
    EXPECT_TRUE(form.IsShown());
    EXPECT_EQ(form.Part<headless::HeadlessLabel>("lblMessage").Text(), "Assigning holidays");
    notice.Unload();
    EXPECT_TRUE(form.HasUnloaded());
  });
}

}  // namespace
}  // namespace ferrowind
