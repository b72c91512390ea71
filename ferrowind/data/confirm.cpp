#include "ferrowind/data/confirm.h"

#include "ferrowind/views/dialogs/fm_message.h"

namespace ferrowind {

std::int32_t Confirm(platform::Toolkit& toolkit, const std::string& caption, const std::string& message,
                     std::int32_t state) {
  fmMessage dialog(toolkit);
  dialog.SetMessage(message);
  dialog.SetCaption(caption);
  dialog.SetState(state);
  dialog.ShowModal();
  const std::int32_t result = dialog.Result();
  dialog.Unload();
  return result;
}

}  // namespace ferrowind
