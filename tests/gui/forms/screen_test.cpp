#include <QGuiApplication>
#include <QScreen>

#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/forms/qt_toolkit.h"
#include "ferrowind/adapters/qt/values/twips.h"

namespace ferrowind::qt {
namespace {

TEST(ScreenWithAPanel, IsMeasuredWhole) {
  const QScreen& screen = *QGuiApplication::primaryScreen();
  ASSERT_NE(screen.availableSize(), screen.size());
  const QtToolkit toolkit;
  EXPECT_EQ(toolkit.Screen().width, TwipsX(screen.size().width()));
  EXPECT_EQ(toolkit.Screen().height, TwipsY(screen.size().height()));
}

}  // namespace
}  // namespace ferrowind::qt
