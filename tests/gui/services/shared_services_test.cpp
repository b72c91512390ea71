#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <map>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/grid/qt_grid.h"
#include "ferrowind/adapters/qt/services/message_box.h"
#include "ferrowind/adapters/qt/services/qt_shared_services.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {
namespace {

using platform::Value;
using testing::ElementsAre;
using testing::HasSubstr;

class RecordingSink : public TraceSink {
 public:
  void Write(const std::string& text) noexcept override { lines_.push_back(text); }
  std::vector<std::string> lines_;
};

class SharedServicesTest : public ::testing::Test {
 protected:
  /// Runs `script` on the message box that `show` opens.
  void OnMessage(const std::function<void()>& show, const std::function<void(QMessageBox&)>& script) {
    QTimer poll;
    int polls = 0;
    bool was_shown = false;
    QObject::connect(&poll, &QTimer::timeout, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr && ++polls < 2000) return;
      poll.stop();
      if (box == nullptr) return;
      was_shown = true;
      script(*box);
    });
    poll.start(5);
    show();
    EXPECT_TRUE(was_shown);
  }
  static void PressOk(QMessageBox& box) { QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton); }
  void Show(const std::string& text, std::int32_t style) {
    services_.ShowMessage(text, style, 1, 1, nullptr, "", true, true);
  }

  QTemporaryDir folder_;
  SettingsStore settings_{folder_.filePath("settings.ini").toStdString()};
  std::shared_ptr<RecordingSink> trace_ = std::make_shared<RecordingSink>();
  QtSharedServices services_{settings_, trace_};
};

TEST_F(SharedServicesTest, HasItsSettingsUnderTheHouse) { EXPECT_EQ(services_.SettingsRoot(), "\\Tessaro"); }

TEST_F(SharedServicesTest, ReadsWhatItWroteAndTheDefaultOtherwise) {
  services_.WriteSetting("\\Tessaro\\Window", "Left", 1500.0F);
  EXPECT_EQ(services_.ReadSetting("\\Tessaro\\Window", "Left", {}, 0.0F), Value(1500.0F));
  EXPECT_EQ(services_.ReadSetting("\\Tessaro\\Window", "Top", {}, 75.0F), Value(75.0F));
}

TEST_F(SharedServicesTest, PassesTraceToTheHostsSink) {
  services_.TraceMessage("Execute Procedure [CldAllInfo]");
  EXPECT_THAT(trace_->lines_, ElementsAre("Execute Procedure [CldAllInfo]"));
}

TEST_F(SharedServicesTest, TracesWithoutASink) {
  QtSharedServices services(settings_);
  EXPECT_NO_THROW(services.TraceMessage(std::string("a\0b", 3)));
}

TEST_F(SharedServicesTest, ShowsAMessageThatNamesTheComponent) {
  OnMessage([&] { Show("Tessaro Calendar. Can't load currency", 3); },
            [](QMessageBox& box) {
              EXPECT_EQ(box.windowTitle(), "Ferrowind");
              EXPECT_EQ(box.text(), "Tessaro Calendar. Can't load currency");
              EXPECT_EQ(box.icon(), QMessageBox::Critical);
              EXPECT_EQ(box.textFormat(), Qt::PlainText);
              EXPECT_TRUE(box.textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
              PressOk(box);
            });
  EXPECT_THAT(trace_->lines_, ElementsAre(HasSubstr("Can't load currency")));
}

TEST_F(SharedServicesTest, ShowsOtherStylesAsInformation) {
  for (const std::int32_t style : {1, 0, 99}) {
    OnMessage([&] { Show("text", style); },
              [](QMessageBox& box) {
                EXPECT_EQ(box.icon(), QMessageBox::Information);
                PressOk(box);
              });
  }
}

TEST_F(SharedServicesTest, CopiesAMessageWithoutAnsweringIt) {
  OnMessage([&] { Show("copy me", 1); },
            [](QMessageBox& box) {
              QTest::mouseClick(box.findChild<QPushButton*>("cmdCopy"), Qt::LeftButton);
              EXPECT_TRUE(box.isVisible());
              EXPECT_EQ(QApplication::clipboard()->text(), "copy me");
              PressOk(box);
            });
}

TEST_F(SharedServicesTest, AnswersAMessageByEscape) {
  OnMessage([&] { Show("text", 1); }, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
}

TEST_F(SharedServicesTest, EndsAMessageWithTheWindowThatItStandsOn) {
  auto owner = std::make_unique<QWidget>();
  owner->show();
  owner->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(owner.get()));
  OnMessage([&] { EXPECT_THROW(Show("text", 16), platform::Interruption); },
            [&](QMessageBox& box) {
              EXPECT_EQ(box.parentWidget(), owner.get());
              owner.reset();
            });
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(SharedServicesTest, DoesNotShowAMessageWhoseWindowGoesBeforeItOpens) {
  auto* const window = new QWidget;
  window->show();
  QMetaObject::invokeMethod(
      qApp, [window] { delete window; }, Qt::QueuedConnection);
  EXPECT_THROW(ShowMessageBox({.title = "Title", .text = "Text", .owner = window}), platform::Interruption);
  EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

TEST_F(SharedServicesTest, ShowsTheBeginningOfAnEndlessMessageAndKeepsTheRestAtHand) {
  const std::string endless(1000000, 'x');
  OnMessage([&] { Show(endless, 3); },
            [&](QMessageBox& box) {
              EXPECT_LT(box.text().size(), 2000);
              EXPECT_EQ(box.detailedText().toStdString(), endless);
              PressOk(box);
            });
}

TEST_F(SharedServicesTest, ReportsAFailureWithItsNumberAndText) {
  OnMessage([&] { services_.ReportError(-2147220904, "It's constant field"); },
            [](QMessageBox& box) {
              EXPECT_THAT(box.text().toStdString(), HasSubstr("-2147220904 (0x80040258)"));
              EXPECT_THAT(box.text().toStdString(), HasSubstr("It's constant field"));
              PressOk(box);
            });
}

TEST_F(SharedServicesTest, ShowsNoPassword) {
  OnMessage([&] { services_.ReportError(1, "cannot reach postgresql://anna:secret@db/x"); },
            [](QMessageBox& box) {
              EXPECT_FALSE(box.text().contains("secret"));
              PressOk(box);
            });
}

/// Counts the message boxes that appear while it lives.
class BoxCount : public QObject {
 public:
  BoxCount() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Show && qobject_cast<QMessageBox*>(watched) != nullptr) ++boxes_;
    return false;
  }
  int boxes_ = 0;
};

TEST_F(SharedServicesTest, ShowsNothingButTracesAllOnceTheApplicationIsEnding) {
  const BoxCount count;
  QTimer::singleShot(0, [&] {
    QCoreApplication::exit();
    services_.ReportError(18, "The application is ending");
    Show("too late", 3);
  });
  QApplication::exec();
  EXPECT_EQ(count.boxes_, 0);
  EXPECT_THAT(trace_->lines_, ElementsAre(HasSubstr("is ending"), HasSubstr("too late")));
}

TEST_F(SharedServicesTest, InterruptsAMessageThatIsOnShowWhenTheApplicationEnds) {
  QTimer::singleShot(0, [&] {
    OnMessage([&] { EXPECT_THROW(services_.ReportError(5, "text"), platform::Interruption); },
              [](QMessageBox&) { QCoreApplication::exit(); });
  });
  QApplication::exec();
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(SharedServicesTest, ShowsMessagesInAnApplicationThatWasStartedAgain) {
  const BoxCount count;
  for (int i = 0; i < 2; ++i) {
    QTimer::singleShot(0, [&] {
      OnMessage([&] { Show("text", 1); }, PressOk);
      QCoreApplication::exit();
    });
    QApplication::exec();
  }
  EXPECT_EQ(count.boxes_, 2);
}

class GridServicesTest : public SharedServicesTest {
 protected:
  GridServicesTest() {
    widget_.setObjectName("grid");
    widget_.resize(400, 300);
    Fill(grid_);
  }
  static void Fill(QtGrid& grid) {
    for (const char* key : {"Name", "Type"}) grid.AddColumn(key, 0, 1, key).SetBoundField(key);
    grid.HoldColumns();
    grid.AttachRecords(std::make_shared<platform::RecordSet>(
        std::vector<std::string>{"Name", "Type"},
        std::vector<std::vector<Value>>{
            {"b", std::int32_t{1}}, {"a", std::int32_t{2}}, {"c", std::int32_t{3}}}));
    grid.Rebind();
  }
  [[nodiscard]] std::string Names() const {
    std::string names;
    for (std::int32_t row = 1; row <= grid_.RowCount(); ++row) {
      names += *grid_.CellValue(row, "Name").If<std::string>();
    }
    return names;
  }

  GridWidget widget_;
  QtGrid grid_{widget_};
};

TEST_F(GridServicesTest, SortsByOneColumnInPlaceOfAllOtherKeys) {
  grid_.SortKeys().Add(2, platform::kSortDescending, 0);
  services_.SortGridByColumn(1, grid_, grid_.ColumnByKey("Name"));
  EXPECT_EQ(Names(), "abc");
  services_.SortGridByColumn(-1, grid_, grid_.ColumnByKey("Name"));
  EXPECT_EQ(Names(), "cba");
  ASSERT_EQ(grid_.SortKeys().Count(), 1);
  EXPECT_EQ(grid_.SortKeys().Item(1)->ColIndex, 1);
}

TEST_F(GridServicesTest, EndsSortingByTheOrderNone) {
  services_.SortGridByColumn(-1, grid_, grid_.ColumnByKey("Name"));
  services_.SortGridByColumn(0, grid_, grid_.ColumnByKey("Name"));
  EXPECT_EQ(grid_.SortKeys().Count(), 0);
  EXPECT_EQ(Names(), "bac");
}

TEST_F(GridServicesTest, KeepsALayoutForAnotherGrid) {
  services_.SortGridByColumn(-1, grid_, grid_.ColumnByKey("Name"));
  services_.SaveGridLayout(grid_, "Calendar\\Layout");
  GridWidget other_widget;
  QtGrid other(other_widget);
  Fill(other);
  services_.LoadGridLayout(other, "Calendar\\Layout");
  EXPECT_EQ(other.ColumnByKey("Name").SortOrder(), -1);
}

TEST_F(GridServicesTest, LeavesTheGridAsItIsWithoutALayout) {
  services_.SortGridByColumn(1, grid_, grid_.ColumnByKey("Name"));
  services_.LoadGridLayout(grid_, "Nowhere");
  EXPECT_EQ(Names(), "abc");
  EXPECT_TRUE(trace_->lines_.empty());
}

TEST_F(GridServicesTest, TracesADamagedLayoutAndLeavesTheGridAsItIs) {
  services_.SortGridByColumn(1, grid_, grid_.ColumnByKey("Name"));
  for (const Value& damaged : {Value("damaged"), Value(1.5F), Value("")}) {
    trace_->lines_.clear();
    settings_.Write("Calendar\\Layout", "Layout", damaged);
    services_.LoadGridLayout(grid_, "Calendar\\Layout");
    EXPECT_EQ(Names(), "abc");
    EXPECT_THAT(trace_->lines_, ElementsAre(HasSubstr("damaged")));
  }
}

TEST_F(GridServicesTest, StoresNoLayoutOfAGridWithoutColumns) {
  GridWidget empty_widget;
  QtGrid empty(empty_widget);
  services_.SaveGridLayout(empty, "Calendar\\Layout");
  EXPECT_EQ(settings_.Read("Calendar\\Layout", "Layout"), std::nullopt);
}

TEST_F(GridServicesTest, CopiesAllRowsWhenNoneIsSelected) {
  services_.CopyGridRows(grid_, true);
  const QString copied = QApplication::clipboard()->text();
  EXPECT_TRUE(copied.contains("Name\tType")) << copied.toStdString();
  EXPECT_TRUE(copied.contains("b\t1")) << copied.toStdString();
  EXPECT_TRUE(copied.contains("c\t3")) << copied.toStdString();
}

/// As a host writes it that keeps its settings elsewhere.
class ServicesWithOwnStore : public QtSharedServices {
 public:
  using QtSharedServices::QtSharedServices;
  [[nodiscard]] Value ReadSetting(const std::string& section, const std::string& name, const Value& /*user*/,
                                  const Value& default_value) override {
    const auto found = stored.find(section + "/" + name);
    return found == stored.end() ? default_value : found->second;
  }
  void WriteSetting(const std::string& section, const std::string& name, const Value& value) override {
    stored[section + "/" + name] = value;
  }
  std::map<std::string, Value> stored;
};

TEST_F(SharedServicesTest, WithAStoreOfTheHostKeepLayoutsThereAlone) {
  ServicesWithOwnStore services(settings_);
  GridWidget widget;
  widget.setObjectName("gex");
  QtGrid grid(widget);
  grid.AddColumn("Name", 0, 1, "Name");
  services.LoadGridLayout(grid, "Calendar\\Layout");
  grid.ColumnByKey("Name").SetVisible(false);
  services.SaveGridLayout(grid, "Calendar\\Layout");
  EXPECT_EQ(services.stored.count("Calendar\\Layout/Layout"), 1U);
  EXPECT_FALSE(QFile::exists(folder_.filePath("settings.ini")));
  grid.ColumnByKey("Name").SetVisible(true);
  services.LoadGridLayout(grid, "Calendar\\Layout");
  EXPECT_FALSE(grid.ColumnByKey("Name").Visible());
}

}  // namespace
}  // namespace ferrowind::qt
