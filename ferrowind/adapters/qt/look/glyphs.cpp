#include "ferrowind/adapters/qt/look/glyphs.h"

#include "ferrowind/adapters/qt/look/glyph_paths.h"

namespace ferrowind::qt {
namespace {

/// A sheet with two rings and a line under its head.
Glyph Sheet(qreal left, qreal top, qreal width, qreal height) {
  Glyph glyph;
  glyph.lines.addRoundedRect(left, top, width, height, 2, 2);
  AddLine(glyph.lines, {{left, top + 5}, {left + width, top + 5}});
  AddLine(glyph.lines, {{left + width * 0.28, top - 2}, {left + width * 0.28, top + 1.5}});
  AddLine(glyph.lines, {{left + width * 0.72, top - 2}, {left + width * 0.72, top + 1.5}});
  return glyph;
}

/// Three lines of a list, leaving room on the left.
void AddRows(QPainterPath& path) {
  for (const qreal y : {6.0, 12.0, 18.0}) AddLine(path, {{11, y}, {20.5, y}});
}

/// Down onto a line, at the lower right.
void AddSaveArrow(QPainterPath& path) {
  AddLine(path, {{17.5, 12.5}, {17.5, 19}});
  AddLine(path, {{14.8, 16.5}, {17.5, 19.2}, {20.2, 16.5}});
  AddLine(path, {{14, 21.5}, {21, 21.5}});
}

/// Open above, for what is put in or taken out.
void AddTray(QPainterPath& path) { AddLine(path, {{4, 14.5}, {4, 20}, {20, 20}, {20, 14.5}}); }

/// A small tree of a parent and two children, leaving room at the lower right.
void AddBranches(QPainterPath& path) {
  path.addRoundedRect(3, 3, 8, 5, 1.2, 1.2);
  AddLine(path, {{7, 8}, {7, 18.5}, {10.5, 18.5}});
  AddLine(path, {{7, 12.5}, {10.5, 12.5}});
}

}  // namespace

Glyph RefreshGlyph() {
  Glyph glyph;
  glyph.lines.arcMoveTo(4, 4, 16, 16, 35);
  glyph.lines.arcTo(4, 4, 16, 16, 35, 140);
  glyph.lines.arcMoveTo(4, 4, 16, 16, 215);
  glyph.lines.arcTo(4, 4, 16, 16, 215, 140);
  AddLine(glyph.accent_lines, {{19.5, 3.5}, {19.5, 8}, {15, 8}});
  AddLine(glyph.accent_lines, {{4.5, 20.5}, {4.5, 16}, {9, 16}});
  return glyph;
}

Glyph NewCalendarGlyph() {
  Glyph glyph;
  AddLine(glyph.lines,
          {{11, 20}, {5, 20}, {3.5, 18.5}, {3.5, 6.5}, {5, 5}, {18, 5}, {19.5, 6.5}, {19.5, 11}});
  AddLine(glyph.lines, {{3.5, 10}, {19.5, 10}});
  AddLine(glyph.lines, {{8, 3}, {8, 6.5}});
  AddLine(glyph.lines, {{15, 3}, {15, 6.5}});
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
  glyph.lines.addRoundedRect(3, 3.5, 18, 17, 2, 2);
  AddLine(glyph.lines, {{3, 15}, {21, 15}});
  AddLine(glyph.lines, {{12, 10}, {12, 20.5}});
  AddLine(glyph.lines, {{3, 10}, {21, 10}});
  glyph.accent_solids.addRoundedRect(5.4, 5.3, 6.2, 3, 1, 1);
  return glyph;
}

Glyph ExpandRowsGlyph() {
  Glyph glyph;
  AddRows(glyph.lines);
  AddLine(glyph.accent_lines, {{2.5, 7.5}, {5.5, 4.5}, {8.5, 7.5}});
  AddLine(glyph.accent_lines, {{5.5, 5}, {5.5, 19}});
  AddLine(glyph.accent_lines, {{2.5, 16.5}, {5.5, 19.5}, {8.5, 16.5}});
  return glyph;
}

Glyph CollapseRowsGlyph() {
  Glyph glyph;
  AddRows(glyph.lines);
  AddLine(glyph.accent_lines, {{2.5, 5}, {5.5, 8}, {8.5, 5}});
  AddLine(glyph.accent_lines, {{5.5, 3}, {5.5, 8}});
  AddLine(glyph.accent_lines, {{2.5, 19}, {5.5, 16}, {8.5, 19}});
  AddLine(glyph.accent_lines, {{5.5, 21}, {5.5, 16}});
  return glyph;
}

Glyph ExpandSelectionGlyph() {
  Glyph glyph;
  AddLine(glyph.lines, {{4, 5}, {20, 5}});
  AddLine(glyph.lines, {{4, 19}, {20, 19}});
  glyph.accent_lines.addRoundedRect(3.2, 8.5, 17.6, 7, 1.5, 1.5);
  AddPlus(glyph.accent_lines, 7.5, 12, 1.8);
  AddLine(glyph.accent_lines, {{12, 12}, {18, 12}});
  return glyph;
}

Glyph CopyGlyph() {
  Glyph glyph;
  AddLine(glyph.lines, {{16, 4.7}, {15.2, 3.5}, {5, 3.5}, {3.5, 5}, {3.5, 15.2}, {4.7, 16}});
  glyph.lines.addRoundedRect(8, 8, 12.5, 12.5, 1.8, 1.8);
  AddLine(glyph.accent_lines, {{11, 12.3}, {17.5, 12.3}});
  AddLine(glyph.accent_lines, {{11, 16.2}, {17.5, 16.2}});
  return glyph;
}

Glyph AssignOneGlyph() {
  Glyph glyph = Sheet(3.5, 5, 17, 15.5);
  AddCheck(glyph.accent_lines, 8.3, 15, 7.4);
  return glyph;
}

Glyph AssignManyGlyph() {
  Glyph glyph = Sheet(3.5, 5, 17, 15.5);
  for (const qreal y : {13.3, 17.0}) {
    for (const qreal x : {8.0, 12.0, 16.0}) glyph.accent_solids.addEllipse(QPointF(x, y), 1.3, 1.3);
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
  AddLine(glyph.lines,
          {{20.5, 11}, {20.5, 6.5}, {19, 5}, {5, 5}, {3.5, 6.5}, {3.5, 19}, {5, 20.5}, {8.5, 20.5}});
  AddLine(glyph.lines, {{3.5, 10}, {20.5, 10}});
  AddLine(glyph.lines, {{8.2, 3}, {8.2, 6.5}});
  AddLine(glyph.lines, {{15.8, 3}, {15.8, 6.5}});
  AddCross(glyph.lines, 7.7, 14.5, 1.9);
  AddLine(glyph.accent_lines, {{13.5, 13.5},
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
  for (const qreal y : {5.5, 12.0, 18.5}) AddLine(glyph.lines, {{11, y}, {20.5, y}});
  AddCheck(glyph.accent_lines, 3, 5.5, 5);
  AddCheck(glyph.accent_lines, 3, 12, 5);
  glyph.accent_lines.addRoundedRect(3.2, 16.4, 4.4, 4.4, 1, 1);
  return glyph;
}

Glyph AllDaysGlyph() {
  Glyph glyph = Sheet(3.5, 5, 17, 15.5);
  for (const qreal y : {13.3, 17.0}) AddLine(glyph.accent_lines, {{7.5, y}, {16.5, y}});
  return glyph;
}

Glyph BookGlyph() {
  Glyph glyph;
  for (const qreal side : {-1.0, 1.0}) {
    const auto x = [side](qreal from_spine) { return 12 + side * from_spine; };
    glyph.lines.moveTo(12, 6.5);
    glyph.lines.cubicTo(x(2.5), 4.2, x(5.5), 4, x(9), 4.5);
    glyph.lines.lineTo(x(9), 18);
    glyph.lines.cubicTo(x(5.5), 17.5, x(2.5), 17.8, 12, 20);
  }
  AddLine(glyph.lines, {{12, 6.5}, {12, 20}});
  for (const qreal y : {9.0, 12.5}) AddLine(glyph.accent_lines, {{15, y}, {18, y - 0.5}});
  return glyph;
}

Glyph YearGlyph() {
  Glyph glyph;
  for (const qreal y : {3.5, 10.0, 16.5}) {
    for (const qreal x : {3.5, 10.0, 16.5}) {
      QPainterPath& month = x == 10.0 && y == 10.0 ? glyph.accent_lines : glyph.lines;
      month.addRoundedRect(x, y, 4, 4, 0.8, 0.8);
    }
  }
  return glyph;
}

Glyph YearWindowGlyph() {
  Glyph glyph;
  glyph.lines.addRoundedRect(3, 4, 18, 16, 2, 2);
  AddLine(glyph.lines, {{3, 8.5}, {21, 8.5}});
  for (const qreal y : {11.5, 15.5}) {
    for (const qreal x : {6.5, 11.0, 15.5}) glyph.accent_lines.addRect(x, y, 2, 1.5);
  }
  return glyph;
}

Glyph YearBeforeGlyph() {
  Glyph glyph = Sheet(3.5, 5, 17, 15.5);
  AddLine(glyph.accent_lines, {{13.5, 12.2}, {10.5, 15.2}, {13.5, 18.2}});
  return glyph;
}

Glyph YearAfterGlyph() {
  Glyph glyph = Sheet(3.5, 5, 17, 15.5);
  AddLine(glyph.accent_lines, {{10.5, 12.2}, {13.5, 15.2}, {10.5, 18.2}});
  return glyph;
}

Glyph PrintGlyph() {
  Glyph glyph;
  AddLine(glyph.lines, {{7, 8.5}, {7, 3.5}, {17, 3.5}, {17, 8.5}});
  AddLine(glyph.lines, {{7, 16.5},
                        {4.5, 16.5},
                        {3.5, 15.5},
                        {3.5, 9.5},
                        {4.5, 8.5},
                        {19.5, 8.5},
                        {20.5, 9.5},
                        {20.5, 15.5},
                        {19.5, 16.5},
                        {17, 16.5}});
  glyph.accent_lines.addRect(7, 13, 10, 7.5);
  return glyph;
}

Glyph SaveDocumentGlyph() {
  Glyph glyph;
  AddLine(glyph.lines, {{10.5, 20.5}, {5, 20.5}, {5, 3.5}, {13, 3.5}, {18, 8.5}, {18, 11}});
  AddLine(glyph.lines, {{12.5, 3.5}, {12.5, 9}, {18, 9}});
  AddLine(glyph.lines, {{8, 12.5}, {12, 12.5}});
  AddSaveArrow(glyph.accent_lines);
  return glyph;
}

Glyph SavePictureGlyph() {
  Glyph glyph;
  AddLine(glyph.lines, {{11, 18.5}, {3.5, 18.5}, {3.5, 4.5}, {20.5, 4.5}, {20.5, 11}});
  AddLine(glyph.lines, {{3.5, 16}, {8.5, 10.5}, {12, 14.5}});
  glyph.lines.addEllipse(14, 7, 3, 3);
  AddSaveArrow(glyph.accent_lines);
  return glyph;
}

Glyph HistoryGlyph() {
  Glyph glyph;
  glyph.lines.arcMoveTo(4, 4, 16, 16, 160);
  glyph.lines.arcTo(4, 4, 16, 16, 160, -300);
  AddLine(glyph.lines, {{4.2, 4.5}, {4.2, 9.2}, {8.9, 9.2}});
  AddLine(glyph.accent_lines, {{12, 7.5}, {12, 12.3}, {15.2, 14.2}});
  return glyph;
}

Glyph UndoGlyph() {
  Glyph glyph;
  AddLine(glyph.accent_lines, {{8.5, 4.5}, {4, 9}, {8.5, 13.5}});
  glyph.lines.moveTo(4.4, 9);
  glyph.lines.lineTo(14, 9);
  glyph.lines.cubicTo(21.8, 9, 21.8, 19.5, 14, 19.5);
  glyph.lines.lineTo(8, 19.5);
  return glyph;
}

Glyph ImportGlyph() {
  Glyph glyph;
  AddTray(glyph.lines);
  AddLine(glyph.accent_lines, {{12, 3.5}, {12, 15}});
  AddLine(glyph.accent_lines, {{7.5, 10.5}, {12, 15}, {16.5, 10.5}});
  return glyph;
}

Glyph ExportGlyph() {
  Glyph glyph;
  AddTray(glyph.lines);
  AddLine(glyph.accent_lines, {{12, 15}, {12, 3.5}});
  AddLine(glyph.accent_lines, {{7.5, 8}, {12, 3.5}, {16.5, 8}});
  return glyph;
}

Glyph FindGlyph() {
  Glyph glyph;
  glyph.lines.addEllipse(QPointF(10.3, 10.3), 6.6, 6.6);
  AddLine(glyph.accent_lines, {{15.4, 15.4}, {20.6, 20.6}});
  return glyph;
}

Glyph GoToDateGlyph() {
  Glyph glyph = Sheet(3.5, 5, 17, 15.5);
  AddLine(glyph.accent_lines, {{7.5, 15.2}, {15.5, 15.2}});
  AddLine(glyph.accent_lines, {{12.9, 12.6}, {15.7, 15.2}, {12.9, 17.8}});
  return glyph;
}

Glyph CurrencyGlyph() {
  Glyph glyph;
  glyph.lines.addEllipse(QPointF(12, 12), 9, 9);
  glyph.accent_lines.moveTo(15.2, 9.2);
  glyph.accent_lines.cubicTo(14.5, 7.2, 9, 6.8, 9, 9.6);
  glyph.accent_lines.cubicTo(9, 12.4, 15.3, 11.4, 15.3, 14.4);
  glyph.accent_lines.cubicTo(15.3, 17.2, 9.2, 17, 8.7, 14.8);
  AddLine(glyph.accent_lines, {{12, 5.6}, {12, 18.4}});
  return glyph;
}

Glyph CalendarGlyph() {
  Glyph glyph = Sheet(3.5, 5, 17, 15.5);
  glyph.accent_solids.addRoundedRect(13, 13.2, 4.6, 4.4, 1, 1);
  for (const qreal y : {13.6, 17.2}) glyph.solids.addEllipse(QPointF(8, y), 1.1, 1.1);
  return glyph;
}

Glyph QuestionGlyph() {
  Glyph glyph;
  glyph.accent_lines.addEllipse(QPointF(12, 12), 9.5, 9.5);
  glyph.lines.moveTo(9, 9.6);
  glyph.lines.cubicTo(9, 5.8, 15, 5.8, 15, 9.4);
  glyph.lines.cubicTo(15, 11.6, 12, 11.6, 12, 14);
  glyph.solids.addEllipse(QPointF(12, 17.2), 1.15, 1.15);
  return glyph;
}

Glyph InformationGlyph() {
  Glyph glyph;
  glyph.accent_lines.addEllipse(QPointF(12, 12), 9.5, 9.5);
  AddLine(glyph.lines, {{12, 11}, {12, 17}});
  glyph.solids.addEllipse(QPointF(12, 7.4), 1.15, 1.15);
  return glyph;
}

Glyph WarningGlyph() {
  Glyph glyph;
  AddLine(glyph.accent_lines, {{12, 3}, {22, 20.5}, {2, 20.5}, {12, 3}});
  AddLine(glyph.lines, {{12, 9.5}, {12, 14.5}});
  glyph.solids.addEllipse(QPointF(12, 17.6), 1.15, 1.15);
  return glyph;
}

Glyph ErrorGlyph() {
  Glyph glyph;
  glyph.accent_lines.addEllipse(QPointF(12, 12), 9.5, 9.5);
  AddCross(glyph.lines, 12, 12, 3.4);
  return glyph;
}

}  // namespace ferrowind::qt
