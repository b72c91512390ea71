#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/platform/additions/holidays_additions.h"

namespace ferrowind {

/// One of the additions of a Holidays window, which overrides what it is there for.
class HolidaysAddition : public platform::HolidaysAdditions {
 public:
  void Opening() override {}
  [[nodiscard]] std::string Caption(const std::string& given) override { return given; }
  [[nodiscard]] std::shared_ptr<platform::RecordSet> RulesToShow(
      std::shared_ptr<platform::RecordSet> rules) override {
    return rules;
  }
  bool RunTool(const std::string& /*id*/) override { return false; }
  [[nodiscard]] bool BeforeAssign(const std::vector<platform::ChosenRule>& /*rules*/) override {
    return true;
  }
  void Closing() override {}
};

}  // namespace ferrowind
