#include "ferrowind/adapters/win32/services/win32_locale.h"

#include <string>

#include <gtest/gtest.h>

namespace ferrowind::win32 {
namespace {

using platform::Date;

const Date kFriday(2028, 4, 14);

TEST(Win32Locale, NamesInItsLanguage) {
  const Win32Locale german(L"de-DE");
  EXPECT_EQ(german.MonthName(3), "M\u00E4rz");
  EXPECT_EQ(german.WeekdayName(1), "Sonntag");
  EXPECT_EQ(german.WeekdayName(7), "Samstag");
}

TEST(Win32Locale, WritesDatesAsItsPeopleDo) {
  const Win32Locale german(L"de-DE");
  EXPECT_EQ(german.LongDateText(kFriday), "14. April 2028");
  EXPECT_EQ(german.LongDayText(kFriday), "Freitag 14. April 2028");
  const Win32Locale american(L"en-US");
  EXPECT_EQ(american.DateText(kFriday), "4/14/2028 Fri");
  EXPECT_EQ(american.LongDayText(kFriday), "Friday April 14 2028");
}

TEST(Win32Locale, WritesDatesThatThePlatformDoesNotKnowAsIsoDoes) {
  EXPECT_EQ(Win32Locale(L"de-DE").LongDateText(Date(1500, 1, 2)), "1500-01-02");
}

TEST(Win32Locale, ReadsWhatItWritesInManyLanguages) {
  for (const wchar_t* name :
       {L"de-DE", L"en-US", L"en-GB", L"fr-FR", L"es-ES", L"ja-JP", L"nl-NL", L"pt-BR"}) {
    const Win32Locale locale(name);
    for (const Date& date : {kFriday, Date(2026, 12, 31), Date(2024, 2, 29)}) {
      for (const std::string& text :
           {locale.DateText(date), locale.LongDateText(date), locale.LongDayText(date), date.ToIso()}) {
        EXPECT_EQ(locale.ReadDate(text, 1999).date, date) << text << locale.ReadDate(text, 1999).refusal;
      }
    }
  }
}

TEST(Win32Locale, ReadsDatesInShortForms) {
  const Win32Locale english(L"en-GB");
  for (const char* text : {"14 April", "april 14", "14th Apr", "14/4", "14.4.", "4.14", "14/4/28",
                           "14 apr 2028", "2028/4/14", "Friday, 14 April", " 14  April 2028 Fri "}) {
    EXPECT_EQ(english.ReadDate(text, 2028).date, kFriday) << text << english.ReadDate(text, 2028).refusal;
  }
}

TEST(Win32Locale, ReadsNumbersInTheOrderOfItsPeople) {
  EXPECT_EQ(Win32Locale(L"en-GB").ReadDate("4/5", 2028).date, Date(2028, 5, 4));
  EXPECT_EQ(Win32Locale(L"en-US").ReadDate("4/5", 2028).date, Date(2028, 4, 5));
  EXPECT_EQ(Win32Locale(L"en-US").ReadDate("4-5", 2028).date, Date(2028, 4, 5));
}

TEST(Win32Locale, SaysWhyATextIsNoDate) {
  const Win32Locale english(L"en-GB");
  const auto refusal = [&english](const char* text) { return english.ReadDate(text, 2027).refusal; };
  EXPECT_EQ(refusal("29 February"), "There is no 29 February in 2027.");
  EXPECT_EQ(refusal("4-5"), "This can be 4 May or 5 April. Write the name of the month.");
  EXPECT_EQ(refusal("Friday 14 April 2027"), "14 April 2027 is a Wednesday.");
  for (const char* text : {"", "14", "April", "Ju 3", "14 April May", "1 2 3 4", "14+4", "99999 April",
                           "14 April 285", "0/0", "13/13", "friday friday 14 april"}) {
    EXPECT_FALSE(english.ReadDate(text, 2027).date.has_value()) << text;
    EXPECT_NE(refusal(text), "") << text;
  }
}

}  // namespace
}  // namespace ferrowind::win32
