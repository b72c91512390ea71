#include "ferrowind/adapters/qt/look/theme_style.h"

#include <QPainter>
#include <QPlainTextEdit>
#include <QStyleFactory>
#include <QStyleOption>

#include "ferrowind/adapters/qt/look/blend.h"
#include "ferrowind/adapters/qt/look/message_images.h"

namespace ferrowind::qt {
namespace {

// How far from the window's colour towards that of texts.
constexpr double kEdgeStrength = 0.50;
constexpr double kDisabledStrength = 0.25;

constexpr qreal kCorner = 2;
constexpr qreal kLine = 1;
constexpr qreal kFocusLine = 2;

QColor EdgeColor(const QStyleOption& option) {
  const bool is_enabled = option.state.testFlag(QStyle::State_Enabled);
  return Blend(option.palette.color(QPalette::Active, QPalette::Window),
               option.palette.color(QPalette::Active, QPalette::WindowText),
               is_enabled ? kEdgeStrength : kDisabledStrength);
}

void DrawEdge(const QStyleOption& option, QPainter& painter, const QPen& pen, qreal corner) {
  const qreal inset = pen.widthF() / 2;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(option.rect).adjusted(inset, inset, -inset, -inset), corner, corner);
  painter.restore();
}

void DrawFieldEdge(const QStyleOption& option, QPainter& painter) {
  const bool has_focus = option.state.testFlag(QStyle::State_HasFocus);
  const QColor color = has_focus ? option.palette.color(QPalette::Link) : EdgeColor(option);
  DrawEdge(option, painter, QPen(color, has_focus ? kFocusLine : kLine), kCorner);
}

/// Such a text would tell the focus by nothing but its cursor, which is thin and comes and goes.
bool IsTextToRead(const QWidget* widget) { return qobject_cast<const QPlainTextEdit*>(widget) != nullptr; }

void DrawButtonEdge(const QStyleOption& option, QPainter& painter) {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
  const bool is_default = button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton) &&
                          option.state.testFlag(QStyle::State_Enabled) &&
                          !option.state.testFlag(QStyle::State_HasFocus);
  if (is_default) {
    DrawEdge(option, painter, QPen(option.palette.color(QPalette::Link), kLine), kCorner);
  } else {
    DrawFieldEdge(option, painter);
  }
}

/// Of a box to be checked, which its label tells to have the focus.
void DrawBoxEdge(const QStyleOption& option, QPainter& painter) {
  DrawEdge(option, painter, QPen(EdgeColor(option), kLine), kCorner);
}

void DrawPopupEdge(const QStyleOption& option, QPainter& painter) {
  QStyleOption enabled(option);
  enabled.state |= QStyle::State_Enabled;
  DrawEdge(option, painter, QPen(EdgeColor(enabled), kLine), 0);
}

}  // namespace

ThemeStyle::ThemeStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void ThemeStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  switch (element) {
    case PE_FrameLineEdit:
      DrawFieldEdge(*option, *painter);
      break;
    case PE_PanelButtonCommand:
      DrawButtonEdge(*option, *painter);
      break;
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
      DrawBoxEdge(*option, *painter);
      break;
    case PE_PanelMenu:
    case PE_FrameMenu:
    case PE_PanelTipLabel:
      DrawPopupEdge(*option, *painter);
      break;
    default:
      break;
  }
}

void ThemeStyle::drawItemText(QPainter* painter, const QRect& area, int flags, const QPalette& palette,
                              bool enabled, const QString& text, QPalette::ColorRole role) const {
  const Qt::LayoutDirection direction = painter->layoutDirection();
  const auto sides = QStyle::visualAlignment(direction, Qt::Alignment(flags & Qt::AlignHorizontal_Mask));
  const int others = flags & ~static_cast<int>(Qt::AlignHorizontal_Mask);
  painter->setLayoutDirection(Qt::LayoutDirectionAuto);
  QProxyStyle::drawItemText(painter, area, others | static_cast<int>(sides | Qt::AlignAbsolute), palette,
                            enabled, text, role);
  painter->setLayoutDirection(direction);
}

void ThemeStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
  if (element != CE_ShapedFrame || !IsTextToRead(widget))
    return QProxyStyle::drawControl(element, option, painter, widget);
  painter->fillRect(option->rect, option->palette.color(QPalette::Base));
  DrawFieldEdge(*option, *painter);
}

int ThemeStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  // What is inside of the frame would hide a part of the edge.
  if (metric == PM_DefaultFrameWidth && IsTextToRead(widget)) return static_cast<int>(kFocusLine);
  return QProxyStyle::pixelMetric(metric, option, widget);
}

void ThemeStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  const bool is_framed_spin_box = control == CC_SpinBox &&
                                  qstyleoption_cast<const QStyleOptionSpinBox*>(option) != nullptr &&
                                  qstyleoption_cast<const QStyleOptionSpinBox*>(option)->frame;
  if (is_framed_spin_box) DrawFieldEdge(*option, *painter);
  const bool has_focus = option->state.testFlag(State_HasFocus) && option->state.testFlag(State_Enabled);
  if (control == CC_ToolButton && has_focus) DrawFieldEdge(*option, *painter);
}

QIcon ThemeStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const {
  switch (icon) {
    case SP_MessageBoxQuestion:
      return MessageImage(MessageKind::kQuestion);
    case SP_MessageBoxInformation:
      return MessageImage(MessageKind::kInformation);
    case SP_MessageBoxWarning:
      return MessageImage(MessageKind::kWarning);
    case SP_MessageBoxCritical:
      return MessageImage(MessageKind::kError);
    default:
      return QProxyStyle::standardIcon(icon, option, widget);
  }
}

}  // namespace ferrowind::qt
