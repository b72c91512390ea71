#include "ferrowind/adapters/postgres_calls/dictionary_query.h"

#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::postgres {

void RequireDictionary(const std::string& name) {
  if (platform::CompareIgnoringCase(name, "Ccy") == 0) return;
  throw platform::Failure(platform::failure_number::kInvalidArgument, "There is no dictionary " + name);
}

}  // namespace ferrowind::postgres
