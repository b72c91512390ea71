// Every day of a leap year, typed key by key into a date field.
#include <QTest>
#include <functional>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/controls/qt_date_picker.h"

namespace ferrowind::qt {
namespace {

constexpr int kLeapYear = 2028;

class TypedDates : public ::testing::TestWithParam<const char*> {
 protected:
  TypedDates() {
    field_.setLocale(locale_);
    picker_.SetCustomFormat("d  MMMM");
    field_.show();
    field_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&field_));
    field_.setFocus();
  }

  /// The forms that the locale's own order allows, and ISO's.
  [[nodiscard]] std::vector<QString> Forms() const {
    std::vector<QString> forms;
    for (const char* form : {"d MMMM", "d MMM", "dd. MMM.", "MMMM d", "MMM. dd", "MM-dd"})
      forms.push_back(QString::fromLatin1(form));
    const QString format = locale_.dateFormat(QLocale::ShortFormat);
    const bool is_month_first = format.indexOf(QLatin1Char('M')) < format.indexOf(QLatin1Char('d'));
    for (const char* form : {"d.M", "dd.MM.", "d/M", "dd/MM"}) {
      QString ordered = QString::fromLatin1(form);
      if (is_month_first) {
        ordered.replace(QLatin1Char('d'), QLatin1Char('x'))
            .replace(QLatin1Char('M'), QLatin1Char('d'))
            .replace(QLatin1Char('x'), QLatin1Char('M'));
      }
      forms.push_back(ordered);
    }
    return forms;
  }
  static QDate LastDayOf(int month) { return QDate(kLeapYear, month, 1).addMonths(1).addDays(-1); }
  static void ForEveryDay(const std::function<void(const QDate&)>& work) {
    for (QDate date(kLeapYear, 1, 1); date.year() == kLeapYear; date = date.addDays(1)) work(date);
  }

  /// What the picker holds once `text` was typed over the day `start` and Enter pressed.
  QDate HeldAfterTyping(const QString& text, const QDate& start) {
    picker_.SetDate(FromQt(start));
    field_.selectAll();
    // By characters, for which the keyboard simulation has no key codes.
    for (const QChar character : text)
      QTest::sendKeyEvent(QTest::Click, &field_, Qt::Key_unknown, character, {});
    QTest::keyClick(&field_, Qt::Key_Return);
    EXPECT_TRUE(picker_.RequireDate()) << text.toStdString();
    return ToQt(picker_.Date());
  }

  QLocale locale_{QString::fromLatin1(GetParam())};
  DateField field_;
  QtDatePicker picker_{field_};
};

TEST_P(TypedDates, AreHeldForEveryDayInEveryForm) {
  for (const QString& form : Forms()) {
    ForEveryDay([&](const QDate& date) {
      const QString text = locale_.toString(date, form);
      ASSERT_EQ(HeldAfterTyping(text, LastDayOf(date.dayOfYear() % 12 + 1)), date) << text.toStdString();
      ASSERT_EQ(field_.text(), locale_.toString(date, u"d'  'MMMM"));
    });
  }
}

TEST_P(TypedDates, AreHeldForEveryDayFromTheLastDayOfEveryMonth) {
  const std::vector<QString> forms = Forms();
  for (int month = 1; month <= 12; ++month) {
    const QString& form = forms[static_cast<std::size_t>(month) % forms.size()];
    ForEveryDay([&](const QDate& date) {
      const QString text = locale_.toString(date, form);
      ASSERT_EQ(HeldAfterTyping(text, LastDayOf(month)), date) << text.toStdString();
    });
  }
}

INSTANTIATE_TEST_SUITE_P(Locales, TypedDates, ::testing::Values("en_GB", "en_US", "de_DE", "pl_PL", "ja_JP"));

}  // namespace
}  // namespace ferrowind::qt
