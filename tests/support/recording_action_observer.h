#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/platform/services/action_observer.h"

namespace ferrowind::testing {

/// Keeps what it is told, in order, as texts: `began assign EUR 2026 [Saturday, Sunday]`, `write Saturday 0`,
/// `read -1 No way`, `days 2`, `ended`, `question remove [Saturday]`, `answered`. A step that is told while
/// no action runs fails the test.
class RecordingActionObserver : public platform::ActionObserver {
 public:
  void ActionBegan(const platform::OperatorAction& action) override {
    ++running_actions_;
    Record("began " + TextOf(action));
  }
  void WriteEnded(const platform::ActionStep& step) override { RecordStep("write " + TextOf(step)); }
  void ReadEnded(const platform::ActionStep& step) override { RecordStep("read " + TextOf(step)); }
  void DaysReread(std::int32_t changed) override { RecordStep("days " + std::to_string(changed)); }
  void ActionEnded() override {
    RecordStep("ended");
    --running_actions_;
  }
  void QuestionOpens(const platform::OperatorAction& action) override {
    Record("question " + TextOf(action));
  }
  void QuestionClosed() override { Record("answered"); }

  std::vector<std::string> events;

 private:
  static std::string TextOf(const platform::OperatorAction& action) {
    constexpr const char* kNames[] = {"open",       "refresh",    "show",       "create", "except",
                                      "open rules", "show rules", "assign",     "add",    "edit",
                                      "remove",     "restore",    "apply plan", "undo",   "store book"};
    std::string text = kNames[static_cast<std::size_t>(action.kind)];
    if (!action.currency.empty()) text += " " + action.currency;
    if (action.year != 0) text += " " + std::to_string(action.year);
    if (action.day) text += " " + action.day->ToIso();
    if (action.rules.empty()) return text;
    std::string names;
    for (const auto& rule : action.rules) names += (names.empty() ? "" : ", ") + rule;
    return text + " [" + names + "]";
  }

  static std::string TextOf(const platform::ActionStep& step) {
    return (step.rule.empty() ? "" : step.rule + " ") + std::to_string(step.return_value) +
           (step.failure ? " " + step.failure->Description() : "");
  }

  void RecordStep(std::string event) {
    EXPECT_GT(running_actions_, 0) << "told outside of an action: " << event;
    Record(std::move(event));
  }
  void Record(std::string event) { events.push_back(std::move(event)); }

  int running_actions_ = 0;
};

/// Throws whatever it is told.
class ThrowingActionObserver : public platform::ActionObserver {
 public:
  void ActionBegan(const platform::OperatorAction&) override { Throw(); }
  void WriteEnded(const platform::ActionStep&) override { Throw(); }
  void ReadEnded(const platform::ActionStep&) override { Throw(); }
  void DaysReread(std::int32_t) override { Throw(); }
  void ActionEnded() override { Throw(); }
  void QuestionOpens(const platform::OperatorAction&) override { Throw(); }
  void QuestionClosed() override { Throw(); }

 private:
  [[noreturn]] static void Throw() { throw platform::Failure(1, "The observer is at fault"); }
};

}  // namespace ferrowind::testing
