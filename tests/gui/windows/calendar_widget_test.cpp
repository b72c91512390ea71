#include "ferrowind/adapters/qt/embedding/calendar_widget.h"

#include <functional>
#include <memory>
#include <utility>

#include "ferrowind/adapters/qt/services/qt_shared_services.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/platform/values/failure.h"

#include "tests/gui/windows/windows_fixture.h"
#include "tests/support/failure_of.h"

namespace ferrowind::gui {
namespace {

using testing::FailureOf;

class CalendarWidgetTest : public WindowsTest {};

/// Does something when a setting is asked for, and has none.
class HeardServices : public qt::QtSharedServices {
 public:
  explicit HeardServices(std::function<void()> heard) : heard_(std::move(heard)) {}
  platform::Value ReadSetting(const std::string& /*section*/, const std::string& /*name*/,
                              const platform::Value& /*user*/,
                              const platform::Value& default_value) override {
    heard_();
    return default_value;
  }
  void WriteSetting(const std::string& /*section*/, const std::string& /*name*/,
                    const platform::Value& /*value*/) override {}

 private:
  std::function<void()> heard_;
};

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

TEST_F(CalendarWidgetTest, IsDestroyedByItsHostWhileItShowsTheWindow) {
  auto widget = std::make_unique<qt::CalendarWidget>(desk_.Platform());
  Module().shared_services = std::make_shared<HeardServices>([&widget] { widget.reset(); });
  widget->ShowInFront();
  EXPECT_EQ(widget, nullptr);
  EXPECT_FALSE(IsOpen());
}

}  // namespace
}  // namespace ferrowind::gui
