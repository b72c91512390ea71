#include "ferrowind/adapters/sqlite/procedure_interpreter.h"

#include <functional>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {
namespace {

using platform::CallOutcome;
using platform::Date;
using platform::Value;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class ProcedureInterpreterTest : public ::testing::Test {
 protected:
  CallOutcome Run(const std::string& body, const std::vector<Value>& inputs = {Value(3), Value("text")},
                  const std::function<bool()>& is_over = {}) {
    const auto procedure = sql_script::ParseProcedureSource(
        "-- procedure Try writes\n-- parameter @Number int32\n-- parameter @Text text\n" + body);
    const StatementLimit limit(database_, is_over);
    return ProcedureInterpreter(database_, procedure, inputs, limit).Run();
  }

  /// The single cell of the single record set.
  Value CellOf(const std::string& body, const std::vector<Value>& inputs = {Value(3), Value("text")}) {
    const auto outcome = Run(body, inputs);
    EXPECT_EQ(outcome.return_value, 0);
    EXPECT_EQ(outcome.record_sets.size(), 1U);
    return outcome.record_sets.at(0)->Cell(1, 0);
  }

  std::string FailureTextOf(const std::string& body, const std::function<bool()>& is_over = {}) {
    try {
      (void)Run(body, {Value(3), Value("text")}, is_over);
    } catch (const platform::Failure& failure) {
      return failure.Description();
    }
    return "";
  }

  DatabaseHandle database_ = DatabaseHandle::InMemory();
};

TEST_F(ProcedureInterpreterTest, GivesParametersAsVariablesInAnyLetterCase) {
  EXPECT_EQ(CellOf("SELECT :Number AS N"), Value(3));
  EXPECT_EQ(CellOf("SELECT :NUMBER AS N"), Value(3));
  EXPECT_EQ(CellOf("SELECT :text AS T"), Value("text"));
  EXPECT_EQ(CellOf("SELECT :Number AS N", {Value(), Value()}), Value());
}

TEST_F(ProcedureInterpreterTest, AssignsVariablesFromColumnsNamedSo) {
  EXPECT_EQ(CellOf("SELECT 5 AS \"@A\", 'b' AS [@B]; SELECT :A || :b || :Number AS R"), Value("5b3"));
}

TEST_F(ProcedureInterpreterTest, AssignsAParameterAnew) {
  EXPECT_EQ(CellOf("SELECT :Number + 1 AS \"@number\"; SELECT :Number AS N"), Value(4));
}

TEST_F(ProcedureInterpreterTest, EmptiesVariablesOfAStatementWithoutARow) {
  EXPECT_EQ(CellOf("SELECT 5 AS \"@A\"; SELECT 6 AS \"@A\" WHERE 0; SELECT :A AS N"), Value());
}

TEST_F(ProcedureInterpreterTest, AssignsAllVariablesOfAStatementAtOnce) {
  EXPECT_EQ(
      CellOf("SELECT 1 AS \"@A\", 2 AS \"@B\"; SELECT :B AS \"@A\", :A AS \"@B\"; SELECT :A * 10 + :B AS R"),
      Value(21));
}

TEST_F(ProcedureInterpreterTest, AssignsADateAsADate) {
  database_.Execute("CREATE TABLE T (D DATE); INSERT INTO T VALUES ('2026-05-01')");
  EXPECT_EQ(CellOf("SELECT D AS \"@D\" FROM T; SELECT D FROM T WHERE D = :D"), Value(Date(2026, 5, 1)));
}

TEST_F(ProcedureInterpreterTest, AssignsFromARowThatAnInsertReturns) {
  database_.Execute("CREATE TABLE T (Id INTEGER PRIMARY KEY, N)");
  EXPECT_EQ(CellOf("INSERT INTO T (N) VALUES (:Number) RETURNING Id AS \"@Id\"; SELECT :Id + 100 AS R"),
            Value(101));
}

TEST_F(ProcedureInterpreterTest, EndsWithTheReturnValueAndRunsNothingMore) {
  database_.Execute("CREATE TABLE T (N)");
  EXPECT_EQ(Run("SELECT 5 AS \"@return\"; INSERT INTO T VALUES (1)").return_value, 5);
  EXPECT_EQ(CellOf("SELECT count(*) AS C FROM T"), Value(0));
}

TEST_F(ProcedureInterpreterTest, GoesOnWhenAReturnHasNoRow) {
  EXPECT_EQ(Run("SELECT 5 AS \"@return\" WHERE 0; SELECT -6 AS \"@RETURN\"").return_value, -6);
  EXPECT_EQ(Run("SELECT 5 AS \"@return\" WHERE 0").return_value, 0);
}

TEST_F(ProcedureInterpreterTest, KeepsRecordSetsOfAReturnOfZeroAndDropsThoseOfAnother) {
  EXPECT_EQ(Run("SELECT 1 AS A; SELECT 0 AS \"@return\"; SELECT 2 AS B").record_sets.size(), 1U);
  EXPECT_THAT(Run("SELECT 1 AS A; SELECT 1 AS \"@return\"").record_sets, IsEmpty());
}

TEST_F(ProcedureInterpreterTest, GivesEveryOtherSelectAsARecordSetEvenWithoutRows) {
  const auto outcome = Run("SELECT 1 AS A; SELECT 2 AS B WHERE 0; SELECT 3 AS C UNION ALL SELECT 4");
  ASSERT_EQ(outcome.record_sets.size(), 3U);
  EXPECT_EQ(outcome.record_sets[0]->RowCount(), 1U);
  EXPECT_EQ(outcome.record_sets[1]->RowCount(), 0U);
  EXPECT_EQ(outcome.record_sets[1]->FieldName(0), "B");
  EXPECT_EQ(outcome.record_sets[2]->RowCount(), 2U);
}

TEST_F(ProcedureInterpreterTest, NamesProcedureAndLineOfAStatementThatFails) {
  EXPECT_THAT(FailureTextOf("SELECT 1 AS A;\n\nSELECT * FROM NoSuchTable;"),
              StartsWith("The procedure Try failed in line 3 of its body: "));
  EXPECT_THAT(FailureTextOf("SELECT 1 AS A;\n\nSELECT * FROM NoSuchTable;"),
              HasSubstr("no such table: NoSuchTable"));
  EXPECT_THAT(FailureTextOf("SELEKT 1"), HasSubstr("SQLite 1: near \"SELEKT\": syntax error"));
}

TEST_F(ProcedureInterpreterTest, RefusesAVariableThatNothingHasSet) {
  EXPECT_THAT(FailureTextOf("SELECT :Nmber AS N"), HasSubstr("nothing has set the variable :Nmber"));
  EXPECT_THAT(FailureTextOf("SELECT :A AS N; SELECT 1 AS \"@A\""),
              HasSubstr("nothing has set the variable :A"));
}

TEST_F(ProcedureInterpreterTest, RefusesAVariableWrittenAnotherWay) {
  for (const char* variable : {"?", "?1", "@Number", "$Number"}) {
    EXPECT_THAT(FailureTextOf("SELECT " + std::string(variable) + " AS N"),
                HasSubstr("a variable is written as"))
        << variable;
  }
}

TEST_F(ProcedureInterpreterTest, RefusesVariablesBesideOtherColumns) {
  EXPECT_THAT(FailureTextOf("SELECT 1 AS \"@A\", 2 AS B"), HasSubstr("has no other columns"));
}

TEST_F(ProcedureInterpreterTest, RefusesReturnBesideOtherColumns) {
  EXPECT_THAT(FailureTextOf("SELECT 1 AS \"@return\", 2 AS \"@B\""), HasSubstr("stands alone"));
  EXPECT_THAT(FailureTextOf("SELECT 1 AS \"@return\", 2 AS B"), HasSubstr("stands alone"));
}

TEST_F(ProcedureInterpreterTest, RefusesVariablesFromSeveralRows) {
  EXPECT_THAT(FailureTextOf("SELECT 1 AS \"@A\" UNION ALL SELECT 2"), HasSubstr("one row at most"));
}

TEST_F(ProcedureInterpreterTest, RefusesAReturnValueThatIsNoInt32) {
  for (const char* value : {"NULL", "'5'", "1.0", "2147483648", "x'00'"}) {
    EXPECT_THAT(FailureTextOf("SELECT " + std::string(value) + " AS \"@return\""),
                StartsWith("The procedure Try failed in line 1"))
        << value;
  }
}

TEST_F(ProcedureInterpreterTest, UsesAValueAsAValueOnly) {
  database_.Execute("CREATE TABLE T (N)");
  EXPECT_EQ(
      CellOf("INSERT INTO T VALUES (:Text); SELECT N FROM T", {Value(1), Value("'); DROP TABLE T; --")}),
      Value("'); DROP TABLE T; --"));
}

TEST_F(ProcedureInterpreterTest, LooksAtTheTimeBetweenStatementsThatAreTooShortForIt) {
  std::string body;
  for (int i = 0; i < 10; ++i) body += "SELECT 1 AS [@a];\n";
  int looks = 0;
  EXPECT_THAT(FailureTextOf(body, [&] { return ++looks == 4; }), HasSubstr("line 4 of its body"));
  EXPECT_THAT(FailureTextOf(body, [] { return true; }), HasSubstr("it took too long"));
}

}  // namespace
}  // namespace ferrowind::sqlite
