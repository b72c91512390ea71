#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "ferrowind/planning/history_list.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/platform/toolkit/drop_down_list.h"

namespace ferrowind {

/// The two lists in which the operator chooses of which calendar and whose the changes on show are.
class HistoryChoice {
 public:
  struct Lists {
    platform::DropDownList& calendars;
    platform::DropDownList& persons;
  };
  struct Choice {
    planning::HistoryFilter filter;
    bool are_mine = false;
  };

  /// Fills the lists; all changes of everybody are chosen. Everything must outlive this object. Fails when
  /// the calendars cannot be read.
  HistoryChoice(const platform::Platform& platform, const planning::CurrencyList& currencies, Lists lists);

  /// `handler`, that of the last call, hears when the operator or `Choose` has chosen something else.
  void OnChoice(std::function<void()> handler);
  /// Chooses the changes that `filter` asks for, whose user counts for nothing. False when they are chosen
  /// already, of which nobody is told.
  [[nodiscard]] bool Choose(const planning::HistoryFilter& filter);
  /// Nothing while a list has no choice.
  [[nodiscard]] std::optional<Choice> Chosen() const;

  /// What is chosen is on show by now.
  void Keep();
  /// Chooses what is on show again, and tells nobody.
  void TakeBack();

 private:
  void FillCalendars();
  void Add(const planning::HistoryFilter& filter);

  const platform::Platform& platform_;
  const planning::CurrencyList& currencies_;
  Lists lists_;
  /// What the items of the list of calendars stand for.
  std::vector<planning::HistoryFilter> filters_;
  /// The items of the two lists that are on show.
  std::int32_t calendar_on_show_ = 0;
  std::int32_t person_on_show_ = 0;
  bool takes_back_ = false;
  std::vector<platform::Subscription> subscriptions_;
};

}  // namespace ferrowind
