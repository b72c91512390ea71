#include "ferrowind/adapters/win32/controls/row_selection.h"

#include <algorithm>
#include <utility>

namespace ferrowind::win32 {

void RowSelection::SetMode(Mode mode) {
  if (mode == mode_) return;
  const bool is_less = mode_ == Mode::kMany || mode == Mode::kOne;
  mode_ = mode;
  if (is_less) ChooseOnly(current_);
}

void RowSelection::Choose(std::vector<std::uint32_t> rows) {
  chosen_ = std::move(rows);
  is_chosen_ = {chosen_.begin(), chosen_.end()};
}

void RowSelection::ChooseOnly(std::optional<std::uint32_t> row) {
  current_ = row;
  anchor_ = row;
  chosen_before_range_.clear();
  Choose(row ? std::vector<std::uint32_t>{*row} : std::vector<std::uint32_t>{});
}

void RowSelection::Toggle(std::uint32_t row) {
  if (mode_ != Mode::kMany) {
    ChooseOnly(row);
    return;
  }
  std::vector<std::uint32_t> rows = chosen_;
  if (std::erase(rows, row) == 0 || rows.empty()) rows.push_back(row);
  Choose(std::move(rows));
  chosen_before_range_ = chosen_;
  anchor_ = row;
  current_ = row;
}

void RowSelection::ExtendTo(std::uint32_t row) {
  if (!anchor_ || mode_ == Mode::kOne) {
    ChooseOnly(row);
    return;
  }
  const std::uint32_t first = std::min(*anchor_, row);
  const std::uint32_t last = std::max(*anchor_, row);
  std::vector<std::uint32_t> rows = chosen_before_range_;
  std::erase_if(rows, [&](std::uint32_t chosen) { return chosen >= first && chosen <= last; });
  for (std::uint32_t at = first; at <= last; ++at) rows.push_back(at);
  Choose(std::move(rows));
  current_ = row;
}

void RowSelection::TakeForMenu(std::uint32_t row) {
  if (!IsChosen(row)) {
    ChooseOnly(row);
  } else {
    current_ = row;
  }
}

void RowSelection::PutBack(std::optional<std::uint32_t> current, std::vector<std::uint32_t> chosen) {
  ChooseOnly(current);
  if (mode_ == Mode::kOne || chosen.empty()) return;
  chosen_before_range_ = mode_ == Mode::kMany ? chosen : std::vector<std::uint32_t>{};
  Choose(std::move(chosen));
}

}  // namespace ferrowind::win32
