#include "ferrowind/adapters/headless/headless_toolkit.h"

#include <algorithm>
#include <utility>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::headless {

HeadlessToolkit::HeadlessToolkit(CallLog& log, const platform::Clock& clock, ScriptErrors& errors)
    : state_(std::make_shared<ToolkitState>(ToolkitState{.log = log, .clock = clock, .errors = errors})) {}

std::shared_ptr<platform::Form> HeadlessToolkit::CreateForm(const platform::FormDesign& design) {
  state_->log.Record("toolkit.CreateForm(" + design.name + ")");
  if (missing_layouts_.contains(design.name)) {
    throw platform::Failure(platform::failure_number::kElementNotFound,
                            "There is no layout for the form " + design.name);
  }
  auto form = std::make_shared<HeadlessForm>(state_, design);
  made_forms_.push_back({design.name, form});
  return form;
}

bool HeadlessToolkit::LockUpdates(platform::Element& element) {
  const bool is_free = state_->locked == nullptr;
  state_->log.Record("toolkit.LockUpdates(" + element.Name() + ")" + (is_free ? "" : " refused"));
  if (is_free) state_->locked = &element;
  return is_free;
}

void HeadlessToolkit::UnlockUpdates() {
  state_->log.Record("toolkit.UnlockUpdates()");
  state_->locked = nullptr;
}

platform::Subscription HeadlessToolkit::After(std::int32_t milliseconds, std::function<void()> handler) {
  state_->log.Record("toolkit.After(" + std::to_string(milliseconds) + ")");
  if (milliseconds < 0) throw platform::InvalidArgument();
  const std::int64_t id = ++timer_count_;
  timers_->emplace(id, Timer{now_ + milliseconds, std::move(handler)});
  return platform::Subscription([timers = std::weak_ptr(timers_), id] {
    if (const auto all = timers.lock()) all->erase(id);
  });
}

void HeadlessToolkit::Advance(std::int32_t milliseconds) {
  const std::int64_t end = now_ + milliseconds;
  for (;;) {
    const auto next = std::min_element(
        timers_->begin(), timers_->end(),
        [](const auto& left, const auto& right) { return left.second.due < right.second.due; });
    if (next == timers_->end() || next->second.due > end) break;
    now_ = std::max(now_, next->second.due);
    const std::function<void()> handler = std::move(next->second.handler);
    timers_->erase(next);
    handler();
  }
  now_ = end;
}

std::optional<std::string> HeadlessToolkit::ChooseFileToSave(const std::string& title,
                                                             const std::string& suggested_name,
                                                             const std::vector<platform::FileKind>& kinds) {
  std::vector<std::string> suffixes;
  for (const auto& kind : kinds) suffixes.push_back(kind.suffix);
  state_->log.Record("toolkit.ChooseFileToSave(" + ArgumentText(title) + ", " + ArgumentText(suggested_name) +
                     ", " + ArgumentText(suffixes) + ")");
  return AnswerOfOperator(title);
}

std::optional<std::string> HeadlessToolkit::ChooseFileToOpen(const std::string& title,
                                                             const std::string& caption,
                                                             const std::vector<std::string>& suffixes) {
  state_->log.Record("toolkit.ChooseFileToOpen(" + ArgumentText(title) + ", " + ArgumentText(caption) + ", " +
                     ArgumentText(suffixes) + ")");
  return AnswerOfOperator(title);
}

std::optional<std::string> HeadlessToolkit::AnswerOfOperator(const std::string& title) {
  if (file_scripts_.empty()) {
    state_->errors.Raise("A file was asked for (" + title + "), but the test has no answer");
  }
  const auto script = std::move(file_scripts_.front());
  file_scripts_.pop_front();
  const auto& forms = state_->forms_at_work;
  const HeadlessForm* const owner = forms.empty() ? nullptr : forms.back();
  auto answer = script();
  if (owner != nullptr && owner->HasUnloaded()) {
    throw platform::Interruption("The window that the question for a file belongs to has closed");
  }
  return answer;
}

void HeadlessToolkit::SetClipboardText(const std::string& text) {
  state_->log.Record("toolkit.SetClipboardText(" + ArgumentText(text) + ")");
  state_->clipboard = text;
}

void HeadlessToolkit::ProcessPendingEvents() { state_->log.Record("toolkit.ProcessPendingEvents()"); }

void HeadlessToolkit::Beep() {
  state_->log.Record("toolkit.Beep()");
  ++beep_count_;
}

void HeadlessToolkit::PlaceInside(const std::string& form, const std::string& container,
                                  const std::vector<std::string>& controls) {
  for (const auto& control : controls) state_->containers[form][control] = container;
}

void HeadlessToolkit::ScriptModal(const std::string& form, ModalScript script) {
  state_->modal_scripts[form].push_back(std::move(script));
}

HeadlessForm& HeadlessToolkit::FormNamed(const std::string& name) const {
  const auto youngest = std::find_if(made_forms_.rbegin(), made_forms_.rend(), [&](const MadeForm& made) {
    return made.name == name && !made.form.expired();
  });
  if (youngest == made_forms_.rend()) state_->errors.Raise("There is no form " + name);
  return *youngest->form.lock();
}

std::size_t HeadlessToolkit::CountOfForms(const std::string& name) const {
  return static_cast<std::size_t>(std::count_if(made_forms_.begin(), made_forms_.end(),
                                                [&](const MadeForm& made) { return made.name == name; }));
}

std::string HeadlessToolkit::LockedElement() const {
  return state_->locked == nullptr ? std::string() : state_->locked->Name();
}

std::size_t HeadlessToolkit::WaitingScripts() const {
  std::size_t count = 0;
  for (const auto& [form, scripts] : state_->modal_scripts) count += scripts.size();
  return count;
}

}  // namespace ferrowind::headless
