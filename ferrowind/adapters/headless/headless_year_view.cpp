#include "ferrowind/adapters/headless/headless_year_view.h"

#include <fstream>
#include <utility>

#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/file_path.h"

namespace ferrowind::headless {

using platform::Failure;
using platform::YearCell;
using platform::YearContent;
using year_engine::YearCursor;
using year_engine::YearDays;
using year_engine::YearPlace;

void HeadlessYearView::SetContent(YearContent content) {
  core_.Record("SetContent", {content.year, static_cast<std::int32_t>(content.calendars.size())});
  YearDays days(std::move(content));
  const auto keep = core_.Keep();
  const auto was_current = Current();
  const auto were_selected = Selected();
  cursor_.Enter(days_, days);
  days_ = std::move(days);
  const bool are_others_selected = Selected() != were_selected;
  if (Current() != was_current) current_changed_.Emit();
  if (are_others_selected) selection_changed_.Emit();
}

std::optional<YearCell> HeadlessYearView::Current() const {
  const auto place = cursor_.Current();
  if (!place) return std::nullopt;
  return days_.CellAt(*place);
}

void HeadlessYearView::SetCurrent(const YearCell& cell) {
  core_.Record("SetCurrent", {cell.calendar, std::int32_t{cell.day_of_year}});
  const auto place = days_.PlaceOf(cell);
  if (!place) {
    throw Failure(platform::failure_number::kElementNotFound, "The year view " + Name() + " has no day " +
                                                                  std::to_string(cell.day_of_year) +
                                                                  " of a calendar " + cell.calendar);
  }
  const auto keep = core_.Keep();
  const YearCursor before = cursor_;
  cursor_.GoTo(*place);
  TellChanges(before);
}

std::vector<YearCell> HeadlessYearView::Selected() const {
  std::vector<YearCell> cells;
  for (const YearPlace& place : cursor_.Selected()) cells.push_back(days_.CellAt(place));
  return cells;
}

void HeadlessYearView::SavePages(platform::PageFile kind, const std::string& path,
                                 const std::string& heading) {
  core_.Record("SavePages", {kind == platform::PageFile::kPdf ? "pdf" : "png", path, heading});
  std::ofstream file(platform::FilePath(path), std::ios::binary);
  file << heading << '\n';
  for (const auto& note : Content().notes) {
    file << days_.DateOf(note.day_of_year).ToIso() << ' ' << note.text << '\n';
  }
  file.close();
  if (!file)
    throw Failure(platform::failure_number::kInvalidArgument, "The file " + path + " cannot be written");
}

bool HeadlessYearView::PrintPages(const std::string& heading) {
  core_.Record("PrintPages", {heading});
  return has_printer_;
}

std::string HeadlessYearView::TextOf(const YearCell& cell) const {
  const YearPlace place = days_.PlaceOf(cell).value();
  const std::string text =
      days_.DateOf(place.day).ToIso() + ", " + days_.DescriptionOf(place.calendar, place.day);
  if (days_.CalendarCount() == 1) return text;
  return Content().calendars[static_cast<std::size_t>(place.calendar)].caption + ", " + text;
}

void HeadlessYearView::ClickDay(const YearCell& cell) {
  Act("ClickDay", cell, [this](const YearPlace& place) { cursor_.GoTo(place); });
}

void HeadlessYearView::ToggleDay(const YearCell& cell) {
  Act("ToggleDay", cell, [this](const YearPlace& place) { cursor_.Toggle(place); });
}

void HeadlessYearView::ExtendToDay(const YearCell& cell) {
  Act("ExtendToDay", cell, [this](const YearPlace& place) { cursor_.ExtendTo(place); });
}

void HeadlessYearView::PressStep(year_engine::YearStep step, bool extends) {
  if (!cursor_.Current()) core_.RaiseScriptError("The year view " + Name() + " has no day to go from");
  Act("PressStep", days_.CellAt(cursor_.After(step)), [&](const YearPlace& place) {
    if (extends) {
      cursor_.ExtendTo(place);
    } else {
      cursor_.GoTo(place);
    }
  });
}

void HeadlessYearView::ActivateDay() {
  const auto keep = core_.BeginAction("ActivateDay");
  core_.TakeFocus();
  if (cursor_.Current()) activated_.Emit();
}

void HeadlessYearView::RightClickDay(const YearCell& cell) {
  const auto keep = core_.Keep();
  Act("RightClickDay", cell, [this](const YearPlace& place) { cursor_.PointAt(place); });
  menu_asked_.Emit();
}

void HeadlessYearView::PressMenuKey() {
  const auto keep = core_.BeginAction("PressMenuKey");
  core_.TakeFocus();
  if (cursor_.Current()) menu_asked_.Emit();
}

YearPlace HeadlessYearView::RequirePlaceOf(const YearCell& cell) {
  const auto place = days_.PlaceOf(cell);
  if (!place) {
    core_.RaiseScriptError("The year view " + Name() + " shows no day " + std::to_string(cell.day_of_year) +
                           " of " + cell.calendar);
  }
  return *place;
}

void HeadlessYearView::Act(const std::string& action, const YearCell& cell,
                           const std::function<void(const YearPlace&)>& change) {
  const auto keep = core_.BeginAction(action, {cell.calendar, std::int32_t{cell.day_of_year}});
  const YearPlace place = RequirePlaceOf(cell);
  core_.TakeFocus();
  const YearCursor before = cursor_;
  change(place);
  TellChanges(before);
}

void HeadlessYearView::TellChanges(const YearCursor& before) {
  const bool are_others_selected = !cursor_.HasSelectionOf(before);
  if (cursor_.Current() != before.Current()) current_changed_.Emit();
  if (are_others_selected) selection_changed_.Emit();
}

}  // namespace ferrowind::headless
