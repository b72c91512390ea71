// A form that a host has made a part of its own window.
#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <memory>

#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/forms/form_window.h"
#include "ferrowind/adapters/qt/forms/qt_toolkit.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {
namespace {

using platform::ControlKind;

platform::FormDesign Design() {
  return {.name = "fmPart",
          .caption = "Part",
          .client_width = 3600,
          .client_height = 1500,
          .closes_by_escape = true,
          .controls = {{ControlKind::kTextBox, "txtLine"}, {ControlKind::kButton, "cmdGo", "Go"}}};
}

FormLayouts Layouts() {
  FormLayouts layouts;
  layouts.Add("fmPart", [](QDialog& window) {
    auto* const layout = new QVBoxLayout(&window);
    auto* const line = new QLineEdit;
    line->setObjectName(QStringLiteral("txtLine"));
    auto* const button = new QPushButton;
    button->setObjectName(QStringLiteral("cmdGo"));
    layout->addWidget(line);
    layout->addWidget(button);
  });
  return layouts;
}

class PlacedForm : public ::testing::Test {
 protected:
  PlacedForm() {
    auto* const layout = new QVBoxLayout(&host_);
    layout->addWidget(place_);
    (void)new QVBoxLayout(place_);
    host_.resize(500, 400);
    toolkit_.PlaceForm("fmPart", *place_);
    form_ = toolkit_.CreateForm(Design());
  }
  ~PlacedForm() override {
    form_.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  [[nodiscard]] FormWindow* Part() const { return place_->findChild<FormWindow*>(QStringLiteral("fmPart")); }
  void ShowBoth() {
    form_->Show();
    host_.show();
    host_.activateWindow();
    QCoreApplication::processEvents();
  }

  QWidget host_;
  QWidget* place_ = new QWidget;
  QtToolkit toolkit_{Layouts()};
  std::shared_ptr<platform::Form> form_;
};

TEST_F(PlacedForm, FillsItsPlaceInTheWindowAroundIt) {
  ShowBoth();
  ASSERT_NE(Part(), nullptr);
  EXPECT_FALSE(Part()->isWindow());
  EXPECT_TRUE(Part()->isVisible());
  EXPECT_TRUE(form_->IsShown());
  EXPECT_EQ(Part()->width(), place_->contentsRect().width() - place_->layout()->contentsMargins().left() -
                                 place_->layout()->contentsMargins().right());
  const QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(Part());
  EXPECT_EQ(accessible->role(), QAccessible::Grouping);
}

TEST_F(PlacedForm, AnotherOneOfItsNameIsAWindow) {
  const auto other = toolkit_.CreateForm(Design());
  EXPECT_EQ(place_->findChildren<FormWindow*>().size(), 1);
}

TEST_F(PlacedForm, ShowingItDoesNotShowTheWindowAroundIt) {
  form_->Show();
  EXPECT_FALSE(host_.isVisible());
  EXPECT_FALSE(form_->IsShown());
}

TEST_F(PlacedForm, HasNoSizeAndNoPlaceOfItsOwn) {
  ShowBoth();
  const QRect before = Part()->geometry();
  form_->SetLeft(9000);
  form_->SetTop(9000);
  form_->SetWidth(900);
  form_->SetHeight(900);
  QCoreApplication::processEvents();
  EXPECT_EQ(Part()->geometry(), before);
}

TEST_F(PlacedForm, IsNotClosedByEscapeNorWithTheWindowsOfTheSession) {
  ShowBoth();
  auto* const line = Part()->findChild<QLineEdit*>();
  line->setFocus();
  QTest::keyClick(line, Qt::Key_Escape);
  EXPECT_TRUE(form_->IsShown());
  EXPECT_TRUE(toolkit_.CloseForms());
  EXPECT_TRUE(form_->IsShown());
}

TEST_F(PlacedForm, EnterPressesItsFocusedButton) {
  int clicks = 0;
  const auto clicked = platform::ControlOf<platform::Button>(*form_, "cmdGo").OnClick([&] { ++clicks; });
  ShowBoth();
  auto* const button = Part()->findChild<QPushButton*>();
  button->setFocus();
  QTest::keyClick(button, Qt::Key_Return);
  EXPECT_EQ(clicks, 1);
}

TEST_F(PlacedForm, CannotBeShownModally) { EXPECT_THROW(form_->ShowModal(), platform::Failure); }

TEST_F(PlacedForm, LeavesItsPlaceWhenItIsDropped) {
  ShowBoth();
  form_.reset();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(Part(), nullptr);
  EXPECT_TRUE(host_.isVisible());
}

}  // namespace
}  // namespace ferrowind::qt
