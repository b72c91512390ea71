#include "ferrowind/adapters/qt/forms/dialog_keys.h"

#include <QVariant>

namespace ferrowind::qt {
namespace {

constexpr const char* kCancelProperty = "ferrowindCancelButton";

QPushButton* CancelButton(const QDialog& dialog) {
  for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
    if (button->property(kCancelProperty).toBool() && button->isVisibleTo(&dialog)) return button;
  }
  return nullptr;
}

/// Qt makes the focused button the default one while it has the focus, where the window has a default one.
QPushButton* EnterButton(const QDialog& dialog) {
  if (auto* const focused = qobject_cast<QPushButton*>(dialog.focusWidget())) return focused;
  for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
    if (button->isDefault() && button->isVisibleTo(&dialog)) return button;
  }
  return nullptr;
}

}  // namespace

void SetCancelButton(QPushButton& button) { button.setProperty(kCancelProperty, true); }

bool IsPlainKey(const QKeyEvent& event) {
  return (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

bool PressButtonOfKey(const QDialog& dialog, const QKeyEvent& event) {
  if (!IsPlainKey(event)) return false;
  QPushButton* button = nullptr;
  if (event.key() == Qt::Key_Escape) button = CancelButton(dialog);
  if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) button = EnterButton(dialog);
  if (button == nullptr) return false;
  // A disabled button takes the key and does nothing.
  button->click();
  return true;
}

}  // namespace ferrowind::qt
