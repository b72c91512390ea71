#pragma once

#include <memory>
#include <string>

#include "ferrowind/business_days/calendar_set.h"
#include "ferrowind/loading/day_loader.h"
#include "ferrowind/loading/loaded_days.h"

namespace ferrowind::host {

/// Where days come from: a database, or somebody who gives them. Any number of threads may ask.
class DaySource {
 public:
  /// The failures are those of `DayLoader`, and that of an URL of no engine.
  explicit DaySource(const std::string& url);
  explicit DaySource(loading::LoadedDays given);

  /// Never null.
  [[nodiscard]] std::shared_ptr<const loading::LoadedDays> Current() const;
  /// Without a database nothing ever changes.
  [[nodiscard]] loading::DayChanges Reload();

 private:
  /// Exactly one of them is there.
  std::unique_ptr<loading::DayLoader> loader_;
  std::shared_ptr<const loading::LoadedDays> given_;
};

}  // namespace ferrowind::host
