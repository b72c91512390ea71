#pragma once

#include <string>
#include <vector>

namespace ferrowind::postgres {

/// One thing that is said of one object of the schema, as database/postgres/check/objects.sql tells it:
/// `object` is its kind and name ("table cldday", "column cldday.odate"), and of a property there is one
/// value or none.
struct CatalogueFact {
  std::string object;
  std::string property;
  std::string value;
};

/// What makes the `found` schema another than the `expected` one, a sentence for each object that is missing,
/// not as expected or too many; the parts of a table that is missing or too many are not told by themselves.
/// The facts stand in any order.
[[nodiscard]] std::vector<std::string> CatalogueDifferences(const std::vector<CatalogueFact>& found,
                                                            const std::vector<CatalogueFact>& expected);

/// Whether for no `expected` table there is a `found` object that is read in its place and is none.
[[nodiscard]] bool HasPlainTables(const std::vector<CatalogueFact>& found,
                                  const std::vector<CatalogueFact>& expected);

}  // namespace ferrowind::postgres
