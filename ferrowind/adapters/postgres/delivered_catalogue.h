#pragma once

#include <vector>

#include "ferrowind/adapters/postgres/catalogue_comparison.h"

namespace ferrowind::postgres {

/// What the delivered scripts make of an empty database, as database/postgres/check/objects.sql would tell it
/// there on any version of the server. Comes from the program alone.
[[nodiscard]] std::vector<CatalogueFact> DeliveredCatalogue();

}  // namespace ferrowind::postgres
