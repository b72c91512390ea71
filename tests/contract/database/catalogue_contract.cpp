// The four procedures are those of the one catalogue that all engines keep to.

#include <fstream>
#include <nlohmann/json.hpp>

#include <gtest/gtest.h>

#include "tests/contract/database/procedures_contract.h"

namespace ferrowind::contract {
namespace {

TEST_P(ProceduresContract, ParametersAndFieldsAreThoseOfTheCatalogue) {
  std::ifstream file(FERROWIND_PROCEDURE_CATALOGUE);
  const auto catalogue = nlohmann::json::parse(file);
  ASSERT_EQ(CreateCalendar(kEuro, 2026), 0);
  ASSERT_EQ(catalogue.at("procedures").size(), 4U);
  for (const auto& procedure : catalogue.at("procedures")) {
    const std::string name = procedure.at("name");
    const auto parameters =
        database().Engine().Connect(database().ConnectionString())->DescribeProcedure(name);
    nlohmann::json described = nlohmann::json::array();
    for (const auto& parameter : parameters) {
      if (parameter.position == 0) continue;
      described.push_back({{"position", parameter.position},
                           {"name", parameter.name},
                           {"type", platform::NameOf(parameter.type)}});
    }
    EXPECT_EQ(described, procedure.at("parameters")) << name;

    if (procedure.at("writes")) continue;
    Arguments arguments;
    if (!procedure.at("parameters").empty()) arguments = {{"ID1", kEuro}, {"Year1", 2026}};
    nlohmann::json fields = nlohmann::json::array();
    for (const auto& record_set : caller().Call(name, arguments).record_sets)
      fields.push_back(FieldsOf(*record_set));
    EXPECT_EQ(fields, procedure.at("record_sets")) << name;
  }
}

}  // namespace
}  // namespace ferrowind::contract
