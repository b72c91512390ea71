#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/delivered_objects.h"
#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/adapters/postgres/schema_version.h"
#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/platform/database/failure_boundary.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::postgres {
namespace {

/// A question to the data whose every row is a problem, told in the row's single text.
constexpr const char* kDataProblems[] = {
    "SELECT 'The holiday type ' || n || ' is missing' FROM generate_series(1, 4) AS n"
    " WHERE n NOT IN (SELECT TID1 FROM CldHolidayType)",

    "SELECT 'The built-in rule 1, a rule of type 1, is missing'"
    " WHERE NOT EXISTS (SELECT FROM CldHoliday WHERE ID2 = 1 AND TID1 = 1)",

    "SELECT 'CldSetting has ' || count(*) || ' rows instead of one' FROM CldSetting HAVING count(*) <> 1",

    "SELECT 'The calendar ' || ID1 || ' of ' || Year1 || ' is of no currency' FROM CldCalendar"
    " WHERE ID1 NOT IN (SELECT CcyID FROM DicCcy WHERE CcyType = 0)",

    "SELECT 'The rule book of ' || ID1 || ' is of no currency' FROM CldBook"
    " WHERE ID1 NOT IN (SELECT CcyID FROM DicCcy WHERE CcyType = 0)",

    "SELECT 'The calendar ' || c.ID1 || ' of ' || c.Year1 || ' has ' || count(d.Day1) || ' days instead of '"
    "  || make_date(c.Year1 + 1, 1, 1) - make_date(c.Year1, 1, 1)"
    " FROM CldCalendar c LEFT JOIN CldDay d ON d.ID1 = c.ID1 AND d.Year1 = c.Year1 GROUP BY c.ID1, c.Year1"
    " HAVING count(d.Day1) <> make_date(c.Year1 + 1, 1, 1) - make_date(c.Year1, 1, 1)",

    "SELECT 'The day ' || d.Day1 || ' of ' || d.Year1 || ' is of a calendar ' || d.ID1 || ' that does not "
    "exist'"
    " FROM CldDay d LEFT JOIN CldCalendar c ON c.ID1 = d.ID1 AND c.Year1 = d.Year1 WHERE c.ID1 IS NULL",

    "SELECT 'The day ' || Day1 || ' of the calendar ' || ID1 || ' of ' || Year1 || ' has the date ' || ODate"
    " FROM CldDay WHERE ODate <> make_date(Year1, 1, 1) + (Day1 - 1) OR extract(year FROM ODate) <> Year1",

    "SELECT 'The day ' || d.Day1 || ' of the calendar ' || d.ID1 || ' of ' || d.Year1 || ' has the type '"
    "  || d.TID1 || CASE WHEN d.ID2 IS NULL THEN ' without a rule'"
    "    WHEN h.ID2 IS NULL THEN ' and the rule ' || d.ID2 || ', which does not exist'"
    "    ELSE ' and the rule ' || d.ID2 || ' of type ' || h.TID1 END"
    " FROM CldDay d LEFT JOIN CldHoliday h ON h.ID2 = d.ID2"
    " WHERE CASE WHEN d.ID2 IS NULL THEN d.TID1 <> 1 ELSE h.TID1 IS DISTINCT FROM d.TID1 END",
};

/// Everything that the schema `ferrowind` consists of and who may do what with it: a name, unique, and what
/// decides whether two of that name are the same. Rights that were never given or taken are those that the
/// server gives by itself, and a restored backup has no others where the original had the same ones written
/// down.
constexpr const char* kObjects = R"sql(
WITH schema AS (SELECT oid, nspowner, nspacl FROM pg_namespace WHERE nspname = 'ferrowind')
SELECT 'schema ferrowind', concat_ws(' ', nspowner::regrole,
  (SELECT string_agg(acl::text, ',' ORDER BY acl::text) FROM unnest(coalesce(nspacl, acldefault('n', nspowner))) AS acl))
FROM schema
UNION ALL
SELECT 'right to use the database', coalesce(
  (SELECT string_agg(concat_ws(' ', CASE grantee WHEN 0 THEN 'public' ELSE grantee::regrole::text END, privilege_type),
                     ',' ORDER BY grantee, privilege_type)
   FROM aclexplode(coalesce(datacl, acldefault('d', datdba)))
   WHERE grantee IN (0, 'ferrowind_owner'::regrole, 'ferrowind_operator'::regrole, 'ferrowind_reader'::regrole)), 'default')
FROM pg_database WHERE datname = current_database()
UNION ALL
SELECT CASE c.relkind WHEN 'r' THEN 'table ' WHEN 'v' THEN 'view ' WHEN 'i' THEN 'index ' ELSE 'object ' END || c.relname,
  concat_ws(' ', c.relkind, c.relpersistence, c.relrowsecurity, c.relowner::regrole, c.reloptions,
    (SELECT string_agg(acl::text, ',' ORDER BY acl::text)
     FROM unnest(coalesce(c.relacl, acldefault(CASE c.relkind WHEN 'S' THEN 's'::"char" ELSE 'r' END, c.relowner))) AS acl),
    CASE c.relkind WHEN 'v' THEN pg_get_viewdef(c.oid) WHEN 'i' THEN pg_get_indexdef(c.oid) END)
FROM pg_class c JOIN schema ON schema.oid = c.relnamespace
UNION ALL
SELECT concat('column ', c.relname, '.', a.attname),
  concat_ws(' ', a.attnum, format_type(a.atttypid, a.atttypmod), a.attnotnull, a.attcollation::regcollation, a.attacl,
    pg_get_expr(d.adbin, d.adrelid))
FROM pg_class c JOIN schema ON schema.oid = c.relnamespace
  JOIN pg_attribute a ON a.attrelid = c.oid AND a.attnum > 0 AND NOT a.attisdropped
  LEFT JOIN pg_attrdef d ON d.adrelid = a.attrelid AND d.adnum = a.attnum
WHERE c.relkind <> 'i'
UNION ALL
SELECT concat('constraint ', c.conrelid::regclass, '.', c.conname), concat_ws(' ', pg_get_constraintdef(c.oid), c.convalidated)
FROM pg_constraint c JOIN schema ON schema.oid = c.connamespace
UNION ALL
SELECT concat('trigger ', t.tgrelid::regclass, '.', t.tgname), concat_ws(' ', pg_get_triggerdef(t.oid), t.tgenabled)
FROM pg_trigger t JOIN pg_class c ON c.oid = t.tgrelid JOIN schema ON schema.oid = c.relnamespace
WHERE NOT t.tgisinternal OR t.tgenabled <> 'O'
UNION ALL
SELECT concat('routine ', p.proname, '(', pg_get_function_identity_arguments(p.oid), ')'),
  concat_ws(' ', p.prokind, p.prosecdef, p.provolatile, p.proisstrict, p.proconfig, p.proowner::regrole,
    pg_get_function_arguments(p.oid), pg_get_function_result(p.oid), p.prolang,
    (SELECT string_agg(acl::text, ',' ORDER BY acl::text)
     FROM unnest(coalesce(p.proacl, acldefault('f', p.proowner))) AS acl), p.prosrc)
FROM pg_proc p JOIN schema ON schema.oid = p.pronamespace
)sql";

class Check {
 public:
  explicit Check(const std::string& connection_string) : connection_(connection_string) {}

  std::vector<std::string> Run() {
    // One check of a database at a time. What it changes below is undone by the end of the connection.
    connection_.RunScript("BEGIN; SELECT pg_advisory_xact_lock(4266537)");
    RequireCalendarDatabase(connection_);
    connection_.RunScript("SET LOCAL search_path = ferrowind, pg_temp");
    Try([&] { CompareVersion(); });
    for (const auto* const question : kDataProblems) {
      Try([&] {
        for (auto& problem : Texts(question)) problems_.push_back(std::move(problem));
      });
    }
    CompareObjects();
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

  std::vector<std::string> Texts(const char* question) {
    std::vector<std::string> texts;
    const auto rows = ReadRecordSet(connection_.Query(question).get());
    for (std::size_t row = 0; row < rows->RowCount(); ++row) {
      texts.push_back(platform::ToTextOrEmpty(rows->Cell(rows->BookmarkAt(row), 0)));
    }
    return texts;
  }

  void CompareVersion() {
    const std::int64_t found = SchemaVersionOf(connection_);
    if (found == DeliveredVersion()) return;
    problems_.push_back("The database has the schema version " + std::to_string(found) +
                        "; this program's is " + std::to_string(DeliveredVersion()));
  }

  std::map<std::string, std::string> Objects() {
    const auto rows = ReadRecordSet(connection_.Query(kObjects).get());
    std::map<std::string, std::string> objects;
    for (std::size_t row = 0; row < rows->RowCount(); ++row) {
      const auto bookmark = rows->BookmarkAt(row);
      objects.emplace(platform::ToText(rows->Cell(bookmark, 0)),
                      platform::ToTextOrEmpty(rows->Cell(bookmark, 1)));
    }
    return objects;
  }

  /// The server itself says what the delivered schema looks like there: it is created beside the one that is
  /// checked, which steps aside under another name, and both vanish with the transaction. Nobody else sees
  /// any of it.
  void CompareObjects() {
    const auto found = Objects();
    connection_.RunScript("ALTER SCHEMA ferrowind RENAME TO ferrowind_in_check");
    CreateDeliveredSchema(connection_);
    GiveDeliveredRights(connection_);
    const auto expected = Objects();
    for (const auto& [name, definition] : expected) {
      const auto match = found.find(name);
      if (match == found.end()) {
        problems_.push_back("The " + name + " is missing");
      } else if (match->second != definition) {
        problems_.push_back("The " + name + " is not this program's");
      }
    }
    for (const auto& [name, definition] : found) {
      if (!expected.contains(name)) problems_.push_back("The " + name + " does not belong to the schema");
    }
  }

  ServerConnection connection_;
  std::vector<std::string> problems_;
};

}  // namespace

std::vector<std::string> CheckDatabase(const std::string& connection_string) {
  return platform::WithFailuresOnly([&] { return Check(connection_string).Run(); });
}

}  // namespace ferrowind::postgres
