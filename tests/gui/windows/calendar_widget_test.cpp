#include "ferrowind/adapters/qt/embedding/calendar_widget.h"

#include "ferrowind/platform/values/failure.h"

#include "tests/gui/windows/windows_fixture.h"
#include "tests/support/failure_of.h"

namespace ferrowind::gui {
namespace {

using testing::FailureOf;

class CalendarWidgetTest : public WindowsTest {};

TEST_F(CalendarWidgetTest, OfAFormHasNoControlBeforeItIsGivenItsPlatform) {
  qt::CalendarWidget widget;
  EXPECT_EQ(FailureOf([&] { (void)widget.Control(); }).Number(), platform::failure_number::kObjectNotSet);
  widget.ShowInFront();
  EXPECT_FALSE(IsOpen());

  widget.SetPlatform(desk_.Platform());
  widget.resize(200, 100);
  widget.show();
  EXPECT_EQ(widget.size(), QSize(16, 16));
  widget.ShowInFront();
  EXPECT_TRUE(IsOpen());
  EXPECT_TRUE(widget.Control().ForceClosing());
  EXPECT_FALSE(IsOpen());
}

TEST_F(CalendarWidgetTest, KeepsThePlatformThatItHas) {
  qt::CalendarWidget widget(desk_.Platform());
  Calendar& control = widget.Control();
  EXPECT_EQ(FailureOf([&] { widget.SetPlatform(desk_.Platform()); }).Number(),
            platform::failure_number::kInvalidArgument);
  EXPECT_EQ(&widget.Control(), &control);
}

}  // namespace
}  // namespace ferrowind::gui
