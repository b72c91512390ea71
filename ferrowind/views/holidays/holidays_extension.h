#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/platform/additions/additions.h"
#include "ferrowind/views/holidays/holiday_list.h"
#include "ferrowind/views/holidays/holiday_rule.h"

namespace ferrowind {

/// The host's additions in a Holidays window: shows them the window, and tells them what happens in it. Does
/// nothing where the host has none.
class HolidaysExtension : private platform::HolidaysScene {
 public:
  /// What the additions work on; all must outlive this object.
  struct Surface {
    platform::Form& form;
    platform::Grid& grid;
    platform::ToolBar& tool_bar;
    const HolidayList& list;
    std::function<void()> reload;
  };

  explicit HolidaysExtension(Surface surface);

  /// Makes the additions of a window for that target; null for none. `currency` is the code of its currency.
  /// To be called once, before the list is filled.
  void Open(platform::Additions* additions, const AssignmentTarget& target, const std::string& currency);

  // As the methods of `platform::HolidaysAdditions` of the same names; without additions, or when they fail,
  // which is reported, the answer is what the window has of its own. An `Interruption` is thrown on.
  [[nodiscard]] std::string Caption(const std::string& given);
  [[nodiscard]] std::shared_ptr<platform::RecordSet> RulesToShow(std::shared_ptr<platform::RecordSet> rules);
  void RunTool(const std::string& id);
  void Closing();
  /// A failure, which is reported, counts as false.
  [[nodiscard]] bool BeforeAssign();

 private:
  [[nodiscard]] platform::Form& Window() override { return window_.form; }
  [[nodiscard]] platform::Grid& Rules() override { return window_.grid; }
  [[nodiscard]] platform::ToolBar& Tools() override { return window_.tool_bar; }
  [[nodiscard]] const platform::CalendarOnShow& Target() const override { return target_; }
  [[nodiscard]] std::optional<platform::Date> TargetDay() const override { return day_; }
  [[nodiscard]] std::int32_t FirstWeekday() const override { return window_.list.FirstWeekday(); }
  void Reload() override { window_.reload(); }

  void Tell(const std::function<void(platform::HolidaysAdditions& additions)>& what);

  Surface window_;
  platform::CalendarOnShow target_;
  std::optional<platform::Date> day_;
  std::unique_ptr<platform::HolidaysAdditions> additions_;
};

}  // namespace ferrowind
