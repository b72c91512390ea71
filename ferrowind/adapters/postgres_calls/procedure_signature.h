#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/platform/database/parameter.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::postgres {

/// A parameter as the server's catalogue has it.
struct DeclaredParameter {
  /// Empty for one without a name.
  std::string name;
  /// "i" for an input, "b" for one that goes both ways, and so on; empty for an input, too.
  std::string mode;
  /// `type_id` has those that procedures may have.
  std::uint32_t type = 0;
};

/// A procedure as the server's catalogue has it.
///
/// Procedures are those of the schema `ferrowind`. A procedure takes its inputs as IN parameters of the types
/// smallint, integer, date and text; it has one INOUT parameter of the type integer, which is its return
/// value, and an INOUT parameter of the type refcursor for each record set, in their order. It opens those
/// cursors under the names that it is given, and leaves the transaction to the caller.
struct ProcedureSignature {
  enum class Argument { kInput, kReturnValue, kRecordSet };

  /// In the server's spelling, without its schema.
  std::string name;
  /// What stands at each place of a call.
  std::vector<Argument> arguments;
  /// In the server's spelling; none at all where one of them has no name.
  std::vector<std::string> argument_names;
  /// The return value first, then the inputs by position.
  std::vector<platform::ParameterDescription> parameters;

  [[nodiscard]] std::size_t RecordSetCount() const;
};

/// Under which name the catalogue has the procedure that is asked for as `name`, letter case ignored. A text
/// that can be no name is a failure.
[[nodiscard]] std::string CatalogueName(const std::string& name);

/// The signature of the procedure `procedure` with those parameters, in their order. One that is not of the
/// form that `ProcedureSignature` tells is a failure that names it.
[[nodiscard]] ProcedureSignature SignatureOf(const std::string& procedure,
                                             const std::vector<DeclaredParameter>& declared);

///@{
/// That the procedure cannot be called, by the name that it was asked for: it is missing, it exists more than
/// once, or something else is wrong with it, which `why` says behind its name.
[[nodiscard]] platform::Failure MissingProcedure(const std::string& procedure, const std::string& database);
[[nodiscard]] platform::Failure AmbiguousProcedure(const std::string& procedure, const std::string& database);
[[nodiscard]] platform::Failure UnusableProcedure(const std::string& procedure, const std::string& why);
///@}

}  // namespace ferrowind::postgres
