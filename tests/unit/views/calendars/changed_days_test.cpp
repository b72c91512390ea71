#include "ferrowind/views/calendars/changed_days.h"

#include <gtest/gtest.h>

namespace ferrowind {
namespace {

using platform::RecordSet;
using platform::Value;

RecordSet Days(std::vector<std::vector<Value>> rows) { return {{"TID1", "Name1"}, std::move(rows)}; }

TEST(ChangedDays, CountsTheRowsThatDifferInSomeCell) {
  const auto before = Days({{1, {}}, {1, {}}, {2, "Saturday"}});
  EXPECT_EQ(ChangedDays(before, Days({{1, {}}, {1, {}}, {2, "Saturday"}})), 0);
  EXPECT_EQ(ChangedDays(before, Days({{3, "May Day"}, {1, {}}, {2, "Sunday"}})), 2);
}

TEST(ChangedDays, ARowThatOnlyOneOfThemHasDiffers) {
  EXPECT_EQ(ChangedDays(Days({{1, {}}}), Days({{1, {}}, {1, {}}})), 1);
  EXPECT_EQ(ChangedDays(Days({{1, {}}, {1, {}}}), Days({})), 2);
}

TEST(ChangedDays, EveryRowDiffersWhenTheFieldsAreOthers) {
  const RecordSet other(std::vector<std::string>{"TID1"}, std::vector<std::vector<Value>>{{1}, {1}});
  EXPECT_EQ(ChangedDays(Days({{1, {}}, {1, {}}}), other), 2);
}

}  // namespace
}  // namespace ferrowind
