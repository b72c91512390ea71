#include "ferrowind/adapters/qt/forms/form_window.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/controls/date_field.h"
#include "ferrowind/adapters/qt/controls/element.h"
#include "ferrowind/adapters/qt/controls/refusal_note.h"
#include "ferrowind/adapters/qt/controls/tree_view.h"
#include "ferrowind/adapters/qt/controls/up_down_arrows.h"
#include "ferrowind/adapters/qt/forms/control_maker.h"
#include "ferrowind/adapters/qt/forms/qt_toolkit.h"
#include "ferrowind/adapters/qt/grid/grid_widget.h"
#include "ferrowind/adapters/qt/table/table_view.h"
#include "ferrowind/adapters/qt/values/twips.h"
#include "ferrowind/adapters/qt/year/year_widget.h"

namespace ferrowind::qt {
namespace {

using platform::ControlKind;
using platform::FormBorder;
using platform::FormDesign;
using testing::ElementsAre;
using testing::HasSubstr;

template <typename Widget>
Widget* Named(const char* name) {
  auto* widget = new Widget;
  widget->setObjectName(QLatin1String(name));
  return widget;
}

void BuildDialog(QDialog& window) {
  auto* layout = new QVBoxLayout(&window);
  auto* label = Named<QLabel>("lblMessage");
  label->setWordWrap(true);
  auto* line = Named<QLineEdit>("txtMessage");
  auto* title = Named<QLabel>("lblTitle");
  title->setBuddy(line);
  layout->addWidget(label);
  layout->addWidget(title);
  layout->addWidget(line);
  for (const char* name : {"cmdCancel", "cmdOk"}) layout->addWidget(Named<QPushButton>(name));
}

FormDesign Design(FormBorder border) {
  return {.name = "fmDialog",
          .caption = "Dialog",
          .border = border,
          .client_width = 3600,
          .client_height = 1500,
          .controls = {{ControlKind::kButton, "cmdOk", "Ok"},
                       {ControlKind::kTextBox, "txtMessage"},
                       {ControlKind::kButton, "cmdCancel", "Cancel"},
                       {ControlKind::kLabel, "lblTitle", "Cancelled"},
                       {ControlKind::kLabel, "lblMessage", "Message"}}};
}

/// Counts how often a widget paints itself.
class PaintCounter : public QObject {
 public:
  explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }
  [[nodiscard]] int Count() const { return count_; }
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count_;
    return false;
  }

 private:
  int count_ = 0;
};

class FormWindowTest : public ::testing::Test {
 protected:
  ~FormWindowTest() override { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

  static FormLayouts Layouts() {
    FormLayouts layouts;
    layouts.Add("fmDialog", BuildDialog);
    return layouts;
  }
  static QWidget& WindowOf(platform::Form& form) {
    return dynamic_cast<WidgetElement&>(form).ElementWidget();
  }
  std::string FailureOf(const FormDesign& design) {
    try {
      static_cast<void>(toolkit_.CreateForm(design));
    } catch (const platform::Failure& failure) {
      return failure.Description();
    }
    return "";
  }

  static QAccessible::Role RoleOf(platform::Form& form) {
    return QAccessible::queryAccessibleInterface(&WindowOf(form))->role();
  }

  QtToolkit toolkit_{Layouts()};
};

/// Controls of every sort on one line each, in holders and beside a note of the layout's own.
void BuildWithAdditions(QDialog& window) {
  auto* layout = new QVBoxLayout(&window);
  layout->addWidget(Named<QLineEdit>("txtGiven"));
  auto* frame = Named<QFrame>("additions");
  auto* inside = new QVBoxLayout(frame);
  inside->addWidget(Named<QLabel>("lblAddition"));
  inside->addWidget(Named<QPushButton>("cmdAddition"));
  layout->addWidget(frame);
  auto* line = new QHBoxLayout;
  line->addWidget(Named<QLineEdit>("txtAddition"));
  line->addStretch();
  layout->addLayout(line);
  auto* splitter = Named<QSplitter>("sssp");
  splitter->addWidget(Named<TreeView>("tvGiven"));
  splitter->addWidget(Named<TreeView>("tvAddition"));
  layout->addWidget(splitter);
  layout->addWidget(Named<RefusalNote>("noteGiven"));
  layout->addWidget(Named<QFrame>("emptyFrame"));
}

/// The same layout, made without the additions.
void BuildWithoutAdditions(QDialog& window) {
  auto* layout = new QVBoxLayout(&window);
  layout->addWidget(Named<QLineEdit>("txtGiven"));
  auto* splitter = Named<QSplitter>("sssp");
  splitter->addWidget(Named<TreeView>("tvGiven"));
  layout->addWidget(splitter);
  layout->addWidget(Named<RefusalNote>("noteGiven"));
  layout->addWidget(Named<QFrame>("emptyFrame"));
}

TEST_F(FormWindowTest, LeavesOutWithTheirRoomTheControlsThatTheDesignDoesNotHave) {
  FormLayouts layouts;
  layouts.Add("fmSmall", BuildWithAdditions);
  layouts.Add("fmPlain", BuildWithoutAdditions);
  QtToolkit toolkit(layouts);
  FormDesign design{.name = "fmSmall",
                    .client_width = 6000,
                    .client_height = 6000,
                    .controls = {{ControlKind::kTextBox, "txtGiven"},
                                 {ControlKind::kSplitter, "sssp"},
                                 {ControlKind::kTree, "tvGiven"}}};
  const auto small = toolkit.CreateForm(design);
  design.name = "fmPlain";
  const auto plain = toolkit.CreateForm(design);
  small->Show();
  plain->Show();
  QWidget& window = WindowOf(*small);
  for (const char* gone : {"additions", "lblAddition", "cmdAddition", "txtAddition", "tvAddition"})
    EXPECT_EQ(window.findChild<QWidget*>(QLatin1String(gone)), nullptr) << gone;
  for (const char* there : {"txtGiven", "tvGiven", "sssp", "noteGiven", "emptyFrame"}) {
    const auto* widget = window.findChild<QWidget*>(QLatin1String(there));
    ASSERT_NE(widget, nullptr) << there;
    EXPECT_EQ(widget->geometry(), WindowOf(*plain).findChild<QWidget*>(QLatin1String(there))->geometry())
        << there;
  }
}

TEST_F(FormWindowTest, LeavesOutAControlOfAnyKind) {
  const auto window = std::make_unique<QDialog>();
  for (auto* widget : std::initializer_list<QWidget*>{
           new QLabel(window.get()), new QPushButton(window.get()), new QLineEdit(window.get()),
           new QPlainTextEdit(window.get()), new QComboBox(window.get()), new DateField(window.get()),
           new UpDownArrows(window.get()), new TreeView(window.get()), new GridWidget(window.get()),
           new TableView(window.get()), new YearWidget(window.get()), new QToolBar(window.get()),
           new QStatusBar(window.get())}) {
    EXPECT_TRUE(CanBeControl(*widget)) << widget->metaObject()->className();
  }
}

TEST_F(FormWindowTest, KeepsAHolderOfAdditionsThatTheDesignHas) {
  FormLayouts layouts;
  layouts.Add("fmSmall", BuildWithAdditions);
  QtToolkit toolkit(layouts);
  const auto form = toolkit.CreateForm({.name = "fmSmall", .controls = {{ControlKind::kPanel, "additions"}}});
  EXPECT_EQ(WindowOf(*form).findChild<QWidget*>(QStringLiteral("cmdAddition")), nullptr);
  EXPECT_TRUE(form->ControlNamed("additions").Visible());
}

TEST_F(FormWindowTest, NamesTheControlThatItsLayoutLacks) {
  FormDesign design = Design(FormBorder::kSizable);
  design.controls.push_back({ControlKind::kTree, "tvNowhere"});
  EXPECT_THAT(FailureOf(design), testing::AllOf(HasSubstr("fmDialog"), HasSubstr("tvNowhere")));
}

TEST_F(FormWindowTest, NamesTheControlThatIsOfAnotherKindInItsLayout) {
  FormDesign design = Design(FormBorder::kSizable);
  for (const auto kind : {ControlKind::kTree, ControlKind::kGrid, ControlKind::kPanel, ControlKind::kUpDown,
                          ControlKind::kToolBar, ControlKind::kSplitter, ControlKind::kDatePicker}) {
    design.controls.back().kind = kind;
    EXPECT_THAT(FailureOf(design), HasSubstr("lblMessage"));
  }
}

TEST_F(FormWindowTest, GoesThroughItsControlsInTheOrderOfTheDesign) {
  const auto form = toolkit_.CreateForm(Design(FormBorder::kSizable));
  form->Show();
  QWidget& window = WindowOf(*form);
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  std::vector<std::string> visited;
  for (int i = 0; i < 3; ++i) {
    visited.push_back(window.focusWidget()->objectName().toStdString());
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
  }
  EXPECT_THAT(visited, ElementsAre("cmdOk", "txtMessage", "cmdCancel"));
}

TEST_F(FormWindowTest, GivesEachControlAnAccessKeyOfItsOwn) {
  const auto form = toolkit_.CreateForm(Design(FormBorder::kSizable));
  QWidget& window = WindowOf(*form);
  EXPECT_EQ(window.findChild<QPushButton*>("cmdOk")->text(), "&Ok");
  EXPECT_EQ(window.findChild<QPushButton*>("cmdCancel")->text(), "&Cancel");
  EXPECT_EQ(window.findChild<QLabel*>("lblTitle")->text(), "C&ancelled");
  EXPECT_EQ(platform::ControlOf<platform::Label>(*form, "lblTitle").Text(), "Cancelled");
}

TEST_F(FormWindowTest, GivesForeignWordsAccessKeysOfTheirControlsNames) {
  FormDesign design = Design(FormBorder::kSizable);
  for (platform::ControlDesign& control : design.controls) {
    if (control.name == "cmdOk") control.text = "了解";
    if (control.name == "cmdCancel") control.text = "取消";
    if (control.name == "lblTitle") control.text = "題名:";
  }
  const auto form = toolkit_.CreateForm(design);
  QWidget& window = WindowOf(*form);
  EXPECT_EQ(window.findChild<QPushButton*>("cmdOk")->text(), "了解(&O)");
  EXPECT_EQ(window.findChild<QPushButton*>("cmdCancel")->text(), "取消(&C)");
  EXPECT_EQ(window.findChild<QLabel*>("lblTitle")->text(), "題名(&T):");
}

TEST_F(FormWindowTest, OffersNoClosingAndNoResizingOfAFixedDialog) {
  const auto form = toolkit_.CreateForm(Design(FormBorder::kFixedDialog));
  const QWidget& window = WindowOf(*form);
  EXPECT_FALSE(window.windowFlags().testFlag(Qt::WindowCloseButtonHint));
  EXPECT_FALSE(window.windowFlags().testFlag(Qt::WindowSystemMenuHint));
  EXPECT_FALSE(window.windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
  EXPECT_EQ(window.minimumSize(), window.maximumSize());
}

TEST_F(FormWindowTest, OffersClosingOfAClosableDialogAndEverythingOfASizableForm) {
  const auto closable = toolkit_.CreateForm(Design(FormBorder::kClosableDialog));
  EXPECT_TRUE(WindowOf(*closable).windowFlags().testFlag(Qt::WindowCloseButtonHint));
  const auto sizable = toolkit_.CreateForm(Design(FormBorder::kSizable));
  EXPECT_TRUE(WindowOf(*sizable).windowFlags().testFlag(Qt::WindowMinMaxButtonsHint));
  EXPECT_GT(WindowOf(*sizable).maximumWidth(), 10000);
}

TEST_F(FormWindowTest, HasNoFrameWhenDesignedWithoutOne) {
  const auto form = toolkit_.CreateForm(Design(FormBorder::kNone));
  EXPECT_TRUE(WindowOf(*form).windowFlags().testFlag(Qt::FramelessWindowHint));
}

TEST_F(FormWindowTest, HasItsDesignedClientSizeWhereTheTextsFit) {
  FormDesign design = Design(FormBorder::kFixedDialog);
  design.client_width = 9000;
  design.client_height = 7500;
  const auto form = toolkit_.CreateForm(design);
  EXPECT_EQ(WindowOf(*form).size(), QSize(PixelsX(9000), PixelsY(7500)));
}

TEST_F(FormWindowTest, IsDesignedNoLargerThanTheScreenButTakesAnySizeThatItIsGiven) {
  FormDesign design = Design(FormBorder::kSizable);
  const QSize screen = QGuiApplication::primaryScreen()->size();
  const QSize larger = screen + QSize(100, 200);
  design.client_width = TwipsX(larger.width());
  design.client_height = TwipsY(larger.height());
  const auto form = toolkit_.CreateForm(design);
  EXPECT_EQ(WindowOf(*form).size(), screen);
  form->SetWidth(design.client_width);
  form->SetHeight(design.client_height);
  EXPECT_EQ(WindowOf(*form).frameGeometry().size(), larger);
  design.client_width = TwipsX(300);
  design.client_height = TwipsY(200);
  EXPECT_EQ(WindowOf(*toolkit_.CreateForm(design)).size(), QSize(300, 200));
}

TEST_F(FormWindowTest, HasAnIconOfItsOwnWhereTheHostHasNone) {
  const auto icon_of = [this] {
    return WindowOf(*toolkit_.CreateForm(Design(FormBorder::kSizable))).windowIcon();
  };
  ASSERT_TRUE(QApplication::windowIcon().isNull());
  EXPECT_FALSE(icon_of().isNull());
  QPixmap red(16, 16);
  red.fill(Qt::red);
  QApplication::setWindowIcon(red);
  EXPECT_EQ(icon_of().pixmap(16, 16).toImage().pixelColor(8, 8), QColor(Qt::red));
  QApplication::setWindowIcon({});
}

TEST_F(FormWindowTest, GrowsWithALongText) {
  const auto form = toolkit_.CreateForm(Design(FormBorder::kFixedDialog));
  form->Show();
  QString text;
  for (int i = 0; i < 60; ++i) text += QStringLiteral("many words ");
  platform::ControlOf<platform::Label>(*form, "lblMessage").SetText(text.toStdString());
  toolkit_.ProcessPendingEvents();
  const auto* label = WindowOf(*form).findChild<QLabel*>("lblMessage");
  EXPECT_GE(label->height(), label->heightForWidth(label->width()));
}

TEST_F(FormWindowTest, KeepsItsOuterSizeOverClosingAndOpening) {
  float width = 9000;
  float height = 7500;
  for (int i = 0; i < 3; ++i) {
    const auto form = toolkit_.CreateForm(Design(FormBorder::kSizable));
    const auto load = form->OnLoad([&] {
      form->SetWidth(width);
      form->SetHeight(height);
    });
    const auto close = form->OnCloseQuery([&](bool&) {
      width = form->Width();
      height = form->Height();
    });
    form->Show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&WindowOf(*form)));
    toolkit_.ProcessPendingEvents();
    form->Unload();
  }
  EXPECT_EQ(width, 9000);
  EXPECT_EQ(height, 7500);
}

TEST_F(FormWindowTest, LivesWithAbsurdSizesAndPlaces) {
  const auto form = toolkit_.CreateForm(Design(FormBorder::kSizable));
  for (const float huge : {1e9F, std::numeric_limits<float>::max()}) {
    form->SetWidth(huge);
    form->SetHeight(huge);
    form->SetLeft(huge);
    form->SetTop(-huge);
    form->Show();
    toolkit_.ProcessPendingEvents();
    EXPECT_GT(form->InnerHeight(), 0);
  }
  EXPECT_THROW(form->SetLeft(std::numeric_limits<float>::quiet_NaN()), platform::Failure);
  form->SetWidth(0);
  form->SetHeight(0);
  toolkit_.ProcessPendingEvents();
}

TEST_F(FormWindowTest, EndsItsModalLoopWhenItIsDroppedInIt) {
  auto form = toolkit_.CreateForm(Design(FormBorder::kFixedDialog));
  platform::Form& shown = *form;
  auto clicked = platform::ControlOf<platform::Button>(*form, "cmdOk").OnClick([&] {
    shown.Hide();
    form.reset();
  });
  QPushButton* ok = WindowOf(*form).findChild<QPushButton*>("cmdOk");
  QTimer::singleShot(20, [&] { QTest::mouseClick(ok, Qt::LeftButton); });
  shown.ShowModal();
  EXPECT_EQ(form, nullptr);
}

TEST_F(FormWindowTest, KeepsOtherWindowsFromInputWhileItIsModal) {
  const auto behind = toolkit_.CreateForm(Design(FormBorder::kSizable));
  behind->Show();
  int clicks = 0;
  const auto clicked = platform::ControlOf<platform::Button>(*behind, "cmdOk").OnClick([&] { ++clicks; });
  const auto dialog = toolkit_.CreateForm(Design(FormBorder::kFixedDialog));
  QTimer::singleShot(20, [&] {
    EXPECT_EQ(QApplication::activeModalWidget(), &WindowOf(*dialog));
    dialog->Hide();
  });
  dialog->ShowModal();
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  QTest::mouseClick(WindowOf(*behind).findChild<QPushButton*>("cmdOk"), Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
}

TEST_F(FormWindowTest, OpensInTheMiddleOfItsOwner) {
  FormDesign design = Design(FormBorder::kSizable);
  const auto owner = toolkit_.CreateForm(design);
  owner->SetLeft(3000);
  owner->SetTop(3000);
  owner->SetWidth(6000);
  owner->SetHeight(6000);
  owner->Show();
  WindowOf(*owner).activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&WindowOf(*owner)));
  design = Design(FormBorder::kFixedDialog);
  design.start = platform::FormStart::kCenterOwner;
  const auto dialog = toolkit_.CreateForm(design);
  QTimer::singleShot(20, [&] {
    constexpr float kAFrame = 600;
    EXPECT_NEAR(dialog->Left() + dialog->Width() / 2, owner->Left() + owner->Width() / 2, kAFrame);
    EXPECT_NEAR(dialog->Top() + dialog->Height() / 2, owner->Top() + owner->Height() / 2, kAFrame);
    dialog->Hide();
  });
  dialog->ShowModal();
}

TEST_F(FormWindowTest, RaisesNoResizeBeforeItIsLoadedAndAfterItIsUnloaded) {
  const auto form = toolkit_.CreateForm(Design(FormBorder::kSizable));
  int resizes = 0;
  const auto resized = form->OnResize([&] { ++resizes; });
  WindowOf(*form).resize(500, 500);
  toolkit_.ProcessPendingEvents();
  EXPECT_EQ(resizes, 0);
  form->Show();
  form->Unload();
  resizes = 0;
  WindowOf(*form).resize(400, 400);
  toolkit_.ProcessPendingEvents();
  EXPECT_EQ(resizes, 0);
}

TEST_F(FormWindowTest, RepaintsNothingWhileItIsLockedAndOnceAfterwardsWhatHasChanged) {
  const auto form = toolkit_.CreateForm(Design(FormBorder::kSizable));
  form->Show();
  auto& message = *WindowOf(*form).findChild<QLabel*>("lblMessage");
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&WindowOf(*form)));
  toolkit_.ProcessPendingEvents();
  const PaintCounter message_paints(message);
  const PaintCounter title_paints(*WindowOf(*form).findChild<QLabel*>("lblTitle"));
  EXPECT_FALSE(toolkit_.UpdatesAreLocked());
  ASSERT_TRUE(toolkit_.LockUpdates(*form));
  EXPECT_TRUE(toolkit_.UpdatesAreLocked());
  for (const char* text : {"One", "Two"}) {
    message.setText(QLatin1String(text));
    toolkit_.ProcessPendingEvents();
  }
  message.repaint();
  EXPECT_EQ(message_paints.Count(), 0);
  toolkit_.UnlockUpdates();
  EXPECT_FALSE(toolkit_.UpdatesAreLocked());
  toolkit_.ProcessPendingEvents();
  EXPECT_EQ(message_paints.Count(), 1);
  EXPECT_EQ(title_paints.Count(), 0);
  message.setText(QStringLiteral("Three"));
  toolkit_.ProcessPendingEvents();
  EXPECT_EQ(message_paints.Count(), 2);
}

TEST_F(FormWindowTest, PaintsNothingMoreAfterALockInWhichNothingChanged) {
  const auto form = toolkit_.CreateForm(Design(FormBorder::kSizable));
  form->Show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&WindowOf(*form)));
  toolkit_.ProcessPendingEvents();
  const PaintCounter paints(*WindowOf(*form).findChild<QLabel*>("lblMessage"));
  ASSERT_TRUE(toolkit_.LockUpdates(*form));
  toolkit_.ProcessPendingEvents();
  toolkit_.UnlockUpdates();
  toolkit_.ProcessPendingEvents();
  EXPECT_EQ(paints.Count(), 0);
}

TEST_F(FormWindowTest, IsNoDialogToAnAssistiveToolWhenItCanBeResized) {
  const auto form = toolkit_.CreateForm(Design(FormBorder::kSizable));
  EXPECT_EQ(RoleOf(*form), QAccessible::Window);
  const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&WindowOf(*form));
  EXPECT_EQ(told->text(QAccessible::Name), "Dialog");
  EXPECT_EQ(told->childCount(), 5);
  for (const auto border : {FormBorder::kFixedDialog, FormBorder::kClosableDialog}) {
    EXPECT_EQ(RoleOf(*toolkit_.CreateForm(Design(border))), QAccessible::Dialog);
  }
}

TEST_F(FormWindowTest, IsADialogToAnAssistiveToolThatKnewItBeforeItHadItsBorder) {
  FormWindow window;
  const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&window);
  ASSERT_EQ(told->role(), QAccessible::Window);
  window.SetBorder(FormBorder::kFixedDialog);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&window), told);
  EXPECT_EQ(told->role(), QAccessible::Dialog);
}

// The end of the session and of the application
// ------------------------------------------------------------------------------------------------

TEST_F(FormWindowTest, ClosesTheFormsOnShowTheNewestFirst) {
  std::vector<std::shared_ptr<platform::Form>> forms;
  std::vector<platform::Subscription> queries;
  std::vector<int> closed;
  for (int i = 0; i < 3; ++i) {
    forms.push_back(toolkit_.CreateForm(Design(FormBorder::kSizable)));
    queries.push_back(forms.back()->OnCloseQuery([&closed, i](bool&) { closed.push_back(i); }));
    forms.back()->Show();
  }
  forms[1]->Hide();
  EXPECT_TRUE(toolkit_.CloseForms());
  EXPECT_THAT(closed, ElementsAre(2, 0));
}

TEST_F(FormWindowTest, KeepsTheOtherFormsWhenOneRefusesToClose) {
  const auto older = toolkit_.CreateForm(Design(FormBorder::kSizable));
  const auto newer = toolkit_.CreateForm(Design(FormBorder::kSizable));
  const auto refusing = newer->OnCloseQuery([](bool& cancel) { cancel = true; });
  older->Show();
  newer->Show();
  EXPECT_FALSE(toolkit_.CloseForms());
  EXPECT_TRUE(older->IsShown());
  EXPECT_TRUE(newer->IsShown());
}

TEST_F(FormWindowTest, ClosesNothingWhileADialogAwaitsAnAnswer) {
  const auto dialog = toolkit_.CreateForm(Design(FormBorder::kFixedDialog));
  const auto newer = toolkit_.CreateForm(Design(FormBorder::kSizable));
  dialog->Show();
  newer->Show();
  EXPECT_FALSE(toolkit_.CloseForms());
  EXPECT_TRUE(dialog->IsShown());
  EXPECT_TRUE(newer->IsShown());
  dialog->Hide();
  EXPECT_TRUE(toolkit_.CloseForms());
  EXPECT_FALSE(newer->IsShown());
}

class EndingApplicationTest : public FormWindowTest {
 protected:
  /// Runs the application until `at_end` has ended it, with a modal dialog on show meanwhile; the failure of
  /// showing the dialog, "" for none.
  std::string ShowModalUntil(const std::function<void(platform::Form&)>& at_end) {
    const auto dialog = toolkit_.CreateForm(Design(FormBorder::kFixedDialog));
    std::string failure_text;
    QTimer::singleShot(0, [&] {
      QTimer::singleShot(20, [&] { at_end(*dialog); });
      try {
        dialog->ShowModal();
      } catch (const platform::Failure& failure) {
        failure_text = failure.Description();
      }
      EXPECT_FALSE(dialog->IsShown());
    });
    QApplication::exec();
    return failure_text;
  }
};

TEST_F(EndingApplicationTest, FailsToShowADialogThatNobodyHasAnswered) {
  const std::string failure = ShowModalUntil([](platform::Form&) { QCoreApplication::exit(); });
  EXPECT_THAT(failure, testing::AllOf(HasSubstr("The application is ending"), HasSubstr("fmDialog")));
}

TEST_F(EndingApplicationTest, ReturnsFromADialogThatWasAnsweredJustBefore) {
  const std::string failure = ShowModalUntil([](platform::Form& dialog) {
    dialog.Hide();
    QCoreApplication::exit();
  });
  EXPECT_EQ(failure, "");
}

}  // namespace
}  // namespace ferrowind::qt
