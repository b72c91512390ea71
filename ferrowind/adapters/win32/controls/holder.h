#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "ferrowind/adapters/win32/controls/control_window.h"
#include "ferrowind/platform/toolkit/control.h"

namespace ferrowind::win32 {

/// A frame, a panel or a splitter: a control that is there for what stands in it.
class Win32Holder final : public Win32Control<platform::Control> {
 public:
  enum class Kind { kFrame, kPanel, kSplitter };

  Win32Holder(ControlHost& host, std::string name, HWND parent, Kind kind);

  [[nodiscard]] Kind HolderKind() const { return kind_; }
  /// Of a frame.
  void SetTitle(const std::string& title);
  /// What a drag of the mouse between two of its parts is told by, in its own pixels; for a splitter.
  using Drag = std::function<void(POINT from, POINT to)>;
  void SetDrag(Drag drag) { drag_ = std::move(drag); }
  /// The pixels at each side that what stands in it must leave free; more at the top where a title is.
  [[nodiscard]] RECT Margins() const;

  [[nodiscard]] bool FillsHeight() const override { return true; }

 protected:
  LRESULT OnMessage(UINT message, WPARAM w_param, LPARAM l_param) override;
  /// Nothing of its own: the layout adds what stands in it.
  [[nodiscard]] SIZE NeededSize() const override { return {}; }

 private:
  void Paint(HDC context) const;
  /// Whether the message was one of a drag.
  bool FollowDrag(UINT message, LPARAM l_param);

  Kind kind_;
  std::string title_;
  Drag drag_;
  std::optional<POINT> drag_place_;
};

}  // namespace ferrowind::win32
