#include "ferrowind/adapters/qt/grid/group_by_box.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <algorithm>

#include "ferrowind/adapters/qt/grid/grid_colors.h"
#include "ferrowind/adapters/qt/grid/group_chip.h"
#include "ferrowind/adapters/qt/look/blend.h"
#include "ferrowind/adapters/qt/values/translated.h"

namespace ferrowind::qt {

namespace {

constexpr int kMargin = 6;
constexpr int kGap = 6;

}  // namespace

GroupByBox::GroupByBox(QWidget* parent)
    : QFrame(parent), layout_(new QHBoxLayout(this)), hint_(new QLabel(this)) {
  setObjectName(QStringLiteral("groupByBox"));
  setAccessibleName(Translated("Group by"));
  hint_->setText(Translated("Drag a column header here to group by that column"));
  hint_->setForegroundRole(QPalette::PlaceholderText);
  layout_->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout_->setSpacing(kGap);
  layout_->addWidget(hint_);
  layout_->addStretch();
  setMinimumHeight(fontMetrics().height() + 8 + 2 * kMargin);
}

void GroupByBox::SetChips(const std::vector<GroupChipText>& chips) {
  // Chips on show are given new texts, not replaced: one of them may be handling the event that leads here.
  while (chips_.size() > chips.size()) {
    chips_.back()->hide();
    layout_->removeWidget(chips_.back());
    chips_.back()->deleteLater();
    chips_.pop_back();
  }
  while (chips_.size() < chips.size()) {
    auto* chip = new GroupChip(this);
    layout_->insertWidget(static_cast<int>(chips_.size()) + 1, chip);
    if (!chips_.empty()) QWidget::setTabOrder(chips_.back(), chip);
    chip->show();
    chips_.push_back(chip);
  }
  for (std::size_t i = 0; i < chips.size(); ++i) chips_[i]->Show(chips[i], static_cast<int>(i + 1));
  hint_->setVisible(chips.empty());
}

void GroupByBox::FocusChip(int position) {
  if (position < 1 || position > static_cast<int>(chips_.size())) return;
  chips_[static_cast<std::size_t>(position) - 1]->setFocus(Qt::TabFocusReason);
}

void GroupByBox::paintEvent(QPaintEvent* /*event*/) {
  const GridColors colors(palette());
  QPainter painter(this);
  painter.fillRect(rect(), Blend(colors.header, colors.text, 0.03));
  painter.fillRect(QRect(0, height() - 1, width(), 1), colors.header_line);
  if (!drop_position_) return;
  int x = kMargin - kGap / 2;
  if (*drop_position_ > 1 && !chips_.empty()) {
    const QRect before = chips_[static_cast<std::size_t>(*drop_position_) - 2]->geometry();
    x = before.right() + kGap / 2;
  } else if (chips_.empty()) {
    x = 2;
  }
  painter.fillRect(QRect(x, 3, 3, height() - 6), colors.accent);
}

int GroupByBox::DropPositionAt(int x) const {
  int position = 1;
  for (const GroupChip* chip : chips_) {
    if (x < chip->geometry().center().x()) break;
    ++position;
  }
  return position;
}

bool GroupByBox::ShowDrop(const DraggedColumn& dragged, const QPoint& global) {
  const QPoint place = mapFromGlobal(global);
  if (!isVisible() || !dragged.is_groupable || !rect().contains(place)) return false;
  drop_position_ = DropPositionAt(place.x());
  update();
  return true;
}

void GroupByBox::HideDrop() {
  drop_position_.reset();
  update();
}

void GroupByBox::Drop(const DraggedColumn& dragged, const QPoint& global) {
  const int position = DropPositionAt(mapFromGlobal(global).x());
  if (dragged.group_position == 0) {
    emit GroupAsked(dragged.column, position);
    return;
  }
  emit MoveAsked(dragged.group_position, position > dragged.group_position ? position - 1 : position);
}

}  // namespace ferrowind::qt
