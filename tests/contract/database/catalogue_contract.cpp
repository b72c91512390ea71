// The procedures are those of the one catalogue that all engines keep to.

#include <algorithm>
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
  const Arguments values = {{"ID1", kEuro},
                            {"Year1", 2026},
                            {"Moment", "9999-12-31T23:59:59Z"},
                            {"FromYear", 2026},
                            {"ToYear", 2026}};
  ASSERT_EQ(catalogue.at("procedures").size(), 18U);
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
    for (const auto& [parameter, value] : values) {
      const std::string name_of_it = "@" + parameter;
      const auto is_it = [&](const auto& input) { return input.at("name") == name_of_it; };
      const auto& declared = procedure.at("parameters");
      if (std::any_of(declared.begin(), declared.end(), is_it)) arguments.emplace_back(parameter, value);
    }
    nlohmann::json fields = nlohmann::json::array();
    for (const auto& record_set : caller().Call(name, arguments).record_sets)
      fields.push_back(FieldsOf(*record_set));
    EXPECT_EQ(fields, procedure.at("record_sets")) << name;
  }
}

}  // namespace
}  // namespace ferrowind::contract
