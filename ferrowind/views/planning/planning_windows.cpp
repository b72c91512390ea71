#include "ferrowind/views/planning/planning_windows.h"

#include <utility>

#include "ferrowind/views/planning/fm_calendar_then.h"
#include "ferrowind/views/planning/fm_export.h"
#include "ferrowind/views/planning/fm_history.h"
#include "ferrowind/views/planning/fm_import.h"
#include "ferrowind/views/planning/fm_readiness.h"
#include "ferrowind/views/planning/fm_rule_book.h"
#include "ferrowind/views/planning/fm_year_plan.h"
#include "ferrowind/views/planning/fm_year_planner.h"
#include "ferrowind/views/planning/planning_context.h"

namespace ferrowind {

namespace {

const exchange::NoICalendar kNoCalendarFiles{};

}  // namespace

PlanningWindows::PlanningWindows(const platform::Platform& platform, const almanac::DateTables& tables,
                                 const exchange::ICalendarFormat* calendar_files)
    : platform_(platform),
      tables_(tables),
      calendar_files_(calendar_files != nullptr ? *calendar_files : kNoCalendarFiles),
      readiness_(tables) {}

PlanningWindows::~PlanningWindows() = default;

std::shared_ptr<PlanningWindow> PlanningWindows::Open(const std::string& name, const Maker& make) {
  std::erase_if(windows_, [](const auto& entry) { return !entry.second->IsOpen(); });
  auto found = windows_.find(name);
  if (found == windows_.end()) found = windows_.emplace(name, make({platform_, tables_, *this})).first;
  // Held here, because what it does when it comes to the front may close it.
  auto window = found->second;
  window->ShowInFront();
  return window;
}

void PlanningWindows::OpenHistory(const planning::HistoryFilter& filter) {
  const auto window =
      Open(fmHistory::Name(), [](const PlanningContext& context) { return fmHistory::Create(context); });
  if (window->IsOpen()) static_cast<fmHistory&>(*window).ShowChangesOf(filter);
}

void PlanningWindows::OpenCalendarThen(std::int32_t entry) {
  Open(fmCalendarThen::NameFor(entry),
       [&](const PlanningContext& context) { return fmCalendarThen::Create(context, entry); });
}

void PlanningWindows::OpenCalendarAsOf(const planning::CalendarKey& calendar, const std::string& moment) {
  Open(fmCalendarThen::NameFor(calendar, moment),
       [&](const PlanningContext& context) { return fmCalendarThen::CreateAsOf(context, calendar, moment); });
}

void PlanningWindows::OpenYearPlan(const std::vector<planning::CalendarKey>& calendars,
                                   const planning::CurrencyList& known) {
  Open(fmYearPlan::NameFor(calendars),
       [&](const PlanningContext& context) { return fmYearPlan::Create(context, calendars, known); });
}

void PlanningWindows::OpenReadiness() {
  Open("readiness", [](const PlanningContext& context) {
    return fmReadiness::Create(context, fmReadiness::DoorsTo(context.windows));
  });
}

void PlanningWindows::OpenYearPlanner(const std::vector<std::int32_t>& currencies, int year) {
  Open(fmYearPlanner::NameFor(currencies, year),
       [&](const PlanningContext& context) { return fmYearPlanner::Create(context, currencies, year); });
}

void PlanningWindows::OpenRuleBook(std::int32_t currency_id) {
  Open("rule book " + std::to_string(currency_id),
       [currency_id](const PlanningContext& context) { return fmRuleBook::Create(context, currency_id); });
}

void PlanningWindows::OpenImport(const std::string& currency, std::optional<int> year) {
  const auto window =
      Open(fmImport::Name(), [](const PlanningContext& context) { return fmImport::Create(context); });
  if (window->IsOpen()) static_cast<fmImport&>(*window).Propose(currency, year);
}

void PlanningWindows::OpenExport(const std::string& currency, std::optional<int> year) {
  const auto window =
      Open(fmExport::Name(), [](const PlanningContext& context) { return fmExport::Create(context); });
  if (window->IsOpen()) static_cast<fmExport&>(*window).Propose(currency, year);
}

void PlanningWindows::OpenListPlan(const planning::ListImport& import) {
  const std::string name = fmYearPlan::NameFor(import);
  if (const auto earlier = windows_.find(name); earlier != windows_.end() && earlier->second->IsOpen()) {
    // Held here, because it goes while it closes.
    const auto window = earlier->second;
    if (!window->Close()) return window->ShowInFront();
  }
  Open(name, [&](const PlanningContext& context) { return fmYearPlan::CreateOfList(context, import); });
}

bool PlanningWindows::CloseAll() {
  bool are_closed = true;
  // Taken off, because a window that closes may open or close another.
  for (const auto& [name, window] : std::exchange(windows_, {})) {
    if (!window->IsOpen() || window->Close()) continue;
    windows_.emplace(name, window);
    are_closed = false;
  }
  return are_closed;
}

void PlanningWindows::TellChanged(const Changed& calendars) { changed_.Emit(calendars); }

platform::Subscription PlanningWindows::OnChanged(std::function<void(const Changed& calendars)> handler) {
  return changed_.Subscribe(std::move(handler));
}

}  // namespace ferrowind
