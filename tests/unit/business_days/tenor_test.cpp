#include "ferrowind/business_days/tenor.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "failure_of.h"

namespace ferrowind::business_days {
namespace {

TEST(Tenor, IsReadAsTheMarketWritesIt) {
  EXPECT_EQ(ReadTenor("ON"), (Tenor{Tenor::Unit::kOvernight, 1}));
  EXPECT_EQ(ReadTenor("t/n"), (Tenor{Tenor::Unit::kTomorrowNext, 1}));
  EXPECT_EQ(ReadTenor("sp"), (Tenor{Tenor::Unit::kSpot, 1}));
  EXPECT_EQ(ReadTenor("SN"), (Tenor{Tenor::Unit::kSpotNext, 1}));
  EXPECT_EQ(ReadTenor("SW"), ReadTenor("1W"));
  EXPECT_EQ(ReadTenor("18m"), (Tenor{Tenor::Unit::kMonths, 18}));
  EXPECT_EQ(ReadTenor("IMM3"), (Tenor{Tenor::Unit::kImm, 3}));
  EXPECT_EQ(ReadTenor("100Y"), (Tenor{Tenor::Unit::kYears, 100}));
}

TEST(Tenor, IsWrittenAsItIsRead) {
  for (const char* text : {"ON", "TN", "SPOT", "SN", "10D", "1W", "3M", "2Y", "IMM1", "IMM4"})
    EXPECT_EQ(ReadTenor(text).Text(), text);
}

TEST(Tenor, IsNoneThatNobodyCouldRead) {
  using Unit = Tenor::Unit;
  for (const char* text : {"ON", "SPOT", "SW", "36525D", "1M", "100Y", "IMM4"})
    EXPECT_TRUE(IsTenor(ReadTenor(text)));
  for (const Tenor& tenor : {Tenor{Unit::kImm, 0}, Tenor{Unit::kImm, 5}, Tenor{Unit::kMonths, 786432},
                             Tenor{Unit::kYears, 357913942}, Tenor{Unit::kDays, 0}, Tenor{Unit::kWeeks, -1},
                             Tenor{Unit::kSpot, 2}, Tenor{static_cast<Unit>(99), 1}}) {
    EXPECT_FALSE(IsTenor(tenor)) << static_cast<int>(tenor.unit) << ' ' << tenor.count;
  }
}

TEST(Tenor, RefusesNonsenseAndSaysWhatIsExpected) {
  for (const char* text :
       {"", "M", "0M", "-1M", "+1M", "1.5Y", "101Y", "99999999999999M", "3 M", "3MM", "IMM5", "IMM", "NO"}) {
    EXPECT_THAT(FailureOf([&] { return ReadTenor(text); }),
                testing::StartsWith('"' + std::string(text) + "\" is no tenor: ON, TN, SPOT"));
  }
}

}  // namespace
}  // namespace ferrowind::business_days
