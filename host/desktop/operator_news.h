#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/platform/events/signal.h"
#include "ferrowind/platform/services/action_observer.h"

#include "host/desktop/action_record.h"
#include "host/desktop/action_words.h"

namespace ferrowind::host {

/// What the operator should know of their last actions: a trouble that needs a look, and a short note of what
/// was done or is being asked.
///
/// The troubles of refused changes stay, the newest first, until a change is made or they are dismissed,
/// whatever is read meanwhile; the same trouble again takes the place of the older one. That of a failed read
/// stays until an action reads all it should. A failure that the component has shown in a message of its own
/// is not told again.
class OperatorNews : public platform::ActionObserver {
 public:
  using TextHandler = std::function<void(const std::string& text)>;

  /// `locale` and `words`, null for English, must outlive this object; `time_text` gives the time of day as
  /// people read it.
  OperatorNews(const platform::Locale& locale, std::function<std::string()> time_text,
               const platform::Words* words = nullptr);

  void ActionBegan(const platform::OperatorAction& action) override;
  void WriteEnded(const platform::ActionStep& step) override;
  void ReadEnded(const platform::ActionStep& step) override;
  void DaysReread(std::int32_t changed) override;
  void ActionEnded() override;
  void QuestionOpens(const platform::OperatorAction& action) override;
  void QuestionClosed() override;

  /// The component shows a message, and waits for the operator until it is closed. What the running action
  /// could not do so far is told now, since the message may leave the operator asking why.
  void MessageOpens();
  void MessageClosed();
  /// The component is about to show the failure of this description to the operator, in the next message.
  void FailureShown(const std::string& description);
  /// The operator has read of the trouble.
  void Dismiss();

  /// In the operator's words, with when and why, and without any password; empty when all is well.
  [[nodiscard]] std::string Trouble() const;
  /// The last change that was made, or what a question is about; empty when there was none.
  [[nodiscard]] const std::string& Note() const { return note_; }

  /// The handlers are called with the new text.
  [[nodiscard]] platform::Subscription OnTrouble(TextHandler handler);
  [[nodiscard]] platform::Subscription OnNote(TextHandler handler);
  /// True when the program starts to work for the operator, false when it waits for them again.
  [[nodiscard]] platform::Subscription OnBusy(std::function<void(bool is_busy)> handler);
  /// An action that has changed the database has ended.
  [[nodiscard]] platform::Subscription OnChange(std::function<void()> handler);
  /// An action begins that is not a part of another one.
  [[nodiscard]] platform::Subscription OnAction(std::function<void()> handler);

 private:
  struct RefusedChange {
    /// Which of the actions so far it was; it is told anew when more of the action becomes known.
    int action;
    std::string text;
    std::string time;
  };

  /// Takes over the troubles of the action and, when it is over, forgets those that it has ended.
  void Conclude(const ActionRecord& record, bool is_over);
  void ConcludeWrites(const ActionRecord& record, bool is_over);
  void ConcludeReads(const ActionRecord& record, bool is_over);
  void SetNote(const std::string& note);
  void TellBusy();
  void TellRefused(const std::string& text);

  ActionWords words_;
  std::function<std::string()> time_text_;
  /// The outermost action that is running.
  std::optional<ActionRecord> record_;
  int depth_ = 0;
  /// The outermost ones that have begun.
  int actions_ = 0;
  int open_messages_ = 0;
  bool was_busy_ = false;
  /// The newest first.
  std::vector<RefusedChange> refused_changes_;
  std::string failed_read_;
  std::string note_;
  std::string note_before_question_;
  platform::Signal<const std::string&> trouble_changed_;
  platform::Signal<const std::string&> note_changed_;
  platform::Signal<bool> busy_changed_;
  platform::Signal<> changed_;
  platform::Signal<> action_began_;
};

}  // namespace ferrowind::host
