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

  [[nodiscard]] bool IsMonthFirst() const {
    const QString format = locale_.dateFormat(QLocale::ShortFormat);
    return format.indexOf(QLatin1Char('M')) < format.indexOf(QLatin1Char('d'));
  }
  /// The forms that the locale's own order allows, and ISO's.
  [[nodiscard]] std::vector<QString> Forms() const {
    std::vector<QString> forms;
    for (const char* form : {"d MMMM", "d MMM", "dd. MMM.", "MMMM d", "MMM. dd", "MM-dd"})
      forms.push_back(QString::fromLatin1(form));
    for (const char* form : {"d.M", "dd.MM.", "d/M", "dd/MM"}) {
      QString ordered = QString::fromLatin1(form);
      if (IsMonthFirst()) {
        ordered.replace(QLatin1Char('d'), QLatin1Char('x'))
            .replace(QLatin1Char('M'), QLatin1Char('d'))
            .replace(QLatin1Char('x'), QLatin1Char('M'));
      }
      forms.push_back(ordered);
    }
    return forms;
  }
  /// Whether `date` in that form could be another day too: with a hyphen, where the locale has the day first.
  [[nodiscard]] bool IsAmbiguous(const QString& form, const QDate& date) const {
    return form.contains(QLatin1Char('-')) && !IsMonthFirst() && date.day() <= 12 &&
           date.day() != date.month();
  }
  static QDate LastDayOf(int month) { return QDate(kLeapYear, month, 1).addMonths(1).addDays(-1); }
  static void ForEveryDay(const std::function<void(const QDate&)>& work) {
    for (QDate date(kLeapYear, 1, 1); date.year() == kLeapYear; date = date.addDays(1)) work(date);
  }

  /// Types `text` over the day `start` and presses Enter.
  void Type(const QString& text, const QDate& start) {
    picker_.SetDate(FromQt(start));
    field_.selectAll();
    // By characters, for which the keyboard simulation has no key codes.
    for (const QChar character : text)
      QTest::sendKeyEvent(QTest::Click, &field_, Qt::Key_unknown, character, {});
    QTest::keyClick(&field_, Qt::Key_Return);
  }
  /// What the picker holds after that.
  QDate HeldAfterTyping(const QString& text, const QDate& start) {
    Type(text, start);
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
      if (IsAmbiguous(form, date)) return;
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
      if (IsAmbiguous(form, date)) return;
      const QString text = locale_.toString(date, form);
      ASSERT_EQ(HeldAfterTyping(text, LastDayOf(month)), date) << text.toStdString();
    });
  }
}

TEST_P(TypedDates, AreRefusedWhereTheyCouldBeAnotherDay) {
  int refused = 0;
  for (const QString& form : Forms()) {
    ForEveryDay([&](const QDate& date) {
      if (!IsAmbiguous(form, date)) return;
      ++refused;
      const QString text = locale_.toString(date, form);
      Type(text, LastDayOf(date.month()));
      ASSERT_FALSE(picker_.RequireDate()) << text.toStdString();
      ASSERT_EQ(field_.text(), text);
    });
  }
  EXPECT_EQ(refused, IsMonthFirst() ? 0 : 12 * 11);
}

INSTANTIATE_TEST_SUITE_P(Locales, TypedDates, ::testing::Values("en_GB", "en_US", "de_DE", "pl_PL", "ja_JP"));

}  // namespace
}  // namespace ferrowind::qt
