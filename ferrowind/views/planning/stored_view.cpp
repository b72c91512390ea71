#include "ferrowind/views/planning/stored_view.h"

#include <algorithm>

#include "ferrowind/data/ignoring_failure.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/views/common/group_by_box_tool.h"
#include "ferrowind/views/common/window_placement.h"

namespace ferrowind {
namespace {

constexpr const char* kCurrency = "LastCurrency";
constexpr const char* kYear = "LastYear";
constexpr const char* kFirstRow = "FirstVisibleRow";
constexpr const char* kGroupBox = "GroupByBox";

std::string Section() { return SettingsSectionOf("Window Calendars"); }

std::int32_t Stored(const char* name) {
  std::int32_t number = 0;
  // A setting that cannot be read, or is no number, is as good as none.
  IgnoringFailure([&] {
    number = platform::ToInt32(SharedServicesObject().ReadSetting(Section(), name, {}, std::int32_t{0}));
  });
  return number;
}

void Store(const char* name, std::int32_t number) {
  SharedServicesObject().WriteSetting(Section(), name, number);
}

}  // namespace

StoredView::StoredView(const PlanningContext& /*context*/, platform::CalendarsScene& scene) : scene_(scene) {}

void StoredView::Started() {
  platform::Grid& grid = scene_.Days();
  const bool has_box = Stored(kGroupBox) != 0;
  grid.SetGroupByBoxVisible(has_box);
  scene_.Tools().SetToolPressed(GroupByBoxTool::kId, has_box);
  const std::int32_t year = Stored(kYear);
  has_started_ = true;
  if (year == 0) return;
  const std::int32_t currency = Stored(kCurrency);
  stored_.emplace(currency, year);
  scene_.Choose(currency, year);
  const std::int32_t row = std::min(Stored(kFirstRow), grid.RowCount());
  if (row > 0) grid.SetFirstVisibleRow(row);
}

void StoredView::DaysShown() {
  // A session may end without closing the window. Not worth a message when it cannot be kept.
  if (has_started_) IgnoringFailure([this] { StoreCalendar(); });
}

void StoredView::StoreCalendar() {
  const auto calendar = scene_.OnShow();
  const std::pair shown(calendar ? calendar->currency_id : 0, calendar ? calendar->year : 0);
  if (shown == stored_) return;
  Store(kCurrency, shown.first);
  Store(kYear, shown.second);
  // Of the one before.
  Store(kFirstRow, 0);
  stored_ = shown;
}

void StoredView::Closing() {
  const platform::Grid& grid = scene_.Days();
  StoreCalendar();
  Store(kFirstRow, scene_.OnShow() ? grid.FirstVisibleRow() : 0);
  Store(kGroupBox, grid.GroupByBoxVisible() ? 1 : 0);
}

}  // namespace ferrowind
