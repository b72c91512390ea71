#pragma once

#include <cstdint>
#include <functional>

#include "ferrowind/adapters/win32/base/wording.h"
#include "ferrowind/adapters/win32/controls/accessible_parts.h"
#include "ferrowind/adapters/win32/controls/row_selection.h"
#include "ferrowind/adapters/win32/grid/grid_content.h"
#include "ferrowind/adapters/win32/grid/grid_geometry.h"

namespace ferrowind::win32 {

/// A grid as assistive programs are told of it: the headers in the box of its groups, the headers of the
/// visible columns, and of each row the row and then its cells.
class GridParts final : public AccessibleParts {
 public:
  /// `choose` makes a row the current one. All outlive this.
  GridParts(const GridContent& content, const GridGeometry& geometry, const RowSelection& selection,
            const Wording& words, std::function<void(std::uint32_t)> choose);

  [[nodiscard]] LONG WindowRole() const override;
  [[nodiscard]] LONG PartCount() const override;
  [[nodiscard]] AccessiblePart PartAt(LONG part) const override;
  [[nodiscard]] LONG PartUnder(POINT client) const override;
  [[nodiscard]] LONG CurrentPart() const override;
  [[nodiscard]] std::vector<LONG> SelectedParts() const override;
  void ChoosePart(LONG part) override;

  ///@{
  /// The parts of what counts from 0: a visible column's header, a row, and a cell of a visible column.
  [[nodiscard]] LONG HeaderPart(LONG place) const { return ChipCount() + place + 1; }
  [[nodiscard]] LONG RowPart(std::uint32_t row) const;
  [[nodiscard]] LONG CellPart(std::uint32_t row, LONG place) const { return RowPart(row) + place + 1; }
  ///@}

 private:
  [[nodiscard]] LONG ChipCount() const;
  /// In the order on show.
  [[nodiscard]] std::vector<std::int16_t> Columns() const;
  [[nodiscard]] AccessiblePart Chip(LONG position) const;
  [[nodiscard]] AccessiblePart Header(std::int16_t column) const;
  [[nodiscard]] AccessiblePart Row(std::uint32_t row) const;
  [[nodiscard]] AccessiblePart Cell(std::uint32_t row, std::int16_t column) const;
  [[nodiscard]] std::wstring SaidOfOrder(std::int32_t order) const;
  [[nodiscard]] LONG StateOf(std::uint32_t row) const;

  const GridContent& content_;
  const GridGeometry& geometry_;
  const RowSelection& selection_;
  const Wording& words_;
  std::function<void(std::uint32_t)> choose_;
};

}  // namespace ferrowind::win32
