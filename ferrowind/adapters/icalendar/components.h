#pragma once

#include <memory>

#include <libical/ical.h>

/// What libical allocates, owned.
namespace ferrowind::icalendar {

struct FreeComponent {
  void operator()(icalcomponent* component) const { icalcomponent_free(component); }
};
using Component = std::unique_ptr<icalcomponent, FreeComponent>;

struct FreeIterator {
  void operator()(icalrecur_iterator* iterator) const { icalrecur_iterator_free(iterator); }
};
using Iterator = std::unique_ptr<icalrecur_iterator, FreeIterator>;

inline constexpr const char* kCurrencyProperty = "X-FERROWIND-CURRENCY";
/// What stands in a summary between the code of the currency and the name of the day.
inline constexpr const char* kBehindCurrency = ": ";

}  // namespace ferrowind::icalendar
