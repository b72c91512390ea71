#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/planning/book_draft.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/views/common/window_placement.h"
#include "ferrowind/views/planning/planning_context.h"
#include "ferrowind/views/planning/planning_window.h"
#include "ferrowind/views/planning/rule_fields.h"
#include "ferrowind/views/planning/rule_years_table.h"
#include "ferrowind/views/planning/silence_bar.h"

namespace ferrowind {

/// The window in which the operator edits the rule book of a currency. An expression is read while it is
/// typed, and the days that it gives in ten years stand beside it; nothing is stored before "Save".
///
/// Whoever holds it may drop it at any time; it lives until its running handler has returned.
class fmRuleBook : public PlanningWindow, public std::enable_shared_from_this<fmRuleBook> {
 public:
  /// Reads the currencies, and the book of the one of that number. Failure when the toolkit cannot make the
  /// form, and as planning/database_call.h says.
  [[nodiscard]] static std::shared_ptr<fmRuleBook> Create(const PlanningContext& context,
                                                          std::int32_t currency_id);

  void ShowInFront() override;
  [[nodiscard]] bool IsOpen() const override { return !has_closed_; }
  /// Refuses while there are changes that the operator does not want to lose.
  bool Close() override;

 protected:
  explicit fmRuleBook(const PlanningContext& context);
  void Connect();

 private:
  void FillLists();
  void Read(std::int32_t currency_id);
  /// Whether nothing would be lost, or the operator says that it may be.
  [[nodiscard]] bool MayLeave() const;
  void ShowChosenCurrency();

  [[nodiscard]] std::optional<std::size_t> Current() const;
  void SetCurrent(std::size_t position);
  void ShowRules();
  void ShowRule();
  void ShowRuleOutcome();
  void ShowBookOutcome();
  [[nodiscard]] std::string OutcomeText(const std::vector<std::string>& faults) const;
  [[nodiscard]] std::string ChangesText() const;
  /// What changes about which years the book tells of; "" for nothing.
  [[nodiscard]] std::string YearsText(int first_year) const;
  [[nodiscard]] std::string DaysText(const std::vector<planning::PlanChange>& changes,
                                     const std::string& years) const;
  void EnableControls();

  void Form_Load();
  void Form_QueryUnload(bool& cancel);
  void cmbCurrency_Choice();
  void BookText_Change();
  void tblRules_CurrentChange();
  void RuleFields_Change();
  void cmdAdd_Click();
  void cmdRemove_Click();
  void cmdUp_Click();
  void cmdDown_Click();
  void cmdSave_Click();
  void cmdClose_Click();

  PlanningContext context_;
  const platform::Platform& platform_;
  std::shared_ptr<platform::Form> form_;
  platform::DropDownList& cmbCurrency_;
  platform::TextBox& txtPublisher_;
  platform::TextBox& txtDocument_;
  platform::TextBox& txtSince_;
  platform::Table& tblRules_;
  platform::Label& lblOutcome_;
  RuleFields fields_;
  RuleYearsTable years_;
  /// All that are money.
  std::vector<planning::Currency> currencies_;
  std::optional<planning::BookDraft> draft_;
  /// While the program fills the controls.
  bool is_filling_ = false;
  bool has_closed_ = false;
  SilenceBar silence_bar_;
  StoredPlacement placement_{"Window Rule Book"};
  std::vector<platform::Subscription> subscriptions_;
};

}  // namespace ferrowind
