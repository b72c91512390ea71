#include "ferrowind/adapters/win32/year/year_parts.h"

#include <oleacc.h>

#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/year/year_texts.h"

namespace ferrowind::win32 {

using year_engine::YearPlace;

LONG YearParts::WindowRole() const { return ROLE_SYSTEM_TABLE; }

std::wstring YearParts::WindowDescription() const {
  std::wstring text;
  for (const auto& entry : subject_.days.Content().legend) {
    if (!text.empty()) text += L", ";
    if (!entry.look.letter.empty()) text += ToWide(entry.look.letter) + L": ";
    text += ToWide(entry.text);
  }
  return text;
}

LONG YearParts::PartCount() const {
  return static_cast<LONG>(subject_.days.CalendarCount()) * static_cast<LONG>(subject_.days.DayCount());
}

LONG YearParts::PartOf(const YearPlace& place) const {
  return static_cast<LONG>(place.calendar) * static_cast<LONG>(subject_.days.DayCount()) +
         static_cast<LONG>(place.day);
}

YearPlace YearParts::PlaceOf(LONG part) const {
  const int days = subject_.days.DayCount();
  const auto index = static_cast<int>(part) - 1;
  return {index / days, index % days + 1};
}

AccessiblePart YearParts::PartAt(LONG part) const {
  const YearPlace place = PlaceOf(part);
  LONG state = STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_MULTISELECTABLE;
  if (subject_.cursor.IsSelected(place)) state |= STATE_SYSTEM_SELECTED;
  return {.name = TextOfDay(subject_.days, place),
          .role = ROLE_SYSTEM_CELL,
          .state = state,
          .area = subject_.area_of(place)};
}

LONG YearParts::PartUnder(POINT client) const {
  const auto place = subject_.place_at(client);
  return place ? PartOf(*place) : 0;
}

LONG YearParts::CurrentPart() const {
  const auto current = subject_.cursor.Current();
  return current ? PartOf(*current) : 0;
}

std::vector<LONG> YearParts::SelectedParts() const {
  std::vector<LONG> parts;
  for (const YearPlace& place : subject_.cursor.Selected()) parts.push_back(PartOf(place));
  return parts;
}

void YearParts::ChoosePart(LONG part) { subject_.choose(PlaceOf(part)); }

}  // namespace ferrowind::win32
