#include "ferrowind/views/planning/silence_bar.h"

#include <utility>

#include "ferrowind/data/module_state.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/data/runtime_failure.h"
#include "ferrowind/data/said.h"
#include "ferrowind/platform/toolkit/form.h"

namespace ferrowind {
namespace {

using platform::ControlKind;
using platform::ControlOf;
using std::chrono::milliseconds;

constexpr milliseconds kPauseOfAnswers{1000};
/// Connecting takes several looks.
constexpr milliseconds kPauseOfSilence{100};

}  // namespace

std::vector<platform::ControlDesign> SilenceBar::Controls() {
  return {{ControlKind::kPanel, "pnlSilence"},
          {ControlKind::kLabel, "lblSilence",
           "The server does not answer. Nothing can be read or changed until it does."},
          {ControlKind::kLabel, "lblNextTry"},
          {ControlKind::kButton, "cmdTryNow", "Try now"}};
}

void SilenceBar::AddTo(platform::FormDesign& design) {
  for (platform::ControlDesign& control : Controls()) design.controls.push_back(std::move(control));
}

SilenceBar::SilenceBar(const platform::Platform& platform, platform::Form& form)
    : platform_(platform),
      panel_(form.ControlNamed("pnlSilence")),
      text_(ControlOf<platform::Label>(form, "lblSilence")),
      countdown_(ControlOf<platform::Label>(form, "lblNextTry")),
      clicked_(ControlOf<platform::Button>(form, "cmdTryNow").OnClick([this] {
        RunHandler(platform_, [this] { TryNow(); });
      })) {
  panel_.SetVisible(false);
}

void SilenceBar::Start(std::function<void()> answered) {
  answered_ = std::move(answered);
  if (platform_.change_watches == nullptr) return;
  try {
    watch_ = platform_.change_watches->WatchSilence(DictionaryObject().dic_ConnectionString());
  } catch (...) {
    TraceFailureBeingHandled();
  }
  if (watch_) LookLater(kPauseOfAnswers);
}

void SilenceBar::Stop() {
  next_look_.Reset();
  watch_.reset();
}

void SilenceBar::LookLater(milliseconds pause) {
  next_look_ = platform_.toolkit.After(static_cast<std::int32_t>(pause.count()),
                                       [this] { RunHandler(platform_, [this] { Look(); }); });
}

void SilenceBar::Look() {
  if (!watch_) return;
  const auto until_next_try = watch_->Look();
  LookLater(until_next_try ? kPauseOfSilence : kPauseOfAnswers);
  if (until_next_try) return Tell(*until_next_try);
  if (std::exchange(seconds_, 0) == 0) return;
  panel_.SetVisible(false);
  has_asked_ = false;
  if (answered_) answered_();
}

void SilenceBar::Tell(milliseconds until_next_try) {
  const auto seconds = std::chrono::ceil<std::chrono::seconds>(until_next_try).count();
  const auto before = std::exchange(seconds_, seconds);
  if (seconds == before) return;
  countdown_.SetText(SaidOfNumber(platform_, seconds, "Next try in 1 second", "Next try in %n seconds"));
  if (before == 0) {
    panel_.SetVisible(true);
    text_.Announce();
  }
  if (std::exchange(has_asked_, false)) countdown_.Announce();
}

void SilenceBar::TryNow() {
  if (!watch_) return;
  watch_->TryNow();
  Look();
  has_asked_ = seconds_ != 0;
}

}  // namespace ferrowind
