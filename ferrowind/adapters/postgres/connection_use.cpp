#include "ferrowind/adapters/postgres/connection_use.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/platform/values/conversion.h"

#include "database/postgres/embedded_sql.h"

namespace ferrowind::postgres {
std::vector<content::ConnectionShare> ReadConnectionUse(ServerConnection& connection) {
  const auto rows =
      ReadRecordSet(connection.Query(std::string(embedded::kPostgresConnectionShares)).get(), 4);
  std::vector<content::ConnectionShare> shares;
  for (std::size_t row = 0; row < rows->RowCount(); ++row) {
    const auto cell = [&, bookmark = rows->BookmarkAt(row)](std::size_t column) -> const platform::Value& {
      return rows->Cell(bookmark, column);
    };
    const auto count = [&](std::size_t column) -> std::optional<std::int64_t> {
      const auto* const number = cell(column).If<std::int64_t>();
      return number != nullptr ? std::optional(*number) : std::nullopt;
    };
    shares.push_back(
        {platform::ToTextOrEmpty(cell(0)), count(1).value_or(0), count(2), platform::ToTextOrEmpty(cell(3))});
  }
  return shares;
}

}  // namespace ferrowind::postgres
