#pragma once

#include <memory>
#include <set>
#include <string>
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

  // What a test can ask
  // -----------------------------------------------------------------------------------------

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
  struct MadeForm {
    std::string name;
    std::weak_ptr<HeadlessForm> form;
  };

  std::shared_ptr<ToolkitState> state_;
  std::vector<MadeForm> made_forms_;
  std::set<std::string> missing_layouts_;
  int beep_count_ = 0;
};

}  // namespace ferrowind::headless
