#include "ferrowind/adapters/postgres/procedure_signature.h"

#include <algorithm>
#include <cstdint>
#include <optional>

#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::postgres {
namespace {

using platform::Failure;
using platform::ParameterDirection;
using platform::ParameterType;
using Argument = ProcedureSignature::Argument;

/// A row per parameter of every procedure of the name; a procedure without parameters has one row without
/// one.
constexpr const char* kSignatureQuery =
    "SELECT p.oid::int8 AS procedure, a.name, a.mode::text AS mode, a.type::int8 AS type"
    " FROM pg_catalog.pg_proc p"
    " LEFT JOIN LATERAL unnest(p.proargnames, p.proargmodes,"
    "  coalesce(p.proallargtypes, p.proargtypes::oid[])) WITH ORDINALITY AS a (name, mode, type, position) "
    "ON "
    "true"
    " WHERE p.proname = $1 AND p.prokind = 'p' AND p.pronamespace = pg_catalog.to_regnamespace('ferrowind')"
    " ORDER BY p.oid, a.position";

Failure Unusable(const std::string& procedure, const std::string& why) {
  return {platform::failure_number::kInvalidArgument, "The procedure " + procedure + " " + why};
}

std::optional<ParameterType> InputTypeOf(std::int64_t type) {
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

Argument ArgumentOf(const std::string& procedure, const std::string& mode, std::int64_t type) {
  if (mode.empty() || mode == "i") return Argument::kInput;
  if (mode == "b" && type == type_id::kInt4) return Argument::kReturnValue;
  if (mode == "b" && type == type_id::kRefCursor) return Argument::kRecordSet;
  throw Unusable(procedure,
                 "has a parameter that is neither an input nor a return value nor a record set's cursor");
}

/// The signature but for its name. `rows` has a row for each parameter.
ProcedureSignature SignatureIn(platform::RecordSet& rows, const std::string& procedure) {
  ProcedureSignature signature;
  signature.parameters.push_back(
      {"@RETURN_VALUE", 0, ParameterType::kInt32, ParameterDirection::kReturnValue});
  for (; !rows.Eof(); rows.MoveNext()) {
    if (rows["type"].IsEmpty()) continue;
    const std::int64_t type = *rows["type"].If<std::int64_t>();
    signature.arguments.push_back(ArgumentOf(procedure, platform::ToTextOrEmpty(rows["mode"]), type));
    if (signature.arguments.back() != Argument::kInput) continue;
    const std::string name = platform::ToTextOrEmpty(rows["name"]);
    const auto input_type = InputTypeOf(type);
    if (name.empty() || !input_type) {
      throw Unusable(procedure, "has an input without a name or of a type that is not supported: " + name);
    }
    signature.parameters.push_back({"@" + name, static_cast<std::int32_t>(signature.parameters.size()),
                                    *input_type, ParameterDirection::kInput});
  }
  if (std::count(signature.arguments.begin(), signature.arguments.end(), Argument::kReturnValue) != 1) {
    throw Unusable(procedure, "does not have one return value");
  }
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
  const auto rows = ReadRecordSet(connection.Query(kSignatureQuery, {folded}).get());
  if (rows->Eof()) {
    throw Failure(platform::failure_number::kInvalidArgument,
                  connection.DatabaseName() + " has no procedure " + name);
  }
  const std::size_t count = rows->RowCount();
  if (rows->Cell(rows->BookmarkAt(0), 0) != rows->Cell(rows->BookmarkAt(count - 1), 0)) {
    throw Unusable(name, "exists more than once, with different parameters, in " + connection.DatabaseName());
  }
  ProcedureSignature signature = SignatureIn(*rows, name);
  signature.name = folded;
  return signature;
}

}  // namespace ferrowind::postgres
