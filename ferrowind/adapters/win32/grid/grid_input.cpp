// What the operator does in a grid by mouse and keyboard.
#include <algorithm>
#include <cstdlib>
#include <optional>
#include <utility>

#include "ferrowind/adapters/win32/grid/grid.h"
#include "ferrowind/adapters/win32/grid/grid_menu.h"

namespace ferrowind::win32 {
namespace {

using Part = GridHit::Part;

bool IsHeld(int modifier) { return GetKeyState(modifier) < 0; }

POINT PlaceOf(LPARAM l_param) {
  return {static_cast<short>(LOWORD(l_param)), static_cast<short>(HIWORD(l_param))};
}

}  // namespace

LRESULT Win32Grid::OnMessage(UINT message, WPARAM w_param, LPARAM l_param) {
  switch (message) {
    case WM_PAINT:
      Paint();
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_SIZE:
    case WM_SETFONT: {
      const LRESULT result = ControlWindow::OnMessage(message, w_param, l_param);
      Resized();
      return result;
    }
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_ENABLE:
      Repaint();
      break;
    case WM_VSCROLL:
      Scroll(SB_VERT, LOWORD(w_param));
      return 0;
    case WM_HSCROLL:
      Scroll(SB_HORZ, LOWORD(w_param));
      return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_LBUTTONUP:
    case WM_MOUSEMOVE:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
      return OnMouse(message, w_param, PlaceOf(l_param));
    case WM_CAPTURECHANGED:
      press_.reset();
      return 0;
    case WM_MOUSEWHEEL: {
      constexpr int kRowsPerStep = 3;
      const int rows = wheel_.Take(w_param) * kRowsPerStep;
      ScrollTo(static_cast<std::uint32_t>(std::max(0, static_cast<int>(geometry_.FirstRow()) - rows)));
      return 0;
    }
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      if (OnKey(PressOf(w_param))) return 0;
      break;
    default:
      break;
  }
  return ControlWindow::OnMessage(message, w_param, l_param);
}

LRESULT Win32Grid::OnMouse(UINT message, WPARAM /*w_param*/, POINT place) {
  switch (message) {
    case WM_LBUTTONDOWN:
      TakeFocus();
      PressAt(place);
      break;
    case WM_LBUTTONDBLCLK: {
      const GridHit hit = geometry_.HitAt(place);
      if (hit.part == Part::kRow && !IsRecordRow(hit.row)) {
        ToggleGroup(hit.row);
      } else {
        PressAt(place);
      }
      break;
    }
    case WM_MOUSEMOVE:
      MoveTo(place);
      break;
    case WM_LBUTTONUP:
      ReleaseAt(place);
      break;
    case WM_RBUTTONDOWN: {
      TakeFocus();
      const GridHit hit = geometry_.HitAt(place);
      if (hit.part != Part::kRow) break;
      selection_.TakeForMenu(hit.row);
      Repaint();
      NoteCurrentRow();
      break;
    }
    case WM_RBUTTONUP: {
      const GridHit hit = geometry_.HitAt(place);
      if (hit.part == Part::kRow || hit.part == Part::kBelowRows) {
        RaiseEvent(mouse_up_, platform::kRightButton);
      } else if (hit.part == Part::kHeader || hit.part == Part::kChip) {
        POINT screen = place;
        ClientToScreen(Handle(), &screen);
        const std::int16_t column =
            hit.part == Part::kHeader ? hit.column : content_.GroupKeys().Item(hit.position)->ColIndex;
        ShowHeaderMenu(column, screen);
      }
      break;
    }
    default:
      break;
  }
  return 0;
}

void Win32Grid::PressAt(POINT place) {
  const GridHit hit = geometry_.HitAt(place);
  press_ = Press{hit, place};
  SetCapture(Handle());
  if (hit.part != Part::kRow) return;
  const auto shown = content_.Rows().RowAt(hit.row);
  const bool is_on_mark =
      shown.is_group && place.x + geometry_.ScrolledX() < geometry_.IndentOf(shown.group.level + 1);
  if (is_on_mark) {
    ToggleGroup(hit.row);
  } else {
    ClickRow(hit.row);
  }
}

void Win32Grid::ClickRow(std::uint32_t row) {
  if (IsHeld(VK_SHIFT)) {
    selection_.ExtendTo(row);
  } else if (IsHeld(VK_CONTROL)) {
    selection_.Toggle(row);
  } else {
    selection_.ChooseOnly(row);
  }
  Repaint();
  NoteCurrentRow();
}

void Win32Grid::ToggleGroup(std::uint32_t row) {
  const auto group = content_.Rows().RowAt(row).group;
  RearrangeRows([&] { content_.Rows().SetExpanded(group, !content_.Rows().Groups().IsExpanded(group)); });
}

void Win32Grid::MoveTo(POINT place) {
  const Part part = press_ ? press_->hit.part : geometry_.HitAt(place).part;
  if (part == Part::kHeaderEdge) SetCursor(LoadCursorW(nullptr, MAKEINTRESOURCEW(32644)));
  if (!press_) return;
  if (part == Part::kHeaderEdge) {
    const std::int16_t column = press_->hit.column;
    geometry_.SetWidth(column, place.x - geometry_.HeaderArea(column).left);
    settled_widths_.insert(column);
    Resized();
    return;
  }
  if (part != Part::kHeader && part != Part::kChip) return;
  press_->is_drag = press_->is_drag || std::abs(place.x - press_->place.x) > GetSystemMetrics(SM_CXDRAG) ||
                    std::abs(place.y - press_->place.y) > GetSystemMetrics(SM_CYDRAG);
  if (press_->is_drag) SetCursor(LoadCursorW(nullptr, MAKEINTRESOURCEW(32646)));
}

void Win32Grid::ReleaseAt(POINT place) {
  if (!press_) return;
  const Press press = *std::exchange(press_, std::nullopt);
  ReleaseCapture();
  switch (press.hit.part) {
    case Part::kRow:
    case Part::kBelowRows:
      RaiseEvent(mouse_up_, platform::kLeftButton);
      break;
    case Part::kHeader:
    case Part::kChip:
      DropAt(press, place);
      break;
    default:
      break;
  }
}

void Win32Grid::DropAt(const Press& press, POINT place) {
  const Part under = geometry_.HitAt(place).part;
  const bool is_on_box = under == Part::kGroupBox || under == Part::kChip;
  const bool is_chip = press.hit.part == Part::kChip;
  if (!press.is_drag) {
    if (is_chip) {
      operations_.TurnGroupOrder(press.hit.position);
    } else if (IsHeld(VK_SHIFT)) {
      operations_.AddToSort(press.hit.column);
    } else {
      RaiseEvent(header_clicked_, content_.Columns().At(press.hit.column));
    }
    return;
  }
  if (is_on_box) {
    const std::int16_t column =
        is_chip ? content_.GroupKeys().Item(press.hit.position)->ColIndex : press.hit.column;
    operations_.GroupBy(column, geometry_.ChipPositionAt(place.x));
  } else if (is_chip) {
    operations_.Ungroup(press.hit.position);
  } else if (under == Part::kHeader || under == Part::kHeaderEdge) {
    geometry_.MoveTo(press.hit.column, geometry_.PlaceAt(place.x));
    Repaint();
  }
}

bool Win32Grid::OnKey(const KeyPress& press) {
  if (press.has_alt && press.key == VK_DOWN && !geometry_.Order().empty()) {
    const std::int16_t column = geometry_.Order().front();
    const RECT header = geometry_.HeaderArea(column);
    POINT screen{std::max<LONG>(header.left, 0), header.bottom};
    ClientToScreen(Handle(), &screen);
    ShowHeaderMenu(column, screen);
    return true;
  }
  if (press.has_control && press.key == 'C') {
    CopyRows(true);
    return true;
  }
  if (press.key == VK_APPS || (press.has_shift && press.key == VK_F10)) {
    AskForMenuByKey();
    return true;
  }
  const std::uint32_t count = content_.Rows().RowCount();
  if (count == 0 || press.has_alt) return false;
  const std::uint32_t now = selection_.Current().value_or(0);
  const bool has_current = selection_.Current().has_value();
  const std::uint32_t page = geometry_.RowsOnPage();
  switch (press.key) {
    case VK_DOWN:
      GoTo(has_current ? std::min(now + 1, count - 1) : 0, press);
      return true;
    case VK_UP:
      GoTo(now == 0 ? 0 : now - 1, press);
      return true;
    case VK_NEXT:
      GoTo(std::min(now + page, count - 1), press);
      return true;
    case VK_PRIOR:
      GoTo(now > page ? now - page : 0, press);
      return true;
    case VK_HOME:
      GoTo(0, press);
      return true;
    case VK_END:
      GoTo(count - 1, press);
      return true;
    case VK_LEFT:
    case VK_RIGHT: {
      if (!has_current || IsRecordRow(now)) return false;
      const bool is_expanded = content_.Rows().Groups().IsExpanded(content_.Rows().RowAt(now).group);
      if (is_expanded == (press.key == VK_LEFT)) ToggleGroup(now);
      return true;
    }
    case VK_SPACE:
      if (press.has_control && has_current) {
        selection_.Toggle(now);
        Repaint();
      }
      return true;
    case 'A':
      if (!press.has_control || !MultiSelect()) return false;
      selection_.ChooseOnly(0);
      selection_.ExtendTo(count - 1);
      Repaint();
      NoteCurrentRow();
      return true;
    default:
      return false;
  }
}

void Win32Grid::GoTo(std::uint32_t row, const KeyPress& press) {
  if (press.has_shift) {
    selection_.ExtendTo(row);
  } else {
    selection_.ChooseOnly(row);
  }
  BringIntoSight(row);
  Repaint();
  NoteCurrentRow();
}

void Win32Grid::AskForMenuByKey() {
  POINT screen{0, geometry_.RowsArea().top};
  if (selection_.Current()) {
    BringIntoSight(*selection_.Current());
    screen.y = geometry_.RowArea(*selection_.Current()).bottom;
  }
  ClientToScreen(Handle(), &screen);
  Host().PlaceMenus(screen);
  RaiseEvent(mouse_up_, platform::kRightButton);
  Host().PlaceMenus(std::nullopt);
}

void Win32Grid::ShowHeaderMenu(std::int16_t column, POINT screen) {
  switch (AskInHeaderMenu(Handle(), Words(), screen, content_, column, GroupByBoxVisible())) {
    case HeaderCommand::kNone:
      break;
    case HeaderCommand::kSortAscending:
      operations_.Sort(column, platform::kSortAscending);
      break;
    case HeaderCommand::kSortDescending:
      operations_.Sort(column, platform::kSortDescending);
      break;
    case HeaderCommand::kNoSort:
      operations_.Sort(column, platform::kSortNone);
      break;
    case HeaderCommand::kGroup:
      operations_.GroupBy(column, 0);
      break;
    case HeaderCommand::kUngroup:
      operations_.Ungroup(content_.GroupKeys().PositionOf(column));
      break;
    case HeaderCommand::kExpandAll:
      ExpandAllGroups();
      break;
    case HeaderCommand::kCollapseAll:
      CollapseAllGroups();
      break;
    case HeaderCommand::kToggleBox:
      SetGroupByBoxVisible(!GroupByBoxVisible());
      RaiseEvent(group_by_box_changed_, GroupByBoxVisible());
      break;
  }
}

}  // namespace ferrowind::win32
