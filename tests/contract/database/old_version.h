#pragma once

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace ferrowind::contract {

/// The script that makes an empty calendar database of an older version of the schema, for "sqlite" or
/// "postgres". The programs that use it define FERROWIND_OLD_VERSIONS, the folder of those of the scripts.
[[nodiscard]] inline std::string OldVersionScript(int version, const std::string& engine) {
  const std::string path =
      std::string(FERROWIND_OLD_VERSIONS) + "/version_" + std::to_string(version) + "/" + engine + ".sql";
  std::ifstream file(path);
  std::ostringstream text;
  text << file.rdbuf();
  if (!file || text.str().empty()) throw std::runtime_error("cannot read " + path);
  return text.str();
}

/// From this version on the script has the content below in it, by calls: the history is chained to it.
inline constexpr int kVersionWithContent = 5;

/// SQL for either engine that puts the calendar of the euro for 2026 and the rule 2, Sunday, into it.
inline constexpr const char* kOldContent =
    "INSERT INTO CldHoliday (ID2, Name1, TID1, WD) VALUES (2, 'Sunday', 2, 1);"
    "INSERT INTO CldCalendar (ID1, Year1) VALUES (978, 2026);";

}  // namespace ferrowind::contract
