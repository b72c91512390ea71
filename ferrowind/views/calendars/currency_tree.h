#pragma once

#include <functional>
#include <memory>

#include "ferrowind/platform/services/action_observer.h"
#include "ferrowind/platform/toolkit/toolkit.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind {

/// The tree of the currencies and, below each, its yearly calendars.
class CurrencyTree {
 public:
  /// `tree` and `form` must outlive this object, and so must `observer`, which is told of the reads unless it
  /// is null. `on_reload` is called after each load of the currencies.
  CurrencyTree(platform::Toolkit& toolkit, platform::Form& form, platform::Tree& tree,
               std::function<void()> on_reload, platform::ActionObserver* observer = nullptr);

  /// Fills the tree with the currencies of the dictionary object alone. False on any failure.
  bool LoadCurrencies();
  /// Adds the calendars of the database below their currencies and keeps the holiday types that come with
  /// them. False on any failure, such as a calendar of a currency that is not in the tree; the nodes added
  /// before it stay.
  bool LoadCalendars();
  /// The holiday types of the last load; null before one succeeded.
  [[nodiscard]] const std::shared_ptr<platform::RecordSet>& HolidayTypes() const { return holiday_types_; }

  /// Selects the calendar of that currency and year when both are not 0, else the node of that key when it is
  /// not empty, else the first node. When there is no such node the selection stays.
  void SelectNode(std::int32_t currency_id, std::int32_t year, const std::string& key);

  /// Expands or collapses all currency nodes with the updates of the form locked.
  void SetAllExpanded(bool expanded);

 private:
  platform::Toolkit& toolkit_;
  platform::Form& form_;
  platform::Tree& tree_;
  std::function<void()> on_reload_;
  platform::ActionObserver* observer_;
  std::shared_ptr<platform::RecordSet> holiday_types_;
};

}  // namespace ferrowind
