#pragma once

#include <cstdint>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/toolkit/grid_keys.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::platform {

/// The pairs of a stored value and the text that a column shows for it.
class FERROWIND_EXPORT GridValueList {
 public:
  virtual ~GridValueList() = default;
  /// Appends a pair; of two pairs with equal values the first one counts.
  virtual void Add(const Value& value, const std::string& text) = 0;
  /// All pairs, those with equal values too.
  [[nodiscard]] virtual std::int32_t Count() const = 0;
  /// The text shown for `value`; numbers of different widths are the same value. A value that is not in the
  /// list is the failure Element not found (35601), which names it.
  [[nodiscard]] virtual std::string TextOf(const Value& value) const = 0;
};

/// A column of a grid. Owned by the grid and alive as long as that.
class FERROWIND_EXPORT GridColumn {
 public:
  virtual ~GridColumn() = default;
  /// As it was given to `Grid::AddColumn`.
  [[nodiscard]] virtual const std::string& Key() const = 0;
  /// The title; the program may have changed it since the column was added.
  [[nodiscard]] virtual std::string Caption() const = 0;
  /// Shows at once, wherever the grid names the column.
  virtual void SetCaption(const std::string& caption) = 0;
  /// 1-based, in the order of adding; reordering by the operator does not change it.
  [[nodiscard]] virtual std::int16_t Index() const = 0;

  ///@{
  /// The record-set field that fills the column; a field that the record set does not have gives empty cells.
  [[nodiscard]] virtual std::string BoundField() const = 0;
  virtual void SetBoundField(const std::string& field) = 0;
  ///@}
  ///@{
  /// Whether the column is shown; hidden, it can still be sorted by.
  [[nodiscard]] virtual bool Visible() const = 0;
  virtual void SetVisible(bool visible) = 0;
  ///@}
  /// Whether the column's title can be dragged to group by it: 1 it can, 0 it cannot.
  virtual void SetGroupable(std::int32_t groupable) = 0;
  ///@{
  /// An unbound column asks for its values through `Grid::OnUnboundValue`.
  [[nodiscard]] virtual bool Unbound() const = 0;
  virtual void SetUnbound(bool unbound) = 0;
  ///@}

  /// Whether cells show the text that stands for their value in `ValueList`.
  [[nodiscard]] virtual bool HasValueList() const = 0;
  /// Turned on, the column has a value list, empty at first; turned off, it loses it.
  virtual void SetHasValueList(bool has_value_list) = 0;
  /// Null while `HasValueList` is false.
  [[nodiscard]] virtual GridValueList* ValueList() = 0;

  /// The order of the column among the grid's sort keys; `kSortNone` when it is not one of them.
  [[nodiscard]] virtual std::int32_t SortOrder() const = 0;
};

}  // namespace ferrowind::platform
