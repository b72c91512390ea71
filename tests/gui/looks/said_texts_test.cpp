// That everything which the windows of planning say of their own can be said in another language.
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QRegularExpression>
#include <QToolButton>
#include <QTranslator>
#include <algorithm>
#include <set>

#include "ferrowind/adapters/qt/services/languages.h"
#include "ferrowind/adapters/qt/services/qt_words.h"
#include "ferrowind/adapters/qt/values/translated.h"
#include "ferrowind/control/calendar.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/planning/book_store.h"
#include "ferrowind/views/planning/planning_additions.h"
#include "ferrowind/views/planning/planning_windows.h"

#include "host/delivery/delivered_books.h"
#include "host/delivery/delivered_tables.h"
#include "tests/gui/looks/default_locale.h"
#include "tests/gui/windows/dialog_script.h"
#include "tests/gui/windows/operator_desk.h"
#include "tests/gui/windows/operator_hands.h"

namespace ferrowind::gui {
namespace {

using ::testing::IsEmpty;

constexpr std::int32_t kDollar = 840;
constexpr std::int32_t kEuro = 978;

/// A language without any letter of English: every text has another one in the place of each letter. It
/// remembers the component's texts that have no place in the German translation.
class OtherLanguage : public QTranslator {
 public:
  OtherLanguage() {
    // The resource is there from then on.
    qt::UseLanguages(*qApp, QLocale(QLocale::English));
    if (!german_.load(QStringLiteral(":/ferrowind/translations/ferrowind_de.qm")))
      untranslated_.insert("there is no translation at all");
  }

  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] QString translate(const char* context, const char* text, const char* /*disambiguation*/,
                                  int number) const override {
    if (*text != 0 && qstrcmp(context, qt::kTextContext) == 0 &&
        german_.translate(context, text, nullptr, number).isEmpty())
      untranslated_.insert(text);
    // By these names shortcuts are read, too.
    if (qstrcmp(context, "QShortcut") == 0) return {};
    QString other;
    bool is_place = false;
    for (const QChar character : QString::fromUtf8(text)) {
      other += !is_place && character.isLetter() ? QChar(0x00F8) : character;
      is_place = character == QLatin1Char('%');
    }
    return other;
  }

  [[nodiscard]] const std::set<std::string>& Untranslated() const { return untranslated_; }

 private:
  QTranslator german_;
  mutable std::set<std::string> untranslated_;
};

/// What is written in the database and in the delivered books, and what the operator has typed, in whatever
/// language that is.
class WrittenTexts {
 public:
  explicit WrittenTexts(const OperatorDesk& desk, const std::string& typed) {
    Add(typed);
    for (const char* sql :
         {"SELECT Name1 FROM CldHoliday", "SELECT Comment FROM CldHoliday", "SELECT Comment FROM CldDay",
          "SELECT Ccy FROM DicCcy", "SELECT Name FROM DicCcy", "SELECT UserName FROM CldHistory"}) {
      for (const std::string& text : desk.Read(sql)) Add(text);
    }
    for (const auto& [code, book, lines] : host::DeliveredBooks()) {
      for (const std::string& text : {code, book.publisher, book.document}) Add(text);
      for (const almanac::BookRule& rule : book.rules) {
        for (const std::string& text :
             {rule.name, rule.NameOfMovedDay(), rule.comment, rule.expression.ToText()})
          Add(text);
      }
    }
    for (const almanac::DateTable& table : host::DeliveredDateTables().All()) Add(table.name);
    // The same in all languages.
    Add("UTC");
    std::sort(texts_.begin(), texts_.end(),
              [](const QString& left, const QString& right) { return left.size() > right.size(); });
  }

  [[nodiscard]] QString TakenFrom(QString text) const {
    // The longer first, since one may be a part of another.
    for (const QString& written : texts_) text.remove(written);
    // As the keyboard has them.
    static const QRegularExpression shortcut(QStringLiteral("\\((Ctrl\\+|Alt\\+|Shift\\+)+[^)]+\\)"));
    return text.remove(shortcut);
  }

 private:
  void Add(const std::string& text) {
    if (text.size() > 1) texts_.push_back(QString::fromStdString(text));
  }

  std::vector<QString> texts_;
};

/// A part of a window, examined on what it tells a screen reader, which is all that it shows and more.
class SpokenTexts {
 public:
  SpokenTexts(QWidget& part, const WrittenTexts& written) : written_(written) {
    if (part.isWindow()) Judge(part.windowTitle());
    for (const QWidget* widget : part.findChildren<QWidget*>()) Judge(widget->toolTip());
    for (const auto* list : part.findChildren<QComboBox*>()) {
      for (int i = 0; i < list->count(); ++i) Judge(list->itemText(i));
    }
    if (auto* root = QAccessible::queryAccessibleInterface(&part)) Walk(*root);
    std::sort(english_.begin(), english_.end());
    english_.erase(std::unique(english_.begin(), english_.end()), english_.end());
  }

  /// The texts in which English is left.
  [[nodiscard]] const std::vector<std::string>& English() const { return english_; }

 private:
  void Walk(QAccessibleInterface& element) {
    for (const auto kind : {QAccessible::Name, QAccessible::Description, QAccessible::Value})
      Judge(element.text(kind));
    for (int i = 0; i < element.childCount(); ++i) {
      if (auto* child = element.child(i)) Walk(*child);
    }
  }
  void Judge(const QString& text) {
    static const QRegularExpression english(QStringLiteral("[A-Za-z]{2,}"));
    if (english.match(written_.TakenFrom(text)).hasMatch()) english_.push_back(text.toStdString());
  }

  const WrittenTexts& written_;
  std::vector<std::string> english_;
};

/// The operator's locale is Japanese, whose names of months and weekdays have no letters of English either.
class SaidTextsTest : public ::testing::Test {
 protected:
  SaidTextsTest() {
    QCoreApplication::installTranslator(&language_);
    platform_.words = &words_;
    platform_.additions = &additions_;
    desk_.Execute("DELETE FROM DicCcy WHERE Ccy NOT IN ('EUR', 'GBP', 'USD')");
    RunHandler(platform_, [] {
      const auto currencies = planning::CurrencyList::Load();
      for (const auto& [name, book, lines] : host::DeliveredBooks()) {
        if (name == "USD") planning::StoreBook(currencies.Named(name).id, name, "", book);
      }
    });
    desk_.Call("CldIUMain", {kDollar, 2028, {}, {}, {}, {}, {}});
    desk_.Call("CldIUMain", {kEuro, 2026, {}, {}, {}, {}, {}});
  }
  ~SaidTextsTest() override {
    EXPECT_TRUE(script_.IsPlayed());
    EXPECT_TRUE(windows_.CloseAll());
    EXPECT_TRUE(control_.ForceClosing());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::removeTranslator(&language_);
    EXPECT_THAT(language_.Untranslated(), IsEmpty());
  }

  [[nodiscard]] std::vector<std::string> EnglishIn(QWidget& part, const std::string& typed = {}) const {
    QCoreApplication::processEvents();
    return SpokenTexts(part, WrittenTexts(desk_, typed)).English();
  }
  [[nodiscard]] std::vector<std::string> EnglishIn(const std::string& window) const {
    QWidget* const shown = WindowOnShow(window);
    if (shown == nullptr) return {window + " is not open"};
    return EnglishIn(*shown);
  }
  QWidget& OpenCalendars() {
    control_.Show();
    QWidget& window = *WindowOnShow("fmCalendar");
    Activate(window);
    ClickNode(Find<QTreeView>(window, "tvCalendar"), {"USD", "2028"});
    return window;
  }

  DefaultLocale locale_{"ja_JP"};
  OtherLanguage language_;
  qt::QtWords words_;
  /// No question or message is expected.
  DialogScript script_;
  OperatorDesk desk_{OperatorDesk::Rules::kOfOffice};
  platform::Platform platform_ = desk_.Platform();
  PlanningWindows windows_{platform_, host::DeliveredDateTables()};
  PlanningAdditions additions_{{platform_, host::DeliveredDateTables(), windows_}};
  Calendar control_{platform_};
};

TEST_F(SaidTextsTest, AreThoseOfTheBoard) {
  RunHandler(platform_, [&] { windows_.OpenReadiness(); });
  EXPECT_THAT(EnglishIn("fmReadiness"), IsEmpty());
}

TEST_F(SaidTextsTest, AreThoseOfThePlanOfAYear) {
  RunHandler(platform_, [&] { windows_.OpenYearPlan({{kDollar, 2028}, {kEuro, 2028}}); });
  EXPECT_THAT(EnglishIn("fmYearPlan"), IsEmpty());
}

TEST_F(SaidTextsTest, AreThoseOfTheHistoryAndACalendarOfThen) {
  // So short that the caption of the button to undo it has room for none or all of its letters.
  desk_.Call("CldIUMain", {kDollar, 2028, 1, 1, 17, {}, "F"});
  const int entry = std::stoi(desk_.ReadOne("SELECT max(EntryID) FROM CldHistory"));
  RunHandler(platform_, [&] { windows_.OpenHistory({}); });
  EXPECT_THAT(EnglishIn("fmHistory"), IsEmpty());
  script_.Expect("fmAsOf", [this](QWidget& question) {
    EXPECT_THAT(EnglishIn(question), IsEmpty());
    for (const char* typed : {"2999-12-31", "2000-01-01"}) {
      TypeInto(question, "txtDate", typed);
      ClickButton(question, "cmdShow");
      EXPECT_THAT(EnglishIn(question), IsEmpty()) << typed;
    }
    TypeInto(question, "txtTime", "?");
    EXPECT_THAT(EnglishIn(question), IsEmpty());
    ClickButton(question, "cmdCancel");
  });
  ClickButton(*WindowOnShow("fmHistory"), "cmdAsOf");
  RunHandler(platform_, [&] { windows_.OpenCalendarThen(entry); });
  EXPECT_THAT(EnglishIn("fmCalendarThen"), IsEmpty());
}

TEST_F(SaidTextsTest, AreThoseOfARuleBook) {
  RunHandler(platform_, [&] { windows_.OpenRuleBook(kDollar); });
  EXPECT_THAT(EnglishIn("fmRuleBook"), IsEmpty());
}

TEST_F(SaidTextsTest, AreThoseOfWhatIsWrongInARuleBook) {
  RunHandler(platform_, [&] { windows_.OpenRuleBook(kDollar); });
  QWidget& window = *WindowOnShow("fmRuleBook");
  Activate(window);
  // No expressions, and such as are none of a weekend.
  for (const char* typed : {"", "?", "12", "13-01", "2028-02-30", "7th", "12-25 ?", "12-25 to", "table ?",
                            "01-01", "3rd Monday of 01", "table nowhere", "12-25 Monday to Monday"}) {
    TypeInto(window, "txtExpression", typed);
    EXPECT_NE(Find<QLabel>(window, "lblOutcome").text(), QString()) << typed;
    EXPECT_THAT(EnglishIn(window, typed), IsEmpty()) << typed;
  }
  TypeInto(window, "txtExpression", "01-01");
  TypeInto(window, "txtName", "");
  EXPECT_THAT(EnglishIn(window), IsEmpty());
  TypeInto(window, "txtPublisher", "");
  EXPECT_THAT(EnglishIn(window), IsEmpty());
  script_.Expect("fmMessage", [](QWidget& question) { ClickButton(question, "cmdOk"); });
  window.close();
}

TEST_F(SaidTextsTest, AreThoseOfThePlannerOfAYear) {
  RunHandler(platform_, [&] { windows_.OpenYearPlanner({kDollar, kEuro}, 2028); });
  EXPECT_THAT(EnglishIn("fmYearPlanner"), IsEmpty());
}

TEST_F(SaidTextsTest, AreThoseOfTheImportOfAList) {
  RunHandler(platform_, [&] { windows_.OpenImport("", 2028); });
  QWidget& window = *WindowOnShow("fmImport");
  Activate(window);
  EXPECT_THAT(EnglishIn(window), IsEmpty());
  ClickButton(window, "cmdPreview");
  EXPECT_THAT(EnglishIn(window), IsEmpty()) << "without a file";
  TypeInto(window, "txtFile", "/?");
  for (const char* typed : {"", "USD EUR"}) {
    TypeInto(window, "txtCurrency", typed);
    ClickButton(window, "cmdPreview");
    EXPECT_THAT(EnglishIn(window), IsEmpty()) << typed;
  }
}

TEST_F(SaidTextsTest, AreThoseOfTheExportOfCalendars) {
  RunHandler(platform_, [&] { windows_.OpenExport("USD", 2028); });
  QWidget& window = *WindowOnShow("fmExport");
  Activate(window);
  EXPECT_THAT(EnglishIn(window), IsEmpty());
  for (const char* last : {"2027", "2029"}) {
    TypeInto(window, "txtLast", last);
    ClickButton(window, "cmdExport");
    EXPECT_THAT(EnglishIn(window), IsEmpty()) << last;
  }
}

TEST_F(SaidTextsTest, AreThoseOfTheQuestionForAnAnnouncedHoliday) {
  RunHandler(platform_, [&] { windows_.OpenYearPlanner({kDollar, kEuro}, 2028); });
  QWidget& planner = *WindowOnShow("fmYearPlanner");
  Activate(planner);
  script_.Expect("fmCloseDays", [this](QWidget& dialog) {
    EXPECT_THAT(EnglishIn(dialog), IsEmpty());
    for (const char* name : {"~", "Saturday", "Christmas Day"}) {
      TypeInto(dialog, "txtName", name);
      EXPECT_THAT(EnglishIn(dialog), IsEmpty()) << name;
    }
    ClickButton(dialog, "cmdCancel");
  });
  ClickTool(planner, "ID_CloseDays");
}

TEST_F(SaidTextsTest, AreThoseOfTheWhyAndTheYearBesideTheDays) {
  QWidget& window = OpenCalendars();
  ClickTool(window, "ID_YearPlanner");
  QTest::qWait(500);
  ClickTool(window, "ID_Find");
  EXPECT_THAT(EnglishIn(Find<QWidget>(window, "pnWhy")), IsEmpty());
  for (const char* tool : {"ID_Why", "ID_Find", "ID_GoToDate", "ID_YearPlanner", "ID_YearWindow"})
    EXPECT_THAT(EnglishIn(Find<QToolButton>(window, tool)), IsEmpty());
  EXPECT_THAT(EnglishIn(Find<QWidget>(window, "yvDays")), IsEmpty());
}

TEST_F(SaidTextsTest, AreThoseOfTheQuestionForADateAndOfWhatItRefuses) {
  QWidget& window = OpenCalendars();
  script_.Expect("fmGoToDate", [this](QWidget& dialog) {
    for (const char* typed : {"?", "2028-02-30", "2031-01-02", "2/30"}) {
      TypeInto(dialog, "txtDate", typed);
      ClickButton(dialog, "cmdGo");
      EXPECT_THAT(EnglishIn(dialog), IsEmpty()) << typed;
    }
    ClickButton(dialog, "cmdCancel");
  });
  ClickTool(window, "ID_GoToDate");
}

TEST_F(SaidTextsTest, AreThoseOfTheLookBeforeRulesAreAssigned) {
  QWidget& window = OpenCalendars();
  qt::GridView& days = GridIn(window);
  WalkToRow(days, 3);
  script_.Expect("ID_StatesMenu", [](QWidget& menu) { PickFromMenu(menu, "ID_AssignSingle"); });
  script_.Expect("fmEnterHolidays", [this](QWidget& rules) {
    script_.Expect("fmAssignPreview", [this](QWidget& preview) {
      EXPECT_THAT(EnglishIn(preview), IsEmpty());
      ClickButton(preview, "cmdCancel");
    });
    ClickTool(rules, "ID_OwnRules");
    WalkToRow(GridIn(rules), RowsOf(GridIn(rules)) - 1);
    ClickButton(rules, "cmdAction5");
    if (rules.isVisible()) rules.close();
  });
  RightClickRow(days, 3);
}

}  // namespace
}  // namespace ferrowind::gui
