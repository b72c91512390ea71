#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "ferrowind/platform/additions/additions.h"
#include "ferrowind/views/calendars/day_grid.h"

namespace ferrowind {

/// The host's additions in a Calendars window: shows them the window, and tells them what happens in it. Does
/// nothing where the host has none.
class CalendarsExtension : private platform::CalendarsScene {
 public:
  /// What the additions work on; all must outlive this object.
  struct Surface {
    platform::Form& form;
    platform::Tree& tree;
    platform::Grid& grid;
    platform::ToolBar& tool_bar;
    platform::StatusBar& status_bar;
    const DayGrid& days;
    std::function<void(std::int32_t currency_id, std::int32_t year)> choose;
    std::function<void()> refresh;
    std::function<void()> show_day_menu;
  };

  explicit CalendarsExtension(Surface surface);

  /// Makes the additions; null for none. To be called once the window can be used, and at most once.
  void Make(platform::Additions* additions);

  // As the methods of `platform::CalendarsAdditions` of the same names. A failure is reported, and an
  // `Interruption` thrown on.
  void AddColumns();
  void Started();
  void RunTool(const std::string& id);
  void CurrentDayChanged();
  void DayMenuOpens(bool is_of_day);
  void CalendarCreated(const platform::CalendarOnShow& calendar);
  void Closing();

  /// Runs `fill`, which reads the days anew, and then tells of it: once, also when it did so in several
  /// steps, and instead of each row that became current meanwhile.
  void WhileFilling(const std::function<void()>& fill);

 private:
  [[nodiscard]] platform::Form& Window() override { return window_.form; }
  [[nodiscard]] platform::Tree& Currencies() override { return window_.tree; }
  [[nodiscard]] platform::Grid& Days() override { return window_.grid; }
  [[nodiscard]] platform::ToolBar& Tools() override { return window_.tool_bar; }
  [[nodiscard]] platform::StatusBar& Bar() override { return window_.status_bar; }
  [[nodiscard]] std::optional<platform::CalendarOnShow> OnShow() const override;
  [[nodiscard]] std::optional<std::int32_t> ChosenCurrency() const override;
  [[nodiscard]] std::optional<platform::Date> CurrentDay() const override;
  void Choose(std::int32_t currency_id, std::int32_t year) override { window_.choose(currency_id, year); }
  void Refresh() override { window_.refresh(); }
  void ShowDayMenu() override { window_.show_day_menu(); }

  void Tell(const std::function<void(platform::CalendarsAdditions& additions)>& what);

  Surface window_;
  bool is_filling_ = false;
  std::unique_ptr<platform::CalendarsAdditions> additions_;
};

}  // namespace ferrowind
