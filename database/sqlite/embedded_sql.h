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
extern const std::string_view kSqliteCldGetBook;
extern const std::string_view kSqliteCldIUBook;
extern const std::string_view kSqliteCldGetFingerprint;
extern const std::string_view kSqliteCldApplyPlan;
extern const std::string_view kSqliteCldUndo;
extern const std::string_view kSqliteCldGetHistory;
extern const std::string_view kSqliteCldGetAsOf;
extern const std::string_view kSqliteCldGetClosedDays;
extern const std::string_view kSqliteCldGetMarkedDays;
extern const std::string_view kSqliteCldIUCurrency;
extern const std::string_view kSqliteCldGetCurrencies;
extern const std::string_view kSqliteCldGetContent;
/// The scripts that bring older databases here, by version.
extern const std::string_view kSqliteCldIUConvention;
extern const std::string_view kSqliteCldGetConventions;
extern const std::string_view kSqliteUpgradeToHistory;
extern const std::string_view kSqliteUpgradeToRuleBooks;
extern const std::string_view kSqliteUpgradeToFirstYears;
extern const std::string_view kSqliteUpgradeToGuardedRecords;
extern const std::string_view kSqliteUpgradeToBusinessDays;
extern const std::string_view kSqliteUpgradeToQuickerClosedDays;
extern const std::string_view kSqliteUpgradeToDaysOfEachCurrency;

}  // namespace ferrowind::embedded
