// A host whose toolkit refuses to close the component's forms.
#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_toolkit.h"
#include "ferrowind/control/calendar.h"

#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/control/desk.h"

namespace ferrowind {
namespace {

using testing::Desk;
using testing::RunInFreshThread;

/// Keeps every form open for as long as it refuses.
class ToolkitThatRefuses : public headless::HeadlessToolkit {
 public:
  using HeadlessToolkit::HeadlessToolkit;

  [[nodiscard]] std::shared_ptr<platform::Form> CreateForm(const platform::FormDesign& design) override {
    auto form = HeadlessToolkit::CreateForm(design);
    subscriptions_.push_back(form->OnCloseQuery([this](bool& cancel) { cancel = refuses; }));
    return form;
  }

  bool refuses = true;

 private:
  std::vector<platform::Subscription> subscriptions_;
};

class HostRefusal : public ::testing::Test {
 protected:
  /// Runs `test` with a control whose window is open and cannot be closed.
  template <typename Test>
  void WithOpenWindow(const Test& test) {
    RunInFreshThread([&test] {
      Desk desk;
      ToolkitThatRefuses toolkit(desk.world.log, desk.world.clock, desk.world.script_errors);
      const platform::Platform given = desk.world.Platform();
      const platform::Platform platform{given.objects, given.commands, toolkit,
                                        given.locale,  given.clock,    given.component_folder};
      Calendar control(platform);
      control.Show();
      test(control, toolkit);
    });
  }
};

TEST_F(HostRefusal, KeepsTheCalendarsWindowOpenWhenTheProgramClosesIt) {
  WithOpenWindow([](Calendar& control, ToolkitThatRefuses& toolkit) {
    EXPECT_FALSE(control.ForceClosing());
    EXPECT_TRUE(toolkit.FormNamed("fmCalendar").IsShown());
    EXPECT_FALSE(control.ForceClosing());
    toolkit.refuses = false;
    EXPECT_TRUE(control.ForceClosing());
    control.Show();
    EXPECT_EQ(toolkit.CountOfForms("fmCalendar"), 2u);
  });
}

TEST_F(HostRefusal, KeepsTheCalendarsWindowOpenWhenTheOperatorClosesIt) {
  WithOpenWindow([](Calendar& control, ToolkitThatRefuses& toolkit) {
    EXPECT_FALSE(toolkit.FormNamed("fmCalendar").CloseByOperator());
    EXPECT_TRUE(toolkit.FormNamed("fmCalendar").IsShown());
    control.Show();
    EXPECT_EQ(toolkit.CountOfForms("fmCalendar"), 1u);
  });
}

}  // namespace
}  // namespace ferrowind
