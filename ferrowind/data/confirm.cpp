#include "ferrowind/data/confirm.h"

#include "ferrowind/views/dialogs/fm_message.h"

namespace ferrowind {

namespace {

constexpr std::int32_t kWithCancel = 1;
constexpr std::int32_t kOk = 0;

std::int32_t AnswerTo(fmMessage& dialog, const std::string& caption, const std::string& message,
                      std::int32_t state) {
  dialog.SetMessage(message);
  dialog.SetCaption(caption);
  dialog.SetState(state);
  dialog.ShowModal();
  const std::int32_t result = dialog.Result();
  dialog.Unload();
  return result;
}

}  // namespace

std::int32_t Confirm(platform::Toolkit& toolkit, const std::string& caption, const std::string& message,
                     std::int32_t state) {
  fmMessage dialog(toolkit);
  return AnswerTo(dialog, caption, message, state);
}

bool ConfirmLoss(platform::Toolkit& toolkit, const std::string& caption, const std::string& message) {
  fmMessage dialog(toolkit);
  dialog.PreferCancel();
  return AnswerTo(dialog, caption, message, kWithCancel) == kOk;
}

}  // namespace ferrowind
