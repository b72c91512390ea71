#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ferrowind/adapters/headless/headless_control.h"
#include "ferrowind/adapters/year_engine/year_cursor.h"
#include "ferrowind/platform/toolkit/year_view.h"

namespace ferrowind::headless {

/// A year that nobody sees. Its pages are plain text: the heading, then the notes, each with its ISO date.
class HeadlessYearView : public HeadlessControl<platform::YearView> {
 public:
  using HeadlessControl::HeadlessControl;

  void SetContent(platform::YearContent content) override;
  [[nodiscard]] std::optional<platform::YearCell> Current() const override;
  void SetCurrent(const platform::YearCell& cell) override;
  [[nodiscard]] std::vector<platform::YearCell> Selected() const override;
  void SavePages(platform::PageFile kind, const std::string& path, const std::string& heading) override;
  bool PrintPages(const std::string& heading) override;
  [[nodiscard]] platform::Subscription OnCurrentChange(std::function<void()> handler) override {
    return current_changed_.Subscribe(std::move(handler));
  }
  [[nodiscard]] platform::Subscription OnSelectionChange(std::function<void()> handler) override {
    return selection_changed_.Subscribe(std::move(handler));
  }
  [[nodiscard]] platform::Subscription OnActivate(std::function<void()> handler) override {
    return activated_.Subscribe(std::move(handler));
  }
  [[nodiscard]] platform::Subscription OnMenuAsked(std::function<void()> handler) override {
    return menu_asked_.Subscribe(std::move(handler));
  }

  [[nodiscard]] const platform::YearContent& Content() const { return days_.Content(); }
  /// "2028-04-14, Good Friday, closed"; of several calendars with the caption in front.
  [[nodiscard]] std::string TextOf(const platform::YearCell& cell) const;
  /// Whether the operator finds a printer when he is asked for one; so at first.
  void SetHasPrinter(bool has_printer) { has_printer_ = has_printer; }

  void ClickDay(const platform::YearCell& cell);
  /// Clicks with the Ctrl key held.
  void ToggleDay(const platform::YearCell& cell);
  /// Clicks with the Shift key held, or drags from where the selection began.
  void ExtendToDay(const platform::YearCell& cell);
  /// Presses the key of a step, with the Shift key held where it `extends` the selection.
  void PressStep(year_engine::YearStep step, bool extends = false);
  /// Presses Enter.
  void ActivateDay();
  void RightClickDay(const platform::YearCell& cell);
  void PressMenuKey();

 private:
  [[nodiscard]] year_engine::YearPlace RequirePlaceOf(const platform::YearCell& cell);
  /// Does what the operator does at a day.
  void Act(const std::string& action, const platform::YearCell& cell,
           const std::function<void(const year_engine::YearPlace&)>& change);
  /// Raises the events for what became another since `before`.
  void TellChanges(const year_engine::YearCursor& before);

  year_engine::YearDays days_;
  year_engine::YearCursor cursor_;
  bool has_printer_ = true;
  platform::Signal<> current_changed_;
  platform::Signal<> selection_changed_;
  platform::Signal<> activated_;
  platform::Signal<> menu_asked_;
};

}  // namespace ferrowind::headless
