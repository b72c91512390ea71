#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "ferrowind/adapters/content/content_source.h"
#include "ferrowind/adapters/postgres/server_connection.h"

namespace ferrowind::postgres {

/// The content of the tables of one schema, in the transaction that is open on a connection.
class ServerSource : public content::Source {
 public:
  /// `connection` must outlive the source.
  ServerSource(ServerConnection& connection, std::string schema)
      : connection_(connection), schema_(std::move(schema)) {}

  [[nodiscard]] std::string Name() override { return connection_.DatabaseName(); }
  [[nodiscard]] std::string Identity() override;
  [[nodiscard]] std::int64_t CountRows(const content::Table& table) override;
  [[nodiscard]] std::unique_ptr<content::RowReader> Rows(const content::Table& table,
                                                         content::RowOrder order) override;

 private:
  [[nodiscard]] std::string NameOf(const content::Table& table) const;

  ServerConnection& connection_;
  std::string schema_;
};

}  // namespace ferrowind::postgres
