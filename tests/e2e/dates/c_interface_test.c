/* The C interface by itself: handles, messages and what it refuses. */

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "ferrowind_business_days.h"

static void expect(int holds, const char* condition, int line) {
  if (holds) return;
  fprintf(stderr, "line %d: %s (%s)\n", line, condition, ferrowind_bd_message());
  exit(1);
}
#define EXPECT(condition) expect((condition), #condition, __LINE__)

/* 2027, with closed weekends. It begins on a Friday. */
static void fill_2027(char* days) {
  for (int i = 0; i < 365; ++i) days[i] = i % 7 == 1 || i % 7 == 2 ? '1' : '0';
  days[365] = '\0';
}

static ferrowind_bd_day day_of_2027(int month, int day) {
  ferrowind_bd_day answer = 0;
  EXPECT(ferrowind_bd_day_of(2027, month, day, &answer) == FERROWIND_BD_OK);
  return answer;
}

static ferrowind_bd_set* make_set(void) {
  char days[366];
  ferrowind_bd_year years[2] = {{"EUR", days, 2027}, {"USD", days, 2027}};
  ferrowind_bd_set* set = NULL;
  fill_2027(days);
  EXPECT(ferrowind_bd_make(years, 2, sizeof years[0], NULL, &set) == FERROWIND_BD_OK);
  return set;
}

static void days_are_counted_from_1970(void) {
  ferrowind_bd_day day = 7;
  int32_t year = 0, month = 0, day_of_month = 0;
  EXPECT(ferrowind_bd_day_of(1970, 1, 1, &day) == FERROWIND_BD_OK && day == 0);
  EXPECT(ferrowind_bd_day_of(2000, 2, 29, &day) == FERROWIND_BD_OK && day == 11016);
  EXPECT(ferrowind_bd_date_of(11016, &year, &month, &day_of_month) == FERROWIND_BD_OK);
  EXPECT(year == 2000 && month == 2 && day_of_month == 29);
}

static void days_that_are_none_are_refused(void) {
  ferrowind_bd_day day = 7;
  int32_t year = 0;
  EXPECT(ferrowind_bd_day_of(2027, 2, 29, &day) == FERROWIND_BD_INVALID_ARGUMENT);
  EXPECT(strcmp(ferrowind_bd_message(), "there is no day 2027-2-29") == 0);
  EXPECT(ferrowind_bd_day_of(INT32_MAX, INT32_MIN, 1, &day) == FERROWIND_BD_INVALID_ARGUMENT);
  EXPECT(ferrowind_bd_date_of(INT32_MAX, &year, &year, &year) == FERROWIND_BD_INVALID_ARGUMENT);
  EXPECT(day == 7);
}

static void calendars_outlive_their_set(void) {
  ferrowind_bd_set* set = make_set();
  ferrowind_bd_calendar* calendar = NULL;
  ferrowind_bd_day next = 0;
  EXPECT(ferrowind_bd_calendar_of(set, "EUR,usd", &calendar) == FERROWIND_BD_OK);
  ferrowind_bd_release_set(set);
  EXPECT(ferrowind_bd_next(calendar, day_of_2027(1, 1), &next) == FERROWIND_BD_OK);
  EXPECT(next == day_of_2027(1, 4));
  ferrowind_bd_release_calendar(calendar);
}

static void failures_leave_answers_as_they_are(void) {
  ferrowind_bd_set* set = make_set();
  ferrowind_bd_calendar* calendar = NULL;
  ferrowind_bd_calendar* none = NULL;
  ferrowind_bd_pair* pair = NULL;
  ferrowind_bd_day answer = 7;
  EXPECT(ferrowind_bd_calendar_of(set, "QQQ", &none) == FERROWIND_BD_UNKNOWN_CURRENCY && none == NULL);
  EXPECT(ferrowind_bd_pair_of(set, "EUREUR", &pair) == FERROWIND_BD_INVALID_ARGUMENT && pair == NULL);
  EXPECT(ferrowind_bd_calendar_of(set, "EUR", &calendar) == FERROWIND_BD_OK);
  EXPECT(ferrowind_bd_next(calendar, day_of_2027(12, 31), &answer) == FERROWIND_BD_NOT_PREPARED);
  EXPECT(strcmp(ferrowind_bd_message(), "EUR 2028 is not prepared") == 0);
  EXPECT(ferrowind_bd_adjust(calendar, 20000, 99, &answer) == FERROWIND_BD_INVALID_ARGUMENT);
  EXPECT(ferrowind_bd_adjust(calendar, 20000, -1, &answer) == FERROWIND_BD_INVALID_ARGUMENT);
  EXPECT(ferrowind_bd_add(calendar, INT32_MIN, INT32_MIN, &answer) == FERROWIND_BD_INVALID_ARGUMENT);
  EXPECT(ferrowind_bd_add(calendar, day_of_2027(5, 3), INT32_MIN, &answer) == FERROWIND_BD_NOT_PREPARED);
  EXPECT(ferrowind_bd_add(calendar, day_of_2027(5, 3), INT32_MAX, &answer) == FERROWIND_BD_NOT_PREPARED);
  EXPECT(ferrowind_bd_is_prepared(calendar, INT32_MAX, &answer) == FERROWIND_BD_INVALID_ARGUMENT);
  EXPECT(ferrowind_bd_pair_of(set, "EURUSD", &pair) == FERROWIND_BD_OK);
  EXPECT(ferrowind_bd_spot_date(pair, day_of_2027(5, 3), 2, &answer) == FERROWIND_BD_INVALID_ARGUMENT);
  EXPECT(answer == 7);
  ferrowind_bd_release_pair(pair);
  ferrowind_bd_release_calendar(calendar);
  ferrowind_bd_release_set(set);
}

static void closed_days_are_written_as_far_as_there_is_room(void) {
  ferrowind_bd_set* set = make_set();
  ferrowind_bd_calendar* calendar = NULL;
  ferrowind_bd_day days[2] = {0, 7};
  size_t count = 0;
  EXPECT(ferrowind_bd_calendar_of(set, "EUR", &calendar) == FERROWIND_BD_OK);
  EXPECT(ferrowind_bd_closed_days(calendar, day_of_2027(1, 1), day_of_2027(1, 31), days, 1, &count) ==
         FERROWIND_BD_OK);
  EXPECT(count == 10 && days[0] == day_of_2027(1, 2) && days[1] == 7);
  EXPECT(ferrowind_bd_closed_days(calendar, day_of_2027(1, 1), day_of_2027(1, 31), NULL, 0, &count) ==
         FERROWIND_BD_OK);
  EXPECT(ferrowind_bd_closed_days(calendar, 0, 1, NULL, 1, &count) == FERROWIND_BD_INVALID_ARGUMENT);
  ferrowind_bd_release_calendar(calendar);
  ferrowind_bd_release_set(set);
}

static void what_is_missing_is_named(void) {
  ferrowind_bd_set* set = NULL;
  int32_t answer = 0;
  EXPECT(ferrowind_bd_state(NULL, 0, &answer) == FERROWIND_BD_INVALID_ARGUMENT);
  EXPECT(strcmp(ferrowind_bd_message(), "calendar is NULL") == 0);
  EXPECT(ferrowind_bd_open(NULL, &set) == FERROWIND_BD_INVALID_ARGUMENT && set == NULL);
  EXPECT(strcmp(ferrowind_bd_message(), "url is NULL") == 0);
  EXPECT(ferrowind_bd_open("sqlite:none.db", NULL) == FERROWIND_BD_INVALID_ARGUMENT);
  EXPECT(ferrowind_bd_open("nonsense", &set) != FERROWIND_BD_OK && set == NULL);
  EXPECT(ferrowind_bd_open("sqlite:/nowhere/none.db", &set) == FERROWIND_BD_DATABASE && set == NULL);
  EXPECT(ferrowind_bd_make(NULL, 1, sizeof(ferrowind_bd_year), NULL, &set) == FERROWIND_BD_INVALID_ARGUMENT);
  EXPECT(ferrowind_bd_make(NULL, 0, sizeof(ferrowind_bd_year), "spot", &set) ==
         FERROWIND_BD_INVALID_ARGUMENT);
  ferrowind_bd_release_set(NULL);
  ferrowind_bd_release_calendar(NULL);
  ferrowind_bd_release_pair(NULL);
}

/* A program that was compiled with a later header, whose structures have more at their ends. */
static void larger_structures_are_understood(void) {
  struct {
    ferrowind_bd_year year;
    double later;
  } years[2];
  struct {
    ferrowind_bd_changes changes;
    double later;
  } larger;
  char days[366];
  ferrowind_bd_set* set = NULL;
  const char* codes = NULL;
  fill_2027(days);
  for (int i = 0; i < 2; ++i) {
    years[i].year.currency = i == 0 ? "EUR" : "USD";
    years[i].year.days = days;
    years[i].year.year = 2027;
  }
  EXPECT(ferrowind_bd_make(&years[0].year, 2, sizeof years[0], NULL, &set) == FERROWIND_BD_OK);
  EXPECT(ferrowind_bd_currencies(set, &codes) == FERROWIND_BD_OK && strcmp(codes, "EUR,USD") == 0);
  larger.changes.size = sizeof larger;
  larger.later = 7;
  EXPECT(ferrowind_bd_reload(set, &larger.changes) == FERROWIND_BD_OK);
  EXPECT(strcmp(larger.changes.changed, "") == 0 && larger.changes.has_other_conventions == 0);
  EXPECT(larger.changes.size == sizeof larger && larger.later == 7);
  larger.changes.size = 1;
  EXPECT(ferrowind_bd_reload(set, &larger.changes) == FERROWIND_BD_INVALID_ARGUMENT);
  ferrowind_bd_release_set(set);
}

/* Makes a set of two years, and gives back what came of it. */
static ferrowind_bd_status made_of(ferrowind_bd_year first, ferrowind_bd_year second,
                                   ferrowind_bd_set** set) {
  ferrowind_bd_year years[2] = {first, second};
  return ferrowind_bd_make(years, 2, sizeof years[0], NULL, set);
}

static void given_years_are_of_currencies_and_of_years_that_there_are(void) {
  char days[366];
  ferrowind_bd_set* set = NULL;
  ferrowind_bd_calendar* calendar = NULL;
  const char* codes = NULL;
  fill_2027(days);
  ferrowind_bd_year dollar = {"USD", days, 2027}, euro = {"eur", days, 2027};
  const char* const no_codes[] = {"", "EU", "EURO", "E,R"};
  for (int i = 0; i < 4; ++i) {
    const ferrowind_bd_year other = {no_codes[i], days, 2027};
    EXPECT(made_of(dollar, other, &set) == FERROWIND_BD_INVALID_ARGUMENT && set == NULL);
    EXPECT(strstr(ferrowind_bd_message(), "is no code of a currency") != NULL);
  }
  const ferrowind_bd_year capital = {"EUR", days, 2026};
  EXPECT(made_of(euro, capital, &set) == FERROWIND_BD_INVALID_ARGUMENT && set == NULL);
  EXPECT(strcmp(ferrowind_bd_message(), "there are two calendars of EUR") == 0);
  /* A year of C++ has 16 bits. */
  const ferrowind_bd_year cut = {"EUR", days, 65536 + 2027};
  EXPECT(made_of(dollar, cut, &set) == FERROWIND_BD_INVALID_ARGUMENT && set == NULL);
  EXPECT(strcmp(ferrowind_bd_message(), "The year 67563 is outside 1900 to 3000") == 0);

  EXPECT(made_of(dollar, euro, &set) == FERROWIND_BD_OK);
  EXPECT(ferrowind_bd_currencies(set, &codes) == FERROWIND_BD_OK && strcmp(codes, "EUR,USD") == 0);
  EXPECT(ferrowind_bd_calendar_of(set, "", &calendar) == FERROWIND_BD_INVALID_ARGUMENT && calendar == NULL);
  EXPECT(strcmp(ferrowind_bd_message(), "A joint calendar needs at least one currency") == 0);
  EXPECT(ferrowind_bd_calendar_of(set, "EUR,", &calendar) == FERROWIND_BD_INVALID_ARGUMENT &&
         calendar == NULL);
  EXPECT(ferrowind_bd_calendar_of(set, "eur", &calendar) == FERROWIND_BD_OK);
  ferrowind_bd_release_calendar(calendar);
  ferrowind_bd_release_set(set);
}

int main(void) {
  EXPECT(strlen(ferrowind_bd_version()) > 0);
  days_are_counted_from_1970();
  days_that_are_none_are_refused();
  calendars_outlive_their_set();
  failures_leave_answers_as_they_are();
  closed_days_are_written_as_far_as_there_is_room();
  what_is_missing_is_named();
  larger_structures_are_understood();
  given_years_are_of_currencies_and_of_years_that_there_are();
  return 0;
}
