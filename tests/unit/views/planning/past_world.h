#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_text_box.h"

#include "tests/unit/planning/time_zone.h"
#include "tests/unit/views/planning/history_world.h"

namespace ferrowind::testing {

/// A database in memory whose calendar EUR 2028 was made on 5 January 2026 at 18:00:10 by this computer's
/// clock (entry 3), and whose Good Friday was assigned the day behind it at 19:30:31 (entry 4).
class PastWorld : public planning::MemoryWorld {
 public:
  PastWorld() {
    world.database->SetMoment("2026-01-05T09:00:10.250Z");
    AddSundayAndGoodFriday();
    Call("CldIUMain", {{"ID1", 978}, {"Year1", 2028}});
    world.database->SetMoment("2026-01-06T10:30:31.500Z");
    AssignGoodFriday();
    world.log.Clear();
  }

  [[nodiscard]] headless::HeadlessForm& History() { return world.toolkit.FormNamed("fmHistory"); }
  [[nodiscard]] headless::HeadlessForm& Then() { return world.toolkit.FormNamed("fmCalendarThen"); }
  [[nodiscard]] std::size_t CountOfThen() { return world.toolkit.CountOfForms("fmCalendarThen"); }
  [[nodiscard]] std::vector<std::string> GoodFriday() {
    return Then().Part<headless::HeadlessTable>("tblDays").Texts("2028-04-14");
  }

 private:
  /// Nine hours before UTC.
  const planning::TimeZone zone_{"XST-9"};
  almanac::DateTables tables_;

 public:
  PlanningWindows windows{platform, tables_};
};

class Question {
 public:
  explicit Question(headless::HeadlessForm& form) : form_(form) {}
  [[nodiscard]] std::string Asked() { return form_.Part<headless::HeadlessLabel>("lblAsked").Text(); }
  [[nodiscard]] std::string Date() { return form_.Part<headless::HeadlessTextBox>("txtDate").Text(); }
  [[nodiscard]] std::string Time() { return form_.Part<headless::HeadlessTextBox>("txtTime").Text(); }
  void Type(const std::string& date, const std::string& time) {
    form_.Part<headless::HeadlessTextBox>("txtDate").ReplaceText(date);
    form_.Part<headless::HeadlessTextBox>("txtTime").ReplaceText(time);
  }
  [[nodiscard]] std::string Meaning() { return form_.Part<headless::HeadlessLabel>("lblMeaning").Text(); }
  [[nodiscard]] std::string Focused() { return form_.FocusedControl(); }
  void Show() { form_.PressEnter(); }
  void Cancel() { form_.PressEscape(); }
  [[nodiscard]] bool IsShown() const { return form_.IsShown(); }

 private:
  headless::HeadlessForm& form_;
};

/// Asks with the changes of EUR 2028 on show, the newest one current.
inline void WithQuestion(
    const std::function<void(Question&)>& in_dialog,
    const std::function<void(PastWorld&)>& behind = [](auto&) {}) {
  testing::RunInFreshThread([&] {
    PastWorld past;
    past.windows.OpenHistory({978, 2028});
    int asked = 0;
    past.world.toolkit.ScriptModal("fmAsOf", [&](headless::HeadlessForm& form) {
      ++asked;
      Question question(form);
      in_dialog(question);
      if (question.IsShown()) question.Cancel();
    });
    past.History().PressShortcut("Ctrl+D");
    EXPECT_EQ(asked, 1);
    behind(past);
  });
}

}  // namespace ferrowind::testing
