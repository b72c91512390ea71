#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/adapters/glyphs/glyph.h"
#include "ferrowind/adapters/win32/base/handles.h"
#include "ferrowind/adapters/win32/controls/control_window.h"
#include "ferrowind/platform/toolkit/tree.h"

namespace ferrowind::win32 {

class Win32Tree final : public Win32Control<platform::Tree> {
 public:
  Win32Tree(ControlHost& host, std::string name, HWND parent);

  void Clear() override;
  void AddRoot(const platform::TreeNode& node) override;
  void AddChild(const std::string& parent_key, const platform::TreeNode& node) override;
  [[nodiscard]] std::int32_t Count() const override { return static_cast<std::int32_t>(nodes_.size()); }
  [[nodiscard]] std::string Text(const std::string& key) const override { return NodeOf(key).design.text; }
  [[nodiscard]] std::string Description(const std::string& key) const override {
    return NodeOf(key).design.description;
  }
  [[nodiscard]] std::optional<std::string> Parent(const std::string& key) const override {
    return NodeOf(key).parent;
  }
  [[nodiscard]] std::optional<std::string> First() const override;
  [[nodiscard]] std::optional<std::string> NextSibling(const std::string& key) const override;
  [[nodiscard]] bool Expanded(const std::string& key) const override { return NodeOf(key).is_expanded; }
  void SetExpanded(const std::string& key, bool expanded) override;
  [[nodiscard]] std::optional<std::string> Selected() const override;
  void Select(const std::string& key) override;
  [[nodiscard]] platform::Subscription OnNodeClick(
      std::function<void(const std::string& key)> handler) override {
    return node_clicked_.Subscribe(std::move(handler));
  }
  [[nodiscard]] platform::Subscription OnExpanded(
      std::function<void(const std::string& key)> handler) override {
    return expanded_.Subscribe(std::move(handler));
  }
  [[nodiscard]] platform::Subscription OnCollapsed(
      std::function<void(const std::string& key)> handler) override {
    return collapsed_.Subscribe(std::move(handler));
  }

  /// The platform's name of a node, by which its place on the screen is found.
  [[nodiscard]] HTREEITEM ItemOf(const std::string& key) const { return NodeOf(key).item; }

  [[nodiscard]] std::optional<LRESULT> OnNotify(NMHDR& header) override;
  void UseColors() override;
  void UseFont(HFONT font) override;
  [[nodiscard]] bool CanHaveFocus() const override { return true; }
  [[nodiscard]] bool TakesText() const override { return true; }

  [[nodiscard]] bool FillsHeight() const override { return true; }

 protected:
  LRESULT OnMessage(UINT message, WPARAM w_param, LPARAM l_param) override;
  [[nodiscard]] SIZE NeededSize() const override;

 private:
  [[nodiscard]] LRESULT DrawDark(NMTVCUSTOMDRAW& drawing) const;
  struct Node {
    platform::TreeNode design;
    std::optional<std::string> parent;
    HTREEITEM item = nullptr;
    bool is_expanded = false;
  };

  [[nodiscard]] const Node& NodeOf(const std::string& key) const;
  /// The node that an item of the platform stands for; null for none.
  [[nodiscard]] Node* NodeOfItem(HTREEITEM item) const;
  void Add(std::optional<std::string> parent, const platform::TreeNode& node);
  [[nodiscard]] std::optional<std::string> KeyOf(HTREEITEM item) const;
  [[nodiscard]] HTREEITEM Next(UINT relation, HTREEITEM item) const;
  /// Where the pictures have that glyph, which they get if they lack it; none for no glyph.
  [[nodiscard]] int PlaceOf(glyphs::MakeGlyph glyph);
  /// Draws the glyphs of the nodes for the resolution and the colours of now.
  void UsePictures();
  void NoteExpansion(Node& node, bool is_expanded);
  void TellTip(NMTVGETINFOTIPW& asked) const;
  void TellClickAtMouse();

  std::map<std::string, Node> nodes_;
  /// Those of the nodes, in the order of the pictures.
  std::vector<glyphs::MakeGlyph> glyphs_;
  UniqueImageList pictures_;
  /// The node whose click is to be told.
  std::string clicked_key_;
  /// While the program selects or removes nodes, what the platform tells of that is no news.
  bool is_changed_by_program_ = false;
  platform::Signal<const std::string&> node_clicked_;
  platform::Signal<const std::string&> expanded_;
  platform::Signal<const std::string&> collapsed_;
};

}  // namespace ferrowind::win32
