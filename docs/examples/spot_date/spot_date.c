#include <ferrowind_business_days.h>
#include <stdio.h>

int main(int argc, char** argv) {
  ferrowind_bd_set* set = NULL;
  ferrowind_bd_pair* pair = NULL;
  ferrowind_bd_day trade_date = 0, spot = 0;
  int32_t year = 0, month = 0, day = 0;
  ferrowind_bd_status status = ferrowind_bd_open(argc == 2 ? argv[1] : "", &set);
  if (status == FERROWIND_BD_OK) status = ferrowind_bd_pair_of(set, "EUR/JPY", &pair);
  if (status == FERROWIND_BD_OK) status = ferrowind_bd_day_of(2026, 4, 30, &trade_date);
  if (status == FERROWIND_BD_OK) {
    status = ferrowind_bd_spot_date(pair, trade_date, FERROWIND_BD_TRADE_DATE_COUNTS_AS_NEXT, &spot);
  }
  if (status == FERROWIND_BD_OK) status = ferrowind_bd_date_of(spot, &year, &month, &day);
  if (status == FERROWIND_BD_OK) printf("%04d-%02d-%02d\n", (int)year, (int)month, (int)day);
  if (status != FERROWIND_BD_OK) fprintf(stderr, "%s\n", ferrowind_bd_message());
  ferrowind_bd_release_pair(pair);
  ferrowind_bd_release_set(set);
  return status == FERROWIND_BD_OK ? 0 : 1;
}
