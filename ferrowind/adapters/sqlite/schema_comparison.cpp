#include "ferrowind/adapters/sqlite/schema_comparison.h"

#include <algorithm>
#include <iterator>
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

bool HasForeignTables(const DatabaseHandle& found, const DatabaseHandle& delivered) {
  const Entries own = EntriesOf(delivered);
  const Entries all = EntriesOf(found);
  return std::any_of(all.begin(), all.end(), [&](const auto& entry) {
    if (!entry.first.starts_with("table ") && !entry.first.starts_with("index ")) return false;
    const auto match = own.find(entry.first);
    return match == own.end() || match->second != entry.second;
  });
}

std::vector<std::string> TableNames(const DatabaseHandle& database) {
  Statement tables(database, "SELECT name FROM sqlite_schema WHERE type = 'table'");
  std::vector<std::string> names;
  while (tables.Step()) names.emplace_back(tables.Text(0));
  return names;
}

bool HasPlainTables(const DatabaseHandle& found, const DatabaseHandle& delivered) {
  // What has no page of its own is computed when it is read, as are columns that are an expression of others.
  constexpr std::string_view kComputed[] = {
      "SELECT 1 FROM sqlite_schema WHERE lower(name) = lower(?1) AND type IN ('table', 'view')"
      " AND rootpage = 0",
      "SELECT 1 FROM pragma_table_xinfo(?1) WHERE hidden IN (2, 3)"};
  const auto names = TableNames(delivered);
  return std::none_of(std::begin(kComputed), std::end(kComputed), [&](std::string_view question) {
    Statement computed(found, question);
    return std::any_of(names.begin(), names.end(), [&](const std::string& table) {
      const platform::Value name(table);
      computed.Reset();
      computed.Bind(1, name);
      return computed.Step();
    });
  });
}

}  // namespace ferrowind::sqlite
