// What CldGetAsOf gives.

#include <chrono>
#include <cstdio>
#include <optional>
#include <random>
#include <thread>

#include <gmock/gmock.h>

#include "ferrowind/platform/values/conversion.h"

#include "tests/contract/database/procedures_contract.h"
#include "tests/contract/database/random_calls.h"

namespace ferrowind::contract {
namespace {

using platform::Date;
using platform::Value;

constexpr const char* kEarly = "1999-12-31T23:59:59Z";
constexpr const char* kLate = "9999-12-31T23:59:59Z";

/// The days of a calendar; none when it does not exist.
using Calendar = std::optional<std::vector<Row>>;

Calendar CalendarOf(const platform::CallOutcome& outcome) {
  EXPECT_TRUE(outcome.return_value == 0 || outcome.return_value == 5) << outcome.return_value;
  if (outcome.return_value != 0) return std::nullopt;
  return RowsOf(*outcome.record_sets.at(0));
}

Calendar AsOf(ProcedureCaller& caller, int currency, int year, const std::string& moment) {
  return CalendarOf(caller.Call("CldGetAsOf", {{"ID1", currency}, {"Year1", year}, {"Moment", moment}}));
}

/// Has what follows get another moment than what came before.
void LetAMomentPass() { std::this_thread::sleep_for(std::chrono::milliseconds(3)); }

TEST_P(ProceduresContract, ACalendarIsGivenAsItWas) {
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  const auto created = LastMoment();
  const auto empty = Days(2028);
  LetAMomentPass();
  ASSERT_EQ(Apply(kEuro, 2028, R"([{"Name1": "A", "TID1": 3, "Comment": "c", "Dates": ["2028-01-05"],
                                    "DayComment": "d"}])"),
            0);
  const auto planned = LastMoment();
  const auto with_rule = Days(2028);
  LetAMomentPass();
  ASSERT_EQ(
      caller().Return(
          "CldIUCelebrate",
          {{"ID2", 2}, {"Name1", "Renamed"}, {"TID1", 3}, {"D1", Date(2028, 1, 5)}, {"MY", 1}, {"MD", 5}}),
      0);
  const auto renamed = LastMoment();
  const auto with_name = Days(2028);
  LetAMomentPass();
  ASSERT_EQ(Apply(kEuro, 2028, R"([{"TID1": 1, "Dates": ["2028-01-05"]}])"), 0);
  EXPECT_EQ(AsOf(caller(), kEuro, 2028, kEarly), std::nullopt);
  EXPECT_EQ(AsOf(caller(), kEuro, 2028, created), empty);
  EXPECT_EQ(AsOf(caller(), kEuro, 2028, planned), with_rule);
  EXPECT_EQ(AsOf(caller(), kEuro, 2028, renamed), with_name);
  EXPECT_EQ(AsOf(caller(), kEuro, 2028, LastMoment()), empty);
  EXPECT_EQ(AsOf(caller(), kEuro, 2028, kLate), empty);
  EXPECT_EQ(AsOf(caller(), kEuro, 2029, kLate), std::nullopt);
}

TEST_P(ProceduresContract, ACalendarThatIsGoneIsGivenAsItWas) {
  ASSERT_EQ(Apply(kEuro, 2028, R"([{"Name1": "A", "TID1": 3, "Dates": ["2028-01-05"]}])"), 0);
  const auto planned = LastMoment();
  const auto days = Days(2028);
  LetAMomentPass();
  ASSERT_EQ(Undo(LastEntry()), 0);
  const auto removed = LastMoment();
  LetAMomentPass();
  EXPECT_EQ(AsOf(caller(), kEuro, 2028, planned), days);
  EXPECT_EQ(AsOf(caller(), kEuro, 2028, removed), std::nullopt);
  ASSERT_EQ(Apply(kEuro, 2028, R"([{"Name1": "B", "TID1": 4, "Dates": ["2028-01-05", "2028-01-06"]}])"), 0);
  LetAMomentPass();
  ASSERT_EQ(Apply(kEuro, 2028, R"([{"TID1": 1, "Dates": ["2028-01-06", "2028-01-07"], "DayComment": "x"}])"),
            0);
  EXPECT_EQ(AsOf(caller(), kEuro, 2028, planned), days);
  EXPECT_EQ(AsOf(caller(), kEuro, 2028, removed), std::nullopt);
  EXPECT_EQ(AsOf(caller(), kEuro, 2028, kLate), Days(2028));
}

TEST_P(ProceduresContract, ACalendarIsGivenAsACallLeftIt) {
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  const auto empty = Days(2028);
  ASSERT_EQ(Apply(kEuro, 2028, R"([{"Name1": "A", "TID1": 3, "Dates": ["2028-01-05"]}])"), 0);
  const auto planned = Days(2028);
  ASSERT_EQ(Undo(2), 0);
  ASSERT_EQ(Undo(1), 0);
  const auto as_of = [&](const Value& entry) {
    return CalendarOf(caller().Call("CldGetAsOf", {{"ID1", kEuro}, {"Year1", 2028}, {"EntryID", entry}}));
  };
  EXPECT_EQ(as_of(0), std::nullopt);
  EXPECT_EQ(as_of(1), empty);
  EXPECT_EQ(as_of(2), planned);
  EXPECT_EQ(as_of(3), empty);
  EXPECT_EQ(as_of(4), std::nullopt);
  EXPECT_EQ(as_of(77), std::nullopt);
}

TEST_P(ProceduresContract, ACalendarIsGivenAsOfAMomentOrOfACall) {
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  const auto returned = [&](const Value& moment, const Value& entry) {
    return caller().Return("CldGetAsOf",
                           {{"ID1", kEuro}, {"Year1", 2028}, {"Moment", moment}, {"EntryID", entry}});
  };
  EXPECT_EQ(returned({}, {}), 7);
  EXPECT_EQ(returned(kLate, 1), 7);
  EXPECT_EQ(returned({}, -1), 7);
  EXPECT_EQ(returned({}, 1), 0);
  EXPECT_EQ(returned(kLate, {}), 0);
}

TEST_P(ProceduresContract, AMomentHasOneForm) {
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  const auto at = [&](const Value& moment) {
    return caller().Return("CldGetAsOf", {{"ID1", kEuro}, {"Year1", 2028}, {"Moment", moment}});
  };
  for (const char* moment : {"",
                             "now",
                             "2999-01-01",
                             "2999-01-01T00:00Z",
                             "2999-01-01T00:00:00",
                             "2999-01-01 00:00:00Z",
                             "2999-01-01T00:00:00+00:00",
                             "2999-13-01T00:00:00Z",
                             "2999-02-29T00:00:00Z",
                             "2999-01-01T24:00:00Z",
                             "2999-01-01T00:60:00Z",
                             "2999-01-01T00:00:60Z",
                             "2999-01-01T00:00:00.Z",
                             "2999-01-01T00:00:00.1Z",
                             "2999-01-01T00:00:00.12Z",
                             "2999-01-01T00:00:00.1234Z",
                             "2999-01-01t00:00:00z",
                             " 2999-01-01T00:00:00Z",
                             "2999-01-01T00:00:00Z ",
                             "2999-1-1T0:00:00Z"}) {
    EXPECT_EQ(at(moment), 7) << moment;
  }
  EXPECT_EQ(at({}), 7);
  EXPECT_EQ(at("2999-01-01T00:00:00Z"), 0);
  EXPECT_EQ(at("2999-12-31T23:59:59.999Z"), 0);
}

TEST_P(ProceduresContract, ACalendarAsItWasIsRefusedLikeTheDays) {
  const auto as_of = [&](const Value& currency, const Value& year) {
    return caller().Return("CldGetAsOf", {{"ID1", currency}, {"Year1", year}, {"Moment", kLate}});
  };
  EXPECT_EQ(as_of({}, 2028), 7);
  EXPECT_EQ(as_of(kEuro, {}), 7);
  EXPECT_EQ(as_of(kEuro, 1899), 7);
  EXPECT_EQ(as_of(kEuro, 3001), 7);
  EXPECT_EQ(as_of(kNoCurrency, 2028), 3);
  EXPECT_EQ(as_of(kGold, 2028), 3);
  EXPECT_EQ(as_of(kEuro, 2028), 5);
}

/// Each moment is looked at in one of the calendars, another one each time.
TEST_P(ProceduresContract, EveryMomentOfTwoThousandRandomCallsIsGivenAsItWas) {
  struct Record {
    std::string moment;
    Value entry;
    int currency;
    int year;
    Calendar calendar;
  };
  const auto seed = std::random_device()();
  RecordProperty("seed", std::to_string(seed));
  std::printf("The calls come from the seed %u\n", seed);
  // One connection for all: most of the time of a call goes into opening the database.
  ProcedureCaller caller(database(), 100'000);
  RandomCalls calls(caller, seed);
  std::vector<Record> records;
  Value last_entry;
  ASSERT_EQ(CreateCalendar(kEuro, 2027), 0);
  for (int call = 0; call < 2000; ++call) {
    calls.Make();
    const auto newest = caller.Call("CldGetHistory", {{"Count", 1}}).record_sets.at(0);
    // A call that was refused changes nothing and has no moment.
    if ((*newest)["EntryID"] == last_entry) continue;
    last_entry = (*newest)["EntryID"];
    const auto moment = platform::ToText((*newest)["Moment"]);
    // As of a moment is behind the last call of that moment.
    while (!records.empty() && records.back().moment == moment) records.pop_back();
    const int currency = calls.Currency();
    const int year = calls.Year();
    records.push_back({moment, last_entry, currency, year,
                       CalendarOf(caller.Call("CldGetMain", {{"ID1", currency}, {"Year1", year}}))});
  }
  int wrong = 0;
  for (const auto& [moment, entry, currency, year, calendar] : records) {
    const Arguments then = {{"ID1", currency}, {"Year1", year}, {"Moment", moment}};
    const Arguments behind = {{"ID1", currency}, {"Year1", year}, {"EntryID", entry}};
    if (CalendarOf(caller.Call("CldGetAsOf", then)) == calendar &&
        CalendarOf(caller.Call("CldGetAsOf", behind)) == calendar) {
      continue;
    }
    ADD_FAILURE() << "the calendar " << currency << " of " << year << " as of " << moment;
    if (++wrong == 3) break;
  }
  EXPECT_GT(records.size(), 500U);
}

}  // namespace
}  // namespace ferrowind::contract
