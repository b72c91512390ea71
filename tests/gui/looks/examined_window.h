#pragma once

#include <QImage>
#include <QWidget>
#include <string>
#include <vector>

namespace ferrowind::gui {

/// A window on show, examined on a picture of it by what people need to read and to use it. Each fault is
/// told in words; there are none in a window that can be shown to anybody.
class ExaminedWindow {
 public:
  explicit ExaminedWindow(QWidget& window);

  /// Texts that are cut, columns of tables that are scrolled out of sight, and widgets that stand outside of
  /// what holds them or, with the window as small as it gets, outside of a screen of 800 x 600.
  [[nodiscard]] std::vector<std::string> FaultsOfRoom() const;
  /// Texts that stand out less than 4.5 to 1 from their ground.
  [[nodiscard]] std::vector<std::string> FaultsOfText() const;
  /// Fields and buttons whose edges stand out less than 3 to 1 from what is around them.
  [[nodiscard]] std::vector<std::string> FaultsOfEdges() const;
  /// Widgets that the Tab key leads to and that look the same, within 3 to 1, with the focus and without.
  [[nodiscard]] std::vector<std::string> FaultsOfFocus() const;

 private:
  [[nodiscard]] QImage Grab(const QRect& part) const;
  /// The widget's area, or a part of it, in the pixels of a picture of the window.
  [[nodiscard]] QRect InPicture(const QWidget& widget, const QRect& part) const;

  QWidget& window_;
  QImage picture_;
};

}  // namespace ferrowind::gui
