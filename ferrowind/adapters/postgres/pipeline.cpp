#include "ferrowind/adapters/postgres/pipeline.h"

#include <optional>

#include "ferrowind/adapters/postgres/postgres_failure.h"

namespace ferrowind::postgres {

Pipeline::Pipeline(ServerConnection& connection) : connection_(connection) {
  if (PQenterPipelineMode(connection_.Get()) != 1) throw LinkFailure(connection_.Get());
}

Pipeline::~Pipeline() {
  // After `Run` nothing is under way; without it the connection is of no more use, and says so itself.
  PQexitPipelineMode(connection_.Get());
}

std::size_t Pipeline::Add(const std::string& sql, const std::vector<std::string>& parameters) {
  std::vector<const char*> values;
  values.reserve(parameters.size());
  for (const auto& parameter : parameters) values.push_back(parameter.c_str());
  if (PQsendQueryParams(connection_.Get(), sql.c_str(), static_cast<int>(values.size()), nullptr,
                        values.data(), nullptr, nullptr, 1) != 1) {
    throw LinkFailure(connection_.Get());
  }
  return count_++;
}

std::vector<QueryResult> Pipeline::Run() {
  if (PQpipelineSync(connection_.Get()) != 1) throw LinkFailure(connection_.Get());
  std::vector<QueryResult> answers;
  std::optional<platform::Failure> failure;
  for (std::size_t i = 0; i < count_; ++i) {
    answers.push_back(connection_.TakeAnswer());
    const auto status = PQresultStatus(answers.back().get());
    if (!failure && status != PGRES_TUPLES_OK && status != PGRES_COMMAND_OK) {
      failure = ResultFailure(connection_.Get(), answers.back().get());
    }
    // Each statement's answer is followed by nothing.
    while (connection_.IsAlive() && connection_.TakeAnswer()) {
    }
    if (!connection_.IsAlive()) break;
  }
  // What ends the answers; the connection takes new statements only behind it.
  if (connection_.IsAlive()) {
    const QueryResult end = connection_.TakeAnswer();
    if (!failure && PQresultStatus(end.get()) != PGRES_PIPELINE_SYNC)
      failure = LinkFailure(connection_.Get());
  }
  if (failure) throw platform::Failure(*failure);
  if (!connection_.IsAlive()) throw LinkFailure(connection_.Get());
  return answers;
}

}  // namespace ferrowind::postgres
