#include "ferrowind/platform/values/fingerprint.h"

#include <string>

#include <gtest/gtest.h>

namespace ferrowind::platform {
namespace {

TEST(Fingerprint, IsTheFnvHashOfSizesAndTexts) {
  Fingerprint fingerprint;
  EXPECT_EQ(fingerprint.Digits(), "6c62272e07bb014262b821756295c58d");
  // One more than its size comes before a text.
  fingerprint.Add("a");
  EXPECT_EQ(fingerprint.Digits(), "0880945fdaab1be95aa073305529c81c");
  fingerprint.AddNothing();
  EXPECT_EQ(fingerprint.Digits(), "a68bbbba2c8b5822836dbc78ca693a74");
  fingerprint.Add(std::string(200, 'x'));
  EXPECT_EQ(fingerprint.Digits(), "1802ef1c1e39b0fe35852892d6260bba");
}

}  // namespace
}  // namespace ferrowind::platform
