#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ferrowind/export.h"
#include "ferrowind/platform/additions/holidays_scene.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::platform {

/// The additions of one Holidays window: what they do when something happens there. A failure of any of these
/// is shown to the operator, and the window goes on as if there were no additions; only a failed
/// `BeforeAssign` keeps the rules from being assigned.
class FERROWIND_EXPORT HolidaysAdditions {
 public:
  virtual ~HolidaysAdditions() = default;

  /// The window knows its target and is about to be filled; called once. Columns may be added to the list
  /// behind the given ones.
  virtual void Opening() = 0;
  /// The caption of the window instead of `given`.
  [[nodiscard]] virtual std::string Caption(const std::string& given) = 0;
  /// The rules that the list shows of those that were read, unfiltered, which are never null; not null
  /// either. The fields of `rules` must be among those of the answer, which may have more, behind them.
  [[nodiscard]] virtual std::shared_ptr<RecordSet> RulesToShow(std::shared_ptr<RecordSet> rules) = 0;
  /// A tool was clicked that is none of the window's own. True when it is one of theirs.
  virtual bool RunTool(const std::string& id) = 0;
  /// The operator asks for these rules to be assigned. False leaves the window open and nothing assigned.
  [[nodiscard]] virtual bool BeforeAssign(const std::vector<ChosenRule>& rules) = 0;
  /// The window is about to close; called once.
  virtual void Closing() = 0;
};

}  // namespace ferrowind::platform
