// An answer is what libpq makes of it: whole, of any size, and with as many rows as there are.

#include "ferrowind/adapters/postgres/answer_parts.h"

namespace ferrowind::postgres {

AnswerParts::Form AnswerParts::FormOver(const PGconn* /*connection*/) { return Form::kWhole; }

AnswerParts::AnswerParts(PGconn* connection, Form form) : connection_(connection), form_(form) {}

bool AnswerParts::Read() { return PQconsumeInput(connection_) == 1; }

bool AnswerParts::Add(QueryResult part) {
  end_ = std::move(part);
  return true;
}

}  // namespace ferrowind::postgres
