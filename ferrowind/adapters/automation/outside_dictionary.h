#pragma once

#include <memory>
#include <string>

#include "ferrowind/adapters/automation/outside_call.h"
#include "ferrowind/platform/services/dictionary.h"

namespace ferrowind::automation {

/// The dictionary object of the host's product family, asked anew for everything.
///
/// It is never released: the thread that it was made for may end after the platform has unloaded its file.
class OutsideDictionary : public platform::Dictionary {
 public:
  explicit OutsideDictionary(OutsideCall object);

  [[nodiscard]] std::string dic_ConnectionString() override;
  [[nodiscard]] std::shared_ptr<platform::RecordSet> dic_GetDicRecByFilter(
      const std::string& name, const std::string& filter) override;

 private:
  const OutsideCall& object_;
};

}  // namespace ferrowind::automation
