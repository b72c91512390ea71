#pragma once

#include <cstddef>
#include <iosfwd>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/almanac/day_choice.h"
#include "ferrowind/planning/year_preparation.h"

#include "host/admin/confirmation.h"
#include "host/admin/exit_status.h"

namespace ferrowind::host {

using Preparations = std::vector<std::unique_ptr<planning::YearPreparation>>;

/// Shows what will become of calendars, asks, and makes them so; for the commands that do that. Works on the
/// calling thread's database.
class PlanApplication {
 public:
  /// `as_what` stands behind "is as ... now": "planned". All references must outlive this object.
  PlanApplication(almanac::ExceptionHandling exceptions, bool is_confirmed, std::string as_what,
                  const Confirmation& confirm, std::ostream& out, std::ostream& errors)
      : exceptions_(exceptions),
        is_confirmed_(is_confirmed),
        as_what_(std::move(as_what)),
        confirm_(confirm),
        out_(out),
        errors_(errors) {}

  void Show(const planning::YearPreparation& preparation) const;
  /// Each calendar in a call of its own, once somebody has confirmed it.
  [[nodiscard]] ExitStatus ApplyIfWanted(const Preparations& changing);

 private:
  [[nodiscard]] bool IsWanted(std::size_t calendars);
  /// A signal stops it behind the call that is running.
  [[nodiscard]] ExitStatus ApplyAll(const Preparations& changing);
  /// Tells at once, as the next calendar may fail. False when somebody else has changed the calendar.
  [[nodiscard]] bool Apply(const planning::YearPreparation& preparation);
  /// What was made stays made when its entry cannot be read.
  void TellEntry(const planning::YearPreparation& preparation);

  almanac::ExceptionHandling exceptions_;
  bool is_confirmed_;
  std::string as_what_;
  const Confirmation& confirm_;
  std::ostream& out_;
  std::ostream& errors_;
};

}  // namespace ferrowind::host
