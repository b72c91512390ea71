#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <cstdlib>
#include <utility>

#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/controls/date_field.h"
#include "ferrowind/adapters/qt/controls/element.h"
#include "ferrowind/adapters/qt/controls/tree_model.h"
#include "ferrowind/adapters/qt/controls/tree_view.h"
#include "ferrowind/adapters/qt/forms/qt_toolkit.h"
#include "ferrowind/adapters/qt/table/table_header.h"
#include "ferrowind/adapters/qt/table/table_view.h"
#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/adapters/qt/values/twips.h"

#include "tests/contract/toolkit/qt/contract_layouts.h"
#include "tests/contract/toolkit/qt/grid_operator.h"
#include "tests/contract/toolkit/qt/year_operator.h"
#include "tests/contract/toolkit/toolkit_under_test.h"
#include "tests/support/click_in_menu.h"

namespace ferrowind::contract {
namespace {

constexpr int kPollMilliseconds = 5;
constexpr int kPatienceMilliseconds = 20000;

template <typename Widget>
Widget& WidgetOf(platform::Element& element) {
  return dynamic_cast<Widget&>(dynamic_cast<qt::WidgetElement&>(element).ElementWidget());
}

/// Runs `action` in the event loop as soon as `is_ready`; gives up, with `give_up`, when that takes too long.
class WhenReady {
 public:
  WhenReady(std::function<bool()> is_ready, std::function<void()> action, std::function<void()> give_up) {
    poll_.setInterval(kPollMilliseconds);
    QObject::connect(&poll_, &QTimer::timeout, [=, this] {
      if (is_ready()) {
        poll_.stop();
        action();
      } else if (++polls_ > kPatienceMilliseconds / kPollMilliseconds) {
        poll_.stop();
        ADD_FAILURE() << "What the operator waited for did not appear";
        give_up();
      }
    });
    poll_.start();
  }

 private:
  QTimer poll_;
  int polls_ = 0;
};

class QtToolkitUnderTest : public ToolkitUnderTest {
 public:
  QtToolkitUnderTest() : toolkit_(ContractLayouts()) {}
  ~QtToolkitUnderTest() override {
    // The windows of dropped forms go from the event loop, which a test does not return to.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  [[nodiscard]] platform::Toolkit& Toolkit() override { return toolkit_; }
  [[nodiscard]] std::string AnimatedImage() override { return FERROWIND_ANIMATION; }

  void ShowModal(platform::Form& form, std::function<void()> operator_script) override {
    const WhenReady ready([&] { return form.IsShown(); }, std::move(operator_script), [&] { form.Hide(); });
    form.ShowModal();
  }
  void CloseByFrame(platform::Form& form) override { WidgetOf<QWidget>(form).close(); }
  void ResizeByFrame(platform::Form& form, float width, float height) override {
    auto& window = WidgetOf<QWidget>(form);
    const QSize frame = window.frameGeometry().size() - window.size();
    window.resize(QSize(qt::PixelsX(width), qt::PixelsY(height)) - frame);
  }
  void Minimise(platform::Form& form) override { WidgetOf<QWidget>(form).showMinimized(); }
  [[nodiscard]] bool IsMinimised(platform::Form& form) override {
    return WidgetOf<QWidget>(form).isMinimized();
  }
  void PressEnter(platform::Form& form) override { PressKey(form, Qt::Key_Return); }
  void PressEscape(platform::Form& form) override { PressKey(form, Qt::Key_Escape); }

  void Wait(std::int32_t milliseconds) override { QTest::qWait(milliseconds); }

  [[nodiscard]] std::optional<std::string> AskForFile(const std::optional<std::string>& name) override {
    const auto question = [] { return qobject_cast<QFileDialog*>(QApplication::activeModalWidget()); };
    const WhenReady ready([&] { return question() != nullptr; },
                          [&] {
                            auto* line = question()->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
                            EXPECT_EQ(line->text(), QStringLiteral("EUR 2027"));
                            if (!name) return question()->reject();
                            question()->setDirectory(folder_.path());
                            line->setText(qt::ToQt(*name));
                            QTest::keyClick(line, Qt::Key_Return);
                          },
                          [&] { question()->reject(); });
    const auto path = toolkit_.ChooseFileToSave("Save the year", "EUR 2027",
                                                {{"PDF document", "pdf"}, {"PNG picture", "png"}});
    if (!path) return std::nullopt;
    const QFileInfo file(qt::ToQt(*path));
    EXPECT_EQ(file.absolutePath(), folder_.path());
    return qt::FromQt(file.fileName());
  }

  [[nodiscard]] std::optional<std::string> AskForFileToRead(const std::optional<std::string>& name) override {
    QFile file(folder_.filePath(QStringLiteral("days.ics")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    const auto question = [] { return qobject_cast<QFileDialog*>(QApplication::activeModalWidget()); };
    const auto message = [] { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); };
    const WhenReady turned_down([&] { return message() != nullptr; },
                                [&] {
                                  QFileDialog* const asking =
                                      qobject_cast<QFileDialog*>(message()->parentWidget());
                                  message()->reject();
                                  asking->reject();
                                },
                                [] {});
    const WhenReady ready([&] { return question() != nullptr; },
                          [&] {
                            if (!name) return question()->reject();
                            question()->setDirectory(folder_.path());
                            auto* line = question()->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
                            line->setText(qt::ToQt(*name));
                            QTest::keyClick(line, Qt::Key_Return);
                          },
                          [&] { question()->reject(); });
    const auto path = toolkit_.ChooseFileToOpen("Open a list", "Lists of days", {"ics", "csv"});
    if (!path) return std::nullopt;
    return qt::FromQt(QFileInfo(qt::ToQt(*path)).fileName());
  }

  void Click(platform::Button& button) override {
    auto& widget = WidgetOf<QWidget>(button);
    Activate(widget);
    QTest::mouseClick(&widget, Qt::LeftButton);
  }
  void TypeText(platform::TextBox& text_box, const std::string& text) override {
    auto& line = WidgetOf<QLineEdit>(text_box);
    Activate(line);
    line.setFocus();
    if (!line.hasSelectedText()) line.end(false);
    // By Unicode characters, for which the keyboard simulation has no key codes.
    for (const QChar character : qt::ToQt(text))
      QTest::sendKeyEvent(QTest::Click, &line, Qt::Key_unknown, character, {});
  }
  void PressTextKeys(platform::Form& form, const std::string& text) override {
    auto& window = WidgetOf<QWidget>(form);
    for (const char character : text) {
      Activate(window);
      QWidget* focused = window.focusWidget();
      QTest::keyClick(focused != nullptr ? focused : &window, character);
    }
  }
  void Choose(platform::DropDownList& list, const std::string& item) override {
    auto& box = WidgetOf<QComboBox>(list);
    Activate(box);
    box.setFocus();
    QTest::keyClicks(&box, qt::ToQt(item));
  }
  void PickDate(platform::DatePicker& picker, const platform::Date& date) override {
    auto& field = WidgetOf<qt::DateField>(picker);
    Activate(field);
    field.setFocus();
    const auto days = field.Date().daysTo(qt::ToQt(date));
    for (qint64 day = 0; day < std::abs(days); ++day)
      QTest::keyClick(&field, days > 0 ? Qt::Key_Up : Qt::Key_Down);
  }
  void TypeNoDate(platform::DatePicker& picker) override {
    auto& field = WidgetOf<qt::DateField>(picker);
    Activate(field);
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, QStringLiteral("31 Foo"));
  }
  [[nodiscard]] bool ShowsRefusal(platform::DatePicker& picker) override {
    const auto& field = WidgetOf<qt::DateField>(picker);
    return field.IsRefused() && field.text() == QLatin1String("31 Foo");
  }
  void StepUp(platform::UpDown& up_down) override {
    QTest::mouseClick(Arrows(up_down).at(0), Qt::LeftButton);
  }
  void StepDown(platform::UpDown& up_down) override {
    QTest::mouseClick(Arrows(up_down).at(1), Qt::LeftButton);
  }

  void ClickNode(platform::Tree& tree, const std::string& key) override {
    auto& view = WidgetOf<qt::TreeView>(tree);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(NodeOf(view, key)).center());
  }
  void ToggleNode(platform::Tree& tree, const std::string& key) override {
    auto& view = WidgetOf<qt::TreeView>(tree);
    const QRect text = view.visualRect(NodeOf(view, key));
    const QPoint decoration(text.left() - view.indentation() / 2, text.center().y());
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, decoration);
  }

  void ClickTool(platform::ToolBar& tool_bar, const std::string& id) override {
    QTest::mouseClick(ToolButton(tool_bar, id), Qt::LeftButton);
  }
  void PressShortcut(platform::Form& form, const std::string& shortcut) override {
    auto& window = WidgetOf<QWidget>(form);
    Activate(window);
    const QKeyCombination keys = QKeySequence::fromString(qt::ToQt(shortcut))[0];
    QWidget* focused = window.focusWidget();
    QTest::keyClick(focused != nullptr ? focused : &window, keys.key(), keys.keyboardModifiers());
  }
  void EnterTool(platform::ToolBar& tool_bar, const std::string& id) override {
    QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QCoreApplication::sendEvent(ToolButton(tool_bar, id), &enter);
  }
  void LeaveTool(platform::ToolBar& tool_bar, const std::string& id) override {
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(ToolButton(tool_bar, id), &leave);
  }
  void ShowPopupAndChoose(platform::ToolBar& tool_bar, const std::string& menu_id,
                          const std::string& tool_id) override {
    const auto menu = [] { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); };
    const WhenReady ready([&] { return menu() != nullptr; }, [&] { ChooseInMenu(*menu(), tool_id); }, [] {});
    tool_bar.ShowPopupMenu(menu_id);
  }

  void ClickCell(platform::Table& table, const std::string& row, const std::string& column) override {
    ClickAt(table, CellArea(table, row, column).center(), {});
  }
  void DoubleClickCell(platform::Table& table, const std::string& row, const std::string& column) override {
    QWidget* cells = WidgetOf<qt::TableView>(table).viewport();
    QTest::mouseClick(cells, Qt::LeftButton, {}, CellArea(table, row, column).center());
    QTest::mouseDClick(cells, Qt::LeftButton, {}, CellArea(table, row, column).center());
  }
  void ExtendToTableRow(platform::Table& table, const std::string& row) override {
    ClickAt(table, CellArea(table, row, ColumnKeys(table).front()).center(), Qt::ShiftModifier);
  }
  void ClickBox(platform::Table& table, const std::string& row) override {
    const QRect cell = CellArea(table, row, ColumnKeys(table).front());
    ClickAt(table, QPoint(cell.left() + 14, cell.center().y()), {});
  }
  void ClickTableHeader(platform::Table& table, const std::string& column) override {
    auto& header = WidgetOf<qt::TableView>(table).Header();
    const int place = ColumnPlace(table, column);
    QTest::mouseClick(
        header.viewport(), Qt::LeftButton, {},
        {header.sectionViewportPosition(place) + header.sectionSize(place) / 2, header.height() / 2});
  }
  void PressSpace(platform::Table& table) override {
    Activate(WidgetOf<QWidget>(table));
    WidgetOf<QWidget>(table).setFocus();
    QTest::keyClick(&WidgetOf<QWidget>(table), Qt::Key_Space);
  }
  void PressCopy(platform::Table& table) override {
    Activate(WidgetOf<QWidget>(table));
    WidgetOf<QWidget>(table).setFocus();
    QTest::keyClick(&WidgetOf<QWidget>(table), Qt::Key_C, Qt::ControlModifier);
  }
  [[nodiscard]] std::string ClipboardText() override { return qt::FromQt(QApplication::clipboard()->text()); }

  void ClickRow(platform::Grid& grid, std::int32_t row, std::int32_t button) override {
    GridOperator(grid).ClickRow(row, button == platform::kRightButton ? Qt::RightButton : Qt::LeftButton, {});
  }
  void ToggleRow(platform::Grid& grid, std::int32_t row) override {
    GridOperator(grid).ClickRow(row, Qt::LeftButton, Qt::ControlModifier);
  }
  void ExtendToRow(platform::Grid& grid, std::int32_t row) override {
    GridOperator(grid).ClickRow(row, Qt::LeftButton, Qt::ShiftModifier);
  }
  void ToggleGroup(platform::Grid& grid, std::int32_t row) override { GridOperator(grid).ToggleGroup(row); }
  void ClickHeader(platform::Grid& grid, const std::string& column_key) override {
    GridOperator(grid).ClickHeader(column_key);
  }
  void DragHeaderToGroups(platform::Grid& grid, const std::string& column_key) override {
    GridOperator(grid).DragHeaderToGroups(column_key);
  }
  void ToggleGroupByBox(platform::Grid& grid) override { GridOperator(grid).ToggleGroupByBox(); }
  void DragGroupAway(platform::Grid& grid, std::int32_t position) override {
    GridOperator(grid).DragGroupAway(position);
  }
  [[nodiscard]] std::string CellText(platform::Grid& grid, std::int32_t row,
                                     const std::string& column_key) override {
    return GridOperator(grid).CellText(row, column_key);
  }
  [[nodiscard]] std::string GroupText(platform::Grid& grid, std::int32_t row) override {
    return GridOperator(grid).GroupText(row);
  }
  [[nodiscard]] RowLook LookOf(platform::Grid& grid, std::int32_t row) override {
    return GridOperator(grid).LookOf(row);
  }

  void ClickDay(platform::YearView& view, const platform::YearCell& cell, std::int32_t button) override {
    YearOperator(view).Click(cell, button == platform::kRightButton ? Qt::RightButton : Qt::LeftButton, {});
  }
  void ToggleDay(platform::YearView& view, const platform::YearCell& cell) override {
    YearOperator(view).Click(cell, Qt::LeftButton, Qt::ControlModifier);
  }
  void ExtendToDay(platform::YearView& view, const platform::YearCell& cell) override {
    YearOperator(view).Click(cell, Qt::LeftButton, Qt::ShiftModifier);
  }
  void DragDays(platform::YearView& view, const platform::YearCell& from,
                const platform::YearCell& to) override {
    YearOperator(view).Drag(from, to);
  }
  void PressDayKey(platform::YearView& view, DayKey key, bool extends) override {
    YearOperator(view).PressKey(key, extends ? Qt::ShiftModifier : Qt::NoModifier);
  }
  void PressEnterOnDay(platform::YearView& view) override { YearOperator(view).PressEnter(); }
  void PressMenuKeyOnDay(platform::YearView& view) override { YearOperator(view).PressMenuKey(); }
  [[nodiscard]] std::string DayText(platform::YearView& view, const platform::YearCell& cell) override {
    return YearOperator(view).TextOf(cell);
  }

 private:
  static void Activate(QWidget& widget) {
    widget.window()->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(widget.window()));
  }
  static void PressKey(platform::Form& form, Qt::Key key) {
    auto& window = WidgetOf<QWidget>(form);
    Activate(window);
    QWidget* focused = window.focusWidget();
    QTest::keyClick(focused != nullptr ? focused : &window, key);
  }
  static QList<QToolButton*> Arrows(platform::UpDown& up_down) {
    return WidgetOf<QWidget>(up_down).findChildren<QToolButton*>();
  }
  static QModelIndex NodeOf(const qt::TreeView& view, const std::string& key) {
    return dynamic_cast<const qt::TreeModel&>(*view.model()).Find(key);
  }
  static std::vector<std::string> ColumnKeys(platform::Table& table) {
    std::vector<std::string> keys;
    for (const auto& column : WidgetOf<qt::TableView>(table).Model()->Content().Columns())
      keys.push_back(column.key);
    return keys;
  }
  static int ColumnPlace(platform::Table& table, const std::string& column) {
    return static_cast<int>(WidgetOf<qt::TableView>(table).Model()->Content().ColumnOf(column));
  }
  static QRect CellArea(platform::Table& table, const std::string& row, const std::string& column) {
    auto& view = WidgetOf<qt::TableView>(table);
    QTest::qWait(0);
    const int place = static_cast<int>(view.Model()->Content().RowOf(row));
    return view.visualRect(view.Model()->index(place, ColumnPlace(table, column)));
  }
  static void ClickAt(platform::Table& table, const QPoint& at, Qt::KeyboardModifiers modifiers) {
    QTest::mouseClick(WidgetOf<qt::TableView>(table).viewport(), Qt::LeftButton, modifiers, at);
  }
  static QToolButton* ToolButton(platform::ToolBar& tool_bar, const std::string& id) {
    return WidgetOf<QWidget>(tool_bar).findChild<QToolButton*>(qt::ToQt(id));
  }
  static void ChooseInMenu(QMenu& menu, const std::string& tool_id) {
    if (tool_id.empty()) {
      QTest::keyClick(&menu, Qt::Key_Escape);
      return;
    }
    for (QAction* action : menu.actions()) {
      if (action->objectName() != qt::ToQt(tool_id)) continue;
      testing::ClickInMenu(menu, *action);
      return;
    }
  }

  QTemporaryDir folder_;
  qt::QtToolkit toolkit_;
};

}  // namespace

std::unique_ptr<ToolkitUnderTest> MakeToolkitUnderTest() { return std::make_unique<QtToolkitUnderTest>(); }

}  // namespace ferrowind::contract
