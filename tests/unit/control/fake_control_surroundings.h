#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "ferrowind/control/calendar.h"
#include "ferrowind/platform/events/signal.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/views/calendars/calendars_window.h"

namespace ferrowind::testing {

/// A window that does what its test says.
class FakeWindow : public CalendarsWindow {
 public:
  bool Init(std::shared_ptr<GridFields> given_headers,
            std::shared_ptr<GridFields> given_holiday_headers) override {
    headers = std::move(given_headers);
    holiday_headers = std::move(given_holiday_headers);
    if (on_init) on_init();
    return is_ready;
  }
  void Show() override { ++show_count; }
  bool ForceClosing() override {
    ++force_closing_count;
    if (on_force_closing) on_force_closing();
    if (agrees_to_close && reports_closing) closing.Emit();
    return agrees_to_close;
  }
  platform::Subscription OnClosing(std::function<void()> handler) override {
    return closing.Subscribe(std::move(handler));
  }

  std::shared_ptr<GridFields> headers;
  std::shared_ptr<GridFields> holiday_headers;
  std::function<void()> on_init;
  std::function<void()> on_force_closing;
  bool is_ready = true;
  bool agrees_to_close = true;
  bool reports_closing = true;
  int show_count = 0;
  int force_closing_count = 0;
  platform::Signal<> closing;
};

class CalendarOfFakeWindows : public Calendar {
 public:
  using Calendar::Calendar;

  std::function<void(FakeWindow& window)> prepare = [](FakeWindow&) {};
  std::vector<std::weak_ptr<FakeWindow>> windows;

 protected:
  std::shared_ptr<CalendarsWindow> CreateCalendarsWindow() override {
    auto window = std::make_shared<FakeWindow>();
    windows.push_back(window);
    prepare(*window);
    return window;
  }
};

/// A host's place for the control that the test resizes.
class FakeSite : public platform::ControlSite {
 public:
  void SetSize(float width, float height) override {
    if (is_stuck) throw platform::InvalidArgument();
    const std::pair size(width, height);
    sizes.push_back(size);
    if (size == now) return;
    now = size;
    resized.Emit();
  }
  platform::Subscription OnResize(std::function<void()> handler) override {
    return resized.Subscribe(std::move(handler));
  }
  void ResizeByHost(float width, float height) {
    now = {width, height};
    resized.Emit();
  }

  bool is_stuck = false;
  std::pair<float, float> now{0.0F, 0.0F};
  std::vector<std::pair<float, float>> sizes;
  platform::Signal<> resized;
};

}  // namespace ferrowind::testing
