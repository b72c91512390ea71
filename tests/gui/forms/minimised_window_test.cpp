#include <QApplication>
#include <QSettings>
#include <string>

#include "ferrowind/adapters/qt/values/twips.h"

#include "tests/gui/windows/windows_fixture.h"

namespace ferrowind::gui {
namespace {

/// Closing a minimised window stores its position and size as they are told then, like those of any other
/// window: that is intended.
class MinimisedWindow : public WindowsTest {
 protected:
  /// A single-precision number, as the settings tell it.
  [[nodiscard]] float Stored(const char* name) const {
    const QString section =
        QStringLiteral("Tessaro/Calendar/7E34C663-43BF-11d6-8AE5-0050228F1EE8/Window Calendars/");
    const QString text = QSettings(QString::fromStdString(desk_.SettingsPath()), QSettings::IniFormat)
                             .value(section + QLatin1String(name))
                             .toString();
    const QString type = QStringLiteral("Single:");
    EXPECT_TRUE(text.startsWith(type)) << name << ": " << text.toStdString();
    return text.mid(type.size()).toFloat();
  }
  void ExpectStored(const QRect& frame) const {
    EXPECT_EQ(Stored("Left"), qt::TwipsX(frame.x()));
    EXPECT_EQ(Stored("Top"), qt::TwipsY(frame.y()));
    EXPECT_EQ(Stored("Width"), qt::TwipsX(frame.width()));
    EXPECT_EQ(Stored("Height"), qt::TwipsY(frame.height()));
  }
  /// Minimises the window as it stands, closes it, and gives the outer geometry that it had then.
  QRect CloseMinimised() {
    Window().showMinimized();
    QCoreApplication::processEvents();
    EXPECT_TRUE(Window().isMinimized());
    const QRect frame = Window().frameGeometry();
    CloseByFrame(Window());
    EXPECT_FALSE(IsOpen());
    return frame;
  }
};

TEST_F(MinimisedWindow, StoresThePlaceAndSizeThatItReportsAndTheNextOneTakesThem) {
  OpenCalendars();
  Window().setGeometry(37, 41, 812, 603);
  QCoreApplication::processEvents();
  const QRect reported = CloseMinimised();
  ExpectStored(reported);
  OpenCalendars();
  EXPECT_EQ(Window().frameGeometry(), reported);
  EXPECT_FALSE(Window().isMinimized());
}

TEST_F(MinimisedWindow, IsUsableAgainFromWhereverADesktopKeptIt) {
  OpenCalendars();
  Window().showMinimized();
  // Some desktops keep a minimised window far off the screen and with next to no size.
  Window().setGeometry(-32000, -32000, 160, 28);
  QCoreApplication::processEvents();
  const QRect reported = CloseMinimised();
  ASSERT_LT(reported.right(), -30000);
  ExpectStored(reported);
  OpenCalendars();
  EXPECT_EQ(Window().frameGeometry().size(), reported.size());
  constexpr int kAFrame = 5;
  EXPECT_NEAR(Window().x(), reported.x(), kAFrame);
  EXPECT_NEAR(Window().y(), reported.y(), kAFrame);
  WalkToNode(Tree(), {"USD", "2028"});
  EXPECT_EQ(RowsOf(Days()), 366);
}

}  // namespace
}  // namespace ferrowind::gui
