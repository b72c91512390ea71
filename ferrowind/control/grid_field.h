#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "ferrowind/platform/events/signal.h"
#include "ferrowind/platform/events/subscription.h"

namespace ferrowind {

/// One column of a column map: which record-set field feeds a grid column, under which caption, and whether
/// it shows.
///
/// A new one has empty texts, is hidden and not constant. Text is UTF-8.
class GridField {
 public:
  /// Asked for the position of the column named `TmpLocalName`; a handler that knows it stores it in
  /// `TmpIndex`.
  using GetIndexHandler = std::function<void(std::string& TmpLocalName, std::int32_t& TmpIndex)>;

  [[nodiscard]] const std::string& FieldName() const { return field_name_; }
  void SetFieldName(const std::string& field_name) { field_name_ = field_name; }
  [[nodiscard]] bool Visible() const { return visible_; }
  void SetVisible(bool visible) { visible_ = visible; }
  [[nodiscard]] const std::string& Caption() const { return caption_; }
  void SetCaption(const std::string& caption) { caption_ = caption; }

  /// The component's own name of the column, by which the windows find it.
  [[nodiscard]] const std::string& LocalName() const { return local_name_; }
  /// On a constant column the failure 0x80040258, "It's constant field". Renaming does not change the key
  /// under which a map holds the column.
  void SetLocalName(const std::string& local_name);

  /// The position that a handler of `OnGetIndex` gives, 0 without one. The maps answer for none of their
  /// columns, so it is 0 for every column of a map; this is intended.
  [[nodiscard]] std::int32_t Index() const;
  /// True for a column that the component relies on.
  [[nodiscard]] bool IsConst() const { return is_const_; }

  [[nodiscard]] platform::Subscription OnGetIndex(GetIndexHandler handler);

 private:
  friend class GridFieldConstancy;

  std::string field_name_;
  std::string caption_;
  std::string local_name_;
  bool visible_ = false;
  bool is_const_ = false;
  platform::Signal<std::string&, std::int32_t&> get_index_;
};

}  // namespace ferrowind
