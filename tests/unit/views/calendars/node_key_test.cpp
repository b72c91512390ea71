#include "ferrowind/views/calendars/node_key.h"

#include <gtest/gtest.h>

#include "tests/support/expect_failure.h"

namespace ferrowind {
namespace {

using testing::ExpectFailure;

constexpr std::int32_t kTypeMismatch = 13;

TEST(NodeKey, IsMadeOfTheCurrencyAndTheYear) {
  EXPECT_EQ(node_key::OfCurrency("12"), "K12");
  EXPECT_EQ(node_key::OfCalendar("12", "2004"), "K12_2004");
}

TEST(NodeKey, IsReadBack) {
  EXPECT_EQ(node_key::CurrencyOfCurrencyNode("K12"), 12);
  EXPECT_EQ(node_key::CurrencyOfCalendarNode("K12_2004"), 12);
  EXPECT_EQ(node_key::YearOfCalendarNode("K12_2004"), 2004);
}

TEST(NodeKey, IsCutAtTheFirstUnderscore) {
  EXPECT_EQ(node_key::CurrencyOfCalendarNode("K978_2026"), 978);
  EXPECT_EQ(node_key::CurrencyOfCalendarNode("K978_2026_1"), 978);
  ExpectFailure([] { static_cast<void>(node_key::YearOfCalendarNode("K978_2026_1")); }, kTypeMismatch);
}

TEST(NodeKey, ThatIsNoneIsATypeMismatch) {
  for (const char* key : {"", "K", "Kx", "K978"}) {
    ExpectFailure([&] { static_cast<void>(node_key::CurrencyOfCalendarNode(key)); }, kTypeMismatch);
    ExpectFailure([&] { static_cast<void>(node_key::YearOfCalendarNode(key)); }, kTypeMismatch);
  }
  for (const char* key : {"", "K", "Kx", "K978_2026"}) {
    ExpectFailure([&] { static_cast<void>(node_key::CurrencyOfCurrencyNode(key)); }, kTypeMismatch);
  }
}

}  // namespace
}  // namespace ferrowind
