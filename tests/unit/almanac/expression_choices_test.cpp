#include "ferrowind/almanac/expression_choices.h"

#include <string>

#include <gtest/gtest.h>

#include "ferrowind/almanac/expression_error.h"

namespace ferrowind::almanac {
namespace {

std::string TextOf(const ExpressionChoices& choices) {
  EXPECT_EQ(choices.ToText(), choices.ToExpression().ToText()) << "it is no normal form";
  return choices.ToText();
}

ExpressionChoices Form(DateForm form) {
  ExpressionChoices choices;
  choices.form = form;
  return choices;
}

TEST(ExpressionChoices, SayTheSameDateOfEachYear) {
  ExpressionChoices choices;
  choices.month = 12;
  choices.day = 25;
  EXPECT_EQ(TextOf(choices), "12-25");
}

TEST(ExpressionChoices, SayOneDayOnce) {
  ExpressionChoices choices = Form(DateForm::kOnce);
  choices.year = 2022;
  choices.month = 9;
  choices.day = 19;
  EXPECT_EQ(TextOf(choices), "2022-09-19");
}

TEST(ExpressionChoices, SayDaysBeforeAndAfterTheEasters) {
  ExpressionChoices choices = Form(DateForm::kEaster);
  choices.offset = -2;
  EXPECT_EQ(TextOf(choices), "easter-2");
  choices.form = DateForm::kOrthodoxEaster;
  choices.offset = 1;
  EXPECT_EQ(TextOf(choices), "orthodox+1");
  choices.offset = 0;
  EXPECT_EQ(TextOf(choices), "orthodox");
}

TEST(ExpressionChoices, SayTheNthAndTheLastWeekdayOfAMonth) {
  ExpressionChoices choices = Form(DateForm::kNthWeekday);
  choices.ordinal = 4;
  choices.weekday = 5;
  choices.month = 11;
  EXPECT_EQ(TextOf(choices), "4th Thursday of 11");
  choices.ordinal = NthWeekday::kLast;
  EXPECT_EQ(TextOf(choices), "last Thursday of 11");
}

TEST(ExpressionChoices, SayAWeekdayByADate) {
  ExpressionChoices choices = Form(DateForm::kWeekdayByDate);
  choices.weekday = 2;
  choices.relation = Relation::kBefore;
  choices.month = 5;
  choices.day = 25;
  EXPECT_EQ(TextOf(choices), "Monday before 05-25");
}

TEST(ExpressionChoices, SayTheDatesOfATable) {
  ExpressionChoices choices = Form(DateForm::kTable);
  choices.table = "chinese-new-year";
  choices.offset = 1;
  EXPECT_EQ(TextOf(choices), "table chinese-new-year+1");
}

TEST(ExpressionChoices, SayAWeekdayOfEveryWeekThatNeverMoves) {
  ExpressionChoices choices = Form(DateForm::kEveryWeekday);
  choices.weekday = 7;
  choices.on_closed_day = ClosedDayChoice::kNextFreeDay;
  EXPECT_EQ(TextOf(choices), "weekday Saturday");
}

TEST(ExpressionChoices, SayWhatBecomesOfAHolidayOnAClosedDay) {
  ExpressionChoices choices;
  const auto text_with = [&](ClosedDayChoice choice) {
    choices.on_closed_day = choice;
    return TextOf(choices);
  };
  EXPECT_EQ(text_with(ClosedDayChoice::kStays), "01-01");
  EXPECT_EQ(text_with(ClosedDayChoice::kNextFreeDay), "01-01 to next free day");
  EXPECT_EQ(text_with(ClosedDayChoice::kNextMonday), "01-01 Saturday, Sunday to next Monday");
  EXPECT_EQ(text_with(ClosedDayChoice::kFridayOrMonday), "01-01 Saturday to Friday Sunday to Monday");
  EXPECT_EQ(text_with(ClosedDayChoice::kMondayAfterSunday), "01-01 Sunday to Monday");
  EXPECT_EQ(text_with(ClosedDayChoice::kNotObserved), "01-01 else not observed");
}

TEST(ExpressionChoices, SayTheYearsOfTheRule) {
  ExpressionChoices choices;
  choices.from = 2020;
  EXPECT_EQ(TextOf(choices), "01-01 from 2020");
  choices.to = 2024;
  EXPECT_EQ(TextOf(choices), "01-01 from 2020 to 2024");
}

TEST(ExpressionChoices, ThatAreNoDateFail) {
  ExpressionChoices choices;
  choices.month = 2;
  choices.day = 30;
  EXPECT_EQ(choices.ToText(), "02-30");
  EXPECT_THROW((void)choices.ToExpression(), ExpressionError);
  choices = Form(DateForm::kTable);
  EXPECT_THROW((void)choices.ToExpression(), ExpressionError);
  choices = Form(DateForm::kNthWeekday);
  choices.ordinal = 6;
  EXPECT_THROW((void)choices.ToExpression(), ExpressionError);
  choices = Form(DateForm::kEveryWeekday);
  choices.weekday = 8;
  EXPECT_THROW((void)choices.ToExpression(), ExpressionError);
}

TEST(ExpressionChoices, AreFoundAgainInWhatTheySay) {
  for (const char* text :
       {"12-25", "02-29 to next free day", "2022-09-19", "easter-2", "orthodox+1 else not observed",
        "3rd Monday of 01", "last Monday of 05 from 2000", "Monday on or before 05-24 to 2030",
        "table chinese-new-year+1 to next free day", "weekday Saturday", "weekday Friday to 2021",
        "11-11 Saturday to Friday Sunday to Monday", "07-04 Sunday to Monday from 1900 to 2199",
        "01-26 Saturday, Sunday to next Monday"}) {
    const DateExpression expression = DateExpression::Parse(text);
    const auto choices = ExpressionChoices::Of(expression);
    ASSERT_TRUE(choices) << text;
    EXPECT_EQ(choices->ToExpression(), expression) << text;
  }
}

TEST(ExpressionChoices, AreNotFoundInWhatSaysMore) {
  for (const char* text :
       {"between", "unknown", "vernal equinox +09:00", "12-25 if Monday", "12-25 only 2020,2024",
        "12-25 not 2021", "Friday after 4th Thursday of 11", "Monday after Tuesday on or after 05-18",
        "12-25 taken to next free day", "12-25 to next Tuesday", "12-25 Saturday to Friday",
        "12-25 to next free day else not observed"}) {
    EXPECT_FALSE(ExpressionChoices::Of(DateExpression::Parse(text))) << text;
  }
}

}  // namespace
}  // namespace ferrowind::almanac
