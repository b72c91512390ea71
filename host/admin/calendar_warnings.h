#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ferrowind/almanac/finding.h"
#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::host {

/// Calendars that a sound database can lack: those that must be there by now (`almanac::ReviewHorizon`) of
/// each currency that has a rule book or any calendar, and those in which no weekday rule closes a weekend.
/// `review` finds these and more. Besides, the rule books that an upgrade has not come to.
class CalendarWarnings {
 public:
  /// Looks into the database of `url`; nothing is changed. A database that cannot be read, and one of an
  /// older schema, is a `platform::Failure`.
  CalendarWarnings(const platform::EngineRegistry& engines, const std::string& url);
  /// Of a database that cannot be looked into, for the reason `why`.
  explicit CalendarWarnings(const std::string& why) : why_not_(why) {}

  /// For people: one for the rule books, and one for all currencies of a year.
  [[nodiscard]] std::vector<std::string> Sentences() const;
  /// For programs: year, currency and what is wrong, a row for each calendar; without a year for each book.
  [[nodiscard]] std::shared_ptr<platform::RecordSet> Rows() const;

 private:
  std::vector<almanac::Finding> findings_;
  /// The codes of their currencies.
  std::vector<std::string> books_left_by_upgrade_;
  std::string why_not_;
};

}  // namespace ferrowind::host
