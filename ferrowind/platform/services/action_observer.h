#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/export.h"
#include "ferrowind/platform/values/date.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::platform {

/// What an operator may have the component do.
enum class FERROWIND_EXPORT ActionKind {
  /// The Calendars window is to open.
  kOpenCalendars,
  kRefresh,
  /// Of the calendar that is chosen in the tree.
  kShowDays,
  kCreateCalendar,
  kExceptDay,
  /// "Assign holiday ...": the Holidays window is to open.
  kOpenRules,
  /// Of the Holidays window, as when removed ones are to be shown too.
  kShowRules,
  kAssignRules,
  kAddRule,
  kEditRule,
  kRemoveRules,
  kRestoreRules,
  /// The plan of a calendar is to be made true in it.
  kApplyPlan,
  /// An earlier change of a calendar is to be taken back.
  kUndo,
  /// The rule book of a currency is to be saved, or removed where nothing is left in it.
  kStoreBook,
};

/// An action, and what it is about. What does not belong to the kind, or could not be told, is empty.
struct FERROWIND_EXPORT OperatorAction {
  /// Which of the members below count.
  ActionKind kind = ActionKind::kRefresh;
  /// As the tree shows it, such as "EUR".
  std::string currency;
  /// Of the calendar; 0 for none.
  std::int32_t year = 0;
  /// The day that the action is about, where it is about one.
  std::optional<Date> day;
  /// The names of all rules that the action is meant for, in their order. One that has none is "".
  std::vector<std::string> rules;
};

/// How one use of the database ended.
struct FERROWIND_EXPORT ActionStep {
  /// The name of the rule that was written, where the use is about one.
  std::string rule;
  /// The procedure's own; 0 done. -1 when the use failed before there was one, always so without a procedure.
  std::int32_t return_value = 0;
  /// What kept the database from it, where something did; never holds a password.
  std::optional<Failure> failure;
};

/// Is told what the operator has the component do, and how it ends. The component keeps much of that to
/// itself; a host that gives an observer can say what was refused, and why.
///
/// All calls come on the user-interface thread, in the order of what they tell: an action begins, its uses of
/// the database end one by one, and the action ends, also when it fails. No window waits for the operator
/// meanwhile, except messages of the shared services, and a dialog that only says how far it is and can be
/// stopped. An action that begins within another one is a part of
/// it and ends before it. What an observer throws is dropped. It must not use the component, nor close it.
class FERROWIND_EXPORT ActionObserver {
 public:
  virtual ~ActionObserver() = default;

  /// The operator has asked for something, and nothing was done of it yet.
  virtual void ActionBegan(const OperatorAction& action) = 0;
  /// A change of the database was asked for: it is made when the return value is 0, else nothing was
  /// changed.
  virtual void WriteEnded(const ActionStep& step) = 0;
  /// Something was read, or should have been.
  virtual void ReadEnded(const ActionStep& step) = 0;
  /// The days of a calendar on show were read again, and that many differ from what was shown before.
  virtual void DaysReread(std::int32_t changed) = 0;
  /// All is done, or has failed, that the action began; comes for every `ActionBegan`.
  virtual void ActionEnded() = 0;

  /// A question to the operator is about to open; `action` is what will be done when the answer is yes. No
  /// action is running.
  virtual void QuestionOpens(const OperatorAction& action) = 0;
  /// It is answered, whatever the answer was.
  virtual void QuestionClosed() = 0;
};

}  // namespace ferrowind::platform
