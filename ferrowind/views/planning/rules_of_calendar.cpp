#include "ferrowind/views/planning/rules_of_calendar.h"

#include <utility>
#include <vector>

#include "ferrowind/data/ignoring_failure.h"
#include "ferrowind/data/said.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/views/planning/currency_on_show.h"
#include "ferrowind/views/planning/day_text.h"

namespace ferrowind {
namespace {

using platform::RecordSet;
using platform::Value;

constexpr const char* kTool = "ID_OwnRules";
/// The column, and the field that fills it.
constexpr const char* kDays = "CalendarDays";
constexpr std::int32_t kTextColumn = 0;
constexpr std::int32_t kNotEdited = 1;

}  // namespace

platform::WindowParts RulesOfCalendar::Parts() {
  return {.tools = {{kTool, "Only rules of this currency", "General",
                     "List only the rules of the calendar's currency", platform::ToolKind::kTwoStateButton,
                     "Ctrl+L"}},
          .bar = {kTool}};
}

RulesOfCalendar::RulesOfCalendar(const PlanningContext& context, platform::HolidaysScene& scene)
    : context_(context), scene_(scene) {}

void RulesOfCalendar::Opening() {
  const platform::CalendarOnShow& target = scene_.Target();
  try {
    rules_.emplace(target.currency_id, target.year, context_.tables);
  } catch (const platform::Failure& failure) {
    // The window tells itself when its list cannot be read; where only this could not, the tool says why.
    scene_.Tools().SetToolEnabled(kTool, false);
    scene_.Tools().SetToolDescription(kTool, failure.Description());
    return;
  }
  scene_.Tools().SetToolPressed(kTool, true);
  platform::GridColumn& column = scene_.Rules().AddColumn(
      Said(context_.platform, "In %1", {CalendarName(target)}), kTextColumn, kNotEdited, kDays);
  column.SetBoundField(kDays);
  // Behind the last one it would be out of sight, and it is what the operator opens the list for.
  scene_.Rules().MoveColumnBehind(kDays, "Name");
  text_asked_ =
      scene_.Rules().OnCellText([this](RecordSet::Bookmark row, std::int16_t index, std::string& text) {
        // No message while the grid paints.
        IgnoringFailure([&] { TellDays(row, index, text); });
      });
}

std::optional<std::int32_t> RulesOfCalendar::RuleIn(const RecordSet& rules, RecordSet::Bookmark row) const {
  std::optional<std::int32_t> number;
  IgnoringFailure([&] {
    const std::size_t field = rules.FieldNamed(scene_.Rules().ColumnByKey("ID_Holiday").BoundField());
    number = platform::ToInt32(rules.Cell(row, field));
  });
  return number;
}

std::shared_ptr<RecordSet> RulesOfCalendar::RulesToShow(std::shared_ptr<RecordSet> rules) {
  if (!rules_) return rules;
  const bool is_choosing = scene_.Tools().ToolPressed(kTool);
  platform::RecordRows shown;
  for (std::size_t field = 0; field < rules->FieldCount(); ++field) {
    shown.fields.push_back(rules->FieldName(field));
  }
  shown.fields.emplace_back(kDays);
  for (std::size_t position = 0; position < rules->RowCount(); ++position) {
    const auto row = rules->BookmarkAt(position);
    const auto rule = RuleIn(*rules, row);
    // What cannot be told apart is listed.
    if (is_choosing && rule && !rules_->IsOfInterest(*rule)) continue;
    for (std::size_t field = 0; field < rules->FieldCount(); ++field) {
      shown.cells.push_back(rules->Cell(row, field));
    }
    // The first day, by which the column sorts.
    const bool has_days = rule && !rules_->DaysOf(*rule).empty();
    shown.cells.push_back(has_days ? Value(rules_->DaysOf(*rule).front()) : Value());
    ++shown.row_count;
  }
  return std::make_shared<RecordSet>(std::make_shared<const platform::RecordRows>(std::move(shown)));
}

void RulesOfCalendar::TellDays(RecordSet::Bookmark row, std::int16_t column, std::string& text) const {
  constexpr std::size_t kMostDates = 2;
  if (scene_.Rules().ColumnAt(column).Key() != kDays) return;
  const auto shown = scene_.Rules().Records();
  const auto rule = shown ? RuleIn(*shown, row) : std::nullopt;
  if (!rule) return;
  const auto& days = rules_->DaysOf(*rule);
  if (days.size() > kMostDates) {
    text = SaidOfNumber(context_.platform, static_cast<std::int64_t>(days.size()), "%n day", "%n days");
    return;
  }
  text.clear();
  for (const platform::Date& day : days) {
    text += (text.empty() ? "" : ", ") + DayText(context_.platform.locale, day);
  }
}

bool RulesOfCalendar::RunTool(const std::string& id) {
  if (id != kTool) return false;
  scene_.Reload();
  return true;
}

}  // namespace ferrowind
