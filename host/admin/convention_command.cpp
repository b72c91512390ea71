#include "host/admin/convention_command.h"

#include <map>
#include <optional>
#include <ostream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/business_days/currency_pair.h"
#include "ferrowind/business_days/market_conventions.h"
#include "ferrowind/loading/convention_rows.h"
#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/database_call.h"
#include "ferrowind/platform/values/failure.h"

#include "host/admin/currency_numbers.h"
#include "host/admin/database_content.h"
#include "host/admin/text_escapes.h"

namespace ferrowind::host {
namespace {

using business_days::CurrencyPair;
using business_days::MarketConventions;
using planning::CurrencyList;
using platform::Failure;
using platform::Value;

constexpr const char* kChange = "CldIUConvention";
constexpr std::int32_t kNothingToTakeBack = 9;
constexpr std::size_t kCodeLength = 3;

/// By what it is about, a line for each.
std::map<std::string, std::string> LinesOf(const MarketConventions& conventions) {
  std::map<std::string, std::string> lines;
  for (const auto& [pair, days] : conventions.DaysOfPairs()) {
    lines[pair.Text()] = "spot " + pair.Text() + ' ' + std::to_string(days);
  }
  for (const auto& [code, stops] : conventions.DollarStops()) {
    lines[code] = "dollar-holiday-stops " + code + (stops ? "" : " no");
  }
  return lines;
}

MarketConventions LoadConventions() {
  return loading::ConventionsIn(
      *planning::CallDatabase("Reading the conventions", "CldGetConventions", {}, 1).record_sets[0]);
}

CodeOfNumber CodesIn(const CurrencyList& currencies) {
  return [&currencies](std::int32_t number) { return currencies.Named(std::to_string(number)).code; };
}

/// The lines with the codes of the currencies that they name by numbers: in each it is the second word that
/// names some.
std::string TextOf(const std::vector<std::string>& lines, const CurrencyList& currencies) {
  std::string text;
  for (const std::string& given : lines) {
    std::istringstream all(given);
    for (std::string line; std::getline(all, line); text += '\n') {
      std::istringstream words(line);
      std::string word;
      for (std::size_t i = 0; words >> word; ++i) {
        text.append(i == 0 ? "" : " ").append(i == 1 ? WithCodes(word, CodesIn(currencies)) : word);
      }
    }
  }
  return text;
}

/// A pair, or one currency.
struct Subject {
  std::string text;
  std::int32_t currency = 0;
  std::optional<std::int32_t> other = {};
};

Subject SubjectOf(const CurrencyPair& pair, const CurrencyList& currencies) {
  return {pair.Text(), currencies.Named(pair.base).id, currencies.Named(pair.quote).id};
}

Subject SubjectOf(const std::string& code, const CurrencyList& currencies) {
  return {code, currencies.Named(code).id};
}

/// Without `value` takes back what is said. Returns whether the database has done it.
bool Store(const Subject& subject, std::optional<std::int32_t> value) {
  SourceValues parameters;
  parameters.Add("CcyID", subject.currency);
  if (subject.other) parameters.Add("OtherID", *subject.other);
  if (value) parameters.Add(subject.other ? "SpotDays" : "DollarStops", *value);
  return planning::CallDatabase("Storing the convention of " + subject.text, kChange, parameters, 0,
                                {kNothingToTakeBack})
             .return_value == planning::return_value::kDone;
}

}  // namespace

ExitStatus ConventionListCommand::Run(const platform::EngineRegistry& engines, std::ostream& out) const {
  const auto delivered = LinesOf(loading::DeliveredConventions());
  std::map<std::string, std::string> own;
  RunWithCalendars(engines, url, [&] { own = LinesOf(LoadConventions()); });
  auto in_force = own;
  in_force.insert(delivered.begin(), delivered.end());
  std::vector<std::vector<Value>> rows;
  for (const auto& [subject, line] : in_force) {
    const bool is_own = own.contains(subject);
    const auto instead = delivered.find(subject);
    rows.push_back({line, std::string(is_own ? "database" : "program"),
                    is_own && instead != delivered.end() ? Value(instead->second) : Value()});
  }
  WriteRows({std::make_shared<platform::RecordSet>(
                std::vector<std::string>{"Convention", "From", "InPlaceOf"}, std::move(rows))},
            format, out);
  return ExitStatus::kDone;
}

ExitStatus ConventionSetCommand::Run(const platform::EngineRegistry& engines, std::ostream& out) const {
  std::map<std::string, std::string> wanted_lines;
  AdministerInOneTransaction(engines, url, [&] {
    const CurrencyList currencies = CurrencyList::Load();
    const MarketConventions wanted = business_days::ReadMarketConventions(TextOf(lines, currencies));
    wanted_lines = LinesOf(wanted);
    if (wanted_lines.empty())
      throw Failure(platform::failure_number::kInvalidArgument, "No line says anything");
    std::vector<std::pair<Subject, std::int32_t>> changes;
    for (const auto& [pair, days] : wanted.DaysOfPairs()) {
      changes.emplace_back(SubjectOf(pair, currencies), days);
    }
    for (const auto& [code, stops] : wanted.DollarStops()) {
      changes.emplace_back(SubjectOf(code, currencies), stops ? 1 : 0);
    }
    for (const auto& [subject, value] : changes) (void)Store(subject, value);
  });
  for (const auto& [subject, line] : wanted_lines) out << "In force now: " << OneLine(line) << '\n';
  return ExitStatus::kDone;
}

ExitStatus ConventionRemoveCommand::Run(const platform::EngineRegistry& engines, std::ostream& out) const {
  const auto delivered = LinesOf(loading::DeliveredConventions());
  std::string told;
  AdministerInOneTransaction(engines, url, [&] {
    const CurrencyList currencies = CurrencyList::Load();
    for (const std::string& text : subjects) {
      const Subject subject =
          text.size() > kCodeLength
              ? SubjectOf(business_days::InAlphabeticalOrder(
                              business_days::ReadCurrencyPair(WithCodes(text, CodesIn(currencies)))),
                          currencies)
              : SubjectOf(currencies.Named(text).code, currencies);
      if (!Store(subject, {})) {
        throw Failure(platform::failure_number::kInvalidArgument,
                      "The database says nothing of " + subject.text + " that could be removed");
      }
      const auto again = delivered.find(subject.text);
      told += subject.text + " is as the program brings it again: " +
              (again != delivered.end() ? again->second : "as usual") + '\n';
    }
  });
  out << told;
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
