#pragma once

#include <functional>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/platform/toolkit/control.h"
#include "ferrowind/platform/toolkit/form_design.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::platform {

/// A window: designed, then loaded once, shown, and unloaded once. Used on the user-interface thread.
///
/// Positions and sizes are single-precision numbers in twips (1440 an inch); a form's size is its outer size.
/// The form and its controls live until the last reference to the form is dropped, also after it was
/// unloaded; dropping it before that unloads nothing and raises nothing, but hides what belongs to it.
class FERROWIND_EXPORT Form : public Element {
 public:
  ///@{
  /// The title of the window.
  [[nodiscard]] virtual std::string Caption() const = 0;
  virtual void SetCaption(const std::string& caption) = 0;
  ///@}
  ///@{
  /// Where the outer frame's left upper corner is on the screen.
  [[nodiscard]] virtual float Left() const = 0;
  virtual void SetLeft(float left) = 0;
  [[nodiscard]] virtual float Top() const = 0;
  virtual void SetTop(float top) = 0;
  ///@}
  ///@{
  /// The outer size. A negative width or height, or one that is not finite, is the failure Invalid argument.
  [[nodiscard]] virtual float Width() const = 0;
  virtual void SetWidth(float width) = 0;
  [[nodiscard]] virtual float Height() const = 0;
  virtual void SetHeight(float height) = 0;
  ///@}
  /// The height of the area inside the frame.
  [[nodiscard]] virtual float InnerHeight() const = 0;

  /// The control of that name, never null; a name that the design does not have is the failure Element not
  /// found (35601), which names both. `ControlOf` below also checks its kind.
  [[nodiscard]] virtual Control& ControlNamed(const std::string& name) = 0;

  /// Raises `OnLoad` when the form was not loaded before.
  virtual void Load() = 0;
  /// Loads the form where needed and shows it without an owner, beside the host's other windows.
  virtual void Show() = 0;
  /// Loads the form where needed, shows it and returns when it is hidden or unloaded; no other window takes
  /// input meanwhile. May be nested.
  ///
  /// The form belongs to the one whose event is being handled or that is shown modally, the innermost of
  /// those on show, else to the active window. When that is unloaded or dropped while this form is on show,
  /// or when the application ends, this form is hidden and the call fails with an `Interruption`, since
  /// nobody has answered. The call returns, and fails, only once the modal forms shown above this one are
  /// gone.
  virtual void ShowModal() = 0;
  /// Brings a form on show to the front, out of being minimised too, and gives it the focus; does nothing to
  /// one that is hidden.
  virtual void Raise() = 0;
  /// Takes the form from the screen; it stays loaded and can be shown again. Ends its `ShowModal`.
  virtual void Hide() = 0;
  /// Between being shown and being hidden or unloaded; also while it is minimised.
  [[nodiscard]] virtual bool IsShown() const = 0;
  /// Closes the form: raises `OnCloseQuery` when it was loaded and not yet unloaded, then hides it for good,
  /// and with it the modal forms and messages that belong to it, which are not asked. True when it is closed,
  /// false when a handler refused or the form is closing already. After it, `Load`, `Show` and `ShowModal` do
  /// nothing.
  virtual bool Unload() = 0;

  /// The form is loaded: once, before it is shown for the first time.
  [[nodiscard]] virtual Subscription OnLoad(std::function<void()> handler) = 0;
  /// The form got another size, or is shown for the first time.
  [[nodiscard]] virtual Subscription OnResize(std::function<void()> handler) = 0;
  /// The form is asked to close, by the operator, the program or the end of the session; setting `cancel`
  /// keeps it open. A handler that finds it set does nothing, as the form stays: one that may refuse on a
  /// form of the component's subscribes in front of that, as `CreateForm` returns.
  [[nodiscard]] virtual Subscription OnCloseQuery(std::function<void(bool& cancel)> handler) = 0;
};

/// The failure of a control that is not there, or not of the kind asked for.
[[nodiscard]] FERROWIND_EXPORT Failure NoSuchControl(const Form& form, const std::string& name);

/// The control of that name as a `Kind`; another kind is the same failure as none.
template <typename Kind>
[[nodiscard]] Kind& ControlOf(Form& form, const std::string& name) {
  auto* control = dynamic_cast<Kind*>(&form.ControlNamed(name));
  if (control == nullptr) throw NoSuchControl(form, name);
  return *control;
}

}  // namespace ferrowind::platform
