#pragma once

#include <memory>
#include <string>

#include "ferrowind/platform/database/engine.h"

namespace ferrowind::postgres {

/// The engine of calendar databases on a PostgreSQL server: connection strings "postgresql://..." and
/// "postgres://...", as libpq takes them; database_objects.h makes the databases.
///
/// Every connection is a new one. After connecting, describing a procedure is one round trip to the server,
/// and calling it is another one. Failures carry the SQLSTATE, and never a password.
class Engine : public platform::Engine {
 public:
  /// The schemes of its connection strings.
  static constexpr const char* kScheme = "postgresql";
  static constexpr const char* kShortScheme = "postgres";

  [[nodiscard]] std::unique_ptr<platform::Connection> Connect(const std::string& connection_string) override;
  [[nodiscard]] std::shared_ptr<platform::RecordSet> ReadDictionary(const std::string& connection_string,
                                                                    const std::string& name) override;
  [[nodiscard]] std::unique_ptr<platform::ChangeWatch> Watch(const std::string& connection_string) override;
};

/// Whether `text` has a scheme of this engine's connection strings.
[[nodiscard]] bool IsConnectionString(const std::string& text);

}  // namespace ferrowind::postgres
