#include "ferrowind/adapters/postgres/signature_query.h"

#include <cstddef>
#include <vector>

#include "ferrowind/adapters/postgres/binary_value.h"
#include "ferrowind/adapters/postgres/postgres_failure.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::postgres {
namespace {

using platform::Failure;

/// A row per procedure of the name, with its parameters' names, modes and types: all null without parameters,
/// the modes and the first list of types null when all are inputs. The arrays come as they are stored, since
/// on a new connection every cast, function and sorting costs a server that must look it up first.
constexpr const char* kSignatureQuery =
    "SELECT proargnames, proargmodes, proallargtypes, proargtypes, pg_catalog.pg_backend_pid()"
    " FROM pg_catalog.pg_proc"
    " WHERE proname = $1 AND prokind = 'p' AND pronamespace = pg_catalog.to_regnamespace('ferrowind')";

constexpr int kColumnsOfSignature = 5;
/// Parameters are a hundred at most, with names of 63 bytes.
constexpr int kMostBytesOfArray = 64 * 1024;

Failure StrangelyDescribed(const std::string& procedure) {
  return UnusableProcedure(procedure, "is described as no PostgreSQL server describes one");
}

std::vector<std::string> ArrayIn(const PGresult* result, int column, const std::string& procedure) {
  if (PQgetlength(result, 0, column) > kMostBytesOfArray) throw StrangelyDescribed(procedure);
  return ReadArray(PQgetvalue(result, 0, column), static_cast<std::size_t>(PQgetlength(result, 0, column)));
}

QueryResult Ask(ServerConnection& connection, const std::string& procedure, const std::string& folded) {
  try {
    return connection.Query(kSignatureQuery, {folded});
  } catch (const Failure& failure) {
    throw Introduced("The procedure " + procedure + " cannot be looked up: ", failure);
  }
}

/// `result` has the one row of the procedure.
std::vector<DeclaredParameter> ParametersIn(const PGresult* result, const std::string& procedure) {
  auto types = ArrayIn(result, 2, procedure);
  if (types.empty()) types = ArrayIn(result, 3, procedure);
  // Parameters at the end may have no names.
  auto names = ArrayIn(result, 0, procedure);
  names.resize(types.size());
  auto modes = ArrayIn(result, 1, procedure);
  modes.resize(types.size());
  std::vector<DeclaredParameter> parameters;
  for (std::size_t i = 0; i < types.size(); ++i) {
    if (types[i].size() != sizeof(Oid)) throw StrangelyDescribed(procedure);
    parameters.push_back({names[i], modes[i], ReadNumber<Oid>(types[i].data())});
  }
  return parameters;
}

}  // namespace

DescribedProcedure ReadSignature(ServerConnection& connection, const std::string& name) {
  const QueryResult result = Ask(connection, name, CatalogueName(name));
  if (PQnfields(result.get()) != kColumnsOfSignature) throw StrangelyDescribed(name);
  const int count = PQntuples(result.get());
  if (count == 0) throw MissingProcedure(name, connection.DatabaseName());
  if (count > 1) throw AmbiguousProcedure(name, connection.DatabaseName());
  DescribedProcedure described;
  described.signature = SignatureOf(name, ParametersIn(result.get(), name));
  if (PQgetlength(result.get(), 0, 4) != sizeof(described.process)) throw StrangelyDescribed(name);
  described.process = ReadNumber<std::int32_t>(PQgetvalue(result.get(), 0, 4));
  return described;
}

}  // namespace ferrowind::postgres
