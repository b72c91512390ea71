#include "ferrowind/data/error_table.h"

namespace ferrowind {

void FillErrorTable(ErrorTable& table) {
  constexpr std::array<const char*, std::tuple_size_v<ErrorTable>> kMessages = {
      "Can't add holiday to database",
      "Can't remove holiday",
      "Can't load holidays from database",
      "Can't load holiday types from database",
      "Can't load first weekday",
      "Can't load currency",
      "Can't load relation currency to calendars",
      "Can't edit multi rows",
      "Can't define correction holiday type",
      "Can't define correction weekday",
      "There is duplicate holiday name",
      "Can't restore holiday",
  };
  for (std::size_t i = 0; i < table.size(); ++i) table[i] = {"Error", kMessages[i], 0};
}

}  // namespace ferrowind
