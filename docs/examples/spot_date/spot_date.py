import datetime
import sys

import ferrowind_business_days as business_days

with business_days.Calendars.open(sys.argv[1]) as calendars:
    print(calendars.pair("EUR/JPY").spot_date(datetime.date(2026, 4, 30)))
