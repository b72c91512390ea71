#include "ferrowind/adapters/postgres/dictionary_query.h"

#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::postgres {

void RequireDictionary(const std::string& name) {
  if (platform::CompareIgnoringCase(name, "Ccy") == 0) return;
  throw platform::Failure(platform::failure_number::kInvalidArgument, "There is no dictionary " + name);
}

std::shared_ptr<platform::RecordSet> ReadCurrencies(ServerConnection& connection) {
  return ReadRecordSet(
      connection
          .Query("SELECT CcyID AS \"CcyID\", Ccy AS \"Ccy\", CcyType AS \"CcyType\", Name AS "
                 "\"Name\" FROM ferrowind.DictionaryCcy ORDER BY Ccy COLLATE \"C\"")
          .get());
}

}  // namespace ferrowind::postgres
