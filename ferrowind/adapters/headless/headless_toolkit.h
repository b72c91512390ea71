#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/headless/headless_form.h"
#include "ferrowind/adapters/headless/toolkit_state.h"
#include "ferrowind/platform/toolkit/toolkit.h"

namespace ferrowind::headless {

/// A toolkit without a screen, that a test plays the operator of.
///
/// It has a layout for every form, with every control that the form's design asks for.
class HeadlessToolkit : public platform::Toolkit {
 public:
  /// All three must outlive the toolkit and the forms that it made.
  HeadlessToolkit(CallLog& log, const platform::Clock& clock, ScriptErrors& errors);

  [[nodiscard]] std::shared_ptr<platform::Form> CreateForm(const platform::FormDesign& design) override;
  [[nodiscard]] platform::ScreenSize Screen() const override { return state_->screen; }
  [[nodiscard]] float TwipsPerPixelX() const override { return state_->twips_per_pixel; }
  bool LockUpdates(platform::Element& element) override;
  void UnlockUpdates() override;
  [[nodiscard]] platform::Subscription After(std::int32_t milliseconds,
                                             std::function<void()> handler) override;
  [[nodiscard]] std::optional<std::string> ChooseFileToSave(
      const std::string& title, const std::string& suggested_name,
      const std::vector<platform::FileKind>& kinds) override;
  [[nodiscard]] std::optional<std::string> ChooseFileToOpen(
      const std::string& title, const std::string& caption,
      const std::vector<std::string>& suffixes) override;
  void SetClipboardText(const std::string& text) override;
  void ProcessPendingEvents() override;
  void Beep() override;

  // What a test sets up
  // -----------------------------------------------------------------------------------------

  void SetScreen(float width, float height) { state_->screen = {width, height}; }
  void SetTwipsPerPixelX(float twips) { state_->twips_per_pixel = twips; }
  /// From now on there is no layout for forms of that name.
  void RemoveLayout(const std::string& form) { missing_layouts_.insert(form); }
  /// In forms made from now on, those controls stand in the control `container`, and cannot be used while
  /// that cannot.
  void PlaceInside(const std::string& form, const std::string& container,
                   const std::vector<std::string>& controls);
  /// From now on there is an animated image under that path.
  void AddAnimation(const std::string& path) { state_->animations.insert(path); }
  /// `script` is run when a form of that name is next shown modally and has no script that was added before.
  /// It plays the operator and must leave the form hidden or unloaded. A modal form without a script is a
  /// script error.
  void ScriptModal(const std::string& form, ModalScript script);

  /// The operator will choose that file, or none, the next time that one is asked for and no answer waits. A
  /// question without an answer is a script error.
  void AnswerNextFile(std::optional<std::string> path) {
    ScriptNextFile([path = std::move(path)] { return path; });
  }
  /// The same, with what happens while the question is on show; returns the file, or nothing.
  void ScriptNextFile(std::function<std::optional<std::string>()> script) {
    file_scripts_.push_back(std::move(script));
  }
  /// Lets time pass: what `After` was asked for meanwhile is called, in the order of its time.
  void Advance(std::int32_t milliseconds);

  // What a test can ask
  // -----------------------------------------------------------------------------------------

  /// How many calls `After` was asked for and has neither made nor called off.
  [[nodiscard]] std::size_t WaitingTimers() const { return timers_->size(); }
  /// The youngest living form of that name; script error when there is none.
  [[nodiscard]] HeadlessForm& FormNamed(const std::string& name) const;
  /// How many forms of that name were made so far.
  [[nodiscard]] std::size_t CountOfForms(const std::string& name) const;
  /// The name of the element that is locked against repainting, "" for none.
  [[nodiscard]] std::string LockedElement() const;
  [[nodiscard]] int BeepCount() const { return beep_count_; }
  /// The text that was copied last, by the operator or the program.
  [[nodiscard]] const std::string& Clipboard() const { return state_->clipboard; }
  /// How many scripts wait for a modal form that was not shown yet.
  [[nodiscard]] std::size_t WaitingScripts() const;

 private:
  [[nodiscard]] std::optional<std::string> AnswerOfOperator(const std::string& title);

  struct MadeForm {
    std::string name;
    std::weak_ptr<HeadlessForm> form;
  };

  struct Timer {
    std::int64_t due;
    std::function<void()> handler;
  };

  std::shared_ptr<ToolkitState> state_;
  /// By the order of the calls for them. Subscriptions may outlive the toolkit.
  std::shared_ptr<std::map<std::int64_t, Timer>> timers_ = std::make_shared<std::map<std::int64_t, Timer>>();
  std::int64_t timer_count_ = 0;
  /// Milliseconds since the toolkit was made.
  std::int64_t now_ = 0;
  std::vector<MadeForm> made_forms_;
  std::set<std::string> missing_layouts_;
  std::deque<std::function<std::optional<std::string>()>> file_scripts_;
  int beep_count_ = 0;
};

}  // namespace ferrowind::headless
