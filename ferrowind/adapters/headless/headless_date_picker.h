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
    Hold(date);
  }
  void SetCustomFormat(const std::string& format) override {
    core_.Record("SetCustomFormat", {format});
    custom_format_ = format;
  }

  [[nodiscard]] bool RequireDate() override {
    core_.Record("RequireDate");
    if (refused_text_.empty()) return true;
    if (core_.Usable()) core_.TakeFocus();
    return false;
  }

  [[nodiscard]] const std::string& CustomFormat() const { return custom_format_; }
  /// The operator picks a day.
  void PickDate(const platform::Date& date) {
    const auto keep = core_.BeginAction("PickDate", {date});
    core_.TakeFocus();
    Hold(date);
  }
  /// The operator types a text that is no day of the picker's year.
  void TypeNoDate(const std::string& text) {
    const auto keep = core_.BeginAction("TypeNoDate", {text});
    core_.TakeFocus();
    refused_text_ = text;
  }
  /// The text that is no day, "" while the picker holds one.
  [[nodiscard]] const std::string& RefusedText() const { return refused_text_; }

 private:
  void Hold(const platform::Date& date) {
    date_ = date;
    refused_text_.clear();
  }

  platform::Date date_;
  std::string refused_text_;
  std::string custom_format_;
};

}  // namespace ferrowind::headless
