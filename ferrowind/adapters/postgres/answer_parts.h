#pragma once

#include <cstddef>
#include <memory>
#include <utility>

#include <libpq-fe.h>

namespace ferrowind::postgres {

struct ResultClear {
  void operator()(PGresult* result) const { PQclear(result); }
};
using QueryResult = std::unique_ptr<PGresult, ResultClear>;

/// The answer to one statement, put together of the parts that libpq gives when it is asked for single rows.
/// Otherwise it keeps whatever comes, and what answers in the place of a server may never end.
class AnswerParts {
 public:
  /// Asks for single rows of the statement whose answer is the next one of `connection`, which must outlive
  /// the object. Does nothing behind the last answer.
  explicit AnswerParts(PGconn* connection);

  /// Adds the next part, which may be null. True when it was the last one.
  ///
  /// An answer that holds more than any calendar database gives, or another number of rows than it says, or
  /// that is none to a statement, is a failure, after which the connection is of no more use.
  [[nodiscard]] bool Add(QueryResult part);

  /// The whole: rows, a success or an error; null when there was no answer.
  [[nodiscard]] QueryResult Take() { return std::move(rows_ ? rows_ : end_); }

 private:
  void AddRow(const PGresult* row);
  void RequireSaidRows(PGresult* end) const;

  const PGconn* connection_;
  QueryResult rows_;
  /// Counted here, since rows without columns leave no trace in `rows_`.
  std::size_t row_count_ = 0;
  QueryResult end_;
};

}  // namespace ferrowind::postgres
