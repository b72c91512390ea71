#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "ferrowind/control/grid_field.h"
#include "ferrowind/export.h"
#include "ferrowind/platform/values/keyed_collection.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind {

/// A column map: the columns of a grid, in two ordered lists of the same columns, one keyed by local name and
/// one by field name.
///
/// Keys are compared without regard to case; positions are 1-based and follow the order of adding. An index
/// is a key when it is text and a position when it is a number. Failures: 5 for an unknown key, 9 for a
/// position that is none, 457 for a key in use, 13 for an index that is neither text nor number, and
/// 0x80040258 where said.
class FERROWIND_EXPORT GridFields {
 public:
  /// Adds a column, not constant, to the local-name list and then to the field-name list. A local name in use
  /// changes nothing; a field name in use leaves the column in the local-name list only.
  void Add(const std::string& LocalName, const std::string& FieldName,
           const std::string& Caption = "None name", const bool& Visible = true);

  /// The column at that local name, or at that position of the local-name list; never null, shared with the
  /// map.
  [[nodiscard]] std::shared_ptr<GridField> LocalNames(const platform::Value& LocalIndex) const;
  /// The column at that field name, or at that position of the field-name list; never null, shared with the
  /// map.
  [[nodiscard]] std::shared_ptr<GridField> Fields(const platform::Value& FieldIndex) const;

  /// Removes a constant column from the local-name list, and then what stands under the same index once more:
  /// with a key the second removal fails after the first took effect, with a position it takes the column
  /// that moved there. A column that is not constant is the failure "It's constant header" and stays. The
  /// field-name list is not touched. The reversed test and the second removal are intended.
  void RemoveByLocalIndex(const platform::Value& LocalIndex);
  /// Removes a constant column from the field-name list only, once; the test is reversed as above.
  void RemoveByFieldIndex(const platform::Value& FieldIndex);

  /// Removes the columns in front of the first constant one, in each list for itself.
  void Clear();

  /// The number of columns in the local-name list.
  [[nodiscard]] std::int32_t Count() const { return local_names_.Count(); }

  /// Stores the position of the first column whose local name is exactly `TmpLocalName` in `TmpIndex`;
  /// without one `TmpIndex` stays. Not subscribed to the columns of the map, by intention.
  void EventGridField_GetIndex(std::string& TmpLocalName, std::int32_t& TmpIndex) const;

 private:
  using Columns = platform::KeyedCollection<std::shared_ptr<GridField>>;

  Columns field_names_;
  Columns local_names_;
};

}  // namespace ferrowind
