// The pages of a year as a reader of the files has them.
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/adapters/qt/year/year_files.h"
#include "ferrowind/platform/values/failure.h"

#include "tests/gui/year/small_year.h"

namespace ferrowind::qt {
namespace {

using gui::SmallYear;
using ::testing::AllOf;
using ::testing::HasSubstr;

class YearPagesTest : public ::testing::Test {
 protected:
  [[nodiscard]] QString File(const char* name) const { return folder_.filePath(QLatin1String(name)); }

  /// What the program that reads texts out of PDF files finds on the pages.
  [[nodiscard]] static std::string TextOf(const QString& pdf) {
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), pdf, QStringLiteral("-")});
    EXPECT_TRUE(reader.waitForFinished()) << reader.errorString().toStdString();
    EXPECT_EQ(reader.exitCode(), 0) << reader.readAllStandardError().toStdString();
    return reader.readAllStandardOutput().toStdString();
  }
  /// A form feed ends each page.
  [[nodiscard]] static std::ptrdiff_t PagesOf(const std::string& text) {
    return std::count(text.begin(), text.end(), '\f');
  }
  void SavePdf(const platform::YearContent& content, Qt::LayoutDirection direction = Qt::LeftToRight) {
    const year_engine::YearDays days(content);
    SaveAsPdf(YearPages(days, QStringLiteral("EUR 2028"), QLocale::c(), direction), File("year.pdf"));
  }

  QTemporaryDir folder_;
};

TEST_F(YearPagesTest, TellAYearOnOnePageWhoseTextCanBeRead) {
  SavePdf(SmallYear({"EUR"}));
  const std::string text = TextOf(File("year.pdf"));
  EXPECT_THAT(text, AllOf(HasSubstr("EUR 2028"), HasSubstr("253 working days"), HasSubstr("January"),
                          HasSubstr("December"), HasSubstr("Weekend"), HasSubstr("Holiday point")));
  EXPECT_THAT(text, AllOf(HasSubstr("Friday 14 April 2028"), HasSubstr("Good Friday"),
                          HasSubstr("Monday 25 December 2028"), HasSubstr("Christmas Day")));
  EXPECT_EQ(PagesOf(text), 1);
}

TEST_F(YearPagesTest, TellTenCalendarsTogetherOnOnePage) {
  SavePdf(SmallYear({"AUD", "CAD", "CHF", "CNY", "EUR", "GBP", "JPY", "NOK", "SEK", "USD"}));
  const std::string text = TextOf(File("year.pdf"));
  EXPECT_THAT(text, AllOf(HasSubstr("AUD"), HasSubstr("USD"), HasSubstr("September")));
  EXPECT_LE(PagesOf(text), 2);
}

TEST_F(YearPagesTest, TellAFewCalendarsTogetherOnOnePage) {
  for (const std::vector<std::string>& few :
       {std::vector<std::string>{"EUR", "USD"}, {"EUR", "GBP", "USD"}}) {
    SavePdf(SmallYear(few));
    EXPECT_EQ(PagesOf(TextOf(File("year.pdf"))), 1) << few.size() << " calendars";
  }
}

TEST_F(YearPagesTest, NameTheYearAndTheNumberOfThePageOnFurtherPages) {
  auto content = SmallYear({"EUR"});
  content.notes.clear();
  for (std::int16_t day = 1; day <= 366; ++day) content.notes.push_back({day, "Note"});
  SavePdf(content);
  const std::string text = TextOf(File("year.pdf"));
  const std::size_t second = text.find('\f') + 1;
  const std::string head = text.substr(second, text.find('\n', second) - second);
  EXPECT_THAT(head, AllOf(::testing::StartsWith("EUR 2028"), ::testing::EndsWith("2")));
}

TEST_F(YearPagesTest, GoOnOnFurtherPagesWithMoreCalendarsAndNotes) {
  std::vector<std::string> many;
  for (int i = 0; i < 60; ++i) many.push_back("C" + std::to_string(i));
  auto content = SmallYear(many);
  content.notes.clear();
  for (std::int16_t day = 1; day <= 366; ++day) content.notes.push_back({day, "Note " + std::to_string(day)});
  SavePdf(content);
  const std::string text = TextOf(File("year.pdf"));
  EXPECT_GT(PagesOf(text), 3);
  EXPECT_THAT(text,
              AllOf(HasSubstr("C59"), HasSubstr("December"), HasSubstr("Note 1"), HasSubstr("Note 366")));
}

TEST_F(YearPagesTest, HoldNamesThatAreLongerThanAPage) {
  auto content = SmallYear({"EUR"});
  std::string name;
  for (int i = 0; i < 5000; ++i) name += "word ";
  content.notes.push_back({361, name + "end"});
  SavePdf(content);
  EXPECT_THAT(TextOf(File("year.pdf")), HasSubstr("Good Friday"));
}

TEST_F(YearPagesTest, ReadFromRightToLeftWhereTheLanguageDoes) {
  SavePdf(SmallYear({"EUR"}), Qt::RightToLeft);
  EXPECT_THAT(TextOf(File("year.pdf")), HasSubstr("Good Friday"));
}

TEST_F(YearPagesTest, MakeAPictureAsHighAsItsContent) {
  const year_engine::YearDays few(SmallYear({"EUR"}));
  auto content = SmallYear({"EUR"});
  for (std::int16_t day = 361; day <= 366; ++day)
    content.notes.insert(content.notes.end(), 20, {day, "Another"});
  const year_engine::YearDays many(content);
  const auto picture_of = [&](const year_engine::YearDays& days) {
    SaveAsPicture(YearPages(days, QStringLiteral("EUR 2028"), QLocale::c(), Qt::LeftToRight),
                  File("year.png"));
    return QImage(File("year.png"));
  };
  const QImage small = picture_of(few);
  const QImage large = picture_of(many);
  ASSERT_FALSE(small.isNull());
  EXPECT_GT(small.width(), 1000);
  EXPECT_GT(small.height(), small.width());
  EXPECT_EQ(large.width(), small.width());
  EXPECT_GT(large.height(), small.height());
  EXPECT_EQ(small.text(QStringLiteral("Title")), QStringLiteral("EUR 2028"));
  EXPECT_EQ(small.pixelColor(1, 1), QColor(Qt::white)) << "whatever the theme is";
}

TEST_F(YearPagesTest, LeaveTheOldFileWhereANewOneCannotBeWritten) {
  const year_engine::YearDays days(SmallYear({"EUR"}));
  const YearPages pages(days, QStringLiteral("EUR 2028"), QLocale::c(), Qt::LeftToRight);
  for (const auto save : {&SaveAsPdf, &SaveAsPicture}) {
    const QString folder_as_file = folder_.path();
    try {
      save(pages, folder_as_file);
      ADD_FAILURE() << "a folder was written as a file";
    } catch (const platform::Failure& failure) {
      EXPECT_THAT(failure.Description(), HasSubstr(FromQt(folder_as_file)));
    }
  }
}

}  // namespace
}  // namespace ferrowind::qt
