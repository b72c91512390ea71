#include "ferrowind/adapters/icalendar/icalendar_list.h"

#include <cstddef>
#include <optional>
#include <sstream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/exchange/lists.h"

namespace ferrowind::icalendar {
namespace {

using exchange::DayList;
using exchange::ListedKind;
using exchange::RefusalOf;
using exchange::Told;
using exchange::WantedYears;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

std::string Calendar(const std::string& parts) {
  return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Bank//EN\r\n" + parts + "END:VCALENDAR\r\n";
}

std::string Event(const std::string& lines) {
  return "BEGIN:VEVENT\r\nUID:1\r\n" + lines + "\r\nEND:VEVENT\r\n";
}

DayList Read(const std::string& parts, const std::optional<WantedYears>& wanted = std::nullopt) {
  return ReadICalendarList(Calendar(parts), wanted);
}

std::string Refusal(const std::string& parts) {
  return RefusalOf([&] { return Read(parts); });
}

TEST(ICalendarList, HasTheDaysOfAllDayEvents) {
  EXPECT_THAT(Told(Read(Event("DTSTART;VALUE=DATE:20270101\r\nSUMMARY:New Year\\, first\r\n  day") +
                        Event("DTSTART;VALUE=DATE:20270326\r\nDTEND;VALUE=DATE:20270328") +
                        Event("DTSTART;VALUE=DATE:20271225\r\nDURATION:P2D\r\nSUMMARY:Christmas") +
                        Event("DTSTART;VALUE=DATE:20271231\r\nDTEND;VALUE=DATE:20271231"))),
              ElementsAre("2027-01-01 holiday New Year, first day, line 4", "2027-03-26 holiday, line 10",
                          "2027-03-27 holiday, line 10", "2027-12-25 holiday Christmas, line 15",
                          "2027-12-26 holiday Christmas, line 15", "2027-12-31 holiday, line 21"));
}

TEST(ICalendarList, TakesMidnightToMidnightForWholeDaysAndOtherTimesForHalfOnes) {
  EXPECT_THAT(
      Told(Read(Event("DTSTART;TZID=Europe/Rome:20270101T000000\r\nDTEND;TZID=Europe/Rome:20270102T000000") +
                Event("DTSTART:20270106T000000\r\nDTEND:20270106T235900") +
                Event("DTSTART:20271224T120000Z\r\nDTEND:20271224T180000Z\r\nSUMMARY:Eve") +
                Event("DTSTART:20271231T230000Z\r\nDTEND:20280101T230000Z"))),
      ElementsAre("2027-01-01 holiday, line 4", "2027-01-06 holiday, line 9",
                  "2027-12-24 half day Eve, line 14", "2027-12-31 half day, line 20",
                  "2028-01-01 half day, line 20"));
}

TEST(ICalendarList, ExpandsRepetitionsWithinTheWantedYears) {
  const std::string yearly = Event("DTSTART;VALUE=DATE:20200501\r\nRRULE:FREQ=YEARLY\r\nSUMMARY:May");
  EXPECT_THAT(Told(Read(yearly, WantedYears{2026, 2027})),
              ElementsAre("2026-05-01 holiday May, line 4", "2027-05-01 holiday May, line 4"));
  EXPECT_EQ(Refusal(yearly),
            "line 4: the event \"May\" cannot be read: it repeats without an end (RRULE); say with --year "
            "which years "
            "are wanted");
  EXPECT_THAT(
      Told(Read(Event("DTSTART;VALUE=DATE:20270104\r\nRRULE:FREQ=WEEKLY;COUNT=3\r\nEXDATE;VALUE=DATE:20270111"
                      "\r\nRDATE;VALUE=DATE:20270601"))),
      ElementsAre("2027-01-04 holiday, line 4", "2027-01-18 holiday, line 4", "2027-06-01 holiday, line 4"));
  EXPECT_THAT(Told(Read(Event("DTSTART;VALUE=DATE:20270704\r\nRRULE:FREQ=YEARLY;UNTIL=20280704"))),
              SizeIs(2));
}

TEST(ICalendarList, BoundsRepetitions) {
  EXPECT_THAT(
      Refusal(Event("DTSTART:20270104T000000\r\nDTEND:20270105T000000\r\nRRULE:FREQ=SECONDLY;COUNT=3")),
      HasSubstr("it repeats more often than daily (RRULE)"));
  EXPECT_THAT(Refusal(Event("DTSTART;VALUE=DATE:19000101\r\nRRULE:FREQ=DAILY;UNTIL=24990101")),
              HasSubstr("the file has too many days; ask for fewer years, or split it"));
  EXPECT_THAT(
      RefusalOf([] {
        return Read(Event("DTSTART;VALUE=DATE:19000101\r\nRRULE:FREQ=YEARLY"), WantedYears{2990, 2991});
      }),
      HasSubstr("is not read for years after 2500"));
  EXPECT_THAT(Refusal(Event("DTSTART;VALUE=DATE:20270101\r\nRRULE:FREQ=YEARLY;INTERVAL=100;COUNT=4")),
              HasSubstr("it repeats for more than 200 years, or on days that never come (RRULE)"));
  // 30 and 31 February never come.
  EXPECT_THAT(
      Refusal(Event("DTSTART;VALUE=DATE:20270101\r\nRRULE:FREQ=DAILY;COUNT=1;BYMONTH=2;BYMONTHDAY=31")),
      HasSubstr("it repeats for more than 200 years, or on days that never come (RRULE)"));
  EXPECT_THAT(
      Refusal(Event("DTSTART;VALUE=DATE:20270101\r\nRRULE:FREQ=YEARLY;COUNT=1;BYMONTH=2;BYMONTHDAY=30")),
      HasSubstr("it repeats in a way that cannot be read (RRULE)"));
}

TEST(ICalendarList, TellsWhatItLeavesOut) {
  const DayList list = Read("BEGIN:VTIMEZONE\r\nTZID:X\r\nEND:VTIMEZONE\r\n" +
                            Event("DTSTART;VALUE=DATE:20270101\r\nSTATUS:CANCELLED\r\nSUMMARY:Off") +
                            Event("DTSTART;VALUE=DATE:20270102"));
  EXPECT_THAT(Told(list), ElementsAre("2027-01-02 holiday, line 13"));
  EXPECT_THAT(
      list.remarks,
      ElementsAre("Line 7: the event \"Off\" is cancelled and left out",
                  "Parts of the calendar that are no events, such as time zones and tasks, are left out: 1"));
}

TEST(ICalendarList, IsRefusedWithItsLines) {
  EXPECT_EQ(Refusal(Event("SUMMARY:a") + Event("DTSTART;VALUE=DATE:20271301\r\nSUMMARY:b")),
            "line 4: the event \"a\" cannot be read: it has no beginning (DTSTART); line 8: the event \"b\" "
            "cannot be "
            "read: its beginning (DTSTART) is no day of a year from 1900 to 3000");
  EXPECT_THAT(Refusal(Event("DTSTART;VALUE=DATE:20270231")), HasSubstr("line 4: the event cannot be read: "));
  EXPECT_THAT(Refusal(Event("DTSTART;VALUE=DATE:20270105\r\nDTEND;VALUE=DATE:20270101")),
              HasSubstr("it ends before it begins, or lasts longer than a year"));
  EXPECT_THAT(Refusal(Event("DTSTART;VALUE=DATE:20270105\r\nDTEND;VALUE=DATE:20290101")),
              HasSubstr("it ends before it begins, or lasts longer than a year"));
  EXPECT_THAT(Refusal(Event("DTSTART;VALUE=DATE:20270105\r\nRRULE:FREQ=SOMETIMES;COUNT=2")),
              HasSubstr("RRULE cannot be read"));
  EXPECT_THAT(Refusal(Event("DTSTART;VALUE=DATE:20270105\r\nRECURRENCE-ID;VALUE=DATE:20270105")),
              HasSubstr("RECURRENCE-ID"));
  EXPECT_EQ(RefusalOf([] { return ReadICalendarList("Once upon a time\r\n", std::nullopt); }),
            "line 1: this is no iCalendar, which begins with BEGIN:VCALENDAR");
}

TEST(ICalendarList, MustNotBreakOff) {
  const std::string whole =
      Calendar(Event("DTSTART;VALUE=DATE:20270101") + Event("DTSTART;VALUE=DATE:20270102"));
  EXPECT_THAT(ReadICalendarList(whole, std::nullopt).days, SizeIs(2));
  for (std::size_t length = whole.find("END:VCALENDAR"); length > 20; length -= 7) {
    EXPECT_THAT(RefusalOf([&] { return ReadICalendarList(whole.substr(0, length), std::nullopt); }),
                StartsWith("line "))
        << length;
  }
}

DayList SmallList() {
  return {{{{2027, 1, 1}, "New Year's Day; J\xC3\xBCl, \"first\" \\ day", ListedKind::kHoliday, "EUR", 0},
           {{2027, 1, 2}, "Saturday", ListedKind::kWeekend, "EUR", 0},
           {{2027, 2, 6}, std::string(150, 'x') + "\xE2\x82\xAC", ListedKind::kWorkingDay, "CNY", 0}}};
}

TEST(ICalendarList, IsReadAsItWasWritten) {
  const DayList list = SmallList();
  DayList again = ReadICalendarList(WriteICalendarList(list, {7, "20261122T201530Z"}), std::nullopt);
  for (exchange::ListedDay& day : again.days) {
    EXPECT_NE(day.line, 0U);
    day.line = 0;
  }
  EXPECT_EQ(again.days, list.days);
}

TEST(ICalendarList, IsWrittenInFoldedLinesThatDependOnItsContentAlone) {
  const std::string text = WriteICalendarList(SmallList(), {7, "20261122T201530Z"});
  EXPECT_EQ(WriteICalendarList(SmallList(), {7, "20261122T201530Z"}), text);
  EXPECT_THAT(text,
              StartsWith("BEGIN:VCALENDAR\r\nPRODID:-//Ferrowind//ferrowindctl//EN\r\nVERSION:2.0\r\n"));
  EXPECT_THAT(text,
              HasSubstr("BEGIN:VEVENT\r\nUID:2027-01-01-EUR@ferrowind\r\nDTSTAMP:20261122T201530Z\r\n"
                        "LAST-MODIFIED:20261122T201530Z\r\nSEQUENCE:7\r\nDTSTART;VALUE=DATE:20270101\r\n"
                        "DTEND;VALUE=DATE:20270102\r\n"));
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    EXPECT_TRUE(line.ends_with('\r')) << line;
    EXPECT_LE(line.size(), 76U) << line;
  }
  EXPECT_THAT(ReadICalendarList(WriteICalendarList({}, {}), std::nullopt).days, IsEmpty());
}

}  // namespace
}  // namespace ferrowind::icalendar
