#include "host/admin/call_command.h"

#include <ostream>

#include "ferrowind/data/exec_proc.h"

#include "host/admin/procedure_arguments.h"
#include "host/admin/text_escapes.h"
#include "host/session/procedure_session.h"

namespace ferrowind::host {
namespace {

ProcedureOutcome Call(const CallCommand& command, const platform::EngineRegistry& engines) {
  std::vector<platform::ParameterDescription> parameters;
  try {
    // A connection of its own, gone before the gateway opens the one that the call runs on.
    parameters = engines.EngineFor(command.url).Connect(command.url)->DescribeProcedure(command.procedure);
  } catch (const platform::Failure& failure) {
    // The gateway asks the same question first and would fail by the same answer.
    return {kCallFailed, {}, failure};
  }
  const SourceValues values = ReadArguments(command.arguments, parameters);
  ProcedureOutcome outcome;
  RunWithDatabase(engines, command.url, [&] { outcome = CallProcedure(command.procedure, values); });
  return outcome;
}

}  // namespace

ExitStatus CallCommand::Run(const platform::EngineRegistry& engines, std::ostream& out,
                            std::ostream& errors) const {
  const ProcedureOutcome outcome = Call(*this, engines);
  WriteOutcome(outcome, format, out);
  if (outcome.failure) {
    errors << "ferrowindctl: failure " << outcome.failure->Number() << ": "
           << OneLine(outcome.failure->Description()) << '\n';
    return ExitStatus::kCallFailed;
  }
  out.flush();
  if (outcome.too_long_text)
    errors << "ferrowindctl: " << OneLine(outcome.too_long_text->InEnglish()) << '\n';
  return outcome.return_value == 0 ? ExitStatus::kDone : ExitStatus::kReturnedNonZero;
}

}  // namespace ferrowind::host
