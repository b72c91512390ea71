#include "host/delivery/delivered_tables.h"

#include <string>

#include "database/seed/delivered_books.h"

namespace ferrowind::host {

const almanac::DateTables& DeliveredDateTables() {
  static const almanac::DateTables tables = [] {
    almanac::DateTables delivered;
    for (const embedded::DeliveredText& table : embedded::DeliveredTables()) {
      delivered.Add(almanac::ReadDateTable(std::string(table.name), table.text));
    }
    return delivered;
  }();
  return tables;
}

}  // namespace ferrowind::host
