#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/platform/database/parameter.h"

namespace ferrowind::postgres {

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
  /// The server's process that described it.
  std::int32_t process = 0;

  [[nodiscard]] std::size_t RecordSetCount() const;
};

/// Asks the server for the procedure `name`, letter case ignored. A procedure that is missing, that exists
/// more than once, or that is not of that form, is a failure that names it. One round trip.
[[nodiscard]] ProcedureSignature ReadSignature(ServerConnection& connection, const std::string& name);

}  // namespace ferrowind::postgres
