#include <algorithm>
#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <sqlite3.h>

#include "ferrowind/adapters/chain/chain_heads.h"
#include "ferrowind/adapters/chain/history_check.h"
#include "ferrowind/adapters/content/database_status.h"
#include "ferrowind/adapters/sqlite/content_source.h"
#include "ferrowind/adapters/sqlite/database_content.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/delivered_schema.h"
#include "ferrowind/adapters/sqlite/procedure_catalogue.h"
#include "ferrowind/adapters/sqlite/schema_comparison.h"
#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/adapters/sqlite/statement_limit.h"
#include "ferrowind/adapters/sqlite/transaction.h"
#include "ferrowind/adapters/sqlite/unreadable_rows.h"
#include "ferrowind/platform/database/failure_boundary.h"
#include "ferrowind/platform/values/case_fold.h"

namespace ferrowind::sqlite {
namespace {

using sql_script::ProcedureDefinition;

/// A question to the data whose every row is a problem, told in the row's single text.
constexpr std::string_view kDataProblems[] = {
    "WITH Type (TID1) AS (VALUES (1), (2), (3), (4))"
    " SELECT 'The holiday type ' || TID1 || ' is missing' FROM Type"
    " WHERE TID1 NOT IN (SELECT TID1 FROM CldHolidayType)",

    "SELECT 'The built-in rule 1, a rule of type 1, is missing'"
    " WHERE NOT EXISTS (SELECT 1 FROM CldHoliday WHERE ID2 = 1 AND TID1 = 1)",

    "SELECT 'CldSetting has ' || count(*) || ' rows instead of one' FROM CldSetting HAVING count(*) <> 1",

    "SELECT 'The calendar ' || ID1 || ' of ' || Year1 || ' is of no currency' FROM CldCalendar"
    " WHERE ID1 NOT IN (SELECT CcyID FROM DicCcy WHERE CcyType = 0)",

    "SELECT 'The rule book of ' || ID1 || ' is of no currency' FROM CldBook"
    " WHERE ID1 NOT IN (SELECT CcyID FROM DicCcy WHERE CcyType = 0)",

    "SELECT 'The rule book of ' || ID1 || ' has ' || count(*) || ' rules, of which the last is number ' ||"
    "  max(Position)"
    " FROM CldRecurrence GROUP BY ID1 HAVING count(*) <> max(Position)",

    "SELECT 'The row ' || RowNumber || ' of the entry ' || EntryID || ' of the history is no JSON'"
    " FROM CldHistoryRow WHERE OldRow IS NOT NULL AND NOT json_valid(OldRow)",

    "SELECT 'The calendar ' || c.ID1 || ' of ' || c.Year1 || ' has ' || count(d.Day1) || ' days instead of '"
    "  || CAST(strftime('%j', c.Year1 || '-12-31') AS INTEGER)"
    " FROM CldCalendar c LEFT JOIN CldDay d ON d.ID1 = c.ID1 AND d.Year1 = c.Year1 GROUP BY c.ID1, c.Year1"
    " HAVING count(d.Day1) <> CAST(strftime('%j', c.Year1 || '-12-31') AS INTEGER)",

    "SELECT 'The day ' || d.Day1 || ' of ' || d.Year1 || ' is of a calendar ' || d.ID1 || ' that does not "
    "exist'"
    " FROM CldDay d LEFT JOIN CldCalendar c ON c.ID1 = d.ID1 AND c.Year1 = d.Year1 WHERE c.ID1 IS NULL",

    "SELECT 'The day ' || Day1 || ' of the calendar ' || ID1 || ' of ' || Year1 || ' has the date ' || ODate"
    " FROM CldDay"
    " WHERE ODate IS NOT date(Year1 || '-01-01', (Day1 - 1) || ' days') OR substr(ODate, 1, 4) <> Year1 || "
    "''",

    "SELECT 'The day ' || d.Day1 || ' of the calendar ' || d.ID1 || ' of ' || d.Year1 || ' has the type ' || "
    "d.TID1 ||"
    "  CASE WHEN d.ID2 IS NULL THEN ' without a rule'"
    "    WHEN h.ID2 IS NULL THEN ' and the rule ' || d.ID2 || ', which does not exist'"
    "    ELSE ' and the rule ' || d.ID2 || ' of type ' || h.TID1 END"
    " FROM CldDay d LEFT JOIN CldHoliday h ON h.ID2 = d.ID2"
    " WHERE CASE WHEN d.ID2 IS NULL THEN d.TID1 <> 1 ELSE h.TID1 IS NOT d.TID1 END",

};

constexpr std::string_view kMissingParents =
    "SELECT 'The table ' || \"table\" || ' has a row that refers to a missing row of ' || parent"
    " FROM pragma_foreign_key_check(?1)";

/// Computes the conditions and the indexes of all tables, those of somebody else too.
constexpr std::string_view kDamage =
    "SELECT 'The file is damaged: ' || integrity_check FROM pragma_integrity_check WHERE integrity_check <> "
    "'ok'";

/// Far more than a large database on a slow disk takes.
constexpr std::chrono::minutes kLongestCheck{10};

class Check {
 public:
  explicit Check(const std::string& path) : database_(path), delivered_(DatabaseHandle::InMemory()) {
    FillWithDeliveredSchema(delivered_);
  }

  std::vector<std::string> Run(const std::optional<chain::Seal>& seal) {
    const StatementLimit limit(database_, kLongestCheck);
    const Transaction transaction(database_, Transaction::Kind::kReading);
    RequireCatalogue(database_);
    // Of another version everything would be a problem, and the first one says what to do.
    if (const auto other = content::OtherSchemaVersion("The database", SchemaVersionOf(database_),
                                                       SchemaVersionOf(delivered_))) {
      return {*other};
    }
    Try([&] { problems_ = SchemaDifferences(database_, delivered_); });
    Try([&] { LookAtRows(seal); });
    return std::move(problems_);
  }

 private:
  /// A part of the check that cannot be made is a problem of its own; the others are made nevertheless.
  template <typename Part>
  void Try(const Part& part) {
    try {
      part();
    } catch (const platform::Failure& failure) {
      problems_.push_back(failure.Description());
    }
  }

  /// Reading what somebody has put in a table's place would run what he wrote.
  void LookAtRows(const std::optional<chain::Seal>& seal) {
    if (!HasPlainTables(database_, delivered_)) {
      problems_.emplace_back("The rows are not looked at as long as something else stands for a table");
      return;
    }
    Try([&] { CompareProcedures(); });
    for (const auto& table : TableNames(delivered_)) {
      Try([&] {
        for (auto& problem : UnreadableRows(database_, table)) problems_.push_back(std::move(problem));
      });
    }
    for (const auto question : kDataProblems) Try([&] { AskForProblems(question); });
    for (const auto& table : TableNames(delivered_)) Try([&] { AskForProblems(kMissingParents, table); });
    Try([&] { LookForDamage(); });
    Try([&] { LookAtHistory(seal); });
  }

  void LookForDamage() {
    if (HasForeignTables(database_, delivered_)) {
      problems_.emplace_back(
          "The file is not looked through for damage as long as it holds tables or indexes that are not this "
          "program's");
      return;
    }
    AskForProblems(kDamage);
  }

  void CompareProcedures() {
    ProcedureCatalogue catalogue(database_);
    for (const auto& procedure : DeliveredProcedures()) {
      Try([&] { CompareProcedure(procedure, catalogue.Find(procedure.name)); });
    }
    for (const auto& name : catalogue.Names()) {
      if (!IsDelivered(name)) problems_.push_back("The procedure " + name + " does not belong to the schema");
    }
  }

  static bool IsDelivered(const std::string& name) {
    const auto& delivered = DeliveredProcedures();
    return std::any_of(delivered.begin(), delivered.end(), [&](const ProcedureDefinition& procedure) {
      return platform::CompareIgnoringCase(procedure.name, name) == 0;
    });
  }

  void CompareProcedure(const ProcedureDefinition& expected,
                        const std::optional<ProcedureDefinition>& found) {
    if (!found) {
      problems_.push_back("The procedure " + expected.name + " is missing");
      return;
    }
    if (found->writes != expected.writes || found->body != expected.body ||
        !HasParametersOf(*found, expected)) {
      problems_.push_back("The procedure " + expected.name + " is not this program's");
    }
  }

  static bool HasParametersOf(const ProcedureDefinition& found, const ProcedureDefinition& expected) {
    if (found.parameters.size() != expected.parameters.size()) return false;
    for (std::size_t i = 0; i < found.parameters.size(); ++i) {
      const auto& left = found.parameters[i];
      const auto& right = expected.parameters[i];
      if (left.name != right.name || left.position != right.position || left.type != right.type) return false;
    }
    return true;
  }

  void LookAtHistory(const std::optional<chain::Seal>& seal) {
    FileSource content(database_);
    for (auto& problem : chain::HistoryProblems(content, seal)) problems_.push_back(std::move(problem));
  }

  void AskForProblems(std::string_view question) {
    Statement ask(database_, question);
    while (ask.Step()) problems_.emplace_back(ask.Text(0));
  }

  void AskForProblems(std::string_view question, const std::string& table) {
    const platform::Value name(table);
    Statement ask(database_, question);
    ask.Bind(1, name);
    while (ask.Step()) problems_.emplace_back(ask.Text(0));
  }

  DatabaseHandle database_;
  DatabaseHandle delivered_;
  std::vector<std::string> problems_;
};

}  // namespace

std::vector<std::string> CheckDatabase(const std::string& path, const std::optional<chain::Seal>& seal) {
  return platform::WithFailuresOnly([&] { return Check(path).Run(seal); });
}

chain::SealedHistory SealDatabase(const std::string& path) {
  return platform::WithFailuresOnly([&] { return chain::SealHistory(*OpenContent(path)); });
}

}  // namespace ferrowind::sqlite
