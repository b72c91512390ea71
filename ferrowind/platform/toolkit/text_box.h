#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/platform/toolkit/control.h"

namespace ferrowind::platform {

/// A line of text that the operator writes.
class FERROWIND_EXPORT TextBox : public Control {
 public:
  ///@{
  /// What the box holds, as it was typed or set: outer blanks stay.
  [[nodiscard]] virtual std::string Text() const = 0;
  virtual void SetText(const std::string& text) = 0;
  ///@}
  /// The most characters that the operator can type; 0 is no limit.
  virtual void SetMaxLength(std::int32_t characters) = 0;
  /// So that typing replaces the text; the focus stays where it is.
  virtual void SelectAll() = 0;
  /// What the box shows, fainter than its text, while it is empty: what it is for, or an example.
  virtual void SetPlaceholder(const std::string& text) = 0;
  /// The text changed, by the operator or the program; not raised when the same text is set again.
  [[nodiscard]] virtual Subscription OnChange(std::function<void()> handler) = 0;
  /// The operator pressed Enter in the box. From the first subscription on the key is the box's and no longer
  /// presses the form's default button.
  [[nodiscard]] virtual Subscription OnEnter(std::function<void()> handler) = 0;
  /// The keyboard focus has gone to another control or window.
  [[nodiscard]] virtual Subscription OnLostFocus(std::function<void()> handler) = 0;
};

}  // namespace ferrowind::platform
