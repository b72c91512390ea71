// That everything which the windows of planning say of their own can be said in another language.
#include <QAbstractItemView>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QToolButton>

#include "ferrowind/control/calendar.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/planning/book_store.h"
#include "ferrowind/views/planning/planning_windows.h"

#include "host/delivery/delivered_books.h"
#include "host/delivery/delivered_tables.h"
#include "tests/gui/windows/dialog_script.h"
#include "tests/gui/windows/operator_desk.h"
#include "tests/gui/windows/operator_hands.h"

namespace ferrowind::gui {
namespace {

using ::testing::IsEmpty;

constexpr std::int32_t kDollar = 840;

/// A language in which every text is the English one behind a mark.
class MarkedWords : public platform::Words {
 public:
  [[nodiscard]] std::optional<std::string> Translate(const std::string& text,
                                                     std::optional<std::int64_t> /*number*/) const override {
    return "~" + text;
  }
};

class SaidTextsTest : public ::testing::Test {
 protected:
  SaidTextsTest() {
    platform_.words = &words_;
    desk_.Execute("DELETE FROM DicCcy WHERE Ccy NOT IN ('EUR', 'GBP', 'USD')");
    RunHandler(platform_, [] {
      const auto currencies = planning::CurrencyList::Load();
      for (const auto& [name, book, lines] : host::DeliveredBooks()) {
        if (name == "USD") planning::StoreBook(currencies.Named(name).id, name, "", book);
      }
    });
    desk_.Call("CldIUMain", {kDollar, 2028, {}, {}, {}, {}, {}});
  }
  ~SaidTextsTest() override {
    EXPECT_TRUE(script_.IsPlayed());
    EXPECT_TRUE(windows_.CloseAll());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  /// The texts of the window that are not said in the operator's language: those of its frame, its labels,
  /// buttons and headers that have letters.
  static std::vector<std::string> PlainTexts(const std::string& name) {
    const QWidget* window = WindowOnShow(name);
    if (window == nullptr) return {name + " is not open"};
    std::vector<std::string> plain;
    const auto judge = [&](const QString& text) {
      const bool has_letters = std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
      if (has_letters && !text.contains(QLatin1Char('~'))) plain.push_back(text.toStdString());
    };
    judge(window->windowTitle());
    for (const auto* label : window->findChildren<QLabel*>()) judge(label->text());
    for (const auto* button : window->findChildren<QPushButton*>()) judge(button->text());
    for (const auto* tool : window->findChildren<QToolButton*>(QRegularExpression(QStringLiteral("^ID_")))) {
      judge(tool->accessibleName());
      judge(tool->accessibleDescription());
    }
    for (const auto* view : window->findChildren<QTableView*>()) {
      for (int column = 0; view->model() != nullptr && column < view->model()->columnCount(); ++column)
        judge(view->model()->headerData(column, Qt::Horizontal).toString());
    }
    return plain;
  }

  /// No question or message is expected.
  DialogScript script_;
  MarkedWords words_;
  OperatorDesk desk_{OperatorDesk::Rules::kOfOffice};
  platform::Platform platform_ = desk_.Platform();
  PlanningWindows windows_{platform_, host::DeliveredDateTables()};
  /// Brings the dictionary, which the windows read the currencies from.
  Calendar control_{platform_};
};

TEST_F(SaidTextsTest, AreThoseOfTheBoard) {
  RunHandler(platform_, [&] { windows_.OpenReadiness(); });
  EXPECT_THAT(PlainTexts("fmReadiness"), IsEmpty());
}

TEST_F(SaidTextsTest, AreThoseOfThePlanOfAYear) {
  RunHandler(platform_, [&] { windows_.OpenYearPlan({{kDollar, 2028}}); });
  EXPECT_THAT(PlainTexts("fmYearPlan"), IsEmpty());
}

TEST_F(SaidTextsTest, AreThoseOfTheHistory) {
  RunHandler(platform_, [&] { windows_.OpenHistory({}); });
  EXPECT_THAT(PlainTexts("fmHistory"), IsEmpty());
}

TEST_F(SaidTextsTest, AreThoseOfARuleBook) {
  RunHandler(platform_, [&] { windows_.OpenRuleBook(kDollar); });
  EXPECT_THAT(PlainTexts("fmRuleBook"), IsEmpty());
}

}  // namespace
}  // namespace ferrowind::gui
