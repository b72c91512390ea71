#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/almanac/date_table.h"
#include "ferrowind/exchange/icalendar_format.h"
#include "ferrowind/planning/action_stack.h"
#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/history_store.h"
#include "ferrowind/planning/list_import.h"
#include "ferrowind/planning/readiness_report.h"
#include "ferrowind/platform/events/signal.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/views/planning/planning_window.h"

namespace ferrowind {

struct PlanningContext;

/// The windows of planning: opens them, brings one that is open to the front instead of opening it again, and
/// tells the others what one of them has changed.
///
/// To be used in handlers (`RunHandler`), whose failure a window that cannot be opened is.
class PlanningWindows {
 public:
  /// The calendars that were changed. Empty when it was something else, such as a rule, or not known which.
  using Changed = std::vector<planning::CalendarKey>;

  using Maker = std::function<std::shared_ptr<PlanningWindow>(const PlanningContext& context)>;

  /// All must outlive this object. `calendar_files` is null for a host whose windows need no such files.
  PlanningWindows(const platform::Platform& platform, const almanac::DateTables& tables,
                  const exchange::ICalendarFormat* calendar_files = nullptr);
  /// Drops the windows without asking them.
  ~PlanningWindows();
  PlanningWindows(const PlanningWindows&) = delete;
  PlanningWindows& operator=(const PlanningWindows&) = delete;

  /// The plans of those calendars, at least one and none twice. Whoever knows their currencies says so, and
  /// the window knows what to call them also when the database cannot be read.
  void OpenYearPlan(const std::vector<planning::CalendarKey>& calendars,
                    const planning::CurrencyList& known = planning::CurrencyList({}));
  /// The history of what `filter` asks for. The window that is open already shows that then.
  void OpenHistory(const planning::HistoryFilter& filter);
  /// The calendar of that entry of the history as its call left it.
  void OpenCalendarThen(std::int32_t entry);
  /// A calendar as it was at a moment, UTC as YYYY-MM-DDTHH:MM:SS.sssZ.
  void OpenCalendarAsOf(const planning::CalendarKey& calendar, const std::string& moment);

  /// The readiness board.
  void OpenReadiness();
  /// The rule book of the currency of that number.
  void OpenRuleBook(std::int32_t currency_id);

  /// A year of currencies, by their numbers, at least one.
  void OpenYearPlanner(const std::vector<std::int32_t>& currencies, int year);

  /// The window that makes a calendar as a list, and the one that writes calendars to a file. Both propose
  /// the currency that is written so and the year; "" and nothing propose none.
  void OpenImport(const std::string& currency, std::optional<int> year);
  void OpenExport(const std::string& currency, std::optional<int> year);
  /// The plan of that list. It takes the place of an earlier one of the same calendar.
  void OpenListPlan(const planning::ListImport& import);

  /// Closes all windows; false, with the others closed, when one of them refuses.
  bool CloseAll();

  [[nodiscard]] const exchange::ICalendarFormat& CalendarFiles() const { return calendar_files_; }

  /// For whoever reports on the readiness of the database.
  [[nodiscard]] planning::ReadinessReader& Readiness() { return readiness_; }

  /// What the operator has done in actions that are undone in one step each. Windows learn by `OnChanged`
  /// that it may have become another.
  [[nodiscard]] planning::ActionStack& Actions() { return actions_; }

  /// To be called by whoever has changed something in the database, once it is done.
  void TellChanged(const Changed& calendars);
  [[nodiscard]] platform::Subscription OnChanged(std::function<void(const Changed& calendars)> handler);

 protected:
  /// Brings the window that was opened under `name` to the front, or makes one with `make` and shows it.
  /// Gives that window; what it does when it comes to the front may have closed it.
  std::shared_ptr<PlanningWindow> Open(const std::string& name, const Maker& make);

 private:
  const platform::Platform& platform_;
  const almanac::DateTables& tables_;
  const exchange::ICalendarFormat& calendar_files_;
  planning::ReadinessReader readiness_;
  planning::ActionStack actions_;
  std::map<std::string, std::shared_ptr<PlanningWindow>> windows_;
  platform::Signal<const Changed&> changed_;
};

}  // namespace ferrowind
