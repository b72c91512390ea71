#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ferrowind/platform/database/engine.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::platform {

/// An engine of a single procedure, `CldGetMain(@ID1 int16, @Name1 text)`, whose outcome a test sets.
class SmallEngine : public Engine {
 public:
  CallOutcome outcome;
  std::vector<std::string> connected_to;
  std::vector<std::string> called;
  std::vector<Value> inputs;
  int open_connections = 0;

  [[nodiscard]] std::unique_ptr<Connection> Connect(const std::string& connection_string) override {
    connected_to.push_back(connection_string);
    return std::make_unique<SmallConnection>(*this);
  }

  [[nodiscard]] std::shared_ptr<RecordSet> ReadDictionary(const std::string&,
                                                          const std::string& name) override {
    throw Failure(failure_number::kInvalidArgument, "There is no dictionary named " + name);
  }

  [[nodiscard]] std::unique_ptr<ChangeWatch> Watch(const std::string&) override { return nullptr; }

 private:
  class SmallConnection : public Connection {
   public:
    explicit SmallConnection(SmallEngine& engine) : engine_(engine) { ++engine_.open_connections; }
    ~SmallConnection() override { --engine_.open_connections; }
    SmallConnection(const SmallConnection&) = delete;
    SmallConnection& operator=(const SmallConnection&) = delete;

    [[nodiscard]] std::vector<ParameterDescription> DescribeProcedure(const std::string& procedure) override {
      if (procedure != "CldGetMain") {
        throw Failure(failure_number::kInvalidArgument, "There is no procedure named " + procedure);
      }
      return {{"@RETURN_VALUE", 0, ParameterType::kInt32, ParameterDirection::kReturnValue},
              {"@ID1", 1, ParameterType::kInt16, ParameterDirection::kInput},
              {"@Name1", 2, ParameterType::kText, ParameterDirection::kInput}};
    }

    [[nodiscard]] CallOutcome Call(const std::string& procedure, const std::vector<Value>& values) override {
      engine_.called.push_back(procedure);
      engine_.inputs = values;
      return engine_.outcome;
    }

   private:
    SmallEngine& engine_;
  };
};

}  // namespace ferrowind::platform
