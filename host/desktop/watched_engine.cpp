#include "host/desktop/watched_engine.h"

#include <utility>

namespace ferrowind::host {
namespace {

template <typename Use>
auto TellingOfFailure(DatabaseObserver& observer, const Use& use) {
  try {
    return use();
  } catch (const platform::Failure& failure) {
    observer.DatabaseFailed(failure);
    throw;
  }
}

class WatchedConnection : public platform::Connection {
 public:
  WatchedConnection(std::unique_ptr<platform::Connection> connection, DatabaseObserver& observer)
      : connection_(std::move(connection)), observer_(observer) {}

  std::vector<platform::ParameterDescription> DescribeProcedure(const std::string& procedure) override {
    return TellingOfFailure(observer_, [&] { return connection_->DescribeProcedure(procedure); });
  }

  platform::CallOutcome Call(const std::string& procedure,
                             const std::vector<platform::Value>& inputs) override {
    auto outcome = TellingOfFailure(observer_, [&] { return connection_->Call(procedure, inputs); });
    observer_.DatabaseAnswered();
    return outcome;
  }

 private:
  std::unique_ptr<platform::Connection> connection_;
  DatabaseObserver& observer_;
};

}  // namespace

WatchedEngine::WatchedEngine(std::shared_ptr<platform::Engine> engine, DatabaseObserver& observer)
    : engine_(std::move(engine)), observer_(observer) {}

std::unique_ptr<platform::Connection> WatchedEngine::Connect(const std::string& connection_string) {
  return std::make_unique<WatchedConnection>(
      TellingOfFailure(observer_, [&] { return engine_->Connect(connection_string); }), observer_);
}

std::shared_ptr<platform::RecordSet> WatchedEngine::ReadDictionary(const std::string& connection_string,
                                                                   const std::string& name) {
  auto rows = TellingOfFailure(observer_, [&] { return engine_->ReadDictionary(connection_string, name); });
  observer_.DatabaseAnswered();
  return rows;
}

}  // namespace ferrowind::host
