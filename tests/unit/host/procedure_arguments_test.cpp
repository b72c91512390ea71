#include "host/admin/procedure_arguments.h"

#include <cstdint>

#include <gmock/gmock.h>

namespace ferrowind::host {
namespace {

using platform::Date;
using platform::ParameterDescription;
using platform::ParameterDirection;
using platform::ParameterType;
using platform::Value;
using ::testing::AllOf;
using ::testing::HasSubstr;

const std::vector<ParameterDescription> kParameters = {
    {"@RETURN_VALUE", 0, ParameterType::kInt32, ParameterDirection::kReturnValue},
    {"@ID1", 1, ParameterType::kInt32, ParameterDirection::kInput},
    {"@MY", 2, ParameterType::kInt16, ParameterDirection::kInput},
    {"@ODate", 3, ParameterType::kDate, ParameterDirection::kInput},
    {"@Comment", 4, ParameterType::kText, ParameterDirection::kInput}};

Value Read(const std::string& argument, const std::string& name) {
  const SourceValues values = ReadArguments({argument}, kParameters);
  const auto cell = values.Values(name);
  return cell ? cell->Value : Value("no such parameter");
}

std::string ErrorOf(const std::vector<std::string>& arguments,
                    const std::vector<ParameterDescription>& parameters = kParameters) {
  try {
    (void)ReadArguments(arguments, parameters);
  } catch (const ArgumentError& error) {
    return error.what();
  }
  return "no error";
}

TEST(ProcedureArguments, TakeTheTypeThatTheProcedureDeclares) {
  EXPECT_EQ(Read("ID1=978", "ID1"), Value(std::int32_t{978}));
  EXPECT_EQ(Read("MY=12", "MY"), Value(std::int16_t{12}));
  EXPECT_EQ(Read("ODate=2026-12-25", "ODate"), Value(Date(2026, 12, 25)));
  EXPECT_EQ(Read("Comment=978", "Comment"), Value("978"));
}

TEST(ProcedureArguments, FindNamesWithAtAndInAnyLetterCase) {
  EXPECT_EQ(Read("@ID1=1", "ID1"), Value(std::int32_t{1}));
  EXPECT_EQ(Read("odate=2026-01-02", "ODate"), Value(Date(2026, 1, 2)));
}

TEST(ProcedureArguments, KeepEveryCharacterOfAText) {
  EXPECT_EQ(Read("Comment= a=b; 'c' -- \"d\"\n ", "Comment"), Value(" a=b; 'c' -- \"d\"\n "));
}

TEST(ProcedureArguments, TellAnEmptyTextFromNoValue) {
  EXPECT_EQ(Read("Comment=", "Comment"), Value(""));
  EXPECT_EQ(Read("Comment", "Comment"), Value());
  EXPECT_EQ(Read("ID1", "ID1"), Value());
}

TEST(ProcedureArguments, RefuseAnUnknownNameAndListTheKnownOnes) {
  EXPECT_THAT(ErrorOf({"Year=2026"}), AllOf(HasSubstr("\"Year\""), HasSubstr("ID1, MY, ODate, Comment")));
  EXPECT_THAT(ErrorOf({"=5"}), HasSubstr("no parameter \"\""));
}

TEST(ProcedureArguments, RefuseTheReturnValueAsAnInput) {
  EXPECT_THAT(ErrorOf({"RETURN_VALUE=5"}), HasSubstr("no parameter \"RETURN_VALUE\""));
}

TEST(ProcedureArguments, RefuseANumberThatIsNotWholeOrTooLarge) {
  EXPECT_THAT(ErrorOf({"ID1=abc"}), AllOf(HasSubstr("ID1"), HasSubstr("\"abc\""), HasSubstr("int32")));
  EXPECT_THAT(ErrorOf({"ID1=1.5"}), HasSubstr("\"1.5\""));
  EXPECT_THAT(ErrorOf({"ID1="}), HasSubstr("\"\""));
  EXPECT_THAT(ErrorOf({"ID1=2147483648"}), HasSubstr("\"2147483648\""));
  EXPECT_THAT(ErrorOf({"MY=32768"}), AllOf(HasSubstr("MY"), HasSubstr("int16")));
  EXPECT_EQ(Read("MY=-32768", "MY"), Value(std::int16_t{-32768}));
}

TEST(ProcedureArguments, RefuseADateThatIsNoDay) {
  EXPECT_THAT(ErrorOf({"ODate=2026-02-29"}), AllOf(HasSubstr("ODate"), HasSubstr("YYYY-MM-DD")));
  EXPECT_THAT(ErrorOf({"ODate=46000"}), HasSubstr("\"46000\""));
}

TEST(ProcedureArguments, RefuseAParameterThatIsGivenTwice) {
  EXPECT_THAT(ErrorOf({"ID1=1", "@id1=2"}), HasSubstr("ID1 is given twice"));
}

TEST(ProcedureArguments, SayWhenAProcedureTakesNone) {
  EXPECT_THAT(ErrorOf({"ID1=1"}, {}), HasSubstr("it has none"));
}

}  // namespace
}  // namespace ferrowind::host
