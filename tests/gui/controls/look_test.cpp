#include <QApplication>
#include <QImage>
#include <QPalette>
#include <array>

#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/look/contrast.h"
#include "ferrowind/adapters/qt/look/program_icon.h"
#include "ferrowind/adapters/qt/look/theme.h"
#include "ferrowind/adapters/qt/look/tool_looks.h"
#include "ferrowind/adapters/qt/look/tree_images.h"

namespace ferrowind::qt {
namespace {

constexpr const char* kTools[] = {"ID_Refresh",  "ID_New",          "ID_Expand",       "ID_Collapse",
                                  "ID_ShowHide", "ID_ExpandGrid",   "ID_CollapseGrid", "ID_ExpSel",
                                  "ID_Copy",     "ID_AssignSingle", "ID_AssignMany",   "ID_Except",
                                  "ID_Except2"};

QImage ImageOf(const QIcon& icon, int side, QIcon::Mode mode = QIcon::Normal) {
  return icon.pixmap(QSize(side, side), 1.0, mode).toImage().convertToFormat(QImage::Format_ARGB32);
}

/// The lightness of what is drawn, each pixel by how opaque it is; -1 when nothing is.
double LightnessOf(const QImage& image) {
  double weight = 0;
  double lightness = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QColor color = image.pixelColor(x, y);
      weight += color.alphaF();
      lightness += static_cast<double>(color.alphaF()) * color.lightness();
    }
  }
  return weight == 0 ? -1 : lightness / weight;
}

TEST(ToolLooks, GivesEveryToolAnIconOfItsOwn) {
  ApplyTheme(*qApp, Theme::kLight);
  QList<QImage> images;
  for (const char* tool : kTools) {
    const QImage image = ImageOf(ToolLookOf(tool).icon, 24);
    ASSERT_EQ(image.size(), QSize(24, 24)) << tool;
    EXPECT_FALSE(images.contains(image)) << tool;
    images << image;
  }
}

TEST(ToolLooks, HasNothingForAnUnknownTool) {
  EXPECT_TRUE(ToolLookOf("ID_Nowhere").icon.isNull());
  EXPECT_TRUE(ToolLookOf("ID_Nowhere").shortcut.isEmpty());
}

TEST(TreeImages, AreThoseOfCurrenciesAndCalendars) {
  EXPECT_NE(ImageOf(TreeImage("Currency"), 16), ImageOf(TreeImage("Calendar"), 16));
  EXPECT_TRUE(TreeImage("Nowhere").isNull());
}

TEST(LineIcon, FollowsTheTheme) {
  const QIcon icon = ToolLookOf("ID_Copy").icon;
  ApplyTheme(*qApp, Theme::kLight);
  const double on_light = LightnessOf(ImageOf(icon, 24));
  ApplyTheme(*qApp, Theme::kDark);
  const double on_dark = LightnessOf(ImageOf(icon, 24));
  EXPECT_GE(on_light, 0);
  EXPECT_LT(on_light, 128);
  EXPECT_GT(on_dark, 128);
}

TEST(LineIcon, IsFainterWhenDisabled) {
  ApplyTheme(*qApp, Theme::kLight);
  const QIcon icon = ToolLookOf("ID_Copy").icon;
  EXPECT_GT(LightnessOf(ImageOf(icon, 24, QIcon::Disabled)), LightnessOf(ImageOf(icon, 24)));
}

TEST(LineIcon, IsDrawnAnewForAHighResolution) {
  const QPixmap pixmap = ToolLookOf("ID_Copy").icon.pixmap(QSize(20, 20), 2.0);
  EXPECT_EQ(pixmap.size(), QSize(40, 40));
  EXPECT_EQ(pixmap.devicePixelRatio(), 2.0);
}

constexpr std::array kProgramIconSides = {16, 20, 22, 24, 32, 48, 64, 128, 256};

TEST(ProgramIcon, HasNoBlurredEdgeAtAnySize) {
  for (const int side : kProgramIconSides) {
    const QImage image = ImageOf(ProgramIcon(), side);
    ASSERT_EQ(image.size(), QSize(side, side));
    // Rounded corners apart, whatever is drawn is of the few colours of the design.
    QList<QColor> colors;
    for (int y = side * 6 / 16; y < side * 12 / 16; ++y) {
      for (int x = side * 4 / 16; x < side * 12 / 16; ++x) {
        const QColor color = image.pixelColor(x, y);
        EXPECT_EQ(color.alpha(), 255) << side;
        if (!colors.contains(color)) colors << color;
      }
    }
    EXPECT_EQ(colors.size(), 3) << side;
  }
}

TEST(ProgramIcon, OffersEachSizeThatDesktopsAskFor) {
  const QList<QSize> sizes = ProgramIcon().availableSizes();
  for (const int side : kProgramIconSides) EXPECT_TRUE(sizes.contains(QSize(side, side))) << side;
}

TEST(ProgramIcon, IsReadableOnLightAndDarkBars) {
  const QImage image = ImageOf(ProgramIcon(), 32);
  const QColor tile = image.pixelColor(2, 16);
  const QColor sheet = image.pixelColor(16, 12);
  EXPECT_GT(Contrast(tile, sheet), 3);
  for (const QColor bar : {QColor(0xff, 0xff, 0xff), QColor(0x1e, 0x1e, 0x1e)})
    EXPECT_GT(Contrast(tile, bar), 3) << bar.name().toStdString();
}

TEST(ProgramIcon, IsTheSameInEachTheme) {
  ApplyTheme(*qApp, Theme::kLight);
  const QImage on_light = ImageOf(ProgramIcon(), 32);
  ApplyTheme(*qApp, Theme::kDark);
  EXPECT_EQ(ImageOf(ProgramIcon(), 32), on_light);
}

TEST(ThemeTest, FollowsTheDesktopUnlessToldOtherwise) {
  // The desktop of tests is light.
  ApplyTheme(*qApp, Theme::kDark);
  EXPECT_LT(QApplication::palette().color(QPalette::Window).lightness(), 128);
  ApplyTheme(*qApp, Theme::kSystem);
  EXPECT_GT(QApplication::palette().color(QPalette::Window).lightness(), 128);
}

TEST(ThemeTest, IsReadableInBothThemes) {
  for (const Theme theme : {Theme::kLight, Theme::kDark}) {
    ApplyTheme(*qApp, theme);
    const QPalette palette = QApplication::palette();
    const auto contrast = [&](QPalette::ColorGroup group, QPalette::ColorRole text,
                              QPalette::ColorRole ground) {
      return Contrast(palette.color(group, text), palette.color(group, ground));
    };
    EXPECT_GT(contrast(QPalette::Active, QPalette::WindowText, QPalette::Window), 7);
    EXPECT_GT(contrast(QPalette::Active, QPalette::Text, QPalette::Base), 7);
    EXPECT_GT(contrast(QPalette::Active, QPalette::ButtonText, QPalette::Button), 7);
    EXPECT_GT(contrast(QPalette::Active, QPalette::HighlightedText, QPalette::Highlight), 4);
    EXPECT_GT(contrast(QPalette::Inactive, QPalette::HighlightedText, QPalette::Highlight), 7);
    EXPECT_GT(contrast(QPalette::Disabled, QPalette::WindowText, QPalette::Window), 2.5);
  }
}

}  // namespace
}  // namespace ferrowind::qt
