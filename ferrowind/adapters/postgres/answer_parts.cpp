#include "ferrowind/adapters/postgres/answer_parts.h"

#include <cstddef>
#include <new>
#include <string>
#include <string_view>
#include <utility>

#include "ferrowind/adapters/postgres/postgres_failure.h"
#include "ferrowind/adapters/postgres/received_bytes.h"
#include "ferrowind/adapters/postgres_calls/answer_size.h"

namespace ferrowind::postgres {
namespace {

/// Statements are never of a kind that copies data; libpq would give such an answer again and again.
bool IsCopying(ExecStatusType status) {
  return status == PGRES_COPY_IN || status == PGRES_COPY_OUT || status == PGRES_COPY_BOTH;
}

/// Whether the end of a statement of that tag tells how many rows there were.
bool TellsRows(std::string_view tag) { return tag != "CALL" && tag != "EXPLAIN" && tag != "SHOW"; }

void RequireSize(const PGconn* connection, const PGresult* result) {
  if (PQresultMemorySize(result) > kMostBytesOfAnAnswer) throw TooLargeAnswer(NameOfDatabase(connection));
}

}  // namespace

AnswerParts::Form AnswerParts::FormOver(const PGconn* connection) {
  // Over one that is logged in something has come; a count of nothing is none.
  return ReceivedBytes(PQsocket(connection)).value_or(0) > 0 ? Form::kWhole : Form::kRows;
}

AnswerParts::AnswerParts(PGconn* connection, Form form) : connection_(connection), form_(form) {
  // Does nothing behind the last answer.
  if (form_ == Form::kRows) static_cast<void>(PQsetSingleRowMode(connection));
}

bool AnswerParts::Read() {
  // Most answers need no other, and asking the system each time would show in the time of a call.
  const bool is_first_reading = std::exchange(is_first_reading_, false);
  if (form_ == Form::kRows || is_first_reading) return PQconsumeInput(connection_) == 1;
  if (!bytes_before_) bytes_before_ = ReceivedBytes(PQsocket(connection_));
  if (PQconsumeInput(connection_) != 1) return false;
  const auto bytes = ReceivedBytes(PQsocket(connection_));
  // A connection that was lost has no count any more, and gives no more bytes.
  if (bytes && bytes_before_ && *bytes - *bytes_before_ > kMostBytesOfAnAnswer) {
    throw TooLargeAnswer(NameOfDatabase(connection_));
  }
  return true;
}

bool AnswerParts::Add(QueryResult part) {
  const ExecStatusType status = PQresultStatus(part.get());
  if (status == PGRES_SINGLE_TUPLE) {
    AddRow(part.get());
    return false;
  }
  if (IsCopying(status)) throw StrangeAnswer(connection_, "data to be copied, which nobody asked for");
  const bool is_success = status == PGRES_TUPLES_OK || status == PGRES_COMMAND_OK;
  // Rows in front of an error are none.
  if (!is_success) rows_.reset();
  if (rows_ || status == PGRES_TUPLES_OK) {
    RequireSaidRows(part.get(), row_count_ + static_cast<std::size_t>(PQntuples(part.get())));
  }
  RequireSize(connection_, part.get());
  end_ = std::move(part);
  return true;
}

void AnswerParts::AddRow(const PGresult* row) {
  if (!rows_) rows_.reset(PQcopyResult(row, PG_COPYRES_ATTRS));
  if (!rows_) throw std::bad_alloc();
  ++row_count_;
  const int at = PQntuples(rows_.get());
  for (int column = 0; column < PQnfields(row); ++column) {
    const int size = PQgetisnull(row, 0, column) != 0 ? -1 : PQgetlength(row, 0, column);
    if (PQsetvalue(rows_.get(), at, column, PQgetvalue(row, 0, column), size) == 0) throw std::bad_alloc();
  }
  RequireSize(connection_, rows_.get());
}

void AnswerParts::RequireSaidRows(PGresult* end, std::size_t count) const {
  if (!TellsRows(PQcmdStatus(end))) return;
  const std::string said = PQcmdTuples(end);
  const std::string given = std::to_string(count);
  if (said == given) return;
  throw StrangeAnswer(connection_,
                      given + " rows, of which it says that they are " + (said.empty() ? "none" : said));
}

}  // namespace ferrowind::postgres
