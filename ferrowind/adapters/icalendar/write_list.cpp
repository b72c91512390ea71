#include <memory>
#include <string>

#include <libical/ical.h>

#include "ferrowind/adapters/icalendar/components.h"
#include "ferrowind/adapters/icalendar/icalendar_list.h"
#include "ferrowind/almanac/date_words.h"

namespace ferrowind::icalendar {
namespace {

using exchange::ListedDay;
using platform::Date;

void Add(const Component& component, icalproperty* property) {
  icalcomponent_add_property(component.get(), property);
}

icaltimetype AllDay(const Date& date) {
  icaltimetype time = icaltime_null_date();
  time.year = date.Year();
  time.month = date.Month();
  time.day = date.Day();
  return time;
}

icalproperty* Extension(const char* name, const std::string& value) {
  icalproperty* const property = icalproperty_new_x(value.c_str());
  icalproperty_set_x_name(property, name);
  return property;
}

std::string SummaryOf(const ListedDay& day) {
  std::string name = day.name;
  if (name.empty()) name = almanac::WeekdayName(day.date.Weekday());
  return day.currency + kBehindCurrency + name;
}

Component EventOf(const ListedDay& day, const Revision& revision) {
  Component event(icalcomponent_new(ICAL_VEVENT_COMPONENT));
  const icaltimetype moment = icaltime_from_string(revision.moment.c_str());
  Add(event, icalproperty_new_uid((day.date.ToIso() + "-" + day.currency + "@ferrowind").c_str()));
  Add(event, icalproperty_new_dtstamp(moment));
  Add(event, icalproperty_new_lastmodified(moment));
  Add(event, icalproperty_new_sequence(revision.number));
  Add(event, icalproperty_new_dtstart(AllDay(day.date)));
  Add(event, icalproperty_new_dtend(AllDay(day.date.AddDays(1))));
  Add(event, icalproperty_new_summary(SummaryOf(day).c_str()));
  Add(event, icalproperty_new_categories(std::string(exchange::TextOf(day.kind)).c_str()));
  // A holiday does not make its reader busy.
  Add(event, icalproperty_new_transp(ICAL_TRANSP_TRANSPARENT));
  Add(event, Extension(kCurrencyProperty, day.currency));
  return event;
}

struct FreeText {
  void operator()(char* text) const { icalmemory_free_buffer(text); }
};

}  // namespace

std::string WriteICalendarList(const exchange::DayList& list, const Revision& revision) {
  const Component calendar(icalcomponent_new(ICAL_VCALENDAR_COMPONENT));
  Add(calendar, icalproperty_new_prodid("-//Ferrowind//ferrowindctl//EN"));
  Add(calendar, icalproperty_new_version("2.0"));
  Add(calendar, icalproperty_new_calscale("GREGORIAN"));
  Add(calendar, icalproperty_new_method(ICAL_METHOD_PUBLISH));
  for (const ListedDay& day : list.days) {
    icalcomponent_add_component(calendar.get(), EventOf(day, revision).release());
  }
  const std::unique_ptr<char, FreeText> text(icalcomponent_as_ical_string_r(calendar.get()));
  return text.get();
}

}  // namespace ferrowind::icalendar
