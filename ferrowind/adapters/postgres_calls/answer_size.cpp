#include "ferrowind/adapters/postgres_calls/answer_size.h"

#include "ferrowind/adapters/postgres_calls/sql_state.h"

namespace ferrowind::postgres {

platform::Failure TooLargeAnswer(const std::string& database, std::string_view reporter) {
  constexpr std::string_view kProgramLimit = "54000";
  return FailureOfState(kProgramLimit,
                        database + " gives more than 512 MB at once, which no calendar database does",
                        "the rest was not read", reporter);
}

}  // namespace ferrowind::postgres
