#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "ferrowind/export.h"

namespace ferrowind::platform {

/// The kinds of control, each with the port of its name; frames, panels and splitters are plain `Control`s.
enum class FERROWIND_EXPORT ControlKind {
  kLabel,
  kButton,
  kTextBox,
  kTextView,
  kDropDownList,
  kDatePicker,
  kUpDown,
  kFrame,
  kPanel,
  kTree,
  kGrid,
  kTable,
  kToolBar,
  kStatusBar,
  kSplitter,
  kAnimation,
  kYearView,
};

/// A control as a view needs it. Where it stands is the adapter's layout.
struct FERROWIND_EXPORT ControlDesign {
  /// What the view finds the control as, with `ControlOf`.
  ControlKind kind;
  /// Unique in the form: `Element::Name`.
  std::string name;
  /// The caption or first text; "" for none.
  std::string text = {};
  /// The button that Enter presses while the focused control does not take the key. In a dialog without one
  /// it is the first button; in a sizable window without one, Enter presses the button that has the focus
  /// alone.
  bool is_default_button = false;
  /// The button that Esc presses while the focused control does not take the key.
  bool is_cancel_button = false;
  /// For a text box, one of a form at most: it takes what the operator types while the focus is on a control
  /// that takes no text, and its text is selected whenever it gets the focus, so that typing replaces it.
  bool takes_typing = false;
  /// Of a text box: how many characters (code points) of it can be stored; 0 for no limit. A longer text is
  /// not cut: the box tells, while it is that long, how long it is and how long it may be. Outer blanks do
  /// not count.
  std::size_t longest_text = 0;
  /// Of a grid: the operator can mark a range of rows to copy, see `Grid::MarkedRows`.
  bool marks_row_ranges = false;
  /// Of a table: a single cell is current, not a whole row.
  bool selects_cells = false;
  /// Of a table: the operator can select several rows.
  bool selects_many = false;
  /// Of a table: a click on a header sorts by that column, a second one the other way round, a third one puts
  /// the rows into the program's order again.
  bool sorts = false;
};

/// The frame around a form.
enum class FERROWIND_EXPORT FormBorder {
  /// A window with a frame to resize it by, with minimise and maximise boxes and a window menu.
  kSizable,
  /// A dialog of fixed size without those boxes and without a window menu, so that only its buttons close it.
  kFixedDialog,
  /// A dialog of fixed size that its frame can close.
  kClosableDialog,
  /// A box without a title bar.
  kNone,
};

/// Where a form opens: where the program has placed it, in the middle of the window that it belongs to, or of
/// the screen.
enum class FERROWIND_EXPORT FormStart { kAsPlaced, kCenterOwner, kCenterScreen };

/// A form as a view needs it: the toolkit makes the form of this name and gives it these texts.
struct FERROWIND_EXPORT FormDesign {
  /// By which the toolkit knows the layout.
  std::string name;
  /// The title; `Form::SetCaption` gives another.
  std::string caption = {};
  /// For as long as the form lives.
  FormBorder border = FormBorder::kSizable;
  /// Counts until the form has been placed.
  FormStart start = FormStart::kAsPlaced;
  ///@{
  /// The designed client area, in twips. Dialogs grow where their texts need it.
  float client_width = 0;
  float client_height = 0;
  ///@}
  /// Whether Esc closes the form as its close box does, when neither the focused control nor a cancel button
  /// on show takes the key.
  bool closes_by_escape = false;
  /// In tab order.
  std::vector<ControlDesign> controls = {};
};

}  // namespace ferrowind::platform
