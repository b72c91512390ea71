#include "ferrowind/platform/database/parameters_json.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/platform/values/date.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::platform {
namespace {

const std::vector<ParameterDescription> kParameters = {
    {"@RETURN_VALUE", 0, ParameterType::kInt32, ParameterDirection::kReturnValue},
    {"@Small", 1, ParameterType::kInt16, ParameterDirection::kInput},
    {"@Number", 2, ParameterType::kInt32, ParameterDirection::kInput},
    {"@Text", 3, ParameterType::kText, ParameterDirection::kInput},
    {"@Day", 4, ParameterType::kDate, ParameterDirection::kInput},
};

TEST(ParametersJson, HasEveryInputByNameAndType) {
  EXPECT_EQ(ParametersAsJson(kParameters, {Value(std::int16_t{-7}), Value(2147483647), Value("Größe"),
                                           Value(Date(2026, 2, 3))}),
            R"({"Small" : -7, "Number" : 2147483647, "Text" : "Größe", "Day" : "2026-02-03"})");
}

TEST(ParametersJson, TellsAnEmptyTextFromNone) {
  EXPECT_EQ(ParametersAsJson(kParameters, {{}, {}, Value(""), {}}),
            R"({"Small" : null, "Number" : null, "Text" : "", "Day" : null})");
}

TEST(ParametersJson, EscapesWhatATextOfJsonMayNotHold) {
  const std::string text("\"\\\b\f\n\r\t\0\x1f\x7f", 10);
  EXPECT_EQ(ParametersAsJson(kParameters, {{}, {}, Value(text), {}}),
            "{\"Small\" : null, \"Number\" : null, "
            "\"Text\" : \"\\\"\\\\\\b\\f\\n\\r\\t\\u0000\\u001f\x7f\", \"Day\" : null}");
}

TEST(ParametersJson, IsEmptyForAProcedureWithoutInputs) {
  EXPECT_EQ(ParametersAsJson({kParameters.front()}, {}), "{}");
}

TEST(ParametersJson, RefusesAValueThatNoParameterHas) {
  EXPECT_THROW((void)ParametersAsJson(kParameters, {Value(1.5), {}, {}, {}}), Failure);
}

}  // namespace
}  // namespace ferrowind::platform
