#pragma once

#include <string>
#include <utility>
#include <vector>

#include "ferrowind/platform/services/locale.h"
#include "ferrowind/platform/services/words.h"
#include "ferrowind/platform/values/phrase.h"

#include "host/desktop/action_record.h"

namespace ferrowind::host {

/// The operator's words for actions and what becomes of them; UTF-8, without passwords.
class ActionWords {
 public:
  /// `locale` names months, `words` translate, null for English. Both must outlive this object.
  explicit ActionWords(const platform::Locale& locale, const platform::Words* words = nullptr)
      : locale_(locale), words_(words) {}

  /// The action as a command: `Assign 13 rules to EUR 2028`.
  [[nodiscard]] std::string Command(const platform::OperatorAction& action) const;
  /// What an action that changed something did: `Assigned 13 rules to EUR 2028: 115 days set`. Empty when it
  /// changed nothing.
  [[nodiscard]] std::string Success(const ActionRecord& record) const;
  /// The question's subject, all rules of it by name.
  [[nodiscard]] std::string Question(const platform::OperatorAction& action) const;
  /// An action with refused writes: what was done and what was not, and below it, in a line for each reason,
  /// the reason and what was refused for it.
  [[nodiscard]] std::string Refusal(const ActionRecord& record) const;
  /// An action that could not read all that it should, and in a line of its own each of the `reasons`.
  [[nodiscard]] std::string FailedRead(const platform::OperatorAction& action,
                                       const std::vector<std::string>& reasons) const;

  /// Why the step of an action of that kind was not done, in one line.
  [[nodiscard]] std::string Reason(platform::ActionKind kind, const platform::ActionStep& step) const;

 private:
  using Phrase = platform::Phrase;

  [[nodiscard]] std::string Say(const Phrase& phrase) const;
  [[nodiscard]] Phrase CommandPhrase(const platform::OperatorAction& action) const;
  [[nodiscard]] Phrase SuccessPhrase(const ActionRecord& record) const;
  [[nodiscard]] Phrase DayOf(const platform::OperatorAction& action) const;
  /// The refused writes' rules by the reason, in the order of the first of each.
  [[nodiscard]] std::vector<std::pair<std::string, std::vector<std::string>>> RefusedByReason(
      const ActionRecord& record) const;

  const platform::Locale& locale_;
  const platform::Words* words_;
};

}  // namespace ferrowind::host
