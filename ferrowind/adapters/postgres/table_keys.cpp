#include "ferrowind/adapters/postgres/table_keys.h"

#include <cstddef>

#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::postgres {
namespace {

/// What takes each away and what makes it, in the order in which they can go: a reference needs the key that
/// it refers to.
constexpr const char* kKeys = R"sql(
WITH of AS (
  SELECT c.oid FROM pg_catalog.pg_class c JOIN pg_catalog.pg_namespace n ON n.oid = c.relnamespace
  WHERE n.nspname = 'ferrowind' AND c.relname = lower($1)
)
SELECT away, definition FROM (
  SELECT CASE c.contype WHEN 'f' THEN 1 ELSE 2 END AS step, c.conname AS name,
    format('ALTER TABLE %s DROP CONSTRAINT %I', c.conrelid::regclass, c.conname) AS away,
    format('ALTER TABLE %s ADD CONSTRAINT %I %s', c.conrelid::regclass, c.conname, pg_get_constraintdef(c.oid)) AS definition
  FROM pg_catalog.pg_constraint c JOIN of ON c.conrelid = of.oid AND c.contype IN ('f', 'p', 'u', 'x')
    OR c.confrelid = of.oid AND c.contype = 'f'
  UNION ALL
  SELECT 3, i.indexrelid::regclass::name, format('DROP INDEX %s', i.indexrelid::regclass), pg_get_indexdef(i.indexrelid)
  FROM pg_catalog.pg_index i JOIN of ON i.indrelid = of.oid
  WHERE NOT EXISTS (SELECT FROM pg_catalog.pg_constraint c WHERE c.conindid = i.indexrelid AND c.contype IN ('p', 'u', 'x'))
) AS key ORDER BY step, name)sql";

}  // namespace

SetAsideKeys::SetAsideKeys(ServerConnection& connection, const std::string& table) : connection_(connection) {
  const auto keys = ReadRecordSet(connection_.Query(kKeys, {table}).get(), 2);
  for (std::size_t row = 0; row < keys->RowCount(); ++row) {
    const auto text = [&, bookmark = keys->BookmarkAt(row)](std::size_t column) {
      return platform::ToText(keys->Cell(bookmark, column));
    };
    connection_.RunScript(text(0));
    definitions_.push_back(text(1));
  }
}

void SetAsideKeys::PutBack() {
  while (!definitions_.empty()) {
    connection_.RunScript(definitions_.back());
    definitions_.pop_back();
  }
}

}  // namespace ferrowind::postgres
