#include "ferrowind/views/planning/holidays_addition_list.h"

#include <utility>

#include "ferrowind/data/run_handler.h"

namespace ferrowind {

HolidaysAdditionList::HolidaysAdditionList(Additions additions) : additions_(std::move(additions)) {}

void HolidaysAdditionList::TellEach(const std::function<void(platform::HolidaysAdditions& addition)>& what) {
  for (const auto& addition : additions_) RunStep([&] { what(*addition); });
}

void HolidaysAdditionList::Opening() {
  TellEach([](auto& addition) { addition.Opening(); });
}

std::string HolidaysAdditionList::Caption(const std::string& given) {
  std::string caption = given;
  TellEach([&](auto& addition) { caption = addition.Caption(caption); });
  return caption;
}

std::shared_ptr<platform::RecordSet> HolidaysAdditionList::RulesToShow(
    std::shared_ptr<platform::RecordSet> rules) {
  TellEach([&](auto& addition) { rules = addition.RulesToShow(rules); });
  return rules;
}

bool HolidaysAdditionList::RunTool(const std::string& id) {
  bool is_run = false;
  TellEach([&](auto& addition) { is_run = is_run || addition.RunTool(id); });
  return is_run;
}

bool HolidaysAdditionList::BeforeAssign(const std::vector<platform::ChosenRule>& rules) {
  for (const auto& addition : additions_) {
    bool goes_on = false;
    RunStep([&] { goes_on = addition->BeforeAssign(rules); });
    if (!goes_on) return false;
  }
  return true;
}

void HolidaysAdditionList::Closing() {
  TellEach([](auto& addition) { addition.Closing(); });
}

}  // namespace ferrowind
