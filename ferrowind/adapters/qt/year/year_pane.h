#pragma once

#include <QAbstractScrollArea>
#include <QHelpEvent>
#include <functional>
#include <optional>

#include "ferrowind/adapters/qt/year/year_layout.h"
#include "ferrowind/adapters/year_engine/year_cursor.h"

namespace ferrowind::qt {

/// The months of a year on the screen, and the operator's keys and mouse on them.
class YearPane final : public QAbstractScrollArea {
  Q_OBJECT

 public:
  explicit YearPane(QWidget* parent = nullptr);

  /// Replaces what is shown; the cursor moves as `platform::YearView::SetContent` says.
  void SetDays(year_engine::YearDays days);
  [[nodiscard]] const year_engine::YearDays& Days() const { return days_; }
  [[nodiscard]] const year_engine::YearCursor& Cursor() const { return cursor_; }
  /// Precondition: the place is on show.
  void GoTo(const year_engine::YearPlace& place);
  void PointAt(const year_engine::YearPlace& place);
  void Toggle(const year_engine::YearPlace& place);
  void Activate();
  void AskForMenu();
  /// Where the day is in the viewport; it may be out of sight.
  [[nodiscard]] QRect RectOf(const year_engine::YearPlace& place) const;
  [[nodiscard]] std::optional<year_engine::YearPlace> PlaceAt(const QPoint& in_viewport) const;

  [[nodiscard]] QSize minimumSizeHint() const override;
  [[nodiscard]] QSize sizeHint() const override;
  /// Tells menus where the current day is.
  [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

 signals:
  void CurrentChanged();
  void SelectionChanged();
  void Activated();
  void MenuAsked();

 protected:
  bool event(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  /// Lays the year out anew, as its room, font, locale or content is another now.
  void Arrange();
  [[nodiscard]] const YearLayout& Layout() const;
  [[nodiscard]] QPointF Scrolled() const;
  [[nodiscard]] std::optional<year_engine::YearStep> StepOf(const QKeyEvent& event) const;
  bool HandleKey(const QKeyEvent& event);
  /// Does `change` to the cursor and tells what became another.
  void ChangeCursor(const std::function<void()>& change);
  void TellChanges(const year_engine::YearCursor& before);
  void ScrollToCurrent();
  void TellAccessibility();
  void ShowTip(const QHelpEvent& event);

  year_engine::YearDays days_;
  year_engine::YearCursor cursor_;
  YearLayout layout_;
  bool is_arranged_ = false;
  /// The current day stays in sight when the pane gets another size, until the operator scrolls.
  bool follows_current_ = true;
  /// While this itself moves the scroll bars.
  bool is_placing_ = false;
  bool is_dragging_ = false;
};

}  // namespace ferrowind::qt
