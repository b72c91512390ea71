#include "ferrowind/views/common/close_dialog.h"

namespace ferrowind {

void CloseDialog(platform::Toolkit& toolkit, platform::Form& form) {
  form.Hide();
  toolkit.ProcessPendingEvents();
  form.Unload();
}

}  // namespace ferrowind
