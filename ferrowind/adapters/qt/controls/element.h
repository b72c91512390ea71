#pragma once

#include <QWidget>
#include <functional>
#include <string>

namespace ferrowind::qt {

/// What the adapter's own classes ask of an element of a form, beyond its port.
class WidgetElement {
 public:
  virtual ~WidgetElement() = default;
  /// Lives at least as long as the element.
  [[nodiscard]] virtual QWidget& ElementWidget() = 0;
  /// Ends all events of the element: its form was dropped.
  virtual void Mute() = 0;
};

/// Runs an event handler on behalf of the event loop. Handlers must not throw; what one throws all the same
/// is logged under "ferrowind.events" with the element's name and goes no further, since it would end the
/// host.
void RunGuarded(const std::string& element, const std::function<void()>& handler) noexcept;

}  // namespace ferrowind::qt
