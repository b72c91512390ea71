#include "host/desktop/operator_news.h"

#include <algorithm>
#include <utility>

namespace ferrowind::host {

using platform::ActionKind;
using platform::ActionStep;
using platform::OperatorAction;

namespace {

/// The answer for which the component's own message gives the very reason.
constexpr std::int32_t kNameInUse = 2;

/// Whether the component itself has told the operator why the step was not done.
bool IsShown(const ActionRecord& record, const ActionStep& step) {
  if (step.failure) return record.shown_failures.contains(step.failure->Description());
  const ActionKind kind = record.action.kind;
  return (kind == ActionKind::kAddRule || kind == ActionKind::kEditRule) && step.return_value == kNameInUse;
}

std::string Timed(const std::string& time, const std::string& text) { return time + ": " + text; }

bool Holds(const std::vector<std::string>& texts, const std::string& text) {
  return std::find(texts.begin(), texts.end(), text) != texts.end();
}

}  // namespace

OperatorNews::OperatorNews(const platform::Locale& locale, std::function<std::string()> time_text,
                           const platform::Words* words)
    : words_(locale, words), time_text_(std::move(time_text)) {}

// While an action runs
// ------------------------------------------------------------------------------------------------

void OperatorNews::ActionBegan(const OperatorAction& action) {
  if (++depth_ > 1) return;
  ++actions_;
  record_.emplace();
  record_->action = action;
  action_began_.Emit();
  TellBusy();
}

void OperatorNews::WriteEnded(const ActionStep& step) {
  if (record_) record_->writes.push_back(step);
}

void OperatorNews::ReadEnded(const ActionStep& step) {
  if (record_) record_->reads.push_back(step);
}

void OperatorNews::DaysReread(std::int32_t changed) {
  if (record_) record_->changed_days = changed;
}

void OperatorNews::ActionEnded() {
  if (depth_ == 0 || --depth_ > 0) return;
  const ActionRecord record = std::move(*record_);
  record_.reset();
  TellBusy();
  if (!record.writes.empty()) SetNote(words_.Success(record));
  Conclude(record, true);
  if (std::any_of(record.writes.begin(), record.writes.end(), IsDone)) changed_.Emit();
}

void OperatorNews::QuestionOpens(const OperatorAction& action) {
  note_before_question_ = note_;
  SetNote(words_.Question(action));
}

void OperatorNews::QuestionClosed() { SetNote(note_before_question_); }

void OperatorNews::MessageOpens() {
  ++open_messages_;
  TellBusy();
  if (record_) Conclude(*record_, false);
}

void OperatorNews::MessageClosed() {
  --open_messages_;
  TellBusy();
}

void OperatorNews::FailureShown(const std::string& description) {
  if (record_) record_->shown_failures.insert(description);
}

void OperatorNews::TellBusy() {
  const bool is_busy = record_.has_value() && open_messages_ == 0;
  if (std::exchange(was_busy_, is_busy) != is_busy) busy_changed_.Emit(is_busy);
}

// What becomes of it
// ------------------------------------------------------------------------------------------------

void OperatorNews::Conclude(const ActionRecord& record, bool is_over) {
  const std::string before = Trouble();
  ConcludeWrites(record, is_over);
  ConcludeReads(record, is_over);
  if (const std::string now = Trouble(); now != before) trouble_changed_.Emit(now);
}

void OperatorNews::ConcludeWrites(const ActionRecord& record, bool is_over) {
  const auto is_refused = [](const ActionStep& write) { return !IsDone(write); };
  const auto is_untold = [&](const ActionStep& write) { return !IsDone(write) && !IsShown(record, write); };
  if (std::any_of(record.writes.begin(), record.writes.end(), is_untold)) {
    TellRefused(words_.Refusal(record));
  } else if (is_over && !record.writes.empty() &&
             std::none_of(record.writes.begin(), record.writes.end(), is_refused)) {
    refused_changes_.clear();
  }
}

void OperatorNews::TellRefused(const std::string& text) {
  std::erase_if(refused_changes_,
                [&](const RefusedChange& told) { return told.action == actions_ || told.text == text; });
  refused_changes_.insert(refused_changes_.begin(), {actions_, text, time_text_()});
}

void OperatorNews::ConcludeReads(const ActionRecord& record, bool is_over) {
  std::vector<std::string> told;
  for (const ActionStep& write : record.writes) {
    if (!IsDone(write)) told.push_back(words_.Reason(record.action.kind, write));
  }
  bool has_failed = false;
  std::vector<std::string> reasons;
  for (const ActionStep& read : record.reads) {
    if (IsDone(read)) continue;
    has_failed = true;
    const std::string reason = words_.Reason(record.action.kind, read);
    if (IsShown(record, read) || Holds(told, reason) || Holds(reasons, reason)) continue;
    reasons.push_back(reason);
  }
  if (!reasons.empty()) {
    failed_read_ = Timed(time_text_(), words_.FailedRead(record.action, reasons));
  } else if (is_over && !has_failed && !record.reads.empty()) {
    failed_read_.clear();
  }
}

void OperatorNews::Dismiss() {
  if (Trouble().empty()) return;
  refused_changes_.clear();
  failed_read_.clear();
  trouble_changed_.Emit({});
}

std::string OperatorNews::Trouble() const {
  std::string trouble;
  const auto add = [&](const std::string& text) { trouble += (trouble.empty() ? "" : "\n") + text; };
  for (const RefusedChange& refused : refused_changes_) add(Timed(refused.time, refused.text));
  if (!failed_read_.empty()) add(failed_read_);
  return trouble;
}

void OperatorNews::SetNote(const std::string& note) {
  if (note == note_) return;
  note_ = note;
  note_changed_.Emit(note_);
}

platform::Subscription OperatorNews::OnTrouble(TextHandler handler) {
  return trouble_changed_.Subscribe(std::move(handler));
}

platform::Subscription OperatorNews::OnNote(TextHandler handler) {
  return note_changed_.Subscribe(std::move(handler));
}

platform::Subscription OperatorNews::OnBusy(std::function<void(bool)> handler) {
  return busy_changed_.Subscribe(std::move(handler));
}

platform::Subscription OperatorNews::OnChange(std::function<void()> handler) {
  return changed_.Subscribe(std::move(handler));
}

platform::Subscription OperatorNews::OnAction(std::function<void()> handler) {
  return action_began_.Subscribe(std::move(handler));
}

}  // namespace ferrowind::host
