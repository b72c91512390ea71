#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <utility>

#include "ferrowind/adapters/table_engine/table_content.h"
#include "ferrowind/adapters/win32/base/wording.h"
#include "ferrowind/adapters/win32/controls/accessible_parts.h"
#include "ferrowind/adapters/win32/controls/row_selection.h"
#include "ferrowind/adapters/win32/table/table_geometry.h"

namespace ferrowind::win32 {

/// A table as assistive programs are told of it: its headers, and of each row the row and then its cells.
class TableParts final : public AccessibleParts {
 public:
  struct Subject {
    const table_engine::TableContent& content;
    const TableGeometry& geometry;
    const RowSelection& selection;
    const std::wstring& empty_text;
    const Wording& words;
    /// The column of the current cell; null where rows are chosen as a whole.
    const std::size_t* current_column;
    /// Makes a row, or a cell of it, the current one.
    std::function<void(std::size_t row, std::size_t column)> choose;
  };
  /// All that is referred to outlives this.
  explicit TableParts(Subject subject) : subject_(std::move(subject)) {}

  [[nodiscard]] LONG WindowRole() const override;
  [[nodiscard]] std::wstring WindowDescription() const override;
  [[nodiscard]] LONG PartCount() const override;
  [[nodiscard]] AccessiblePart PartAt(LONG part) const override;
  [[nodiscard]] LONG PartUnder(POINT client) const override;
  [[nodiscard]] LONG CurrentPart() const override;
  [[nodiscard]] std::vector<LONG> SelectedParts() const override;
  void ChoosePart(LONG part) override;

  ///@{
  /// The parts of what counts from 0.
  [[nodiscard]] LONG HeaderPart(std::size_t column) const { return static_cast<LONG>(column) + 1; }
  [[nodiscard]] LONG RowPart(std::size_t row) const;
  [[nodiscard]] LONG CellPart(std::size_t row, std::size_t column) const {
    return RowPart(row) + static_cast<LONG>(column) + 1;
  }
  ///@}

 private:
  [[nodiscard]] LONG ColumnCount() const { return static_cast<LONG>(subject_.content.Columns().size()); }
  [[nodiscard]] AccessiblePart Header(std::size_t column) const;
  [[nodiscard]] AccessiblePart Row(std::size_t row) const;
  [[nodiscard]] AccessiblePart Cell(std::size_t row, std::size_t column) const;
  [[nodiscard]] LONG StateOf(std::size_t row) const;

  Subject subject_;
};

}  // namespace ferrowind::win32
