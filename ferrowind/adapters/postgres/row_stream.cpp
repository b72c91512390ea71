#include "ferrowind/adapters/postgres/row_stream.h"

#include <cstdint>
#include <exception>

#include "ferrowind/adapters/postgres/binary_value.h"
#include "ferrowind/adapters/postgres/postgres_failure.h"
#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/platform/database/failure_boundary.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::postgres {
namespace {

using platform::Failure;

/// What the format begins with, in front of flags and the size of what else may stand in front of the rows.
constexpr std::string_view kSignature("PGCOPY\n\377\r\n\0", 11);

Failure NoServer(const char* what) {
  return {platform::failure_number::kTypeMismatch,
          "The server answered with " + std::string(what) + "; it is no PostgreSQL server"};
}

}  // namespace

RowStream::RowStream(ServerConnection& connection, const std::string& query, std::size_t columns)
    : connection_(connection) {
  // The stream does not say of which types its columns are.
  const auto none = connection_.Query(query + " LIMIT 0");
  types_ = ReadTypes(none.get());
  if (types_.size() != columns) {
    throw NoServer(
        (std::to_string(types_.size()) + " columns instead of " + std::to_string(columns)).c_str());
  }
  for (std::size_t column = 0; column < columns; ++column) {
    names_.emplace_back(PQfname(none.get(), static_cast<int>(column)));
  }
  connection_.BeginCopy("COPY (" + query + ") TO STDOUT (FORMAT binary)", PGRES_COPY_OUT);
}

RowStream::~RowStream() {
  try {
    while (connection_.IsAlive() && !is_at_end_ && ReceiveMessage() > 0) {
    }
    if (!connection_.IsAlive()) return;
    // The end of the stream, and that nothing comes behind it.
    if (connection_.TakeAnswer() && connection_.TakeAnswer()) connection_.GiveUp();
  } catch (const std::exception&) {
    connection_.GiveUp();
  }
}

bool RowStream::Next(content::Row& row) {
  return platform::WithFailuresOnly([&] {
    if (is_at_end_ || !Receive()) return false;
    if (is_at_start_) TakeHeader();
    const auto count = TakeNumber<std::int16_t>();
    if (count == -1) {
      Finish();
      return false;
    }
    if (static_cast<std::size_t>(count) != types_.size()) throw NoServer("a row of other columns");
    row.clear();
    for (std::size_t column = 0; column < types_.size(); ++column) {
      const auto size = TakeNumber<std::int32_t>();
      if (size == -1) {
        row.emplace_back();
      } else {
        row.push_back(
            ReadValue(Take(static_cast<std::size_t>(size)), types_[column], names_[column].c_str()));
      }
    }
    return true;
  });
}

/// A message is a row; the header stands in front of the first, and a row of its own marks the end.
bool RowStream::Receive() {
  const int size = ReceiveMessage();
  if (size > 0) {
    rest_ = {message_.get(), static_cast<std::size_t>(size)};
    return true;
  }
  Finish();
  return false;
}

/// The size of the next message, or -1 behind the last one.
int RowStream::ReceiveMessage() {
  for (;;) {
    char* message = nullptr;
    const int size = PQgetCopyData(connection_.Get(), &message, 1);
    message_.reset(message);
    if (size == -2) throw LinkFailure(connection_.Get());
    if (size != 0) return size;
    connection_.AwaitInput();
  }
}

std::string_view RowStream::Take(std::size_t size) {
  if (size > rest_.size()) throw NoServer("a row that is cut short");
  const std::string_view taken = rest_.substr(0, size);
  rest_.remove_prefix(size);
  return taken;
}

template <typename Number>
Number RowStream::TakeNumber() {
  return ReadNumber<Number>(Take(sizeof(Number)).data());
}

void RowStream::TakeHeader() {
  is_at_start_ = false;
  if (Take(kSignature.size()) != kSignature) throw NoServer("something else than rows");
  static_cast<void>(TakeNumber<std::int32_t>());
  const auto extension = TakeNumber<std::int32_t>();
  static_cast<void>(Take(static_cast<std::size_t>(extension)));
}

/// The server may still say that it has failed.
void RowStream::Finish() {
  while (ReceiveMessage() > 0) {
  }
  is_at_end_ = true;
  const QueryResult result = connection_.TakeAnswer();
  if (PQresultStatus(result.get()) != PGRES_COMMAND_OK) throw ResultFailure(connection_.Get(), result.get());
}

}  // namespace ferrowind::postgres
