#include "ferrowind/adapters/headless/memory_engine.h"

#include <optional>
#include <utility>
#include <vector>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::headless {
namespace {

class MemoryConnection : public platform::Connection {
 public:
  explicit MemoryConnection(std::shared_ptr<MemoryDatabase> database) : database_(std::move(database)) {}

  [[nodiscard]] std::vector<platform::ParameterDescription> DescribeProcedure(
      const std::string& procedure) override {
    return database_->ProcedureNamed(procedure).parameters;
  }
  [[nodiscard]] platform::CallOutcome Call(const std::string& procedure,
                                           const std::vector<platform::Value>& inputs) override {
    return database_->Call(procedure, inputs);
  }

 private:
  std::shared_ptr<MemoryDatabase> database_;
};

/// What has changed the database is in its history.
class MemoryWatch : public platform::ChangeWatch {
 public:
  explicit MemoryWatch(std::shared_ptr<MemoryDatabase> database) : database_(std::move(database)) {}

  [[nodiscard]] bool Look() override {
    const std::optional<std::size_t> now = database_->History().size();
    return std::exchange(seen_entries_, now) != now;
  }
  [[nodiscard]] std::chrono::milliseconds Pause() const override { return std::chrono::seconds(2); }

 private:
  std::shared_ptr<MemoryDatabase> database_;
  /// Nothing before the first look.
  std::optional<std::size_t> seen_entries_;
};

class MemorySilenceWatch : public platform::SilenceWatch {
 public:
  explicit MemorySilenceWatch(std::shared_ptr<MemoryDatabase> database) : database_(std::move(database)) {}

  [[nodiscard]] std::optional<std::chrono::milliseconds> Look() override {
    return database_->Silence().until_next_try;
  }
  void TryNow() override { ++database_->Silence().tries_asked_for; }

 private:
  std::shared_ptr<MemoryDatabase> database_;
};

constexpr const char* kScheme = "memory:";

}  // namespace

MemoryDatabase& MemoryEngine::CreateDatabase(const std::string& name) {
  return *(databases_[name] = std::make_shared<MemoryDatabase>());
}

std::unique_ptr<platform::Connection> MemoryEngine::Connect(const std::string& connection_string) {
  auto database = DatabaseOf(connection_string);
  if (database->Silence().until_next_try) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            "The database in memory does not answer");
  }
  return std::make_unique<MemoryConnection>(std::move(database));
}

std::shared_ptr<platform::RecordSet> MemoryEngine::ReadDictionary(const std::string& connection_string,
                                                                  const std::string& name) {
  return DatabaseOf(connection_string)->Dictionary(name);
}

std::unique_ptr<platform::ChangeWatch> MemoryEngine::Watch(const std::string& connection_string) {
  return std::make_unique<MemoryWatch>(DatabaseOf(connection_string));
}

std::unique_ptr<platform::SilenceWatch> MemoryEngine::WatchSilence(const std::string& connection_string) {
  return std::make_unique<MemorySilenceWatch>(DatabaseOf(connection_string));
}

std::shared_ptr<MemoryDatabase> MemoryEngine::DatabaseOf(const std::string& connection_string) const {
  const std::string scheme = kScheme;
  if (connection_string.starts_with(scheme)) {
    const auto found = databases_.find(connection_string.substr(scheme.size()));
    if (found != databases_.end()) return found->second;
  }
  throw platform::Failure(platform::failure_number::kInvalidArgument,
                          "There is no database in memory under that connection string");
}

}  // namespace ferrowind::headless
