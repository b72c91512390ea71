// Books, plans and reviews on a database with the delivered books of five currencies.

#include "tests/contract/planning/planning_contract.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include <gmock/gmock.h>

#include "ferrowind/planning/book_store.h"
#include "ferrowind/planning/database_call.h"
#include "ferrowind/planning/database_review.h"
#include "ferrowind/planning/plan_batch.h"
#include "ferrowind/planning/readiness_report.h"
#include "ferrowind/planning/year_planner.h"
#include "ferrowind/platform/database/engine.h"
#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/platform/values/conversion.h"

#include "host/delivery/delivered_books.h"
#include "host/delivery/delivered_tables.h"
#include "host/session/procedure_session.h"
#include "tests/contract/database/procedure_caller.h"
#include "tests/support/failure_of.h"

namespace ferrowind::contract {
namespace {

using almanac::ExceptionHandling;
using almanac::Finding;
using almanac::FindingLevel;
using almanac::FindingSubject;
using planning::CallDatabase;
using planning::Currency;
using planning::YearPlanner;
using platform::Date;
using platform::Value;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

const std::vector<std::string> kCurrencies = {"EUR", "USD", "GBP", "JPY", "CHF"};
constexpr int kYear = 2028;
/// In a month in which the year after the next must be prepared.
const Date kToday(2026, 11, 22);

/// A day of a currency.
using CurrencyDay = std::pair<std::string, Date>;

almanac::RuleBook DeliveredBook(const std::string& currency) {
  for (const almanac::NamedBook& delivered : host::DeliveredBooks()) {
    if (delivered.name == currency) return delivered.book;
  }
  throw std::logic_error("No book of " + currency + " is delivered");
}

SourceValues Parameters(std::initializer_list<std::pair<const char*, Value>> values) {
  SourceValues parameters;
  for (const auto& [name, value] : values) parameters.Add(name, value);
  return parameters;
}

/// An engine that counts the connections which are opened.
class CountingEngine : public platform::Engine {
 public:
  explicit CountingEngine(platform::Engine& engine) : engine_(engine) {}

  [[nodiscard]] std::unique_ptr<platform::Connection> Connect(const std::string& connection_string) override {
    ++opened_;
    return engine_.Connect(connection_string);
  }
  [[nodiscard]] std::shared_ptr<platform::RecordSet> ReadDictionary(const std::string& connection_string,
                                                                    const std::string& name) override {
    return engine_.ReadDictionary(connection_string, name);
  }
  [[nodiscard]] std::unique_ptr<platform::ChangeWatch> Watch(const std::string& connection_string) override {
    return engine_.Watch(connection_string);
  }

  [[nodiscard]] int Opened() const { return opened_; }

 private:
  platform::Engine& engine_;
  int opened_ = 0;
};

/// A database with the books of the five currencies.
class PlannedDatabase {
 public:
  explicit PlannedDatabase(const DatabaseKind<CalendarDatabaseUnderTest>& kind) : database_(kind.make()) {
    const std::string url = database_->ConnectionString();
    engine_ = std::make_shared<CountingEngine>(database_->Engine());
    engines_.Register(url.substr(0, url.find(':')), engine_);
    Run([&] {
      const auto currencies = planning::CurrencyList::Load();
      for (const std::string& code : kCurrencies) {
        planning::StoreBook(currencies.Named(code).id, code, "", DeliveredBook(code));
      }
    });
  }

  void Run(const std::function<void()>& work) {
    host::RunWithDatabase(engines_, database_->ConnectionString(), work);
  }

  /// How many connections that opens.
  int ConnectionsOf(const std::function<void()>& work) {
    const int before = engine_->Opened();
    Run(work);
    return engine_->Opened() - before;
  }

  /// How many calendars had to be changed.
  int ApplyPlans(int first_year, int last_year) {
    int changed = 0;
    Run([&] {
      for (const std::string& code : kCurrencies) {
        for (int year = first_year; year <= last_year; ++year) changed += ApplyPlan(code, year) ? 1 : 0;
      }
    });
    return changed;
  }

  planning::DatabaseReview Review() {
    planning::DatabaseReview review;
    Run([&] { review = planning::ReviewDatabase(host::DeliveredDateTables(), kToday, {}); });
    return review;
  }

  /// The rows of `CldGetMain` for the five calendars of `kYear`.
  std::map<std::string, std::vector<Row>> Calendars() {
    std::map<std::string, std::vector<Row>> calendars;
    Run([&] {
      const auto currencies = planning::CurrencyList::Load();
      for (const std::string& code : kCurrencies) {
        const auto answer = CallDatabase(
            "Reading", "CldGetMain", Parameters({{"ID1", currencies.Named(code).id}, {"Year1", kYear}}), 1);
        calendars[code] = RowsOf(*answer.record_sets.front());
      }
    });
    return calendars;
  }

  /// The names of the rules that days of `kYear` have.
  std::map<CurrencyDay, Value> Names() {
    std::map<CurrencyDay, Value> names;
    for (const auto& [code, rows] : Calendars()) {
      for (const Row& row : rows) names[{code, platform::ToDate(row[0])}] = row[2];
    }
    return names;
  }

  /// What following no plan but selecting all rules and assigning them does to the five calendars.
  void AssignAllRulesToAllCalendars() {
    Run([&] {
      const auto currencies = planning::CurrencyList::Load();
      const auto rules = CallDatabase("Reading", "CldAllInfo", {}, 3).record_sets[2];
      for (const std::string& code : kCurrencies) {
        const std::int32_t id = currencies.Named(code).id;
        (void)CallDatabase("Creating", "CldIUMain", Parameters({{"ID1", id}, {"Year1", kYear}}));
        for (rules->MoveFirst(); !rules->Eof(); rules->MoveNext()) Assign(id, *rules);
      }
    });
  }

  /// Makes every day of the calendar of `kYear` a working day by exception, with a comment.
  static void MakeEveryDayAnException(const std::string& code) {
    const YearPlanner planner(host::DeliveredDateTables());
    const std::int32_t id = planner.Currencies().Named(code).id;
    std::string dates;
    for (Date day(kYear, 1, 1); day.Year() == kYear; day = day.AddDays(1)) {
      dates += (dates.empty() ? "\"" : ", \"") + day.ToIso() + '"';
    }
    const auto fingerprint =
        CallDatabase("Reading", "CldGetFingerprint", Parameters({{"ID1", id}, {"Year1", kYear}}), 1);
    (void)CallDatabase(
        "Filling", "CldApplyPlan",
        Parameters({{"ID1", id},
                    {"Year1", kYear},
                    {"Expected", (*fingerprint.record_sets.front())["Fingerprint"]},
                    {"Days", R"([{"TID1": 1, "DayComment": "open", "Dates": [)" + dates + "]}]"}}));
  }

  /// The newest entries, the newest first.
  std::vector<std::int32_t> NewestEntries(std::int32_t count) {
    std::vector<std::int32_t> entries;
    Run([&] {
      const auto rows =
          CallDatabase("Reading", "CldGetHistory", Parameters({{"Count", count}}), 1).record_sets[0];
      for (rows->MoveFirst(); !rows->Eof(); rows->MoveNext()) {
        entries.push_back(platform::ToInt32((*rows)["EntryID"]));
      }
    });
    return entries;
  }

  void Undo(std::int32_t entry) {
    Run([&] { (void)CallDatabase("Undoing", "CldUndo", Parameters({{"EntryID", entry}})); });
  }

  static bool ApplyPlan(const std::string& code, int year) {
    const YearPlanner planner(host::DeliveredDateTables());
    const auto preparation = planner.Prepare(planner.Currencies().Named(code), year);
    if (!preparation->Changes(ExceptionHandling::kOverwrite)) return false;
    preparation->Apply(ExceptionHandling::kOverwrite);
    return true;
  }

 private:
  /// Gives the days of the current rule that rule, as an operator does who selects it: a dated rule the day
  /// and month that it has.
  static void Assign(std::int32_t currency, const platform::RecordSet& rule) {
    const std::int32_t type = platform::ToInt32(rule["TID1"]);
    if (type == 1) return;
    SourceValues parameters =
        Parameters({{"ID1", currency}, {"Year1", kYear}, {"TID1", type}, {"ID2", rule["ID2"]}});
    if (!rule["D1"].IsEmpty()) {
      const Date own = platform::ToDate(rule["D1"]);
      const Date day = own.AddYears(kYear - own.Year());
      parameters.Add("Day1", day.DayOfYear());
      parameters.Add("ODate", day);
    }
    (void)CallDatabase("Assigning", "CldIUMain", parameters);
  }

  std::unique_ptr<CalendarDatabaseUnderTest> database_;
  std::shared_ptr<CountingEngine> engine_;
  platform::EngineRegistry engines_;
};

TEST_P(PlanningContract, BooksComeBackAsTheyWereStored) {
  PlannedDatabase database(GetParam());
  database.Run([] {
    const auto currencies = planning::CurrencyList::Load();
    for (const std::string& code : kCurrencies) {
      const auto stored = planning::LoadBook(currencies.Named(code).id, code, host::DeliveredDateTables());
      ASSERT_TRUE(stored);
      EXPECT_THAT(stored->faults, IsEmpty());
      EXPECT_EQ(stored->book, DeliveredBook(code));
    }
  });
}

TEST_P(PlanningContract, ABookThatWasChangedMeanwhileIsNotOverwritten) {
  PlannedDatabase database(GetParam());
  database.Run([] {
    const std::int32_t euro = planning::CurrencyList::Load().Named("EUR").id;
    const auto first = planning::LoadBook(euro, "EUR", host::DeliveredDateTables());
    planning::StoreBook(euro, "EUR", first->fingerprint, DeliveredBook("USD"));
    EXPECT_THAT(
        testing::FailureOf([&] { planning::RemoveBook(euro, "EUR", first->fingerprint); }).Description(),
        HasSubstr("it was changed meanwhile"));
    const auto second = planning::LoadBook(euro, "EUR", host::DeliveredDateTables());
    EXPECT_EQ(second->book, DeliveredBook("USD"));
    planning::RemoveBook(euro, "EUR", second->fingerprint);
    EXPECT_FALSE(planning::LoadBook(euro, "EUR", host::DeliveredDateTables()));
  });
}

TEST_P(PlanningContract, AppliedCalendarsAreAsPlannedAndTheReviewSaysSo) {
  PlannedDatabase database(GetParam());
  EXPECT_EQ(database.Review().Worst(), FindingLevel::kError) << "no calendar of the running year";
  EXPECT_EQ(database.ApplyPlans(2026, 2028), 15);
  EXPECT_EQ(database.ApplyPlans(2026, 2028), 0);
  const auto review = database.Review();
  EXPECT_THAT(review.findings, IsEmpty());
  EXPECT_EQ(review.calendars, 15U);
  EXPECT_EQ(review.currencies, 5U);
}

TEST_P(PlanningContract, TheReadinessOfAllCurrenciesIsReadOverOneConnection) {
  PlannedDatabase database(GetParam());
  ASSERT_EQ(database.ApplyPlans(2026, 2027), 10);
  std::optional<planning::ReadinessReport> report;
  planning::ReadinessReader reader(host::DeliveredDateTables());
  const auto read = [&] { report = reader.Read(kToday); };
  EXPECT_EQ(database.ConnectionsOf(read), 1);
  ASSERT_THAT(report->currencies, SizeIs(5));
  for (const planning::CurrencyReadiness& currency : report->currencies) {
    EXPECT_EQ(currency.years[1].readiness, almanac::Readiness::kPrepared) << currency.currency.code;
    EXPECT_EQ(currency.years[3].readiness, almanac::Readiness::kNotPrepared) << currency.currency.code;
  }
  EXPECT_EQ(database.ConnectionsOf(read), 1) << "nothing stays open in between";
}

TEST_P(PlanningContract, AReportThatIsMadeAgainTellsOfEachCallMeanwhile) {
  PlannedDatabase database(GetParam());
  ASSERT_EQ(database.ApplyPlans(2026, 2028), 15);
  planning::ReadinessReader reader(host::DeliveredDateTables());
  std::optional<planning::ReadinessReport> report;
  const auto euro_2027 = [&] {
    database.Run([&] { report = reader.Read(kToday); });
    const auto euro = std::find_if(report->currencies.begin(), report->currencies.end(),
                                   [](const auto& currency) { return currency.currency.code == "EUR"; });
    return euro->years.at(2);
  };
  EXPECT_EQ(euro_2027().readiness, almanac::Readiness::kPrepared);

  database.Run([] {
    (void)CallDatabase("Excepting a day", "CldIUMain",
                       Parameters({{"ID1", 978},
                                   {"Year1", 2027},
                                   {"TID1", 1},
                                   {"ID2", 1},
                                   {"Day1", 1},
                                   {"ODate", Date(2027, 1, 1)},
                                   {"Comment", "Year end"}}));
  });
  EXPECT_EQ(euro_2027().excepted_days, 1);
  const auto undo = [&] {
    const std::int32_t entry = database.NewestEntries(1).front();
    database.Run([&] { (void)CallDatabase("Undoing", "CldUndo", Parameters({{"EntryID", entry}})); });
  };
  undo();
  EXPECT_EQ(euro_2027().excepted_days, 0);

  database.Run([] {
    const auto book = planning::LoadBook(978, "EUR", host::DeliveredDateTables());
    planning::StoreBook(978, "EUR", book->fingerprint, DeliveredBook("USD"));
  });
  EXPECT_EQ(euro_2027().readiness, almanac::Readiness::kDiffers);
  EXPECT_FALSE(report->review.findings.empty());
  undo();
  EXPECT_EQ(euro_2027().readiness, almanac::Readiness::kPrepared);
  EXPECT_THAT(report->review.findings, IsEmpty());
}

TEST_P(PlanningContract, APlanIsRefusedWhenTheCalendarHasChangedSinceItWasCompared) {
  PlannedDatabase database(GetParam());
  database.Run([] {
    const YearPlanner planner(host::DeliveredDateTables());
    const auto stale = planner.Prepare(planner.Currencies().Named("EUR"), kYear);
    ASSERT_TRUE(PlannedDatabase::ApplyPlan("EUR", kYear));
    EXPECT_THAT(testing::FailureOf([&] { stale->Apply(ExceptionHandling::kOverwrite); }).Description(),
                HasSubstr("Applying the plan of EUR 2028: it was changed meanwhile"));
  });
}

TEST_P(PlanningContract, RepairsWithOneCallACalendarEachToWhichAllRulesWereAssignedAndUndoBringsTheMessBack) {
  PlannedDatabase reference(GetParam());
  ASSERT_EQ(reference.ApplyPlans(2026, 2028), 15);
  const auto right = reference.Names();

  PlannedDatabase database(GetParam());
  ASSERT_EQ(database.ApplyPlans(2026, 2027), 10);
  database.AssignAllRulesToAllCalendars();
  const auto mess = database.Calendars();
  std::set<CurrencyDay> wrong;
  for (const auto& [day, name] : database.Names()) {
    if (right.at(day) != name) wrong.insert(day);
  }
  // As many as nobody would find by looking.
  ASSERT_GT(wrong.size(), 100U);

  std::set<CurrencyDay> found;
  for (const Finding& finding : database.Review().findings) {
    if (finding.level == FindingLevel::kNote) continue;
    EXPECT_EQ(finding.subject, FindingSubject::kDiffersFromPlan) << finding.sentence.InEnglish();
    ASSERT_TRUE(finding.day) << finding.sentence.InEnglish();
    EXPECT_THAT(finding.sentence.InEnglish(), HasSubstr(std::to_string(finding.day->Day())));
    EXPECT_TRUE(found.emplace(finding.currency, *finding.day).second)
        << "told twice: " << finding.sentence.InEnglish();
  }
  EXPECT_EQ(found, wrong);

  const std::int32_t before = database.NewestEntries(1).front();
  EXPECT_EQ(database.ApplyPlans(kYear, kYear), 5);
  EXPECT_EQ(database.Names(), right);
  EXPECT_THAT(database.Review().findings, IsEmpty());
  const auto entries = database.NewestEntries(6);
  ASSERT_THAT(entries, SizeIs(6));
  EXPECT_EQ(entries.back(), before) << "one call a calendar";

  for (std::size_t i = 0; i + 1 < entries.size(); ++i) database.Undo(entries[i]);
  EXPECT_EQ(database.Calendars(), mess);
}

TEST_P(PlanningContract, RepairsACalendarFullOfExceptionsOrKeepsThemAllAndUndoBringsThemBack) {
  PlannedDatabase database(GetParam());
  ASSERT_EQ(database.ApplyPlans(2026, kYear), 15);
  const auto right = database.Names();
  database.Run([] { PlannedDatabase::MakeEveryDayAnException("EUR"); });
  const auto full = database.Calendars();
  std::size_t closed = 0;
  for (const auto& [day, name] : database.Names()) {
    if (day.first == "EUR" && right.at(day) != name && !right.at(day).IsEmpty()) ++closed;
  }
  ASSERT_GT(closed, 100U) << "weekends and holidays";

  const auto review = database.Review();
  ASSERT_EQ(review.Worst(), FindingLevel::kError);
  EXPECT_THAT(review.findings.front().sentence.InEnglish(), HasSubstr("no weekends"));
  database.Run([&] {
    const YearPlanner planner(host::DeliveredDateTables());
    const auto preparation = planner.Prepare(planner.Currencies().Named("EUR"), kYear);
    EXPECT_FALSE(preparation->Changes(ExceptionHandling::kKeep));
    const auto& days = preparation->Compared().Days();
    EXPECT_EQ(std::count_if(days.begin(), days.end(),
                            [](const auto& day) { return day.action == almanac::PlanAction::kException; }),
              static_cast<std::ptrdiff_t>(closed));
    EXPECT_TRUE(PlannedDatabase::ApplyPlan("EUR", kYear));
    EXPECT_FALSE(PlannedDatabase::ApplyPlan("EUR", kYear));
  });
  // An exception on a day that is open anyway does no harm and stays, with what was written on it.
  for (const auto& [day, name] : database.Names()) {
    if (!right.at(day).IsEmpty()) EXPECT_EQ(name, right.at(day)) << day.second.ToIso();
  }
  EXPECT_THAT(database.Review().findings, IsEmpty());
  database.Undo(database.NewestEntries(1).front());
  EXPECT_EQ(database.Calendars(), full);
}

TEST_P(PlanningContract, AppliesPlansOfManyCalendarsWithoutTheDaysLeftOutAndUndoesThemTogether) {
  using Kind = planning::PlanOutcome::Kind;
  constexpr int kGoodFriday = 105;
  PlannedDatabase database(GetParam());
  database.Run([] {
    const auto currencies = planning::CurrencyList::Load();
    const planning::CalendarKey euro(currencies.Named("EUR").id, kYear);
    const planning::CalendarKey pound(currencies.Named("GBP").id, kYear);
    planning::PlanBatch batch(host::DeliveredDateTables(), {euro, pound});
    planning::PlanBatch slower(host::DeliveredDateTables(), {euro, pound});
    batch.At(0).Take(kGoodFriday, false);
    const auto applied = batch.Apply();
    ASSERT_THAT(applied, SizeIs(2));
    EXPECT_EQ(applied[0].sentence, "EUR 2028 is made but for 1 day that is left out.");
    EXPECT_EQ(applied[1].sentence, "GBP 2028 is made.");
    const auto days = planning::LoadCalendar(currencies.Named("EUR"), kYear).content.days;
    EXPECT_TRUE(std::none_of(days.begin(), days.end(),
                             [](const auto& day) { return day.day_of_year == kGoodFriday; }));
    for (const auto& outcome : slower.Apply()) EXPECT_EQ(outcome.kind, Kind::kRefused) << outcome.sentence;
    EXPECT_EQ(slower.Totals().taken, 1U) << "what the other one has left out";

    ASSERT_TRUE(batch.CanUndo());
    for (const auto& outcome : batch.Undo()) EXPECT_EQ(outcome.kind, Kind::kDone) << outcome.sentence;
    EXPECT_THAT(planning::LoadRules().calendars, IsEmpty());
  });
}

}  // namespace
}  // namespace ferrowind::contract
