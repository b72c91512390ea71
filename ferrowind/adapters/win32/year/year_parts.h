#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/win32/controls/accessible_parts.h"
#include "ferrowind/adapters/year_engine/year_cursor.h"

namespace ferrowind::win32 {

/// A year as assistive programs are told of it: the days of each calendar, one calendar after the other.
class YearParts final : public AccessibleParts {
 public:
  struct Subject {
    const year_engine::YearDays& days;
    const year_engine::YearCursor& cursor;
    std::function<RECT(const year_engine::YearPlace&)> area_of;
    std::function<std::optional<year_engine::YearPlace>(POINT)> place_at;
    /// Makes a day the current and only selected one.
    std::function<void(const year_engine::YearPlace&)> choose;
  };
  /// All that is referred to outlives this.
  explicit YearParts(Subject subject) : subject_(std::move(subject)) {}

  [[nodiscard]] LONG WindowRole() const override;
  /// What the legend says.
  [[nodiscard]] std::wstring WindowDescription() const override;
  [[nodiscard]] LONG PartCount() const override;
  [[nodiscard]] AccessiblePart PartAt(LONG part) const override;
  [[nodiscard]] LONG PartUnder(POINT client) const override;
  [[nodiscard]] LONG CurrentPart() const override;
  [[nodiscard]] std::vector<LONG> SelectedParts() const override;
  void ChoosePart(LONG part) override;

  [[nodiscard]] LONG PartOf(const year_engine::YearPlace& place) const;

 private:
  [[nodiscard]] year_engine::YearPlace PlaceOf(LONG part) const;

  Subject subject_;
};

}  // namespace ferrowind::win32
