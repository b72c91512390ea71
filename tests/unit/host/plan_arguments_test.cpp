#include "host/admin/plan_arguments.h"

#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "host/admin/procedure_arguments.h"

namespace ferrowind::host {
namespace {

using platform::Date;

/// What is said of an argument that cannot be read.
std::string RefusalOf(const std::function<void()>& read) {
  try {
    read();
  } catch (const ArgumentError& error) {
    return error.what();
  }
  return "not refused";
}

TEST(PlanArguments, ReadYears) {
  EXPECT_EQ(ReadYear("2028"), 2028);
  const YearRange one = ReadYears("2028");
  EXPECT_EQ(one.first, 2028);
  EXPECT_EQ(one.last, 2028);
  for (const char* text : {"2028..2030", "2028-2030"}) {
    const YearRange several = ReadYears(text);
    EXPECT_EQ(several.first, 2028) << text;
    EXPECT_EQ(several.last, 2030) << text;
  }
}

TEST(PlanArguments, RefuseWhatIsNoYear) {
  for (const char* text : {"", "28", "20280", "202x", "+028", " 2028"}) {
    EXPECT_EQ(RefusalOf([&] { (void)ReadYear(text); }),
              "\"" + std::string(text) + "\" is no year, which has four digits");
  }
  for (const char* text : {"", "28", "2028..", "..2028", "2028-", "-2028", "2028...2030", "2028..2030..2031",
                           "2028-2030-2031", "2028-2030..2031"}) {
    EXPECT_EQ(RefusalOf([&] { (void)ReadYears(text); }),
              "\"" + std::string(text) + "\" is neither a year, as 2028, nor years, as 2028..2030");
  }
  EXPECT_EQ(RefusalOf([] { (void)ReadYears("2030..2028"); }), "The years \"2030..2028\" run backwards");
}

TEST(PlanArguments, ReadDays) {
  EXPECT_EQ(ReadDay("2028-02-29"), Date(2028, 2, 29));
  for (const char* text : {"", "2027-02-29", "2028-2-9", "today"}) {
    EXPECT_EQ(RefusalOf([&] { (void)ReadDay(text); }), "\"" + std::string(text) + "\" is no date YYYY-MM-DD");
  }
}

}  // namespace
}  // namespace ferrowind::host
