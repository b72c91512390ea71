#pragma once

/** @file
   Business days and value dates for programs in C, and in every language that calls C.

   A day is the number of days since 1970-01-01, from 0001-01-01 to 9999-12-31. Texts are UTF-8 and end with
   a NUL. A handle belongs to whoever got it and is given back with the release function of its kind, to which
   NULL means nothing. Functions that return ferrowind_bd_status write their answer only when they succeed.

   Sets, calendars and pairs may be asked by any number of threads at a time, and released when none of them
   asks any more. Calendars and pairs never change, and outlive their set.

   What is declared here stays as it is: a later version of the library adds functions, status codes and
   members at the end of structures, whose callers say how large theirs are. */

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Days since 1970-01-01; negative before it. */
typedef int32_t ferrowind_bd_day;
/** FERROWIND_BD_OK, or why there is no answer: one of the numbers below, or one of a later version. */
typedef int32_t ferrowind_bd_status;

enum {
  FERROWIND_BD_OK = 0,
  /** The answer depends on a day that nobody has prepared; such a day is never taken for open. */
  FERROWIND_BD_NOT_PREPARED = 1,
  /** All days are closed, for a year or within the month that must not be left. */
  FERROWIND_BD_NO_BUSINESS_DAY = 2,
  FERROWIND_BD_INVALID_ARGUMENT = 3,
  /** There is no calendar of the currency. */
  FERROWIND_BD_UNKNOWN_CURRENCY = 4,
  /** The database could not be read. */
  FERROWIND_BD_DATABASE = 5,
  FERROWIND_BD_OUT_OF_MEMORY = 6,
  FERROWIND_BD_INTERNAL = 7
};

/** States of a day. */
enum { FERROWIND_BD_OPEN = 0, FERROWIND_BD_CLOSED = 1, FERROWIND_BD_DAY_NOT_PREPARED = 2 };

/** Where a date goes that falls on a closed day. */
enum {
  FERROWIND_BD_UNADJUSTED = 0,
  FERROWIND_BD_FOLLOWING = 1,
  FERROWIND_BD_MODIFIED_FOLLOWING = 2,
  FERROWIND_BD_MODIFIED_FOLLOWING_BIMONTHLY = 3,
  FERROWIND_BD_PRECEDING = 4,
  FERROWIND_BD_MODIFIED_PRECEDING = 5,
  FERROWIND_BD_NEAREST = 6
};

/** What a trade date is on which a currency of the pair is closed: the next day on which both are open, or
   the day as it is. */
enum { FERROWIND_BD_TRADE_DATE_COUNTS_AS_NEXT = 0, FERROWIND_BD_TRADE_DATE_STAYS = 1 };

/** All calendars of a database, or those that were given; with the market's conventions. */
typedef struct ferrowind_bd_set ferrowind_bd_set;
/** One calendar, or several joined: a day is open when it is open in all of them. */
typedef struct ferrowind_bd_calendar ferrowind_bd_calendar;
/** On which days trades in a currency pair settle. */
typedef struct ferrowind_bd_pair ferrowind_bd_pair;

/** A prepared year of a currency. */
typedef struct ferrowind_bd_year {
  /** The code, three letters: "EUR". In small letters it is the same, in all years of the currency. */
  const char* currency;
  /** 365 or 366 characters from 1 January on: '1' closed, '0' open. */
  const char* days;
  /** 1900 to 3000. */
  int32_t year;
} ferrowind_bd_year;

/** What a reload found to be another than before. */
typedef struct ferrowind_bd_changes {
  /** sizeof(ferrowind_bd_changes), set by the caller. */
  size_t size;
  /**@{*/
  /** "EUR,USD", ascending; empty when there are none. Valid until this thread's next reload. */
  const char* added;
  const char* changed;
  const char* removed;
  /**@}*/
  /** 1 when days to spot, or what dollar holidays mean, are others than before; else 0. */
  int32_t has_other_conventions;
} ferrowind_bd_changes;

/** The library's version, "1.2.10". */
const char* ferrowind_bd_version(void);

/** Why the last call of this thread that failed did so, for a person to read. Never NULL; valid until the
   thread's next call that fails. */
const char* ferrowind_bd_message(void);

/**@{*/
/** 2026, 12, 25 as a day, and back. A day that the calendar does not have is an invalid argument. */
ferrowind_bd_status ferrowind_bd_day_of(int32_t year, int32_t month, int32_t day, ferrowind_bd_day* answer);
ferrowind_bd_status ferrowind_bd_date_of(ferrowind_bd_day day, int32_t* year, int32_t* month,
                                         int32_t* day_of_month);
/**@}*/

/** Reads all calendars and conventions of a database: "sqlite:PATH", or "postgresql://..." with a login that
   may read. */
ferrowind_bd_status ferrowind_bd_open(const char* url, ferrowind_bd_set** answer);
/** The calendars of these years. `size_of_year` is sizeof(ferrowind_bd_year). `conventions` is a text as in
   database/seed/market_conventions.txt; NULL stands for those that come with the library. */
ferrowind_bd_status ferrowind_bd_make(const ferrowind_bd_year* years, size_t count, size_t size_of_year,
                                      const char* conventions, ferrowind_bd_set** answer);
/** Reads the database again. Calendars and pairs that were taken before stay as they are; those taken
   afterwards know what is new. When it fails the set is as it was. Given calendars have no changes. */
ferrowind_bd_status ferrowind_bd_reload(ferrowind_bd_set* set, ferrowind_bd_changes* changes);
/** The codes of all currencies, "EUR,USD", ascending. Valid until this thread's next call of this function.
 */
ferrowind_bd_status ferrowind_bd_currencies(const ferrowind_bd_set* set, const char** answer);
/** Gives the set back; NULL is nothing to give back. Calendars and pairs taken from it stay. */
void ferrowind_bd_release_set(ferrowind_bd_set* set);

/** `currencies` is "EUR", or several as "EUR,USD". */
ferrowind_bd_status ferrowind_bd_calendar_of(const ferrowind_bd_set* set, const char* currencies,
                                             ferrowind_bd_calendar** answer);
/** Gives the calendar back; NULL is nothing to give back. */
void ferrowind_bd_release_calendar(ferrowind_bd_calendar* calendar);

/** FERROWIND_BD_OPEN, FERROWIND_BD_CLOSED or FERROWIND_BD_DAY_NOT_PREPARED. */
ferrowind_bd_status ferrowind_bd_state(const ferrowind_bd_calendar* calendar, ferrowind_bd_day day,
                                       int32_t* answer);
/** 1 for an open day and 0 for a closed one. */
ferrowind_bd_status ferrowind_bd_is_business_day(const ferrowind_bd_calendar* calendar, ferrowind_bd_day day,
                                                 int32_t* answer);
/**@{*/
/** The first business day after the day, the last one before it. */
ferrowind_bd_status ferrowind_bd_next(const ferrowind_bd_calendar* calendar, ferrowind_bd_day day,
                                      ferrowind_bd_day* answer);
ferrowind_bd_status ferrowind_bd_previous(const ferrowind_bd_calendar* calendar, ferrowind_bd_day day,
                                          ferrowind_bd_day* answer);
/**@}*/
/** `convention` is FERROWIND_BD_FOLLOWING or another of them. */
ferrowind_bd_status ferrowind_bd_adjust(const ferrowind_bd_calendar* calendar, ferrowind_bd_day day,
                                        int32_t convention, ferrowind_bd_day* answer);
/** The convention of a name such as "ModifiedFollowing" or "MF". */
ferrowind_bd_status ferrowind_bd_convention_named(const char* name, int32_t* answer);
/** The `count`th business day after the day, before it when `count` is negative; with 0 the day itself. */
ferrowind_bd_status ferrowind_bd_add(const ferrowind_bd_calendar* calendar, ferrowind_bd_day day,
                                     int32_t count, ferrowind_bd_day* answer);
/** The business days behind `from`, up to and with `to`; negative when `to` is the earlier one. */
ferrowind_bd_status ferrowind_bd_between(const ferrowind_bd_calendar* calendar, ferrowind_bd_day from,
                                         ferrowind_bd_day to, int32_t* answer);
/** The last business day of the month that the day is in. */
ferrowind_bd_status ferrowind_bd_month_end(const ferrowind_bd_calendar* calendar, ferrowind_bd_day day,
                                           ferrowind_bd_day* answer);
/** The closed days from `first` to `last`, ascending, as far as `capacity` goes; `count` becomes the number
   of all of them. `days` may be NULL when `capacity` is 0. */
ferrowind_bd_status ferrowind_bd_closed_days(const ferrowind_bd_calendar* calendar, ferrowind_bd_day first,
                                             ferrowind_bd_day last, ferrowind_bd_day* days, size_t capacity,
                                             size_t* count);
/** The first and the last prepared day, between which years may be missing. FERROWIND_BD_NOT_PREPARED when
   there is none. */
ferrowind_bd_status ferrowind_bd_horizon(const ferrowind_bd_calendar* calendar, ferrowind_bd_day* first,
                                         ferrowind_bd_day* last);
/** 1 when all days of the year are prepared, else 0. */
ferrowind_bd_status ferrowind_bd_is_prepared(const ferrowind_bd_calendar* calendar, int32_t year,
                                             int32_t* answer);

/** `pair` is "EURUSD" or "EUR/USD". The set must have both currencies and USD. */
ferrowind_bd_status ferrowind_bd_pair_of(const ferrowind_bd_set* set, const char* pair,
                                         ferrowind_bd_pair** answer);
/** Gives the pair back; NULL is nothing to give back. */
void ferrowind_bd_release_pair(ferrowind_bd_pair* pair);
/** 0, 1 or 2. */
ferrowind_bd_status ferrowind_bd_days_to_spot(const ferrowind_bd_pair* pair, int32_t* answer);
/** `closed_trade_date` is FERROWIND_BD_TRADE_DATE_COUNTS_AS_NEXT or FERROWIND_BD_TRADE_DATE_STAYS. */
ferrowind_bd_status ferrowind_bd_spot_date(const ferrowind_bd_pair* pair, ferrowind_bd_day trade_date,
                                           int32_t closed_trade_date, ferrowind_bd_day* answer);
/** `tenor` is "ON", "TN", "SPOT", "SN", "SW", "10D", "2W", "3M", "1Y" or "IMM1" to "IMM4". */
ferrowind_bd_status ferrowind_bd_value_date(const ferrowind_bd_pair* pair, ferrowind_bd_day trade_date,
                                            const char* tenor, int32_t closed_trade_date,
                                            ferrowind_bd_day* answer);

#ifdef __cplusplus
}
#endif
