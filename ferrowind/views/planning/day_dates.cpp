#include "ferrowind/views/planning/day_dates.h"

#include "ferrowind/data/ignoring_failure.h"
#include "ferrowind/data/said.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/views/planning/day_row.h"

namespace ferrowind {
namespace {

using platform::Date;
using platform::RecordSet;
using platform::Value;

constexpr std::int32_t kTextColumn = 0;
constexpr std::int32_t kNotEdited = 1;
constexpr std::int32_t kGroupable = 1;

}  // namespace

DayDates::DayDates(const PlanningContext& context, platform::CalendarsScene& scene)
    : platform_(context.platform), grid_(scene.Days()) {}

void DayDates::AddColumns() {
  platform::GridColumn& column =
      grid_.AddColumn(Said(platform_, "Weekday"), kTextColumn, kNotEdited, kWeekdayColumn);
  column.SetUnbound(true);
  column.SetGroupable(kGroupable);
  // No message while the grid paints: what cannot be computed stays as it is.
  subscriptions_.push_back(
      grid_.OnUnboundValue([this](RecordSet::Bookmark record, std::int16_t index, Value& receiver) {
        IgnoringFailure([&] {
          if (!IsColumn(index, kWeekdayColumn)) return;
          if (const auto date = DateOf(record)) receiver = platform_.locale.WeekdayName(date->Weekday());
        });
      }));
  subscriptions_.push_back(
      grid_.OnUnboundOrder([this](RecordSet::Bookmark record, std::int16_t index, Value& receiver) {
        IgnoringFailure([&] {
          if (!IsColumn(index, kWeekdayColumn)) return;
          if (const auto date = DateOf(record)) receiver = date->Weekday();
        });
      }));
  subscriptions_.push_back(
      grid_.OnCellText([this](RecordSet::Bookmark record, std::int16_t index, std::string& text) {
        IgnoringFailure([&] {
          if (!IsColumn(index, kDateColumn)) return;
          const auto date = DateOf(record);
          if (!date) return;
          text = platform_.locale.DateText(*date);
          if (*date == platform_.clock.Today()) text = Said(platform_, "%1 - today", {text});
        });
      }));
}

bool DayDates::IsColumn(std::int16_t index, const char* key) const {
  return grid_.ColumnAt(index).Key() == key;
}

std::optional<Date> DayDates::DateOf(RecordSet::Bookmark record) const {
  const auto days = grid_.Records();
  if (!days) return std::nullopt;
  const auto field = days->FindField(grid_.ColumnByKey(kDateColumn).BoundField());
  if (!field) return std::nullopt;
  return platform::ToDate(days->Cell(record, *field));
}

}  // namespace ferrowind
