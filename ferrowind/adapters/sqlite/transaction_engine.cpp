#include "ferrowind/adapters/sqlite/transaction_engine.h"

#include <utility>
#include <vector>

#include "ferrowind/adapters/sqlite/busy_timeout.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/platform/database/failure_boundary.h"

namespace ferrowind::sqlite {
namespace {

class PartOfTransaction : public platform::Connection {
 public:
  explicit PartOfTransaction(std::shared_ptr<EngineConnection> connection)
      : connection_(std::move(connection)) {}

  [[nodiscard]] std::vector<platform::ParameterDescription> DescribeProcedure(
      const std::string& procedure) override {
    return connection_->DescribeProcedure(procedure);
  }
  [[nodiscard]] platform::CallOutcome Call(const std::string& procedure,
                                           const std::vector<platform::Value>& inputs) override {
    return connection_->Call(procedure, inputs);
  }

 private:
  std::shared_ptr<EngineConnection> connection_;
};

}  // namespace

TransactionEngine::TransactionEngine(const std::string& connection_string)
    : connection_(platform::WithFailuresOnly([&] {
        auto connection =
            std::make_shared<EngineConnection>(DatabaseHandle(PathIn(connection_string)), kLongestCall);
        connection->JoinCalls();
        return connection;
      })) {}

std::unique_ptr<platform::Connection> TransactionEngine::Connect(const std::string& /*connection_string*/) {
  return std::make_unique<PartOfTransaction>(connection_);
}

void TransactionEngine::Commit() {
  platform::WithFailuresOnly([&] { connection_->CommitJoined(); });
}

}  // namespace ferrowind::sqlite
