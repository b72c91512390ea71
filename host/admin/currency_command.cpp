#include "host/admin/currency_command.h"

#include <algorithm>
#include <ostream>
#include <vector>

#include "ferrowind/almanac/date_expression.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/database_call.h"
#include "ferrowind/platform/values/date.h"
#include "ferrowind/platform/values/text_limits.h"

#include "host/admin/database_content.h"
#include "host/admin/text_escapes.h"

namespace ferrowind::host {
namespace {

using planning::Currency;
using planning::CurrencyList;
using platform::Date;
using platform::Failure;
using platform::RecordSet;
using platform::Value;

constexpr const char* kChange = "CldIUCurrency";
constexpr std::int32_t kCodeOfAnother = 2;
constexpr std::int32_t kOutOfRange = 7;
constexpr std::int32_t kWouldBeWrong = 9;
constexpr std::size_t kCodeLength = 3;

Failure Refused(const std::string& why) { return {platform::failure_number::kInvalidArgument, why}; }

std::string ReadCode(std::string code) {
  for (char& letter : code) {
    if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
  }
  const bool is_code = code.size() == kCodeLength && std::all_of(code.begin(), code.end(), [](char letter) {
                         return letter >= 'A' && letter <= 'Z';
                       });
  if (!is_code) throw Refused("\"" + code + "\" is no code of a currency: it has three letters, as EUR has");
  return code;
}

std::string ReadName(const std::string& name) {
  if (name.find_first_not_of(" \t\r\n") == std::string::npos) throw Refused("The name is blank");
  if (const auto too_long = platform::TooLong(platform::LimitedText::kName, name))
    throw Refused(too_long->InEnglish());
  return name;
}

Date ReadLastDay(const std::string& text) {
  const std::optional<Date> day = Date::FromIso(text);
  if (!day) throw Refused("\"" + text + "\" is no date YYYY-MM-DD");
  if (day->Year() < almanac::kFirstYear || day->Year() > almanac::kLastYear) {
    throw Refused(text + " is no last day of a currency: it is in a year from " +
                  std::to_string(almanac::kFirstYear) + " to " + std::to_string(almanac::kLastYear));
  }
  return *day;
}

std::string Described(const Currency& currency) {
  return currency.code + " (" + std::to_string(currency.id) + ")";
}

/// What it is on the day `today`.
const char* KindOf(const Currency& currency, const Date& today) {
  if (currency.last_day && (!currency.is_money || *currency.last_day < today)) return "past";
  return currency.is_money ? "money" : "other";
}

/// A currency that a command is to retire or to restore.
void RequireMoneyOfAnyTime(const Currency& currency) {
  if (!currency.is_money && !currency.last_day) {
    throw Refused(Described(currency) + " never was money: it is a metal, a fund or a unit of account");
  }
}

/// Stores what `currency` says. Returns what the procedure does.
std::int32_t Store(const Currency& currency) {
  SourceValues parameters;
  parameters.Add("CcyID", currency.id);
  parameters.Add("Ccy", currency.code);
  parameters.Add("CcyType", static_cast<std::int16_t>(currency.is_money ? 0 : 1));
  parameters.Add("Name", currency.name);
  if (currency.last_day) parameters.Add("LastDay", *currency.last_day);
  return planning::CallDatabase("Storing the currency " + Described(currency), kChange, parameters, 0,
                                {kCodeOfAnother, kOutOfRange, kWouldBeWrong})
      .return_value;
}

/// A failure in words unless `return_value` says that `currency` is stored.
void RequireStored(const Currency& currency, std::int32_t return_value) {
  switch (return_value) {
    case planning::return_value::kDone:
      return;
    case kCodeOfAnother:
      throw Refused("The code " + currency.code + " belongs to another currency");
    case kWouldBeWrong:
      throw Refused("The database refuses the change of " + Described(currency) +
                    ": it has calendars or a rule book that would be wrong then");
    default:
      throw Refused("The database does not take the currency " + Described(currency) +
                    ": a value is out of range");
  }
}

/// Whether it stays in the lists of the windows.
bool Retire(Currency currency, const Date& last_day, const Date& today) {
  currency.last_day = last_day;
  currency.is_money = false;
  if (last_day < today) {
    const std::int32_t return_value = Store(currency);
    if (return_value != kWouldBeWrong) {
      RequireStored(currency, return_value);
      return false;
    }
  }
  currency.is_money = true;
  const std::int32_t return_value = Store(currency);
  if (return_value == kWouldBeWrong) {
    throw Refused(Described(currency) + " has a calendar of a year after " + std::to_string(last_day.Year()));
  }
  RequireStored(currency, return_value);
  return true;
}

std::shared_ptr<RecordSet> AsRows(std::vector<Currency> currencies, const Date& today) {
  std::sort(currencies.begin(), currencies.end(),
            [](const Currency& left, const Currency& right) { return left.code < right.code; });
  std::vector<std::vector<Value>> rows;
  for (const Currency& currency : currencies) {
    rows.push_back({currency.id, currency.code, std::string(KindOf(currency, today)), currency.name,
                    currency.last_day ? Value(*currency.last_day) : Value()});
  }
  return std::make_shared<RecordSet>(std::vector<std::string>{"CcyID", "Ccy", "Kind", "Name", "LastDay"},
                                     std::move(rows));
}

}  // namespace

ExitStatus CurrencyListCommand::Run(const platform::EngineRegistry& engines, std::ostream& out) const {
  std::shared_ptr<RecordSet> rows;
  RunWithCalendars(engines, url,
                   [&] { rows = AsRows(CurrencyList::Load().All(), AttachedPlatform().clock.Today()); });
  WriteRows({rows}, format, out);
  return ExitStatus::kDone;
}

ExitStatus CurrencyAddCommand::Run(const platform::EngineRegistry& engines, std::ostream& out) const {
  Currency added;
  added.id = number;
  added.code = ReadCode(code);
  added.name = ReadName(name);
  added.is_money = !is_no_money;
  AdministerCalendars(engines, url, [&] {
    // The procedure would change the currency that has the number.
    const CurrencyList currencies = CurrencyList::Load();
    if (const Currency* const other = currencies.Find(number)) {
      throw Refused("The number " + std::to_string(number) + " belongs to " + other->code);
    }
    RequireStored(added, Store(added));
  });
  out << Described(added) << " is in the list now: " << added.name << ".\n";
  return ExitStatus::kDone;
}

ExitStatus CurrencyRenameCommand::Run(const platform::EngineRegistry& engines, std::ostream& out) const {
  if (!new_name && !new_code) throw Refused("Neither a name nor a code is given that it is to have");
  Currency before;
  Currency after;
  AdministerCalendars(engines, url, [&] {
    before = CurrencyList::Load().Named(code);
    after = before;
    if (new_name) after.name = ReadName(*new_name);
    if (new_code) after.code = ReadCode(*new_code);
    RequireStored(after, Store(after));
  });
  out << OneLine(Described(before) + ", " + before.name) << ", is " << after.code << " now, " << after.name
      << ".\n";
  return ExitStatus::kDone;
}

ExitStatus CurrencyRetireCommand::Run(const platform::EngineRegistry& engines, std::ostream& out) const {
  const Date day = ReadLastDay(last_day);
  Currency retired;
  bool is_past = false;
  bool stays = false;
  AdministerCalendars(engines, url, [&] {
    retired = CurrencyList::Load().Named(code);
    RequireMoneyOfAnyTime(retired);
    const Date today = AttachedPlatform().clock.Today();
    is_past = day < today;
    stays = Retire(retired, day, today);
  });
  out << OneLine(Described(retired)) << (is_past ? " was money until " : " is money until ") << day.ToIso()
      << ".\n";
  if (is_past && stays) {
    out << "It stays in the lists of the windows, because it has calendars or a rule book.\n";
  } else if (stays) {
    out << "It can have no calendar of a later year. \"retire\" it again after that day, and without "
           "calendars and rule book it leaves the lists of the windows.\n";
  }
  return ExitStatus::kDone;
}

ExitStatus CurrencyRestoreCommand::Run(const platform::EngineRegistry& engines, std::ostream& out) const {
  Currency restored;
  AdministerCalendars(engines, url, [&] {
    restored = CurrencyList::Load().Named(code);
    RequireMoneyOfAnyTime(restored);
    if (!restored.last_day) throw Refused(Described(restored) + " is money without a last day");
    restored.is_money = true;
    restored.last_day.reset();
    RequireStored(restored, Store(restored));
  });
  out << OneLine(Described(restored)) << " is money again, without a last day.\n";
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
