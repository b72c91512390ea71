#pragma once

#include <string_view>

/// The texts of the files from which a calendar database is made on a server, as the build found them.
namespace ferrowind::embedded {

/// The roles that all databases of a server share.
extern const std::string_view kPostgresRoles;
/// The schema, tables, constraints and views.
extern const std::string_view kPostgresSchema;
/// The procedures' sources.
extern const std::string_view kPostgresCldAllInfo;
extern const std::string_view kPostgresCldGetMain;
extern const std::string_view kPostgresCldIUMain;
extern const std::string_view kPostgresCldIUCelebrate;
/// Who may do what.
extern const std::string_view kPostgresRights;
/// The scripts that bring older databases here, by version.
extern const std::string_view kPostgresUpgradeToHistory;

}  // namespace ferrowind::embedded
