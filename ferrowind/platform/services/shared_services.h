#pragma once

#include <cstdint>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/services/object_factory.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::platform {

class Form;
class Grid;
class GridColumn;

/// The shared services object of the host's product family: settings, trace, messages, and grid services.
///
/// A settings section is a path whose levels a backslash separates; a leading one changes nothing. Any
/// operation may fail with a `Failure`.
class FERROWIND_EXPORT SharedServices : public OutsideObject {
 public:
  /// The settings path under which the component's sections lie, for example "\Tessaro".
  [[nodiscard]] virtual std::string SettingsRoot() = 0;
  /// The value stored under the name in the section, or `default_value` when there is none. `user` is passed
  /// at its default, which means the settings of the current user.
  [[nodiscard]] virtual Value ReadSetting(const std::string& section, const std::string& name,
                                          const Value& user, const Value& default_value) = 0;
  /// Stores the value under the name in the section, in place of one that is there, for `ReadSetting` to
  /// give.
  virtual void WriteSetting(const std::string& section, const std::string& name, const Value& value) = 0;

  /// Writes one line of trace; `text` may hold any character.
  virtual void TraceMessage(const std::string& text) = 0;

  /// Shows a message to the operator and returns once it is answered. `style`: 1 information, 3 error; others
  /// are shown as information. `buttons`, `default_button`: 1 is a single "Ok". `owner` may be null: the
  /// active window. An empty `title` stands for the component's name. `modal`, `on_top`: true for a message
  /// that must be answered first. Returns the button pressed, which the component ignores.
  ///
  /// A message belongs to a window as a modal form does (`Form::ShowModal`) and goes with it: that, and the
  /// end of the application while the message is on show, is an `Interruption`. Once the application is
  /// ending nothing is shown.
  virtual std::int32_t ShowMessage(const std::string& text, std::int32_t style, std::int32_t buttons,
                                   std::int32_t default_button, Form* owner, const std::string& title,
                                   bool modal, bool on_top) = 0;
  /// Reports one failure to the operator with its own number and text, and returns once it is answered; as
  /// `ShowMessage`.
  virtual void ReportError(std::int32_t number, const std::string& description) = 0;

  /// Makes `column` the grid's only sort key with that order: 1 ascending, -1 descending, 0 none.
  virtual void SortGridByColumn(std::int32_t sort_order, Grid& grid, GridColumn& column) = 0;
  /// Stores the column layout of the grid in the section. A grid without columns has no layout: nothing is
  /// stored. A layout that is stored there stays when this grid neither had it from `LoadGridLayout`, even if
  /// that could make nothing of it, nor stored it itself: such a grid does not show what the operator had
  /// arranged.
  virtual void SaveGridLayout(Grid& grid, const std::string& section) = 0;
  /// Restores the layout stored in the section; without one, or with one that is damaged, the grid stays as
  /// it is.
  virtual void LoadGridLayout(Grid& grid, const std::string& section) = 0;
  /// Copies rows to the clipboard: the grid's `MarkedRows` or, when there are none, all. `with_headers` adds
  /// the captions.
  virtual void CopyGridRows(Grid& grid, bool with_headers) = 0;
};

}  // namespace ferrowind::platform
