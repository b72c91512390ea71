#include <chrono>
#include <set>

#include "tests/contract/services/services_contract.h"

namespace ferrowind::contract {
namespace {

using platform::Date;
using platform::Dictionary;
using platform::RecordSet;
using platform::SharedServices;
using platform::Value;
using testing::Contains;
using testing::Not;
namespace failure_number = platform::failure_number;

class ObjectFactoryContract : public ServicesContract {};

TEST_F(ObjectFactoryContract, MakesTheDictionaryAndTheSharedServices) {
  EXPECT_NE(Create<Dictionary>(platform::kDictionaryIdentifier), nullptr);
  EXPECT_NE(Create<SharedServices>(platform::kSharedServicesIdentifier), nullptr);
}

TEST_F(ObjectFactoryContract, MakesANewObjectEachTime) {
  EXPECT_NE(Create<Dictionary>(platform::kDictionaryIdentifier),
            Create<Dictionary>(platform::kDictionaryIdentifier));
}

TEST_F(ObjectFactoryContract, NamesAnIdentifierThatNothingIsRegisteredUnder) {
  ExpectFailure(failure_number::kCannotCreateObject, "Nowhere.NoSuchClass",
                [&] { static_cast<void>(under_test->Objects().CreateObject("Nowhere.NoSuchClass")); });
}

class DictionaryContract : public ServicesContract {
 protected:
  [[nodiscard]] std::vector<std::string> Codes(const std::string& filter) {
    std::vector<std::string> codes;
    for (const auto rows = dictionary->dic_GetDicRecByFilter("Ccy", filter); !rows->Eof(); rows->MoveNext()) {
      codes.push_back(*(*rows)["Ccy"].If<std::string>());
    }
    return codes;
  }
  std::shared_ptr<Dictionary> dictionary = Create<Dictionary>(platform::kDictionaryIdentifier);
};

TEST_F(DictionaryContract, GivesTheConnectionString) {
  EXPECT_EQ(dictionary->dic_ConnectionString(), under_test->ConnectionString());
}

TEST_F(DictionaryContract, GivesTheRowsThatPassTheFilter) {
  EXPECT_THAT(Codes("CcyType = 0"), Contains("EUR"));
  EXPECT_THAT(Codes("CcyType = 0"), Contains("USD"));
  EXPECT_THAT(Codes("CcyType = 0"), Not(Contains("XAU")));
  EXPECT_THAT(Codes("CcyType = 1"), Contains("XAU"));
  EXPECT_THAT(Codes("CcyID = 978"), testing::ElementsAre("EUR"));
}

TEST_F(DictionaryContract, GivesAllRowsWithoutAFilterInOneOrder) {
  const auto codes = Codes("");
  EXPECT_THAT(codes, testing::IsSupersetOf({"EUR", "USD", "XAU"}));
  EXPECT_EQ(codes, Codes(""));
}

TEST_F(DictionaryContract, GivesARecordSetWithoutRowsWhenNonePasses) {
  const auto rows = dictionary->dic_GetDicRecByFilter("Ccy", "CcyID = -1");
  ASSERT_NE(rows, nullptr);
  EXPECT_TRUE(rows->Bof());
  EXPECT_TRUE(rows->Eof());
}

TEST_F(DictionaryContract, GivesTheFieldsInTheirTypes) {
  const auto rows = dictionary->dic_GetDicRecByFilter("Ccy", "Ccy = 'XAU'");
  EXPECT_EQ((*rows)["CcyID"], Value(959));
  EXPECT_EQ((*rows)["CcyType"], Value(std::int16_t{1}));
  EXPECT_TRUE((*rows)["Name"].Is<std::string>());
}

TEST_F(DictionaryContract, GivesEachCallerACursorOfItsOwn) {
  const auto first = dictionary->dic_GetDicRecByFilter("Ccy", "");
  const auto second = dictionary->dic_GetDicRecByFilter("Ccy", "");
  first->MoveNext();
  EXPECT_EQ(second->CurrentBookmark(), second->BookmarkAt(0));
}

TEST_F(DictionaryContract, NamesAnUnknownDictionary) {
  try {
    static_cast<void>(dictionary->dic_GetDicRecByFilter("Planets", ""));
    ADD_FAILURE() << "An unknown dictionary was read";
  } catch (const platform::Failure& failure) {
    EXPECT_NE(failure.Description().find("Planets"), std::string::npos) << failure.Description();
  }
}

TEST_F(DictionaryContract, RefusesAFilterThatDoesNotParse) {
  ExpectFailure(failure_number::kFilterNotUnderstood, "CcyType =", [&] {
    static_cast<void>(dictionary->dic_GetDicRecByFilter("Ccy", "CcyType ="));
  });
}

TEST_F(DictionaryContract, TakesAFilterForNothingButAFilter) {
  EXPECT_THROW(static_cast<void>(dictionary->dic_GetDicRecByFilter("Ccy", "1=1; DROP TABLE DicCcy")),
               platform::Failure);
  EXPECT_THAT(Codes("Ccy = 'EUR'' OR ''1'' = ''1'"), testing::IsEmpty());
  EXPECT_THAT(Codes(""), Contains("EUR"));
}

class LocaleContract : public ServicesContract {};

TEST_F(LocaleContract, NamesEveryMonthAndWeekdayDifferently) {
  std::set<std::string> months;
  for (int month = 1; month <= 12; ++month) months.insert(under_test->Locale().MonthName(month));
  EXPECT_EQ(months.size(), 12U);
  EXPECT_FALSE(months.contains(""));
  std::set<std::string> weekdays;
  for (int weekday = 1; weekday <= 7; ++weekday) weekdays.insert(under_test->Locale().WeekdayName(weekday));
  EXPECT_EQ(weekdays.size(), 7U);
  EXPECT_FALSE(weekdays.contains(""));
}

TEST_F(LocaleContract, WritesADateWithItsWeekdayAndAllOfItsYear) {
  const std::string friday = under_test->Locale().DateText(Date(2028, 4, 14));
  EXPECT_THAT(friday, testing::AllOf(testing::HasSubstr("2028"), testing::HasSubstr("14")));
  const std::string saturday = under_test->Locale().DateText(Date(2028, 4, 15));
  EXPECT_NE(friday.substr(friday.size() - 3), saturday.substr(saturday.size() - 3)) << "the weekday";
}

TEST_F(LocaleContract, WritesADateInWordsWithAndWithoutItsWeekday) {
  const Date day(2028, 4, 14);
  const auto& locale = under_test->Locale();
  const std::string date = locale.LongDateText(day);
  EXPECT_THAT(date, testing::AllOf(testing::HasSubstr("14"), testing::HasSubstr(locale.MonthName(4)),
                                   testing::HasSubstr("2028")));
  EXPECT_THAT(date, testing::Not(testing::HasSubstr(locale.WeekdayName(6))));
  EXPECT_EQ(locale.LongDayText(day), locale.WeekdayName(6) + " " + date);
}

TEST_F(LocaleContract, ReadsTheDatesThatItWritesAndThoseOfIso8601) {
  for (const Date date : {Date(2028, 4, 14), Date(2028, 2, 29), Date(1999, 12, 31)}) {
    EXPECT_EQ(under_test->Locale().ReadDate(under_test->Locale().DateText(date), 2026).date, date);
    EXPECT_EQ(under_test->Locale().ReadDate(date.ToIso(), 2026).date, date);
  }
  EXPECT_EQ(under_test->Locale().ReadDate("04-14", 2028).date, Date(2028, 4, 14));
}

TEST_F(LocaleContract, SaysWhyATextIsNoDate) {
  for (const std::string text : {"", "Easter", "2028-02-30", "2028-13-01", "14"}) {
    const auto reading = under_test->Locale().ReadDate(text, 2028);
    EXPECT_FALSE(reading.date.has_value()) << text;
    EXPECT_NE(reading.refusal, "") << text;
  }
}

TEST_F(LocaleContract, RefusesANumberOfNoMonthOrWeekday) {
  for (const int number : {0, -1, 13}) {
    ExpectFailure(failure_number::kInvalidArgument, "",
                  [&] { static_cast<void>(under_test->Locale().MonthName(number)); });
  }
  for (const int number : {0, -1, 8}) {
    ExpectFailure(failure_number::kInvalidArgument, "",
                  [&] { static_cast<void>(under_test->Locale().WeekdayName(number)); });
  }
}

class ClockContract : public ServicesContract {};

TEST_F(ClockContract, TellsADayThatIsTodayInSomeTimeZone) {
  const auto today_in_utc = std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
  const std::chrono::year_month_day ymd(today_in_utc);
  const Date utc(static_cast<int>(ymd.year()), static_cast<int>(static_cast<unsigned>(ymd.month())),
                 static_cast<int>(static_cast<unsigned>(ymd.day())));
  EXPECT_LE(std::abs(under_test->Clock().Today().Serial() - utc.Serial()), 1);
}

}  // namespace
}  // namespace ferrowind::contract
