#pragma once

#include <memory>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/platform/services/dictionary.h"

namespace ferrowind {

/// The dictionary of a host that keeps its dictionaries in the calendars' own database.
class FERROWIND_EXPORT DesktopDictionary : public platform::Dictionary {
 public:
  /// `engines` must outlive the dictionary. The connection string is not looked at before it is needed.
  DesktopDictionary(const platform::EngineRegistry& engines, std::string connection_string);

  [[nodiscard]] std::string dic_ConnectionString() override { return connection_string_; }
  /// Reads the whole dictionary and filters its rows here: no statement is ever made from the filter's text.
  [[nodiscard]] std::shared_ptr<platform::RecordSet> dic_GetDicRecByFilter(
      const std::string& name, const std::string& filter) override;

 private:
  const platform::EngineRegistry& engines_;
  std::string connection_string_;
};

}  // namespace ferrowind
