#include "ferrowind/adapters/headless/headless_text_box.h"

#include <algorithm>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::headless {
namespace {

bool ContinuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

std::int64_t CharacterCount(const std::string& text) {
  return std::count_if(text.begin(), text.end(), [](char byte) { return !ContinuesCharacter(byte); });
}

}  // namespace

void HeadlessTextBox::SetText(const std::string& text) {
  core_.Record("SetText", {text});
  const auto keep = core_.Keep();
  all_selected_ = false;
  Change(text);
}

void HeadlessTextBox::SetMaxLength(std::int32_t characters) {
  core_.Record("SetMaxLength", {characters});
  if (characters < 0) throw platform::InvalidArgument();
  max_length_ = characters;
}

void HeadlessTextBox::SelectAll() {
  core_.Record("SelectAll");
  all_selected_ = true;
}

void HeadlessTextBox::TypeText(const std::string& text) {
  const auto keep = core_.BeginAction("TypeText", {text});
  core_.TakeFocus();
  for (std::size_t i = 0; i < text.size();) {
    std::size_t next = i + 1;
    while (next < text.size() && ContinuesCharacter(text[next])) ++next;
    const std::string kept = all_selected_ ? std::string() : text_;
    if (max_length_ == 0 || CharacterCount(kept) < max_length_) {
      all_selected_ = false;
      Change(kept + text.substr(i, next - i));
    }
    i = next;
  }
}

void HeadlessTextBox::ReplaceText(const std::string& text) {
  {
    const auto keep = core_.BeginAction("SelectAll");
    core_.TakeFocus();
    all_selected_ = true;
  }
  if (!text.empty()) return TypeText(text);
  const auto keep = core_.BeginAction("Delete");
  all_selected_ = false;
  Change({});
}

void HeadlessTextBox::PressEnter() {
  const auto keep = core_.BeginAction("PressEnter");
  core_.TakeFocus();
  entered_.Emit();
}

void HeadlessTextBox::Change(std::string text) {
  if (text == text_) return;
  text_ = std::move(text);
  changed_.Emit();
}

}  // namespace ferrowind::headless
