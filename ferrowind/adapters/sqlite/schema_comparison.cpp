#include "ferrowind/adapters/sqlite/schema_comparison.h"

#include <map>
#include <string_view>
#include <utility>

#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::sqlite {
namespace {

/// What a file keeps beside its tables, and what to call it.
struct FileProperty {
  std::string_view pragma;
  std::string_view name;
};
constexpr FileProperty kFileProperties[] = {
    {"application_id", "mark"}, {"user_version", "schema version"}, {"encoding", "encoding"}};

std::string PropertyOf(const DatabaseHandle& database, std::string_view pragma) {
  Statement ask(database, "PRAGMA " + std::string(pragma));
  return ask.Step() ? std::string(ask.Text(0)) : std::string();
}

/// By type and name, what decides whether two entries of the schema are the same.
using Entries = std::map<std::string, std::string>;

/// Without the tables that ANALYZE makes, which are known by their whole text: what else is called like them
/// is somebody's. An index that a constraint makes has no text.
Entries EntriesOf(const DatabaseHandle& database) {
  Statement list(database,
                 "SELECT coalesce(type, 'entry') || ' ' || coalesce(name, 'without a name'),"
                 " coalesce(tbl_name, '') || ' ' || coalesce(sql, '') FROM sqlite_schema"
                 " WHERE type IS NOT 'table' OR sql NOT IN ('CREATE TABLE sqlite_stat1(tbl,idx,stat)',"
                 "  'CREATE TABLE sqlite_stat4(tbl,idx,neq,nlt,ndlt,sample)')");
  Entries entries;
  while (list.Step()) entries.emplace(list.Text(0), list.Text(1));
  return entries;
}

class Differences {
 public:
  void Compare(std::string_view name, const std::string& found, const std::string& expected) {
    if (found == expected) return;
    sentences_.push_back("The database has the " + std::string(name) + " " + found + "; this program's is " +
                         expected);
  }

  void Compare(const Entries& found, const Entries& expected) {
    for (const auto& [name, text] : expected) {
      const auto match = found.find(name);
      if (match == found.end()) {
        sentences_.push_back("The " + name + " is missing");
      } else if (match->second != text) {
        sentences_.push_back("The " + name + " is not this program's");
      }
    }
    for (const auto& [name, text] : found) {
      if (!expected.contains(name)) sentences_.push_back("The " + name + " does not belong to the schema");
    }
  }

  std::vector<std::string> Take() { return std::move(sentences_); }

 private:
  std::vector<std::string> sentences_;
};

}  // namespace

std::vector<std::string> SchemaDifferences(const DatabaseHandle& found, const DatabaseHandle& delivered) {
  Differences differences;
  for (const auto& [pragma, name] : kFileProperties) {
    differences.Compare(name, PropertyOf(found, pragma), PropertyOf(delivered, pragma));
  }
  // A database in memory has no such journal to compare with.
  differences.Compare("journal mode", PropertyOf(found, "journal_mode"), "wal");
  differences.Compare(EntriesOf(found), EntriesOf(delivered));
  return differences.Take();
}

bool HasPlainTables(const DatabaseHandle& found, const DatabaseHandle& delivered) {
  Statement tables(delivered, "SELECT name FROM sqlite_schema WHERE type = 'table'");
  // What has no page of its own is computed when it is read.
  Statement computed(found,
                     "SELECT 1 FROM sqlite_schema WHERE lower(name) = lower(?1) AND type IN ('table', 'view')"
                     " AND rootpage = 0");
  while (tables.Step()) {
    const platform::Value name(std::string(tables.Text(0)));
    computed.Reset();
    computed.Bind(1, name);
    if (computed.Step()) return false;
  }
  return true;
}

}  // namespace ferrowind::sqlite
