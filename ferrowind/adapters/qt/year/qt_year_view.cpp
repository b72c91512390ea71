#include "ferrowind/adapters/qt/year/qt_year_view.h"

#include <utility>

#include "ferrowind/adapters/qt/year/year_files.h"
#include "ferrowind/adapters/qt/year/year_pages.h"
#include "ferrowind/adapters/qt/year/year_pane.h"
#include "ferrowind/adapters/qt/year/year_printing.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {

using platform::Subscription;
using platform::YearCell;

QtYearView::QtYearView(YearWidget& widget) : QtControl(widget), widget_(widget), pane_(widget.Pane()) {
  // Assistive tools look at the pane.
  pane_.setAccessibleName(widget.accessibleName());
  QObject::connect(&pane_, &YearPane::CurrentChanged, Context(), [this] { Raise(current_changed_); });
  QObject::connect(&pane_, &YearPane::SelectionChanged, Context(), [this] { Raise(selection_changed_); });
  QObject::connect(&pane_, &YearPane::Activated, Context(), [this] { Raise(activated_); });
  QObject::connect(&pane_, &YearPane::MenuAsked, Context(), [this] { Raise(menu_asked_); });
}

void QtYearView::SetContent(platform::YearContent content) {
  year_engine::YearDays days(std::move(content));
  pane_.SetDays(std::move(days));
  widget_.RefreshLegend();
}

std::optional<YearCell> QtYearView::Current() const {
  const auto place = pane_.Cursor().Current();
  if (!place) return std::nullopt;
  return pane_.Days().CellAt(*place);
}

void QtYearView::SetCurrent(const YearCell& cell) {
  const auto place = pane_.Days().PlaceOf(cell);
  if (!place) {
    throw platform::Failure(platform::failure_number::kElementNotFound,
                            "The year view " + Name() + " has no day " + std::to_string(cell.day_of_year) +
                                " of a calendar " + cell.calendar);
  }
  pane_.GoTo(*place);
}

std::vector<YearCell> QtYearView::Selected() const {
  std::vector<YearCell> cells;
  for (const auto& place : pane_.Cursor().Selected()) cells.push_back(pane_.Days().CellAt(place));
  return cells;
}

void QtYearView::SavePages(platform::PageFile kind, const std::string& path, const std::string& heading) {
  const YearPages pages(pane_.Days(), ToQt(heading), pane_.locale(), pane_.layoutDirection());
  if (kind == platform::PageFile::kPdf) {
    SaveAsPdf(pages, ToQt(path));
  } else {
    SaveAsPicture(pages, ToQt(path));
  }
}

bool QtYearView::PrintPages(const std::string& heading) {
  // A copy, since the window may show something else once a printer is chosen.
  const year_engine::YearDays days = pane_.Days();
  return PrintOnChosenPrinter(YearPages(days, ToQt(heading), pane_.locale(), pane_.layoutDirection()));
}

Subscription QtYearView::OnCurrentChange(std::function<void()> handler) {
  return current_changed_.Subscribe(std::move(handler));
}

Subscription QtYearView::OnSelectionChange(std::function<void()> handler) {
  return selection_changed_.Subscribe(std::move(handler));
}

Subscription QtYearView::OnActivate(std::function<void()> handler) {
  return activated_.Subscribe(std::move(handler));
}

Subscription QtYearView::OnMenuAsked(std::function<void()> handler) {
  return menu_asked_.Subscribe(std::move(handler));
}

}  // namespace ferrowind::qt
