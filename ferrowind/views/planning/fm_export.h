#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/exchange/icalendar_format.h"
#include "ferrowind/exchange/listed_day.h"
#include "ferrowind/exchange/year_list.h"
#include "ferrowind/planning/currency_list.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/views/common/window_placement.h"
#include "ferrowind/views/planning/planning_context.h"
#include "ferrowind/views/planning/planning_window.h"

namespace ferrowind {

/// The window that asks which calendars a file is to be made of, and tells what became of it until the next
/// one.
class fmExport : public PlanningWindow, public std::enable_shared_from_this<fmExport> {
 public:
  /// What `context` refers to must outlive the window. Failure when the toolkit cannot make the form.
  [[nodiscard]] static std::shared_ptr<fmExport> Create(const PlanningContext& context);
  /// Under which `PlanningWindows` keeps it.
  [[nodiscard]] static std::string Name() { return "export"; }

  /// Proposes the calendar of that currency, by its code, and year; neither changes what is there when it is
  /// not given.
  void Propose(const std::string& currency, std::optional<int> year);
  void ShowInFront() override;
  [[nodiscard]] bool IsOpen() const override { return !has_closed_; }
  bool Close() override;

 protected:
  explicit fmExport(const PlanningContext& context);

 private:
  struct Wanted {
    std::vector<planning::Currency> currencies;
    exchange::WantedYears years;
    bool has_all = false;
    /// "EUR USD 2027-2028".
    [[nodiscard]] std::string Name() const;
  };
  struct Content {
    exchange::DayList list;
    exchange::Revision revision;
  };

  void Connect();
  /// Writes the file that the operator chooses for what is typed.
  void Export();
  void Write(const Wanted& wanted);
  [[nodiscard]] static Content Read(const Wanted& wanted);
  /// What is typed and chosen; nothing when that was refused.
  [[nodiscard]] std::optional<Wanted> Typed();
  void Refuse(const std::string& why, platform::TextBox& field);
  void TellFailure(const std::string& why);
  void Form_Load();
  void Form_QueryUnload();
  void CloseByButton();

  const PlanningContext context_;
  std::shared_ptr<platform::Form> form_;
  platform::TextBox& currencies_;
  platform::TextBox& first_year_;
  platform::TextBox& last_year_;
  platform::DropDownList& days_;
  platform::Label& outcome_;
  StoredPlacement placement_{"Window Export"};
  bool has_closed_ = false;
  std::vector<platform::Subscription> subscriptions_;
};

}  // namespace ferrowind
