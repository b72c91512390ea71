#include "ferrowind/views/planning/follow_bar.h"

#include <chrono>

#include "ferrowind/data/kept_pending_failures.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/data/runtime_failure.h"
#include "ferrowind/data/said.h"
#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/history_words.h"
#include "ferrowind/planning/moment_text.h"
#include "ferrowind/platform/toolkit/button.h"

namespace ferrowind {
namespace {

using planning::CalendarNews;
using platform::ControlKind;
using platform::ControlOf;

planning::ToldEntry InWords(const planning::HistoryEntry& call) {
  const auto currencies = planning::CurrencyList::Load();
  const planning::HistoryWords words(currencies, planning::FindEntry);
  return words.Tell(call);
}

}  // namespace

platform::WindowParts FollowBar::Parts() {
  return {.controls = {{ControlKind::kPanel, "pnlFollow"},
                       {ControlKind::kLabel, "lblFollow"},
                       {ControlKind::kButton, "cmdFollow", "Refresh"}}};
}

FollowBar::FollowBar(const PlanningContext& context, platform::CalendarsScene& scene)
    : platform_(context.platform),
      scene_(scene),
      panel_(scene.Window().ControlNamed("pnlFollow")),
      text_(ControlOf<platform::Label>(scene.Window(), "lblFollow")),
      refresh_clicked_(ControlOf<platform::Button>(scene.Window(), "cmdFollow").OnClick([this] {
        RunHandler(platform_, [this] { scene_.Refresh(); });
      })) {
  panel_.SetVisible(false);
}

void FollowBar::Started() {
  if (platform_.change_watches == nullptr) return;
  try {
    watch_ = platform_.change_watches->Watch(DictionaryObject().dic_ConnectionString());
  } catch (...) {
    TraceFailureBeingHandled();
  }
  if (watch_) LookLater();
}

void FollowBar::Closing() {
  next_look_.Reset();
  watch_.reset();
}

void FollowBar::DaysShown() {
  // After a failed read the old days are on show still, and what the bar says of them.
  if (scene_.Days().Records() != compared_) panel_.SetVisible(false);
}

void FollowBar::LookLater() {
  next_look_ = platform_.toolkit.After(static_cast<std::int32_t>(watch_->Pause().count()),
                                       [this] { RunHandler(platform_, [this] { Look(); }); });
}

void FollowBar::Look() {
  const KeptPendingFailures of_the_operators_calls;
  try {
    if (watch_->Look()) is_due_ = true;
    if (is_due_) Compare();
  } catch (...) {
    TraceFailureBeingHandled();
  }
  LookLater();
}

void FollowBar::Compare() {
  const auto calendar = scene_.OnShow();
  const auto days = scene_.Days().Records();
  if (calendar && days) {
    const CalendarNews news = planning::NewsSince(*days, calendar->currency_id, calendar->year);
    compared_ = days;
    Tell(news);
  }
  is_due_ = false;
}

void FollowBar::Tell(const CalendarNews& news) {
  if (news.kind == CalendarNews::Kind::kNone) {
    panel_.SetVisible(false);
    return;
  }
  const std::string sentence = SentenceOf(news);
  if (panel_.Visible() && text_.Text() == sentence) return;
  text_.SetText(sentence);
  panel_.SetVisible(true);
  text_.Announce();
}

std::string FollowBar::SentenceOf(const CalendarNews& news) const {
  const bool is_removed = news.kind == CalendarNews::Kind::kRemoved;
  if (!news.call) {
    return Said(platform_,
                is_removed ? "This calendar was removed." : "This calendar was changed since it was read.");
  }
  return Said(platform_,
              is_removed ? "%1 removed this calendar, %2: %3." : "%1 changed this calendar, %2: %3.",
              {news.call->user, planning::MomentText(platform_.locale, news.call->moment),
               InWords(*news.call).Sentence()});
}

}  // namespace ferrowind
