#pragma once

#include <QPointer>
#include <QWidget>

namespace ferrowind::qt {

/// Marks, for as long as it lives, that an event of an element is being handled: what is shown modally
/// meanwhile belongs to the element's window.
class EventOf {
 public:
  explicit EventOf(QWidget& element);
  ~EventOf();
  EventOf(const EventOf&) = delete;
  EventOf& operator=(const EventOf&) = delete;
};

/// A window that is shown modally for as long as this object lives, on the stack of whoever waits for its
/// answer.
class ModalShow {
 public:
  /// To be made before the window is shown. The window belongs to `owner` or, where that is null, to the one
  /// whose event is being handled, the innermost of those on show, else to the active one.
  explicit ModalShow(QWidget& window, QWidget* owner = nullptr);
  ~ModalShow();
  ModalShow(const ModalShow&) = delete;
  ModalShow& operator=(const ModalShow&) = delete;

  /// The window that a modal window shown now would belong to; null for none.
  [[nodiscard]] static QWidget* OwnerOf(const QWidget* window);

  [[nodiscard]] QWidget* Owner() const { return owner_; }
  /// Whether the window was hidden with its owner, and not by its answer.
  [[nodiscard]] bool IsInterrupted() const { return is_interrupted_; }

  /// Hides the modal windows on show that belong to `owner`, directly or through another one.
  static void InterruptThoseOf(const QWidget& owner);
  /// Hides all of them.
  static void InterruptAll();

 private:
  static void HideInterrupted();

  QPointer<QWidget> window_;
  QPointer<QWidget> owner_;
  bool is_interrupted_ = false;
  EventOf in_front_;
};

}  // namespace ferrowind::qt
