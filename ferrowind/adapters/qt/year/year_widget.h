#pragma once

#include <QFrame>

namespace ferrowind::qt {

class YearLegend;
class YearPane;

/// The widget of a year view: the months with their legend below. A form's layout names this class;
/// `QtYearView` gives it something to show.
class YearWidget final : public QFrame {
  Q_OBJECT

 public:
  explicit YearWidget(QWidget* parent = nullptr);

  [[nodiscard]] YearPane& Pane() const { return *pane_; }
  /// The pane shows another content now.
  void RefreshLegend();

 private:
  YearPane* pane_;
  YearLegend* legend_;
};

}  // namespace ferrowind::qt
