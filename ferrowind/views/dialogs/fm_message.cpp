#include "ferrowind/views/dialogs/fm_message.h"

#include "ferrowind/data/run_handler.h"

namespace ferrowind {
namespace {

using platform::Button;
using platform::ControlKind;
using platform::ControlOf;
using platform::Label;

platform::FormDesign Design(const MessageButtons& buttons) {
  platform::FormDesign design = {.name = "fmMessage",
                                 .caption = "Caption",
                                 .border = platform::FormBorder::kFixedDialog,
                                 .start = platform::FormStart::kCenterOwner,
                                 .client_width = 3945,
                                 .client_height = 1320,
                                 .controls = {{ControlKind::kButton, "cmdOk", buttons.ok},
                                              {ControlKind::kButton, "cmdCancel", buttons.cancel},
                                              {ControlKind::kLabel, "lblMessage", "Message"}}};
  for (platform::ControlDesign& control : design.controls)
    control.is_cancel_button = control.name == buttons.escape_presses;
  return design;
}

}  // namespace

fmMessage::fmMessage(platform::Toolkit& toolkit, const MessageButtons& buttons)
    : toolkit_(toolkit), form_(toolkit.CreateForm(Design(buttons))) {
  ok_clicked_ = ControlOf<Button>(*form_, "cmdOk").OnClick([this] { RunHandler([this] { Answer(0); }); });
  cancel_clicked_ =
      ControlOf<Button>(*form_, "cmdCancel").OnClick([this] { RunHandler([this] { Answer(1); }); });
}

void fmMessage::SetCaption(const std::string& caption) { form_->SetCaption(caption); }

void fmMessage::SetMessage(const std::string& message) {
  ControlOf<Label>(*form_, "lblMessage").SetText(message);
}

void fmMessage::SetState(std::int32_t state) {
  if (state == 0 || state == 1) ControlOf<Button>(*form_, "cmdCancel").SetVisible(state == 1);
}

void fmMessage::PreferCancel() { ControlOf<Button>(*form_, "cmdCancel").SetFocus(); }

void fmMessage::ShowModal() { form_->ShowModal(); }

void fmMessage::Unload() { form_->Unload(); }

void fmMessage::Answer(std::int32_t result) {
  result_ = result;
  form_->Hide();
  toolkit_.ProcessPendingEvents();
}

}  // namespace ferrowind
