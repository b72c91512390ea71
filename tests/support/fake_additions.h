#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/headless/call_log.h"
#include "ferrowind/platform/additions/additions.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::testing {

/// Additions that do what their test says; what they are told is in the log as "additions.METHOD(...)".
class FakeAdditions : public platform::Additions {
 public:
  explicit FakeAdditions(headless::CallLog& log) : log_(log) {}

  [[nodiscard]] platform::WindowParts CalendarsParts() const override { return calendars_parts; }
  [[nodiscard]] platform::WindowParts HolidaysParts() const override { return holidays_parts; }
  [[nodiscard]] std::unique_ptr<platform::CalendarsAdditions> ForCalendars(
      platform::CalendarsScene& scene) override {
    Tell("ForCalendars");
    calendars = &scene;
    return std::make_unique<OfCalendars>(*this);
  }
  [[nodiscard]] std::unique_ptr<platform::HolidaysAdditions> ForHolidays(
      platform::HolidaysScene& scene) override {
    Tell("ForHolidays");
    holidays = &scene;
    return std::make_unique<OfHolidays>(*this);
  }

  platform::WindowParts calendars_parts;
  platform::WindowParts holidays_parts;
  /// Of the window that was made last.
  platform::CalendarsScene* calendars = nullptr;
  platform::HolidaysScene* holidays = nullptr;
  /// The method that fails, and what another one does when it is told.
  std::string fails_in;
  std::string acts_in;
  std::function<void()> act;
  std::function<std::shared_ptr<platform::RecordSet>(std::shared_ptr<platform::RecordSet>)> rules_to_show;
  bool lets_assign = true;
  std::vector<platform::ChosenRule> chosen_rules;

 private:
  class OfCalendars : public platform::CalendarsAdditions {
   public:
    explicit OfCalendars(FakeAdditions& all) : all_(all) {}
    void AddColumns() override { all_.Tell("AddColumns"); }
    void Started() override { all_.Tell("Started"); }
    bool RunTool(const std::string& id) override {
      all_.Tell("RunTool", {id});
      return true;
    }
    void DaysShown() override { all_.Tell("DaysShown"); }
    void CurrentDayChanged() override { all_.Tell("CurrentDayChanged"); }
    void DayMenuOpens(bool is_of_day) override { all_.Tell("DayMenuOpens", {is_of_day}); }
    void CalendarCreated(const platform::CalendarOnShow& calendar) override {
      all_.Tell("CalendarCreated", {calendar.currency_id, calendar.currency, calendar.year});
    }
    void Closing() override { all_.Tell("Closing"); }

   private:
    FakeAdditions& all_;
  };

  class OfHolidays : public platform::HolidaysAdditions {
   public:
    explicit OfHolidays(FakeAdditions& all) : all_(all) {}
    void Opening() override { all_.Tell("Opening"); }
    [[nodiscard]] std::string Caption(const std::string& given) override {
      all_.Tell("Caption", {given});
      return given + ", added";
    }
    [[nodiscard]] std::shared_ptr<platform::RecordSet> RulesToShow(
        std::shared_ptr<platform::RecordSet> rules) override {
      all_.Tell("RulesToShow");
      return all_.rules_to_show ? all_.rules_to_show(std::move(rules)) : rules;
    }
    bool RunTool(const std::string& id) override {
      all_.Tell("RunTool", {id});
      return true;
    }
    [[nodiscard]] bool BeforeAssign(const std::vector<platform::ChosenRule>& rules) override {
      all_.chosen_rules = rules;
      all_.Tell("BeforeAssign");
      return all_.lets_assign;
    }
    void Closing() override { all_.Tell("Closing"); }

   private:
    FakeAdditions& all_;
  };

  void Tell(const std::string& method, const std::vector<platform::Value>& arguments = {}) {
    log_.Record(headless::CallText("additions", method, arguments));
    if (method == acts_in) act();
    if (method == fails_in) throw platform::Failure(1, method + " cannot be done");
  }

  headless::CallLog& log_;
};

}  // namespace ferrowind::testing
