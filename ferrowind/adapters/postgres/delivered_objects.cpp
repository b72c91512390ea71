#include "ferrowind/adapters/postgres/delivered_objects.h"

#include <string>
#include <string_view>

#include "database/postgres/embedded_sql.h"

namespace ferrowind::postgres {

void CreateDeliveredSchema(ServerConnection& connection) {
  for (const std::string_view script :
       {embedded::kPostgresSchema, embedded::kPostgresCldAllInfo, embedded::kPostgresCldGetMain,
        embedded::kPostgresCldIUMain, embedded::kPostgresCldIUCelebrate}) {
    connection.RunScript(std::string(script));
  }
}

void GiveDeliveredRights(ServerConnection& connection) {
  connection.RunScript(std::string(embedded::kPostgresRights));
}

}  // namespace ferrowind::postgres
