#pragma once

#include <QPainterPath>
#include <QPointF>
#include <initializer_list>

namespace ferrowind::qt {

// What drawings of glyphs are made of, added to a path.

/// A line through the points, of which there is at least one.
void AddLine(QPainterPath& path, std::initializer_list<QPointF> points);
/// About the point (x, y), to the length of an arm on each side.
void AddPlus(QPainterPath& path, qreal x, qreal y, qreal arm);
void AddMinus(QPainterPath& path, qreal x, qreal y, qreal arm);
void AddCross(QPainterPath& path, qreal x, qreal y, qreal arm);
/// From its left end at (x, y), of that width.
void AddCheck(QPainterPath& path, qreal x, qreal y, qreal size);

}  // namespace ferrowind::qt
