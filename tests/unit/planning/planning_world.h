#pragma once

#include <string>
#include <utility>
#include <vector>

#include "ferrowind/platform/database/parameter.h"
#include "ferrowind/platform/values/conversion.h"

#include "tests/support/component_world.h"
#include "tests/support/failure_of.h"
#include "tests/support/run_in_fresh_thread.h"

namespace ferrowind::planning {

using headless::ProcedureScript;
using platform::ParameterType;
using platform::Value;
using Rows = std::vector<std::vector<Value>>;

/// A database whose procedures answer from a script; on the thread that makes it.
class PlanningWorld : public testing::ComponentWorld {
 public:
  ProcedureScript& AnswerBooks(Rows heads, Rows rules) {
    return world.commands.Answer("CldGetBook")
        .Takes("@ID1", ParameterType::kInt32)
        .Gives({"ID1", "Publisher", "Document", "Fingerprint", "FromYear"}, std::move(heads))
        .Gives({"ID1", "Position", "Name1", "TID1", "Expression", "Comment", "MovedName"}, std::move(rules));
  }

  /// The calendars that there are, and the built-in rule, "Sunday" (2), "Christmas Day" (3) and the removed
  /// "Fair" (4).
  ProcedureScript& AnswerRules(Rows calendars) {
    return world.commands.Answer("CldAllInfo")
        .Gives({"ID1", "Year1"}, std::move(calendars))
        .Gives({"TID1", "Description1"}, {})
        .Gives({"ID2", "Name1", "Comment", "TID1", "D1", "MY", "MD", "WD", "Del"},
               {{1, "Working day by exception", {}, 1, {}, {}, {}, {}, {}},
                {2, "Sunday", "Weekend", 2, {}, {}, {}, 1, {}},
                {3, "Christmas Day", "25 December", 3, platform::Date(2026, 12, 25), 12, 25, {}, 4},
                {4, "Fair", {}, 4, platform::Date(2026, 3, 1), 3, 1, {}, 2}});
  }

  ProcedureScript& AnswerCurrencies() {
    return world.commands.Answer("CldGetCurrencies")
        .Gives({"CcyID", "Ccy", "CcyType", "Name", "LastDay"}, Currencies());
  }

  /// The whole content: these calendars, `marked_days` as rows of ID1, Year1, Day1, TID1, ID2 and Comment,
  /// the rules of `AnswerRules`, books as for `AnswerBooks`, and the currencies of `AnswerCurrencies`.
  ProcedureScript& AnswerContent(Rows calendars, const Rows& marked_days, Rows heads, Rows rules) {
    for (std::vector<Value>& calendar : calendars) {
      std::string days;
      for (const std::vector<Value>& day : marked_days) {
        if (day[0] != calendar[0] || day[1] != calendar[1]) continue;
        const std::string comment = platform::ToTextOrEmpty(day[5]);
        days += platform::ToText(day[2]) + ',' + platform::ToText(day[3]) + ',' + platform::ToText(day[4]) +
                ',' + std::to_string(comment.size()) + ':' + comment;
      }
      calendar.push_back(std::move(days));
    }
    for (std::vector<Value>& head : heads) head.erase(head.begin() + 3);
    return world.commands.Answer("CldGetContent")
        .Gives({"ID1", "Year1", "Days"}, std::move(calendars))
        .Gives({"ID2", "Name1", "TID1", "MY", "MD", "Del"}, {{1, "Working day by exception", 1, {}, {}, {}},
                                                             {2, "Sunday", 2, {}, {}, {}},
                                                             {3, "Christmas Day", 3, 12, 25, 4},
                                                             {4, "Fair", 4, 3, 1, 2}})
        .Gives({"ID1", "Publisher", "Document", "FromYear"}, std::move(heads))
        .Gives({"ID1", "Position", "Name1", "TID1", "Expression", "Comment", "MovedName"}, std::move(rules))
        .Gives({"CcyID", "Ccy", "CcyType", "Name", "LastDay"}, Currencies());
  }

  ProcedureScript& AnswerCalendar(const std::string& fingerprint, Rows days) {
    const auto takes_calendar = [&](const char* procedure) -> ProcedureScript& {
      return world.commands.Answer(procedure)
          .Takes("@ID1", ParameterType::kInt32)
          .Takes("@Year1", ParameterType::kInt32);
    };
    takes_calendar("CldGetFingerprint").Gives({"Fingerprint"}, {{fingerprint}});
    return takes_calendar("CldGetMain")
        .Gives({"ODate", "TID1", "Name1", "Comment2", "Comment", "ID2", "Day1"}, std::move(days));
  }

 private:
  static Rows Currencies() {
    return {{978, "EUR", std::int16_t{0}, "Euro", {}},
            {840, "USD", std::int16_t{0}, "US Dollar", {}},
            {191, "HRK", std::int16_t{0}, "Kuna", platform::Date(2022, 12, 31)},
            {959, "XAU", std::int16_t{1}, "Gold", {}}};
  }
};

}  // namespace ferrowind::planning
