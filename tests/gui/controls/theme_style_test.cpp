// What the theme draws so that it can be seen: edges, the keyboard's place, the images of messages.
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/controls/question_image.h"
#include "ferrowind/adapters/qt/look/contrast.h"
#include "ferrowind/adapters/qt/look/text_line.h"
#include "ferrowind/adapters/qt/look/theme.h"

namespace ferrowind::qt {
namespace {

/// What a mark must stand out from its surroundings by, to be found by those who see little contrast.
constexpr double kVisible = 3;

/// The strongest contrast to `ground` on the way of `steps` pixels to the right.
double StrongestContrast(const QImage& picture, QPoint from, int steps, const QColor& ground) {
  double strongest = 1;
  for (int step = 0; step < steps; ++step)
    strongest = std::max(strongest, Contrast(picture.pixelColor(from + QPoint(step, 0)), ground));
  return strongest;
}

class EdgeTest : public ::testing::TestWithParam<Theme> {
 protected:
  EdgeTest() {
    ApplyTheme(*qApp, GetParam());
    auto* layout = new QVBoxLayout(&window_);
    layout->addWidget(&first_);
    layout->addWidget(&line_);
    layout->addWidget(&list_);
    layout->addWidget(&date_);
    layout->addWidget(&spin_date_);
    layout->addWidget(&button_);
    list_.addItems({"Holiday", "Celebration"});
    date_.setCalendarPopup(true);
    window_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window_));
    window_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    first_.setFocus();
  }

  /// From outside the widget to its inside, across its left edge: the strongest contrast to the outside.
  [[nodiscard]] double EdgeContrast(const QWidget& widget) {
    constexpr int kOutside = 3;
    const QImage picture = window_.grab().toImage();
    const QPoint start(widget.x() - kOutside, widget.geometry().center().y());
    return StrongestContrast(picture, start, kOutside + 2, picture.pixelColor(start));
  }
  /// The contrast of a popup's edge to what it covers.
  [[nodiscard]] static double PopupEdgeContrast(QWidget& popup) {
    const QImage picture = popup.grab().toImage();
    const QPalette palette = QApplication::palette();
    const QPoint edge(0, picture.height() / 2);
    return std::min(StrongestContrast(picture, edge, 2, palette.color(QPalette::Window)),
                    StrongestContrast(picture, edge, 2, palette.color(QPalette::Base)));
  }

  QWidget window_;
  QPushButton first_{"First"};
  QLineEdit line_;
  QComboBox list_;
  QDateEdit date_;
  QDateEdit spin_date_;
  QPushButton button_{"Ok"};
};

TEST_P(EdgeTest, ShowsWhereAFieldIs) {
  EXPECT_GE(EdgeContrast(line_), kVisible);
  EXPECT_GE(EdgeContrast(list_), kVisible);
  EXPECT_GE(EdgeContrast(date_), kVisible);
  EXPECT_GE(EdgeContrast(spin_date_), kVisible);
}

TEST_P(EdgeTest, ShowsWhereAButtonIs) {
  EXPECT_GE(EdgeContrast(button_), kVisible);
  button_.setDefault(true);
  EXPECT_GE(EdgeContrast(button_), kVisible);
}

TEST_P(EdgeTest, ShowsWhichFieldHasTheKeyboard) {
  for (QWidget* widget : {static_cast<QWidget*>(&line_), static_cast<QWidget*>(&list_),
                          static_cast<QWidget*>(&date_), static_cast<QWidget*>(&button_)}) {
    first_.setFocus();
    const QPoint edge(widget->x(), widget->geometry().center().y());
    const QColor without = window_.grab().toImage().pixelColor(edge);
    widget->setFocus(Qt::TabFocusReason);
    EXPECT_GE(EdgeContrast(*widget), kVisible);
    // By more than its lightness: the colour of links is no grey.
    const QColor with = window_.grab().toImage().pixelColor(edge);
    EXPECT_GT(with.hsvSaturation(), without.hsvSaturation() + 60) << widget->metaObject()->className();
  }
}

TEST_P(EdgeTest, IsQuieterAroundADisabledField) {
  const double enabled = EdgeContrast(line_);
  line_.setEnabled(false);
  EXPECT_LT(EdgeContrast(line_), enabled);
}

TEST_P(EdgeTest, ShowsWhereAMenuEnds) {
  QMenu menu;
  menu.addAction("Except day");
  menu.popup({100, 100});
  EXPECT_GE(PopupEdgeContrast(menu), kVisible);
}

TEST_P(EdgeTest, ShowsWhereADropDownListEnds) {
  list_.showPopup();
  EXPECT_GE(PopupEdgeContrast(*list_.view()->window()), kVisible);
  list_.hidePopup();
}

INSTANTIATE_TEST_SUITE_P(Themes, EdgeTest, ::testing::Values(Theme::kLight, Theme::kDark),
                         [](const auto& theme) { return theme.param == Theme::kDark ? "Dark" : "Light"; });

TEST(MessageImages, AreDrawnForTheResolutionThatIsAskedFor) {
  ApplyTheme(*qApp, Theme::kLight);
  for (const auto kind : {QStyle::SP_MessageBoxQuestion, QStyle::SP_MessageBoxInformation,
                          QStyle::SP_MessageBoxWarning, QStyle::SP_MessageBoxCritical}) {
    const QIcon icon = QApplication::style()->standardIcon(kind);
    for (const qreal scale : {1.0, 1.5, 2.0}) {
      const QPixmap pixmap = icon.pixmap(QSize(48, 48), scale);
      EXPECT_EQ(pixmap.size(), QSize(48, 48) * scale) << kind;
      EXPECT_EQ(pixmap.deviceIndependentSize(), QSizeF(48, 48)) << kind;
    }
  }
}

TEST(MessageImages, TellTheKindsApart) {
  ApplyTheme(*qApp, Theme::kDark);
  QList<QImage> images;
  for (const auto icon :
       {QMessageBox::Question, QMessageBox::Information, QMessageBox::Warning, QMessageBox::Critical}) {
    QMessageBox box(icon, "title", "text");
    const QImage image = box.iconPixmap().toImage();
    EXPECT_FALSE(images.contains(image)) << icon;
    images << image;
  }
}

TEST(TextDirectionTest, IsThatOfTheTextOnAButtonInAWindowThatIsReadFromTheRight) {
  ApplyTheme(*qApp, Theme::kLight);
  for (const char* text : {"Rule book...", "2026, this year"}) {
    QPushButton button{QString::fromLatin1(text)};
    button.resize(160, 30);
    const QImage picture = button.grab().toImage();
    button.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(button.grab().toImage(), picture) << text;
  }
}

/// What `DrawTextLine` draws for a painter of that direction.
QImage LineDrawn(Qt::LayoutDirection direction, Qt::Alignment alignment, const QString& text) {
  QImage picture(200, 30, QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setLayoutDirection(direction);
  DrawTextLine(painter, QRectF(0, 0, 200, 30), alignment | Qt::AlignVCenter, text);
  EXPECT_EQ(painter.layoutDirection(), direction);
  return picture;
}

TEST(TextDirectionTest, IsThatOfTheTextInALineWhoseSidesAreThoseOfTheWindow) {
  const QString english = QStringLiteral("30 working days.");
  const QString arabic = QStringLiteral("\u064A\u0646\u0627\u064A\u0631 2028.");
  for (const QString& text : {english, arabic}) {
    const QImage left = LineDrawn(Qt::LeftToRight, Qt::AlignLeading, text);
    const QImage right = LineDrawn(Qt::LeftToRight, Qt::AlignTrailing, text);
    EXPECT_NE(left, right);
    EXPECT_EQ(LineDrawn(Qt::RightToLeft, Qt::AlignLeading, text), right) << text.toStdString();
    EXPECT_EQ(LineDrawn(Qt::RightToLeft, Qt::AlignTrailing, text), left) << text.toStdString();
  }
}

/// The picture of a widget as a screen of that resolution shows it.
QImage PictureAt(QWidget& widget, qreal scale) {
  QImage picture((QSizeF(widget.size()) * scale).toSize(), QImage::Format_ARGB32);
  picture.setDevicePixelRatio(scale);
  picture.fill(Qt::transparent);
  widget.render(&picture, {}, {}, QWidget::DrawChildren);
  return picture;
}

TEST(QuestionImageTest, IsDrawnAnewForAHighResolution) {
  ApplyTheme(*qApp, Theme::kLight);
  QuestionImage widget;
  widget.resize(widget.sizeHint());
  for (const qreal scale : {1.5, 2.0}) {
    const QImage sharp = PictureAt(widget, scale);
    QImage blown_up =
        PictureAt(widget, 1).scaled(sharp.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    blown_up.setDevicePixelRatio(scale);
    // A picture that is blown up has more half-tones.
    const auto half_tones = [](const QImage& image) {
      int count = 0;
      for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
          const int alpha = qAlpha(image.pixel(x, y));
          if (alpha > 0 && alpha < 255) ++count;
        }
      }
      return count;
    };
    EXPECT_GT(half_tones(sharp), 0);
    EXPECT_LT(half_tones(sharp) * 4, half_tones(blown_up) * 3) << scale;
  }
}

}  // namespace
}  // namespace ferrowind::qt
