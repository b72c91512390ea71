// Which class each kind of control is.
#include <memory>

#include "ferrowind/adapters/headless/headless_animation.h"
#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_date_picker.h"
#include "ferrowind/adapters/headless/headless_drop_down_list.h"
#include "ferrowind/adapters/headless/headless_form.h"
#include "ferrowind/adapters/headless/headless_grid.h"
#include "ferrowind/adapters/headless/headless_label.h"
#include "ferrowind/adapters/headless/headless_status_bar.h"
#include "ferrowind/adapters/headless/headless_table.h"
#include "ferrowind/adapters/headless/headless_text_box.h"
#include "ferrowind/adapters/headless/headless_text_view.h"
#include "ferrowind/adapters/headless/headless_tool_bar.h"
#include "ferrowind/adapters/headless/headless_tree.h"
#include "ferrowind/adapters/headless/headless_up_down.h"
#include "ferrowind/adapters/headless/headless_year_view.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::headless {

using platform::ControlKind;

std::unique_ptr<platform::Control> HeadlessForm::MakeControl(const platform::ControlDesign& design) {
  switch (design.kind) {
    case ControlKind::kLabel:
      return std::make_unique<HeadlessLabel>(*this, design.name, design.text);
    case ControlKind::kButton:
      return std::make_unique<HeadlessButton>(*this, design.name, design.text);
    case ControlKind::kTextBox:
      return std::make_unique<HeadlessTextBox>(*this, design.name, design.text, design.takes_typing);
    case ControlKind::kTextView:
      return std::make_unique<HeadlessTextView>(*this, design.name, design.text);
    case ControlKind::kDropDownList:
      return std::make_unique<HeadlessDropDownList>(*this, design.name);
    case ControlKind::kDatePicker:
      return std::make_unique<HeadlessDatePicker>(*this, design.name, toolkit_->clock.Today());
    case ControlKind::kUpDown:
      return std::make_unique<HeadlessUpDown>(*this, design.name);
    case ControlKind::kFrame:
    case ControlKind::kPanel:
    case ControlKind::kSplitter:
      return std::make_unique<HeadlessContainer>(*this, design.name);
    case ControlKind::kTree:
      return std::make_unique<HeadlessTree>(*this, design.name);
    case ControlKind::kGrid:
      return std::make_unique<HeadlessGrid>(*this, design.name, design.marks_row_ranges);
    case ControlKind::kTable:
      return std::make_unique<HeadlessTable>(*this, design, toolkit_->clipboard);
    case ControlKind::kToolBar:
      return std::make_unique<HeadlessToolBar>(*this, design.name);
    case ControlKind::kStatusBar:
      return std::make_unique<HeadlessStatusBar>(*this, design.name);
    case ControlKind::kAnimation:
      return std::make_unique<HeadlessAnimation>(*this, design.name, toolkit_->animations);
    case ControlKind::kYearView:
      return std::make_unique<HeadlessYearView>(*this, design.name);
  }
  throw platform::InvalidArgument();
}

}  // namespace ferrowind::headless
