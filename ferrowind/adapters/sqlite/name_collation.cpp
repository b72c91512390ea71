#include "ferrowind/adapters/sqlite/name_collation.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "ferrowind/platform/values/case_fold.h"

namespace ferrowind::sqlite {
namespace {

/// As the platform trims, but without an allocation, since nothing may fail here.
std::string_view WithoutOuterBlanks(const void* text, int size) {
  std::string_view name(static_cast<const char*>(text), static_cast<std::size_t>(size));
  name.remove_prefix(std::min(name.find_first_not_of(' '), name.size()));
  return name.substr(0, name.find_last_not_of(' ') + 1);
}

int CompareNames(void* /*context*/, int left_size, const void* left, int right_size, const void* right) {
  const auto order = platform::CompareIgnoringCase(WithoutOuterBlanks(left, left_size),
                                                   WithoutOuterBlanks(right, right_size));
  if (order == 0) return 0;
  return order < 0 ? -1 : 1;
}

}  // namespace

int AddNameCollation(sqlite3* database) noexcept {
  return sqlite3_create_collation(database, "FERROWIND_NAME", SQLITE_UTF8, nullptr, CompareNames);
}

}  // namespace ferrowind::sqlite
