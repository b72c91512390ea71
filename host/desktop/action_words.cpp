#include "host/desktop/action_words.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "ferrowind/adapters/services/password_free.h"

#include "host/desktop/worded.h"

namespace ferrowind::host {

using platform::ActionKind;
using platform::ActionStep;
using platform::OperatorAction;

namespace {

using platform::Phrase;

Phrase Quoted(const std::string& rule) {
  return rule.empty() ? Phrase::Of("a rule without a name") : Phrase('"' + rule + '"');
}

Phrase CountedRules(std::size_t count) {
  return Phrase::OfNumber(static_cast<std::int64_t>(count), "%n rule", "%n rules");
}

std::string Joined(const std::vector<std::string>& parts, const std::string& between) {
  std::string text;
  for (const auto& part : parts) text += (text.empty() ? "" : between) + part;
  return text;
}

/// One by its name, several by their number.
Phrase RulesPhrase(const std::vector<std::string>& rules) {
  return rules.size() == 1 ? Quoted(rules.front()) : CountedRules(rules.size());
}

/// `EUR 2028`, or as much of it as there is.
std::string CalendarText(const OperatorAction& action) {
  std::string text = action.currency;
  if (action.year != 0) text += (text.empty() ? "" : " ") + std::to_string(action.year);
  return text;
}

/// `about` with the calendar of the action behind its other arguments, or `alone` where it is of none.
//: says 1 2
Phrase OfCalendar(const char* alone, const char* about, const std::string& calendar,
                  std::vector<Phrase> arguments = {}) {
  if (calendar.empty()) return Phrase::Of(alone, std::move(arguments));
  arguments.emplace_back(calendar);
  return Phrase::Of(about, std::move(arguments));
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
Phrase Meaning(ActionKind kind, std::int32_t return_value) {
  switch (return_value) {
    case 2:
      return Phrase::Of("There is a rule of that name already");
    case 10:
      return Phrase::Of("A removed rule has that name: it can be restored");
    case 3:
      return Phrase::Of("The database does not know the currency");
    case 4:
      return Phrase::Of("The database does not know the rule");
    case 5:
      return Phrase::Of("The database does not know the calendar");
    case 6:
      return Phrase::Of("The calendar exists already");
    case 7:
      // The year is all that an operator gives for a calendar.
      return Phrase::Of(kind == ActionKind::kCreateCalendar ? "A calendar's year is 1900 to 3000."
                                                            : "A value is missing or out of range");
    case 8:
      return Phrase::Of("It was changed meanwhile");
    case 9:
      return Phrase::Of("A later change is of the same, or the history does not reach there");
    default:
      return Phrase::Of("The database refused it, with the number %1", {std::to_string(return_value)});
  }
}

Phrase DaysSet(std::int32_t days) {
  return days == 0 ? Phrase::Of("no day set") : Phrase::OfNumber(days, "%n day set", "%n days set");
}

std::size_t CountDone(const ActionRecord& record) {
  return static_cast<std::size_t>(std::count_if(record.writes.begin(), record.writes.end(), IsDone));
}

/// Plans, and their undoing, are of several calendars where there is a write for each.
bool IsOfManyCalendars(const ActionRecord& record) {
  const ActionKind kind = record.action.kind;
  return (kind == ActionKind::kApplyPlan || kind == ActionKind::kUndo) && record.writes.size() > 1;
}

/// `11 of 13 rules`, or all of them.
Phrase DoneRules(const ActionRecord& record) {
  const auto& rules = record.action.rules;
  const std::size_t done = CountDone(record);
  if (done >= rules.size()) return RulesPhrase(rules);
  return Phrase::OfNumber(static_cast<std::int64_t>(rules.size()), "%1 of %n rule", "%1 of %n rules",
                          {std::to_string(done)});
}

/// What the kinds do to rules, when they have done it.
const char* RulesDone(ActionKind kind) {
  //: said
  switch (kind) {
    case ActionKind::kRemoveRules:
      return "Removed %1";
    case ActionKind::kRestoreRules:
      return "Restored %1";
    case ActionKind::kAddRule:
      return "Added the rule %1";
    default:
      return "Changed the rule %1";
  }
}

/// What became of each of several rules, in numbers.
std::vector<Phrase> Balance(const ActionRecord& record) {
  const std::size_t done = CountDone(record);
  const std::size_t tried = record.writes.size();
  std::vector<Phrase> parts;
  if (record.action.kind != ActionKind::kAssignRules) {
    parts.push_back(Phrase::Of("%1 done", {std::to_string(done)}));
  } else if (record.changed_days) {
    parts.push_back(DaysSet(*record.changed_days));
  } else {
    parts.push_back(Phrase::Of("%1 assigned", {std::to_string(done)}));
  }
  parts.push_back(Phrase::Of("%1 refused", {std::to_string(tried - done)}));
  if (tried < record.action.rules.size()) {
    parts.push_back(Phrase::Of("%1 not tried", {std::to_string(record.action.rules.size() - tried)}));
  }
  return parts;
}

}  // namespace

std::string ActionWords::Command(const OperatorAction& action) const { return Say(CommandPhrase(action)); }

Phrase ActionWords::CommandPhrase(const OperatorAction& action) const {
  const std::string calendar = CalendarText(action);
  switch (action.kind) {
    case ActionKind::kOpenCalendars:
      return Phrase::Of("Open calendars");
    case ActionKind::kRefresh:
      return Phrase::Of("Refresh");
    case ActionKind::kShowDays:
      return OfCalendar("Show", "Show %1", calendar);
    case ActionKind::kCreateCalendar:
      return OfCalendar("New calendar", "New calendar %1", calendar);
    case ActionKind::kExceptDay:
      return action.day ? OfCalendar("Except %1", "Except %1, %2", action.currency, {DayOf(action)})
                        : OfCalendar("Except", "Except, %1", action.currency);
    case ActionKind::kOpenRules:
      return OfCalendar("Assign holiday", "Assign holiday, %1", calendar);
    case ActionKind::kShowRules:
      return Phrase::Of("Show the rules");
    case ActionKind::kAssignRules:
      return OfCalendar("Assign %1", "Assign %1 to %2", calendar, {RulesPhrase(action.rules)});
    case ActionKind::kAddRule:
      return Phrase::Of("Add the rule %1", {RulesPhrase(action.rules)});
    case ActionKind::kEditRule:
      return Phrase::Of("Edit the rule %1", {RulesPhrase(action.rules)});
    case ActionKind::kRemoveRules:
      return Phrase::Of("Remove %1", {RulesPhrase(action.rules)});
    case ActionKind::kRestoreRules:
      return Phrase::Of("Restore %1", {RulesPhrase(action.rules)});
    case ActionKind::kApplyPlan:
      return OfCalendar("Apply the plan", "Apply the plan of %1", calendar);
    case ActionKind::kUndo:
      return OfCalendar("Undo a change", "Undo a change of %1", calendar);
    case ActionKind::kStoreBook:
      return Phrase::Of("Save the rule book of %1", {action.currency});
  }
  return {};
}

std::string ActionWords::Success(const ActionRecord& record) const {
  return CountDone(record) == 0 ? "" : Say(SuccessPhrase(record));
}

Phrase ActionWords::SuccessPhrase(const ActionRecord& record) const {
  const OperatorAction& action = record.action;
  const auto done = static_cast<std::int64_t>(CountDone(record));
  const std::string calendar = CalendarText(action);
  if (IsOfManyCalendars(record)) {
    return action.kind == ActionKind::kUndo ? Phrase::OfNumber(done, "Undid the changes of %n calendar",
                                                               "Undid the changes of %n calendars")
                                            : Phrase::OfNumber(done, "Applied the plans of %n calendar",
                                                               "Applied the plans of %n calendars");
  }
  switch (action.kind) {
    case ActionKind::kCreateCalendar:
      return OfCalendar("Created the calendar", "Created the calendar %1", calendar);
    case ActionKind::kExceptDay:
      return action.day ? OfCalendar("Excepted %1", "Excepted %1, %2", action.currency, {DayOf(action)})
                        : OfCalendar("Excepted", "Excepted, %1", action.currency);
    case ActionKind::kApplyPlan:
      return OfCalendar("Applied the plan", "Applied the plan of %1", calendar);
    case ActionKind::kUndo:
      return OfCalendar("Undid a change", "Undid a change of %1", calendar);
    case ActionKind::kStoreBook:
      return Phrase::Of("Saved the rule book of %1", {action.currency});
    case ActionKind::kAssignRules: {
      const Phrase assigned = OfCalendar("Assigned %1", "Assigned %1 to %2", calendar, {DoneRules(record)});
      return record.changed_days ? Phrase::Of("%1: %2", {assigned, DaysSet(*record.changed_days)}) : assigned;
    }
    default:
      return Phrase::Of(RulesDone(action.kind), {DoneRules(record)});
  }
}

std::string ActionWords::Question(const OperatorAction& action) const {
  if (action.rules.empty()) return "";
  std::vector<std::string> quoted;
  for (const auto& rule : action.rules) quoted.push_back(Say(Quoted(rule)));
  const std::string names = Joined(quoted, ", ");
  const bool removes = action.kind == ActionKind::kRemoveRules;
  if (quoted.size() == 1) {
    return Say(Phrase::Of(removes ? "To be removed: %1" : "To be changed: %1", {names}));
  }
  return Say(Phrase::Of(removes ? "To be removed (%1): %2" : "To be changed (%1): %2",
                        {std::to_string(quoted.size()), names}));
}

std::string ActionWords::Refusal(const ActionRecord& record) const {
  const bool is_of_many = record.action.rules.size() > 1;
  std::vector<std::string> outcome;
  if (is_of_many || IsOfManyCalendars(record)) {
    for (const Phrase& part : Balance(record)) outcome.push_back(Say(part));
  } else {
    outcome.push_back(Say(Phrase::Of("refused")));
  }
  std::string text = Command(record.action) + ": " + Joined(outcome, ", ") + ".";
  for (const auto& [reason, rules] : RefusedByReason(record)) {
    std::vector<std::string> names;
    for (const auto& rule : rules) names.push_back(Say(Quoted(rule)));
    // The reason first: the names may be more than there is room for.
    text += "\n" + reason + (is_of_many ? ": " + Joined(names, ", ") : "");
  }
  return text;
}

std::string ActionWords::FailedRead(const OperatorAction& action,
                                    const std::vector<std::string>& reasons) const {
  return Say(Phrase::Of("%1: the database did not do what was asked. What is shown may be out of date.",
                        {CommandPhrase(action)})) +
         "\n" + Joined(reasons, "\n");
}

std::string ActionWords::Reason(ActionKind kind, const ActionStep& step) const {
  return step.failure ? OneLine(PasswordFree(step.failure->Description()))
                      : Say(Meaning(kind, step.return_value));
}

std::vector<std::pair<std::string, std::vector<std::string>>> ActionWords::RefusedByReason(
    const ActionRecord& record) const {
  std::vector<std::pair<std::string, std::vector<std::string>>> groups;
  for (const ActionStep& write : record.writes) {
    if (IsDone(write)) continue;
    const std::string reason = Reason(record.action.kind, write);
    auto group = std::find_if(groups.begin(), groups.end(), [&](const auto& g) { return g.first == reason; });
    if (group == groups.end()) group = groups.insert(groups.end(), {reason, {}});
    group->second.push_back(write.rule);
  }
  return groups;
}

Phrase ActionWords::DayOf(const OperatorAction& action) const { return locale_.LongDayText(*action.day); }

std::string ActionWords::Say(const Phrase& phrase) const { return Worded(words_, phrase); }

}  // namespace ferrowind::host
