// The back office window: which database it works on, and what it says.
#include <QLabel>
#include <QLineEdit>

#include "tests/gui/host/host_desk.h"

namespace ferrowind::gui {
namespace {

class BackOffice : public HostTest {};

TEST_F(BackOffice, NamesTheDatabaseAndHasItsAddressForCopying) {
  EXPECT_EQ(Find<QLabel>(*back_office_, "database").text(), QStringLiteral("Calendars of this user"));
  auto& address = Find<QLineEdit>(*back_office_, "databaseAddress");
  EXPECT_EQ(address.text().toStdString(), "sqlite:" + DatabasePath());
  EXPECT_TRUE(address.isReadOnly());
  TabTo(address);
  Press(address, Qt::Key_A, Qt::ControlModifier);
  EXPECT_TRUE(address.hasSelectedText());
}

TEST_F(BackOffice, GrowsForATroubleAndIsDismissedByItsKeys) {
  back_office_->resize(520, 200);
  news_.ActionBegan({});
  news_.WriteEnded({"", 7, {}});
  news_.ActionEnded();
  EXPECT_THAT(TroubleIn(*back_office_), ::testing::HasSubstr("out of range"));
  Activate(*back_office_);
  Press(Find<QPushButton>(*back_office_, "openCalendars"), Qt::Key_Escape, Qt::ShiftModifier);
  EXPECT_EQ(TroubleIn(*back_office_), "");
  EXPECT_EQ(news_.Trouble(), "");
}

}  // namespace
}  // namespace ferrowind::gui
