#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/events/signal.h"
#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/platform/values/record_set.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind {

/// One column of a column map: which record-set field feeds a grid column, under which caption, and whether
/// it shows.
///
/// A new one has empty texts, is hidden and not constant. Text is UTF-8.
///
/// Caption, visibility and function reach a window that is open at once. Field name and local name are what
/// a window begins with: change them before `Calendar::Show`.
class FERROWIND_EXPORT GridField {
 public:
  /// Computes what the column shows in a row of the window's record set, which stands on that row. It has the
  /// fields that the procedure gave: `CldGetMain` for days, `CldAllInfo` for rules.
  using CellFunction = std::function<platform::Value(const platform::RecordSet& row)>;
  /// Asked for the position of the column named `TmpLocalName`; a handler that knows it stores it in
  /// `TmpIndex`.
  using GetIndexHandler = std::function<void(std::string& TmpLocalName, std::int32_t& TmpIndex)>;

  ///@{
  /// The field of the record set that fills the column; one that it does not have leaves the cells empty.
  [[nodiscard]] const std::string& FieldName() const { return field_name_; }
  void SetFieldName(const std::string& field_name) { field_name_ = field_name; }
  ///@}
  ///@{
  /// Whether the column is shown; what is false here no stored layout shows.
  [[nodiscard]] bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  ///@}
  ///@{
  /// The column's title.
  [[nodiscard]] const std::string& Caption() const { return caption_; }
  void SetCaption(const std::string& caption);
  ///@}

  /// The component's own name of the column, by which the windows find it.
  [[nodiscard]] const std::string& LocalName() const { return local_name_; }
  /// On a constant column the failure 0x80040258, "It's constant field". Renaming does not change the key
  /// under which a map holds the column.
  void SetLocalName(const std::string& local_name);

  /// Lets the host fill the column, which then shows what `function` computes instead of a field, and is
  /// sorted and grouped by it; an empty one takes that back. Called on the thread of the windows whenever a
  /// cell is painted or sorted first, so it must be quick; what it throws, and an object that it returns,
  /// leaves the cell empty. It must not use the control. On a constant column the failure 0x80040258, "It's
  /// constant field".
  void SetFunction(CellFunction function);
  /// Empty for a column that a field fills.
  [[nodiscard]] const CellFunction& Function() const { return function_; }

  /// The position that a handler of `OnGetIndex` gives, 0 without one. The maps answer for none of their
  /// columns, so it is 0 for every column of a map; this is intended.
  [[nodiscard]] std::int32_t Index() const;
  /// True for a column that the component relies on.
  [[nodiscard]] bool IsConst() const { return is_const_; }

  /// Has `handler` asked by `Index`, until the subscription is dropped.
  [[nodiscard]] platform::Subscription OnGetIndex(GetIndexHandler handler);
  /// Caption, visibility or function have been set.
  [[nodiscard]] platform::Subscription OnChange(std::function<void()> handler);

 private:
  friend class GridFieldConstancy;

  void RequireNotConstant() const;

  std::string field_name_;
  std::string caption_;
  std::string local_name_;
  bool visible_ = false;
  bool is_const_ = false;
  CellFunction function_;
  platform::Signal<std::string&, std::int32_t&> get_index_;
  platform::Signal<> changed_;
};

}  // namespace ferrowind
