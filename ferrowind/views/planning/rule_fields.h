#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/almanac/date_table.h"
#include "ferrowind/almanac/rule_book.h"
#include "ferrowind/planning/book_draft.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/views/planning/rule_choices.h"

namespace ferrowind {

/// The name of a type of rules in the operator's language.
[[nodiscard]] std::string RuleKindText(const platform::Platform& platform, almanac::RuleKind kind);

/// The fields of the rule book window in which one rule is written. Its expression is written or chosen in
/// lists, and both follow each other.
class RuleFields {
 public:
  /// The controls of the fields, in tab order.
  [[nodiscard]] static std::vector<platform::ControlDesign> Controls();

  /// `form` has those controls and outlives this, as do `platform` and `tables`.
  RuleFields(const platform::Platform& platform, platform::Form& form, const almanac::DateTables& tables);

  /// `on_change` is called whenever the operator has changed any of them; it must not throw.
  void Connect(const std::function<void()>& on_change);

  /// Shows the rule; empty fields that take nothing without one. Does not call `on_change`.
  void Show(const std::optional<planning::RuleDraft>& rule);
  /// Says why the expression is none, and brings the lists in line with it; without a fault it is one, or
  /// there is none. Once after each `Show`, and then whenever the operator has changed it.
  void ShowFault(const std::optional<std::string>& fault);
  /// The rule as it stands in the fields.
  [[nodiscard]] planning::RuleDraft Rule() const;
  void FocusName() { txtName_.SetFocus(); }

 private:
  void TakeChoice();

  platform::Form& form_;
  platform::TextBox& txtName_;
  platform::DropDownList& cmbKind_;
  platform::TextBox& txtExpression_;
  platform::Label& lblFault_;
  platform::TextBox& txtComment_;
  platform::TextBox& txtMovedName_;
  RuleChoices choices_;
  /// While the program fills them.
  bool is_filling_ = false;
  /// Until the fault of another rule is shown.
  bool is_other_rule_ = true;
  std::vector<platform::Subscription> subscriptions_;
};

}  // namespace ferrowind
