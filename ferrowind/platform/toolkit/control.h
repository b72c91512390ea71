#pragma once

#include <string>

#include "ferrowind/export.h"

namespace ferrowind::platform {

/// What the toolkit can lock against repainting: a form or a control.
class FERROWIND_EXPORT Element {
 public:
  virtual ~Element() = default;
  /// The name given in the form's design, for example "gexCalendar".
  [[nodiscard]] virtual const std::string& Name() const = 0;
};

/// A control of a form. Owned by its form and alive as long as that; used on the user-interface thread.
///
/// What holds for every kind: a property set by the program raises the same change events as the operator's
/// own change would, unless the kind says otherwise. Event handlers must not throw. Methods may fail with a
/// `Failure` only where they say so.
class FERROWIND_EXPORT Control : public Element {
 public:
  /// Whether the operator may use the control, as far as it is up to the control itself.
  [[nodiscard]] virtual bool Enabled() const = 0;
  /// A control in a disabled frame cannot be used either, but keeps its own `Enabled`.
  virtual void SetEnabled(bool enabled) = 0;
  ///@{
  /// Whether the control is shown while its form is.
  [[nodiscard]] virtual bool Visible() const = 0;
  virtual void SetVisible(bool visible) = 0;
  ///@}
  /// Outer height in twips.
  [[nodiscard]] virtual float Height() const = 0;
  /// A negative height is the failure Invalid argument. A layout may stretch the control afterwards.
  virtual void SetHeight(float height) = 0;
  /// Gives the keyboard focus to the control; does nothing while it is hidden or disabled.
  virtual void SetFocus() = 0;
};

}  // namespace ferrowind::platform
