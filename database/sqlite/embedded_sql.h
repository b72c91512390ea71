#pragma once

#include <string_view>

/// The texts of the files from which a calendar database is made, as the build found them.
namespace ferrowind::embedded {

/// Tables and constraints.
extern const std::string_view kSqliteSchema;
/// The procedures' sources.
extern const std::string_view kSqliteCldAllInfo;
extern const std::string_view kSqliteCldGetMain;
extern const std::string_view kSqliteCldIUMain;
extern const std::string_view kSqliteCldIUCelebrate;
/// The scripts that bring older databases here, by version.
extern const std::string_view kSqliteUpgradeToHistory;

}  // namespace ferrowind::embedded
