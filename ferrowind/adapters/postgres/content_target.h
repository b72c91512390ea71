#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "ferrowind/adapters/content/content_source.h"
#include "ferrowind/adapters/postgres/content_source.h"
#include "ferrowind/adapters/postgres/server_connection.h"

namespace ferrowind::postgres {

/// The calendar database on a connection, in the transaction that is open there.
class ServerTarget : public content::Target {
 public:
  enum class Kind { kExisting, kNew };

  /// `connection` must outlive the target.
  ServerTarget(ServerConnection& connection, Kind kind);

  [[nodiscard]] std::string Name() override { return content_.Name(); }
  [[nodiscard]] std::string Identity() override { return content_.Identity(); }
  [[nodiscard]] std::int64_t CountRows(const content::Table& table) override {
    return content_.CountRows(table);
  }
  [[nodiscard]] std::unique_ptr<content::RowReader> Rows(const content::Table& table,
                                                         content::RowOrder order) override {
    return content_.Rows(table, order);
  }
  void KeepOthersOut() override;
  [[nodiscard]] content::Source* Delivered() override;
  void Clear(const content::Table& table) override;
  [[nodiscard]] std::unique_ptr<content::RowWriter> Writer(const content::Table& table,
                                                           std::int64_t rows) override;

 private:
  ServerConnection& connection_;
  ServerSource content_;
  Kind kind_;
  std::unique_ptr<content::Source> delivered_;
};

/// Makes the server give out identifiers behind those that the tables hold.
void ContinueIdentifiers(ServerConnection& connection);

}  // namespace ferrowind::postgres
