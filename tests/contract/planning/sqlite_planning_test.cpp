// Planning on SQLite.

#include <algorithm>
#include <memory>
#include <sstream>
#include <string>

#include "ferrowind/planning/book_store.h"
#include "ferrowind/planning/readiness_report.h"
#include "ferrowind/planning/year_planner.h"
#include "ferrowind/platform/database/engine_registry.h"

#include "host/delivery/delivered_books.h"
#include "host/delivery/delivered_tables.h"
#include "host/session/procedure_session.h"
#include "tests/contract/database/sqlite_database.h"
#include "tests/contract/planning/planning_contract.h"

namespace ferrowind::contract {
namespace {

const DatabaseKind<CalendarDatabaseUnderTest> kSqlite = {"Sqlite",
                                                         [] { return std::make_unique<SqliteDatabase>(); }};

INSTANTIATE_TEST_SUITE_P(Engines, PlanningContract, ::testing::Values(kSqlite),
                         KindName<DatabaseKind<CalendarDatabaseUnderTest>>);

/// All that a report tells.
std::string TextOf(const planning::ReadinessReport& report) {
  std::ostringstream text;
  for (const planning::CurrencyReadiness& currency : report.currencies) {
    text << currency.currency.code << ' ' << currency.currency.name;
    for (const almanac::YearReadiness& year : currency.years) {
      text << ' ' << year.year << ':' << static_cast<int>(year.readiness) << ',' << year.has_calendar << ','
           << year.can_be_planned << ',' << year.differing_days << ',' << year.excepted_days;
      for (const auto& phrase : year.unpublished) text << ' ' << phrase.InEnglish();
    }
    text << '\n';
  }
  for (const almanac::Finding& finding : report.review.findings) {
    text << static_cast<int>(finding.level) << ' ' << finding.sentence.InEnglish() << '\n';
  }
  text << report.review.calendars << ' ' << report.review.currencies;
  return text.str();
}

/// A file with the delivered books of EUR and GBP and their calendars of 2026 and 2027 as planned, on which
/// one reader makes all reports.
class ReportedFile {
 public:
  ReportedFile() {
    engines_.Register("sqlite",
                      std::shared_ptr<platform::Engine>(std::shared_ptr<void>(), &database_.Engine()));
    Run([] {
      const auto currencies = planning::CurrencyList::Load();
      for (const auto& delivered : host::DeliveredBooks()) {
        if (delivered.name != "EUR" && delivered.name != "GBP") continue;
        planning::StoreBook(currencies.Named(delivered.name).id, delivered.name, "", delivered.book);
      }
      const planning::YearPlanner planner(host::DeliveredDateTables());
      for (const auto* const currency : planner.WithBooks()) {
        for (const int year : {2026, 2027}) {
          planner.Prepare(*currency, year)->Apply(almanac::ExceptionHandling::kOverwrite);
        }
      }
    });
  }

  /// What the reader tells that has judged before; it must be what one tells that has not.
  std::string Report(const platform::Date& today) {
    std::string report;
    Run([&] {
      report = TextOf(reader_.Read(today));
      EXPECT_EQ(report, TextOf(planning::ReadinessReader(host::DeliveredDateTables()).Read(today)));
    });
    return report;
  }

  void Execute(const std::string& sql) { database_.Execute(sql); }

 private:
  void Run(const std::function<void()>& work) {
    host::RunWithDatabase(engines_, database_.ConnectionString(), work);
  }

  SqliteDatabase database_;
  platform::EngineRegistry engines_;
  planning::ReadinessReader reader_{host::DeliveredDateTables()};
};

TEST(ReportsOnAFile, TellOfWhatAnyProgramHasChangedInItsTables) {
  ReportedFile file;
  const platform::Date today(2026, 11, 22);
  std::string before = file.Report(today);
  EXPECT_EQ(file.Report(today), before);
  for (const char* change : {
           "UPDATE CldDay SET ID2 = (SELECT ID2 FROM CldHoliday WHERE Name1 = 'Christmas Day'), TID1 = 3"
           " WHERE ID1 = 978 AND Year1 = 2027 AND Day1 = 358",
           "UPDATE CldDay SET TID1 = 1, ID2 = NULL WHERE ID1 = 978 AND Year1 = 2027 AND Day1 = 358",
           "UPDATE CldDay SET TID1 = 1, ID2 = 1 WHERE ID1 = 826 AND Year1 = 2026 AND Day1 = 359",
           "UPDATE CldDay SET Comment = 'Open' WHERE ID1 = 826 AND Year1 = 2026 AND Day1 = 359",
           "UPDATE CldDay SET Comment = 'Shut' WHERE ID1 = 826 AND Year1 = 2026 AND Day1 = 359",
           "DELETE FROM CldDay WHERE ID1 = 826 AND Year1 = 2026 AND Day1 = 359",
           "DELETE FROM CldDay WHERE ID1 = 978 AND Year1 = 2026",
           "DELETE FROM CldCalendar WHERE ID1 = 978 AND Year1 = 2026",
           "INSERT INTO CldCalendar (ID1, Year1) VALUES (978, 2028)",
           "INSERT INTO CldCalendar (ID1, Year1) VALUES (840, 2026)",
           "UPDATE CldHoliday SET Name1 = 'Another day' WHERE Name1 = 'Christmas Day'",
           "UPDATE CldRecurrence SET Expression = '12-24' WHERE ID1 = 978 AND Expression = '12-25'",
           "UPDATE CldRecurrence SET Expression = 'no expression' WHERE ID1 = 978 AND Expression = '12-24'",
           "DELETE FROM CldRecurrence WHERE ID1 = 978 AND Expression = 'no expression'",
           "UPDATE CldBook SET FromYear = 2027 WHERE ID1 = 826",
           "UPDATE CldBook SET FromYear = 2030 WHERE ID1 = 826",
           "DELETE FROM CldRecurrence WHERE ID1 = 826",
           "DELETE FROM CldBook WHERE ID1 = 826",
           "UPDATE DicCcy SET Name = 'Pounds' WHERE CcyID = 826",
           "UPDATE DicCcy SET LastDay = '2026-12-31' WHERE CcyID = 978",
       }) {
    file.Execute(change);
    const std::string after = file.Report(today);
    EXPECT_NE(after, before) << change;
    before = after;
  }
}

TEST(ReportsOnAFile, AreThoseOfTheDayOnWhichTheyAreMade) {
  ReportedFile file;
  std::string before;
  for (const platform::Date& today : {platform::Date(2026, 8, 31), platform::Date(2026, 9, 1),
                                      platform::Date(2027, 1, 1), platform::Date(2026, 8, 31)}) {
    const std::string after = file.Report(today);
    EXPECT_NE(after, before) << today.ToIso();
    before = after;
  }
}

}  // namespace
}  // namespace ferrowind::contract
