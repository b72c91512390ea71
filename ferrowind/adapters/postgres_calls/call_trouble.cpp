#include "ferrowind/adapters/postgres_calls/call_trouble.h"

#include <algorithm>
#include <cstddef>

#include "ferrowind/adapters/postgres_calls/sql_state.h"
#include "ferrowind/platform/database/call_inputs.h"

namespace ferrowind::postgres {

using platform::Failure;

void RefuseWrongInputs(const ProcedureSignature& signature, const std::string& procedure,
                       const std::vector<platform::Value>& inputs) {
  platform::RefuseWrongInputs(procedure, signature.parameters, inputs);
  for (std::size_t i = 0; i < inputs.size(); ++i) {
    const auto* const text = inputs[i].If<std::string>();
    // The server has no such character, and a library would end the text in front of it.
    if (text != nullptr && text->find('\0') != std::string::npos) {
      throw platform::RefusedInput(platform::failure_number::kInvalidArgument, procedure,
                                   signature.parameters[i + 1],
                                   "was given a text with the character NUL, which the server cannot store");
    }
  }
}

std::chrono::milliseconds LockTimeout(std::chrono::milliseconds left) {
  constexpr std::chrono::milliseconds kMost = std::chrono::seconds(5);
  return std::clamp(left / 10 * 8, std::chrono::milliseconds(1), kMost);
}

Failure InterruptedCall(const std::string& procedure, const Failure& failure) {
  return Introduced("The procedure " + procedure +
                        " was interrupted; it has done all of its work or nothing, so look before you call "
                        "it again. ",
                    failure);
}

Failure StoppedCall(const std::string& procedure, const Failure& failure) {
  return Introduced(
      "The procedure " + procedure + " took longer than a call may, was told to stop, and has done nothing. ",
      failure);
}

Failure FailedCall(const std::string& procedure, const Failure& failure) {
  return Introduced("The procedure " + procedure + " failed: ", failure);
}

Failure CallWithoutReturnValue(const std::string& procedure) {
  return {platform::failure_number::kInvalidUseOfNull,
          "The procedure " + procedure + " gave no return value, so what it did was undone"};
}

Failure UnreadableOutcome(const std::string& procedure, const Failure& failure) {
  return Introduced("The procedure " + procedure + " has run, but what it gave cannot be read: ", failure);
}

}  // namespace ferrowind::postgres
