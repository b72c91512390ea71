#include "ferrowind/business_days/prepared_year.h"

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::business_days {

std::chrono::year CalendarYear(std::int32_t number) {
  constexpr std::int32_t kFirstYear = 1900;
  constexpr std::int32_t kLastYear = 3000;
  if (number >= kFirstYear && number <= kLastYear) return std::chrono::year(number);
  throw platform::Failure(platform::failure_number::kInvalidArgument,
                          "The year " + std::to_string(number) + " is outside 1900 to 3000");
}

}  // namespace ferrowind::business_days
