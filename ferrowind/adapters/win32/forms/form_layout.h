#pragma once

#include <map>
#include <string>
#include <vector>

namespace ferrowind::win32 {

/// How what stands in a place is put side by side.
enum class LayoutDirection { kRow, kColumn };

/// A place of a form: a control, or a box without a window of its own; what it holds stands in it in order.
struct LayoutPlace {
  /// The control's name; "" for a box.
  std::string name = {};
  LayoutDirection direction = LayoutDirection::kColumn;
  /// Its share of the room that is left over along the direction of the place that it stands in; 0 for none.
  int stretch = 0;
  /// What assistive programs call it, in English; "" for a control whose own text or whose label says it.
  const char* spoken_name = "";
  ///@{
  /// The pixels around what it holds, and between that; designed for 96 to the inch.
  int margin = 0;
  int gap = 6;
  ///@}
  std::vector<LayoutPlace> places = {};
};

/// The places of the forms that a toolkit makes, by form name.
class FormLayouts {
 public:
  /// A layout of the same name is replaced.
  void Add(const std::string& form_name, LayoutPlace layout) { layouts_[form_name] = std::move(layout); }
  /// Null when there is no layout of that name.
  [[nodiscard]] const LayoutPlace* Find(const std::string& form_name) const {
    const auto found = layouts_.find(form_name);
    return found == layouts_.end() ? nullptr : &found->second;
  }

 private:
  std::map<std::string, LayoutPlace> layouts_;
};

/// The layouts of the component's own forms.
[[nodiscard]] FormLayouts ComponentLayouts();

}  // namespace ferrowind::win32
