#include "host/delivery/delivered_calendars.h"

#include <cstdint>
#include <map>
#include <optional>

#include "ferrowind/data/module_state.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

#include "host/session/procedure_session.h"

namespace ferrowind::embedded {
extern const std::string_view kDeliveredCalendars;
}

namespace ferrowind::host {
namespace {

using platform::Date;
using platform::Failure;
using platform::RecordSet;

constexpr const char* kWeekendRules[] = {"Saturday", "Sunday"};
/// The record set of `CldAllInfo` that lists the rules.
constexpr std::size_t kRuleList = 2;

struct Rule {
  std::int32_t id;
  std::int32_t type;
};

/// Throws what went wrong in a call that was to do `what`.
void RequireDone(const ProcedureOutcome& outcome, const std::string& what) {
  if (outcome.failure) {
    throw Failure(outcome.failure->Number(), what + ": " + outcome.failure->Description());
  }
  if (outcome.return_value != 0) {
    throw Failure(platform::failure_number::kInvalidArgument,
                  what + ": the procedure returned " + std::to_string(outcome.return_value));
  }
}

template <typename Read>
void ForEachRow(RecordSet& rows, const Read& read) {
  for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) read();
}

std::map<std::string, Rule> ReadRules() {
  const std::string what = "Reading the holiday rules";
  const ProcedureOutcome outcome = CallProcedure("CldAllInfo", {});
  RequireDone(outcome, what);
  if (outcome.record_sets.size() <= kRuleList) {
    throw Failure(platform::failure_number::kSubscriptOutOfRange,
                  what + ": the procedure gave no list of rules");
  }
  std::map<std::string, Rule> rules;
  RecordSet& rows = *outcome.record_sets[kRuleList];
  ForEachRow(rows, [&] {
    rules[platform::ToText(rows["Name1"])] = {platform::ToInt32(rows["ID2"]),
                                              platform::ToInt32(rows["TID1"])};
  });
  return rules;
}

std::map<std::string, std::int32_t> ReadCurrencies() {
  const auto rows = DictionaryObject().dic_GetDicRecByFilter("Ccy", "CcyType = 0");
  std::map<std::string, std::int32_t> currencies;
  ForEachRow(*rows,
             [&] { currencies[platform::ToText((*rows)["Ccy"])] = platform::ToInt32((*rows)["CcyID"]); });
  return currencies;
}

template <typename Entry>
const Entry& Named(const std::map<std::string, Entry>& entries, const std::string& name, const char* kind) {
  const auto found = entries.find(name);
  if (found == entries.end()) {
    throw Failure(platform::failure_number::kUnknownField,
                  std::string("The database has no ") + kind + " " + name);
  }
  return found->second;
}

/// The first word of `line`, which it loses together with the blank behind it.
std::string_view TakeWord(std::string_view& line) {
  const auto blank = line.find(' ');
  const auto word = line.substr(0, blank);
  line = blank == std::string_view::npos ? std::string_view() : line.substr(blank + 1);
  return word;
}

/// The parameters that name a calendar.
SourceValues CalendarParameters(std::int32_t currency_id, int year) {
  SourceValues parameters;
  parameters.Add("ID1", currency_id);
  parameters.Add("Year1", static_cast<std::int32_t>(year));
  return parameters;
}

}  // namespace

DeliveredCalendars::DeliveredCalendars(std::string_view text) {
  for (int number = 1; !text.empty(); ++number) {
    const auto end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    try {
      AddLine(line);
    } catch (const Failure& failure) {
      throw Failure(failure.Number(),
                    "Delivered calendars, line " + std::to_string(number) + ": " + failure.Description());
    }
  }
}

DeliveredCalendars DeliveredCalendars::Embedded() {
  return DeliveredCalendars(embedded::kDeliveredCalendars);
}

void DeliveredCalendars::AddLine(std::string_view line) {
  if (line.empty() || line.front() == '#') return;
  const std::string currency(TakeWord(line));
  const std::string date_text(TakeWord(line));
  const std::optional<Date> date = Date::FromIso(date_text);
  if (!date) throw Failure(platform::failure_number::kTypeMismatch, "\"" + date_text + "\" is not a date");
  if (line.empty()) throw Failure(platform::failure_number::kInvalidArgument, "the rule is missing");
  if (calendars_.empty() || calendars_.back().currency != currency ||
      calendars_.back().year != date->Year()) {
    calendars_.push_back({currency, date->Year(), {}});
  }
  calendars_.back().holidays.push_back({*date, std::string(line)});
}

void DeliveredCalendars::Create(const CreationObserver& observe) const {
  const auto currencies = ReadCurrencies();
  const auto rules = ReadRules();
  std::size_t done = 0;
  for (const Calendar& calendar : calendars_) {
    if (observe) observe(done++, calendars_.size());
    const std::string name =
        "Creating the calendar " + calendar.currency + " " + std::to_string(calendar.year);
    const std::int32_t currency_id = Named(currencies, calendar.currency, "currency");

    RequireDone(CallProcedure("CldIUMain", CalendarParameters(currency_id, calendar.year)), name);

    for (const std::string rule_name : kWeekendRules) {
      const Rule& rule = Named(rules, rule_name, "holiday rule");
      SourceValues parameters = CalendarParameters(currency_id, calendar.year);
      parameters.Add("TID1", rule.type);
      parameters.Add("ID2", rule.id);
      RequireDone(CallProcedure("CldIUMain", parameters), name + ", " + rule_name);
    }
    for (const DatedHoliday& holiday : calendar.holidays) {
      const Rule& rule = Named(rules, holiday.rule, "holiday rule");
      SourceValues parameters = CalendarParameters(currency_id, calendar.year);
      parameters.Add("TID1", rule.type);
      parameters.Add("ID2", rule.id);
      parameters.Add("Day1", static_cast<std::int32_t>(holiday.date.DayOfYear()));
      parameters.Add("ODate", holiday.date);
      RequireDone(CallProcedure("CldIUMain", parameters),
                  name + ", " + holiday.date.ToIso() + " " + holiday.rule);
    }
  }
}

}  // namespace ferrowind::host
