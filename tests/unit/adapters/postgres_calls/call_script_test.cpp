#include "ferrowind/adapters/postgres_calls/call_script.h"

#include <chrono>

#include <gmock/gmock.h>

#include "ferrowind/adapters/postgres_calls/type_id.h"

namespace ferrowind::postgres {
namespace {

using platform::Value;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

ProcedureSignature Signature() {
  return SignatureOf("Probe", {{"Number", "i", type_id::kInt4},
                               {"Text", "", type_id::kText},
                               {"RETURN_VALUE", "b", type_id::kInt4},
                               {"Rows", "b", type_id::kRefCursor}});
}

CallScript ScriptOf(CallScript::Form form) {
  return {Signature(), {Value(7), Value("s3cret'; --")}, std::chrono::milliseconds(400), form};
}

TEST(CallScript, SetsItsInputsByNumbersInTheTransactionOfTheCall) {
  const CallScript script = ScriptOf(CallScript::Form::kNumbered);
  EXPECT_EQ(script.SetInputs(),
            "SELECT set_config('lock_timeout', '400ms', true), set_config('ferrowind.input_1', $1, true), "
            "set_config('ferrowind.input_2', $2, true)");
  EXPECT_THAT(script.InputTexts(), ElementsAre("7", "s3cret'; --"));
}

TEST(CallScript, SetsItsInputsByQuestionMarksInFrontOfTheTransaction) {
  EXPECT_EQ(ScriptOf(CallScript::Form::kQuestionMarks).SetInputs(),
            "SELECT set_config('lock_timeout', '400ms', false), set_config('ferrowind.input_1', ?, false), "
            "set_config('ferrowind.input_2', ?, false)");
}

TEST(CallScript, CallsByTheNamesOfTheParametersAndWithoutAnyValue) {
  const CallScript script = ScriptOf(CallScript::Form::kNumbered);
  EXPECT_THAT(script.Block(), HasSubstr("CALL ferrowind.\"probe\"(\"Number\" => "));
  EXPECT_THAT(script.Block(), HasSubstr("\"Rows\" => record_set_1"));
  EXPECT_THAT(script.Block(), Not(HasSubstr("s3cret")));
}

}  // namespace
}  // namespace ferrowind::postgres
