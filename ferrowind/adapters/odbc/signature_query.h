#pragma once

#include <string>

#include "ferrowind/adapters/odbc/server_link.h"
#include "ferrowind/adapters/postgres_calls/procedure_signature.h"

namespace ferrowind::odbc {

/// Asks the server for the procedure `name`, letter case ignored. A procedure that is missing, that exists
/// more than once, or that is not of the form that calls take, is a failure that names it.
[[nodiscard]] postgres::ProcedureSignature ReadSignature(ServerLink& link, const std::string& name);

}  // namespace ferrowind::odbc
