#include "ferrowind/adapters/postgres/engine.h"

#include "ferrowind/adapters/postgres/call_session.h"
#include "ferrowind/adapters/postgres/change_listener.h"
#include "ferrowind/adapters/postgres/engine_connection.h"
#include "ferrowind/adapters/postgres/kept_sessions.h"
#include "ferrowind/adapters/postgres/postgres_failure.h"
#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/adapters/postgres/silence_probe.h"
#include "ferrowind/adapters/postgres/silent_servers.h"
#include "ferrowind/adapters/postgres_calls/dictionary_query.h"
#include "ferrowind/platform/database/connection_scheme.h"
#include "ferrowind/platform/database/failure_boundary.h"

namespace ferrowind::postgres {

Engine::Engine(std::chrono::milliseconds life_of_sessions)
    : servers_(std::make_shared<SilentServers>()), kept_(std::make_shared<KeptSessions>(life_of_sessions)) {}
Engine::~Engine() = default;

std::unique_ptr<platform::Connection> Engine::Connect(const std::string& connection_string) {
  return platform::WithFailuresOnly([&]() -> std::unique_ptr<platform::Connection> {
    return std::make_unique<EngineConnection>(
        std::make_unique<CallSession>(servers_, kept_, connection_string));
  });
}

std::shared_ptr<platform::RecordSet> Engine::ReadDictionary(const std::string& connection_string,
                                                            const std::string& name) {
  return platform::WithFailuresOnly([&] {
    RequireDictionary(name);
    CallSession session(servers_, kept_, connection_string);
    return session.Read([&] { return ReadRecordSet(session.Connection().Query(kReadCurrencies).get()); });
  });
}

std::unique_ptr<platform::ChangeWatch> Engine::Watch(const std::string& connection_string) {
  return platform::WithFailuresOnly(
      [&] { return std::make_unique<ChangeListener>(connection_string, servers_); });
}

std::unique_ptr<platform::SilenceWatch> Engine::WatchSilence(const std::string& connection_string) {
  return platform::WithFailuresOnly(
      [&] { return std::make_unique<SilenceProbe>(connection_string, servers_); });
}

bool IsOfConnection(const platform::Failure& failure) {
  return IsOfState(failure, "08001") || IsOfState(failure, "08006");
}

bool IsConnectionString(const std::string& text) {
  return platform::BehindScheme(text, Engine::kScheme) || platform::BehindScheme(text, Engine::kShortScheme);
}

}  // namespace ferrowind::postgres
