#include <QFile>
#include <QSettings>
#include <cmath>
#include <random>

#include "ferrowind/adapters/qt/grid/grid_header.h"
#include "ferrowind/adapters/qt/grid/grid_widget.h"
#include "ferrowind/adapters/qt/grid/group_by_box.h"

#include "tests/gui/windows/windows_fixture.h"

namespace ferrowind::gui {
namespace {

/// Where the window keeps its settings in the ini file.
const QString kPlacement =
    QStringLiteral("Tessaro/Calendar/7E34C663-43BF-11d6-8AE5-0050228F1EE8/Window Calendars/");
const QString kLayout = QStringLiteral("Calendar/7E34C663-43BF-11d6-8AE5-0050228F1EE8/Layout");

class WindowSettingsTest : public WindowsTest {
 protected:
  void Store(const QString& key, const QVariant& value) const {
    QSettings(QString::fromStdString(desk_.SettingsPath()), QSettings::IniFormat).setValue(key, value);
  }
  [[nodiscard]] QVariant Stored(const QString& key) const {
    return QSettings(QString::fromStdString(desk_.SettingsPath()), QSettings::IniFormat).value(key);
  }
  [[nodiscard]] QByteArray SettingsBytes() const {
    QFile file(QString::fromStdString(desk_.SettingsPath()));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
  void WriteSettingsBytes(const QByteArray& bytes) const {
    QFile file(QString::fromStdString(desk_.SettingsPath()));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  void CloseCalendars() { CloseByFrame(Window()); }
  /// The window opens without a message, shows a calendar and closes.
  void ExpectUsable() {
    OpenCalendars();
    WalkToNode(Tree(), {"USD", "2028"});
    EXPECT_EQ(RowsOf(Days()), 366);
    CloseCalendars();
    EXPECT_FALSE(IsOpen());
  }
};

TEST_F(WindowSettingsTest, BringTheWindowBackToItsPlaceAndSize) {
  OpenCalendars();
  Window().setGeometry(37, 41, 812, 603);
  QCoreApplication::processEvents();
  const QRect placed = Window().geometry();
  CloseCalendars();
  OpenCalendars();
  EXPECT_EQ(Window().geometry(), placed);
}

TEST_F(WindowSettingsTest, BringBackTheGridsColumnsSortingAndGroups) {
  OpenDollar2028();
  Window().resize(1600, 900);
  ClickHeader(Days(), "Day of year");
  ClickTool(Window(), "ID_ShowHide");
  QCoreApplication::processEvents();
  auto& box = Find<qt::GridWidget>(Window(), "gexCalendar").Box();
  DragHeader(Days(), "Month name", box.mapToGlobal(box.rect().center()));
  auto& header = Days().Header();
  DragHeader(Days(), "Comment", header.viewport()->mapToGlobal(QPoint(3, header.height() / 2)));
  const int comment = ColumnOf(Days(), "Comment");
  ASSERT_EQ(header.visualIndex(comment), 0);
  const int edge = header.sectionViewportPosition(comment) + header.sectionSize(comment) - 1;
  QTest::mousePress(header.viewport(), Qt::LeftButton, {}, QPoint(edge, 5));
  QTest::mouseMove(header.viewport(), QPoint(edge + 50, 5));
  QTest::mouseRelease(header.viewport(), Qt::LeftButton, {}, QPoint(edge + 50, 5));
  const int width = header.sectionSize(comment);
  CloseCalendars();
  OpenCalendars();
  ClickNode(Tree(), {"USD", "2028"});
  EXPECT_EQ(Days().Header().visualIndex(comment), 0);
  EXPECT_EQ(Days().Header().sectionSize(comment), width);
  EXPECT_EQ(RowsOf(Days()), 366 + 12);
  EXPECT_EQ(CellText(Days(), 1, "Day of year"), "31");
}

TEST_F(WindowSettingsTest, OfAnotherKindNeverKeepTheWindowFromOpening) {
  const QVariant kinds[] = {QVariant(QStringLiteral("a text")),
                            QVariant(QStringLiteral("Boolean:True")),
                            QVariant(QStringLiteral("Date:2026-01-01")),
                            QVariant(QStringList{QStringLiteral("1"), QStringLiteral("2")}),
                            QVariant(QByteArray("\0\1\2", 3)),
                            QVariant(QRect(1, 2, 3, 4)),
                            QVariant()};
  for (const QVariant& kind : kinds) {
    for (const char* name : {"Left", "Top", "Width", "Height"}) Store(kPlacement + QLatin1String(name), kind);
    Store(kLayout, kind);
    ExpectUsable();
  }
}

TEST_F(WindowSettingsTest, OfAbsurdSizeNeverKeepTheWindowFromOpening) {
  for (const char* number : {"Single:1e38", "Single:-1e38", "Single:nan", "Single:inf", "Single:-inf",
                             "Double:1e300", "Long:2147483647", "Long:-2147483648",
                             "LongLong:9223372036854775807", "Integer:99999", "Single:", "Single:1e", "0"}) {
    for (const char* name : {"Left", "Top", "Width", "Height"}) {
      Store(kPlacement + QLatin1String(name), QLatin1String(number));
      ExpectUsable();
    }
  }
}

TEST_F(WindowSettingsTest, CutShortAtAnyByteNeverKeepTheWindowFromOpening) {
  ExpectUsable();
  const QByteArray whole = SettingsBytes();
  ASSERT_GT(whole.size(), 100);
  for (qsizetype length = 0; length < whole.size(); length += whole.size() / 12) {
    WriteSettingsBytes(whole.left(length));
    ExpectUsable();
  }
}

TEST_F(WindowSettingsTest, WithDamagedBytesNeverKeepTheWindowFromOpening) {
  ExpectUsable();
  const QByteArray whole = SettingsBytes();
  std::mt19937 random(20260501);
  for (int round = 0; round < 12; ++round) {
    QByteArray damaged = whole;
    for (int i = 0; i < 20; ++i) {
      damaged[static_cast<qsizetype>(random() % static_cast<unsigned>(damaged.size()))] =
          static_cast<char>(random() % 256);
    }
    WriteSettingsBytes(damaged);
    SCOPED_TRACE("round " + std::to_string(round));
    ExpectUsable();
  }
}

TEST_F(WindowSettingsTest, WithADamagedLayoutShowTheGridAsDesigned) {
  for (const char* layout :
       {"", "{", "[]", "{}", R"({"gridLayout":1})", R"({"gridLayout":1,"columns":[],"sort":[],"groups":[]})",
        R"({"gridLayout":1,"columns":[{"key":"FullDate","width":-5,"visible":true}],"sort":[],"groups":[]})",
        R"({"gridLayout":1,"columns":[{"key":"Nobody","width":50,"visible":true}],"sort":[],"groups":[]})",
        R"({"gridLayout":1,"columns":[{"key":"FullDate","width":50,"visible":true}],)"
        R"("sort":[{"column":"Nobody","order":1}],"groups":[{"column":"Nobody","order":7}]})"}) {
    Store(kLayout, QString::fromLatin1(layout));
    OpenDollar2028();
    EXPECT_EQ(Days().Header().visualIndex(0), 0) << layout;
    EXPECT_EQ(Days().Model()->Content().GroupKeys().Count(), 0) << layout;
    CloseCalendars();
  }
}

TEST_F(WindowSettingsTest, ThatPlaceTheWindowOffTheScreenAreAppliedAsTheyAre) {
  Store(kPlacement + QStringLiteral("Left"), QStringLiteral("Single:-30000"));
  Store(kPlacement + QStringLiteral("Top"), QStringLiteral("Single:45000"));
  OpenCalendars();
  EXPECT_NEAR(Window().x(), -2000, 5);
  EXPECT_NEAR(Window().y(), 3000, 5);
}

TEST_F(WindowSettingsTest, ThatCannotBeWrittenDoNotKeepTheWindowOpen) {
  OpenDollar2028();
  // A folder under the file's name cannot be written as a file.
  ASSERT_EQ(
      std::system(("rm -f '" + desk_.SettingsPath() + "' && mkdir '" + desk_.SettingsPath() + "'").c_str()),
      0);
  ExpectMessage(::testing::HasSubstr("Cannot write the setting Layout"));
  CloseCalendars();
  EXPECT_FALSE(IsOpen());
}

TEST_F(WindowSettingsTest, HideNoColumnAndShowNoneAgainstTheHost) {
  OpenCalendars();
  CloseCalendars();
  ASSERT_TRUE(Stored(kLayout).isValid());
  Control().Headers()->LocalNames("Comment")->SetVisible(false);
  OpenDollar2028();
  EXPECT_TRUE(Days().Header().isSectionHidden(ColumnOf(Days(), "Comment")));
  CloseCalendars();
  Control().Headers()->LocalNames("Comment")->SetVisible(true);
  OpenDollar2028();
  EXPECT_FALSE(Days().Header().isSectionHidden(ColumnOf(Days(), "Comment")));
}

}  // namespace
}  // namespace ferrowind::gui
