#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tests/contract/toolkit/toolkit_contract.h"

namespace ferrowind::contract {

/// The contract form's grid with three columns: `Type` (field `TID1`), `Date` (field `ODate`) and `Name`
/// (field `Name1`).
class GridContract : public ToolkitContract {
 protected:
  GridContract();

  platform::GridColumn& AddColumn(const std::string& key, const std::string& field);
  /// Attaches `SampleRecords()` with the columns held and bound.
  void ShowSample();
  /// Five records; by bookmark their types are 2, 1, 3, 1, 2 and their names d, b, none, a, c.
  [[nodiscard]] static std::shared_ptr<platform::RecordSet> SampleRecords();
  void Attach(std::shared_ptr<platform::RecordSet> records);
  /// The bookmarks of all rows on show, 0 for group rows.
  [[nodiscard]] std::vector<platform::RecordSet::Bookmark> Bookmarks() const;
  [[nodiscard]] std::int16_t IndexOf(const std::string& key);

  platform::Grid& grid = The<platform::Grid>("gexRows");
};

}  // namespace ferrowind::contract
