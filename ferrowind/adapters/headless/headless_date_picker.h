#pragma once

#include <string>
#include <utility>

#include "ferrowind/adapters/headless/headless_control.h"
#include "ferrowind/platform/toolkit/date_picker.h"

namespace ferrowind::headless {

class HeadlessDatePicker : public HeadlessControl<platform::DatePicker> {
 public:
  HeadlessDatePicker(ControlHost& host, std::string name, const platform::Date& today)
      : HeadlessControl(host, std::move(name)), date_(today) {}

  [[nodiscard]] platform::Date Date() const override { return date_; }
  void SetDate(const platform::Date& date) override {
    core_.Record("SetDate", {date});
    date_ = date;
  }
  void SetCustomFormat(const std::string& format) override {
    core_.Record("SetCustomFormat", {format});
    custom_format_ = format;
  }

  [[nodiscard]] const std::string& CustomFormat() const { return custom_format_; }
  /// The operator picks a day.
  void PickDate(const platform::Date& date) {
    const auto keep = core_.BeginAction("PickDate", {date});
    core_.TakeFocus();
    date_ = date;
  }

 private:
  platform::Date date_;
  std::string custom_format_;
};

}  // namespace ferrowind::headless
