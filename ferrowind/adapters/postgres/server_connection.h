#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <libpq-fe.h>

namespace ferrowind::postgres {

struct ResultClear {
  void operator()(PGresult* result) const { PQclear(result); }
};
using QueryResult = std::unique_ptr<PGresult, ResultClear>;

/// Receives a server's notices, which are for nobody here; libpq would print them.
void DropNotice(void* context, const PGresult* notice);

/// An open connection to a server. Used by one thread; closed when destroyed, which undoes a transaction that
/// is not committed. Results come in the binary format.
class ServerConnection {
 public:
  /// Connects as `uri` (connection_uri.h) says.
  explicit ServerConnection(const std::string& uri);

  /// Runs one statement with the texts `parameters` for $1, $2, ...
  [[nodiscard]] QueryResult Query(const std::string& sql, const std::vector<std::string>& parameters = {});
  /// Runs the statements of a script, dropping their rows.
  void RunScript(const std::string& sql);

  /// `text` as an SQL literal, `name` as an SQL identifier.
  [[nodiscard]] std::string Literal(const std::string& text) const;
  [[nodiscard]] std::string Identifier(const std::string& name) const;

  [[nodiscard]] bool IsAlive() const { return PQstatus(Get()) == CONNECTION_OK; }
  /// As failures name it.
  [[nodiscard]] std::string DatabaseName() const;
  [[nodiscard]] PGconn* Get() const { return connection_.get(); }

 private:
  struct Finish {
    void operator()(PGconn* connection) const { PQfinish(connection); }
  };

  std::unique_ptr<PGconn, Finish> connection_;
};

}  // namespace ferrowind::postgres
