#include "host/admin/planning_commands.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "host/admin/apply_command.h"
#include "host/admin/command_set.h"
#include "host/admin/number_argument.h"
#include "host/admin/plan_command.h"
#include "host/admin/review_command.h"
#include "host/admin/why_command.h"

namespace ferrowind::host {
namespace {

constexpr const char* kPlanManual =
    R"(Compares a calendar with the plan of its year by the book of its currency, and
prints the days that differ: what each is now, what it should be, and why. A
calendar that does not exist counts as empty. Nothing is changed. The status is
1 when anything differs. CCY may be ALL, and YEAR several years, as for "apply";
for programs the calendars are one list then, with the field "currency" in front.

The action says what "apply" does: "add" gives an ordinary working day a rule,
"replace" gives a day another rule, "remove" makes a day an ordinary working
day, and "exception" closes a day again that is a working day by exception.
"keep" is a day that is as planned; --all prints those too that are closed. With
--keep-exceptions, days that are working days by exception count as planned, and
so do closed days that the book does not have, as "apply" with that option
leaves them.

Standard error tells which dates the plan lacks because nobody has published
them yet (days that have such a rule are left alone), and what the database
would refuse: a rule of a planned name that is removed or of another type.

FORMATS
  table  columns, for people; weekends of a calendar that does not exist are
         only counted
  json   [{"date": "2028-04-14", "weekday": "Friday", "now": null,
         "should": "Good Friday", "action": "add", "why": "..."}] on one line;
         null is an ordinary working day
  csv    as RFC 4180; an empty field is an ordinary working day)";

constexpr const char* kApplyManual =
    R"(Makes calendars as planned: creates those that are missing, adds the rules that
are missing, and changes the days that differ, and nothing else. It shows what
will change and asks before it does; --yes changes without asking, as a script
must. CCY is a code, or ALL for every currency that has a book; YEAR is one
year, or several as 2028..2030 or 2028-2030.

Days that were made working days by exception are closed again where the plan
says so, those with a reason too; --keep-exceptions leaves them open. How many
with a reason will be closed is told before anything is changed. Days that are
closed by a rule which the book does not have, as a list that was imported may
have closed them, are opened; --keep-exceptions leaves them closed. How many
there are is told as well.

Each calendar changes in one call, whole or not at all, and has one entry in the
history, which "undo" takes back. A calendar that somebody else has changed
after it was compared is left alone; the others are made, and the status is 1.
When the database would refuse one of the calendars, none is changed. Ctrl+C
lets the running call end, tells how many calendars are made, and ends with
status 1; run the command again to make the rest. ALL leaves out the years after
a currency's last day as money, and says so.)";

constexpr const char* kReviewManual =
    R"(Looks at every calendar and prints what an operator should look at, the worst
first:
  error    no calendar at all; no calendar for the running year; a calendar
           without weekends
  warning  no calendar for a year to come; a day that differs from the plan; a
           working day by exception without a reason; dates of this year that
           the plan lacks; a book that cannot be used; and where there is no
           plan, a holiday on a weekday on which it never was, and one whose
           date is another
  note     dates to come that nobody has published yet; a working day by
           exception, with a reason, on a planned holiday; an unusual number of
           holidays; a currency without a book
Nothing is changed. The status is 1 when there are warnings or errors, so that a
monitor can run it every day.

There must be calendars for this year and the next and, from September on, for
the one after; --horizon says for how many years after this one. That holds for
the currencies that have a book or any calendar. Today is a day of UTC.

FORMATS
  table  columns and a summary, for people
  json   [{"level": "warning", "currency": "EUR", "year": 2028,
         "date": "2028-04-14", "finding": "..."}] on one line; a finding about
         no single currency, year or day has null there
  csv    as RFC 4180)";

constexpr const char* kWhyManual =
    R"(Prints what a day is in the calendar, what it should be by the book of the
currency, and why: which rule closes it, and how the rule comes to that date.
Standard error tells which dates of that year the plan lacks, because nobody has
published them yet: a day that it calls open may be one of them.)";

constexpr const char* kCode = "The currency's code, such as EUR";

void AddPlan(CommandSet& commands) {
  const auto plan = std::make_shared<PlanCommand>();
  CLI::App& command =
      commands.Add("plan", "Show where a calendar differs from what it should be", kPlanManual,
                   [plan](const CommandSurroundings& surroundings) {
                     return plan->Run(surroundings.engines, surroundings.out, surroundings.errors);
                   });
  command.add_option("URL", plan->url, "The database to look into")->required();
  command.add_option("CCY", plan->currency, "The currency's code, or ALL")->required();
  command.add_option("YEAR", plan->years, "A year, or several as 2028..2030")->required();
  command.add_flag("--all", plan->shows_all, "Every closed day, not only what differs");
  command.add_flag("--keep-exceptions", plan->keeps_exceptions,
                   "Take days that were made otherwise by hand for planned");
  AddFormat(command, plan->format);
}

void AddApply(CommandSet& commands) {
  const auto apply = std::make_shared<ApplyCommand>();
  CLI::App& command = commands.Add("apply", "Make calendars as they should be", kApplyManual,
                                   Changing([apply](const CommandSurroundings& surroundings) {
                                     return apply->Run(surroundings.engines, AskOnTerminal, surroundings.out,
                                                       surroundings.errors);
                                   }));
  command.add_option("URL", apply->url, "The database")->required();
  command.add_option("CCY", apply->currency, "The currency's code, or ALL")->required();
  command.add_option("YEAR", apply->years, "A year, or several as 2028..2030")->required();
  command.add_flag("--keep-exceptions", apply->keeps_exceptions,
                   "Leave days as they are that were made otherwise by hand");
  command.add_flag("--yes", apply->is_confirmed, "Do not ask");
}

void AddReview(CommandSet& commands) {
  const auto review = std::make_shared<ReviewCommand>();
  CLI::App& command = commands.Add("review", "Tell what is wrong with the calendars", kReviewManual,
                                   [review](const CommandSurroundings& surroundings) {
                                     return review->Run(surroundings.engines, surroundings.out);
                                   });
  constexpr int kFarthest = 100;
  command.add_option("URL", review->url, "The database to look into")->required();
  AddNumber(command, "--horizon", "How many years after this one must have calendars", {0, kFarthest},
            [review](int years) { review->horizon = years; })
      .option_text("YEARS");
  AddFormat(command, review->format);
}

void AddWhy(CommandSet& commands) {
  const auto why = std::make_shared<WhyCommand>();
  CLI::App& command =
      commands.Add("why", "Tell what a day should be, and why", kWhyManual,
                   [why](const CommandSurroundings& surroundings) {
                     return why->Run(surroundings.engines, surroundings.out, surroundings.errors);
                   });
  command.add_option("URL", why->url, "The database to look into")->required();
  command.add_option("CCY", why->currency, kCode)->required();
  command.add_option("DATE", why->date, "The day, YYYY-MM-DD")->required();
}

}  // namespace

void AddPlanningCommands(CommandSet& commands) {
  AddPlan(commands);
  AddApply(commands);
  AddReview(commands);
  AddWhy(commands);
}

}  // namespace ferrowind::host
