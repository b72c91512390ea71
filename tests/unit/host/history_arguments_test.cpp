#include "host/admin/history_arguments.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/admin/procedure_arguments.h"

namespace ferrowind::host {
namespace {

using ::testing::HasSubstr;

std::string RefusalOf(void (*read)(const std::string&), const std::string& text) {
  try {
    read(text);
  } catch (const ArgumentError& error) {
    return error.what();
  }
  return "none";
}

TEST(HistoryArguments, AMomentIsADateOrADateAndATime) {
  EXPECT_EQ(ReadMoment("2026-11-21"), "2026-11-21T00:00:00.000Z");
  EXPECT_EQ(ReadMoment("2026-11-21T07:05"), "2026-11-21T07:05:00.000Z");
  EXPECT_EQ(ReadMoment("2026-11-21 07:05:59"), "2026-11-21T07:05:59.000Z");
  EXPECT_EQ(ReadMoment("2026-11-21T23:59:59Z"), "2026-11-21T23:59:59.000Z");
  EXPECT_EQ(ReadMoment("2024-02-29T00:00:00.5"), "2024-02-29T00:00:00.500Z");
  EXPECT_EQ(ReadMoment("2024-02-29T00:00:00.123Z"), "2024-02-29T00:00:00.123Z");
}

TEST(HistoryArguments, WhatIsNoMomentIsRefusedByItsText) {
  const auto read = [](const std::string& text) { (void)ReadMoment(text); };
  for (const std::string text : {"",
                                 "yesterday",
                                 "2026-02-29",
                                 "2026-13-01",
                                 "26-11-21",
                                 "21.11.2026",
                                 "2026-11-21T",
                                 "2026-11-21Z",
                                 "2026-11-21T07",
                                 "2026-11-21T7:05",
                                 "2026-11-21T24:00",
                                 "2026-11-21T07:60",
                                 "2026-11-21T07:05:60",
                                 "2026-11-21T07:05:",
                                 "2026-11-21T07:05:1",
                                 "2026-11-21T07:05:11.",
                                 "2026-11-21T07:05:11.1234",
                                 "2026-11-21T07:05+01:00",
                                 "2026-11-21x07:05",
                                 "2026-11-21 07:05 ",
                                 "2026-11-21T07:05:11ZZ"}) {
    EXPECT_THAT(RefusalOf(read, text), HasSubstr("\"" + text + "\" is neither a date")) << text;
  }
}

TEST(HistoryArguments, ACalendarIsACurrencyAndAYear) {
  const auto calendar = ReadCalendar("USD/2026");
  EXPECT_EQ(calendar.currency, "USD");
  EXPECT_EQ(calendar.year, 2026);
  EXPECT_EQ(ReadCalendar("eUr/1900").currency, "EUR");
  EXPECT_EQ(ReadCalendar("840/2026").currency, "840");
}

TEST(HistoryArguments, WhatIsNoCalendarIsRefusedByItsText) {
  const auto read = [](const std::string& text) { (void)ReadCalendar(text); };
  for (const std::string text : {"", "USD", "USD/", "/2026", "2026/USD", "USD 2026", "USD/26", "USD/20260",
                                 "USD/-202", "USD/2026/1", "U$D/2026", "USD/20x6", "84O/2026", "-84/2026"}) {
    EXPECT_THAT(RefusalOf(read, text), HasSubstr("\"" + text + "\" names no calendar")) << text;
  }
}

TEST(HistoryArguments, ReadTheNumberOfAnEntry) {
  EXPECT_EQ(ReadEntryNumber("112"), 112);
  EXPECT_EQ(ReadEntryNumber("-1"), -1);
  for (const char* text : {"", "abc", "1.5", "12 ", "99999999999"}) {
    EXPECT_THROW((void)ReadEntryNumber(text), ArgumentError) << text;
  }
}

}  // namespace
}  // namespace ferrowind::host
