#pragma once

#include <functional>
#include <vector>

#include "ferrowind/adapters/win32/base/windows_api.h"
#include "ferrowind/adapters/win32/forms/form_layout.h"

namespace ferrowind::win32 {

class ControlWindow;
class Win32Holder;

/// A form's layout with the controls that stand in it. What is hidden takes no room.
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
  [[nodiscard]] SIZE NeededSize(UINT dots_per_inch) const;
  void Arrange(const RECT& room, UINT dots_per_inch);

 private:
  struct Node {
    LayoutDirection direction = LayoutDirection::kColumn;
    /// What it takes of the room that is left over: its stretch, until the operator moves a splitter.
    double share = 0;
    int margin = 0;
    /// Null for a box.
    ControlWindow* control = nullptr;
    Win32Holder* holder = nullptr;
    std::vector<Node> nodes;
    /// Along the direction of the node around it, as placed last.
    LONG length = 0;
  };

  [[nodiscard]] static Node MakeNode(const LayoutPlace& place, ControlWindow* container, const Make& make);
  void LetSplittersBeDragged(Node& node);
  void Drag(Node& splitter, POINT from, POINT to);
  [[nodiscard]] static bool IsShown(const Node& node);
  [[nodiscard]] static LONG Gap(const Node& node, UINT dots_per_inch);
  [[nodiscard]] static RECT MarginsOf(const Node& node, UINT dots_per_inch);
  [[nodiscard]] static SIZE NeededBy(const Node& node, UINT dots_per_inch);
  static void Put(Node& node, const RECT& area, UINT dots_per_inch);
  static void PutInside(Node& node, const RECT& inside, UINT dots_per_inch);

  Node root_;
};

}  // namespace ferrowind::win32
