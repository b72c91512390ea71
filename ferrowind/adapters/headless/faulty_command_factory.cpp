#include "ferrowind/adapters/headless/faulty_command_factory.h"

#include <string>
#include <utility>

namespace ferrowind::headless {
namespace {

class FaultyCursor : public platform::ResultCursor {
 public:
  /// A cursor around `inner`, null for null.
  static std::unique_ptr<platform::ResultCursor> Around(std::unique_ptr<platform::ResultCursor> inner,
                                                        FaultPlan& plan) {
    if (inner == nullptr) return nullptr;
    return std::make_unique<FaultyCursor>(std::move(inner), plan);
  }

  FaultyCursor(std::unique_ptr<platform::ResultCursor> inner, FaultPlan& plan)
      : inner_(std::move(inner)), plan_(plan) {}

  [[nodiscard]] std::int32_t State() const override {
    plan_.Pass("cursor.State");
    return inner_->State();
  }
  [[nodiscard]] std::shared_ptr<platform::RecordSet> CloneDetached(std::int32_t lock_type) override {
    plan_.Pass("cursor.CloneDetached");
    return inner_->CloneDetached(lock_type);
  }
  [[nodiscard]] std::unique_ptr<platform::ResultCursor> NextRecordSet() override {
    plan_.Pass("cursor.NextRecordSet");
    return Around(inner_->NextRecordSet(), plan_);
  }

 private:
  std::unique_ptr<platform::ResultCursor> inner_;
  FaultPlan& plan_;
};

class FaultyCommand : public platform::Command {
 public:
  FaultyCommand(std::unique_ptr<platform::Command> inner, FaultPlan& plan)
      : inner_(std::move(inner)), plan_(plan) {}

  void SetType(std::int32_t type) override {
    plan_.Pass("command.SetType");
    inner_->SetType(type);
  }
  void SetText(const std::string& text) override {
    plan_.Pass("command.SetText");
    inner_->SetText(text);
  }
  void SetConnection(const std::string& connection_string) override {
    plan_.Pass("command.SetConnection");
    inner_->SetConnection(connection_string);
  }
  void SetCursorLocation(std::int32_t location) override {
    plan_.Pass("command.SetCursorLocation");
    inner_->SetCursorLocation(location);
  }
  void RefreshParameters() override {
    plan_.Pass("command.RefreshParameters");
    inner_->RefreshParameters();
  }
  void SetParameter(const std::string& name, const platform::Value& value) override {
    plan_.Pass("command.SetParameter");
    inner_->SetParameter(name, value);
  }
  [[nodiscard]] std::unique_ptr<platform::ResultCursor> Execute(std::int32_t options) override {
    plan_.Pass("command.Execute");
    return FaultyCursor::Around(inner_->Execute(options), plan_);
  }
  [[nodiscard]] platform::Value ParameterAt(std::int32_t position) const override {
    plan_.Pass("command.ParameterAt");
    return inner_->ParameterAt(position);
  }

 private:
  std::unique_ptr<platform::Command> inner_;
  FaultPlan& plan_;
};

}  // namespace

std::unique_ptr<platform::Command> FaultyCommandFactory::CreateCommand() {
  plan_.Pass("command.Create");
  return std::make_unique<FaultyCommand>(inner_.CreateCommand(), plan_);
}

std::shared_ptr<platform::SharedConnections> FaultyCommandFactory::ShareConnections() {
  return inner_.ShareConnections();
}

}  // namespace ferrowind::headless
