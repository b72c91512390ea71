#include "ferrowind/adapters/operator_services/message_text.h"

#include <gtest/gtest.h>

namespace ferrowind {
namespace {

TEST(FailureReport, TellsASmallNumberInDecimalAlone) {
  EXPECT_EQ(FailureReport(429, "Cannot create an object"), "Error 429.\nCannot create an object");
  EXPECT_EQ(FailureReport(0xFFFF, "Last"), "Error 65535.\nLast");
}

TEST(FailureReport, TellsACodeInHexadecimalAsWell) {
  EXPECT_EQ(FailureReport(-2147220904, "Only before"), "Error -2147220904 (0x80040258).\nOnly before");
  EXPECT_EQ(FailureReport(0x10000, "First"), "Error 65536 (0x00010000).\nFirst");
}

}  // namespace
}  // namespace ferrowind
