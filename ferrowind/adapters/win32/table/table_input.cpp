// What the operator does in a table by mouse and keyboard.
#include <algorithm>
#include <utility>

#include "ferrowind/adapters/win32/base/handles.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/controls/marked_caption.h"
#include "ferrowind/adapters/win32/table/table.h"

namespace ferrowind::win32 {
namespace {

using Part = TableHit::Part;

bool IsHeld(int modifier) { return GetKeyState(modifier) < 0; }

POINT PlaceOf(LPARAM l_param) {
  return {static_cast<short>(LOWORD(l_param)), static_cast<short>(HIWORD(l_param))};
}

}  // namespace

LRESULT Win32Table::OnMessage(UINT message, WPARAM w_param, LPARAM l_param) {
  switch (message) {
    case WM_PAINT:
      Paint();
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_SETFONT: {
      const LRESULT result = ControlWindow::OnMessage(message, w_param, l_param);
      Resized();
      MeasureColumns(true);
      return result;
    }
    case WM_SIZE: {
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
    case WM_MOUSEWHEEL: {
      constexpr int kRowsPerStep = 3;
      const int rows = wheel_.Take(w_param) * kRowsPerStep;
      ScrollTo(static_cast<std::size_t>(std::max(0, static_cast<int>(geometry_.FirstRow()) - rows)));
      return 0;
    }
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_LBUTTONUP:
    case WM_MOUSEMOVE:
    case WM_RBUTTONUP:
      if (OnMouse(message, PlaceOf(l_param))) return 0;
      break;
    case WM_CAPTURECHANGED:
      edge_drag_.reset();
      pressed_header_.reset();
      return 0;
    default:
      break;
  }
  // The form comes first: it may have a use for keys and letters of its own.
  const bool is_key = message == WM_KEYDOWN || message == WM_SYSKEYDOWN;
  if ((is_key || message == WM_CHAR) && Host().TakesKey(*this, message, w_param, l_param)) return 0;
  if (is_key && OnKey(PressOf(w_param))) return 0;
  // A blank that begins nothing has checked a box.
  const bool is_letter = w_param > L' ' || (w_param == L' ' && type_ahead_.IsTyping());
  if (message == WM_CHAR && is_letter && RowCount() > 0) {
    const auto row =
        type_ahead_.Type(static_cast<wchar_t>(w_param), selection_.Current().value_or(0), RowCount(),
                         [this](std::size_t place) { return ToWide(content_.CellAt(place, 0).text); });
    if (row) GoTo(*row);
    return 0;
  }
  if (is_key || message == WM_CHAR) return NativeWindow::OnMessage(message, w_param, l_param);
  return ControlWindow::OnMessage(message, w_param, l_param);
}

bool Win32Table::OnBox(const TableHit& hit, POINT place) const {
  if (hit.part != Part::kCell || hit.column != 0 || !content_.RowAt(hit.row).checked) return false;
  RECT box = geometry_.BoxArea(hit.row);
  // As much around it as makes it easy to hit.
  InflateRect(&box, geometry_.Pad(), geometry_.Pad());
  return PtInRect(&box, place) != 0;
}

bool Win32Table::OnMouse(UINT message, POINT place) {
  const TableHit hit = geometry_.HitAt(place);
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      TakeFocus();
      PressAt(place, message == WM_LBUTTONDBLCLK);
      return true;
    case WM_MOUSEMOVE:
      if (edge_drag_ || hit.part == Part::kHeaderEdge)
        SetCursor(LoadCursorW(nullptr, MAKEINTRESOURCEW(32644)));
      if (edge_drag_) {
        constexpr LONG kLeast = 16;
        const LONG width = std::max(kLeast, place.x - edge_drag_->left);
        wishes_[edge_drag_->column].settled =
            MulDiv(static_cast<int>(width), USER_DEFAULT_SCREEN_DPI, static_cast<int>(DotsPerInch()));
        ShareOutRoom();
      }
      ShowTipOf(hit);
      return false;
    case WM_LBUTTONUP: {
      const auto pressed = std::exchange(pressed_header_, std::nullopt);
      edge_drag_.reset();
      ReleaseCapture();
      if (pressed && hit.part == Part::kHeader && hit.column == *pressed) SortBy(*pressed);
      return true;
    }
    case WM_RBUTTONUP:
      if (hit.part != Part::kHeader) return false;
      ShowSortMenu(place);
      return true;
    default:
      return false;
  }
}

void Win32Table::PressAt(POINT place, bool is_double) {
  const TableHit hit = geometry_.HitAt(place);
  switch (hit.part) {
    case Part::kHeaderEdge:
      edge_drag_ = EdgeDrag{hit.column, geometry_.HeaderArea(hit.column).left};
      SetCapture(Handle());
      return;
    case Part::kHeader:
      pressed_header_ = hit.column;
      SetCapture(Handle());
      return;
    case Part::kCell:
      break;
    case Part::kNothing:
      return;
  }
  const bool is_plain = !IsHeld(VK_SHIFT) && !IsHeld(VK_CONTROL);
  if (is_plain && OnBox(hit, place)) {
    const std::string row = content_.RowAt(hit.row).key;
    GoTo(hit.row);
    // Who was told of the move may have replaced the rows. On a box a double click is two clicks.
    if (const auto still = content_.FindRow(row))
      Check({row}, !content_.RowAt(*still).checked.value_or(true));
    return;
  }
  Choose(hit.row, hit.column, IsHeld(VK_SHIFT), IsHeld(VK_CONTROL));
  if (is_double) RaiseEvent(activated_);
}

void Win32Table::Choose(std::size_t row, std::size_t column, bool extends, bool toggles) {
  type_ahead_.Forget();
  const auto place = static_cast<std::uint32_t>(row);
  current_column_ = column;
  if (extends) {
    selection_.ExtendTo(place);
  } else if (toggles) {
    selection_.Toggle(place);
  } else {
    selection_.ChooseOnly(place);
  }
  BringIntoSight();
  Repaint();
  TellCurrent();
}

bool Win32Table::OnKey(const KeyPress& press) {
  if (press.has_alt && press.key == VK_DOWN) {
    const RECT header = geometry_.HeadersArea();
    ShowSortMenu({header.left, header.bottom});
    return true;
  }
  if (press.has_control && press.key == 'C') {
    Copy();
    return true;
  }
  if (RowCount() == 0 || press.has_alt) return false;
  switch (press.key) {
    case VK_RETURN:
      if (!press.has_control && !press.has_shift) RaiseEvent(activated_);
      return true;
    case VK_SPACE:
      // Names have blanks: one that follows typed letters at once is part of the name.
      if (!type_ahead_.IsTyping()) CheckSelected();
      return !type_ahead_.IsTyping();
    case 'A':
      if (!press.has_control || !selects_many_) return false;
      selection_.ChooseOnly(0);
      selection_.ExtendTo(static_cast<std::uint32_t>(RowCount() - 1));
      Repaint();
      TellCurrent();
      return true;
    default:
      return OnMove(press);
  }
}

bool Win32Table::OnMove(const KeyPress& press) {
  const std::size_t now = selection_.Current().value_or(0);
  const std::size_t last = RowCount() - 1;
  const std::size_t last_column = content_.Columns().size() - 1;
  const std::size_t page = geometry_.RowsOnPage();
  std::size_t row = now;
  std::size_t column = current_column_;
  switch (press.key) {
    case VK_DOWN:
      row = std::min(now + 1, last);
      break;
    case VK_UP:
      row = now == 0 ? 0 : now - 1;
      break;
    case VK_NEXT:
      row = std::min(now + page, last);
      break;
    case VK_PRIOR:
      row = now > page ? now - page : 0;
      break;
    case VK_HOME:
      if (selects_cells_) column = 0;
      if (!selects_cells_ || press.has_control) row = 0;
      break;
    case VK_END:
      if (selects_cells_) column = last_column;
      if (!selects_cells_ || press.has_control) row = last;
      break;
    case VK_LEFT:
    case VK_RIGHT:
      if (!selects_cells_) {
        SendMessageW(Handle(), WM_HSCROLL, press.key == VK_LEFT ? SB_LINELEFT : SB_LINERIGHT, 0);
        return true;
      }
      column = press.key == VK_RIGHT ? std::min(column + 1, last_column)
                                     : column - std::min<std::size_t>(column, 1);
      break;
    default:
      return false;
  }
  Choose(row, column, press.has_shift, false);
  return true;
}

void Win32Table::ShowSortMenu(POINT client) {
  if (!sorts_) return;
  const UniqueMenu menu(CreatePopupMenu());
  const auto& columns = content_.Columns();
  for (std::size_t column = 0; column < columns.size(); ++column) {
    const UINT state = content_.Sorted() && content_.Sorted()->column == column ? MF_CHECKED : MF_UNCHECKED;
    const std::wstring text = Words().Translated("Sort by %1", ToWide(columns[column].caption));
    AppendMenuW(menu.get(), MF_STRING | state, column + 1, MarkedCaption(FromWide(text)).c_str());
  }
  ClientToScreen(Handle(), &client);
  const int chosen = TrackPopupMenuEx(menu.get(), TPM_RETURNCMD, client.x, client.y, Handle(), nullptr);
  if (chosen > 0) SortBy(static_cast<std::size_t>(chosen) - 1);
}

}  // namespace ferrowind::win32
