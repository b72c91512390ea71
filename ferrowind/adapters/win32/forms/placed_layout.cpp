#include "ferrowind/adapters/win32/forms/placed_layout.h"

#include <algorithm>

#include "ferrowind/adapters/win32/base/twips.h"
#include "ferrowind/adapters/win32/controls/control_window.h"
#include "ferrowind/adapters/win32/controls/holder.h"
#include "ferrowind/adapters/win32/controls/label.h"

namespace ferrowind::win32 {
namespace {

bool IsRow(LayoutDirection direction) { return direction == LayoutDirection::kRow; }

LONG Along(LayoutDirection direction, const SIZE& size) { return IsRow(direction) ? size.cx : size.cy; }

RECT Without(const RECT& area, const RECT& margins) {
  return {area.left + margins.left, area.top + margins.top,
          std::max(area.left + margins.left, area.right - margins.right),
          std::max(area.top + margins.top, area.bottom - margins.bottom)};
}

}  // namespace

PlacedLayout::PlacedLayout(const LayoutPlace& layout, const Make& make)
    : root_(MakeNode(layout, nullptr, make)) {
  LetSplittersBeDragged(root_);
}

PlacedLayout::Node PlacedLayout::MakeNode(const LayoutPlace& place, ControlWindow* container,
                                          const Make& make) {
  Node node{.direction = place.direction,
            .share = static_cast<double>(place.stretch),
            .margin = place.margin,
            .gap = place.gap};
  if (!place.name.empty()) node.control = make(place, container);
  node.holder = dynamic_cast<Win32Holder*>(node.control);
  for (const LayoutPlace& inside : place.places) {
    Node made = MakeNode(inside, node.control != nullptr ? node.control : container, make);
    const bool is_left_out = made.control == nullptr && made.nodes.empty() && !inside.name.empty();
    if (!is_left_out) node.nodes.push_back(std::move(made));
  }
  return node;
}

void PlacedLayout::LetSplittersBeDragged(Node& node) {
  if (node.holder != nullptr && node.holder->HolderKind() == Win32Holder::Kind::kSplitter)
    node.holder->SetDrag([this, &node](POINT from, POINT to) { Drag(node, from, to); });
  for (Node& inside : node.nodes) LetSplittersBeDragged(inside);
}

void PlacedLayout::Drag(Node& splitter, POINT from, POINT to) {
  const bool is_row = IsRow(splitter.direction);
  LONG end = 0;
  const LONG moved = is_row ? to.x - from.x : to.y - from.y;
  const UINT dpi = splitter.control->DotsPerInch();
  for (std::size_t i = 0; i + 1 < splitter.nodes.size(); ++i) {
    Node& before = splitter.nodes[i];
    Node& behind = splitter.nodes[i + 1];
    end += before.length + Gap(splitter, dpi);
    if ((is_row ? from.x : from.y) > end) continue;
    for (Node& node : splitter.nodes) node.share = static_cast<double>(node.length);
    before.share = std::max<double>(1, before.share + static_cast<double>(moved));
    behind.share = std::max<double>(1, behind.share - static_cast<double>(moved));
    RECT inside{};
    GetClientRect(splitter.control->Handle(), &inside);
    PutInside(splitter, Without(inside, MarginsOf(splitter, dpi)), dpi);
    return;
  }
}

bool PlacedLayout::IsShown(const Node& node) {
  if (node.control != nullptr) return node.control->IsOwnVisible();
  // An empty box is there for the room that it takes.
  return node.nodes.empty() || std::any_of(node.nodes.begin(), node.nodes.end(), IsShown);
}

LONG PlacedLayout::Gap(const Node& node, UINT dots_per_inch) { return Scaled(node.gap, dots_per_inch); }

RECT PlacedLayout::MarginsOf(const Node& node, UINT dots_per_inch) {
  RECT margins = node.holder != nullptr ? node.holder->Margins() : RECT{};
  const LONG margin = Scaled(node.margin, dots_per_inch);
  margins.left += margin;
  margins.top += margin;
  margins.right += margin;
  margins.bottom += margin;
  return margins;
}

SIZE PlacedLayout::NeededBy(const Node& node, UINT dots_per_inch) {
  const RECT margins = MarginsOf(node, dots_per_inch);
  SIZE inside{};
  LONG gap = 0;
  for (const Node& part : node.nodes) {
    if (!IsShown(part)) continue;
    const SIZE size = NeededBy(part, dots_per_inch);
    if (IsRow(node.direction)) {
      inside = {inside.cx + gap + size.cx, std::max(inside.cy, size.cy)};
    } else {
      inside = {std::max(inside.cx, size.cx), inside.cy + gap + size.cy};
    }
    gap = Gap(node, dots_per_inch);
  }
  const SIZE own = node.control != nullptr ? node.control->WantedSize() : SIZE{};
  return {std::max({own.cx, inside.cx + margins.left + margins.right, node.least_width}),
          std::max(own.cy, inside.cy + margins.top + margins.bottom)};
}

template <typename Found>
void PlacedLayout::FindRowLabels(Node& node, LONG left, UINT dots_per_inch, const Found& found) {
  left += MarginsOf(node, dots_per_inch).left;
  const auto is_label = [](const Node& part) {
    return dynamic_cast<const Win32Label*>(part.control) != nullptr;
  };
  bool leads = IsRow(node.direction);
  for (Node& part : node.nodes) {
    leads = leads && is_label(part);
    if (leads) found(part, left);
    // What stands beside others begins where those leave it.
    if (!IsRow(node.direction)) FindRowLabels(part, left, dots_per_inch, found);
  }
}

void PlacedLayout::LineUpLabels(UINT dots_per_inch) {
  LONG end = 0;
  FindRowLabels(root_, 0, dots_per_inch,
                [&](Node& label, LONG left) { end = std::max(end, left + label.control->WantedSize().cx); });
  FindRowLabels(root_, 0, dots_per_inch, [end](Node& label, LONG left) { label.least_width = end - left; });
}

SIZE PlacedLayout::NeededSize(UINT dots_per_inch) {
  LineUpLabels(dots_per_inch);
  return NeededBy(root_, dots_per_inch);
}

void PlacedLayout::Arrange(const RECT& room, UINT dots_per_inch) {
  LineUpLabels(dots_per_inch);
  Put(root_, room, dots_per_inch);
}

void PlacedLayout::Put(Node& node, const RECT& area, UINT dots_per_inch) {
  RECT inside = area;
  if (node.control != nullptr) {
    node.control->Place(area);
    GetClientRect(node.control->Handle(), &inside);
  }
  PutInside(node, Without(inside, MarginsOf(node, dots_per_inch)), dots_per_inch);
}

void PlacedLayout::PutInside(Node& node, const RECT& inside, UINT dots_per_inch) {
  const bool is_row = IsRow(node.direction);
  const LONG gap = Gap(node, dots_per_inch);
  LONG left_over = (is_row ? inside.right - inside.left : inside.bottom - inside.top) + gap;
  double shares = 0;
  for (const Node& part : node.nodes) {
    if (!IsShown(part)) continue;
    left_over -= gap;
    shares += part.share;
    if (part.share == 0) left_over -= Along(node.direction, NeededBy(part, dots_per_inch));
  }
  LONG place = is_row ? inside.left : inside.top;
  for (Node& part : node.nodes) {
    if (!IsShown(part)) continue;
    const SIZE needed = NeededBy(part, dots_per_inch);
    part.length = part.share == 0 ? Along(node.direction, needed)
                                  : static_cast<LONG>(std::max<LONG>(left_over, 0) * part.share / shares);
    RECT area = inside;
    if (is_row) {
      area.left = place;
      area.right = place + part.length;
      const bool fills = part.control == nullptr || part.control->FillsHeight();
      if (!fills) {
        area.top += std::max<LONG>(0, (area.bottom - area.top - needed.cy) / 2);
        area.bottom = area.top + needed.cy;
      }
    } else {
      area.top = place;
      area.bottom = place + part.length;
    }
    Put(part, area, dots_per_inch);
    place += part.length + gap;
  }
}

}  // namespace ferrowind::win32
