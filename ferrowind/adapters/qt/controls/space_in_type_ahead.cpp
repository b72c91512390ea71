#include "ferrowind/adapters/qt/controls/space_in_type_ahead.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>

namespace ferrowind::qt {

SpaceInTypeAhead::SpaceInTypeAhead(QComboBox& box) : QObject(&box), box_(box) {
  box_.installEventFilter(this);
}

bool SpaceInTypeAhead::eventFilter(QObject* watched, QEvent* event) {
  if (watched != &box_ || event->type() != QEvent::KeyPress) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  const bool is_text = !key.text().isEmpty() && key.text().front().isPrint() &&
                       (key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
  if (!is_text) return false;
  if (!since_last_key_.isValid() || since_last_key_.hasExpired(QApplication::keyboardInputInterval()))
    typed_.clear();
  const bool goes_on = !typed_.isEmpty() && BeginsAnItem(typed_ + key.text());
  if (key.key() == Qt::Key_Space && !goes_on) {
    typed_.clear();
    return false;
  }
  since_last_key_.restart();
  typed_ += key.text();
  if (key.key() != Qt::Key_Space) return false;
  SearchOn(key.text());
  return true;
}

bool SpaceInTypeAhead::BeginsAnItem(const QString& text) const {
  return box_.findText(text, Qt::MatchStartsWith) != -1;
}

/// As the box searches for every other letter; its list holds what was typed before.
void SpaceInTypeAhead::SearchOn(const QString& keys) {
  QAbstractItemView& list = *box_.view();
  list.setCurrentIndex(box_.model()->index(box_.currentIndex(), box_.modelColumn(), box_.rootModelIndex()));
  list.keyboardSearch(keys);
  box_.setCurrentIndex(list.currentIndex().row());
}

}  // namespace ferrowind::qt
