#pragma once

#include <memory>

#include <libpq-fe.h>

namespace ferrowind::postgres {

struct ConnectionFinish {
  void operator()(PGconn* connection) const { PQfinish(connection); }
};
/// A connection of libpq, closed when destroyed.
using ConnectionHandle = std::unique_ptr<PGconn, ConnectionFinish>;

}  // namespace ferrowind::postgres
