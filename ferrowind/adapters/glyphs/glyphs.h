#pragma once

#include "ferrowind/adapters/glyphs/glyph.h"

namespace ferrowind::glyphs {

[[nodiscard]] Glyph RefreshGlyph();
[[nodiscard]] Glyph NewCalendarGlyph();
[[nodiscard]] Glyph ExpandTreeGlyph();
[[nodiscard]] Glyph CollapseTreeGlyph();
[[nodiscard]] Glyph GroupHeaderGlyph();
[[nodiscard]] Glyph ExpandRowsGlyph();
[[nodiscard]] Glyph CollapseRowsGlyph();
[[nodiscard]] Glyph ExpandSelectionGlyph();
[[nodiscard]] Glyph CopyGlyph();
[[nodiscard]] Glyph AssignOneGlyph();
[[nodiscard]] Glyph AssignManyGlyph();
[[nodiscard]] Glyph ExceptGlyph();
[[nodiscard]] Glyph ExceptWithTextGlyph();
[[nodiscard]] Glyph PlanGlyph();
[[nodiscard]] Glyph AllDaysGlyph();
[[nodiscard]] Glyph BookGlyph();
[[nodiscard]] Glyph YearGlyph();
[[nodiscard]] Glyph YearWindowGlyph();
[[nodiscard]] Glyph YearBeforeGlyph();
[[nodiscard]] Glyph YearAfterGlyph();
[[nodiscard]] Glyph PrintGlyph();
[[nodiscard]] Glyph SaveDocumentGlyph();
[[nodiscard]] Glyph SavePictureGlyph();
[[nodiscard]] Glyph HistoryGlyph();
[[nodiscard]] Glyph UndoGlyph();
[[nodiscard]] Glyph ImportGlyph();
[[nodiscard]] Glyph ExportGlyph();
[[nodiscard]] Glyph FindGlyph();
[[nodiscard]] Glyph GoToDateGlyph();
[[nodiscard]] Glyph CurrencyGlyph();
[[nodiscard]] Glyph CalendarGlyph();
[[nodiscard]] Glyph QuestionGlyph();
[[nodiscard]] Glyph InformationGlyph();
[[nodiscard]] Glyph WarningGlyph();
[[nodiscard]] Glyph ErrorGlyph();

}  // namespace ferrowind::glyphs
