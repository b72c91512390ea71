#include "ferrowind/adapters/sql_script/procedure_source.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sql_script {
namespace {

using platform::ParameterDirection;
using platform::ParameterType;
using ::testing::HasSubstr;

std::string FailureTextOf(std::string_view source) {
  try {
    (void)ParseProcedureSource(source);
  } catch (const platform::Failure& failure) {
    return failure.Description();
  }
  return "";
}

TEST(ProcedureSource, ReadsNameParametersAndBody) {
  const auto procedure = ParseProcedureSource(
      "-- procedure Try writes\n-- parameter @A int16\n--  parameter\t@B_2 int32 \r\n-- parameter @C text\n"
      "-- parameter @D date\n-- What it is for.\nSELECT :A;\n");
  EXPECT_EQ(procedure.name, "Try");
  EXPECT_TRUE(procedure.writes);
  ASSERT_EQ(procedure.parameters.size(), 5U);
  EXPECT_EQ(procedure.parameters[0].name, "@RETURN_VALUE");
  EXPECT_EQ(procedure.parameters[0].direction, ParameterDirection::kReturnValue);
  const ParameterType types[] = {ParameterType::kInt32, ParameterType::kInt16, ParameterType::kInt32,
                                 ParameterType::kText, ParameterType::kDate};
  const char* const names[] = {"@RETURN_VALUE", "@A", "@B_2", "@C", "@D"};
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_EQ(procedure.parameters[i].name, names[i]);
    EXPECT_EQ(procedure.parameters[i].type, types[i]);
    EXPECT_EQ(procedure.parameters[i].position, static_cast<std::int32_t>(i));
  }
  EXPECT_EQ(procedure.body, "-- What it is for.\nSELECT :A;\n");
}

TEST(ProcedureSource, ReadsAProcedureWithoutParametersThatOnlyReads) {
  const auto procedure = ParseProcedureSource("-- procedure Try reads\nSELECT 1");
  EXPECT_FALSE(procedure.writes);
  EXPECT_EQ(procedure.parameters.size(), 1U);
  EXPECT_EQ(procedure.body, "SELECT 1");
}

TEST(ProcedureSource, RefusesASourceWithoutADeclaration) {
  for (const char* source : {"", "SELECT 1", "-- procedure\nSELECT 1", "-- procedure Try\nSELECT 1",
                             "-- procedure Try sometimes\nSELECT 1", "-- procedure Try reads more\nSELECT 1",
                             "-- procedure Tr-y reads\nSELECT 1", "--procedure Try reads\nSELECT 1",
                             "\n-- procedure Try reads\nSELECT 1"}) {
    EXPECT_THAT(FailureTextOf(source), HasSubstr("Line 1 of the procedure's source")) << source;
  }
}

TEST(ProcedureSource, RefusesAMalformedParameterAndNamesItsLine) {
  for (const char* parameter :
       {"@A", "A int32", "@ int32", "@A int32 in", "@A-B int32", "@A int64", "@A INT32"}) {
    EXPECT_THAT(FailureTextOf("-- procedure Try reads\n-- parameter @Z text\n-- parameter " +
                              std::string(parameter) + "\nSELECT 1"),
                HasSubstr("Line 3 of the procedure's source"))
        << parameter;
  }
}

TEST(ProcedureSource, RefusesTwoParametersOfOneName) {
  EXPECT_THAT(
      FailureTextOf("-- procedure Try reads\n-- parameter @Name text\n-- parameter @NAME text\nSELECT 1"),
      HasSubstr("Line 3 of the procedure's source: there is a parameter @NAME already"));
  EXPECT_THAT(FailureTextOf("-- procedure Try reads\n-- parameter @Return_Value int32\nSELECT 1"),
              HasSubstr("@Return_Value already"));
}

TEST(ProcedureSource, RefusesABodyWithoutAStatementOrOneThatDoesNotSplit) {
  EXPECT_THAT(FailureTextOf("-- procedure Try reads"), HasSubstr("no statement"));
  EXPECT_THAT(FailureTextOf("-- procedure Try reads\n-- only a comment\n;"), HasSubstr("no statement"));
  EXPECT_THAT(FailureTextOf("-- procedure Try reads\nSELECT 'a"), HasSubstr("does not end"));
}

TEST(ProcedureSource, QuotesAnUnknownType) {
  EXPECT_THAT(FailureTextOf("-- procedure Try reads\n-- parameter @A money\nSELECT 1"),
              HasSubstr("\"money\""));
}

}  // namespace
}  // namespace ferrowind::sql_script
