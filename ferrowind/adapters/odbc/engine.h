#pragma once

#include <array>
#include <memory>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/database/engine.h"

/// Calendar databases on PostgreSQL servers, by the drivers of ODBC.
namespace ferrowind::odbc {

/// The engine of calendar databases on a PostgreSQL server that a driver of ODBC connects to: connection
/// strings "Driver={...};Server=...;..." and "DSN=...;UID=...;PWD=...". A value with a semicolon or a brace
/// is written in braces, in which "}" is written "}}". The keyword CallTimeout is the engine's own: for how
/// many seconds a call may wait for the server, 1 to 3600, 5 unless said.
///
/// A connection of the port is one of the driver, closed with it. Failures carry the SQLSTATE, and never a
/// password. Nothing tells of changes or of a silent server. A server that stops answering in the middle of a
/// statement is waited for as long as the driver does.
class FERROWIND_EXPORT Engine : public platform::Engine {
 public:
  /// The keywords of which one stands first in its connection strings (`EngineRegistry::RegisterKeyword`).
  static constexpr std::array<const char*, 3> kKeywords = {"Driver", "DSN", "FileDSN"};

  [[nodiscard]] std::unique_ptr<platform::Connection> Connect(const std::string& connection_string) override;
  [[nodiscard]] std::shared_ptr<platform::RecordSet> ReadDictionary(const std::string& connection_string,
                                                                    const std::string& name) override;
  /// Null: a driver gives no word of what others change.
  [[nodiscard]] std::unique_ptr<platform::ChangeWatch> Watch(const std::string& connection_string) override;
};

}  // namespace ferrowind::odbc
