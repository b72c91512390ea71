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
/// What downstream systems ask in SQL. The conventions are those of database/seed/market_conventions.txt.
extern const std::string_view kPostgresBusinessDays;
extern const std::string_view kPostgresDeliveredConventions;
extern const std::string_view kPostgresValueDates;
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
extern const std::string_view kPostgresCldGetContent;
extern const std::string_view kPostgresCldIUConvention;
extern const std::string_view kPostgresCldGetConventions;
/// Questions of administrators: who is in the way of a lock, and who has the server's connections.
extern const std::string_view kPostgresLockHolders;
extern const std::string_view kPostgresConnectionShares;
/// Who may do what.
extern const std::string_view kPostgresRights;
/// The scripts that bring older databases here, by version.
extern const std::string_view kPostgresUpgradeToHistory;
extern const std::string_view kPostgresUpgradeToPlans;
extern const std::string_view kPostgresUpgradeToFirstYears;
extern const std::string_view kPostgresUpgradeToGuardedRecords;
extern const std::string_view kPostgresUpgradeToBusinessDays;
extern const std::string_view kPostgresUpgradeToQuickerClosedDays;
extern const std::string_view kPostgresUpgradeToDaysOfEachCurrency;
/// A question for all that the schema consists of, and its answer in a new database: a line for each row,
/// with tabs between the columns, without the texts of routines, which are those of the scripts.
extern const std::string_view kPostgresObjects;
extern const std::string_view kPostgresCatalogue;
/// Questions whose every row is a fault, told in its only text: of the roles, of settings, and of what
/// reaches into the schema from outside; the parameter of that is the text of the server's functions, a line
/// for each with a tab between its form and what it is.
extern const std::string_view kPostgresRoleFaults;
extern const std::string_view kPostgresSettingFaults;
extern const std::string_view kPostgresSurroundingFaults;
extern const std::string_view kPostgresServerFunctions;
/// A question whose every row is a warning.
extern const std::string_view kPostgresSettingsInDoubt;

}  // namespace ferrowind::embedded
