#include "ferrowind/views/common/holiday_type_formats.h"

#include "ferrowind/views/common/holiday_types.h"
#include "ferrowind/views/common/value_list.h"

namespace ferrowind {
namespace {

constexpr const char* kTypeColumn = "HolidayType";
constexpr platform::Color kRed = {255, 0, 0};
constexpr platform::Color kMagenta = {255, 0, 255};

void AddTypeFormat(platform::Grid& grid, const char* key, std::int32_t type, platform::Color color,
                   std::optional<bool> bold) {
  grid.AddFormat({.key = key,
                  .column_key = kTypeColumn,
                  .comparison = platform::kFormatEqual,
                  .compared = ValueListText(grid, kTypeColumn, type),
                  .fore_color = color,
                  .bold = bold});
}

}  // namespace

void AddHolidayTypeFormats(platform::Grid& grid) {
  AddTypeFormat(grid, "FC_Holiday", holiday_type::kWeekday, kRed, true);
  AddTypeFormat(grid, "FC_Celebrate", holiday_type::kFullDate, kMagenta, true);
  AddTypeFormat(grid, "FC_HolidayPoint", holiday_type::kHolidayPoint, kMagenta, std::nullopt);
}

}  // namespace ferrowind
