#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>

#include <libpq-fe.h>

namespace ferrowind::postgres {

struct ResultClear {
  void operator()(PGresult* result) const { PQclear(result); }
};
using QueryResult = std::unique_ptr<PGresult, ResultClear>;

/// The answer to one statement. libpq keeps whatever comes, and what answers in the place of a server may
/// never end: an answer of more bytes than any calendar database gives is a failure, after which the
/// connection is of no more use.
class AnswerParts {
 public:
  enum class Form {
    /// libpq gives it whole; what comes meanwhile is counted.
    kWhole,
    /// Row by row, each of which is counted; that takes several times as long.
    kRows,
  };
  /// How answers over `connection`, which is logged in, can be limited: its system counts what comes over it,
  /// or does not.
  [[nodiscard]] static Form FormOver(const PGconn* connection);

  /// Takes the answer that is the next one of `connection`, which must outlive the object.
  AnswerParts(PGconn* connection, Form form);

  /// Lets libpq read what has come. False when it cannot, of which its next result tells.
  [[nodiscard]] bool Read();

  /// Adds the next result of libpq, which may be null. True when it was the last one of the answer.
  ///
  /// Another number of rows than it says that there are is a failure, and so is what is no answer to a
  /// statement.
  [[nodiscard]] bool Add(QueryResult part);

  /// The whole: rows, a success or an error; null when there was no answer.
  [[nodiscard]] QueryResult Take() { return std::move(rows_ ? rows_ : end_); }

 private:
  void AddRow(const PGresult* row);
  void RequireSaidRows(PGresult* end, std::size_t count) const;

  PGconn* connection_;
  Form form_;
  bool is_first_reading_ = true;
  /// What had come in front of the second reading.
  std::optional<std::uint64_t> bytes_before_;
  /// Of single rows.
  QueryResult rows_;
  /// Counted here, since rows without columns leave no trace in `rows_`.
  std::size_t row_count_ = 0;
  QueryResult end_;
};

}  // namespace ferrowind::postgres
