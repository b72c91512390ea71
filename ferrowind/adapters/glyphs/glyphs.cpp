#include "ferrowind/adapters/glyphs/glyphs.h"

#include "ferrowind/adapters/glyphs/glyph_paths.h"

namespace ferrowind::glyphs {
namespace {

/// A sheet with two rings and a line under its head.
Glyph Sheet(double left, double top, double width, double height) {
  Glyph glyph;
  glyph.lines.AddRoundedRectangle(left, top, width, height, 2);
  glyph.lines.AddLine({{left, top + 5}, {left + width, top + 5}});
  glyph.lines.AddLine({{left + width * 0.28, top - 2}, {left + width * 0.28, top + 1.5}});
  glyph.lines.AddLine({{left + width * 0.72, top - 2}, {left + width * 0.72, top + 1.5}});
  return glyph;
}

/// Three lines of a list, leaving room on the left.
void AddRows(GlyphPath& path) {
  for (const double y : {6.0, 12.0, 18.0}) path.AddLine({{11, y}, {20.5, y}});
}

/// Down onto a line, at the lower right.
void AddSaveArrow(GlyphPath& path) {
  path.AddLine({{17.5, 12.5}, {17.5, 19}});
  path.AddLine({{14.8, 16.5}, {17.5, 19.2}, {20.2, 16.5}});
  path.AddLine({{14, 21.5}, {21, 21.5}});
}

/// Open above, for what is put in or taken out.
void AddTray(GlyphPath& path) { path.AddLine({{4, 14.5}, {4, 20}, {20, 20}, {20, 14.5}}); }

/// A small tree of a parent and two children, leaving room at the lower right.
void AddBranches(GlyphPath& path) {
  path.AddRoundedRectangle(3, 3, 8, 5, 1.2);
  path.AddLine({{7, 8}, {7, 18.5}, {10.5, 18.5}});
  path.AddLine({{7, 12.5}, {10.5, 12.5}});
}

}  // namespace

Glyph RefreshGlyph() {
  Glyph glyph;
  glyph.lines.AddArc({12, 12}, 8, 35, 140);
  glyph.lines.AddArc({12, 12}, 8, 215, 140);
  glyph.accent_lines.AddLine({{19.5, 3.5}, {19.5, 8}, {15, 8}});
  glyph.accent_lines.AddLine({{4.5, 20.5}, {4.5, 16}, {9, 16}});
  return glyph;
}

Glyph NewCalendarGlyph() {
  Glyph glyph;
  glyph.lines.AddLine({{11, 20}, {5, 20}, {3.5, 18.5}, {3.5, 6.5}, {5, 5}, {18, 5}, {19.5, 6.5}, {19.5, 11}});
  glyph.lines.AddLine({{3.5, 10}, {19.5, 10}});
  glyph.lines.AddLine({{8, 3}, {8, 6.5}});
  glyph.lines.AddLine({{15, 3}, {15, 6.5}});
  AddPlus(glyph.accent_lines, 17.5, 17.5, 4);
  return glyph;
}

Glyph ExpandTreeGlyph() {
  Glyph glyph;
  AddBranches(glyph.lines);
  AddPlus(glyph.accent_lines, 17, 15.5, 4.2);
  return glyph;
}

Glyph CollapseTreeGlyph() {
  Glyph glyph;
  AddBranches(glyph.lines);
  AddMinus(glyph.accent_lines, 17, 15.5, 4.2);
  return glyph;
}

Glyph GroupHeaderGlyph() {
  Glyph glyph;
  glyph.lines.AddRoundedRectangle(3, 3.5, 18, 17, 2);
  glyph.lines.AddLine({{3, 15}, {21, 15}});
  glyph.lines.AddLine({{12, 10}, {12, 20.5}});
  glyph.lines.AddLine({{3, 10}, {21, 10}});
  glyph.accent_solids.AddRoundedRectangle(5.4, 5.3, 6.2, 3, 1);
  return glyph;
}

Glyph ExpandRowsGlyph() {
  Glyph glyph;
  AddRows(glyph.lines);
  glyph.accent_lines.AddLine({{2.5, 7.5}, {5.5, 4.5}, {8.5, 7.5}});
  glyph.accent_lines.AddLine({{5.5, 5}, {5.5, 19}});
  glyph.accent_lines.AddLine({{2.5, 16.5}, {5.5, 19.5}, {8.5, 16.5}});
  return glyph;
}

Glyph CollapseRowsGlyph() {
  Glyph glyph;
  AddRows(glyph.lines);
  glyph.accent_lines.AddLine({{2.5, 5}, {5.5, 8}, {8.5, 5}});
  glyph.accent_lines.AddLine({{5.5, 3}, {5.5, 8}});
  glyph.accent_lines.AddLine({{2.5, 19}, {5.5, 16}, {8.5, 19}});
  glyph.accent_lines.AddLine({{5.5, 21}, {5.5, 16}});
  return glyph;
}

Glyph ExpandSelectionGlyph() {
  Glyph glyph;
  glyph.lines.AddLine({{4, 5}, {20, 5}});
  glyph.lines.AddLine({{4, 19}, {20, 19}});
  glyph.accent_lines.AddRoundedRectangle(3.2, 8.5, 17.6, 7, 1.5);
  AddPlus(glyph.accent_lines, 7.5, 12, 1.8);
  glyph.accent_lines.AddLine({{12, 12}, {18, 12}});
  return glyph;
}

Glyph CopyGlyph() {
  Glyph glyph;
  glyph.lines.AddLine({{16, 4.7}, {15.2, 3.5}, {5, 3.5}, {3.5, 5}, {3.5, 15.2}, {4.7, 16}});
  glyph.lines.AddRoundedRectangle(8, 8, 12.5, 12.5, 1.8);
  glyph.accent_lines.AddLine({{11, 12.3}, {17.5, 12.3}});
  glyph.accent_lines.AddLine({{11, 16.2}, {17.5, 16.2}});
  return glyph;
}

Glyph AssignOneGlyph() {
  Glyph glyph = Sheet(3.5, 5, 17, 15.5);
  AddCheck(glyph.accent_lines, 8.3, 15, 7.4);
  return glyph;
}

Glyph AssignManyGlyph() {
  Glyph glyph = Sheet(3.5, 5, 17, 15.5);
  for (const double y : {13.3, 17.0}) {
    for (const double x : {8.0, 12.0, 16.0}) glyph.accent_solids.AddEllipse({x, y}, 1.3, 1.3);
  }
  return glyph;
}

Glyph ExceptGlyph() {
  Glyph glyph = Sheet(3.5, 5, 17, 15.5);
  AddCross(glyph.accent_lines, 12, 15.2, 2.9);
  return glyph;
}

Glyph ExceptWithTextGlyph() {
  Glyph glyph;
  glyph.lines.AddLine(
      {{20.5, 11}, {20.5, 6.5}, {19, 5}, {5, 5}, {3.5, 6.5}, {3.5, 19}, {5, 20.5}, {8.5, 20.5}});
  glyph.lines.AddLine({{3.5, 10}, {20.5, 10}});
  glyph.lines.AddLine({{8.2, 3}, {8.2, 6.5}});
  glyph.lines.AddLine({{15.8, 3}, {15.8, 6.5}});
  AddCross(glyph.lines, 7.7, 14.5, 1.9);
  glyph.accent_lines.AddLine({{13.5, 13.5},
                              {21.5, 13.5},
                              {21.5, 19},
                              {17, 19},
                              {14.7, 21.5},
                              {14.7, 19},
                              {12.5, 19},
                              {12.5, 13.5},
                              {13.5, 13.5}});
  return glyph;
}

Glyph PlanGlyph() {
  Glyph glyph;
  for (const double y : {5.5, 12.0, 18.5}) glyph.lines.AddLine({{11, y}, {20.5, y}});
  AddCheck(glyph.accent_lines, 3, 5.5, 5);
  AddCheck(glyph.accent_lines, 3, 12, 5);
  glyph.accent_lines.AddRoundedRectangle(3.2, 16.4, 4.4, 4.4, 1);
  return glyph;
}

Glyph AllDaysGlyph() {
  Glyph glyph = Sheet(3.5, 5, 17, 15.5);
  for (const double y : {13.3, 17.0}) glyph.accent_lines.AddLine({{7.5, y}, {16.5, y}});
  return glyph;
}

Glyph BookGlyph() {
  Glyph glyph;
  for (const double side : {-1.0, 1.0}) {
    const auto x = [side](double from_spine) { return 12 + side * from_spine; };
    glyph.lines.MoveTo({12, 6.5});
    glyph.lines.CurveTo({x(2.5), 4.2}, {x(5.5), 4}, {x(9), 4.5});
    glyph.lines.LineTo({x(9), 18});
    glyph.lines.CurveTo({x(5.5), 17.5}, {x(2.5), 17.8}, {12, 20});
  }
  glyph.lines.AddLine({{12, 6.5}, {12, 20}});
  for (const double y : {9.0, 12.5}) glyph.accent_lines.AddLine({{15, y}, {18, y - 0.5}});
  return glyph;
}

Glyph YearGlyph() {
  Glyph glyph;
  for (const double y : {3.5, 10.0, 16.5}) {
    for (const double x : {3.5, 10.0, 16.5}) {
      GlyphPath& month = x == 10.0 && y == 10.0 ? glyph.accent_lines : glyph.lines;
      month.AddRoundedRectangle(x, y, 4, 4, 0.8);
    }
  }
  return glyph;
}

Glyph YearWindowGlyph() {
  Glyph glyph;
  glyph.lines.AddRoundedRectangle(3, 4, 18, 16, 2);
  glyph.lines.AddLine({{3, 8.5}, {21, 8.5}});
  for (const double y : {11.5, 15.5}) {
    for (const double x : {6.5, 11.0, 15.5}) glyph.accent_lines.AddRectangle(x, y, 2, 1.5);
  }
  return glyph;
}

Glyph YearBeforeGlyph() {
  Glyph glyph = Sheet(3.5, 5, 17, 15.5);
  glyph.accent_lines.AddLine({{13.5, 12.2}, {10.5, 15.2}, {13.5, 18.2}});
  return glyph;
}

Glyph YearAfterGlyph() {
  Glyph glyph = Sheet(3.5, 5, 17, 15.5);
  glyph.accent_lines.AddLine({{10.5, 12.2}, {13.5, 15.2}, {10.5, 18.2}});
  return glyph;
}

Glyph PrintGlyph() {
  Glyph glyph;
  glyph.lines.AddLine({{7, 8.5}, {7, 3.5}, {17, 3.5}, {17, 8.5}});
  glyph.lines.AddLine({{7, 16.5},
                       {4.5, 16.5},
                       {3.5, 15.5},
                       {3.5, 9.5},
                       {4.5, 8.5},
                       {19.5, 8.5},
                       {20.5, 9.5},
                       {20.5, 15.5},
                       {19.5, 16.5},
                       {17, 16.5}});
  glyph.accent_lines.AddRectangle(7, 13, 10, 7.5);
  return glyph;
}

Glyph SaveDocumentGlyph() {
  Glyph glyph;
  glyph.lines.AddLine({{10.5, 20.5}, {5, 20.5}, {5, 3.5}, {13, 3.5}, {18, 8.5}, {18, 11}});
  glyph.lines.AddLine({{12.5, 3.5}, {12.5, 9}, {18, 9}});
  glyph.lines.AddLine({{8, 12.5}, {12, 12.5}});
  AddSaveArrow(glyph.accent_lines);
  return glyph;
}

Glyph SavePictureGlyph() {
  Glyph glyph;
  glyph.lines.AddLine({{11, 18.5}, {3.5, 18.5}, {3.5, 4.5}, {20.5, 4.5}, {20.5, 11}});
  glyph.lines.AddLine({{3.5, 16}, {8.5, 10.5}, {12, 14.5}});
  glyph.lines.AddEllipse({15.5, 8.5}, 1.5, 1.5);
  AddSaveArrow(glyph.accent_lines);
  return glyph;
}

Glyph HistoryGlyph() {
  Glyph glyph;
  glyph.lines.AddArc({12, 12}, 8, 160, -300);
  glyph.lines.AddLine({{4.2, 4.5}, {4.2, 9.2}, {8.9, 9.2}});
  glyph.accent_lines.AddLine({{12, 7.5}, {12, 12.3}, {15.2, 14.2}});
  return glyph;
}

Glyph UndoGlyph() {
  Glyph glyph;
  glyph.accent_lines.AddLine({{8.5, 4.5}, {4, 9}, {8.5, 13.5}});
  glyph.lines.MoveTo({4.4, 9});
  glyph.lines.LineTo({14, 9});
  glyph.lines.CurveTo({21.8, 9}, {21.8, 19.5}, {14, 19.5});
  glyph.lines.LineTo({8, 19.5});
  return glyph;
}

Glyph ImportGlyph() {
  Glyph glyph;
  AddTray(glyph.lines);
  glyph.accent_lines.AddLine({{12, 3.5}, {12, 15}});
  glyph.accent_lines.AddLine({{7.5, 10.5}, {12, 15}, {16.5, 10.5}});
  return glyph;
}

Glyph ExportGlyph() {
  Glyph glyph;
  AddTray(glyph.lines);
  glyph.accent_lines.AddLine({{12, 15}, {12, 3.5}});
  glyph.accent_lines.AddLine({{7.5, 8}, {12, 3.5}, {16.5, 8}});
  return glyph;
}

Glyph FindGlyph() {
  Glyph glyph;
  glyph.lines.AddEllipse({10.3, 10.3}, 6.6, 6.6);
  glyph.accent_lines.AddLine({{15.4, 15.4}, {20.6, 20.6}});
  return glyph;
}

Glyph GoToDateGlyph() {
  Glyph glyph = Sheet(3.5, 5, 17, 15.5);
  glyph.accent_lines.AddLine({{7.5, 15.2}, {15.5, 15.2}});
  glyph.accent_lines.AddLine({{12.9, 12.6}, {15.7, 15.2}, {12.9, 17.8}});
  return glyph;
}

Glyph CurrencyGlyph() {
  Glyph glyph;
  glyph.lines.AddEllipse({12, 12}, 9, 9);
  glyph.accent_lines.MoveTo({15.2, 9.2});
  glyph.accent_lines.CurveTo({14.5, 7.2}, {9, 6.8}, {9, 9.6});
  glyph.accent_lines.CurveTo({9, 12.4}, {15.3, 11.4}, {15.3, 14.4});
  glyph.accent_lines.CurveTo({15.3, 17.2}, {9.2, 17}, {8.7, 14.8});
  glyph.accent_lines.AddLine({{12, 5.6}, {12, 18.4}});
  return glyph;
}

Glyph CalendarGlyph() {
  Glyph glyph = Sheet(3.5, 5, 17, 15.5);
  glyph.accent_solids.AddRoundedRectangle(13, 13.2, 4.6, 4.4, 1);
  for (const double y : {13.6, 17.2}) glyph.solids.AddEllipse({8, y}, 1.1, 1.1);
  return glyph;
}

Glyph QuestionGlyph() {
  Glyph glyph;
  glyph.accent_lines.AddEllipse({12, 12}, 9.5, 9.5);
  glyph.lines.MoveTo({9, 9.6});
  glyph.lines.CurveTo({9, 5.8}, {15, 5.8}, {15, 9.4});
  glyph.lines.CurveTo({15, 11.6}, {12, 11.6}, {12, 14});
  glyph.solids.AddEllipse({12, 17.2}, 1.15, 1.15);
  return glyph;
}

Glyph InformationGlyph() {
  Glyph glyph;
  glyph.accent_lines.AddEllipse({12, 12}, 9.5, 9.5);
  glyph.lines.AddLine({{12, 11}, {12, 17}});
  glyph.solids.AddEllipse({12, 7.4}, 1.15, 1.15);
  return glyph;
}

Glyph WarningGlyph() {
  Glyph glyph;
  glyph.accent_lines.AddLine({{12, 3}, {22, 20.5}, {2, 20.5}, {12, 3}});
  glyph.lines.AddLine({{12, 9.5}, {12, 14.5}});
  glyph.solids.AddEllipse({12, 17.6}, 1.15, 1.15);
  return glyph;
}

Glyph ErrorGlyph() {
  Glyph glyph;
  glyph.accent_lines.AddEllipse({12, 12}, 9.5, 9.5);
  AddCross(glyph.lines, 12, 12, 3.4);
  return glyph;
}

}  // namespace ferrowind::glyphs
