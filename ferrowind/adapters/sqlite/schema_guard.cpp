#include "ferrowind/adapters/sqlite/schema_guard.h"

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include <sqlite3.h>

#include "ferrowind/adapters/sqlite/delivered_schema.h"
#include "ferrowind/adapters/sqlite/procedure_catalogue.h"
#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {
namespace {

/// An entry of SQLite's list of what a file holds.
struct Entry {
  std::string kind;
  std::string name;
  std::string table;
  /// The statement that makes it; empty for an index that a constraint makes.
  std::string text;
  /// It has no pages of its own, but is computed when it is used.
  bool is_computed = false;

  [[nodiscard]] auto Key() const { return std::tie(kind, name, table, text); }
};

struct ByKey {
  bool operator()(const Entry& left, const Entry& right) const { return left.Key() < right.Key(); }
};

constexpr const char* kList = "SELECT type, name, tbl_name, sql, rootpage FROM sqlite_schema";

template <typename Use>
void ForEachEntry(const DatabaseHandle& database, const Use& use) {
  Statement list(database, kList);
  const auto text = [&](int column) { return std::string(list.Text(column)); };
  while (list.Step()) use(Entry{text(0), text(1), text(2), text(3), list.Integer(4) == 0});
}

/// What a new database of this program holds.
struct OwnSchema {
  /// As SQLite lists them.
  std::vector<Entry> in_order;
  std::set<Entry, ByKey> entries;
  /// Names of tables, as SQLite compares them.
  std::set<std::string> tables;
};

OwnSchema MakeOwnSchema() {
  DatabaseHandle database = DatabaseHandle::InMemory();
  database.Execute(std::string(DeliveredTables()).c_str());
  OwnSchema schema;
  ForEachEntry(database, [&](const Entry& entry) {
    schema.in_order.push_back(entry);
    schema.entries.insert(entry);
    if (entry.kind == "table") schema.tables.insert(platform::FoldCase(entry.name));
  });
  return schema;
}

const OwnSchema& ThisPrograms() {
  static const OwnSchema schema = MakeOwnSchema();
  return schema;
}

/// Whether the file lists just what a new database does, in the same order. Most files do, and nothing has to
/// be looked up then.
bool IsAsMadeNew(const DatabaseHandle& database) {
  const auto& own = ThisPrograms().in_order;
  auto expected = own.begin();
  Statement list(database, kList);
  while (list.Step()) {
    if (expected == own.end() || list.Text(0) != expected->kind || list.Text(1) != expected->name ||
        list.Text(2) != expected->table || list.Text(3) != expected->text ||
        (list.Integer(4) == 0) != expected->is_computed)
      return false;
    ++expected;
  }
  return expected == own.end();
}

bool IsNameOfATable(const std::string& name) {
  return ThisPrograms().tables.contains(platform::FoldCase(name));
}

/// Whether a script of an upgrade makes it: an older version has it from there.
bool IsFromAnUpgrade(const Entry& entry) {
  if (entry.text.empty()) return false;
  const std::string statement = entry.text + ";";
  const auto& scripts = DeliveredUpgrades();
  return std::any_of(scripts.begin(), scripts.end(), [&](const content::UpgradeScript& script) {
    return script.sql.find(statement) != std::string_view::npos;
  });
}

/// Whether what somebody wrote runs when the database is used.
bool RunsSql(const Entry& entry) {
  if (entry.kind == "table") return entry.is_computed;
  // An expression in one ends, asks nothing of other rows, and calls no function that does harm.
  return entry.kind != "index";
}

bool IsForeign(const Entry& entry, bool is_of_this_version) {
  const bool is_own_table = entry.kind == "table" && IsNameOfATable(entry.name);
  if (!RunsSql(entry) && !(is_own_table && is_of_this_version)) return false;
  if (ThisPrograms().entries.contains(entry)) return false;
  return is_of_this_version || !IsFromAnUpgrade(entry);
}

platform::Failure Foreign(const DatabaseHandle& database, const Entry& entry) {
  return {SQLITE_AUTH, "The database " + database.Path() + " holds the " + entry.kind + " " + entry.name +
                           ", which is not this program's and could run what somebody else wrote; nothing of "
                           "the database is used. \"ferrowindctl check\" names all that is foreign"};
}

void RefuseForeign(const DatabaseHandle& database) {
  const std::int64_t version = SchemaVersionOf(database);
  const std::int64_t this_version = DeliveredUpgrades().back().version;
  ForEachEntry(database, [&](const Entry& entry) {
    if (!IsForeign(entry, version >= this_version)) return;
    // What a newer program has made is not foreign, but cannot be told from what is.
    if (version > this_version) RequireDeliveredVersion(database);
    throw Foreign(database, entry);
  });
}

}  // namespace

SchemaGuard::SchemaGuard(const DatabaseHandle& database)
    : database_(database), ask_cookie_(database, "PRAGMA schema_version") {}

void SchemaGuard::Look() {
  ask_cookie_.Reset();
  const std::int64_t cookie = ask_cookie_.Step() ? ask_cookie_.Integer(0) : 0;
  ask_cookie_.Reset();
  if (sound_ == cookie) return;
  if (!IsAsMadeNew(database_)) RefuseForeign(database_);
  sound_ = cookie;
}

void RequireCalendarDatabase(const DatabaseHandle& database) {
  SchemaGuard(database).Look();
  const ProcedureCatalogue must_be_there(database);
}

}  // namespace ferrowind::sqlite
