#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/readiness_report.h"
#include "ferrowind/platform/toolkit/toolkit.h"
#include "ferrowind/views/common/window_placement.h"
#include "ferrowind/views/planning/finding_lines.h"
#include "ferrowind/views/planning/planning_context.h"
#include "ferrowind/views/planning/planning_window.h"
#include "ferrowind/views/planning/silence_bar.h"

namespace ferrowind {

class ReadinessWords;

/// What the board leaves to other windows. One that is empty is not offered.
struct ReadinessDoors {
  /// `known` has their currencies.
  std::function<void(const std::vector<planning::CalendarKey>& calendars,
                     const planning::CurrencyList& known)>
      open_year_plan = {};
  /// Of the currency of that number.
  std::function<void(std::int32_t currency)> open_rule_book = {};
  /// Of all calendars.
  std::function<void()> open_history = {};
  /// With what is written for the currency, and the year, that are chosen; "" and nothing when none is.
  using Exchange = std::function<void(const std::string& currency, std::optional<int> year)>;
  Exchange open_import = {};
  Exchange open_export = {};
};

/// The readiness board: how far each currency is prepared for the years around today, what a review of all
/// calendars finds, and the way to the plans that mend it.
class fmReadiness : public PlanningWindow, public std::enable_shared_from_this<fmReadiness> {
 public:
  /// What `context` refers to must outlive the window.
  [[nodiscard]] static std::shared_ptr<fmReadiness> Create(const PlanningContext& context,
                                                           ReadinessDoors doors);
  /// The doors to the windows of planning; these must outlive them.
  [[nodiscard]] static ReadinessDoors DoorsTo(PlanningWindows& windows);
  fmReadiness(const fmReadiness&) = delete;
  fmReadiness& operator=(const fmReadiness&) = delete;

  /// Shows the window with what the database holds now; as a part of a host's window, which the host shows.
  void Show();
  void ShowInFront() override;
  [[nodiscard]] bool IsOpen() const override { return !has_closed_; }
  bool Close() override;

  /// Reads the database again. What the operator has chosen stays chosen. When it cannot be read, what was
  /// read before stays on show, and the window says that it may be out of date, and why.
  void Refresh();

 private:
  fmReadiness(const PlanningContext& context, ReadinessDoors doors);
  void Subscribe();
  /// A handler that runs the command as long as the window is there.
  [[nodiscard]] std::function<void()> Running(void (fmReadiness::*command)());

  [[nodiscard]] std::string Say(const std::string& text,
                                const std::vector<std::string>& arguments = {}) const;

  void Load();
  void Closing();
  void Read();
  /// What could not be read while the server was silent is read now.
  void ReadWhatIsMissing();
  void ShowProblem(const std::string& problem);
  void ShowReport();
  void ShowBoard();
  void ShowYears(const ReadinessWords& words);
  void ShowFindings();
  void EnableButtons();

  void OpenPlanOfCell();
  void OpenBook();
  void OpenHistory();
  void OpenFinding();
  /// Of its first currency that is money.
  void OpenBookOf(const FindingLine& line);
  void OpenImport();
  void OpenExport();
  void OpenExchange(const ReadinessDoors::Exchange& open);
  void PrepareAll();
  /// The next year, or the one after it once nothing of the next one is left to prepare. Only with a report.
  [[nodiscard]] int YearToPrepare() const;
  void OpenPlan(const std::vector<planning::CalendarKey>& calendars);
  /// What the operator has chosen on the board; nothing without a row.
  [[nodiscard]] std::optional<planning::CalendarKey> ChosenCalendar() const;
  [[nodiscard]] const planning::CurrencyReadiness* CurrencyOfCode(const std::string& code) const;

  const PlanningContext context_;
  ReadinessDoors doors_;
  std::shared_ptr<platform::Form> form_;
  platform::Label& lblUrgent_;
  platform::Label& lblSummary_;
  platform::Label& lblProblem_;
  platform::Table& tblBoard_;
  platform::Label& lblFindings_;
  platform::Table& tblFindings_;
  platform::Button& cmdRefresh_;
  platform::Button& cmdHistory_;
  platform::Button& cmdBook_;
  platform::Button& cmdPlan_;
  platform::Button& cmdPrepareAll_;
  platform::Button& cmdImport_;
  platform::Button& cmdExport_;
  /// Nothing until the database was read.
  std::optional<planning::ReadinessReport> report_;
  /// Of the columns on show.
  std::optional<int> first_year_on_show_;
  /// Those on show.
  std::vector<FindingLine> findings_;
  bool has_closed_ = false;
  SilenceBar silence_bar_;
  StoredPlacement placement_{"Window Readiness"};
  std::vector<platform::Subscription> subscriptions_;
};

}  // namespace ferrowind
