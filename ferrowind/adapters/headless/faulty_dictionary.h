#pragma once

#include <memory>
#include <string>
#include <utility>

#include "ferrowind/adapters/headless/fault_plan.h"
#include "ferrowind/platform/services/dictionary.h"

namespace ferrowind::headless {

/// A dictionary of which every operation passes a plan first.
class FaultyDictionary : public platform::Dictionary {
 public:
  /// `plan` must outlive this.
  FaultyDictionary(std::shared_ptr<platform::Dictionary> inner, FaultPlan& plan)
      : inner_(std::move(inner)), plan_(plan) {}

  [[nodiscard]] std::string dic_ConnectionString() override {
    plan_.Pass("dictionary.dic_ConnectionString");
    return inner_->dic_ConnectionString();
  }
  [[nodiscard]] std::shared_ptr<platform::RecordSet> dic_GetDicRecByFilter(
      const std::string& name, const std::string& filter) override {
    plan_.Pass("dictionary.dic_GetDicRecByFilter");
    return inner_->dic_GetDicRecByFilter(name, filter);
  }

 private:
  std::shared_ptr<platform::Dictionary> inner_;
  FaultPlan& plan_;
};

}  // namespace ferrowind::headless
