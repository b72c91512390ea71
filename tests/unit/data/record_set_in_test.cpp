#include "ferrowind/data/record_set_in.h"

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ferrowind {
namespace {

using platform::RecordSet;
using platform::Value;

TEST(RecordSetIn, GivesTheRecordSetOfThatName) {
  const auto results = std::make_shared<SourceValues>();
  const auto second =
      std::make_shared<RecordSet>(std::vector<std::string>{"b"}, std::vector<std::vector<Value>>{});
  results->Add("1",
               std::make_shared<RecordSet>(std::vector<std::string>{"a"}, std::vector<std::vector<Value>>{}));
  results->Add("2", second);
  EXPECT_EQ(RecordSetIn(results, "2"), second);
}

TEST(RecordSetIn, GivesNoneWithoutResults) { EXPECT_EQ(RecordSetIn(nullptr, "1"), nullptr); }

TEST(RecordSetIn, GivesNoneForAnUnknownName) {
  EXPECT_EQ(RecordSetIn(std::make_shared<SourceValues>(), "1"), nullptr);
}

TEST(RecordSetIn, GivesNoneForAnEntryThatIsNoRecordSet) {
  const auto results = std::make_shared<SourceValues>();
  results->Add("1", "text");
  EXPECT_EQ(RecordSetIn(results, "1"), nullptr);
}

}  // namespace
}  // namespace ferrowind
