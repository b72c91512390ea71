#include "ferrowind/adapters/postgres/catalogue_comparison.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace ferrowind::postgres {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Facts = std::vector<CatalogueFact>;

const Facts kTable = {{"table days", "owner", "owner"},
                      {"table days", "right of readers", "SELECT"},
                      {"column days.number", "place", "1"},
                      {"column days.number", "type", "integer"}};

Facts With(Facts facts, const Facts& more) {
  facts.insert(facts.end(), more.begin(), more.end());
  return facts;
}

TEST(CatalogueComparison, TheSameFactsInAnotherOrderAreNoDifference) {
  EXPECT_THAT(CatalogueDifferences({kTable.rbegin(), kTable.rend()}, kTable), IsEmpty());
}

TEST(CatalogueComparison, AnotherValueIsToldWithTheExpectedOne) {
  const Facts found = {{"table days", "owner", "anna"},
                       {"table days", "right of others", "DELETE"},
                       {"column days.number", "place", "1"},
                       {"column days.number", "type", "integer"}};
  EXPECT_THAT(
      CatalogueDifferences(found, kTable),
      ElementsAre("The table days is not this program's: owner is anna instead of owner;"
                  " right of others is DELETE instead of none; right of readers is none instead of SELECT"));
}

TEST(CatalogueComparison, ALongValueIsNotTold) {
  const std::string text(300, 'x');
  EXPECT_THAT(CatalogueDifferences({{"routine a()", "text", text + "y"}}, {{"routine a()", "text", text}}),
              ElementsAre("The routine a() is not this program's: text is another"));
}

TEST(CatalogueComparison, ATableTooManyAndAMissingOneAreToldWithoutTheirParts) {
  EXPECT_THAT(CatalogueDifferences(kTable, {}), ElementsAre("The table days does not belong to the schema"));
  EXPECT_THAT(CatalogueDifferences({}, kTable), ElementsAre("The table days is missing"));
}

TEST(CatalogueComparison, APartTooManyAndAMissingOneAreTold) {
  const Facts found = {{"table days", "owner", "owner"},
                       {"table days", "right of readers", "SELECT"},
                       {"trigger days.swallow", "state", "enabled"}};
  EXPECT_THAT(CatalogueDifferences(found, kTable),
              ElementsAre("The column days.number is missing",
                          "The trigger days.swallow does not belong to the schema"));
}

TEST(CatalogueComparison, AViewInThePlaceOfATableIsNoPlainTable) {
  EXPECT_TRUE(HasPlainTables(kTable, kTable));
  EXPECT_TRUE(HasPlainTables({}, kTable));
  EXPECT_TRUE(HasPlainTables(With(kTable, {{"view others", "owner", "owner"}}), kTable));
  EXPECT_FALSE(HasPlainTables({{"view days", "owner", "owner"}}, kTable));
  EXPECT_FALSE(HasPlainTables({{"foreign table days", "owner", "owner"}}, kTable));
}

}  // namespace
}  // namespace ferrowind::postgres
