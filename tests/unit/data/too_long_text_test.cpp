#include "ferrowind/data/too_long_text.h"

#include <cstddef>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "ferrowind/data/exec_proc.h"
#include "ferrowind/data/module_state.h"

#include "tests/support/component_world.h"
#include "tests/support/run_in_fresh_thread.h"

namespace ferrowind {
namespace {

using testing::ComponentWorld;
using testing::RunInFreshThread;

std::string Told(const SourceValues& parameters) {
  const auto told = TooLongText(parameters);
  return told ? told->InEnglish() : "";
}

std::string Told(const std::string& name, const platform::Value& value) {
  SourceValues parameters;
  parameters.Add("ID1", 978);
  parameters.Add(name, value);
  return Told(parameters);
}

std::string Long(std::size_t characters) { return std::string(characters, 'x'); }

TEST(TooLongText, SaysWhichTextHowLongItIsAndHowLongItMayBe) {
  EXPECT_EQ(Told("Name1", Long(201)), "The name has 201 characters; it may have 200 at most");
  EXPECT_EQ(Told("Comment", Long(4001)), "The comment has 4001 characters; it may have 4000 at most");
  EXPECT_EQ(Told("Publisher", Long(201)), "The publisher has 201 characters; it may have 200 at most");
  EXPECT_EQ(Told("Document", Long(4001)), "The document has 4001 characters; it may have 4000 at most");
  EXPECT_EQ(Told("name", Long(300)), "The name has 300 characters; it may have 200 at most");
}

TEST(TooLongText, SaysNothingOfTextsThatCanBeStoredAndOfOtherValues) {
  EXPECT_EQ(Told("Name1", Long(200)), "");
  EXPECT_EQ(Told("Comment", Long(4000)), "");
  EXPECT_EQ(Told("Name1", {}), "");
  EXPECT_EQ(Told("Name1", 5), "");
  EXPECT_EQ(Told("Expected", Long(5000)), "");
}

TEST(TooLongText, SaysWhereInAListItStands) {
  EXPECT_EQ(
      Told("Days", R"([{"Name1": "A"}, {"Name1": "Labour Day", "DayComment": ")" + Long(4001) + R"("}])"),
      "Labour Day: The comment of the days has 4001 characters; it may have 4000 at most");
  EXPECT_EQ(Told("Rules", R"([{"Name1": "A"}, {"Name1": ")" + Long(201) + R"("}])"),
            "Item 2 of the list: The name has 201 characters; it may have 200 at most");
  EXPECT_EQ(Told("Rules", R"([{"Expression": ")" + Long(4001) + R"("}])"),
            "Item 1 of the list: The expression has 4001 characters; it may have 4000 at most");
  EXPECT_EQ(Told("Rules", R"([{"MovedName": ")" + Long(201) + R"("}])"),
            "Item 1 of the list: The name of the moved day has 201 characters; it may have 200 at most");
  EXPECT_EQ(Told("Days", Long(1048577)), "The list has 1048577 bytes; it may have 1048576 at most");
}

TEST(TooLongText, SaysNothingOfWhatIsNoList) {
  for (const std::string text : {"", "[", "{}", "null", R"([1, "a", {"Name1": 5}])"})
    EXPECT_EQ(Told("Rules", text), "");
}

TEST(TooLongText, IsKnownFromACallThatWasRefusedForItUntilTheNextOne) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("P").Takes("@Comment", platform::ParameterType::kText).Returns(7);
    component.world.commands.Answer("Q").Takes("@Comment", platform::ParameterType::kText).Returns(5);
    SourceValues parameters;
    parameters.Add("Comment", Long(4001));
    std::shared_ptr<SourceValues> results;
    EXPECT_EQ(ExecProc("P", &parameters, results), 7);
    ASSERT_TRUE(Module().too_long_text);
    EXPECT_EQ(Module().too_long_text->InEnglish(),
              "The comment has 4001 characters; it may have 4000 at most");
    EXPECT_EQ(Module().pending_failure_count, 0) << "a refusal is no failure";
    EXPECT_EQ(ExecProc("Q", &parameters, results), 5);
    EXPECT_FALSE(Module().too_long_text);
    EXPECT_EQ(ExecProc("P", nullptr, results), 7);
    EXPECT_FALSE(Module().too_long_text);
  });
}

}  // namespace
}  // namespace ferrowind
