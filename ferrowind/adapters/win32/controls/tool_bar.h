#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/adapters/glyphs/glyph.h"
#include "ferrowind/adapters/win32/base/handles.h"
#include "ferrowind/adapters/win32/controls/control_window.h"
#include "ferrowind/adapters/win32/controls/shortcut.h"
#include "ferrowind/platform/toolkit/tool_bar.h"

namespace ferrowind::win32 {

class Win32ToolBar final : public Win32Control<platform::ToolBar> {
 public:
  Win32ToolBar(ControlHost& host, std::string name, HWND parent);

  void AddTool(const platform::ToolDesign& tool) override;
  void SetBar(const std::string& caption, const std::vector<std::string>& ids) override;
  void AddPopupMenu(const std::string& id, const std::string& caption,
                    const std::vector<std::string>& ids) override;
  [[nodiscard]] bool ToolEnabled(const std::string& id) const override { return ToolOf(id).is_enabled; }
  void SetToolEnabled(const std::string& id, bool enabled) override;
  [[nodiscard]] bool ToolPressed(const std::string& id) const override { return ToolOf(id).is_pressed; }
  void SetToolPressed(const std::string& id, bool pressed) override;
  [[nodiscard]] std::string ToolDescription(const std::string& id) const override {
    return ToolOf(id).design.description;
  }
  [[nodiscard]] std::string ToolCaption(const std::string& id) const override {
    return ToolOf(id).design.caption;
  }
  void SetToolCaption(const std::string& id, const std::string& caption) override;
  void SetToolDescription(const std::string& id, const std::string& description) override;
  void ShowPopupMenu(const std::string& id) override;
  [[nodiscard]] platform::Subscription OnToolClick(
      std::function<void(const std::string& id)> handler) override {
    return clicked_.Subscribe(std::move(handler));
  }
  [[nodiscard]] platform::Subscription OnToolEnter(
      std::function<void(const std::string& id)> handler) override {
    return entered_.Subscribe(std::move(handler));
  }
  [[nodiscard]] platform::Subscription OnToolLeave(
      std::function<void(const std::string& id)> handler) override {
    return left_.Subscribe(std::move(handler));
  }

  /// Clicks the enabled tool that has that shortcut; false when there is none.
  bool PressShortcut(const KeyPress& press);
  /// Where menus open; nothing for where the mouse is.
  void PlaceMenus(std::optional<POINT> screen) { menu_place_ = screen; }

  /// The number by which the platform knows a tool on the bar and in menus.
  [[nodiscard]] int CommandOf(const std::string& id) const { return ToolOf(id).command; }

  void UseColors() override { UsePictures(); }
  void UseFont(HFONT font) override;
  void OnCommand(WORD notification, WORD id) override;
  [[nodiscard]] std::optional<LRESULT> OnNotify(NMHDR& header) override;
  /// A menu that the form has open came to the item of that command.
  void NoteMenuItem(int command);

  [[nodiscard]] bool FillsHeight() const override { return true; }

 protected:
  LRESULT OnMessage(UINT message, WPARAM w_param, LPARAM l_param) override;
  [[nodiscard]] SIZE NeededSize() const override;

 private:
  struct Tool {
    platform::ToolDesign design;
    int command = 0;
    /// Null for a tool that shows its caption.
    glyphs::MakeGlyph glyph = nullptr;
    std::optional<KeyPress> shortcut = {};
    bool is_enabled = true;
    bool is_pressed = false;
  };

  [[nodiscard]] const Tool& ToolOf(const std::string& id) const;
  [[nodiscard]] Tool& ToolOf(const std::string& id);
  /// Null for a command that is none.
  [[nodiscard]] Tool* ToolOfCommand(int command);
  void RequireUnusedId(const std::string& id) const;
  void RequireTools(const std::vector<std::string>& ids) const;
  [[nodiscard]] LRESULT DrawDark(NMTBCUSTOMDRAW& drawing) const;
  void FillBar();
  /// Draws the glyphs of the tools on the bar for the resolution and the colours of now.
  void UsePictures();
  /// Where the pictures have that glyph; `I_IMAGENONE` for none.
  [[nodiscard]] int PlaceOf(glyphs::MakeGlyph glyph) const;
  void ShowState(const Tool& tool);
  [[nodiscard]] UniqueMenu MakeMenu(const std::vector<std::string>& ids) const;
  void Click(Tool& tool);
  /// Tells that the mouse or a menu's selection is on that tool now; "" for on none.
  void MoveTo(const std::string& id);
  [[nodiscard]] std::string ToolAt(POINT client);

  std::map<std::string, Tool> tools_;
  std::map<std::string, std::vector<std::string>> menus_;
  std::vector<std::string> bar_;
  /// Those on the bar, in the order of the pictures.
  std::vector<glyphs::MakeGlyph> glyphs_;
  UniqueImageList pictures_;
  UniqueImageList faint_pictures_;
  std::string tool_under_mouse_;
  std::optional<POINT> menu_place_;
  platform::Signal<const std::string&> clicked_;
  platform::Signal<const std::string&> entered_;
  platform::Signal<const std::string&> left_;
};

}  // namespace ferrowind::win32
