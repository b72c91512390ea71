/* Answers questions about business days, a line each, as `ferrowindctl date serve` does: by the C interface.

   usage: answer_questions URL */

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "ferrowind_business_days.h"

typedef ferrowind_bd_status (*date_question)(const ferrowind_bd_calendar*, ferrowind_bd_day,
                                             ferrowind_bd_day*);

static void print_failure(void) { printf("error: %s\n", ferrowind_bd_message()); }

static void print_date(ferrowind_bd_status status, ferrowind_bd_day day) {
  int32_t year = 0, month = 0, day_of_month = 0;
  if (status == FERROWIND_BD_OK) status = ferrowind_bd_date_of(day, &year, &month, &day_of_month);
  if (status != FERROWIND_BD_OK) {
    print_failure();
  } else {
    printf("%04d-%02d-%02d\n", (int)year, (int)month, (int)day_of_month);
  }
}

static void print_number(ferrowind_bd_status status, int32_t number) {
  if (status != FERROWIND_BD_OK) {
    print_failure();
  } else {
    printf("%d\n", (int)number);
  }
}

static ferrowind_bd_status read_day(const char* text, ferrowind_bd_day* day) {
  int year = 0, month = 0, day_of_month = 0;
  if (text == NULL || sscanf(text, "%d-%d-%d", &year, &month, &day_of_month) != 3) year = 0;
  return ferrowind_bd_day_of(year, month, day_of_month, day);
}

static void answer_state(const ferrowind_bd_calendar* calendar, ferrowind_bd_day day) {
  static const char* const names[] = {"open", "closed", "not prepared"};
  int32_t state = 0;
  if (ferrowind_bd_state(calendar, day, &state) != FERROWIND_BD_OK) {
    print_failure();
  } else {
    puts(names[state]);
  }
}

static void answer_of_calendar(const ferrowind_bd_calendar* calendar, const char* question, const char* date,
                               const char* last) {
  static const struct {
    const char* name;
    date_question ask;
  } date_questions[] = {{"next", ferrowind_bd_next},
                        {"previous", ferrowind_bd_previous},
                        {"month-end", ferrowind_bd_month_end}};
  ferrowind_bd_day day = 0, other = 0;
  int32_t number = 0;
  ferrowind_bd_status status = read_day(date, &day);
  if (status != FERROWIND_BD_OK) {
    print_failure();
    return;
  }
  for (size_t i = 0; i < sizeof date_questions / sizeof date_questions[0]; ++i) {
    if (strcmp(question, date_questions[i].name) == 0) {
      status = date_questions[i].ask(calendar, day, &other);
      print_date(status, other);
      return;
    }
  }
  if (strcmp(question, "is") == 0) {
    answer_state(calendar, day);
  } else if (strcmp(question, "adjust") == 0) {
    status = ferrowind_bd_convention_named(last, &number);
    if (status == FERROWIND_BD_OK) status = ferrowind_bd_adjust(calendar, day, number, &other);
    print_date(status, other);
  } else if (strcmp(question, "add") == 0) {
    status = ferrowind_bd_add(calendar, day, last != NULL ? (int32_t)atol(last) : 0, &other);
    print_date(status, other);
  } else if (strcmp(question, "between") == 0) {
    status = read_day(last, &other);
    if (status == FERROWIND_BD_OK) status = ferrowind_bd_between(calendar, day, other, &number);
    print_number(status, number);
  } else {
    puts("error: no question");
  }
}

static void answer_of_pair(const ferrowind_bd_pair* pair, const char* date, const char* tenor) {
  const int32_t rule = FERROWIND_BD_TRADE_DATE_COUNTS_AS_NEXT;
  ferrowind_bd_day day = 0, value = 0;
  ferrowind_bd_status status = read_day(date, &day);
  if (status == FERROWIND_BD_OK) {
    status = tenor != NULL ? ferrowind_bd_value_date(pair, day, tenor, rule, &value)
                           : ferrowind_bd_spot_date(pair, day, rule, &value);
  }
  print_date(status, value);
}

static void answer(const ferrowind_bd_set* set, char* line) {
  const char* question = strtok(line, " \n");
  const char* subject = strtok(NULL, " \n");
  const char* date = strtok(NULL, " \n");
  const char* last = strtok(NULL, " \n");
  if (question != NULL && (strcmp(question, "spot") == 0 || strcmp(question, "value") == 0)) {
    ferrowind_bd_pair* pair = NULL;
    if (ferrowind_bd_pair_of(set, subject, &pair) != FERROWIND_BD_OK) {
      print_failure();
    } else {
      answer_of_pair(pair, date, last);
    }
    ferrowind_bd_release_pair(pair);
  } else {
    ferrowind_bd_calendar* calendar = NULL;
    if (question == NULL || ferrowind_bd_calendar_of(set, subject, &calendar) != FERROWIND_BD_OK) {
      print_failure();
    } else {
      answer_of_calendar(calendar, question, date, last);
    }
    ferrowind_bd_release_calendar(calendar);
  }
}

int main(int argc, char** argv) {
  char line[1000];
  ferrowind_bd_set* set = NULL;
  if (argc != 2 || ferrowind_bd_open(argv[1], &set) != FERROWIND_BD_OK) {
    fprintf(stderr, "%s\n", ferrowind_bd_message());
    return 2;
  }
  while (fgets(line, sizeof line, stdin) != NULL) answer(set, line);
  ferrowind_bd_release_set(set);
  return 0;
}
