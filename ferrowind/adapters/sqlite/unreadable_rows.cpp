#include "ferrowind/adapters/sqlite/unreadable_rows.h"

#include <cstddef>

#include <sqlite3.h>

#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::sqlite {
namespace {

constexpr std::size_t kMostTold = 100;

/// One text, which the question has a ?1 for the table's name in.
std::string Ask(const DatabaseHandle& database, const std::string& question, const std::string& table) {
  const platform::Value name(table);
  Statement ask(database, question);
  ask.Bind(1, name);
  return ask.Step() ? std::string(ask.Text(0)) : std::string();
}

/// How many rows behind the first `from` can be read up to one that cannot.
std::size_t ReadableRows(const DatabaseHandle& database, const std::string& question, std::size_t from,
                         bool& is_end) {
  Statement read(database, question + " LIMIT -1 OFFSET " + std::to_string(from));
  std::size_t rows = 0;
  try {
    while (read.Step()) ++rows;
    is_end = true;
  } catch (const platform::Failure&) {
    if (sqlite3_errcode(database.Get()) != SQLITE_TOOBIG) throw;
    is_end = false;
  }
  return rows;
}

}  // namespace

std::vector<std::string> UnreadableRows(const DatabaseHandle& database, const std::string& table) {
  // The names of the columns are whoever's who made the table.
  const std::string texts =
      Ask(database,
          "SELECT group_concat(printf('length(\"%w\")', name), ', ') FROM pragma_table_info(?1)"
          " WHERE type = 'TEXT' AND pk = 0",
          table);
  const std::string key =
      Ask(database,
          "SELECT group_concat(printf('%Q || \"%w\"', name || ' ', name), ' || '', '' || ')"
          " FROM pragma_table_info(?1) WHERE pk > 0",
          table);
  if (texts.empty() || key.empty()) return {};
  const std::string order = Ask(database,
                                "SELECT group_concat(printf('\"%w\"', name), ', ')"
                                " FROM (SELECT name FROM pragma_table_info(?1) WHERE pk > 0 ORDER BY pk)",
                                table);
  const std::string rows = " FROM \"" + table + "\" ORDER BY " + order;
  std::vector<std::string> sentences;
  bool is_end = false;
  for (std::size_t place = 0; sentences.size() < kMostTold; ++place) {
    place += ReadableRows(database, "SELECT " + texts + rows, place, is_end);
    if (is_end) break;
    Statement ask(database, "SELECT " + key + rows + " LIMIT 1 OFFSET " + std::to_string(place));
    if (!ask.Step()) break;
    sentences.push_back("The row " + std::string(ask.Text(0)) + " of the table " + table +
                        " has a text that is too long to be read");
  }
  return sentences;
}

}  // namespace ferrowind::sqlite
