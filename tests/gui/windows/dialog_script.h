#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <chrono>
#include <deque>
#include <functional>
#include <string>

namespace ferrowind::gui {

/// Answers the menus and modal windows that open while the test is inside one of its own clicks.
///
/// Looks every few milliseconds for the popup, else the modal window, on top. When it is the one that the
/// next step waits for, the step runs; when it is not for a long while, the test fails and the window is
/// closed, so that the test comes to its end.
class DialogScript : public QObject {
 public:
  using Step = std::function<void(QWidget& window)>;

  DialogScript();

  /// The next window to open, by its object name, and what to do with it. A step may add others.
  void Expect(const std::string& name, Step step);
  /// True when nothing is left; what is left fails the test.
  [[nodiscard]] bool IsPlayed() const;

 private:
  struct Expected {
    std::string name;
    Step step;
  };

  void LookLater();
  void Look();
  void GiveUpOn(QWidget& window);

  std::deque<Expected> expected_;
  QPointer<QWidget> strange_;
  std::chrono::steady_clock::time_point strange_since_;
};

}  // namespace ferrowind::gui
