#include "ferrowind/adapters/postgres/answer_parts.h"

#include <cstddef>
#include <new>
#include <string>
#include <string_view>
#include <utility>

#include "ferrowind/adapters/postgres/postgres_failure.h"

namespace ferrowind::postgres {
namespace {

constexpr std::size_t kMostBytesOfAnAnswer = std::size_t{512} * 1024 * 1024;

/// Statements are never of a kind that copies data; libpq would give such an answer again and again.
bool IsCopying(ExecStatusType status) {
  return status == PGRES_COPY_IN || status == PGRES_COPY_OUT || status == PGRES_COPY_BOTH;
}

/// Whether the end of a statement of that tag tells how many rows there were.
bool TellsRows(std::string_view tag) { return tag != "CALL" && tag != "EXPLAIN" && tag != "SHOW"; }

}  // namespace

AnswerParts::AnswerParts(PGconn* connection) : connection_(connection) {
  static_cast<void>(PQsetSingleRowMode(connection));
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
  if (rows_ || status == PGRES_TUPLES_OK) RequireSaidRows(part.get());
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
  if (PQresultMemorySize(rows_.get()) > kMostBytesOfAnAnswer) throw TooLargeAnswer(connection_);
}

void AnswerParts::RequireSaidRows(PGresult* end) const {
  if (!TellsRows(PQcmdStatus(end))) return;
  const std::string said = PQcmdTuples(end);
  const std::string given = std::to_string(row_count_);
  if (said == given) return;
  throw StrangeAnswer(connection_,
                      given + " rows, of which it says that they are " + (said.empty() ? "none" : said));
}

}  // namespace ferrowind::postgres
