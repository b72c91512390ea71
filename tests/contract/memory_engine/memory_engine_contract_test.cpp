// The engine in memory under the suites of the database port.

#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/memory_engine.h"
#include "ferrowind/platform/values/failure.h"

#include "tests/contract/database/engine_contract.h"
#include "tests/contract/database/procedures_contract.h"

namespace ferrowind::contract {
namespace {

using headless::MemoryTables;
using platform::CallOutcome;
using platform::ParameterType;
using platform::Value;
using Inputs = std::vector<Value>;

constexpr const char* kProbes = "Probe";

class MemoryCalendars : public CalendarDatabaseUnderTest {
 public:
  [[nodiscard]] platform::Engine& Engine() override { return engine_; }
  [[nodiscard]] std::string ConnectionString() override { return "memory:contract"; }
  void SetFirstDay(int first_day) override { database_.Tables().first_day = first_day; }
  void SetLastDay(std::int32_t currency, std::optional<platform::Date> last_day) override {
    for (headless::MemoryCurrency& known : database_.Tables().currencies) {
      if (known.id == currency) known.last_day = last_day ? platform::Value(*last_day) : platform::Value();
    }
  }
  [[nodiscard]] bool IsSound() override { return true; }

  [[nodiscard]] headless::MemoryDatabase& Database() { return database_; }

 private:
  headless::MemoryEngine engine_;
  headless::MemoryDatabase& database_ = engine_.CreateDatabase("contract");
};

std::shared_ptr<platform::RecordSet> Numbers(const MemoryTables& tables) {
  std::vector<Row> numbers;
  for (const Row& row : tables.others.at(kProbes)) numbers.push_back({row[1]});
  return std::make_shared<platform::RecordSet>(std::vector<std::string>{"Number"}, std::move(numbers));
}

CallOutcome Load(MemoryTables& tables, const Inputs&) {
  const auto& rows = tables.others[kProbes];
  const auto count = static_cast<std::int32_t>(rows.size());
  return {
      0,
      {std::make_shared<platform::RecordSet>(std::vector<std::string>{"Small", "Number", "Text", "Day"},
                                             rows),
       std::make_shared<platform::RecordSet>(std::vector<std::string>{"Count"}, std::vector<Row>{{count}})}};
}

std::unique_ptr<DatabaseUnderTest> MakeMemoryProbes() {
  auto probes = std::make_unique<MemoryCalendars>();
  headless::MemoryDatabase& database = probes->Database();
  database.AddProcedure("ProbeStore",
                        {{"@Small", ParameterType::kInt16},
                         {"@Number", ParameterType::kInt32},
                         {"@Text", ParameterType::kText},
                         {"@Day", ParameterType::kDate}},
                        [](MemoryTables& tables, const Inputs& inputs) {
                          tables.others[kProbes].push_back(inputs);
                          return CallOutcome{};
                        });
  database.AddProcedure("ProbeLoad", {}, Load);
  database.AddProcedure("ProbeStoreAndReturn",
                        {{"@Number", ParameterType::kInt32}, {"@Outcome", ParameterType::kInt32}},
                        [](MemoryTables& tables, const Inputs& inputs) {
                          tables.others[kProbes].push_back({{}, inputs[0], {}, {}});
                          return CallOutcome{*inputs[1].If<std::int32_t>(), {Numbers(tables)}};
                        });
  database.AddProcedure("ProbeStoreAndFail", {{"@Number", ParameterType::kInt32}},
                        [](MemoryTables& tables, const Inputs& inputs) -> CallOutcome {
                          tables.others[kProbes].push_back({{}, inputs[0], {}, {}});
                          throw platform::Failure(1, "There is no such table");
                        });
  return probes;
}

INSTANTIATE_TEST_SUITE_P(Engines, EngineContract,
                         ::testing::Values(DatabaseKind<DatabaseUnderTest>{"Memory", MakeMemoryProbes}),
                         [](const auto& run) { return run.param.name; });

INSTANTIATE_TEST_SUITE_P(Engines, ProceduresContract,
                         ::testing::Values(DatabaseKind<CalendarDatabaseUnderTest>{
                             "Memory", [] { return std::make_unique<MemoryCalendars>(); }}),
                         [](const auto& run) { return run.param.name; });

}  // namespace
}  // namespace ferrowind::contract
