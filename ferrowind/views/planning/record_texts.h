#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ferrowind/platform/toolkit/grid.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind {

/// What an operator may look for in the records of a grid: the texts of the fields that its columns show.
class RecordTexts {
 public:
  /// What no field says by itself.
  struct Names {
    /// All that a date may be called.
    std::function<std::string(const platform::Date& date)> of_date;
    /// Something more of a record; empty for nothing.
    std::function<std::string(const platform::RecordSet& records, platform::RecordSet::Bookmark record)>
        more = {};
  };

  /// `grid` and `names` must outlive this object. Its columns are those of now; their value lists must stay.
  RecordTexts(platform::Grid& grid, const platform::RecordSet& records, const Names& names);

  /// Of a record of the record set that the object was made for.
  [[nodiscard]] std::string Of(const platform::RecordSet& records,
                               platform::RecordSet::Bookmark record) const;

 private:
  struct Column {
    std::size_t field;
    /// Null for none.
    const platform::GridValueList* names;
  };

  const Names& names_;
  std::vector<Column> columns_;
};

}  // namespace ferrowind
