#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/almanac/date_table.h"
#include "ferrowind/almanac/expression_choices.h"
#include "ferrowind/platform/platform.h"

namespace ferrowind {

/// The lists of the rule book window by which a date expression is chosen instead of written.
class RuleChoices {
 public:
  /// The controls that the lists need, in tab order.
  [[nodiscard]] static std::vector<platform::ControlDesign> Controls();

  /// `form` has those controls and outlives this, as does `platform`. `on_choice` is called when the operator
  /// has chosen something; `Expression` tells what.
  RuleChoices(const platform::Platform& platform, platform::Form& form, const almanac::DateTables& tables,
              std::function<void()> on_choice);

  /// Shows the choices that say the expression; that it is written by hand where they cannot, or without one.
  /// Does not call `on_choice`.
  void Show(const std::optional<almanac::DateExpression>& expression);
  /// The same while the operator writes it: lists that cannot say it stay where they are until some can, or a
  /// form is chosen, but cannot be used, so that nothing moves under the hands of who writes.
  void ShowWhileWriting(const std::optional<almanac::DateExpression>& expression);
  /// What is chosen, as an expression in its normal form. Choices that are no date, such as 30 February, give
  /// the text of one that says so when it is read; nothing while it is written by hand.
  [[nodiscard]] std::optional<std::string> Expression() const;

 private:
  void FillLists(const almanac::DateTables& tables);
  [[nodiscard]] platform::DropDownList& List(const char* name) const;
  void Add(const char* list, const std::string& text, std::int32_t data) const;
  [[nodiscard]] std::int32_t Chosen(const char* list) const;
  /// False when the list has no such item.
  bool Choose(const char* list, std::int32_t data);
  bool ChooseTable(const std::string& name);
  [[nodiscard]] bool ShowChoices(const almanac::ExpressionChoices& choices);
  /// Chooses what says the expression; false, with "by hand" chosen, where nothing does.
  bool ChooseFor(const std::optional<almanac::DateExpression>& expression);
  void ShowListsOfForm();
  /// All but the list of forms.
  void EnableLists(bool is_enabled);
  void Chose();

  const platform::Platform& platform_;
  platform::Form& form_;
  std::function<void()> on_choice_;
  std::vector<std::string> table_names_;
  /// While the program chooses.
  bool is_showing_ = false;
  std::vector<platform::Subscription> subscriptions_;
};

}  // namespace ferrowind
