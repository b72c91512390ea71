#include "ferrowind/adapters/headless/memory_database.h"

#include <algorithm>
#include <utility>

#include "ferrowind/adapters/headless/memory_procedures.h"
#include "ferrowind/platform/database/history_moment.h"
#include "ferrowind/platform/database/parameters_json.h"
#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/utf8_validation.h"

namespace ferrowind::headless {

using platform::Failure;
using platform::Value;
namespace failure_number = platform::failure_number;

namespace {

void RequireInputs(const MemoryProcedure& procedure, const std::vector<Value>& inputs) {
  if (inputs.size() + 1 != procedure.parameters.size()) {
    throw Failure(
        failure_number::kInvalidArgument,
        procedure.name + " takes " + std::to_string(procedure.parameters.size() - 1) + " parameters");
  }
  for (std::size_t i = 0; i < inputs.size(); ++i) {
    const auto& parameter = procedure.parameters[i + 1];
    if (platform::ConvertForParameter(parameter, inputs[i]) != inputs[i]) {
      throw Failure(failure_number::kTypeMismatch,
                    "The parameter " + parameter.name + " takes " + platform::NameOf(parameter.type));
    }
    const auto* const text = inputs[i].If<std::string>();
    if (text != nullptr && !platform::IsWellFormedUtf8(*text)) {
      throw Failure(failure_number::kInvalidArgument,
                    "The text of " + parameter.name + " is not valid UTF-8");
    }
  }
}

/// Empty when the procedure has no such parameter.
Value InputNamed(const std::string& name, const MemoryProcedure& procedure,
                 const std::vector<Value>& inputs) {
  for (std::size_t i = 0; i < inputs.size(); ++i) {
    if (procedure.parameters[i + 1].name == name) return inputs[i];
  }
  return {};
}

}  // namespace

MemoryDatabase::MemoryDatabase() {
  tables_.currencies = {{756, "CHF", 0, "Swiss Franc"},    {978, "EUR", 0, "Euro"},
                        {826, "GBP", 0, "Pound Sterling"}, {392, "JPY", 0, "Yen"},
                        {840, "USD", 0, "US Dollar"},      {959, "XAU", 1, "Gold"}};
  tables_.holiday_types = {{1, "Working day"}, {2, "Holiday"}, {3, "Celebration"}, {4, "Holiday point"}};
  MemoryRule built_in;
  built_in.name = "Working day by exception";
  built_in.type = 1;
  tables_.rules[1] = built_in;
  AddCalendarProcedures(*this);
  AddBookProcedures(*this);
  AddPlanProcedures(*this);
  AddUndoProcedure(*this);
  AddPastProcedures(*this);
  AddYearProcedures(*this);
  AddContentProcedure(*this);
  AddCurrencyProcedures(*this);
  AddConventionProcedures(*this);
}

void MemoryDatabase::AddProcedure(const std::string& name,
                                  const std::vector<std::pair<std::string, platform::ParameterType>>& inputs,
                                  MemoryProcedure::Body body, MemoryProcedure::Kind kind) {
  std::vector<platform::ParameterDescription> parameters = {
      {"@RETURN_VALUE", 0, platform::ParameterType::kInt32, platform::ParameterDirection::kReturnValue}};
  for (const auto& [input, type] : inputs) {
    const auto position = static_cast<std::int32_t>(parameters.size());
    parameters.push_back({input, position, type, platform::ParameterDirection::kInput});
  }
  std::erase_if(procedures_, [&](const MemoryProcedure& other) { return other.name == name; });
  procedures_.push_back({name, std::move(parameters), std::move(body), kind});
}

const MemoryProcedure& MemoryDatabase::ProcedureNamed(const std::string& name) const {
  const std::string folded = platform::FoldCase(name);
  const auto found = std::find_if(
      procedures_.begin(), procedures_.end(),
      [&](const MemoryProcedure& procedure) { return platform::FoldCase(procedure.name) == folded; });
  if (found == procedures_.end()) {
    throw Failure(failure_number::kInvalidArgument, "There is no procedure " + name);
  }
  return *found;
}

platform::CallOutcome MemoryDatabase::Call(const std::string& procedure, const std::vector<Value>& inputs) {
  const MemoryProcedure& called = ProcedureNamed(procedure);
  try {
    RequireInputs(called, inputs);
    MemoryTables changed = tables_;
    platform::CallOutcome outcome = called.body(changed, inputs);
    if (outcome.return_value == 0) {
      if (called.kind == MemoryProcedure::Kind::kRecorded) {
        AddToHistory(called, inputs, ChangesBetween(tables_, changed));
      }
      tables_ = std::move(changed);
    } else {
      outcome.record_sets.clear();
    }
    return outcome;
  } catch (const Failure& failure) {
    throw Failure(failure.Number(), called.name + ": " + failure.Description());
  }
}

void MemoryDatabase::AddToHistory(const MemoryProcedure& procedure, const std::vector<Value>& inputs,
                                  MemoryChanges changes) {
  MemoryEntry entry;
  entry.id = static_cast<std::int32_t>(history_.size()) + 1;
  entry.moment = moment_.value_or(platform::MomentNow());
  entry.user = user_;
  entry.procedure = procedure.name;
  entry.currency = InputNamed("@ID1", procedure, inputs);
  entry.year = InputNamed("@Year1", procedure, inputs);
  // An undo is for the calendar that the call was for.
  if (const Value undone = InputNamed("@EntryID", procedure, inputs); !undone.IsEmpty()) {
    const MemoryEntry& call = history_.at(static_cast<std::size_t>(platform::ToInt32(undone)) - 1);
    entry.currency = call.currency;
    entry.year = call.year;
  }
  entry.parameters = platform::ParametersAsJson(procedure.parameters, inputs);
  entry.changes = std::move(changes);
  history_.push_back(std::move(entry));
}

std::shared_ptr<platform::RecordSet> MemoryDatabase::Dictionary(const std::string& name) const {
  if (name != "Ccy") throw Failure(failure_number::kInvalidArgument, "There is no dictionary " + name);
  std::vector<std::vector<Value>> rows;
  for (const auto& currency : tables_.currencies) {
    rows.push_back({currency.id, currency.code, currency.type, currency.name});
  }
  std::sort(rows.begin(), rows.end(), [](const auto& left, const auto& right) {
    return *left[1].template If<std::string>() < *right[1].template If<std::string>();
  });
  return std::make_shared<platform::RecordSet>(std::vector<std::string>{"CcyID", "Ccy", "CcyType", "Name"},
                                               std::move(rows));
}

}  // namespace ferrowind::headless
