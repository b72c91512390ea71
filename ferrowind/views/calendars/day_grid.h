#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "ferrowind/control/grid_fields.h"
#include "ferrowind/platform/additions/calendars_scene.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/views/common/grid_reload.h"
#include "ferrowind/views/common/update_lock.h"

namespace ferrowind {

/// The grid of the days of one calendar. Sorting, grouping, current row and first visible row survive a
/// refill.
class DayGrid {
 public:
  /// The controls the day grid works on; all must outlive it. `on_fill` is called whenever the grid was
  /// enabled or disabled.
  struct Controls {
    platform::Form& form;
    platform::Tree& tree;
    platform::Grid& grid;
    /// Locked while the rows are replaced.
    platform::Control& splitter;
    std::function<void()> on_fill;
  };

  DayGrid(const platform::Platform& platform, Controls controls);

  void SetHeaders(std::shared_ptr<GridFields> headers) { headers_ = std::move(headers); }

  /// Shows the days of a calendar node; a currency node, or none, empties and disables the grid. When the
  /// days cannot be read the grid stays as it was, and the gateway keeps the failure.
  void ShowDaysOf(const std::optional<std::string>& node);

  /// The calendar whose days the grid shows; nothing while it shows none, and when it could not be filled to
  /// the end.
  [[nodiscard]] const std::optional<platform::CalendarOnShow>& OnShow() const { return on_show_; }
  /// Whether the days in the grid are those of that node. They are of another one when those of the node that
  /// was selected last could not be read.
  [[nodiscard]] bool Shows(const std::string& node) const { return on_show_ && days_node_ == node; }

  /// The tree node whose days the grid shows, or the node that was clicked last.
  [[nodiscard]] const std::optional<std::string>& CurrentNode() const { return current_node_; }
  void SetCurrentNode(const std::string& node) { current_node_ = node; }

  /// The answer to the grid's question for a computed cell; columns that are not computed get none.
  void ComputeCell(platform::RecordSet::Bookmark bookmark, std::int16_t column, platform::Value& receiver);
  /// The answer to the grid's question what a computed cell is sorted and grouped by: the names of the months
  /// follow one another as the months do.
  void ComputeOrder(platform::RecordSet::Bookmark bookmark, std::int16_t column, platform::Value& receiver);
  /// The column's next sort order: none after ascending, ascending after descending, else descending.
  void CycleSortOrder(platform::GridColumn& column);
  void BeforeRegrouping();
  void AfterRegrouping();

 private:
  /// The date of that row; nothing while the grid has no rows.
  [[nodiscard]] std::optional<platform::Date> DateOf(platform::RecordSet::Bookmark bookmark) const;
  void ShowNothing();
  void ShowRecords(std::shared_ptr<platform::RecordSet> days);
  /// Tells the host how many of the days on show `days` changes, when those are of the same node.
  void TellChanges(const std::string& node, const platform::RecordSet& days);

  const platform::Platform& platform_;
  Controls controls_;
  std::shared_ptr<GridFields> headers_;
  /// The node whose days the grid has.
  std::string days_node_;
  std::optional<platform::CalendarOnShow> on_show_;
  std::optional<std::string> current_node_;
  GridReload reload_;
  std::unique_ptr<UpdateLock> regrouping_lock_;
};

}  // namespace ferrowind
