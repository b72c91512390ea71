#include "host/admin/long_texts.h"

#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/engine.h"

namespace ferrowind::host {

std::vector<std::string> LongTextsIn(const std::string& url) {
  return postgres::IsConnectionString(url) ? postgres::LongTexts(url)
                                           : sqlite::LongTexts(sqlite::PathIn(url));
}

}  // namespace ferrowind::host
