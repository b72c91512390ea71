#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/control/grid_fields.h"
#include "ferrowind/platform/additions/holidays_scene.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/views/common/grid_reload.h"
#include "ferrowind/views/common/host_columns.h"
#include "ferrowind/views/holidays/holiday_filter.h"
#include "ferrowind/views/holidays/holiday_rule.h"

namespace ferrowind {

/// The grid of the holiday rules of the database, filtered, sorted and coloured by type and removal.
class HolidayList {
 public:
  /// `grid` must outlive the list. `on_filter` is called with the new text of the filter button.
  HolidayList(const platform::Platform& platform, platform::Grid& grid,
              std::function<void(const std::string& button_text)> on_filter);

  /// Which of the rules that were read are to be shown, before the filter; all of them unless this is called.
  using Choice = std::function<std::shared_ptr<platform::RecordSet>(std::shared_ptr<platform::RecordSet>)>;
  void SetChoice(Choice choice) { choice_ = std::move(choice); }

  /// Builds the columns and the initial sort; called once.
  void SetHeaders(std::shared_ptr<GridFields> headers);
  /// Loads the holiday types, the rules and the first weekday and fills the grid. False when something is
  /// missing; that has been reported where there is a message for it. The types and the first weekday that
  /// were loaded before it are kept, the grid stays as it was.
  bool Load();
  void ToggleFilter();

  [[nodiscard]] const std::shared_ptr<platform::RecordSet>& HolidayTypes() const { return holiday_types_; }
  /// 1 Sunday to 7 Saturday.
  [[nodiscard]] std::int32_t FirstWeekday() const { return first_weekday_; }
  [[nodiscard]] const std::shared_ptr<GridFields>& Headers() const { return headers_; }

  /// Whether the current row is a rule, and whether that rule is removed.
  [[nodiscard]] bool HasCurrentRule() const;
  [[nodiscard]] bool IsCurrentRuleRemoved() const;
  /// The bookmarks of the selected rules in the order of the selection; without multiple selection the
  /// current rule.
  [[nodiscard]] std::vector<platform::RecordSet::Bookmark> SelectedRows() const;
  [[nodiscard]] std::vector<HolidayRule> SelectedRules() const;
  /// The same rules with all that tells what they would do.
  [[nodiscard]] std::vector<platform::ChosenRule> ChosenRules() const;
  /// A record set of its own that stands on that row.
  [[nodiscard]] std::shared_ptr<platform::RecordSet> RecordsAt(platform::RecordSet::Bookmark row) const;

  /// The answer to the grid's question for a text: a weekday rule shows its weekday in the column of the
  /// date, every other rule its day and month.
  void ComputeText(platform::RecordSet::Bookmark bookmark, std::int16_t column, std::string& text);
  /// The answer to the grid's question for a cell that the host computes.
  void ComputeCell(platform::RecordSet::Bookmark bookmark, std::int16_t column,
                   platform::Value& receiver) const {
    host_columns_.ComputeCell(bookmark, column, receiver);
  }

 private:
  /// Nothing when it cannot be read, which has been reported.
  [[nodiscard]] std::optional<std::int32_t> LoadFirstWeekday(const platform::RecordSet& setting) const;
  void FillGrid(const std::shared_ptr<platform::RecordSet>& holidays);
  void AddFormats();
  /// The record set on show, on that row.
  [[nodiscard]] platform::RecordSet& MoveTo(platform::RecordSet::Bookmark row) const;
  [[nodiscard]] const platform::Value& FieldOf(const platform::RecordSet& rule,
                                               const std::string& local_name) const;

  const platform::Platform& platform_;
  platform::Grid& grid_;
  std::function<void(const std::string&)> on_filter_;
  std::shared_ptr<GridFields> headers_;
  std::shared_ptr<platform::RecordSet> holiday_types_;
  std::int32_t first_weekday_ = 0;
  /// Made at the first fill.
  std::optional<HolidayFilter> filter_;
  Choice choice_;
  GridReload reload_;
  HostColumns host_columns_;
};

}  // namespace ferrowind
