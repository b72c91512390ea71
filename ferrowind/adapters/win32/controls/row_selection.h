#pragma once

#include <cstdint>
#include <optional>
#include <unordered_set>
#include <vector>

namespace ferrowind::win32 {

/// The current row of a grid and those that are painted as chosen, in the order in which they were chosen.
/// Rows count from 0. A row that is current is chosen, too, unless it was taken out where many can be.
class RowSelection {
 public:
  enum class Mode {
    /// The current row alone.
    kOne,
    /// The current row, or the rows from another one to it.
    kRange,
    /// Any rows.
    kMany,
  };

  [[nodiscard]] Mode CurrentMode() const { return mode_; }
  /// Leaves the current row the only chosen one when fewer can be chosen than before.
  void SetMode(Mode mode);

  [[nodiscard]] std::optional<std::uint32_t> Current() const { return current_; }
  [[nodiscard]] const std::vector<std::uint32_t>& Chosen() const { return chosen_; }
  [[nodiscard]] bool IsChosen(std::uint32_t row) const { return is_chosen_.contains(row); }

  /// Nothing for no row.
  void ChooseOnly(std::optional<std::uint32_t> row);
  /// Adds the row or takes it out, unless it is the last one; makes it current.
  void Toggle(std::uint32_t row);
  /// Chooses the rows from the one that was chosen last without this to the row, which becomes current.
  void ExtendTo(std::uint32_t row);
  /// Makes the row current, and the only chosen one unless it is chosen already.
  void TakeForMenu(std::uint32_t row);
  /// Takes over what stands there after the rows were arranged anew: the chosen rows in their order.
  void PutBack(std::optional<std::uint32_t> current, std::vector<std::uint32_t> chosen);

 private:
  void Choose(std::vector<std::uint32_t> rows);

  Mode mode_ = Mode::kOne;
  std::optional<std::uint32_t> current_;
  std::vector<std::uint32_t> chosen_;
  std::unordered_set<std::uint32_t> is_chosen_;
  /// Where a range begins, and what was chosen before it.
  std::optional<std::uint32_t> anchor_;
  std::vector<std::uint32_t> chosen_before_range_;
};

}  // namespace ferrowind::win32
