#include "ferrowind/views/holidays/holiday_filter.h"

#include <utility>

namespace ferrowind {

HolidayFilter::HolidayFilter(std::string del_field, const std::string& type_field)
    : del_field_(std::move(del_field)), base_(type_field + " <> 1") {}

void HolidayFilter::Toggle() {
  if (shows_removed_next_) {
    button_text_ = "Hide removed";
    text_ = base_;
  } else {
    button_text_ = "Show all";
    text_ = "(" + del_field_ + " <> 2 and " + base_ + ") or (" + del_field_ + " = NULL and " + base_ + ")";
  }
  shows_removed_next_ = !shows_removed_next_;
}

}  // namespace ferrowind
