#pragma once

#include <memory>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/services/object_factory.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::platform {

/// The dictionary component of the host's product family. Operations keep the names that it publishes.
class FERROWIND_EXPORT Dictionary : public OutsideObject {
 public:
  /// The connection string that every database call uses; may differ from call to call. May hold a password.
  [[nodiscard]] virtual std::string dic_ConnectionString() = 0;

  /// The rows of the dictionary `name` that pass `filter` (a record-set filter, row_filter.h), in the
  /// dictionary's own order. "Ccy" has the fields `CcyID` (int32), `Ccy` and `Name` (text), `CcyType`
  /// (int16); a host's own one may lack `Name`. Never null; an unknown dictionary, a filter that does not
  /// parse and a failing database are failures.
  [[nodiscard]] virtual std::shared_ptr<RecordSet> dic_GetDicRecByFilter(const std::string& name,
                                                                         const std::string& filter) = 0;
};

}  // namespace ferrowind::platform
