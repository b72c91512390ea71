#include "ferrowind/views/dialogs/fm_wait.h"

namespace ferrowind {
namespace {

platform::FormDesign Design() {
  return {.name = "fmWait",
          .caption = "",
          .border = platform::FormBorder::kNone,
          .start = platform::FormStart::kCenterScreen,
          .client_width = 4680,
          .client_height = 750,
          .controls = {{platform::ControlKind::kLabel, "lblMessage", "Message"}}};
}

}  // namespace

fmWait::fmWait(platform::Toolkit& toolkit) : form_(toolkit.CreateForm(Design())) {}

void fmWait::SetMessage(const std::string& message) {
  platform::ControlOf<platform::Label>(*form_, "lblMessage").SetText(message);
}

void fmWait::Show() { form_->Show(); }

void fmWait::Unload() { form_->Unload(); }

}  // namespace ferrowind
