#include "host/admin/as_of_command.h"

#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/database_call.h"

#include "host/admin/database_content.h"
#include "host/admin/history_arguments.h"
#include "host/admin/plan_arguments.h"
#include "host/admin/procedure_arguments.h"

namespace ferrowind::host {
namespace {

using platform::Failure;

constexpr std::int32_t kHistoryTooShort = 9;

std::shared_ptr<platform::RecordSet> ReadDays(const std::string& code, std::int32_t year,
                                              const std::string& moment) {
  const auto currencies = planning::CurrencyList::Load();
  const planning::Currency& currency = currencies.Named(code);
  const std::string calendar = currency.code + "/" + std::to_string(year);
  SourceValues parameters;
  parameters.Add("ID1", currency.id);
  parameters.Add("Year1", year);
  parameters.Add("Moment", moment);
  const auto answer =
      planning::CallDatabase("Reading the calendar " + calendar + " as of " + moment, "CldGetAsOf",
                             parameters, 1, {planning::return_value::kUnknownCalendar, kHistoryTooShort});
  switch (answer.return_value) {
    case planning::return_value::kUnknownCalendar:
      throw Failure(platform::failure_number::kInvalidArgument,
                    "There was no calendar " + calendar + " at " + moment);
    case kHistoryTooShort:
      throw Failure(platform::failure_number::kInvalidArgument,
                    "The history does not reach back to " + moment +
                        ": it keeps what was changed only since the database was upgraded");
    default:
      return answer.record_sets.front();
  }
}

std::int32_t ReadCalendarYear(const std::string& text) {
  const int year = ReadYear(text);
  if (year < planning::kFirstCalendarYear || year > planning::kLastCalendarYear) {
    throw ArgumentError("Calendars are of the years " + std::to_string(planning::kFirstCalendarYear) +
                        " to " + std::to_string(planning::kLastCalendarYear) + ", not " + text);
  }
  return year;
}

}  // namespace

ExitStatus AsOfCommand::Run(const platform::EngineRegistry& engines, std::ostream& out) const {
  const std::string then = ReadMoment(moment);
  const std::int32_t wanted = ReadCalendarYear(year);
  std::shared_ptr<platform::RecordSet> days;
  RunWithCalendars(engines, url, [&] { days = ReadDays(currency, wanted, then); });
  WriteRows({days}, format, out);
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
