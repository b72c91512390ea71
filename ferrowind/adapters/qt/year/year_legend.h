#pragma once

#include <QWidget>
#include <vector>

#include "ferrowind/platform/toolkit/year_view.h"

namespace ferrowind::qt {

/// The legend below the months on the screen, as high as its texts need.
class YearLegend final : public QWidget {
  Q_OBJECT

 public:
  explicit YearLegend(QWidget* parent = nullptr);

  void SetEntries(std::vector<platform::YearLegendEntry> entries);

  [[nodiscard]] bool hasHeightForWidth() const override { return true; }
  [[nodiscard]] int heightForWidth(int width) const override;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return {0, 0}; }

 protected:
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<platform::YearLegendEntry> entries_;
};

}  // namespace ferrowind::qt
