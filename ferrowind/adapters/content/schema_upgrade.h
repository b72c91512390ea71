#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ferrowind::content {

/// Brings a database of the version before `version` there.
struct UpgradeScript {
  std::int64_t version = 0;
  std::string_view sql;
};

/// The versions of the schema before and after an upgrade; equal when there was nothing to do.
struct UpgradeOutcome {
  std::int64_t from = 0;
  std::int64_t to = 0;
};

/// Those of `scripts`, which ascend by one and end with this program's version, that a database of the
/// version `found` needs; none when it has this program's. A newer version, and one that no script starts
/// from, are failures that call the database `name`.
[[nodiscard]] std::vector<UpgradeScript> ScriptsFor(const std::string& name, std::int64_t found,
                                                    const std::vector<UpgradeScript>& scripts);

}  // namespace ferrowind::content
