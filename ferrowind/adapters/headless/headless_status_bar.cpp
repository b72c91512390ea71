#include "ferrowind/adapters/headless/headless_status_bar.h"

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::headless {
namespace {

void RequirePanel(std::int32_t panel) {
  if (panel != 1) throw platform::SubscriptOutOfRange();
}

}  // namespace

std::string HeadlessStatusBar::PanelText(std::int32_t panel) const {
  RequirePanel(panel);
  return text_;
}

void HeadlessStatusBar::SetPanelText(std::int32_t panel, const std::string& text) {
  core_.Record("SetPanelText", {panel, text});
  RequirePanel(panel);
  text_ = text;
}

}  // namespace ferrowind::headless
