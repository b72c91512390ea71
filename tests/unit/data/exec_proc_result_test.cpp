// What a procedure call hands back.
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/data/exec_proc.h"
#include "ferrowind/data/record_set_in.h"

#include "tests/support/component_world.h"
#include "tests/support/run_in_fresh_thread.h"

namespace ferrowind {
namespace {

using headless::CommandStep;
using platform::Failure;
using platform::Value;
using testing::ComponentWorld;
using testing::RunInFreshThread;

std::shared_ptr<SourceValues> OldResults() {
  auto results = std::make_shared<SourceValues>();
  results->Add("old", "kept");
  return results;
}

void ExpectUntouched(const std::shared_ptr<SourceValues>& results,
                     const std::shared_ptr<SourceValues>& before) {
  EXPECT_EQ(results, before);
  ASSERT_EQ(results->Count(), 1);
  EXPECT_EQ(results->Values("old")->Value, Value("kept"));
}

std::vector<std::string> NamesOf(const SourceValues& values) {
  std::vector<std::string> names;
  for (std::int32_t i = 1; i <= values.Count(); ++i) names.push_back(values.Values(i)->Name);
  return names;
}

TEST(ExecProcResult, IsTheProceduresReturnValueConverted) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("P").Returns("12");
    std::shared_ptr<SourceValues> results;
    EXPECT_EQ(ExecProc("P", nullptr, results), 12);
    EXPECT_EQ(results, nullptr);
  });
}

TEST(ExecProcResult, ANonZeroReturnLeavesTheResultListUntouched) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("P").Returns(5).Gives({"ID1"}, {{1}});
    const auto before = OldResults();
    auto results = before;
    EXPECT_EQ(ExecProc("P", nullptr, results), 5);
    ExpectUntouched(results, before);
    EXPECT_TRUE(component.world.log.StartingWith("cursor.").empty());
    EXPECT_EQ(Module().pending_failure_count, 0);
  });
}

TEST(ExecProcResult, ANonZeroReturnMakesNoResultList) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("P").Returns(5).Gives({"ID1"}, {{1}});
    std::shared_ptr<SourceValues> results;
    ExecProc("P", nullptr, results);
    EXPECT_EQ(results, nullptr);
  });
}

TEST(ExecProcResult, WithoutARecordSetTheResultListIsUntouched) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("P");
    const auto before = OldResults();
    auto results = before;
    EXPECT_EQ(ExecProc("P", nullptr, results), 0);
    ExpectUntouched(results, before);
  });
}

TEST(ExecProcResult, WithAClosedRecordSetTheResultListIsUntouched) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("P").Gives({"ID1"}, {{1}}).Closed();
    const auto before = OldResults();
    auto results = before;
    EXPECT_EQ(ExecProc("P", nullptr, results), 0);
    ExpectUntouched(results, before);
    EXPECT_FALSE(component.world.log.Contains("cursor.CloneDetached(-1)"));
  });
}

TEST(ExecProcResult, EmptiesTheListThatWasPassedAndFillsThatSameList) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("P").Gives({"ID1"}, {{978}});
    const auto before = OldResults();
    auto results = before;
    EXPECT_EQ(ExecProc("P", nullptr, results), 0);
    EXPECT_EQ(results, before);
    EXPECT_EQ(NamesOf(*results), std::vector<std::string>{"1"});
  });
}

TEST(ExecProcResult, MakesAListWhereNoneWasPassed) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("P").Gives({"ID1"}, {{978}});
    std::shared_ptr<SourceValues> results;
    EXPECT_EQ(ExecProc("P", nullptr, results), 0);
    ASSERT_NE(results, nullptr);
    EXPECT_EQ(NamesOf(*results), std::vector<std::string>{"1"});
  });
}

TEST(ExecProcResult, NamesTheRecordSetsByTheirPlaceInTheOrderOfTheProcedure) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("P").Gives({"ID1"}, {{978}}).Gives({"TID1"}, {{2}, {3}}).Gives({"x"}, {});
    std::shared_ptr<SourceValues> results;
    ExecProc("P", nullptr, results);
    EXPECT_EQ(NamesOf(*results), (std::vector<std::string>{"1", "2", "3"}));
    EXPECT_EQ((*RecordSetIn(results, "1"))["ID1"], Value(978));
    EXPECT_EQ(RecordSetIn(results, "2")->RowCount(), 2u);
    EXPECT_EQ(RecordSetIn(results, "3")->RowCount(), 0u);
  });
}

TEST(ExecProcResult, ARecordSetThatCannotBeClonedIsLeftOutAndTheNextTakesItsName) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("P").Gives({"first"}, {{1}}).Gives({"second"}, {{2}});
    component.world.commands.FailAt(CommandStep::kClone, Failure(3219, "Not allowed"));
    std::shared_ptr<SourceValues> results;
    EXPECT_EQ(ExecProc("P", nullptr, results), 0);
    EXPECT_EQ(NamesOf(*results), std::vector<std::string>{"1"});
    EXPECT_EQ((*RecordSetIn(results, "1"))["second"], Value(2));
    EXPECT_EQ(Module().pending_failure_count, 0);
  });
}

TEST(ExecProcResult, WhenNoRecordSetCanBeClonedTheListIsEmpty) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("P").Gives({"first"}, {{1}});
    component.world.commands.FailAt(CommandStep::kClone, Failure(3219, "Not allowed"));
    auto results = OldResults();
    EXPECT_EQ(ExecProc("P", nullptr, results), 0);
    EXPECT_EQ(results->Count(), 0);
  });
}

TEST(ExecProcResult, AFailureOnTheWayToTheNextRecordSetEndsTheCollectionSilently) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("P").Gives({"a"}, {{1}}).Gives({"b"}, {{2}}).Gives({"c"}, {{3}});
    component.world.commands.FailAt(CommandStep::kNextRecordSet, Failure(3251, "No next"), 2);
    std::shared_ptr<SourceValues> results;
    EXPECT_EQ(ExecProc("P", nullptr, results), 0);
    EXPECT_EQ(NamesOf(*results), (std::vector<std::string>{"1", "2"}));
    EXPECT_EQ(Module().pending_failure_count, 0);
  });
}

TEST(ExecProcResult, TheRecordSetsStayReadableAfterTheCommandIsGone) {
  RunInFreshThread([] {
    std::shared_ptr<SourceValues> results;
    {
      ComponentWorld component;
      component.world.commands.Answer("P").Gives({"ID1", "Year1"}, {{978, 2026}, {840, 2027}});
      ExecProc("P", nullptr, results);
    }
    const auto records = RecordSetIn(results, "1");
    records->MoveNext();
    EXPECT_EQ((*records)["Year1"], Value(2027));
  });
}

TEST(ExecProcResult, TheRecordSetsAreCopiesWithCursorsOfTheirOwn) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("P").Gives({"ID1"}, {{978}, {840}});
    std::shared_ptr<SourceValues> first;
    std::shared_ptr<SourceValues> second;
    ExecProc("P", nullptr, first);
    RecordSetIn(first, "1")->MoveNext();
    ExecProc("P", nullptr, second);
    EXPECT_EQ((*RecordSetIn(second, "1"))["ID1"], Value(978));
    EXPECT_EQ((*RecordSetIn(first, "1"))["ID1"], Value(840));
  });
}

}  // namespace
}  // namespace ferrowind
