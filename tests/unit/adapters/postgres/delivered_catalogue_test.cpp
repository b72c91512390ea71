#include "ferrowind/adapters/postgres/delivered_catalogue.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace ferrowind::postgres {
namespace {

using ::testing::AllOf;
using ::testing::Field;
using ::testing::HasSubstr;
using ::testing::Not;

std::vector<CatalogueFact> FactsOf(const std::string& property, const std::string& object_beginning) {
  std::vector<CatalogueFact> facts;
  for (const auto& fact : DeliveredCatalogue()) {
    if (fact.property == property && fact.object.starts_with(object_beginning)) facts.push_back(fact);
  }
  return facts;
}

TEST(DeliveredCatalogueTest, EveryRoutineHasTheTextThatItsScriptGivesIt) {
  const auto texts = FactsOf("text", "routine ");
  EXPECT_EQ(texts.size(), FactsOf("kind", "routine ").size());
  EXPECT_GT(texts.size(), 30U);
  for (const auto& fact : texts) {
    EXPECT_THAT(fact.value, AllOf(Not(HasSubstr("$$")), Not(HasSubstr("LANGUAGE")))) << fact.object;
    EXPECT_TRUE(fact.value.starts_with('\n')) << fact.object;
  }
  EXPECT_THAT(
      FactsOf("text", "routine entryatwork("),
      testing::ElementsAre(Field(&CatalogueFact::value, HasSubstr("current_setting('ferrowind.entry'"))));
}

TEST(DeliveredCatalogueTest, NobodyButTheOwnerHasARightOnATable) {
  for (const auto& fact : DeliveredCatalogue()) {
    if (!fact.object.starts_with("table ") || !fact.property.starts_with("right of ")) continue;
    EXPECT_EQ(fact.property, "right of its owner") << fact.object;
  }
}

}  // namespace
}  // namespace ferrowind::postgres
