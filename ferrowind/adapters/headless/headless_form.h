#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "ferrowind/adapters/headless/control_host.h"
#include "ferrowind/adapters/headless/headless_control.h"
#include "ferrowind/adapters/headless/toolkit_state.h"
#include "ferrowind/platform/events/signal.h"
#include "ferrowind/platform/toolkit/form.h"

namespace ferrowind::headless {

class HeadlessButton;

/// A form that is nowhere to be seen. Its frame takes `kFrameWidth` and `kFrameHeight` of its size, unless
/// its border is `kNone`.
class HeadlessForm : public platform::Form,
                     public ControlHost,
                     public std::enable_shared_from_this<HeadlessForm> {
 public:
  static constexpr float kFrameWidth = 120;
  static constexpr float kFrameHeight = 405;

  HeadlessForm(std::shared_ptr<ToolkitState> toolkit, platform::FormDesign design);
  ~HeadlessForm() override;

  [[nodiscard]] const std::string& Name() const override { return design_.name; }
  [[nodiscard]] std::string Caption() const override { return design_.caption; }
  void SetCaption(const std::string& caption) override;
  [[nodiscard]] float Left() const override { return left_; }
  void SetLeft(float left) override;
  [[nodiscard]] float Top() const override { return top_; }
  void SetTop(float top) override;
  [[nodiscard]] float Width() const override { return width_; }
  void SetWidth(float width) override;
  [[nodiscard]] float Height() const override { return height_; }
  void SetHeight(float height) override;
  [[nodiscard]] float InnerHeight() const override;
  [[nodiscard]] platform::Control& ControlNamed(const std::string& name) override;
  void Load() override;
  void Show() override;
  void ShowModal() override;
  void Raise() override;
  void Hide() override;
  [[nodiscard]] bool IsShown() const override { return is_shown_; }
  bool Unload() override;
  [[nodiscard]] platform::Subscription OnLoad(std::function<void()> handler) override;
  [[nodiscard]] platform::Subscription OnResize(std::function<void()> handler) override;
  [[nodiscard]] platform::Subscription OnCloseQuery(std::function<void(bool& cancel)> handler) override;

  [[nodiscard]] CallLog& Log() override { return toolkit_->log; }
  [[nodiscard]] std::shared_ptr<void> Keep() override;
  void MoveFocusTo(ControlCore& control) override;
  void RequireInput(const std::string& action) override;
  [[nodiscard]] ScriptErrors& Errors() override { return toolkit_->errors; }

  // What a test can ask
  // -----------------------------------------------------------------------------------------

  [[nodiscard]] bool IsLoaded() const { return is_loaded_; }
  [[nodiscard]] bool HasUnloaded() const { return has_unloaded_; }
  [[nodiscard]] const platform::FormDesign& Design() const { return design_; }
  [[nodiscard]] bool IsMinimised() const { return is_minimised_; }
  /// The name of the control that has the keyboard focus, "" for none.
  [[nodiscard]] std::string FocusedControl() const;
  /// The control of that name as the headless kind `Kind`, for example
  /// `form.Part<HeadlessButton>("cmdOk").Click()`.
  template <typename Kind>
  [[nodiscard]] Kind& Part(const std::string& name) {
    return platform::ControlOf<Kind>(*this, name);
  }

  // What the operator does
  // --------------------------------------------------------------------------------------

  /// Closes the form by its frame; true when it closed. False, with nothing asked, when its border offers no
  /// closing.
  bool CloseByOperator();
  /// Minimises the form; script error for a border that offers no such box.
  void MinimiseByOperator();
  /// Drags the frame to that outer size in twips; script error for a border that cannot be dragged.
  void ResizeByOperator(float width, float height);
  /// Types on the keyboard: into the focused text box, else into the one of the design that takes typing.
  void TypeText(const std::string& text);
  /// Presses the shortcut of a tool, written as its design has it; does nothing when no tool that the
  /// operator can use has it.
  void PressShortcut(const std::string& shortcut);
  /// Presses Enter: the focused table, text box or button that takes the key or else the default button, if
  /// the operator can use it.
  void PressEnter();
  /// Presses Escape: the cancel button, if there is one that the operator can use, or else what closes the
  /// form, if it is designed so.
  void PressEscape();

 private:
  [[nodiscard]] std::unique_ptr<platform::Control> MakeControl(const platform::ControlDesign& design);
  [[nodiscard]] ControlCore& CoreOf(const std::string& name) const;
  void ChangeSize(float width, float height);
  void LoadOnce();
  void Appear();
  void PlaceAsDesigned();
  void FocusFirstControl();
  bool Close();
  /// The form that this one belongs to when it is shown modally now; null for none.
  [[nodiscard]] const HeadlessForm* ModalOwner() const;
  /// Hides the modal forms that belong to this one, directly or through another.
  void InterruptModalForms();
  void RunModalScript();
  void PressButton(const std::string& name);

  std::shared_ptr<ToolkitState> toolkit_;
  platform::FormDesign design_;
  float left_ = 0;
  float top_ = 0;
  float width_ = 0;
  float height_ = 0;
  bool is_loaded_ = false;
  bool is_shown_ = false;
  bool was_shown_ = false;
  bool is_minimised_ = false;
  bool is_closing_ = false;
  bool has_unloaded_ = false;
  std::map<std::string, std::unique_ptr<platform::Control>> controls_;
  ControlCore* focused_ = nullptr;
  platform::Signal<> loaded_;
  platform::Signal<> resized_;
  platform::Signal<bool&> close_query_;
};

}  // namespace ferrowind::headless
