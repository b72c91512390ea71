#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "ferrowind/adapters/postgres_calls/procedure_signature.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/value.h"

/// What is told of a call that came to nothing, whichever library has carried it. Each names the procedure as
/// it was asked for.
namespace ferrowind::postgres {

/// Fails for the first input that the procedure or the server does not take.
void RefuseWrongInputs(const ProcedureSignature& signature, const std::string& procedure,
                       const std::vector<platform::Value>& inputs);

/// How long a call waits for the locks of others, of the time that it has left: as long as a database file
/// would be waited for, since longer, and the operator would take the window for dead. Of less time something
/// must be left to say that it waited for a lock.
[[nodiscard]] std::chrono::milliseconds LockTimeout(std::chrono::milliseconds left);

/// The connection was lost while the call was under way.
[[nodiscard]] platform::Failure InterruptedCall(const std::string& procedure,
                                                const platform::Failure& failure);
/// The server was told to stop the call, which took too long, and did.
[[nodiscard]] platform::Failure StoppedCall(const std::string& procedure, const platform::Failure& failure);
/// The server answered with an error.
[[nodiscard]] platform::Failure FailedCall(const std::string& procedure, const platform::Failure& failure);
/// The procedure set no return value.
[[nodiscard]] platform::Failure CallWithoutReturnValue(const std::string& procedure);
/// What the call gave cannot be read.
[[nodiscard]] platform::Failure UnreadableOutcome(const std::string& procedure,
                                                  const platform::Failure& failure);

}  // namespace ferrowind::postgres
