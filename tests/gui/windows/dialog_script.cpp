#include "tests/gui/windows/dialog_script.h"

#include <QApplication>
#include <QTimer>
#include <utility>

#include <gtest/gtest.h>

namespace ferrowind::gui {
namespace {

constexpr std::chrono::milliseconds kInterval{5};
constexpr std::chrono::seconds kPatience{20};

QWidget* WindowOnTop() {
  if (QWidget* popup = QApplication::activePopupWidget()) return popup;
  return QApplication::activeModalWidget();
}

}  // namespace

DialogScript::DialogScript() { LookLater(); }

void DialogScript::Expect(const std::string& name, Step step) {
  expected_.push_back({name, std::move(step)});
}

bool DialogScript::IsPlayed() const {
  for (const Expected& left : expected_) ADD_FAILURE() << left.name << " did not open";
  return expected_.empty();
}

void DialogScript::LookLater() {
  // A new timer each time: one timer would not fire again while its own step is inside another window.
  QTimer::singleShot(kInterval, this, [this] {
    LookLater();
    Look();
  });
}

void DialogScript::Look() {
  QWidget* window = WindowOnTop();
  if (window == nullptr) {
    strange_ = nullptr;
    return;
  }
  const bool is_wanted = !expected_.empty() && window->objectName().toStdString() == expected_.front().name;
  // A window that has just been shown becomes the active one a little later.
  if (is_wanted && (QApplication::activePopupWidget() == window || QApplication::activeWindow() == window)) {
    strange_ = nullptr;
    const Step step = std::move(expected_.front().step);
    expected_.pop_front();
    step(*window);
    return;
  }
  if (strange_ != window) {
    strange_ = window;
    strange_since_ = std::chrono::steady_clock::now();
  }
  if (std::chrono::steady_clock::now() - strange_since_ > kPatience) GiveUpOn(*window);
}

void DialogScript::GiveUpOn(QWidget& window) {
  ADD_FAILURE() << "The window " << window.objectName().toStdString() << " is open, expected is "
                << (expected_.empty() ? "none" : expected_.front().name);
  expected_.clear();
  strange_ = nullptr;
  window.hide();
}

}  // namespace ferrowind::gui
