#pragma once

#include <QWidget>
#include <string>

namespace ferrowind::host {

/// Where a window of the host stands and how large it is, from one run of the program to the next, in the
/// user's settings. What the settings cannot give or take is left as it is.
class WindowMemory {
 public:
  /// `window` must outlive this object; `name` is unique among the host's windows.
  WindowMemory(QWidget& window, std::string name);

  /// Puts the window where it was, as far as the screens of today reach there.
  void Restore() const;
  void Save() const;

 private:
  [[nodiscard]] std::string Section() const;

  QWidget& window_;
  std::string name_;
};

}  // namespace ferrowind::host
