#pragma once

#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>

namespace ferrowind::qt {

/// Makes Esc press `button` in its window.
void SetCancelButton(QPushButton& button);

/// Whether the key was pressed without Shift and the like.
[[nodiscard]] bool IsPlainKey(const QKeyEvent& event);

/// Presses the button that the key stands for: Enter the focused or else the default one, Esc the cancel
/// button. True when the key stood for one.
bool PressButtonOfKey(const QDialog& dialog, const QKeyEvent& event);

}  // namespace ferrowind::qt
