#include <string>
#include <vector>

#include "ferrowind/adapters/content/long_texts.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/procedure_catalogue.h"
#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/adapters/sqlite/transaction.h"
#include "ferrowind/platform/database/failure_boundary.h"

namespace ferrowind::sqlite {

std::vector<std::string> LongTexts(const std::string& path) {
  return platform::WithFailuresOnly([&] {
    DatabaseHandle database(path);
    const ProcedureCatalogue must_be_a_calendar_database(database);
    const Transaction transaction(database, Transaction::Kind::kReading);
    std::vector<std::string> sentences;
    for (const std::string& question : content::LongTextQuestions("", "FERROWIND_LENGTH")) {
      Statement ask(database, question);
      while (ask.Step()) sentences.emplace_back(ask.Text(0));
    }
    return sentences;
  });
}

}  // namespace ferrowind::sqlite
