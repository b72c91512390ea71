#include "ferrowind/adapters/content/schema_upgrade.h"

#include <algorithm>
#include <iterator>

#include "ferrowind/adapters/content/database_status.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::content {

std::vector<UpgradeScript> ScriptsFor(const std::string& name, std::int64_t found,
                                      const std::vector<UpgradeScript>& scripts) {
  const std::int64_t newest = scripts.back().version;
  if (found > newest) RequireSchemaVersion(name, found, newest);
  if (found < scripts.front().version - 1) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            name + " has the schema version " + std::to_string(found) +
                                ", which never was one of a calendar database");
  }
  std::vector<UpgradeScript> needed;
  std::copy_if(scripts.begin(), scripts.end(), std::back_inserter(needed),
               [&](const UpgradeScript& script) { return script.version > found; });
  return needed;
}

}  // namespace ferrowind::content
