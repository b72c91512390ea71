#pragma once

#include <set>
#include <string>

namespace ferrowind::grid_content {

/// A grid whose columns the operator arranges, as the shared services see it.
class ArrangeableGrid {
 public:
  virtual ~ArrangeableGrid() = default;

  /// Order, widths and visibility of the columns and the keys, as text; empty for a grid without columns.
  [[nodiscard]] virtual std::string SaveLayout() const = 0;
  /// Takes the layout over. False, and nothing is changed, for a text that is none or the layout of a grid
  /// that has no column in common with this one. What it says of unknown columns is left out; columns that it
  /// does not name follow the others.
  virtual bool RestoreLayout(const std::string& layout) = 0;
  /// The settings sections whose layouts this grid has loaded or stored, without a leading backslash.
  [[nodiscard]] virtual std::set<std::string>& LayoutSections() = 0;
  /// Puts the marked rows on the clipboard, or all rows when none is marked; below the captions of the
  /// columns where `with_headers` is true.
  virtual void CopyRows(bool with_headers) const = 0;
};

}  // namespace ferrowind::grid_content
