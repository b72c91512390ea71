#include "ferrowind/views/holidays/holidays_extension.h"

#include <utility>

#include "ferrowind/data/run_handler.h"
#include "ferrowind/views/holidays/holidays_window.h"

namespace ferrowind {

using platform::HolidaysAdditions;

HolidaysExtension::HolidaysExtension(Surface surface) : window_(std::move(surface)) {}

void HolidaysExtension::Open(platform::Additions* additions, const AssignmentTarget& target,
                             const std::string& currency) {
  if (additions == nullptr) return;
  target_ = {target.currency_id, currency, target.year};
  if (target.mode == kSingleDayMode && platform::Date::IsValid(target.year, 1, 1)) {
    day_ = platform::Date(target.year, 1, 1).AddDays(target.day_of_year - 1);
  }
  RunStep([&] { additions_ = additions->ForHolidays(*this); });
  Tell([](auto& all) { all.Opening(); });
}

void HolidaysExtension::Tell(const std::function<void(HolidaysAdditions& additions)>& what) {
  if (additions_) RunStep([&] { what(*additions_); });
}

std::string HolidaysExtension::Caption(const std::string& given) {
  std::string caption = given;
  Tell([&](auto& additions) { caption = additions.Caption(given); });
  return caption;
}

std::shared_ptr<platform::RecordSet> HolidaysExtension::RulesToShow(
    std::shared_ptr<platform::RecordSet> rules) {
  auto shown = rules;
  Tell([&](auto& additions) { shown = additions.RulesToShow(rules); });
  return shown;
}

void HolidaysExtension::RunTool(const std::string& id) {
  Tell([&](auto& additions) { additions.RunTool(id); });
}

bool HolidaysExtension::BeforeAssign() {
  bool goes_on = !additions_;
  Tell([&](auto& additions) { goes_on = additions.BeforeAssign(window_.list.ChosenRules()); });
  return goes_on;
}

void HolidaysExtension::Closing() {
  Tell([](auto& additions) { additions.Closing(); });
}

}  // namespace ferrowind
