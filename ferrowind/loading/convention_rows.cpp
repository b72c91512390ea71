#include "ferrowind/loading/convention_rows.h"

#include "ferrowind/business_days/currency_pair.h"
#include "ferrowind/platform/values/conversion.h"

#include "database/seed/delivered_conventions.h"

namespace ferrowind::loading {

using business_days::MarketConventions;

const MarketConventions& DeliveredConventions() {
  static const MarketConventions conventions =
      business_days::ReadMarketConventions(embedded::kMarketConventions);
  return conventions;
}

MarketConventions ConventionsIn(platform::RecordSet& rows) {
  MarketConventions conventions;
  for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
    const std::string code = platform::ToText(rows["Ccy"]);
    if (rows["OtherCcy"].IsEmpty()) {
      conventions.SetDollarHolidayStops(code, platform::ToInt32(rows["DollarStops"]) != 0);
    } else {
      conventions.SetDaysToSpot(business_days::ReadCurrencyPair(code + platform::ToText(rows["OtherCcy"])),
                                platform::ToInt32(rows["SpotDays"]));
    }
  }
  return conventions;
}

}  // namespace ferrowind::loading
