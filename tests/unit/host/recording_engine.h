#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "ferrowind/platform/database/engine.h"
#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::host {

/// A database whose procedures record how they are called and give what a test scripted.
class RecordingEngine : public platform::Engine {
 public:
  struct Procedure {
    std::vector<platform::ParameterDescription> parameters;
    platform::CallOutcome outcome = {};
  };

  std::map<std::string, Procedure> procedures;
  std::shared_ptr<platform::RecordSet> dictionary;
  /// Each call as "CldIUMain ID1=978 Year1=2026": the parameters that have a value, in the declared order.
  std::vector<std::string> calls;
  /// The call, counted from 1, that gives `other_outcome` instead; 0 for none.
  std::size_t other_call = 0;
  platform::CallOutcome other_outcome;

  static std::vector<platform::ParameterDescription> Inputs(
      const std::vector<std::pair<std::string, platform::ParameterType>>& inputs) {
    std::vector<platform::ParameterDescription> parameters = {
        {"@RETURN_VALUE", 0, platform::ParameterType::kInt32, platform::ParameterDirection::kReturnValue}};
    for (const auto& [name, type] : inputs) {
      parameters.push_back({"@" + name, static_cast<std::int32_t>(parameters.size()), type,
                            platform::ParameterDirection::kInput});
    }
    return parameters;
  }

  std::unique_ptr<platform::Connection> Connect(const std::string&) override {
    return std::make_unique<RecordingConnection>(*this);
  }

  std::shared_ptr<platform::RecordSet> ReadDictionary(const std::string&, const std::string&) override {
    return dictionary->Clone();
  }

  std::unique_ptr<platform::ChangeWatch> Watch(const std::string&) override { return nullptr; }

 private:
  class RecordingConnection : public platform::Connection {
   public:
    explicit RecordingConnection(RecordingEngine& engine) : engine_(engine) {}

    std::vector<platform::ParameterDescription> DescribeProcedure(const std::string& procedure) override {
      return Find(procedure).parameters;
    }

    platform::CallOutcome Call(const std::string& procedure,
                               const std::vector<platform::Value>& inputs) override {
      const Procedure& called = Find(procedure);
      std::string call = procedure;
      for (std::size_t i = 0; i < inputs.size(); ++i) {
        if (inputs[i].IsEmpty()) continue;
        call += " " + called.parameters[i + 1].name.substr(1) + "=" + platform::ToText(inputs[i]);
      }
      engine_.calls.push_back(call);
      return engine_.calls.size() == engine_.other_call ? engine_.other_outcome : called.outcome;
    }

   private:
    const Procedure& Find(const std::string& procedure) const {
      const auto found = engine_.procedures.find(procedure);
      if (found == engine_.procedures.end()) throw platform::Failure(4711, "No procedure " + procedure);
      return found->second;
    }

    RecordingEngine& engine_;
  };
};

}  // namespace ferrowind::host
