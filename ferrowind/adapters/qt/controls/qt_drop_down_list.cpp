#include "ferrowind/adapters/qt/controls/qt_drop_down_list.h"

#include <QSignalBlocker>

#include "ferrowind/adapters/qt/controls/space_in_type_ahead.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {

QtDropDownList::QtDropDownList(QComboBox& box) : QtControl(box), box_(box) {
  box_.setEditable(false);
  box_.clear();
  new SpaceInTypeAhead(box_);
  QObject::connect(&box_, &QComboBox::currentIndexChanged, Context(), [this] { Raise(chosen_); });
}

void QtDropDownList::AddItem(const std::string& text, std::int32_t item_data) {
  // The combo box chooses the first item that it gets by itself.
  const QSignalBlocker silence(box_);
  const int chosen = box_.currentIndex();
  box_.addItem(ToQt(text), item_data);
  box_.setCurrentIndex(chosen);
}

std::int32_t QtDropDownList::Count() const { return box_.count(); }

std::string QtDropDownList::ItemText(std::int32_t position) const {
  RequirePosition(position);
  return FromQt(box_.itemText(position));
}

std::int32_t QtDropDownList::ItemData(std::int32_t position) const {
  RequirePosition(position);
  return box_.itemData(position).toInt();
}

std::int32_t QtDropDownList::Chosen() const { return box_.currentIndex(); }

void QtDropDownList::Choose(std::int32_t position) {
  if (position != -1) RequirePosition(position);
  box_.setCurrentIndex(position);
}

platform::Subscription QtDropDownList::OnChoice(std::function<void()> handler) {
  return chosen_.Subscribe(std::move(handler));
}

void QtDropDownList::RequirePosition(std::int32_t position) const {
  if (position < 0 || position >= box_.count()) throw platform::SubscriptOutOfRange();
}

}  // namespace ferrowind::qt
