#include "ferrowind/views/common/value_list.h"

#include "ferrowind/data/action_scope.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/data/runtime_failure.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind {

bool FillColumnValueList(platform::Grid& grid, const std::string& column_key, platform::RecordSet& records,
                         const std::string& text_field, const std::string& value_field,
                         platform::ActionObserver* observer) {
  try {
    if (records.Bof() && records.Eof()) return false;
    platform::GridColumn& column = grid.ColumnByKey(column_key);
    // A second call must not append the pairs a second time.
    if (column.HasValueList()) return true;
    column.SetHasValueList(true);
    for (; !records.Eof(); records.MoveNext()) {
      column.ValueList()->Add(records[value_field], platform::ToText(records[text_field]));
    }
    return true;
  } catch (...) {
    const platform::Failure failure = FailureBeingHandled();
    TellFailedRead(observer);
    SharedServicesObject().ReportError(failure.Number(), failure.Description());
    return false;
  }
}

std::string ValueListText(platform::Grid& grid, const std::string& column_key, std::int32_t value) {
  const platform::GridValueList* list = grid.ColumnByKey(column_key).ValueList();
  return list == nullptr ? std::string() : list->TextOf(value);
}

}  // namespace ferrowind
