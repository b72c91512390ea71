#include "host/desktop/action_words.h"

#include <algorithm>
#include <utility>

#include "ferrowind/adapters/services/password_free.h"

namespace ferrowind::host {

using platform::ActionKind;
using platform::ActionStep;
using platform::OperatorAction;

namespace {

std::string Quoted(const std::string& rule) {
  return rule.empty() ? "a rule without a name" : '"' + rule + '"';
}

std::string Counted(std::size_t count, const std::string& noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

std::string Joined(const std::vector<std::string>& parts, const std::string& between) {
  std::string text;
  for (const auto& part : parts) text += (text.empty() ? "" : between) + part;
  return text;
}

/// One by its name, several by their number.
std::string RulesText(const std::vector<std::string>& rules) {
  return rules.size() == 1 ? Quoted(rules.front()) : Counted(rules.size(), "rule");
}

/// `EUR 2028`, or as much of it as there is.
std::string CalendarText(const OperatorAction& action) {
  std::string text = action.currency;
  if (action.year != 0) text += (text.empty() ? "" : " ") + std::to_string(action.year);
  return text;
}

std::string With(const std::string& separator, const std::string& text) {
  return text.empty() ? "" : separator + text;
}

/// Without line breaks, and blanks one at a time.
std::string OneLine(const std::string& text) {
  std::string line;
  bool is_after_blank = true;
  for (const char character : text) {
    const bool is_blank = character == ' ' || (character >= '\t' && character <= '\r');
    if (!is_blank) {
      line += character;
    } else if (!is_after_blank) {
      line += ' ';
    }
    is_after_blank = is_blank;
  }
  if (line.ends_with(' ')) line.pop_back();
  return line;
}

/// What the procedures mean by their return values.
std::string Meaning(ActionKind kind, std::int32_t return_value) {
  switch (return_value) {
    case 2:
      return "There is a rule of that name already";
    case 10:
      return "A removed rule has that name: it can be restored";
    case 3:
      return "The database does not know the currency";
    case 4:
      return "The database does not know the rule";
    case 5:
      return "The database does not know the calendar";
    case 6:
      return "The calendar exists already";
    case 7:
      // The year is all that an operator gives for a calendar.
      if (kind == ActionKind::kCreateCalendar) return "A calendar's year is 1900 to 3000.";
      return "A value is missing or out of range";
    case 8:
      return "It was changed meanwhile";
    case 9:
      return "A later change is of the same, or the history does not reach there";
    default:
      return "The database refused it, with the number " + std::to_string(return_value);
  }
}

std::string DaysSet(std::int32_t days) {
  if (days == 0) return "no day set";
  return Counted(static_cast<std::size_t>(days), "day") + " set";
}

std::size_t CountDone(const ActionRecord& record) {
  return static_cast<std::size_t>(std::count_if(record.writes.begin(), record.writes.end(), IsDone));
}

/// Plans, and their undoing, are of several calendars where there is a write for each.
bool IsOfManyCalendars(const ActionRecord& record) {
  const ActionKind kind = record.action.kind;
  return (kind == ActionKind::kApplyPlan || kind == ActionKind::kUndo) && record.writes.size() > 1;
}

/// Past participle of what the kinds do to rules.
const char* DoneVerb(ActionKind kind) {
  switch (kind) {
    case ActionKind::kAssignRules:
      return "Assigned ";
    case ActionKind::kRemoveRules:
      return "Removed ";
    case ActionKind::kRestoreRules:
      return "Restored ";
    case ActionKind::kAddRule:
      return "Added the rule ";
    default:
      return "Changed the rule ";
  }
}

/// `11 of 13 rules`, or all of them.
std::string DoneRules(const ActionRecord& record) {
  const auto& rules = record.action.rules;
  const std::size_t done = CountDone(record);
  if (done >= rules.size()) return RulesText(rules);
  return std::to_string(done) + " of " + Counted(rules.size(), "rule");
}

/// The refused writes, those of one reason together, in the order of the first of each.
std::vector<std::pair<std::string, std::vector<std::string>>> RefusedByReason(const ActionRecord& record) {
  std::vector<std::pair<std::string, std::vector<std::string>>> groups;
  for (const ActionStep& write : record.writes) {
    if (IsDone(write)) continue;
    const std::string reason = ActionWords::Reason(record.action.kind, write);
    auto group = std::find_if(groups.begin(), groups.end(), [&](const auto& g) { return g.first == reason; });
    if (group == groups.end()) group = groups.insert(groups.end(), {reason, {}});
    group->second.push_back(write.rule);
  }
  return groups;
}

/// What became of each of several rules, in numbers.
std::string Balance(const ActionRecord& record) {
  const std::size_t done = CountDone(record);
  const std::size_t refused = record.writes.size() - done;
  std::vector<std::string> parts;
  if (record.action.kind != ActionKind::kAssignRules) {
    parts.push_back(std::to_string(done) + " done");
  } else if (record.changed_days) {
    parts.push_back(DaysSet(*record.changed_days));
  } else {
    parts.push_back(std::to_string(done) + " assigned");
  }
  parts.push_back(std::to_string(refused) + " refused");
  const std::size_t tried = record.writes.size();
  if (tried < record.action.rules.size()) {
    parts.push_back(std::to_string(record.action.rules.size() - tried) + " not tried");
  }
  return Joined(parts, ", ");
}

}  // namespace

std::string ActionWords::Command(const OperatorAction& action) const {
  switch (action.kind) {
    case ActionKind::kOpenCalendars:
      return "Open calendars";
    case ActionKind::kRefresh:
      return "Refresh";
    case ActionKind::kShowDays:
      return "Show" + With(" ", CalendarText(action));
    case ActionKind::kCreateCalendar:
      return "New calendar" + With(" ", CalendarText(action));
    case ActionKind::kExceptDay:
      return "Except" + (action.day ? " " + locale_.LongDateText(*action.day) : "") +
             With(", ", action.currency);
    case ActionKind::kOpenRules:
      return "Assign holiday" + With(", ", CalendarText(action));
    case ActionKind::kShowRules:
      return "Show the rules";
    case ActionKind::kAssignRules:
      return "Assign " + RulesText(action.rules) + With(" to ", CalendarText(action));
    case ActionKind::kAddRule:
      return "Add the rule " + RulesText(action.rules);
    case ActionKind::kEditRule:
      return "Edit the rule " + RulesText(action.rules);
    case ActionKind::kRemoveRules:
      return "Remove " + RulesText(action.rules);
    case ActionKind::kRestoreRules:
      return "Restore " + RulesText(action.rules);
    case ActionKind::kApplyPlan:
      return "Apply the plan" + With(" of ", CalendarText(action));
    case ActionKind::kUndo:
      return "Undo a change" + With(" of ", CalendarText(action));
    case ActionKind::kStoreBook:
      return "Save the rule book of " + action.currency;
  }
  return "";
}

std::string ActionWords::Success(const ActionRecord& record) const {
  const OperatorAction& action = record.action;
  const std::size_t done = CountDone(record);
  if (done == 0) return "";
  if (IsOfManyCalendars(record)) {
    return action.kind == ActionKind::kUndo ? "Undid the changes of " + Counted(done, "calendar")
                                            : "Applied the plans of " + Counted(done, "calendar");
  }
  switch (action.kind) {
    case ActionKind::kCreateCalendar:
      return "Created the calendar" + With(" ", CalendarText(action));
    case ActionKind::kExceptDay:
      return "Excepted" + (action.day ? " " + locale_.LongDateText(*action.day) : "") +
             With(", ", action.currency);
    case ActionKind::kApplyPlan:
      return "Applied the plan" + With(" of ", CalendarText(action));
    case ActionKind::kUndo:
      return "Undid a change" + With(" of ", CalendarText(action));
    case ActionKind::kStoreBook:
      return "Saved the rule book of " + action.currency;
    case ActionKind::kAssignRules:
      return DoneVerb(action.kind) + DoneRules(record) + With(" to ", CalendarText(action)) +
             (record.changed_days ? ": " + DaysSet(*record.changed_days) : "");
    default:
      return DoneVerb(action.kind) + DoneRules(record);
  }
}

std::string ActionWords::Question(const OperatorAction& action) const {
  std::vector<std::string> names;
  for (const auto& rule : action.rules) names.push_back(Quoted(rule));
  if (names.empty()) return "";
  const std::string count = names.size() == 1 ? "" : " (" + std::to_string(names.size()) + ")";
  return "To be " + std::string(action.kind == ActionKind::kRemoveRules ? "removed" : "changed") + count +
         ": " + Joined(names, ", ");
}

std::string ActionWords::Refusal(const ActionRecord& record) const {
  const bool is_of_many = record.action.rules.size() > 1;
  const bool is_counted = is_of_many || IsOfManyCalendars(record);
  std::string text = Command(record.action) + ": " + (is_counted ? Balance(record) : "refused") + ".";
  for (const auto& [reason, rules] : RefusedByReason(record)) {
    std::vector<std::string> names;
    for (const auto& rule : rules) names.push_back(Quoted(rule));
    // The reason first: the names may be more than there is room for.
    text += "\n" + reason + (is_of_many ? ": " + Joined(names, ", ") : "");
  }
  return text;
}

std::string ActionWords::FailedRead(const OperatorAction& action,
                                    const std::vector<std::string>& reasons) const {
  return Command(action) + ": the database did not do what was asked. What is shown may be out of date.\n" +
         Joined(reasons, "\n");
}

std::string ActionWords::Reason(ActionKind kind, const ActionStep& step) {
  return step.failure ? OneLine(PasswordFree(step.failure->Description())) : Meaning(kind, step.return_value);
}

}  // namespace ferrowind::host
