#pragma once

#include "ferrowind/adapters/qt/controls/qt_control.h"
#include "ferrowind/adapters/qt/year/year_widget.h"
#include "ferrowind/platform/toolkit/year_view.h"

namespace ferrowind::qt {

class YearPane;

class QtYearView : public QtControl<platform::YearView> {
 public:
  explicit QtYearView(YearWidget& widget);

  void SetContent(platform::YearContent content) override;
  [[nodiscard]] std::optional<platform::YearCell> Current() const override;
  void SetCurrent(const platform::YearCell& cell) override;
  [[nodiscard]] std::vector<platform::YearCell> Selected() const override;
  void SavePages(platform::PageFile kind, const std::string& path, const std::string& heading) override;
  bool PrintPages(const std::string& heading) override;
  [[nodiscard]] platform::Subscription OnCurrentChange(std::function<void()> handler) override;
  [[nodiscard]] platform::Subscription OnSelectionChange(std::function<void()> handler) override;
  [[nodiscard]] platform::Subscription OnActivate(std::function<void()> handler) override;
  [[nodiscard]] platform::Subscription OnMenuAsked(std::function<void()> handler) override;

 private:
  YearWidget& widget_;
  YearPane& pane_;
  platform::Signal<> current_changed_;
  platform::Signal<> selection_changed_;
  platform::Signal<> activated_;
  platform::Signal<> menu_asked_;
};

}  // namespace ferrowind::qt
