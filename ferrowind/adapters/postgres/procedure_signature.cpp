#include "ferrowind/adapters/postgres/procedure_signature.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

#include "ferrowind/adapters/postgres/binary_value.h"
#include "ferrowind/adapters/postgres/postgres_failure.h"
#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::postgres {
namespace {

using platform::Failure;
using platform::ParameterDirection;
using platform::ParameterType;
using Argument = ProcedureSignature::Argument;

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

Failure Unusable(const std::string& procedure, const std::string& why) {
  return {platform::failure_number::kInvalidArgument, "The procedure " + procedure + " " + why};
}

std::optional<ParameterType> InputTypeOf(Oid type) {
  switch (type) {
    case type_id::kInt2:
      return ParameterType::kInt16;
    case type_id::kInt4:
      return ParameterType::kInt32;
    case type_id::kText:
      return ParameterType::kText;
    case type_id::kDate:
      return ParameterType::kDate;
    default:
      return std::nullopt;
  }
}

Argument ArgumentOf(const std::string& procedure, const std::string& mode, Oid type) {
  if (mode.empty() || mode == "i") return Argument::kInput;
  if (mode == "b" && type == type_id::kInt4) return Argument::kReturnValue;
  if (mode == "b" && type == type_id::kRefCursor) return Argument::kRecordSet;
  throw Unusable(procedure,
                 "has a parameter that is neither an input nor a return value nor a record set's cursor");
}

Failure StrangelyDescribed(const std::string& procedure) {
  return Unusable(procedure, "is described as no PostgreSQL server describes one");
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

/// The signature but for its name. `result` has the one row of the procedure.
ProcedureSignature SignatureIn(const PGresult* result, const std::string& procedure) {
  ProcedureSignature signature;
  signature.parameters.push_back(
      {"@RETURN_VALUE", 0, ParameterType::kInt32, ParameterDirection::kReturnValue});
  auto types = ArrayIn(result, 2, procedure);
  if (types.empty()) types = ArrayIn(result, 3, procedure);
  // Parameters at the end may have no names.
  auto names = ArrayIn(result, 0, procedure);
  names.resize(types.size());
  auto modes = ArrayIn(result, 1, procedure);
  modes.resize(types.size());
  for (std::size_t i = 0; i < types.size(); ++i) {
    if (types[i].size() != sizeof(Oid)) throw StrangelyDescribed(procedure);
    const auto type = ReadNumber<Oid>(types[i].data());
    signature.arguments.push_back(ArgumentOf(procedure, modes[i], type));
    if (signature.arguments.back() != Argument::kInput) continue;
    const auto input_type = InputTypeOf(type);
    if (names[i].empty() || !input_type) {
      throw Unusable(procedure,
                     "has an input without a name or of a type that is not supported: " + names[i]);
    }
    signature.parameters.push_back({"@" + names[i], static_cast<std::int32_t>(signature.parameters.size()),
                                    *input_type, ParameterDirection::kInput});
  }
  if (std::count(signature.arguments.begin(), signature.arguments.end(), Argument::kReturnValue) != 1) {
    throw Unusable(procedure, "does not have one return value");
  }
  if (std::find(names.begin(), names.end(), std::string()) == names.end()) {
    signature.argument_names = std::move(names);
  }
  if (PQgetlength(result, 0, 4) != sizeof(signature.process)) throw StrangelyDescribed(procedure);
  signature.process = ReadNumber<std::int32_t>(PQgetvalue(result, 0, 4));
  return signature;
}

}  // namespace

std::size_t ProcedureSignature::RecordSetCount() const {
  return static_cast<std::size_t>(std::count(arguments.begin(), arguments.end(), Argument::kRecordSet));
}

ProcedureSignature ReadSignature(ServerConnection& connection, const std::string& name) {
  // The server keeps names that are not in quotes in small letters.
  const std::string folded = platform::FoldCase(name);
  if (name.empty() || name.find('\0') != std::string::npos) throw Unusable(name, "has no possible name");
  const QueryResult result = Ask(connection, name, folded);
  if (PQnfields(result.get()) != kColumnsOfSignature) throw StrangelyDescribed(name);
  const int count = PQntuples(result.get());
  if (count == 0) {
    throw Failure(platform::failure_number::kInvalidArgument,
                  connection.DatabaseName() + " has no procedure " + name);
  }
  if (count > 1) {
    throw Unusable(name, "exists more than once, with different parameters, in " + connection.DatabaseName());
  }
  ProcedureSignature signature = SignatureIn(result.get(), name);
  signature.name = folded;
  return signature;
}

}  // namespace ferrowind::postgres
