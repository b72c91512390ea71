#include "ferrowind/adapters/win32/controls/tool_bar.h"

#include <algorithm>
#include <cwchar>
#include <utility>

#include "ferrowind/adapters/glyphs/tool_faces.h"
#include "ferrowind/adapters/win32/base/twips.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/controls/glyph_pictures.h"
#include "ferrowind/adapters/win32/controls/marked_caption.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::win32 {

using platform::Failure;
namespace failure_number = platform::failure_number;

namespace {

/// Those below are the platform's own, such as the cancel of a dialog.
constexpr int kFirstCommand = 100;

}  // namespace

Win32ToolBar::Win32ToolBar(ControlHost& host, std::string name, HWND parent)
    : Win32Control(host, std::move(name),
                   {.window_class = TOOLBARCLASSNAMEW,
                    .style = TBSTYLE_FLAT | TBSTYLE_LIST | TBSTYLE_TOOLTIPS | CCS_NOPARENTALIGN |
                             CCS_NORESIZE | CCS_NODIVIDER,
                    .parent = parent}) {
  SendMessageW(Handle(), TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
  // A tool with a picture is named by its caption, which is not shown then.
  SendMessageW(Handle(), TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_MIXEDBUTTONS);
  SendMessageW(Handle(), TB_SETBITMAPSIZE, 0, 0);
}

void Win32ToolBar::AddTool(const platform::ToolDesign& tool) {
  RequireUnusedId(tool.id);
  const int command = kFirstCommand + static_cast<int>(tools_.size());
  Tool added{.design = tool, .command = command};
  if (const glyphs::ToolFace* face = glyphs::FindToolFace(tool.id)) {
    added.glyph = face->glyph;
    if (added.design.shortcut.empty()) added.design.shortcut = face->shortcut;
  }
  added.shortcut = ReadShortcut(added.design.shortcut);
  tools_.emplace(tool.id, std::move(added));
}

void Win32ToolBar::SetBar(const std::string& /*caption*/, const std::vector<std::string>& ids) {
  RequireTools(ids);
  bar_ = ids;
  FillBar();
}

void Win32ToolBar::AddPopupMenu(const std::string& id, const std::string& /*caption*/,
                                const std::vector<std::string>& ids) {
  RequireUnusedId(id);
  RequireTools(ids);
  menus_.emplace(id, ids);
}

void Win32ToolBar::FillBar() {
  while (SendMessageW(Handle(), TB_DELETEBUTTON, 0, 0) != 0) {
  }
  glyphs_.clear();
  for (const std::string& id : bar_) {
    if (id != platform::kToolSeparator && ToolOf(id).glyph != nullptr) glyphs_.push_back(ToolOf(id).glyph);
  }
  UsePictures();
  for (const std::string& id : bar_) {
    TBBUTTON button{};
    std::wstring caption;
    if (id == platform::kToolSeparator) {
      button.fsStyle = BTNS_SEP;
    } else {
      const Tool& tool = ToolOf(id);
      caption = MarkedCaption(tool.design.caption);
      button.iBitmap = PlaceOf(tool.glyph);
      button.idCommand = tool.command;
      button.fsStyle = BTNS_AUTOSIZE;
      if (tool.glyph == nullptr) button.fsStyle |= BTNS_SHOWTEXT;
      if (tool.design.kind == platform::ToolKind::kTwoStateButton) button.fsStyle |= BTNS_CHECK;
      button.iString = reinterpret_cast<INT_PTR>(caption.c_str());
    }
    SendMessageW(Handle(), TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&button));
    if (id != platform::kToolSeparator) ShowState(ToolOf(id));
  }
  SendMessageW(Handle(), TB_AUTOSIZE, 0, 0);
  NeedsOtherRoom();
}

void Win32ToolBar::UsePictures() {
  if (glyphs_.empty()) return;
  constexpr int kPictureSide = 20;
  const int side = Scaled(kPictureSide, DotsPerInch());
  const Theme& colors = Colors();
  const COLORREF faint = Blend(colors.face, colors.muted, 0.5);
  auto pictures = PicturesOf(glyphs_, side, {colors.face_text, colors.accent});
  auto faint_pictures = PicturesOf(glyphs_, side, {faint, faint});
  SendMessageW(Handle(), TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(pictures.get()));
  SendMessageW(Handle(), TB_SETDISABLEDIMAGELIST, 0, reinterpret_cast<LPARAM>(faint_pictures.get()));
  // Those before go now that the bar has others.
  pictures_ = std::move(pictures);
  faint_pictures_ = std::move(faint_pictures);
}

int Win32ToolBar::PlaceOf(glyphs::MakeGlyph glyph) const {
  const auto found = std::find(glyphs_.begin(), glyphs_.end(), glyph);
  return glyph == nullptr || found == glyphs_.end() ? I_IMAGENONE : static_cast<int>(found - glyphs_.begin());
}

void Win32ToolBar::UseFont(HFONT font) {
  ControlWindow::UseFont(font);
  UsePictures();
}

void Win32ToolBar::ShowState(const Tool& tool) {
  const auto command = static_cast<WPARAM>(tool.command);
  SendMessageW(Handle(), TB_ENABLEBUTTON, command, MAKELPARAM(tool.is_enabled ? TRUE : FALSE, 0));
  SendMessageW(Handle(), TB_CHECKBUTTON, command, MAKELPARAM(tool.is_pressed ? TRUE : FALSE, 0));
}

void Win32ToolBar::SetToolEnabled(const std::string& id, bool enabled) {
  ToolOf(id).is_enabled = enabled;
  ShowState(ToolOf(id));
}

void Win32ToolBar::SetToolPressed(const std::string& id, bool pressed) {
  ToolOf(id).is_pressed = pressed;
  ShowState(ToolOf(id));
}

void Win32ToolBar::SetToolCaption(const std::string& id, const std::string& caption) {
  if (ToolOf(id).design.caption == caption) return;
  ToolOf(id).design.caption = caption;
  if (std::find(bar_.begin(), bar_.end(), id) != bar_.end()) FillBar();
}

void Win32ToolBar::SetToolDescription(const std::string& id, const std::string& description) {
  ToolOf(id).design.description = description;
}

UniqueMenu Win32ToolBar::MakeMenu(const std::vector<std::string>& ids) const {
  UniqueMenu menu(CreatePopupMenu());
  for (const std::string& id : ids) {
    if (id == platform::kToolSeparator) {
      AppendMenuW(menu.get(), MF_SEPARATOR, 0, nullptr);
      continue;
    }
    const Tool& tool = ToolOf(id);
    std::wstring caption = MarkedCaption(tool.design.caption);
    if (!tool.design.shortcut.empty()) caption += L"\t" + ToWide(tool.design.shortcut);
    const UINT state =
        (tool.is_enabled ? MF_ENABLED : MF_GRAYED) | (tool.is_pressed ? MF_CHECKED : MF_UNCHECKED);
    AppendMenuW(menu.get(), MF_STRING | state, static_cast<UINT_PTR>(tool.command), caption.c_str());
  }
  return menu;
}

void Win32ToolBar::ShowPopupMenu(const std::string& id) {
  const auto found = menus_.find(id);
  if (found == menus_.end()) {
    throw Failure(failure_number::kElementNotFound,
                  "The toolbar " + ControlName() + " has no popup menu " + id);
  }
  const UniqueMenu menu = MakeMenu(found->second);
  POINT place{};
  GetCursorPos(&place);
  if (menu_place_) place = *menu_place_;
  const AtWork at_work(Site());
  const int command =
      TrackPopupMenuEx(menu.get(), TPM_RETURNCMD | TPM_RIGHTBUTTON, place.x, place.y, Handle(), nullptr);
  MoveTo("");
  if (Tool* tool = ToolOfCommand(command)) Click(*tool);
}

void Win32ToolBar::NoteMenuItem(int command) {
  const Tool* tool = ToolOfCommand(command);
  MoveTo(tool == nullptr ? "" : tool->design.id);
}

bool Win32ToolBar::PressShortcut(const KeyPress& press) {
  for (auto& [id, tool] : tools_) {
    if (tool.shortcut != press || !tool.is_enabled) continue;
    Click(tool);
    return true;
  }
  return false;
}

void Win32ToolBar::Click(Tool& tool) {
  if (tool.design.kind == platform::ToolKind::kTwoStateButton) {
    tool.is_pressed = !tool.is_pressed;
    ShowState(tool);
  }
  const std::string id = tool.design.id;
  RaiseEvent(clicked_, id);
}

void Win32ToolBar::MoveTo(const std::string& id) {
  if (id == tool_under_mouse_) return;
  const std::string before = std::exchange(tool_under_mouse_, id);
  if (!before.empty()) RaiseEvent(left_, before);
  if (!id.empty() && id == tool_under_mouse_) RaiseEvent(entered_, id);
}

std::string Win32ToolBar::ToolAt(POINT client) {
  const auto place = SendMessageW(Handle(), TB_HITTEST, 0, reinterpret_cast<LPARAM>(&client));
  if (place < 0 || static_cast<std::size_t>(place) >= bar_.size()) return {};
  const std::string& id = bar_[static_cast<std::size_t>(place)];
  return id == platform::kToolSeparator ? std::string() : id;
}

void Win32ToolBar::OnCommand(WORD /*notification*/, WORD id) {
  if (Tool* tool = ToolOfCommand(id)) Click(*tool);
}

std::optional<LRESULT> Win32ToolBar::OnNotify(NMHDR& header) {
  if (header.code == NM_CUSTOMDRAW && IsDark()) return DrawDark(reinterpret_cast<NMTBCUSTOMDRAW&>(header));
  if (header.code != TBN_GETINFOTIPW) return std::nullopt;
  auto& asked = reinterpret_cast<NMTBGETINFOTIPW&>(header);
  const Tool* tool = ToolOfCommand(asked.iItem);
  if (tool == nullptr || asked.cchTextMax <= 0) return 0;
  std::string tip = tool->design.description.empty() ? tool->design.caption : tool->design.description;
  if (!tool->design.shortcut.empty()) tip += " (" + tool->design.shortcut + ")";
  const std::wstring wide = ToWide(tip);
  const auto length = std::min(wide.size(), static_cast<std::size_t>(asked.cchTextMax) - 1);
  std::wmemcpy(asked.pszText, wide.data(), length);
  asked.pszText[length] = L'\0';
  return 0;
}

LRESULT Win32ToolBar::DrawDark(NMTBCUSTOMDRAW& drawing) const {
  if (drawing.nmcd.dwDrawStage == CDDS_PREPAINT) {
    SetDCBrushColor(drawing.nmcd.hdc, Colors().face);
    RECT room{};
    GetClientRect(Handle(), &room);
    FillRect(drawing.nmcd.hdc, &room, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    return CDRF_NOTIFYITEMDRAW;
  }
  if (drawing.nmcd.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
  const auto found = std::find_if(tools_.begin(), tools_.end(), [&](const auto& tool) {
    return static_cast<DWORD_PTR>(tool.second.command) == drawing.nmcd.dwItemSpec;
  });
  // A separator is as good in either.
  if (found == tools_.end()) return CDRF_DODEFAULT;
  RECT area = drawing.nmcd.rc;
  const UINT state = drawing.nmcd.uItemState;
  const bool is_raised = (state & (CDIS_CHECKED | CDIS_HOT | CDIS_SELECTED)) != 0;
  SetDCBrushColor(drawing.nmcd.hdc, is_raised ? Colors().line : Colors().face);
  FillRect(drawing.nmcd.hdc, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
  if ((state & CDIS_CHECKED) != 0) {
    SetDCBrushColor(drawing.nmcd.hdc, Colors().accent);
    FrameRect(drawing.nmcd.hdc, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
  }
  if (const int picture = PlaceOf(found->second.glyph); picture >= 0) {
    const HIMAGELIST pictures = (state & CDIS_DISABLED) != 0 ? faint_pictures_.get() : pictures_.get();
    int width = 0;
    int height = 0;
    ImageList_GetIconSize(pictures, &width, &height);
    ImageList_Draw(pictures, picture, drawing.nmcd.hdc, (area.left + area.right - width) / 2,
                   (area.top + area.bottom - height) / 2, ILD_NORMAL);
    return CDRF_SKIPDEFAULT;
  }
  const std::wstring caption = MarkedCaption(found->second.design.caption);
  const Selected font(drawing.nmcd.hdc, Font());
  SetBkMode(drawing.nmcd.hdc, TRANSPARENT);
  SetTextColor(drawing.nmcd.hdc, (state & CDIS_DISABLED) != 0 ? Colors().muted : Colors().face_text);
  DrawTextW(drawing.nmcd.hdc, caption.c_str(), static_cast<int>(caption.size()), &area,
            DT_SINGLELINE | DT_CENTER | DT_VCENTER);
  return CDRF_SKIPDEFAULT;
}

LRESULT Win32ToolBar::OnMessage(UINT message, WPARAM w_param, LPARAM l_param) {
  switch (message) {
    case WM_MOUSEMOVE: {
      TRACKMOUSEEVENT leaving{sizeof leaving, TME_LEAVE, Handle(), 0};
      TrackMouseEvent(&leaving);
      MoveTo(ToolAt({static_cast<short>(LOWORD(l_param)), static_cast<short>(HIWORD(l_param))}));
      break;
    }
    case WM_MOUSELEAVE:
      MoveTo("");
      break;
    case WM_MENUSELECT:
      NoteMenuItem((HIWORD(w_param) & MF_POPUP) != 0 || HIWORD(w_param) == 0xFFFF ? 0 : LOWORD(w_param));
      break;
    default:
      break;
  }
  return ControlWindow::OnMessage(message, w_param, l_param);
}

SIZE Win32ToolBar::NeededSize() const {
  SIZE size{};
  SendMessageW(Handle(), TB_GETMAXSIZE, 0, reinterpret_cast<LPARAM>(&size));
  constexpr int kAroundText = 10;
  return {size.cx, std::max<LONG>(size.cy, TextSize("X").cy + Scaled(kAroundText, DotsPerInch()))};
}

const Win32ToolBar::Tool& Win32ToolBar::ToolOf(const std::string& id) const {
  const auto found = tools_.find(id);
  if (found == tools_.end()) {
    throw Failure(failure_number::kElementNotFound, "The toolbar " + ControlName() + " has no tool " + id);
  }
  return found->second;
}

Win32ToolBar::Tool& Win32ToolBar::ToolOf(const std::string& id) {
  return const_cast<Tool&>(std::as_const(*this).ToolOf(id));
}

Win32ToolBar::Tool* Win32ToolBar::ToolOfCommand(int command) {
  const auto found = std::find_if(tools_.begin(), tools_.end(),
                                  [&](const auto& tool) { return tool.second.command == command; });
  return found == tools_.end() ? nullptr : &found->second;
}

void Win32ToolBar::RequireUnusedId(const std::string& id) const {
  if (tools_.contains(id) || menus_.contains(id)) {
    throw Failure(failure_number::kKeyNotUnique,
                  "The toolbar " + ControlName() + " has a tool " + id + " already");
  }
}

void Win32ToolBar::RequireTools(const std::vector<std::string>& ids) const {
  for (const std::string& id : ids) {
    if (id != platform::kToolSeparator) static_cast<void>(ToolOf(id));
  }
}

}  // namespace ferrowind::win32
