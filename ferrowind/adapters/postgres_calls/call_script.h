#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

#include "ferrowind/adapters/postgres_calls/procedure_signature.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::postgres {

/// The statements of one procedure call.
///
/// What is to happen after the CALL depends on the return value, which only the server knows while the
/// statements behind it are already on their way. So the CALL stands in a block that the server runs: a
/// return value other than 0 undoes what the procedure did, and a cursor that the procedure did not open is
/// opened without columns, since fetching from one that is not open would undo the call as well. No value is
/// part of a statement's text: inputs reach the block as settings, which are set through parameters.
class CallScript {
 public:
  /// How a library takes a statement with parameters, and where it may stand.
  enum class Form {
    /// $1, $2, ...; in the transaction of the call, to which the settings belong.
    kNumbered,
    /// ?, ?, ...; in front of the transaction, so that the settings are there until they are set anew.
    kQuestionMarks,
  };

  /// `inputs` has a value for each input of the procedure, of the declared type or empty; a text with NUL is
  /// not possible here. The call waits for each lock of others no longer than `lock_timeout`.
  CallScript(const ProcedureSignature& signature, const std::vector<platform::Value>& inputs,
             std::chrono::milliseconds lock_timeout, Form form);

  /// Sets the inputs, and how long the call waits for others.
  [[nodiscard]] const std::string& SetInputs() const { return set_inputs_; }
  [[nodiscard]] const std::vector<std::string>& InputTexts() const { return input_texts_; }
  /// The block with the CALL.
  [[nodiscard]] const std::string& Block() const { return block_; }
  /// Gives the return value as a text, empty when the procedure set none.
  [[nodiscard]] static std::string ReadReturnValue();
  /// Gives the rows of the record set at the 0-based `position`; no columns when there is no such record set.
  [[nodiscard]] static std::string FetchRecordSet(std::size_t position);

 private:
  /// Has `setting` set to `value`, both as they stand in a statement.
  void Set(const std::string& setting, const std::string& value);
  [[nodiscard]] std::string AddInput(const platform::ParameterDescription& parameter,
                                     const platform::Value& value);

  Form form_;
  std::string set_inputs_;
  std::vector<std::string> input_texts_;
  std::string block_;
};

}  // namespace ferrowind::postgres
