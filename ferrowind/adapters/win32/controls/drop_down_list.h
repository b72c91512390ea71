#pragma once

#include <string>
#include <vector>

#include "ferrowind/adapters/win32/controls/control_window.h"
#include "ferrowind/platform/toolkit/drop_down_list.h"

namespace ferrowind::win32 {

class Win32DropDownList final : public Win32Control<platform::DropDownList> {
 public:
  Win32DropDownList(ControlHost& host, std::string name, HWND parent);

  void AddItem(const std::string& text, std::int32_t item_data) override;
  [[nodiscard]] std::int32_t Count() const override { return static_cast<std::int32_t>(items_.size()); }
  [[nodiscard]] std::string ItemText(std::int32_t position) const override { return ItemAt(position).text; }
  [[nodiscard]] std::int32_t ItemData(std::int32_t position) const override { return ItemAt(position).data; }
  [[nodiscard]] std::int32_t Chosen() const override { return chosen_; }
  void Choose(std::int32_t position) override;
  [[nodiscard]] platform::Subscription OnChoice(std::function<void()> handler) override {
    return choice_.Subscribe(std::move(handler));
  }

  /// What it is given is the room of the closed list; the open one takes more.
  void Place(const RECT& area) override;
  void OnCommand(WORD notification, WORD id) override;
  [[nodiscard]] bool CanHaveFocus() const override { return true; }
  [[nodiscard]] bool TakesText() const override { return true; }
  /// While the list is open, it is closed by them.
  [[nodiscard]] bool KeepsKey(WPARAM key) const override;

 protected:
  LRESULT OnMessage(UINT message, WPARAM w_param, LPARAM l_param) override;
  [[nodiscard]] SIZE NeededSize() const override;

 private:
  /// The closed list in dark colours, which the platform's does not have.
  void PaintDark() const;

  struct Item {
    std::string text;
    std::int32_t data;
  };

  [[nodiscard]] const Item& ItemAt(std::int32_t position) const;
  void ChangeChoice(std::int32_t position);

  std::vector<Item> items_;
  std::int32_t chosen_ = -1;
  platform::Signal<> choice_;
};

}  // namespace ferrowind::win32
