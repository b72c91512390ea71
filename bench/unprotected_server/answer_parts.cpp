// An answer is what libpq makes of it: whole, of any size, and with as many rows as there are.

#include "ferrowind/adapters/postgres/answer_parts.h"

namespace ferrowind::postgres {

AnswerParts::AnswerParts(PGconn* connection) : connection_(connection) {}

bool AnswerParts::Add(QueryResult part) {
  end_ = std::move(part);
  return true;
}

}  // namespace ferrowind::postgres
