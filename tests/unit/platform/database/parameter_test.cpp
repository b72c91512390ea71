#include "ferrowind/platform/database/parameter.h"

#include <array>
#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/platform/values/record_set.h"

#include "tests/support/failure_of.h"

namespace ferrowind::platform {
namespace {

using ::ferrowind::testing::FailureOf;
using ::testing::HasSubstr;

constexpr std::array kTypes = {ParameterType::kInt16, ParameterType::kInt32, ParameterType::kText,
                               ParameterType::kDate};

ParameterDescription Parameter(ParameterType type) { return {"@Year1", 2, type, ParameterDirection::kInput}; }

TEST(Parameter, ConvertsAValueToTheDeclaredType) {
  EXPECT_EQ(ConvertForParameter(Parameter(ParameterType::kInt16), "2026"), Value(std::int16_t{2026}));
  EXPECT_EQ(ConvertForParameter(Parameter(ParameterType::kInt32), 2026.4), Value(2026));
  EXPECT_EQ(ConvertForParameter(Parameter(ParameterType::kText), 2026), Value("2026"));
  EXPECT_EQ(ConvertForParameter(Parameter(ParameterType::kDate), "2026-12-25"), Value(Date(2026, 12, 25)));
}

TEST(Parameter, LeavesAnEmptyValueEmptyWhateverTheType) {
  for (const auto type : kTypes) EXPECT_TRUE(ConvertForParameter(Parameter(type), Value()).IsEmpty());
}

TEST(Parameter, NamesTheParameterAndItsTypeWhenAValueDoesNotFit) {
  const Failure mismatch =
      FailureOf([] { (void)ConvertForParameter(Parameter(ParameterType::kInt32), "soon"); });
  EXPECT_EQ(mismatch.Number(), failure_number::kTypeMismatch);
  EXPECT_THAT(mismatch.Description(), HasSubstr("@Year1"));
  EXPECT_THAT(mismatch.Description(), HasSubstr("int32"));

  const Failure overflow =
      FailureOf([] { (void)ConvertForParameter(Parameter(ParameterType::kInt16), 40000); });
  EXPECT_EQ(overflow.Number(), failure_number::kOverflow);
  EXPECT_THAT(overflow.Description(), HasSubstr("@Year1"));
}

TEST(Parameter, TakesNoObjectOfWhateverType) {
  const auto record_set =
      std::make_shared<RecordSet>(std::vector<std::string>{"F"}, std::vector<std::vector<Value>>{});
  for (const auto type : kTypes) {
    EXPECT_EQ(FailureOf([&] { (void)ConvertForParameter(Parameter(type), record_set); }).Number(),
              failure_number::kTypeMismatch);
  }
}

TEST(Parameter, NamesItsTypesAsCataloguesDo) {
  EXPECT_STREQ(NameOf(ParameterType::kInt16), "int16");
  EXPECT_STREQ(NameOf(ParameterType::kInt32), "int32");
  EXPECT_STREQ(NameOf(ParameterType::kText), "text");
  EXPECT_STREQ(NameOf(ParameterType::kDate), "date");
}

}  // namespace
}  // namespace ferrowind::platform
