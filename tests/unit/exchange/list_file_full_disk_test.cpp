#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/exchange/list_file.h"

#include "tests/support/failure_of.h"

namespace ferrowind::exchange {
namespace {

using ::testing::HasSubstr;

TEST(ListFile, TellsOfAFullDisk) {
  EXPECT_THAT(testing::FailureOf([] { WriteListFile("/dev/full", std::string(100'000, 'x')); }).Description(),
              HasSubstr("/dev/full cannot be written: No space left on device"));
}

}  // namespace
}  // namespace ferrowind::exchange
