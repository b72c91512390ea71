#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ferrowind/adapters/chain/history_check.h"
#include "ferrowind/adapters/content/database_status.h"
#include "ferrowind/adapters/postgres/administrator.h"
#include "ferrowind/adapters/postgres/catalogue_comparison.h"
#include "ferrowind/adapters/postgres/content_source.h"
#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/delivered_catalogue.h"
#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/adapters/postgres/schema_version.h"
#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/adapters/postgres/table_locks.h"
#include "ferrowind/platform/database/failure_boundary.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

#include "database/postgres/embedded_sql.h"

namespace ferrowind::postgres {
namespace {

/// A question to the data whose every row is a problem, told in the row's single text.
constexpr const char* kDataProblems[] = {
    "SELECT 'The holiday type ' || n || ' is missing' FROM generate_series(1, 4) AS n"
    " WHERE n NOT IN (SELECT TID1 FROM ferrowind.CldHolidayType)",

    "SELECT 'The built-in rule 1, a rule of type 1, is missing'"
    " WHERE NOT EXISTS (SELECT FROM ferrowind.CldHoliday WHERE ID2 = 1 AND TID1 = 1)",

    "SELECT 'CldSetting has ' || count(*) || ' rows instead of one' FROM ferrowind.CldSetting HAVING "
    "count(*) <> 1",

    "SELECT 'The calendar ' || ID1 || ' of ' || Year1 || ' is of no currency' FROM ferrowind.CldCalendar"
    " WHERE ID1 NOT IN (SELECT CcyID FROM ferrowind.DicCcy WHERE CcyType = 0)",

    "SELECT 'The rule book of ' || ID1 || ' is of no currency' FROM ferrowind.CldBook"
    " WHERE ID1 NOT IN (SELECT CcyID FROM ferrowind.DicCcy WHERE CcyType = 0)",

    "SELECT 'The calendar ' || c.ID1 || ' of ' || c.Year1 || ' has ' || count(d.Day1) || ' days instead of '"
    "  || make_date(c.Year1 + 1, 1, 1) - make_date(c.Year1, 1, 1)"
    " FROM ferrowind.CldCalendar c LEFT JOIN ferrowind.CldDay d ON d.ID1 = c.ID1 AND d.Year1 = c.Year1 GROUP "
    "BY c.ID1, c.Year1"
    " HAVING count(d.Day1) <> make_date(c.Year1 + 1, 1, 1) - make_date(c.Year1, 1, 1)",

    "SELECT 'The day ' || d.Day1 || ' of ' || d.Year1 || ' is of a calendar ' || d.ID1 || ' that does not "
    "exist'"
    " FROM ferrowind.CldDay d LEFT JOIN ferrowind.CldCalendar c ON c.ID1 = d.ID1 AND c.Year1 = d.Year1 WHERE "
    "c.ID1 IS NULL",

    "SELECT 'The day ' || Day1 || ' of the calendar ' || ID1 || ' of ' || Year1 || ' has the date ' || ODate"
    " FROM ferrowind.CldDay WHERE ODate <> make_date(Year1, 1, 1) + (Day1 - 1) OR extract(year FROM ODate) "
    "<> Year1",

    "SELECT 'The day ' || d.Day1 || ' of the calendar ' || d.ID1 || ' of ' || d.Year1 || ' has the type '"
    "  || d.TID1 || CASE WHEN d.ID2 IS NULL THEN ' without a rule'"
    "    WHEN h.ID2 IS NULL THEN ' and the rule ' || d.ID2 || ', which does not exist'"
    "    ELSE ' and the rule ' || d.ID2 || ' of type ' || h.TID1 END"
    " FROM ferrowind.CldDay d LEFT JOIN ferrowind.CldHoliday h ON h.ID2 = d.ID2"
    " WHERE CASE WHEN d.ID2 IS NULL THEN d.TID1 <> 1 ELSE h.TID1 IS DISTINCT FROM d.TID1 END",

    "SELECT 'The history gives the number ' || n.next || ' next, but its last entry is number ' || l.last ||"
    "  '; set it: SELECT setval(''ferrowind.cldhistory_entryid_seq'', ' || greatest(l.last, 1) || ', ' || "
    "(l.last > 0) || ')'"
    " FROM (SELECT last_value::numeric + is_called::integer AS next FROM ferrowind.CldHistory_EntryID_seq) "
    "AS n,"
    "  (SELECT coalesce(max(EntryID), 0) AS last FROM ferrowind.CldHistory) AS l"
    // Numbers of calls that failed are left out, but not half of all.
    " WHERE l.last >= n.next OR n.next > 4611686018427387904",

    "SELECT 'The entry ' || EntryID || ' of the history has ' || count(*) || ' rows, of which the last is "
    "number '"
    "  || max(RowNumber)"
    " FROM ferrowind.CldHistoryRow GROUP BY EntryID HAVING count(*) <> max(RowNumber)",

    "SELECT 'The history has rows of the entry ' || EntryID || ', which does not exist'"
    " FROM ferrowind.CldHistoryRow WHERE EntryID NOT IN (SELECT EntryID FROM ferrowind.CldHistory) GROUP BY "
    "EntryID",
};

/// The only texts of the rows that answer `question`.
std::vector<std::string> SentencesOf(ServerConnection& connection, std::string_view question,
                                     const std::vector<std::string>& parameters = {}) {
  const auto rows = ReadRecordSet(connection.Query(std::string(question), parameters).get());
  std::vector<std::string> sentences;
  for (std::size_t row = 0; row < rows->RowCount(); ++row) {
    sentences.push_back(platform::ToTextOrEmpty(rows->Cell(rows->BookmarkAt(row), 0)));
  }
  return sentences;
}

class Check {
 public:
  explicit Check(const std::string& connection_string) : connection_(connection_string) {}

  std::vector<std::string> Run(const std::optional<chain::Seal>& seal) {
    // The server itself sees to it that nothing is changed, and nothing but its own functions is found by a
    // name.
    connection_.RunScript(
        "BEGIN ISOLATION LEVEL REPEATABLE READ READ ONLY; SET LOCAL search_path = pg_catalog, pg_temp; SET "
        "LOCAL datestyle = 'ISO';"
        "SET LOCAL quote_all_identifiers = off; SET LOCAL statement_timeout = 0");
    RequireCalendarDatabase(connection_);
    RequireAdministrator(connection_);
    KeepOut(connection_, KeptOut::kChangesOfTables);
    const auto found = Objects();
    const auto expected = DeliveredCatalogue();
    const bool has_plain_tables = HasPlainTables(found, expected);
    if (has_plain_tables) Try([&] { CompareVersion(); });
    // Of another version everything would be a problem, and the first one says what to do.
    if (!is_delivered_version_.value_or(true)) return std::move(problems_);
    Add(CatalogueDifferences(found, expected));
    Try([&] {
      Ask(embedded::kPostgresSurroundingFaults, {std::string(embedded::kPostgresServerFunctions)});
    });
    Try([&] { Ask(embedded::kPostgresRoleFaults); });
    Try([&] { Ask(embedded::kPostgresSettingFaults); });
    if (has_plain_tables) {
      for (const auto* const question : kDataProblems) Try([&] { Ask(question); });
      if (is_delivered_version_.value_or(false)) Try([&] { LookAtHistory(seal); });
    } else {
      problems_.emplace_back("The rows are not looked at as long as something else stands for a table");
    }
    connection_.RunScript("ROLLBACK");
    return std::move(problems_);
  }

 private:
  /// A part of the check that cannot be made is a problem of its own; the others are made nevertheless.
  template <typename Part>
  void Try(const Part& part) {
    connection_.RunScript("SAVEPOINT part");
    try {
      part();
    } catch (const platform::Failure& failure) {
      if (!connection_.IsAlive()) throw;
      problems_.push_back(failure.Description());
      connection_.RunScript("ROLLBACK TO part");
    }
  }

  void Add(std::vector<std::string> problems) {
    for (auto& problem : problems) problems_.push_back(std::move(problem));
  }

  /// A question whose every row is a problem.
  void Ask(std::string_view question, const std::vector<std::string>& parameters = {}) {
    Add(SentencesOf(connection_, question, parameters));
  }

  void CompareVersion() {
    const auto other =
        content::OtherSchemaVersion("The database", SchemaVersionOf(connection_), DeliveredVersion());
    is_delivered_version_ = !other;
    if (other) problems_.push_back(*other);
  }

  void LookAtHistory(const std::optional<chain::Seal>& seal) {
    ServerSource content(connection_, "ferrowind");
    Add(chain::HistoryProblems(content, seal));
  }

  std::vector<CatalogueFact> Objects() {
    const auto rows = ReadRecordSet(connection_.Query(std::string(embedded::kPostgresObjects)).get());
    std::vector<CatalogueFact> facts;
    for (std::size_t row = 0; row < rows->RowCount(); ++row) {
      const auto text = [&, bookmark = rows->BookmarkAt(row)](std::size_t column) {
        return platform::ToText(rows->Cell(bookmark, column));
      };
      facts.push_back({text(0), text(1), text(2)});
    }
    return facts;
  }

  ServerConnection connection_;
  /// Nothing while it cannot be read.
  std::optional<bool> is_delivered_version_;
  std::vector<std::string> problems_;
};

}  // namespace

std::vector<std::string> CheckDatabase(const std::string& connection_string,
                                       const std::optional<chain::Seal>& seal) {
  return platform::WithFailuresOnly([&] { return Check(connection_string).Run(seal); });
}

std::vector<std::string> SettingsInDoubt(const std::string& connection_string) {
  return platform::WithFailuresOnly([&] {
    ServerConnection connection(connection_string);
    connection.RunScript("BEGIN READ ONLY; SET LOCAL search_path = pg_catalog, pg_temp");
    return SentencesOf(connection, embedded::kPostgresSettingsInDoubt);
  });
}

}  // namespace ferrowind::postgres
