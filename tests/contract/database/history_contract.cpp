// What the history holds of the calls, on every engine that keeps one.

#include "tests/contract/database/history_contract.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <thread>

#include <gmock/gmock.h>

#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::contract {

std::vector<std::string> HistoryContract::History(const std::string& field) {
  std::vector<std::string> texts;
  const auto history = caller().Call("CldGetHistory", {{"Count", 10000}}).record_sets.at(0);
  for (const auto& value : ColumnOf(*history, field)) texts.push_back(platform::ToTextOrEmpty(value));
  std::reverse(texts.begin(), texts.end());
  return texts;
}

namespace {

using platform::Date;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::Ge;
using ::testing::IsEmpty;
using ::testing::Le;
using ::testing::SizeIs;

/// In UTC, as the history writes moments.
std::string Now() {
  using namespace std::chrono;
  const auto now = floor<milliseconds>(system_clock::now());
  const auto day = floor<days>(now);
  const year_month_day date(day);
  const hh_mm_ss time(now - day);
  char text[64];
  std::snprintf(text, sizeof text, "%04d-%02u-%02uT%02d:%02d:%02d.%03dZ", static_cast<int>(date.year()),
                static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                static_cast<int>(time.seconds().count()), static_cast<int>(time.subseconds().count()));
  return text;
}

TEST_P(HistoryContract, ANewDatabaseHasNone) { EXPECT_THAT(History("EntryID"), IsEmpty()); }

TEST_P(HistoryContract, EveryCallThatChangesSomethingAddsAnEntry) {
  for (const auto& [procedure, arguments] : std::vector<std::pair<std::string, Arguments>>{
           {"CldIUMain", {{"ID1", kEuro}, {"Year1", 2028}}},
           {"CldIUCelebrate", {{"Name1", "Sunday"}, {"TID1", 2}, {"WD", 1}}},
           {"CldIUMain", {{"ID1", kEuro}, {"Year1", 2028}, {"TID1", 2}, {"ID2", 2}}},
           {"CldIUMain", {{"ID1", kEuro}, {"Year1", 2028}, {"TID1", 1}, {"ID2", 1}, {"Day1", 2}}},
           {"CldIUCelebrate", {{"Name1", "sunday"}, {"TID1", 2}, {"WD", 1}, {"ID2", 2}}},
           {"CldIUCelebrate", {{"ID2", 2}, {"Del", 2}}}}) {
    const auto outcome = caller().Call(procedure, arguments);
    EXPECT_EQ(outcome.return_value, 0);
    EXPECT_THAT(outcome.record_sets, IsEmpty());
  }
  EXPECT_THAT(History("ProcedureName"), ElementsAre("CldIUMain", "CldIUCelebrate", "CldIUMain", "CldIUMain",
                                                    "CldIUCelebrate", "CldIUCelebrate"));
  EXPECT_THAT(History("RowsChanged"), ElementsAre("367", "1", "53", "1", "1", "1"));
  EXPECT_THAT(History("ID1"), ElementsAre("978", "", "978", "978", "", ""));
  EXPECT_THAT(History("Year1"), ElementsAre("2028", "", "2028", "2028", "", ""));
}

TEST_P(HistoryContract, ACallThatChangesNoRowIsAChangingCallAllTheSame) {
  ASSERT_EQ(caller().Return("CldIUMain", {{"ID1", kEuro}, {"Year1", 2026}}), 0);
  ASSERT_EQ(caller().Return("CldIUCelebrate", {{"Name1", "Thursday"}, {"TID1", 2}, {"WD", 5}}), 0);
  for (int day = 1; day <= 365; day += 7) {
    ASSERT_EQ(caller().Return("CldIUMain",
                              {{"ID1", kEuro}, {"Year1", 2026}, {"TID1", 1}, {"ID2", 1}, {"Day1", day}}),
              0);
  }
  ASSERT_EQ(caller().Return("CldIUMain", {{"ID1", kEuro}, {"Year1", 2026}, {"TID1", 2}, {"ID2", 2}}), 0);
  EXPECT_EQ(History("RowsChanged").back(), "0");
  EXPECT_THAT(History("RowsChanged"), SizeIs(2 + 53 + 1));
}

TEST_P(HistoryContract, ACallThatOnlyReadsOrIsUndoneAddsNone) {
  ASSERT_EQ(caller().Return("CldIUMain", {{"ID1", kEuro}, {"Year1", 2026}}), 0);
  ASSERT_EQ(caller().Return("CldAllInfo"), 0);
  ASSERT_EQ(caller().Return("CldGetMain", {{"ID1", kEuro}, {"Year1", 2026}}), 0);
  EXPECT_EQ(caller().Return("CldIUMain", {{"ID1", kEuro}, {"Year1", 2026}}), 6);
  EXPECT_EQ(caller().Return("CldIUMain", {{"ID1", kNoCurrency}, {"Year1", 2026}}), 3);
  EXPECT_EQ(caller().Return("CldIUMain", {}), 7);
  EXPECT_EQ(caller().Return("CldIUCelebrate", {{"ID2", 77}, {"Del", 2}}), 4);
  EXPECT_THROW(caller().Call("CldIUCelebrate", {{"Name1", "\xff"}, {"TID1", 2}, {"WD", 1}}),
               platform::Failure);
  EXPECT_THAT(History("EntryID"), SizeIs(1));
}

TEST_P(HistoryContract, AnEntryTellsWhoAndWhen) {
  const std::string before = Now();
  ASSERT_EQ(caller().Return("CldIUMain", {{"ID1", kEuro}, {"Year1", 2026}}), 0);
  // A server rounds to the millisecond that is cut off here.
  std::this_thread::sleep_for(std::chrono::milliseconds(1));
  const std::string after = Now();
  EXPECT_THAT(History("UserName"), ElementsAre(database().UserName()));
  EXPECT_THAT(History("Moment"), ElementsAre(AllOf(Ge(before), Le(after))));
  EXPECT_THAT(History("Moment").front(), SizeIs(before.size()));
}

TEST_P(HistoryContract, AnEntryTellsEveryParameterByItsName) {
  ASSERT_EQ(caller().Return("cldiucelebrate", {{"Name1", "Größe \"7\" 祝日"},
                                               {"Comment", "a\\b\n\tc\x01'); DROP TABLE CldDay; --"},
                                               {"TID1", 3},
                                               {"D1", Date(2024, 2, 29)},
                                               {"MY", 2},
                                               {"MD", 29}}),
            0);
  ASSERT_EQ(caller().Return("CldIUCelebrate", {{"Name1", "7"}, {"Comment", ""}, {"TID1", 2}, {"WD", 7}}), 0);
  ASSERT_EQ(caller().Return("CldIUMain", {{"ID1", kEuro}, {"Year1", 2026}}), 0);
  EXPECT_THAT(
      History("Parameters"),
      ElementsAre(
          R"({"Name1" : "Größe \"7\" 祝日", "Comment" : "a\\b\n\tc\u0001'); DROP TABLE CldDay; --", )"
          R"("TID1" : 3, "WD" : null, "D1" : "2024-02-29", "MY" : 2, "MD" : 29, "ID2" : null, "Del" : null})",
          R"({"Name1" : "7", "Comment" : "", "TID1" : 2, "WD" : 7, "D1" : null, "MY" : null, "MD" : null, )"
          R"("ID2" : null, "Del" : null})",
          R"({"ID1" : 978, "Year1" : 2026, "TID1" : null, "ID2" : null, "Day1" : null, "ODate" : null, )"
          R"("Comment" : null})"));
  EXPECT_EQ(History("ProcedureName").front(), "CldIUCelebrate");
}

}  // namespace
}  // namespace ferrowind::contract
