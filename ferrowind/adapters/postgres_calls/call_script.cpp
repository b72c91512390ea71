#include "ferrowind/adapters/postgres_calls/call_script.h"

#include "ferrowind/adapters/postgres_calls/sql_text.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::postgres {
namespace {

using platform::ParameterType;
using Argument = ProcedureSignature::Argument;

std::string CursorName(std::size_t position) { return "record_set_" + std::to_string(position + 1); }

std::string InputSetting(std::size_t number) { return "'ferrowind.input_" + std::to_string(number) + "'"; }

const char* ServerType(ParameterType type) {
  switch (type) {
    case ParameterType::kInt16:
      return "::int2";
    case ParameterType::kInt32:
      return "::int4";
    case ParameterType::kDate:
      return "::date";
    case ParameterType::kText:
      break;
  }
  return "::text";
}

}  // namespace

CallScript::CallScript(const ProcedureSignature& signature, const std::vector<platform::Value>& inputs,
                       std::chrono::milliseconds lock_timeout, Form form)
    : form_(form) {
  Set("'lock_timeout'", "'" + std::to_string(lock_timeout.count()) + "ms'");
  std::string declarations;
  std::string arguments;
  std::string after_call;
  std::size_t position = 0;
  std::size_t input = 0;
  std::size_t record_set = 0;
  for (const Argument argument : signature.arguments) {
    if (!arguments.empty()) arguments += ", ";
    // By name, so that a procedure which was declared anew since it was described is not called with values
    // for something else.
    if (!signature.argument_names.empty()) {
      arguments += Identifier(signature.argument_names.at(position)) + " => ";
    }
    ++position;
    switch (argument) {
      case Argument::kInput:
        arguments += AddInput(signature.parameters.at(input + 1), inputs.at(input));
        ++input;
        break;
      case Argument::kReturnValue:
        arguments += "return_value";
        break;
      case Argument::kRecordSet: {
        const std::string cursor = CursorName(record_set++);
        arguments += cursor;
        declarations += cursor + " refcursor := '" + cursor + "'; ";
        after_call += "BEGIN MOVE RELATIVE 0 IN " + cursor +
                      "; EXCEPTION WHEN invalid_cursor_name THEN OPEN " + cursor +
                      " FOR SELECT WHERE false; END; ";
        break;
      }
    }
  }
  block_ = "DO " + Literal("DECLARE return_value int4; " + declarations +
                           "BEGIN "
                           "BEGIN CALL ferrowind." +
                           Identifier(signature.name) + "(" + arguments +
                           "); IF return_value IS DISTINCT FROM 0 THEN RAISE SQLSTATE 'FWUND'; END IF; "
                           "EXCEPTION WHEN SQLSTATE 'FWUND' THEN NULL; END; "
                           "PERFORM set_config('ferrowind.return_value', return_value::text, true); " +
                           after_call + "END");
}

void CallScript::Set(const std::string& setting, const std::string& value) {
  set_inputs_ += set_inputs_.empty() ? "SELECT " : ", ";
  set_inputs_ += "set_config(" + setting + ", " + value + (form_ == Form::kNumbered ? ", true)" : ", false)");
}

std::string CallScript::AddInput(const platform::ParameterDescription& parameter,
                                 const platform::Value& value) {
  const std::string type = ServerType(parameter.type);
  if (value.IsEmpty()) return "NULL" + type;
  input_texts_.push_back(platform::ToText(value));
  const std::string setting = InputSetting(input_texts_.size());
  Set(setting, form_ == Form::kNumbered ? "$" + std::to_string(input_texts_.size()) : "?");
  return "current_setting(" + setting + ")" + type;
}

std::string CallScript::ReadReturnValue() { return "SELECT current_setting('ferrowind.return_value')"; }

std::string CallScript::FetchRecordSet(std::size_t position) {
  return "FETCH ALL FROM " + CursorName(position);
}

}  // namespace ferrowind::postgres
