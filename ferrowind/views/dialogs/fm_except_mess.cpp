#include "ferrowind/views/dialogs/fm_except_mess.h"

#include "ferrowind/data/run_handler.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/text_limits.h"
#include "ferrowind/views/common/close_dialog.h"

namespace ferrowind {
namespace {

using platform::Button;
using platform::ControlKind;
using platform::ControlOf;

platform::FormDesign Design() {
  return {
      .name = "fmExceptMess",
      .caption = "Except with message",
      .border = platform::FormBorder::kFixedDialog,
      .start = platform::FormStart::kCenterOwner,
      .client_width = 3660,
      .client_height = 1425,
      .controls = {
          {.kind = ControlKind::kTextBox, .name = "txtMessage", .longest_text = platform::kLongestComment},
          {.kind = ControlKind::kButton, .name = "cmdExcept", .text = "Except", .is_default_button = true},
          {.kind = ControlKind::kButton, .name = "cmdCancel", .text = "Cancel", .is_cancel_button = true},
          {ControlKind::kLabel, "lblMessage", "Description"}}};
}

}  // namespace

fmExceptMess::fmExceptMess(platform::Toolkit& toolkit)
    : toolkit_(toolkit), form_(toolkit.CreateForm(Design())) {
  except_clicked_ =
      ControlOf<Button>(*form_, "cmdExcept").OnClick([this] { RunHandler([this] { Except(); }); });
  cancel_clicked_ =
      ControlOf<Button>(*form_, "cmdCancel").OnClick([this] { RunHandler([this] { Cancel(); }); });
}

void fmExceptMess::ShowModal() { form_->ShowModal(); }

void fmExceptMess::Except() {
  message_ = platform::Trim(ControlOf<platform::TextBox>(*form_, "txtMessage").Text());
  result_ = 0;
  CloseDialog(toolkit_, *form_);
}

void fmExceptMess::Cancel() {
  result_ = 1;
  CloseDialog(toolkit_, *form_);
}

}  // namespace ferrowind
