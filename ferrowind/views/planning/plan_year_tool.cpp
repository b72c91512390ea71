#include "ferrowind/views/planning/plan_year_tool.h"

#include "ferrowind/data/confirm.h"
#include "ferrowind/data/said.h"
#include "ferrowind/planning/book_store.h"
#include "ferrowind/planning/currency_list.h"
#include "ferrowind/views/planning/currency_on_show.h"

namespace ferrowind {
namespace {

constexpr const char* kTool = "ID_PlanYear";

}  // namespace

platform::WindowParts PlanYearTool::Parts() {
  return {.tools = {{.id = kTool,
                     .caption = "Plan year...",
                     .category = "Planning",
                     .description = "Shows where the calendar differs from what it should be"}},
          .bar = {kTool}};
}

void PlanYearTool::RefreshTool() { scene_.Tools().SetToolEnabled(kTool, scene_.OnShow().has_value()); }

bool PlanYearTool::RunTool(const std::string& id) {
  if (id != kTool) return false;
  if (const auto calendar = scene_.OnShow()) Open(*calendar);
  return true;
}

void PlanYearTool::CalendarCreated(const platform::CalendarOnShow& calendar) {
  // Without a book nothing tells what the year should be.
  if (!planning::LoadBook(calendar.currency_id, calendar.currency, context_.tables)) return;
  const platform::Platform& platform = context_.platform;
  const std::string question =
      Said(platform, "Nothing is closed in %1 %2 yet. Prepare it now?",
           {planning::UnmistakableCode(CurrencyOf(calendar)), std::to_string(calendar.year)});
  const bool is_wanted = Ask(platform.toolkit, {.caption = Said(platform, "New calendar"),
                                                .message = question,
                                                .verb = Said(platform, "Prepare"),
                                                .cancel = Said(platform, "Not now")});
  // It may have closed while the question was just being answered.
  if (is_wanted && !has_closed_) Open(calendar);
}

void PlanYearTool::Open(const platform::CalendarOnShow& calendar) {
  context_.windows.OpenYearPlan({{calendar.currency_id, calendar.year}},
                                planning::CurrencyList({CurrencyOf(calendar)}));
}

}  // namespace ferrowind
