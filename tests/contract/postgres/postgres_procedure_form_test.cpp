// Procedures of every form that a server may hold under a name that is called.

#include <cstdint>
#include <limits>
#include <string>

#include <gmock/gmock.h>

#include "ferrowind/platform/values/failure.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/postgres/postgres_database.h"

namespace ferrowind::contract {
namespace {

using platform::Value;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class PostgresProcedureForm : public ::testing::Test {
 protected:
  /// Makes the procedure `ferrowind.Tried` of those parameters and that body.
  void Make(const std::string& parameters, const std::string& body) {
    database_.Execute(
        "CREATE PROCEDURE ferrowind.Tried(" + parameters +
        ") LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp AS $$ BEGIN " + body +
        " END $$");
  }
  platform::CallOutcome Call() { return caller_.Call("Tried"); }
  std::string Failure() {
    return FailureTextOf([&] { static_cast<void>(Call()); });
  }

  PostgresDatabase database_;
  ProcedureCaller caller_{database_};
};

TEST_F(PostgresProcedureForm, ACursorThatIsNotOpenedGivesNoRecordSetAndKeepsTheOthersAndTheWork) {
  Make("INOUT r integer, INOUT a refcursor, INOUT b refcursor, INOUT c refcursor",
       "UPDATE CldSetting SET FirstDay = 5; OPEN a FOR SELECT 1 AS one; OPEN c FOR SELECT 3 AS three; r := "
       "0;");
  const auto outcome = Call();
  ASSERT_EQ(outcome.record_sets.size(), 2U);
  EXPECT_THAT(RowsOf(*outcome.record_sets[0]), ElementsAre(ElementsAre(Value(1))));
  EXPECT_THAT(RowsOf(*outcome.record_sets[1]), ElementsAre(ElementsAre(Value(3))));
  EXPECT_EQ(*(*caller_.Call("CldAllInfo").record_sets.at(3))["FirstDay"].If<std::int32_t>(), 5);
}

TEST_F(PostgresProcedureForm, AnOverloadedNameIsAClearFailure) {
  Make("a integer, INOUT r integer", "r := 0;");
  Make("a text, INOUT r integer", "r := 0;");
  EXPECT_THAT(Failure(), AllOf(HasSubstr("Tried"), HasSubstr("more than once")));
}

TEST_F(PostgresProcedureForm, AFunctionIsNoProcedure) {
  database_.Execute("CREATE FUNCTION ferrowind.Tried() RETURNS integer LANGUAGE sql AS 'SELECT 0'");
  EXPECT_THAT(Failure(), HasSubstr("has no procedure Tried"));
}

TEST_F(PostgresProcedureForm, AProcedureOfAnotherSchemaIsNotFound) {
  database_.Execute("CREATE PROCEDURE public.Tried(INOUT r integer) LANGUAGE sql AS 'SELECT 0'");
  EXPECT_THAT(Failure(), HasSubstr("has no procedure Tried"));
}

TEST_F(PostgresProcedureForm, AProcedureWithoutAReturnValueIsAClearFailure) {
  Make("a integer", "NULL;");
  EXPECT_THAT(Failure(), AllOf(HasSubstr("Tried"), HasSubstr("return value")));
}

TEST_F(PostgresProcedureForm, AnInputOfATypeThatIsNotSupportedIsAClearFailure) {
  Make("a numeric, INOUT r integer", "r := 0;");
  EXPECT_THAT(Failure(), AllOf(HasSubstr("Tried"), HasSubstr("not supported: a")));
}

TEST_F(PostgresProcedureForm, AReturnValueThatIsNullIsAFailureAndKeepsNothing) {
  Make("INOUT r integer", "UPDATE CldSetting SET FirstDay = 5;");
  EXPECT_THAT(Failure(), HasSubstr("no return value"));
  EXPECT_EQ(*(*caller_.Call("CldAllInfo").record_sets.at(3))["FirstDay"].If<std::int32_t>(), 1);
}

TEST_F(PostgresProcedureForm, AProcedureThatEndsTheTransactionItselfIsAFailureAndKeepsNothing) {
  // Without the settings of the others, which forbid it as well.
  database_.Execute(
      "CREATE PROCEDURE ferrowind.Tried(INOUT r integer) LANGUAGE plpgsql AS $$ BEGIN COMMIT; r := 0; END "
      "$$");
  EXPECT_THAT(Failure(), HasSubstr("invalid transaction termination"));
}

TEST_F(PostgresProcedureForm, AFieldOfAnotherTypeIsAFailureThatNamesIt) {
  Make("INOUT r integer, INOUT a refcursor", "OPEN a FOR SELECT 1.5 AS odd; r := 0;");
  EXPECT_THAT(Failure(), HasSubstr("odd"));
}

TEST_F(PostgresProcedureForm, AnInfiniteDateIsAFailureThatNamesTheField) {
  for (const std::string date : {"infinity", "-infinity", "0044-03-15 BC"}) {
    database_.Execute("DROP PROCEDURE IF EXISTS ferrowind.Tried");
    Make("INOUT r integer, INOUT a refcursor", "OPEN a FOR SELECT '" + date + "'::date AS odd; r := 0;");
    EXPECT_THAT(Failure(), HasSubstr("odd")) << date;
  }
}

TEST_F(PostgresProcedureForm, ABigNumberComesWithAllItsDigits) {
  Make("INOUT r integer, INOUT a refcursor",
       "OPEN a FOR SELECT 9223372036854775807 AS big, (-9223372036854775807 - 1)::bigint AS low; r := 0;");
  const auto outcome = Call();
  EXPECT_THAT(RowsOf(*outcome.record_sets.at(0)),
              ElementsAre(ElementsAre(Value(std::int64_t{9223372036854775807}),
                                      Value(std::numeric_limits<std::int64_t>::min()))));
}

}  // namespace
}  // namespace ferrowind::contract
