#pragma once

#include <functional>
#include <vector>

#include "ferrowind/adapters/win32/base/windows_api.h"
#include "ferrowind/adapters/win32/forms/form_layout.h"

namespace ferrowind::win32 {

class ControlWindow;
class Win32Holder;

/// A form's layout with the controls that stand in it. What is hidden takes no room. What stands behind the
/// labels of rows begins at one place in the whole form.
class PlacedLayout {
 public:
  /// Makes the control of that place in that window; null for one that the form does not have, which is left
  /// out.
  using Make = std::function<ControlWindow*(const LayoutPlace& place, ControlWindow* container)>;

  /// Calls `make` for each named place, those around others before them.
  PlacedLayout(const LayoutPlace& layout, const Make& make);
  PlacedLayout(const PlacedLayout&) = delete;
  PlacedLayout& operator=(const PlacedLayout&) = delete;

  /// In pixels, what everything that is shown needs.
  [[nodiscard]] SIZE NeededSize(UINT dots_per_inch);
  void Arrange(const RECT& room, UINT dots_per_inch);

 private:
  struct Node {
    LayoutDirection direction = LayoutDirection::kColumn;
    /// What it takes of the room that is left over: its stretch, until the operator moves a splitter.
    double share = 0;
    int margin = 0;
    int gap = 0;
    /// Null for a box.
    ControlWindow* control = nullptr;
    Win32Holder* holder = nullptr;
    std::vector<Node> nodes = {};
    /// Along the direction of the node around it, as placed last.
    LONG length = 0;
    /// As wide as it is at least, whatever it needs.
    LONG least_width = 0;
  };

  [[nodiscard]] static Node MakeNode(const LayoutPlace& place, ControlWindow* container, const Make& make);
  void LetSplittersBeDragged(Node& node);
  void Drag(Node& splitter, POINT from, POINT to);
  void LineUpLabels(UINT dots_per_inch);
  /// Calls `found` with each label before a row's fields, hidden ones too, and with where it begins.
  template <typename Found>
  static void FindRowLabels(Node& node, LONG left, UINT dots_per_inch, const Found& found);
  [[nodiscard]] static bool IsShown(const Node& node);
  [[nodiscard]] static LONG Gap(const Node& node, UINT dots_per_inch);
  [[nodiscard]] static RECT MarginsOf(const Node& node, UINT dots_per_inch);
  [[nodiscard]] static SIZE NeededBy(const Node& node, UINT dots_per_inch);
  static void Put(Node& node, const RECT& area, UINT dots_per_inch);
  static void PutInside(Node& node, const RECT& inside, UINT dots_per_inch);

  Node root_;
};

}  // namespace ferrowind::win32
