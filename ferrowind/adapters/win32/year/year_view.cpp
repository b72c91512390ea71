#include "ferrowind/adapters/win32/year/year_view.h"

#include <utility>

#include "ferrowind/adapters/win32/base/twips.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/year/year_files.h"
#include "ferrowind/adapters/win32/year/year_pages.h"
#include "ferrowind/adapters/win32/year/year_printing.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::win32 {

using platform::YearCell;
using year_engine::YearCursor;
using year_engine::YearDays;

Win32YearView::Win32YearView(ControlHost& host, std::string name, HWND parent)
    : Win32Control(host, std::move(name),
                   {.window_class = PaneClass(),
                    .style = WS_TABSTOP,
                    .extended_style = WS_EX_CLIENTEDGE,
                    .parent = parent}) {
  SetWindowTextW(Handle(), ToWide(ControlName()).c_str());
}

void Win32YearView::SetContent(platform::YearContent content) {
  YearDays days(std::move(content));
  const auto was_current = Current();
  const auto were_selected = Selected();
  cursor_.Enter(days_, days);
  days_ = std::move(days);
  Arrange();
  accessible_.TellContent();
  const bool is_other_current = Current() != was_current;
  const bool are_others_selected = Selected() != were_selected;
  if (is_other_current && cursor_.Current()) BringIntoSight(*cursor_.Current());
  if (is_other_current) accessible_.TellCurrent();
  if (is_other_current) RaiseEvent(current_changed_);
  if (are_others_selected) RaiseEvent(selection_changed_);
}

std::optional<YearCell> Win32YearView::Current() const {
  const auto place = cursor_.Current();
  if (!place) return std::nullopt;
  return days_.CellAt(*place);
}

void Win32YearView::SetCurrent(const YearCell& cell) {
  const auto place = days_.PlaceOf(cell);
  if (!place) {
    throw platform::Failure(platform::failure_number::kElementNotFound,
                            "The year view " + ControlName() + " has no day " +
                                std::to_string(cell.day_of_year) + " of a calendar " + cell.calendar);
  }
  ChangeCursor([&] { cursor_.GoTo(*place); });
}

std::vector<YearCell> Win32YearView::Selected() const {
  std::vector<YearCell> cells;
  for (const auto& place : cursor_.Selected()) cells.push_back(days_.CellAt(place));
  return cells;
}

void Win32YearView::ChangeCursor(const std::function<void()>& change) {
  const YearCursor before = cursor_;
  change();
  const bool is_other_current = cursor_.Current() != before.Current();
  const bool are_others_selected = !cursor_.HasSelectionOf(before);
  if (!is_other_current && !are_others_selected) return;
  Repaint();
  if (are_others_selected) accessible_.TellSelection();
  if (is_other_current) {
    BringIntoSight(*cursor_.Current());
    accessible_.TellCurrent();
    RaiseEvent(current_changed_);
  }
  if (are_others_selected) RaiseEvent(selection_changed_);
}

void Win32YearView::Activate() {
  if (cursor_.Current()) RaiseEvent(activated_);
}

void Win32YearView::AskForMenu() {
  if (!cursor_.Current()) return;
  BringIntoSight(*cursor_.Current());
  RaiseEvent(menu_asked_);
}

void Win32YearView::SavePages(platform::PageFile kind, const std::string& path, const std::string& heading) {
  const YearPages pages(days_, ToWide(heading));
  if (kind == platform::PageFile::kPdf) {
    SaveAsPdf(pages, path);
  } else {
    SaveAsPicture(pages, path);
  }
}

bool Win32YearView::PrintPages(const std::string& heading) {
  // A copy, since the window may show something else once a printer is chosen.
  const YearDays days = days_;
  return PrintOnChosenPrinter(Host().Thread(), YearPages(days, ToWide(heading)));
}

SIZE Win32YearView::NeededSize() const {
  constexpr int kWidth = 200;
  constexpr int kHeight = 160;
  return {Scaled(kWidth, DotsPerInch()), Scaled(kHeight, DotsPerInch())};
}

}  // namespace ferrowind::win32
