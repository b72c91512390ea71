#include <cstddef>
#include <string>
#include <vector>

#include "ferrowind/adapters/content/long_texts.h"
#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/adapters/postgres/schema_version.h"
#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/platform/database/failure_boundary.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::postgres {

std::vector<std::string> LongTexts(const std::string& connection_string) {
  return platform::WithFailuresOnly([&] {
    ServerConnection connection(connection_string);
    connection.RunScript(
        "BEGIN ISOLATION LEVEL REPEATABLE READ READ ONLY; SET LOCAL search_path = pg_catalog, pg_temp;"
        "SET LOCAL datestyle = 'ISO'");
    RequireCalendarDatabase(connection);
    std::vector<std::string> sentences;
    for (const std::string& question : content::LongTextQuestions("ferrowind.", "length")) {
      const auto rows = ReadRecordSet(connection.Query(question).get());
      for (std::size_t row = 0; row < rows->RowCount(); ++row) {
        sentences.push_back(platform::ToTextOrEmpty(rows->Cell(rows->BookmarkAt(row), 0)));
      }
    }
    return sentences;
  });
}

}  // namespace ferrowind::postgres
