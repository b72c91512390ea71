#include "ferrowind/adapters/win32/controls/tree.h"

#include <algorithm>
#include <cwchar>
#include <utility>

#include "ferrowind/adapters/glyphs/tree_glyphs.h"
#include "ferrowind/adapters/win32/base/twips.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/controls/glyph_pictures.h"
#include "ferrowind/adapters/win32/controls/while_true.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::win32 {

using platform::Failure;
using platform::TreeNode;
namespace failure_number = platform::failure_number;

namespace {

constexpr UINT kTellClick = WM_APP + 1;

}  // namespace

Win32Tree::Win32Tree(ControlHost& host, std::string name, HWND parent)
    : Win32Control(host, std::move(name),
                   {.window_class = WC_TREEVIEWW,
                    .style = TVS_HASBUTTONS | TVS_LINESATROOT | TVS_SHOWSELALWAYS | TVS_INFOTIP | WS_TABSTOP,
                    .extended_style = WS_EX_CLIENTEDGE,
                    .parent = parent}) {
  SetWindowTextW(Handle(), ToWide(ControlName()).c_str());
}

void Win32Tree::Clear() {
  const WhileTrue changing(is_changed_by_program_);
  SendMessageW(Handle(), TVM_SELECTITEM, TVGN_CARET, 0);
  SendMessageW(Handle(), TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
  nodes_.clear();
}

void Win32Tree::AddRoot(const TreeNode& node) { Add(std::nullopt, node); }

void Win32Tree::AddChild(const std::string& parent_key, const TreeNode& node) { Add(parent_key, node); }

void Win32Tree::Add(std::optional<std::string> parent, const TreeNode& node) {
  const HTREEITEM around = parent ? NodeOf(*parent).item : TVI_ROOT;
  const auto [added, is_new] = nodes_.emplace(node.key, Node{node, std::move(parent)});
  if (!is_new) {
    throw Failure(failure_number::kKeyNotUnique,
                  "The tree " + ControlName() + " has a node " + node.key + " already");
  }
  std::wstring text = ToWide(node.text);
  TVINSERTSTRUCTW insertion{};
  insertion.hParent = around;
  insertion.hInsertAfter = TVI_LAST;
  insertion.item.mask = TVIF_TEXT | TVIF_PARAM | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
  insertion.item.iImage = insertion.item.iSelectedImage = PlaceOf(glyphs::TreeGlyph(node.image));
  insertion.item.pszText = text.data();
  insertion.item.lParam = reinterpret_cast<LPARAM>(&added->second);
  added->second.item = reinterpret_cast<HTREEITEM>(
      SendMessageW(Handle(), TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insertion)));
  // The mark by which the parent is expanded appears with its first child.
  InvalidateRect(Handle(), nullptr, FALSE);
}

HTREEITEM Win32Tree::Next(UINT relation, HTREEITEM item) const {
  return reinterpret_cast<HTREEITEM>(
      SendMessageW(Handle(), TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
}

std::optional<std::string> Win32Tree::First() const { return KeyOf(Next(TVGN_ROOT, nullptr)); }

std::optional<std::string> Win32Tree::NextSibling(const std::string& key) const {
  return KeyOf(Next(TVGN_NEXT, NodeOf(key).item));
}

std::optional<std::string> Win32Tree::Selected() const { return KeyOf(Next(TVGN_CARET, nullptr)); }

void Win32Tree::SetExpanded(const std::string& key, bool expanded) {
  Node& node = *NodeOfItem(NodeOf(key).item);
  if (node.is_expanded == expanded) return;
  {
    const WhileTrue changing(is_changed_by_program_);
    SendMessageW(Handle(), TVM_EXPAND, expanded ? TVE_EXPAND : TVE_COLLAPSE,
                 reinterpret_cast<LPARAM>(node.item));
  }
  NoteExpansion(node, expanded);
}

void Win32Tree::Select(const std::string& key) {
  std::vector<std::string> hiding;
  for (auto parent = NodeOf(key).parent; parent; parent = NodeOf(*parent).parent) hiding.push_back(*parent);
  {
    const WhileTrue changing(is_changed_by_program_);
    SendMessageW(Handle(), TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(NodeOf(key).item));
  }
  for (auto parent = hiding.rbegin(); parent != hiding.rend(); ++parent) {
    // The handler of another one may have removed it.
    const auto found = nodes_.find(*parent);
    if (found != nodes_.end() && !found->second.is_expanded) SetExpanded(*parent, true);
  }
}

const Win32Tree::Node& Win32Tree::NodeOf(const std::string& key) const {
  const auto found = nodes_.find(key);
  if (found == nodes_.end()) {
    throw Failure(failure_number::kElementNotFound, "The tree " + ControlName() + " has no node " + key);
  }
  return found->second;
}

Win32Tree::Node* Win32Tree::NodeOfItem(HTREEITEM item) const {
  if (item == nullptr) return nullptr;
  TVITEMW asked{};
  asked.mask = TVIF_PARAM | TVIF_HANDLE;
  asked.hItem = item;
  if (SendMessageW(Handle(), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked)) == 0) return nullptr;
  return reinterpret_cast<Node*>(asked.lParam);
}

std::optional<std::string> Win32Tree::KeyOf(HTREEITEM item) const {
  const Node* node = NodeOfItem(item);
  if (node == nullptr) return std::nullopt;
  return node->design.key;
}

void Win32Tree::NoteExpansion(Node& node, bool is_expanded) {
  if (node.is_expanded == is_expanded) return;
  node.is_expanded = is_expanded;
  // A copy, since a handler may clear the tree.
  const std::string key = node.design.key;
  RaiseEvent(is_expanded ? expanded_ : collapsed_, key);
}

std::optional<LRESULT> Win32Tree::OnNotify(NMHDR& header) {
  switch (header.code) {
    case NM_CUSTOMDRAW:
      if (!IsDark()) return std::nullopt;
      return DrawDark(reinterpret_cast<NMTVCUSTOMDRAW&>(header));
    case TVN_ITEMEXPANDEDW: {
      const auto& change = reinterpret_cast<const NMTREEVIEWW&>(header);
      Node* node = NodeOfItem(change.itemNew.hItem);
      if (!is_changed_by_program_ && node != nullptr) NoteExpansion(*node, change.action == TVE_EXPAND);
      return 0;
    }
    case TVN_SELCHANGEDW: {
      const auto& change = reinterpret_cast<const NMTREEVIEWW&>(header);
      const Node* node = NodeOfItem(change.itemNew.hItem);
      if (!is_changed_by_program_ && node != nullptr && change.action == TVC_BYKEYBOARD) {
        const std::string key = node->design.key;
        RaiseEvent(node_clicked_, key);
      }
      return 0;
    }
    case NM_CLICK:
      TellClickAtMouse();
      return 0;
    case TVN_GETINFOTIPW:
      TellTip(reinterpret_cast<NMTVGETINFOTIPW&>(header));
      return 0;
    default:
      return std::nullopt;
  }
}

void Win32Tree::TellClickAtMouse() {
  const DWORD place = GetMessagePos();
  TVHITTESTINFO hit{};
  hit.pt = {static_cast<short>(LOWORD(place)), static_cast<short>(HIWORD(place))};
  ScreenToClient(Handle(), &hit.pt);
  SendMessageW(Handle(), TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
  if ((hit.flags & TVHT_ONITEM) == 0) return;
  const Node* node = NodeOfItem(hit.hItem);
  if (node == nullptr) return;
  clicked_key_ = node->design.key;
  // The control selects the node only after it has told of the click, and a handler may remove it.
  PostMessageW(Handle(), kTellClick, 0, 0);
}

LRESULT Win32Tree::OnMessage(UINT message, WPARAM w_param, LPARAM l_param) {
  if (message != kTellClick) return ControlWindow::OnMessage(message, w_param, l_param);
  const std::string key = clicked_key_;
  const auto clicked = nodes_.find(key);
  if (clicked == nodes_.end()) return 0;
  if (Selected() != key) {
    const WhileTrue changing(is_changed_by_program_);
    SendMessageW(Handle(), TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(clicked->second.item));
  }
  RaiseEvent(node_clicked_, key);
  return 0;
}

void Win32Tree::TellTip(NMTVGETINFOTIPW& asked) const {
  const Node* node = NodeOfItem(asked.hItem);
  if (node == nullptr || asked.cchTextMax <= 0) return;
  const std::wstring tip = ToWide(node->design.description);
  const auto length = std::min(tip.size(), static_cast<std::size_t>(asked.cchTextMax) - 1);
  std::wmemcpy(asked.pszText, tip.data(), length);
  asked.pszText[length] = L'\0';
}

LRESULT Win32Tree::DrawDark(NMTVCUSTOMDRAW& drawing) const {
  if (drawing.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  if (drawing.nmcd.dwDrawStage != CDDS_ITEMPREPAINT || (drawing.nmcd.uItemState & CDIS_SELECTED) == 0)
    return CDRF_DODEFAULT;
  const bool has_focus = GetFocus() == Handle();
  drawing.clrText = has_focus ? Colors().highlight_text : Colors().faint_highlight_text;
  drawing.clrTextBk = has_focus ? Colors().highlight : Colors().faint_highlight;
  return CDRF_NEWFONT;
}

int Win32Tree::PlaceOf(glyphs::MakeGlyph glyph) {
  if (glyph == nullptr) return I_IMAGENONE;
  const auto known = std::find(glyphs_.begin(), glyphs_.end(), glyph);
  const auto place = static_cast<int>(known - glyphs_.begin());
  if (known == glyphs_.end()) {
    glyphs_.push_back(glyph);
    UsePictures();
  }
  return place;
}

void Win32Tree::UsePictures() {
  if (glyphs_.empty()) return;
  constexpr int kPictureSide = 16;
  auto pictures = PicturesOf(glyphs_, Scaled(kPictureSide, DotsPerInch()), {Colors().text, Colors().accent});
  SendMessageW(Handle(), TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(pictures.get()));
  // Those before go now that the tree has others.
  pictures_ = std::move(pictures);
}

void Win32Tree::UseFont(HFONT font) {
  ControlWindow::UseFont(font);
  constexpr int kAroundText = 6;
  SendMessageW(Handle(), TVM_SETITEMHEIGHT,
               static_cast<WPARAM>(TextSize("X").cy + Scaled(kAroundText, DotsPerInch())), 0);
  UsePictures();
}

void Win32Tree::UseColors() {
  UsePictures();
  constexpr LPARAM kPlatforms = -1;
  const bool is_dark = IsDark();
  SendMessageW(Handle(), TVM_SETBKCOLOR, 0, is_dark ? static_cast<LPARAM>(Colors().window) : kPlatforms);
  SendMessageW(Handle(), TVM_SETTEXTCOLOR, 0, is_dark ? static_cast<LPARAM>(Colors().text) : kPlatforms);
}

SIZE Win32Tree::NeededSize() const {
  constexpr int kWidth = 140;
  constexpr int kHeight = 80;
  return {Scaled(kWidth, DotsPerInch()), Scaled(kHeight, DotsPerInch())};
}

}  // namespace ferrowind::win32
