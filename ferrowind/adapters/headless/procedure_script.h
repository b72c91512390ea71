#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "ferrowind/platform/database/parameter.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::headless {

/// What a scripted procedure takes and answers. Without more, it takes nothing and returns 0 without a record
/// set.
class ProcedureScript {
 public:
  /// Declares the next input parameter; `name` with its "@".
  ProcedureScript& Takes(const std::string& name, platform::ParameterType type);
  /// What parameter 0 holds after execution.
  ProcedureScript& Returns(const platform::Value& value);
  /// Adds a record set to the answer.
  ProcedureScript& Gives(std::shared_ptr<platform::RecordSet> records);
  ProcedureScript& Gives(std::vector<std::string> fields, std::vector<std::vector<platform::Value>> rows);
  /// The record sets of the answer are closed.
  ProcedureScript& Closed();

  /// The return value first, then the inputs.
  [[nodiscard]] const std::vector<platform::ParameterDescription>& Parameters() const { return parameters_; }
  [[nodiscard]] const platform::Value& ReturnValue() const { return return_value_; }
  [[nodiscard]] const std::vector<std::shared_ptr<platform::RecordSet>>& RecordSets() const {
    return record_sets_;
  }
  [[nodiscard]] bool IsClosed() const { return is_closed_; }

 private:
  std::vector<platform::ParameterDescription> parameters_ = {
      {"@RETURN_VALUE", 0, platform::ParameterType::kInt32, platform::ParameterDirection::kReturnValue}};
  platform::Value return_value_ = 0;
  std::vector<std::shared_ptr<platform::RecordSet>> record_sets_;
  bool is_closed_ = false;
};

}  // namespace ferrowind::headless
