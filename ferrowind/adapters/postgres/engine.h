#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/database/engine.h"
#include "ferrowind/platform/values/failure.h"

/// Calendar databases on PostgreSQL servers.
namespace ferrowind::postgres {

class KeptSessions;
class SilentServers;

/// The engine of calendar databases on a PostgreSQL server: connection strings "postgresql://..." and
/// "postgres://...", as libpq takes them; database_objects.h makes the databases.
///
/// After connecting, describing a procedure is one round trip to the server, and calling it is another one.
/// Failures carry the SQLSTATE, and never a password. No call waits longer for a server than its connection
/// string lets it (connection_uri.h); then calls fail at once, until the server answers.
///
/// A session that calls are done with is reset and kept for later ones with the same login, for a minute from
/// its own login at the most (`SessionKeeping`); the engine closes those that are left when it is destroyed.
/// Each connection of the port has one for itself, that was asked whether it is still of use before anything
/// is changed over it.
class FERROWIND_EXPORT Engine : public platform::Engine {
 public:
  /// How old a session may be for a call to begin with it, so that a login that is not allowed any more, or
  /// with this password no more, ends.
  static constexpr std::chrono::milliseconds kLifeOfSessions = std::chrono::minutes(1);

  /// Another life of sessions is for tests.
  explicit Engine(std::chrono::milliseconds life_of_sessions = kLifeOfSessions);
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;
  ~Engine() override;

  ///@{
  /// The schemes of its connection strings.
  static constexpr const char* kScheme = "postgresql";
  static constexpr const char* kShortScheme = "postgres";
  ///@}

  [[nodiscard]] std::unique_ptr<platform::Connection> Connect(const std::string& connection_string) override;
  [[nodiscard]] std::shared_ptr<platform::RecordSet> ReadDictionary(const std::string& connection_string,
                                                                    const std::string& name) override;
  [[nodiscard]] std::unique_ptr<platform::ChangeWatch> Watch(const std::string& connection_string) override;
  [[nodiscard]] std::unique_ptr<platform::SilenceWatch> WatchSilence(
      const std::string& connection_string) override;

 private:
  std::shared_ptr<SilentServers> servers_;
  std::shared_ptr<KeptSessions> kept_;
};

/// Whether a call failed because there is no connection to its server, or none any more; a command that asks
/// the server once more would only wait once more.
[[nodiscard]] FERROWIND_EXPORT bool IsOfConnection(const platform::Failure& failure);

/// Whether `text` has a scheme of this engine's connection strings.
[[nodiscard]] FERROWIND_EXPORT bool IsConnectionString(const std::string& text);

}  // namespace ferrowind::postgres
