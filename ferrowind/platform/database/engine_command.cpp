#include "ferrowind/platform/database/engine_command.h"

#include <algorithm>
#include <map>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::platform {
namespace {

using RecordSets = std::shared_ptr<const std::vector<std::shared_ptr<RecordSet>>>;

/// The engines deliver all record sets at once, so the cursor only walks over them.
class DeliveredResult : public ResultCursor {
 public:
  DeliveredResult(RecordSets record_sets, std::size_t position)
      : record_sets_(std::move(record_sets)), position_(position) {}

  [[nodiscard]] std::int32_t State() const override { return kStateOpen; }

  [[nodiscard]] std::shared_ptr<RecordSet> CloneDetached(std::int32_t lock_type) override {
    if (lock_type != kUnspecified) throw InvalidArgument();
    return (*record_sets_)[position_]->Clone();
  }

  [[nodiscard]] std::unique_ptr<ResultCursor> NextRecordSet() override {
    if (position_ + 1 == record_sets_->size()) return nullptr;
    return std::make_unique<DeliveredResult>(record_sets_, position_ + 1);
  }

 private:
  RecordSets record_sets_;
  std::size_t position_;
};

/// Gives a command the connection that it works on, and learns when that has failed.
class ConnectionSource {
 public:
  virtual ~ConnectionSource() = default;
  [[nodiscard]] virtual std::shared_ptr<Connection> Connect(const std::string& connection_string) = 0;
  virtual void Drop(const std::shared_ptr<Connection>& connection) = 0;
};

class EngineCommand : public Command {
 public:
  /// Where `source` is none, or gone, the command opens a connection of its own.
  EngineCommand(const EngineRegistry& engines, std::weak_ptr<ConnectionSource> source)
      : engines_(engines), source_(std::move(source)) {}

  void SetType(std::int32_t type) override {
    if (type != kStoredProcedureCommand) throw InvalidArgument();
  }

  void SetText(const std::string& text) override { procedure_ = text; }

  void SetConnection(const std::string& connection_string) override {
    const auto source = source_.lock();
    connection_ = source ? source->Connect(connection_string)
                         : engines_.EngineFor(connection_string).Connect(connection_string);
  }

  void SetCursorLocation(std::int32_t location) override {
    if (location != kClientSideCursor) throw InvalidArgument();
  }

  void RefreshParameters() override {
    parameters_.clear();
    const auto describe = [this](Connection& connection) { return connection.DescribeProcedure(procedure_); };
    for (auto& description : OnConnection(describe)) {
      parameters_.push_back({FoldCase(description.name), std::move(description), {}});
    }
  }

  void SetParameter(const std::string& name, const Value& value) override {
    const std::string folded = FoldCase(name);
    const auto found = std::find_if(parameters_.begin(), parameters_.end(),
                                    [&](const auto& parameter) { return parameter.folded_name == folded; });
    if (found == parameters_.end() || found->description.direction != ParameterDirection::kInput) {
      throw Failure(failure_number::kUnknownField, procedure_ + " has no parameter " + name);
    }
    found->value = ConvertForParameter(found->description, value);
  }

  [[nodiscard]] std::unique_ptr<ResultCursor> Execute(std::int32_t options) override {
    if (options != kUnspecified) throw InvalidArgument();
    std::vector<Value> inputs;
    for (const auto& parameter : parameters_) {
      if (parameter.description.direction == ParameterDirection::kInput) inputs.push_back(parameter.value);
    }
    CallOutcome outcome =
        OnConnection([&](Connection& connection) { return connection.Call(procedure_, inputs); });
    RequireRecordSets(outcome);
    for (auto& parameter : parameters_) {
      if (parameter.description.direction == ParameterDirection::kReturnValue) {
        parameter.value = outcome.return_value;
      }
    }
    if (outcome.record_sets.empty()) return nullptr;
    return std::make_unique<DeliveredResult>(
        std::make_shared<const std::vector<std::shared_ptr<RecordSet>>>(std::move(outcome.record_sets)), 0);
  }

  [[nodiscard]] Value ParameterAt(std::int32_t position) const override {
    const auto found = std::find_if(parameters_.begin(), parameters_.end(), [&](const auto& parameter) {
      return parameter.description.position == position;
    });
    if (found == parameters_.end()) throw SubscriptOutOfRange();
    return found->value;
  }

 private:
  /// Without one of them the others would be taken for each other.
  void RequireRecordSets(const CallOutcome& outcome) const {
    const auto& sets = outcome.record_sets;
    const auto missing = std::find(sets.begin(), sets.end(), nullptr);
    if (missing == sets.end()) return;
    throw Failure(failure_number::kObjectNotSet, "The engine gave nothing for record set " +
                                                     std::to_string(missing - sets.begin() + 1) + " of " +
                                                     procedure_);
  }

  struct Parameter {
    std::string folded_name;
    ParameterDescription description;
    Value value;
  };

  template <typename Work>
  std::invoke_result_t<const Work&, Connection&> OnConnection(const Work& work) {
    if (!connection_) {
      throw Failure(failure_number::kObjectNotSet, "The command has no connection");
    }
    try {
      return work(*connection_);
    } catch (...) {
      if (const auto source = source_.lock()) source->Drop(connection_);
      throw;
    }
  }

  const EngineRegistry& engines_;
  std::weak_ptr<ConnectionSource> source_;
  std::string procedure_;
  std::shared_ptr<Connection> connection_;
  std::vector<Parameter> parameters_;
};

}  // namespace

class EngineCommandFactory::Shared : public SharedConnections, public ConnectionSource {
 public:
  explicit Shared(const EngineRegistry& engines) : engines_(engines) {}

  [[nodiscard]] std::shared_ptr<Connection> Connect(const std::string& connection_string) override {
    std::shared_ptr<Connection>& connection = connections_[connection_string];
    if (!connection) connection = engines_.EngineFor(connection_string).Connect(connection_string);
    return connection;
  }

  void Drop(const std::shared_ptr<Connection>& connection) override {
    std::erase_if(connections_, [&](const auto& entry) { return entry.second == connection; });
  }

 private:
  const EngineRegistry& engines_;
  /// By connection string; null for one that could not be opened.
  std::map<std::string, std::shared_ptr<Connection>> connections_;
};

std::unique_ptr<Command> EngineCommandFactory::CreateCommand() {
  return std::make_unique<EngineCommand>(engines_, shared_);
}

std::shared_ptr<SharedConnections> EngineCommandFactory::ShareConnections() {
  auto shared = shared_.lock();
  if (!shared) shared_ = shared = std::make_shared<Shared>(engines_);
  return shared;
}

}  // namespace ferrowind::platform
