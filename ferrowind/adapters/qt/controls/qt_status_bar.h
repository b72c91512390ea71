#pragma once

#include <QLabel>
#include <QStatusBar>
#include <vector>

#include "ferrowind/adapters/qt/controls/qt_control.h"
#include "ferrowind/platform/toolkit/status_bar.h"

namespace ferrowind::qt {

/// Has as many panels as the layout's dynamic property "panels" says, one without it.
class QtStatusBar : public QtControl<platform::StatusBar> {
 public:
  explicit QtStatusBar(QStatusBar& bar);

  [[nodiscard]] std::string PanelText(std::int32_t panel) const override;
  void SetPanelText(std::int32_t panel, const std::string& text) override;

 private:
  [[nodiscard]] QLabel& Panel(std::int32_t panel) const;

  std::vector<QLabel*> panels_;
};

}  // namespace ferrowind::qt
