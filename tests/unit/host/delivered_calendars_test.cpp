#include "host/delivery/delivered_calendars.h"

#include <gmock/gmock.h>

#include "host/session/procedure_session.h"
#include "tests/unit/host/recording_engine.h"

namespace ferrowind::host {
namespace {

using platform::ParameterType;
using platform::RecordSet;
using platform::Value;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

std::string FailureOf(std::string_view text) {
  try {
    const DeliveredCalendars calendars(text);
  } catch (const platform::Failure& failure) {
    return failure.Description();
  }
  return "no failure";
}

std::shared_ptr<RecordSet> Rules() {
  return std::make_shared<RecordSet>(
      std::vector<std::string>{"ID2", "Name1", "TID1"},
      std::vector<std::vector<Value>>{
          {2, "Saturday", 2}, {3, "Sunday", 2}, {8, "Christmas Day", 3}, {9, "Good Friday", 4}});
}

class DeliveredCalendarsInADatabase : public ::testing::Test {
 protected:
  DeliveredCalendarsInADatabase() {
    engine_->procedures["CldAllInfo"] = {
        RecordingEngine::Inputs({}),
        {0,
         {std::make_shared<RecordSet>(std::vector<std::string>{}, std::vector<std::vector<Value>>{}),
          std::make_shared<RecordSet>(std::vector<std::string>{}, std::vector<std::vector<Value>>{}),
          Rules()}}};
    engine_->procedures["CldIUMain"] = {RecordingEngine::Inputs({{"ID1", ParameterType::kInt32},
                                                                 {"Year1", ParameterType::kInt32},
                                                                 {"TID1", ParameterType::kInt32},
                                                                 {"ID2", ParameterType::kInt32},
                                                                 {"Day1", ParameterType::kInt32},
                                                                 {"ODate", ParameterType::kDate}})};
    engine_->dictionary = std::make_shared<RecordSet>(
        std::vector<std::string>{"CcyID", "Ccy", "CcyType", "Name"},
        std::vector<std::vector<Value>>{{978, "EUR", 0, "Euro"}, {959, "XAU", 1, "Gold"}});
    engines_.Register("recording", engine_);
  }

  void Create(const char* text) {
    RunWithDatabase(engines_, "recording:", [&] { DeliveredCalendars(text).Create(); });
  }

  std::string FailureOfCreating(const char* text) {
    try {
      Create(text);
    } catch (const platform::Failure& failure) {
      return failure.Description();
    }
    return "no failure";
  }

  std::shared_ptr<RecordingEngine> engine_ = std::make_shared<RecordingEngine>();
  platform::EngineRegistry engines_;
};

TEST(DeliveredCalendars, RefuseALineWithoutADayAndNameIt) {
  EXPECT_THAT(FailureOf("# dates\n\nEUR 2026-01-01 New Year's Day\nEUR 2026-02-30 No Day\n"),
              AllOf(HasSubstr("line 4"), HasSubstr("2026-02-30")));
  EXPECT_THAT(FailureOf("EUR"), HasSubstr("line 1"));
}

TEST(DeliveredCalendars, RefuseALineWithoutARule) {
  EXPECT_THAT(FailureOf("EUR 2026-01-01\n"), AllOf(HasSubstr("line 1"), HasSubstr("rule is missing")));
}

TEST(DeliveredCalendars, AreCarriedByTheProgramInAFormThatItReads) {
  EXPECT_NO_THROW(static_cast<void>(DeliveredCalendars::Embedded()));
}

TEST_F(DeliveredCalendarsInADatabase, AreCreatedByTheCallsThatTheWindowsMake) {
  Create("EUR 2026-04-03 Good Friday\nEUR 2026-12-25 Christmas Day\nEUR 2027-12-25 Christmas Day\n");
  EXPECT_THAT(engine_->calls,
              ElementsAre("CldAllInfo",                                 //
                          "CldIUMain ID1=978 Year1=2026",               //
                          "CldIUMain ID1=978 Year1=2026 TID1=2 ID2=2",  //
                          "CldIUMain ID1=978 Year1=2026 TID1=2 ID2=3",  //
                          "CldIUMain ID1=978 Year1=2026 TID1=4 ID2=9 Day1=93 ODate=2026-04-03",
                          "CldIUMain ID1=978 Year1=2026 TID1=3 ID2=8 Day1=359 ODate=2026-12-25",
                          "CldIUMain ID1=978 Year1=2027",               //
                          "CldIUMain ID1=978 Year1=2027 TID1=2 ID2=2",  //
                          "CldIUMain ID1=978 Year1=2027 TID1=2 ID2=3",  //
                          "CldIUMain ID1=978 Year1=2027 TID1=3 ID2=8 Day1=359 ODate=2027-12-25"));
}

TEST_F(DeliveredCalendarsInADatabase, StopAtARefusedCallAndNameTheDay) {
  engine_->other_call = 5;
  engine_->other_outcome = {7, {}};
  EXPECT_THAT(FailureOfCreating("EUR 2026-12-25 Christmas Day\nEUR 2027-12-25 Christmas Day\n"),
              AllOf(HasSubstr("EUR 2026"), HasSubstr("2026-12-25 Christmas Day"), HasSubstr("returned 7")));
  EXPECT_EQ(engine_->calls.size(), 5U);
}

TEST_F(DeliveredCalendarsInADatabase, StopAtAFailingCallAndKeepItsNumberAndText) {
  engine_->procedures.erase("CldIUMain");
  try {
    Create("EUR 2026-12-25 Christmas Day\n");
    FAIL() << "no failure";
  } catch (const platform::Failure& failure) {
    EXPECT_EQ(failure.Number(), 4711);
    EXPECT_THAT(failure.Description(), AllOf(HasSubstr("EUR 2026"), HasSubstr("No procedure CldIUMain")));
  }
}

TEST_F(DeliveredCalendarsInADatabase, RefuseACurrencyOrARuleThatTheDatabaseDoesNotHave) {
  EXPECT_THAT(FailureOfCreating("SEK 2026-12-25 Christmas Day\n"), HasSubstr("no currency SEK"));
  EXPECT_THAT(FailureOfCreating("XAU 2026-12-25 Christmas Day\n"), HasSubstr("no currency XAU"));
  EXPECT_THAT(FailureOfCreating("EUR 2026-12-24 Christmas Eve\n"),
              HasSubstr("no holiday rule Christmas Eve"));
}

}  // namespace
}  // namespace ferrowind::host
