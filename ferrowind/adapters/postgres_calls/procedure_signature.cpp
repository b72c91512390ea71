#include "ferrowind/adapters/postgres_calls/procedure_signature.h"

#include <algorithm>
#include <optional>

#include "ferrowind/adapters/postgres_calls/type_id.h"
#include "ferrowind/platform/values/case_fold.h"

namespace ferrowind::postgres {
namespace {

using platform::Failure;
using platform::ParameterDirection;
using platform::ParameterType;
using Argument = ProcedureSignature::Argument;

std::optional<ParameterType> InputTypeOf(std::uint32_t type) {
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

Argument ArgumentOf(const std::string& procedure, const DeclaredParameter& parameter) {
  if (parameter.mode.empty() || parameter.mode == "i") return Argument::kInput;
  if (parameter.mode == "b" && parameter.type == type_id::kInt4) return Argument::kReturnValue;
  if (parameter.mode == "b" && parameter.type == type_id::kRefCursor) return Argument::kRecordSet;
  throw UnusableProcedure(
      procedure, "has a parameter that is neither an input nor a return value nor a record set's cursor");
}

}  // namespace

std::size_t ProcedureSignature::RecordSetCount() const {
  return static_cast<std::size_t>(std::count(arguments.begin(), arguments.end(), Argument::kRecordSet));
}

std::string CatalogueName(const std::string& name) {
  if (name.empty() || name.find('\0') != std::string::npos) {
    throw UnusableProcedure(name, "has no possible name");
  }
  // The server keeps names that are not in quotes in small letters.
  return platform::FoldCase(name);
}

ProcedureSignature SignatureOf(const std::string& procedure, const std::vector<DeclaredParameter>& declared) {
  ProcedureSignature signature;
  signature.name = CatalogueName(procedure);
  signature.parameters.push_back(
      {"@RETURN_VALUE", 0, ParameterType::kInt32, ParameterDirection::kReturnValue});
  bool is_each_named = true;
  for (const DeclaredParameter& parameter : declared) {
    signature.argument_names.push_back(parameter.name);
    is_each_named = is_each_named && !parameter.name.empty();
    signature.arguments.push_back(ArgumentOf(procedure, parameter));
    if (signature.arguments.back() != Argument::kInput) continue;
    const auto type = InputTypeOf(parameter.type);
    if (parameter.name.empty() || !type) {
      throw UnusableProcedure(
          procedure, "has an input without a name or of a type that is not supported: " + parameter.name);
    }
    signature.parameters.push_back({"@" + parameter.name,
                                    static_cast<std::int32_t>(signature.parameters.size()), *type,
                                    ParameterDirection::kInput});
  }
  if (std::count(signature.arguments.begin(), signature.arguments.end(), Argument::kReturnValue) != 1) {
    throw UnusableProcedure(procedure, "does not have one return value");
  }
  if (!is_each_named) signature.argument_names.clear();
  return signature;
}

Failure MissingProcedure(const std::string& procedure, const std::string& database) {
  return {platform::failure_number::kInvalidArgument, database + " has no procedure " + procedure};
}

Failure AmbiguousProcedure(const std::string& procedure, const std::string& database) {
  return UnusableProcedure(procedure, "exists more than once, with different parameters, in " + database);
}

Failure UnusableProcedure(const std::string& procedure, const std::string& why) {
  return {platform::failure_number::kInvalidArgument, "The procedure " + procedure + " " + why};
}

}  // namespace ferrowind::postgres
