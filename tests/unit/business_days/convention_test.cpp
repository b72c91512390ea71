#include "ferrowind/business_days/convention.h"

#include <gtest/gtest.h>

namespace ferrowind::business_days {
namespace {

TEST(Convention, IsFoundByItsNameAndItsAbbreviation) {
  EXPECT_EQ(ConventionNamed("ModifiedFollowing"), Convention::kModifiedFollowing);
  EXPECT_EQ(ConventionNamed("modifiedfollowing"), Convention::kModifiedFollowing);
  EXPECT_EQ(ConventionNamed("mf"), Convention::kModifiedFollowing);
  EXPECT_EQ(ConventionNamed("NONE"), Convention::kUnadjusted);
  EXPECT_EQ(ConventionNamed(""), std::nullopt);
  EXPECT_EQ(ConventionNamed("Follow"), std::nullopt);
}

TEST(Convention, IsFoundByTheNameThatItTells) {
  for (int number = 0; number < 7; ++number) {
    const auto convention = static_cast<Convention>(number);
    EXPECT_EQ(ConventionNamed(NameOf(convention)), convention);
  }
}

}  // namespace
}  // namespace ferrowind::business_days
