#include "ferrowind/views/planning/rule_fields.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "ferrowind/almanac/date_expression.h"
#include "ferrowind/data/said.h"
#include "ferrowind/platform/values/text_limits.h"
#include "ferrowind/views/planning/filled_box.h"

namespace ferrowind {
namespace {

using almanac::RuleKind;
using planning::RuleDraft;
using platform::ControlDesign;
using platform::ControlKind;
using platform::ControlOf;
using platform::DropDownList;
using platform::Label;
using platform::TextBox;

struct KindText {
  RuleKind kind;
  const char* text;
};
//: said
constexpr std::array kKinds{
    KindText{RuleKind::kWeekday, "Weekday"}, KindText{RuleKind::kCelebration, "Celebration"},
    KindText{RuleKind::kPoint, "Holiday point"}, KindText{RuleKind::kWorkingDay, "Working day"}};

}  // namespace

std::string RuleKindText(const platform::Platform& platform, RuleKind kind) {
  const auto* const found =
      std::find_if(kKinds.begin(), kKinds.end(), [&](const KindText& text) { return text.kind == kind; });
  return found == kKinds.end() ? std::string() : Said(platform, found->text);
}

std::vector<ControlDesign> RuleFields::Controls() {
  std::vector<ControlDesign> controls{
      {ControlKind::kFrame, "frmRule", "Rule"},
      {ControlKind::kLabel, "lblName", "Name"},
      {.kind = ControlKind::kTextBox, .name = "txtName", .longest_text = platform::kLongestName},
      {ControlKind::kLabel, "lblKind", "Type"},
      {ControlKind::kDropDownList, "cmbKind"}};
  for (ControlDesign& control : RuleChoices::Controls()) controls.push_back(std::move(control));
  const std::vector<ControlDesign> others{
      {ControlKind::kLabel, "lblExpression", "Expression"},
      {.kind = ControlKind::kTextBox, .name = "txtExpression", .longest_text = platform::kLongestComment},
      {ControlKind::kLabel, "lblFault"},
      {ControlKind::kLabel, "lblComment", "Comment"},
      {.kind = ControlKind::kTextBox, .name = "txtComment", .longest_text = platform::kLongestComment},
      {ControlKind::kLabel, "lblMovedName", "When moved"},
      {.kind = ControlKind::kTextBox, .name = "txtMovedName", .longest_text = platform::kLongestName}};
  controls.insert(controls.end(), others.begin(), others.end());
  return controls;
}

RuleFields::RuleFields(const platform::Platform& platform, platform::Form& form,
                       const almanac::DateTables& tables)
    : form_(form),
      txtName_(ControlOf<TextBox>(form, "txtName")),
      cmbKind_(ControlOf<DropDownList>(form, "cmbKind")),
      txtExpression_(ControlOf<TextBox>(form, "txtExpression")),
      lblFault_(ControlOf<Label>(form, "lblFault")),
      txtComment_(ControlOf<TextBox>(form, "txtComment")),
      txtMovedName_(ControlOf<TextBox>(form, "txtMovedName")),
      choices_(platform, form, tables, [this] { TakeChoice(); }) {
  for (const auto& [kind, text] : kKinds)
    cmbKind_.AddItem(RuleKindText(platform, kind), static_cast<std::int32_t>(kind));
}

void RuleFields::Connect(const std::function<void()>& on_change) {
  const auto changed = [this, on_change] {
    if (!is_filling_) on_change();
  };
  for (TextBox* box : {&txtName_, &txtExpression_, &txtComment_, &txtMovedName_})
    subscriptions_.push_back(box->OnChange(changed));
  subscriptions_.push_back(cmbKind_.OnChoice(changed));
}

void RuleFields::Show(const std::optional<RuleDraft>& rule) {
  const RuleDraft shown = rule.value_or(RuleDraft{});
  is_other_rule_ = true;
  is_filling_ = true;
  FillBox(txtName_, shown.name);
  FillBox(txtExpression_, shown.expression);
  FillBox(txtComment_, shown.comment);
  FillBox(txtMovedName_, shown.moved_name);
  for (std::int32_t i = 0; i < cmbKind_.Count(); ++i) {
    if (cmbKind_.ItemData(i) == static_cast<std::int32_t>(shown.kind)) cmbKind_.Choose(i);
  }
  is_filling_ = false;
  form_.ControlNamed("frmRule").SetEnabled(rule.has_value());
}

void RuleFields::ShowFault(const std::optional<std::string>& fault) {
  const bool is_other_rule = std::exchange(is_other_rule_, false);
  lblFault_.SetText(fault.value_or(""));
  const std::string expression = txtExpression_.Text();
  // Choices that are no date, such as 30 February, stay on show, so that they can be mended.
  if (choices_.Expression() == expression) return;
  const bool is_read = !fault && !expression.empty();
  const auto read = is_read ? std::optional(almanac::DateExpression::Parse(expression)) : std::nullopt;
  if (is_other_rule) {
    choices_.Show(read);
  } else {
    choices_.ShowWhileWriting(read);
  }
}

RuleDraft RuleFields::Rule() const {
  const auto kind =
      cmbKind_.Chosen() < 0 ? RuleKind::kPoint : static_cast<RuleKind>(cmbKind_.ItemData(cmbKind_.Chosen()));
  return {txtName_.Text(), kind, txtExpression_.Text(), txtComment_.Text(), txtMovedName_.Text()};
}

void RuleFields::TakeChoice() {
  if (const auto expression = choices_.Expression()) {
    txtExpression_.SetText(*expression);
  } else {
    txtExpression_.SetFocus();
  }
}

}  // namespace ferrowind
