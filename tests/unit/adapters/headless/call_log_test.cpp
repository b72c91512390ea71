#include "ferrowind/adapters/headless/call_log.h"

#include <limits>
#include <memory>

#include <gmock/gmock.h>

#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::headless {
namespace {

using platform::RecordSet;
using platform::Value;
using testing::ElementsAre;
using testing::IsEmpty;

CallLog LogOf(const std::vector<std::string>& calls) {
  CallLog log;
  for (const auto& call : calls) log.Record(call);
  return log;
}

TEST(CallText, WritesEachKindOfArgument) {
  EXPECT_EQ(CallText("grid", "Add", {std::int16_t{2}, 1, -1}), "grid.Add(2, 1, -1)");
  EXPECT_EQ(CallText("grid", "Set", {true, false, {}}), "grid.Set(True, False, empty)");
  EXPECT_EQ(CallText("form", "SetLeft", {12.5F}), "form.SetLeft(12.5)");
  EXPECT_EQ(CallText("picker", "SetDate", {platform::Date(2026, 1, 2)}), "picker.SetDate(2026-01-02)");
  EXPECT_EQ(CallText("services", "TraceMessage", {"a\r\nb"}), "services.TraceMessage(\"a\\r\\nb\")");
  EXPECT_EQ(CallText("toolkit", "Beep"), "toolkit.Beep()");
}

TEST(CallText, CountsTheVisibleRowsOfARecordSet) {
  const auto records = std::make_shared<RecordSet>(std::vector<std::string>{"A"},
                                                   std::vector<std::vector<Value>>{{1}, {2}, {3}});
  EXPECT_EQ(CallText("grid", "AttachRecords", {records}), "grid.AttachRecords(records 3 rows)");
  records->SetFilter("A > 1");
  EXPECT_EQ(CallText("grid", "AttachRecords", {records}), "grid.AttachRecords(records 2 rows)");
  EXPECT_EQ(CallText("grid", "AttachRecords", {std::shared_ptr<RecordSet>()}), "grid.AttachRecords(none)");
}

TEST(CallText, WritesWhatIsNoFiniteNumber) {
  EXPECT_EQ(CallText("form", "SetWidth", {std::numeric_limits<float>::infinity()}), "form.SetWidth(inf)");
  EXPECT_EQ(CallText("form", "SetWidth", {-std::numeric_limits<double>::infinity()}), "form.SetWidth(-inf)");
}

TEST(CallLog, FindsEntriesByTheirWholeText) {
  const CallLog log = LogOf({"a.One()", "b.Two()", "a.One()"});
  EXPECT_TRUE(log.Contains("b.Two()"));
  EXPECT_FALSE(log.Contains("b.Tw"));
  EXPECT_EQ(log.CountOf("a.One()"), 2U);
  EXPECT_EQ(log.PositionOf("a.One()"), 0U);
  EXPECT_EQ(log.PositionOf("a.One()", 1), 2U);
  EXPECT_EQ(log.PositionOf("a.One()", 3), std::nullopt);
}

TEST(CallLog, GivesTheEntriesOfOneObjectOrText) {
  const CallLog log = LogOf({"a.One()", "ab.Two()", "a.Three()"});
  EXPECT_THAT(log.StartingWith("a."), ElementsAre("a.One()", "a.Three()"));
  EXPECT_THAT(log.Containing("T"), ElementsAre("ab.Two()", "a.Three()"));
}

TEST(CallLog, GivesWhatCameSinceAMark) {
  CallLog log = LogOf({"a.One()"});
  const std::size_t mark = log.Size();
  EXPECT_THAT(log.Since(mark), IsEmpty());
  log.Record("b.Two()");
  EXPECT_THAT(log.Since(mark), ElementsAre("b.Two()"));
  log.Clear();
  EXPECT_THAT(log.Since(mark), IsEmpty());
}

TEST(CallLog, GivesWhatLiesBetweenTwoEntries) {
  const CallLog log = LogOf({"z()", "lock()", "work()", "unlock()", "lock()"});
  EXPECT_THAT(log.Between("lock()", "unlock()"), ElementsAre("lock()", "work()", "unlock()"));
  EXPECT_THAT(log.Between("unlock()", "z()"), IsEmpty());
  EXPECT_THAT(log.Between("none()", "unlock()"), IsEmpty());
}

}  // namespace
}  // namespace ferrowind::headless
