#pragma once

#include <cstddef>
#include <string>
#include <utility>

#include "ferrowind/adapters/headless/headless_control.h"
#include "ferrowind/platform/toolkit/text_box.h"

namespace ferrowind::headless {

class HeadlessTextBox : public HeadlessControl<platform::TextBox> {
 public:
  /// With `selects_on_focus` the text is selected whenever the box gets the focus.
  HeadlessTextBox(ControlHost& host, std::string name, std::string text, bool selects_on_focus)
      : HeadlessControl(host, std::move(name)), text_(std::move(text)) {
    if (selects_on_focus) got_focus_ = core_.got_focus.Subscribe([this] { all_selected_ = true; });
  }

  [[nodiscard]] std::string Text() const override { return text_; }
  void SetText(const std::string& text) override;
  void SetMaxLength(std::int32_t characters) override;
  void SelectAll() override;
  [[nodiscard]] platform::Subscription OnChange(std::function<void()> handler) override {
    return changed_.Subscribe(std::move(handler));
  }
  void SetPlaceholder(const std::string& text) override {
    core_.Record("SetPlaceholder", {text});
    placeholder_ = text;
  }
  [[nodiscard]] platform::Subscription OnEnter(std::function<void()> handler) override {
    takes_enter_ = true;
    return entered_.Subscribe(std::move(handler));
  }
  [[nodiscard]] platform::Subscription OnLostFocus(std::function<void()> handler) override {
    return core_.lost_focus.Subscribe(std::move(handler));
  }

  [[nodiscard]] std::int32_t MaxLength() const { return max_length_; }
  [[nodiscard]] const std::string& Placeholder() const { return placeholder_; }
  /// Whether Enter is the box's key and not the form's.
  [[nodiscard]] bool TakesEnter() const { return takes_enter_; }

  /// The operator goes to the box and types `text` behind what stands there, or in place of a selected text.
  /// Characters beyond the greatest length are not taken. Every character that is taken raises `OnChange`.
  void TypeText(const std::string& text);
  /// The operator goes to the box, selects everything and types `text`; an empty one deletes what stands
  /// there.
  void ReplaceText(const std::string& text);
  /// The operator presses Enter in the box, which takes the focus. The key does nothing when it is the
  /// form's.
  void PressEnter();

 private:
  void Change(std::string text);

  std::string text_;
  std::int32_t max_length_ = 0;
  bool all_selected_ = false;
  std::string placeholder_;
  bool takes_enter_ = false;
  platform::Signal<> changed_;
  platform::Signal<> entered_;
  platform::Subscription got_focus_;
};

}  // namespace ferrowind::headless
