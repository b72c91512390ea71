#include "ferrowind/data/confirm.h"

#include "ferrowind/views/dialogs/fm_message.h"

namespace ferrowind {

namespace {

constexpr std::int32_t kOkAlone = 0;
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

bool Ask(platform::Toolkit& toolkit, const Question& question) {
  fmMessage dialog(toolkit, {.ok = question.verb, .cancel = question.cancel, .escape_presses = "cmdCancel"});
  if (question.prefers_cancel) dialog.PreferCancel();
  return AnswerTo(dialog, question.caption, question.message, kWithCancel) == kOk;
}

void Inform(platform::Toolkit& toolkit, const std::string& caption, const std::string& message) {
  fmMessage dialog(toolkit, {.escape_presses = "cmdOk"});
  (void)AnswerTo(dialog, caption, message, kOkAlone);
}

}  // namespace ferrowind
