#include "ferrowind/adapters/win32/forms/control_maker.h"

#include <string>

#include "ferrowind/adapters/win32/controls/animation.h"
#include "ferrowind/adapters/win32/controls/button.h"
#include "ferrowind/adapters/win32/controls/date_picker.h"
#include "ferrowind/adapters/win32/controls/drop_down_list.h"
#include "ferrowind/adapters/win32/controls/holder.h"
#include "ferrowind/adapters/win32/controls/label.h"
#include "ferrowind/adapters/win32/controls/status_bar.h"
#include "ferrowind/adapters/win32/controls/text_box.h"
#include "ferrowind/adapters/win32/controls/text_view.h"
#include "ferrowind/adapters/win32/controls/tool_bar.h"
#include "ferrowind/adapters/win32/controls/tree.h"
#include "ferrowind/adapters/win32/controls/up_down.h"
#include "ferrowind/adapters/win32/grid/grid.h"
#include "ferrowind/adapters/win32/table/table.h"
#include "ferrowind/adapters/win32/year/year_view.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::win32 {

using platform::ControlKind;

std::unique_ptr<platform::Control> MakeControl(const platform::ControlDesign& design, ControlHost& host,
                                               HWND parent) {
  const std::string& name = design.name;
  switch (design.kind) {
    case ControlKind::kLabel: {
      auto label = std::make_unique<Win32Label>(host, name, parent);
      label->SetText(design.text);
      return label;
    }
    case ControlKind::kButton: {
      auto button = std::make_unique<Win32Button>(host, name, parent);
      button->SetCaption(design.text);
      return button;
    }
    case ControlKind::kTextBox: {
      auto box = std::make_unique<Win32TextBox>(host, name, parent);
      box->SetLongestText(design.longest_text);
      box->SetText(design.text);
      return box;
    }
    case ControlKind::kTextView: {
      auto view = std::make_unique<Win32TextView>(host, name, parent);
      view->SetText(design.text);
      return view;
    }
    case ControlKind::kDropDownList:
      return std::make_unique<Win32DropDownList>(host, name, parent);
    case ControlKind::kDatePicker:
      return std::make_unique<Win32DatePicker>(host, name, parent);
    case ControlKind::kUpDown:
      return std::make_unique<Win32UpDown>(host, name, parent);
    case ControlKind::kFrame: {
      auto frame = std::make_unique<Win32Holder>(host, name, parent, Win32Holder::Kind::kFrame);
      frame->SetTitle(design.text);
      return frame;
    }
    case ControlKind::kPanel:
      return std::make_unique<Win32Holder>(host, name, parent, Win32Holder::Kind::kPanel);
    case ControlKind::kSplitter:
      return std::make_unique<Win32Holder>(host, name, parent, Win32Holder::Kind::kSplitter);
    case ControlKind::kTree:
      return std::make_unique<Win32Tree>(host, name, parent);
    case ControlKind::kGrid:
      return std::make_unique<Win32Grid>(host, name, parent, design.marks_row_ranges);
    case ControlKind::kToolBar:
      return std::make_unique<Win32ToolBar>(host, name, parent);
    case ControlKind::kStatusBar:
      return std::make_unique<Win32StatusBar>(host, name, parent);
    case ControlKind::kAnimation:
      return std::make_unique<Win32Animation>(host, name, parent);
    case ControlKind::kYearView:
      return std::make_unique<Win32YearView>(host, name, parent);
    case ControlKind::kTable:
      return std::make_unique<Win32Table>(host, design, parent);
  }
  throw platform::InvalidArgument();
}

}  // namespace ferrowind::win32
