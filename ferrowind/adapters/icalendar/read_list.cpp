#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include <libical/ical.h>

#include "ferrowind/adapters/icalendar/components.h"
#include "ferrowind/adapters/icalendar/event_days.h"
#include "ferrowind/adapters/icalendar/event_lines.h"
#include "ferrowind/adapters/icalendar/icalendar_list.h"
#include "ferrowind/exchange/list_faults.h"
#include "ferrowind/exchange/list_text.h"
#include "ferrowind/exchange/listed_kinds.h"

namespace ferrowind::icalendar {
namespace {

using exchange::DayList;
using exchange::ListedDay;
using exchange::ListedKind;
using exchange::ListError;
using exchange::ListFaults;

std::string TextOf(const char* text) { return text == nullptr ? std::string() : std::string(text); }

/// The value of this program's own property.
std::string CurrencyOf(icalcomponent* event) {
  for (icalproperty* property = icalcomponent_get_first_property(event, ICAL_X_PROPERTY); property != nullptr;
       property = icalcomponent_get_next_property(event, ICAL_X_PROPERTY)) {
    if (TextOf(icalproperty_get_x_name(property)) == kCurrencyProperty)
      return TextOf(icalproperty_get_x(property));
  }
  return {};
}

ListedKind KindOf(icalcomponent* event, const std::string& name) {
  for (icalproperty* property = icalcomponent_get_first_property(event, ICAL_CATEGORIES_PROPERTY);
       property != nullptr; property = icalcomponent_get_next_property(event, ICAL_CATEGORIES_PROPERTY)) {
    // Categories are anybody's words; those of other programs mean nothing here.
    const auto kind = exchange::KindNamed(exchange::TidyName(TextOf(icalproperty_get_categories(property))));
    if (kind && *kind != ListedKind::kHoliday) return *kind;
  }
  return exchange::SoundsLikeHalfDay(name) ? ListedKind::kHalfDay : ListedKind::kHoliday;
}

class Reader {
 public:
  Reader(std::string_view text, const std::optional<exchange::WantedYears>& wanted)
      : lines_(EventLinesOf(text)), wanted_(wanted) {}

  DayList Read(const Component& root) {
    const icalcomponent_kind kind = icalcomponent_isa(root.get());
    if (kind == ICAL_VCALENDAR_COMPONENT) {
      TakeCalendar(root.get());
    } else {
      for (icalcomponent* calendar = icalcomponent_get_first_component(root.get(), ICAL_VCALENDAR_COMPONENT);
           calendar != nullptr;
           calendar = icalcomponent_get_next_component(root.get(), ICAL_VCALENDAR_COMPONENT)) {
        TakeCalendar(calendar);
      }
    }
    if (read_ != lines_.events.size()) {
      faults_.Add(0, std::to_string(lines_.events.size()) + " events begin, but only " +
                         std::to_string(read_) + " can be read");
    }
    faults_.ThrowIfAny();
    if (lines_.others != 0) {
      list_.remarks.push_back(
          "Parts of the calendar that are no events, such as time zones and tasks, are left out: " +
          std::to_string(lines_.others));
    }
    return std::move(list_);
  }

 private:
  void TakeCalendar(icalcomponent* calendar) {
    for (icalcomponent* event = icalcomponent_get_first_component(calendar, ICAL_VEVENT_COMPONENT);
         event != nullptr; event = icalcomponent_get_next_component(calendar, ICAL_VEVENT_COMPONENT)) {
      const std::size_t line = read_ < lines_.events.size() ? lines_.events[read_] : 0;
      ++read_;
      TakeEvent(event, line);
    }
  }

  void TakeEvent(icalcomponent* event, std::size_t line) {
    std::string name = exchange::TidyName(TextOf(icalcomponent_get_summary(event)));
    const std::string shown = name.empty() ? "the event" : "the event " + exchange::Quoted(name);
    if (icalcomponent_get_status(event) == ICAL_STATUS_CANCELLED) {
      list_.remarks.push_back("Line " + std::to_string(line) + ": " + shown + " is cancelled and left out");
      return;
    }
    const EventDays days = DaysOf(event, wanted_, patience_);
    if (!days.fault.empty()) return faults_.Add(line, shown + " cannot be read: " + days.fault);
    const std::string currency = exchange::TidyName(CurrencyOf(event));
    const std::string prefix = currency + kBehindCurrency;
    if (!currency.empty() && name.starts_with(prefix)) name.erase(0, prefix.size());
    if (std::string fault = exchange::FaultOfName(name); !fault.empty())
      return faults_.Add(line, std::move(fault));
    const ListedKind kind = days.are_whole ? KindOf(event, name) : ListedKind::kHalfDay;
    for (const platform::Date& date : days.days) list_.days.push_back({date, name, kind, currency, line});
  }

  EventLines lines_;
  const std::optional<exchange::WantedYears>& wanted_;
  DayList list_;
  ListFaults faults_;
  Patience patience_;
  std::size_t read_ = 0;
};

}  // namespace

DayList ReadICalendarList(std::string_view text, const std::optional<exchange::WantedYears>& wanted) {
  icalerror_set_errors_are_fatal(0);
  if (const EventLines lines = EventLinesOf(text); lines.broken != 0) {
    throw ListError({{lines.broken,
                      "a part of the calendar that begins here does not end, or ends where none has "
                      "begun; the file breaks off or is damaged"}});
  }
  const Component root(icalparser_parse_string(std::string(text).c_str()));
  if (root == nullptr) throw ListError({{1, "this is no iCalendar, which begins with BEGIN:VCALENDAR"}});
  return Reader(text, wanted).Read(root);
}

}  // namespace ferrowind::icalendar
