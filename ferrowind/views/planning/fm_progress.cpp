#include "ferrowind/views/planning/fm_progress.h"

#include <cstdint>
#include <utility>

#include "ferrowind/data/run_handler.h"
#include "ferrowind/data/said.h"
#include "ferrowind/platform/toolkit/button.h"

namespace ferrowind {
namespace {

using platform::ControlKind;
using platform::ControlOf;

/// Between two steps, for what the next one is about to be painted and a click to be heard.
constexpr std::int32_t kPauseMilliseconds = 15;

platform::FormDesign Design() {
  return {.name = "fmProgress",
          .border = platform::FormBorder::kClosableDialog,
          .start = platform::FormStart::kCenterOwner,
          .client_width = 5400,
          .client_height = 1500,
          .controls = {
              {ControlKind::kLabel, "lblStep"},
              {.kind = ControlKind::kButton, .name = "cmdStop", .text = "Stop", .is_cancel_button = true}}};
}

}  // namespace

fmProgress::fmProgress(const platform::Platform& platform, const std::string& caption, Work work)
    : platform_(platform),
      work_(std::move(work)),
      form_(platform.toolkit.CreateForm(Said(platform, Design()))),
      step_(ControlOf<platform::Label>(*form_, "lblStep")),
      stop_(ControlOf<platform::Button>(*form_, "cmdStop").OnClick([this] {
        RunHandler(platform_, [this] { Close(); });
      })) {
  form_->SetCaption(caption);
}

void fmProgress::ShowModal() {
  GoOn();
  form_->ShowModal();
  // Stopped or not, nothing more is to be done.
  due_ = {};
  if (failure_) std::rethrow_exception(failure_);
}

void fmProgress::GoOn() {
  const auto next = work_.next();
  if (!next) return Close();
  step_.SetText(*next);
  due_ = platform_.toolkit.After(kPauseMilliseconds, [this] { RunHandler(platform_, [this] { Step(); }); });
}

void fmProgress::Step() {
  try {
    work_.step();
    GoOn();
  } catch (...) {
    failure_ = std::current_exception();
    Close();
  }
}

void fmProgress::Close() { (void)form_->Unload(); }

}  // namespace ferrowind
