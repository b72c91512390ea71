#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QPointer>
#include <functional>
#include <memory>

#include "ferrowind/platform/toolkit/form_design.h"

namespace ferrowind::qt {

/// The window of a form: frame and size by the form's border kind, and the keys that press buttons. Or, where
/// a host has given the form a place, a part of the host's window, which has neither frame nor size nor
/// position of its own and is not closed by keys.
///
/// What the window cannot decide it asks through the callbacks, each of which may be empty.
class FormWindow : public QDialog {
  Q_OBJECT

 public:
  struct Callbacks {
    /// The frame, a key or the session asks to close. The window stays as it is; whoever answers hides it.
    std::function<void()> close_asked = {};
    std::function<void()> resized = {};
    std::function<void()> hidden = {};
  };

  FormWindow();
  ~FormWindow() override;

  void SetCallbacks(Callbacks callbacks) { callbacks_ = std::move(callbacks); }
  /// Sets the window's frame; to be called before it is first shown, with its controls in place.
  void SetBorder(platform::FormBorder border);
  /// Makes it a part of `place`, and of its layout where it has one; instead of `SetBorder`.
  void PutInto(QWidget& place);
  [[nodiscard]] platform::FormBorder Border() const { return border_; }
  /// The line edit, of this window, that takes what is typed while the focus is on a widget that takes no
  /// text; but no blank at its beginning, which would replace a selected text by nothing to be seen.
  void SetTypingTarget(QLineEdit& line);
  /// Whether Esc closes the window as its close box does, when no control and no button takes the key.
  void SetClosesByEscape(bool closes) { closes_by_escape_ = closes; }
  /// The size of the client area, in pixels. Dialogs of fixed size grow beyond it as far as their texts need;
  /// other windows are no larger than what is free of the screen around its middle.
  void SetDesignedSize(const QSize& size);

  /// The outer geometry. The frame is only known once the window is shown: until then a size that is set is
  /// kept, and applied again when the frame appears.
  [[nodiscard]] QSize OuterSize() const;
  void SetOuterSize(const QSize& size);
  void SetOuterPosition(const QPoint& position);
  /// Whether `SetOuterPosition` was called.
  [[nodiscard]] bool IsPlaced() const { return is_placed_; }

  /// Deletes the window from the event loop, and with it `form`, which uses the window.
  void RetireWith(std::shared_ptr<void> form);
  [[nodiscard]] bool IsRetired() const { return retired_form_ != nullptr; }

  /// Ways by which a dialog would close itself; closing is the form's decision here.
  void done(int result) override;
  void reject() override;

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  [[nodiscard]] bool IsFixed() const { return border_ != platform::FormBorder::kSizable; }
  [[nodiscard]] QSize FrameExtents() const;
  bool TypeIntoTarget(QKeyEvent& event);
  void FitToTexts();
  void MakeUpForFrame();

  Callbacks callbacks_;
  QPointer<QLineEdit> typing_target_;
  platform::FormBorder border_ = platform::FormBorder::kSizable;
  QSize designed_size_;
  /// The outer size that was asked for, until the operator resizes the window; empty for none.
  QSize wanted_outer_size_;
  QSize extents_applied_ = {0, 0};
  bool is_placed_ = false;
  bool closes_by_escape_ = false;
  std::shared_ptr<void> retired_form_;
};

}  // namespace ferrowind::qt
