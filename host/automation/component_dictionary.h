#pragma once

#include <memory>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/platform/services/dictionary.h"

namespace ferrowind::host {

/// The dictionary that stands in where the host's product family has registered none: the database and its
/// own currencies, by the connection string that the registry has as "ConnectionString" in the component's
/// key, of the present user or else of the machine. It is looked up anew for everything, so that a host may
/// change it.
class ComponentDictionary : public platform::Dictionary {
 public:
  /// `engines` is not null. Without a connection string it is the failure that no dictionary can be created,
  /// which says where to write one.
  explicit ComponentDictionary(std::shared_ptr<const platform::EngineRegistry> engines);

  [[nodiscard]] std::string dic_ConnectionString() override;
  [[nodiscard]] std::shared_ptr<platform::RecordSet> dic_GetDicRecByFilter(
      const std::string& name, const std::string& filter) override;

 private:
  std::shared_ptr<const platform::EngineRegistry> engines_;
};

}  // namespace ferrowind::host
