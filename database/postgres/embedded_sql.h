#pragma once

#include <string_view>

/// The texts of the files from which a calendar database is made on a server, as the build found them.
namespace ferrowind::embedded {

/// The roles that all databases of a server share.
extern const std::string_view kPostgresRoles;
/// The schema, tables, constraints and views.
extern const std::string_view kPostgresSchema;
/// The functions that the procedures and triggers are made of, each behind those that its creation needs.
extern const std::string_view kPostgresHistoryEntry;
extern const std::string_view kPostgresRowContent;
extern const std::string_view kPostgresKeptRows;
extern const std::string_view kPostgresJsonLists;
extern const std::string_view kPostgresPlannedDays;
extern const std::string_view kPostgresBookRules;
extern const std::string_view kPostgresFingerprint;
extern const std::string_view kPostgresMomentFrom;
extern const std::string_view kPostgresCurrencyCanBe;
extern const std::string_view kPostgresUndo;
/// The procedures' sources.
extern const std::string_view kPostgresCldAllInfo;
extern const std::string_view kPostgresCldGetMain;
extern const std::string_view kPostgresCldIUMain;
extern const std::string_view kPostgresCldIUCelebrate;
extern const std::string_view kPostgresCldGetBook;
extern const std::string_view kPostgresCldIUBook;
extern const std::string_view kPostgresCldGetFingerprint;
extern const std::string_view kPostgresCldApplyPlan;
extern const std::string_view kPostgresCldUndo;
extern const std::string_view kPostgresCldGetHistory;
extern const std::string_view kPostgresCldGetAsOf;
extern const std::string_view kPostgresCldGetClosedDays;
extern const std::string_view kPostgresCldGetMarkedDays;
extern const std::string_view kPostgresCldIUCurrency;
extern const std::string_view kPostgresCldGetCurrencies;
/// Who may do what.
extern const std::string_view kPostgresRights;
/// The scripts that bring older databases here, by version.
extern const std::string_view kPostgresUpgradeToHistory;
extern const std::string_view kPostgresUpgradeToPlans;
extern const std::string_view kPostgresUpgradeToFirstYears;
/// A question for all that the schema consists of, and its answer in a new database: a line for each row,
/// with tabs between the columns, without the texts of routines, which are those of the scripts.
extern const std::string_view kPostgresObjects;
extern const std::string_view kPostgresCatalogue;
/// Questions whose every row is a fault, told in its only text: of the roles, and of what reaches into the
/// schema from outside.
extern const std::string_view kPostgresRoleFaults;
extern const std::string_view kPostgresSurroundingFaults;

}  // namespace ferrowind::embedded
