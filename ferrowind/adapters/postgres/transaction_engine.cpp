#include "ferrowind/adapters/postgres/transaction_engine.h"

#include "ferrowind/adapters/postgres/engine_connection.h"
#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/adapters/postgres_calls/dictionary_query.h"
#include "ferrowind/platform/database/failure_boundary.h"

namespace ferrowind::postgres {

std::unique_ptr<platform::Connection> TransactionEngine::Connect(const std::string& /*connection_string*/) {
  return platform::WithFailuresOnly([&]() -> std::unique_ptr<platform::Connection> {
    return std::make_unique<EngineConnection>(connection_);
  });
}

std::shared_ptr<platform::RecordSet> TransactionEngine::ReadDictionary(
    const std::string& /*connection_string*/, const std::string& name) {
  return platform::WithFailuresOnly([&] {
    RequireDictionary(name);
    return ReadRecordSet(connection_->Query(kReadCurrencies).get());
  });
}

std::unique_ptr<platform::ChangeWatch> TransactionEngine::Watch(const std::string& /*connection_string*/) {
  return nullptr;
}

}  // namespace ferrowind::postgres
