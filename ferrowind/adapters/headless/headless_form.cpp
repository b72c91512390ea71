#include "ferrowind/adapters/headless/headless_form.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_table.h"
#include "ferrowind/adapters/headless/headless_text_box.h"
#include "ferrowind/adapters/headless/headless_tool_bar.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::headless {
namespace {

using platform::ControlKind;
using platform::FormBorder;

void RequireSize(float size) {
  if (!std::isfinite(size) || size < 0) throw platform::InvalidArgument();
}

bool CanHaveFocus(ControlKind kind) {
  switch (kind) {
    case ControlKind::kButton:
    case ControlKind::kTextBox:
    case ControlKind::kTextView:
    case ControlKind::kDropDownList:
    case ControlKind::kDatePicker:
    case ControlKind::kTree:
    case ControlKind::kGrid:
    case ControlKind::kTable:
    case ControlKind::kYearView:
      return true;
    default:
      return false;
  }
}

}  // namespace

HeadlessForm::HeadlessForm(std::shared_ptr<ToolkitState> toolkit, platform::FormDesign design)
    : toolkit_(std::move(toolkit)), design_(std::move(design)) {
  const bool has_frame = design_.border != FormBorder::kNone;
  width_ = design_.client_width + (has_frame ? kFrameWidth : 0);
  height_ = design_.client_height + (has_frame ? kFrameHeight : 0);
  for (const auto& control : design_.controls) controls_.emplace(control.name, MakeControl(control));
  for (const auto& [control, container] : toolkit_->containers[design_.name]) {
    if (controls_.contains(control) && controls_.contains(container))
      CoreOf(control).SetContainer(&CoreOf(container));
  }
}

HeadlessForm::~HeadlessForm() {
  InterruptModalForms();
  // A lock on what no longer exists is off.
  if (toolkit_->locked == this) toolkit_->locked = nullptr;
  for (const auto& [name, control] : controls_) {
    if (toolkit_->locked == control.get()) toolkit_->locked = nullptr;
  }
}

// Looks and place
// -----------------------------------------------------------------------------------------------

void HeadlessForm::SetCaption(const std::string& caption) {
  Log().Record(CallText(Name(), "SetCaption", {caption}));
  design_.caption = caption;
}

void HeadlessForm::SetLeft(float left) {
  Log().Record(CallText(Name(), "SetLeft", {left}));
  left_ = left;
}

void HeadlessForm::SetTop(float top) {
  Log().Record(CallText(Name(), "SetTop", {top}));
  top_ = top;
}

void HeadlessForm::SetWidth(float width) {
  Log().Record(CallText(Name(), "SetWidth", {width}));
  RequireSize(width);
  const auto keep = Keep();
  ChangeSize(width, height_);
}

void HeadlessForm::SetHeight(float height) {
  Log().Record(CallText(Name(), "SetHeight", {height}));
  RequireSize(height);
  const auto keep = Keep();
  ChangeSize(width_, height);
}

float HeadlessForm::InnerHeight() const {
  return std::max(0.0F, height_ - (design_.border == FormBorder::kNone ? 0 : kFrameHeight));
}

void HeadlessForm::ChangeSize(float width, float height) {
  if (width == width_ && height == height_) return;
  width_ = width;
  height_ = height;
  if (is_loaded_) resized_.Emit();
}

platform::Control& HeadlessForm::ControlNamed(const std::string& name) {
  const auto found = controls_.find(name);
  if (found == controls_.end()) throw platform::NoSuchControl(*this, name);
  return *found->second;
}

ControlCore& HeadlessForm::CoreOf(const std::string& name) const {
  const auto found = controls_.find(name);
  if (found == controls_.end()) throw platform::NoSuchControl(*this, name);
  return dynamic_cast<CoreOwner&>(*found->second).Core();
}

// Life
// ----------------------------------------------------------------------------------------------------------

void HeadlessForm::Load() {
  Log().Record(CallText(Name(), "Load"));
  const auto keep = Keep();
  LoadOnce();
}

void HeadlessForm::LoadOnce() {
  if (is_loaded_ || has_unloaded_) return;
  is_loaded_ = true;
  loaded_.Emit();
}

void HeadlessForm::Show() {
  Log().Record(CallText(Name(), "Show"));
  const auto keep = Keep();
  LoadOnce();
  if (!has_unloaded_) Appear();
}

void HeadlessForm::ShowModal() {
  Log().Record(CallText(Name(), "ShowModal"));
  const HeadlessForm* const owner = ModalOwner();
  const auto keep = Keep();
  LoadOnce();
  if (has_unloaded_) return;

  class InFront {
   public:
    InFront(ToolkitState& toolkit, ModalForm shown) : toolkit_(toolkit) {
      toolkit_.modal_forms.push_back(shown);
    }
    ~InFront() { toolkit_.modal_forms.pop_back(); }
    InFront(const InFront&) = delete;
    InFront& operator=(const InFront&) = delete;
    [[nodiscard]] bool IsInterrupted() const { return toolkit_.modal_forms.back().is_interrupted; }

   private:
    ToolkitState& toolkit_;
  };
  const InFront in_front(*toolkit_, {.form = this, .owner = owner});
  Appear();
  // A handler of the form's own events may have hidden it already.
  if (is_shown_) RunModalScript();
  if (in_front.IsInterrupted()) {
    throw platform::Interruption("The window that the form " + Name() + " belongs to has closed");
  }
}

void HeadlessForm::RunModalScript() {
  auto& scripts = toolkit_->modal_scripts[Name()];
  if (scripts.empty()) {
    is_shown_ = false;
    Errors().Raise("The form " + Name() + " was shown modally, but the test has no script for it");
  }
  const ModalScript script = std::move(scripts.front());
  scripts.pop_front();
  try {
    script(*this);
  } catch (...) {
    is_shown_ = false;
    throw;
  }
  if (is_shown_) {
    is_shown_ = false;
    Errors().Raise("The script of the modal form " + Name() + " ended and left the form open");
  }
}

const HeadlessForm* HeadlessForm::ModalOwner() const {
  const auto& forms = toolkit_->forms_at_work;
  const auto owner = std::find_if(forms.rbegin(), forms.rend(), [this](const HeadlessForm* form) {
    return form != this && form->is_shown_;
  });
  return owner == forms.rend() ? nullptr : *owner;
}

void HeadlessForm::InterruptModalForms() {
  std::vector<const HeadlessForm*> gone{this};
  for (ModalForm& modal : toolkit_->modal_forms) {
    if (std::find(gone.begin(), gone.end(), modal.owner) == gone.end()) continue;
    gone.push_back(modal.form);
    // One that is hidden already was answered just before.
    if (!modal.form->is_shown_) continue;
    modal.is_interrupted = true;
    modal.form->is_shown_ = false;
  }
}

void HeadlessForm::Raise() {
  Log().Record(CallText(Name(), "Raise"));
  if (is_shown_) is_minimised_ = false;
}

void HeadlessForm::MinimiseByOperator() {
  const auto keep = Keep();
  const std::string action = CallText(Name(), "MinimiseByOperator");
  RequireInput(action);
  if (design_.border != FormBorder::kSizable)
    Errors().Raise("The operator cannot minimise the form " + Name());
  Log().Record("operator." + action);
  is_minimised_ = true;
}

void HeadlessForm::Hide() {
  Log().Record(CallText(Name(), "Hide"));
  is_shown_ = false;
}

bool HeadlessForm::Unload() {
  Log().Record(CallText(Name(), "Unload"));
  const auto keep = Keep();
  return Close();
}

bool HeadlessForm::Close() {
  if (is_closing_) return false;
  if (has_unloaded_) return true;
  if (is_loaded_) {
    bool cancel = false;
    is_closing_ = true;
    try {
      close_query_.Emit(cancel);
    } catch (...) {
      is_closing_ = false;
      throw;
    }
    is_closing_ = false;
    if (cancel) return false;
  }
  has_unloaded_ = true;
  is_shown_ = false;
  InterruptModalForms();
  return true;
}

void HeadlessForm::Appear() {
  if (is_shown_) return;
  is_shown_ = true;
  if (!was_shown_) {
    was_shown_ = true;
    PlaceAsDesigned();
    FocusFirstControl();
    resized_.Emit();
  }
}

void HeadlessForm::PlaceAsDesigned() {
  if (design_.start == platform::FormStart::kAsPlaced) return;
  float left = 0;
  float top = 0;
  float width = toolkit_->screen.width;
  float height = toolkit_->screen.height;
  const auto& modal = toolkit_->modal_forms;
  if (design_.start == platform::FormStart::kCenterOwner && modal.size() > 1) {
    const HeadlessForm& owner = *modal[modal.size() - 2].form;
    left = owner.left_;
    top = owner.top_;
    width = owner.width_;
    height = owner.height_;
  }
  left_ = left + (width - width_) / 2;
  top_ = top + (height - height_) / 2;
}

platform::Subscription HeadlessForm::OnLoad(std::function<void()> handler) {
  return loaded_.Subscribe(std::move(handler));
}
platform::Subscription HeadlessForm::OnResize(std::function<void()> handler) {
  return resized_.Subscribe(std::move(handler));
}
platform::Subscription HeadlessForm::OnCloseQuery(std::function<void(bool& cancel)> handler) {
  return close_query_.Subscribe(std::move(handler));
}

// Input
// ---------------------------------------------------------------------------------------------------------

std::shared_ptr<void> HeadlessForm::Keep() {
  class AtWork {
   public:
    explicit AtWork(std::shared_ptr<HeadlessForm> form) : form_(std::move(form)) {
      form_->toolkit_->forms_at_work.push_back(form_.get());
    }
    ~AtWork() { form_->toolkit_->forms_at_work.pop_back(); }
    AtWork(const AtWork&) = delete;
    AtWork& operator=(const AtWork&) = delete;

   private:
    std::shared_ptr<HeadlessForm> form_;
  };
  return std::make_shared<AtWork>(shared_from_this());
}

void HeadlessForm::MoveFocusTo(ControlCore& control) {
  ControlCore* const loser = std::exchange(focused_, &control);
  if (loser == &control) return;
  if (loser != nullptr) loser->lost_focus.Emit();
  control.got_focus.Emit();
}

std::string HeadlessForm::FocusedControl() const {
  return focused_ == nullptr ? std::string() : focused_->Name();
}

void HeadlessForm::FocusFirstControl() {
  for (const auto& control : design_.controls) {
    if (focused_ != nullptr) return;
    if (CanHaveFocus(control.kind) && CoreOf(control.name).Usable()) focused_ = &CoreOf(control.name);
  }
}

void HeadlessForm::RequireInput(const std::string& action) {
  if (!is_shown_) {
    Errors().Raise("The operator cannot do " + action + ": the form " + Name() + " is not shown");
  }
  const auto& modal = toolkit_->modal_forms;
  if (!modal.empty() && modal.back().form != this) {
    Errors().Raise("The operator cannot do " + action + " on " + Name() + ": the modal form " +
                   modal.back().form->Name() + " is in front");
  }
}

bool HeadlessForm::CloseByOperator() {
  const auto keep = Keep();
  const std::string action = CallText(Name(), "CloseByOperator");
  RequireInput(action);
  Log().Record("operator." + action);
  if (design_.border == FormBorder::kFixedDialog || design_.border == FormBorder::kNone) return false;
  return Close();
}

void HeadlessForm::ResizeByOperator(float width, float height) {
  const auto keep = Keep();
  const std::string action = CallText(Name(), "ResizeByOperator", {width, height});
  RequireInput(action);
  if (design_.border != FormBorder::kSizable) Errors().Raise("The operator cannot resize the form " + Name());
  Log().Record("operator." + action);
  ChangeSize(width, height);
}

void HeadlessForm::TypeText(const std::string& text) {
  const auto keep = Keep();
  if (focused_ != nullptr) {
    if (auto* box = dynamic_cast<HeadlessTextBox*>(&ControlNamed(focused_->Name())))
      return box->TypeText(text);
  }
  RequireInput(CallText(Name(), "TypeText", {text}));
  for (const auto& control : design_.controls) {
    if (control.takes_typing && CoreOf(control.name).Usable())
      return Part<HeadlessTextBox>(control.name).TypeText(text);
  }
}

void HeadlessForm::PressShortcut(const std::string& shortcut) {
  const auto keep = Keep();
  RequireInput(CallText(Name(), "PressShortcut", {shortcut}));
  for (const auto& control : design_.controls) {
    if (control.kind != ControlKind::kToolBar || !CoreOf(control.name).Usable()) continue;
    if (Part<HeadlessToolBar>(control.name).PressShortcut(shortcut)) return;
  }
}

void HeadlessForm::PressEnter() {
  const auto keep = Keep();
  RequireInput(CallText(Name(), "PressEnter"));
  Log().Record("operator." + CallText(Name(), "PressEnter"));
  if (focused_ != nullptr) {
    auto* table = dynamic_cast<HeadlessTable*>(&ControlNamed(focused_->Name()));
    if (table != nullptr && table->RowCount() > 0) return table->PressEnter();
    auto* box = dynamic_cast<HeadlessTextBox*>(&ControlNamed(focused_->Name()));
    if (box != nullptr && box->TakesEnter()) return box->PressEnter();
  }
  std::string target;
  for (const auto& control : design_.controls) {
    if (control.is_default_button) target = control.name;
  }
  if (focused_ != nullptr && dynamic_cast<HeadlessButton*>(&ControlNamed(focused_->Name())) != nullptr) {
    target = focused_->Name();
  }
  PressButton(target);
}

void HeadlessForm::PressEscape() {
  const auto keep = Keep();
  RequireInput(CallText(Name(), "PressEscape"));
  Log().Record("operator." + CallText(Name(), "PressEscape"));
  for (const auto& control : design_.controls) {
    if (control.is_cancel_button && ControlNamed(control.name).Visible()) return PressButton(control.name);
  }
  if (design_.closes_by_escape) Close();
}

void HeadlessForm::PressButton(const std::string& name) {
  if (!name.empty() && CoreOf(name).Usable()) Part<HeadlessButton>(name).Press();
}

}  // namespace ferrowind::headless
