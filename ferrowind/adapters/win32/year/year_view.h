#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/win32/controls/control_window.h"
#include "ferrowind/adapters/win32/controls/scroll_bars.h"
#include "ferrowind/adapters/win32/controls/shortcut.h"
#include "ferrowind/adapters/win32/year/year_parts.h"
#include "ferrowind/adapters/year_engine/year_cursor.h"
#include "ferrowind/adapters/year_engine/year_layout.h"
#include "ferrowind/platform/toolkit/year_view.h"

namespace ferrowind::win32 {

/// The year at a glance, painted by itself: the months, which scroll where they need more room, above the
/// legend.
class Win32YearView final : public Win32Control<platform::YearView> {
 public:
  Win32YearView(ControlHost& host, std::string name, HWND parent);

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

  [[nodiscard]] bool CanHaveFocus() const override { return true; }
  [[nodiscard]] bool FillsHeight() const override { return true; }
  /// Enter activates the current day.
  [[nodiscard]] bool KeepsKey(WPARAM key) const override {
    return key == VK_RETURN && cursor_.Current().has_value();
  }

  [[nodiscard]] const AccessibleWindow* Accessible() const override { return &accessible_; }

  [[nodiscard]] const year_engine::YearDays& Days() const { return days_; }
  /// Where the day is in the window; it may be out of sight.
  [[nodiscard]] RECT AreaOf(const year_engine::YearPlace& place) const;
  void BringIntoSight(const year_engine::YearPlace& place);

 protected:
  LRESULT OnMessage(UINT message, WPARAM w_param, LPARAM l_param) override;
  [[nodiscard]] SIZE NeededSize() const override;

 private:
  // Looks
  /// Lays the year out anew, as its room, font or content is another now.
  void Arrange();
  [[nodiscard]] SIZE RoomWithoutBars() const;
  void ShowScrollBars();
  void Scroll(int bar, WORD request);
  void ScrollTo(int bar, LONG place);
  void Repaint() const { InvalidateRect(Handle(), nullptr, FALSE); }
  void Paint();
  void ShowTipAt(POINT place);
  [[nodiscard]] std::optional<year_engine::YearPlace> PlaceAt(POINT place) const;

  // Changes
  /// Does `change` to the cursor and tells what became another.
  void ChangeCursor(const std::function<void()>& change);
  void Activate();
  void AskForMenu();

  // What the operator does
  bool OnMouse(UINT message, POINT place);
  bool OnKey(const KeyPress& press);

  year_engine::YearDays days_;
  year_engine::YearCursor cursor_;
  year_engine::YearLayout layout_;
  /// Of the months; the legend stands below.
  SIZE room_{};
  LONG scrolled_x_ = 0;
  LONG scrolled_y_ = 0;
  bool is_arranging_ = false;
  /// The current day stays in sight when the view gets another size, until the operator scrolls.
  bool follows_current_ = true;
  bool is_dragging_ = false;
  WheelSteps wheel_;
  std::string tip_;
  YearParts parts_{
      {days_, cursor_, [this](const year_engine::YearPlace& place) { return AreaOf(place); },
       [this](POINT client) { return PlaceAt(client); },
       [this](const year_engine::YearPlace& place) { ChangeCursor([&] { cursor_.GoTo(place); }); }}};
  AccessibleWindow accessible_{Handle(), parts_};
  platform::Signal<> current_changed_;
  platform::Signal<> selection_changed_;
  platform::Signal<> activated_;
  platform::Signal<> menu_asked_;
};

}  // namespace ferrowind::win32
