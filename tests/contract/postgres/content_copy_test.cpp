// Copies of calendar databases from each engine to each: everything goes along, or nothing happens.

#include "ferrowind/adapters/content/content_copy.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "ferrowind/adapters/content/content_comparison.h"
#include "ferrowind/adapters/content/database_status.h"
#include "ferrowind/adapters/content/doubtful_outcome.h"
#include "ferrowind/adapters/postgres/database_content.h"
#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/platform/values/failure.h"

#include "host/admin/database_content.h"
#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/postgres/copy_end.h"
#include "tests/contract/postgres/cutting_proxy.h"
#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
namespace {

/// No more rows are copied or compared between two calls of an observer.
constexpr std::int64_t kRowsBetweenQuestions = 128;

using platform::Date;
using platform::Value;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::Pair;

platform::EngineRegistry Engines() {
  platform::EngineRegistry engines;
  engines.Register(sqlite::Engine::kScheme, std::make_shared<sqlite::Engine>());
  engines.Register(postgres::Engine::kScheme, std::make_shared<postgres::Engine>());
  return engines;
}

constexpr const char* kAddHistoryEntry =
    "INSERT INTO CldHistory (Moment, UserName, ProcedureName, Parameters, ReturnValue, RowsChanged,"
    " ChainPosition, Previous, Hash) VALUES ('2028-01-02T03:04:05.678Z', 'me', 'CldIUMain', '{}', 0, 0, 1, "
    "'', '')";

void CopyTo(content::Source& source, CopyEnd& to, const content::CopyObserver& observe = {}) {
  host::FillDatabase(Engines(), to.ConnectionString(),
                     [&](content::Target& target) { content::CopyContent(source, target, observe); });
}

void Copy(CopyEnd& from, CopyEnd& to, const content::CopyObserver& observe = {}) {
  CopyTo(*host::OpenContent(Engines(), from.ConnectionString()), to, observe);
}

/// Every table whose rows the two do not have alike.
std::string Differences(CopyEnd& left, CopyEnd& right) {
  const auto left_content = host::OpenContent(Engines(), left.ConnectionString());
  const auto right_content = host::OpenContent(Engines(), right.ConnectionString());
  std::string differences;
  for (const content::Table& table : content::Tables()) {
    const auto row = content::FirstDifference(*left_content, *right_content, table);
    if (row) differences += std::string(table.name) + " row " + std::to_string(*row) + "\n";
  }
  return differences;
}

/// What the procedures tell of a database, so what its users see.
std::vector<std::vector<Row>> EverythingToldOf(CopyEnd& database) {
  ProcedureCaller caller(database);
  std::vector<std::vector<Row>> told;
  const auto info = caller.Call("CldAllInfo");
  for (const auto& rows : info.record_sets) told.push_back(RowsOf(*rows));
  for (const Row& calendar : told.at(0)) {
    const auto days = caller.Call("CldGetMain", {{"ID1", calendar.at(0)}, {"Year1", calendar.at(1)}});
    told.push_back(RowsOf(*days.record_sets.at(0)));
  }
  told.push_back(RowsOf(*caller.Call("CldGetCurrencies").record_sets.at(0)));
  const auto books = caller.Call("CldGetBook");
  told.push_back(RowsOf(*books.record_sets.at(0)));
  // Each engine makes fingerprints in its own way.
  for (Row& book : told.back()) book.erase(book.begin() + 3);
  told.push_back(RowsOf(*books.record_sets.at(1)));
  return told;
}

/// The history, and what the calendar of the dollar was at each of its moments.
std::vector<std::vector<Row>> HistoryToldOf(CopyEnd& database) {
  ProcedureCaller caller(database);
  std::vector<std::vector<Row>> told = {
      RowsOf(*caller.Call("CldGetHistory", {{"Count", 10000}}).record_sets.at(0))};
  for (const Row& entry : std::vector<Row>(told.at(0))) {
    const auto days =
        caller.Call("CldGetAsOf", {{"ID1", 840}, {"Year1", 2024}, {"Moment", entry.at(1)}}).record_sets;
    if (!days.empty()) told.push_back(RowsOf(*days.at(0)));
  }
  return told;
}

/// How many entries the history of the tricky content has; the last one undoes the plan of the dollar.
constexpr int kEntries = 30;

Arguments PlanOfTheDollar() {
  return {
      {"ID1", 840},
      {"Year1", 2024},
      {"Expected", ""},
      {"Days", R"([{"Name1": "Größe \"祝日\" \\N", "TID1": 4, "Comment": "tab\t", "Dates": ["2024-07-04"]},
                       {"TID1": 1, "Dates": ["2024-07-06"], "DayComment": "line\nbreak \\N 祝日"}])"}};
}

void FillWithTrickyContent(CopyEnd& database) {
  ProcedureCaller caller(database);
  const std::vector<std::string> names = {"Größe ΣΑΣ Работа 祝日 🎌 e\u0301",
                                          "O'Brien; DROP TABLE CldDay; --",
                                          "\"quoted\", and, commas",
                                          "\\N",
                                          "\\.",
                                          "tab\there",
                                          "line\nbreak\r\n",
                                          "back\\slash \\x41",
                                          std::string(199, 'x') + "ü"};
  for (const std::string& name : names) {
    ASSERT_EQ(caller.Return("CldIUCelebrate", {{"Name1", name}, {"TID1", 2}, {"WD", 1}, {"Comment", name}}),
              0)
        << name;
  }
  const auto add_dated = [&](const std::string& name, const Date& date, const Value& comment) {
    ASSERT_EQ(caller.Return("CldIUCelebrate", {{"Name1", name},
                                               {"TID1", 3},
                                               {"D1", date},
                                               {"MY", date.Month()},
                                               {"MD", date.Day()},
                                               {"Comment", comment}}),
              0);
  };
  add_dated("first day", Date(1900, 1, 1), {});
  add_dated("last day", Date(3000, 12, 31), "");
  add_dated("leap day", Date(2024, 2, 29), " ");
  ASSERT_EQ(caller.Return("CldIUCelebrate", {{"ID2", 3}, {"Del", 2}}), 0);
  ASSERT_EQ(caller.Return("CldIUCelebrate", {{"ID2", 4}, {"Del", 2}}), 0);
  ASSERT_EQ(caller.Return("CldIUCelebrate", {{"ID2", 4}, {"Del", 4}}), 0);
  for (const int year : {1900, 2024, 3000}) {
    ASSERT_EQ(caller.Return("CldIUMain", {{"ID1", 978}, {"Year1", year}}), 0);
    ASSERT_EQ(caller.Return("CldIUMain", {{"ID1", 978}, {"Year1", year}, {"TID1", 2}, {"ID2", 2}}), 0);
  }
  ASSERT_EQ(caller.Return("CldIUMain", {{"ID1", 8}, {"Year1", 2024}}), 0);
  const auto assign = [&](int year, int day, int type, int rule, const Value& comment) {
    ASSERT_EQ(caller.Return("CldIUMain", {{"ID1", 978},
                                          {"Year1", year},
                                          {"TID1", type},
                                          {"ID2", rule},
                                          {"Day1", day},
                                          {"ODate", Date(year, 1, 1).AddDays(day - 1)},
                                          {"Comment", comment}}),
              0);
  };
  assign(1900, 1, 3, 11, {});
  assign(3000, 365, 3, 12, "");
  assign(2024, 60, 1, 1, "excepted: 祝日\t\\N\n" + std::string(3980, 'y'));
  assign(2024, 366, 1, 1, {});
  ASSERT_EQ(caller.Return("CldIUBook", {{"ID1", 978},
                                        {"Expected", ""},
                                        {"Publisher", "Größe ΣΑΣ 祝日"},
                                        {"Document", "line\nbreak \\N tab\t"},
                                        {"Rules", R"([{"Name1": "Größe", "TID1": 3, "Expression": "01-01"},
                                           {"Name1": "\\N", "TID1": 4, "Expression": "\\.", "Comment": "",
                                            "MovedName": "a\tb\n祝日"}])"},
                                        {"FromYear", 2015}}),
            0);
  ASSERT_EQ(caller.Return("CldIUCurrency", {{"CcyID", 900},
                                            {"Ccy", "AOU"},
                                            {"CcyType", std::int16_t{1}},
                                            {"Name", "a unit of the administrator's own: ÄÖÜ"},
                                            {"LastDay", Date(2025, 12, 31)}}),
            0);
  ASSERT_EQ(caller.Return("CldApplyPlan", PlanOfTheDollar()), 0);
  ASSERT_EQ(caller.Return("CldUndo", {{"EntryID", kEntries - 1}}), 0);
  database.Execute("UPDATE CldSetting SET FirstDay = 7");
}

struct Direction {
  std::string name;
  std::function<std::unique_ptr<CopyEnd>()> from;
  std::function<std::unique_ptr<CopyEnd>()> to;
};

void PrintTo(const Direction& direction, std::ostream* stream) { *stream << direction.name; }

std::vector<Direction> Directions() {
  const auto file = [] { return std::make_unique<FileEnd>(); };
  const auto server = [] { return std::make_unique<ServerEnd>(); };
  return {{"FileToFile", file, file},
          {"FileToServer", file, server},
          {"ServerToFile", server, file},
          {"ServerToServer", server, server}};
}

class ContentCopy : public ::testing::TestWithParam<Direction> {
 protected:
  ContentCopy() : from_owner_(GetParam().from()), to_owner_(GetParam().to()) { from_owner_->Create(); }

  std::unique_ptr<CopyEnd> from_owner_;
  std::unique_ptr<CopyEnd> to_owner_;
  CopyEnd& from_ = *from_owner_;
  CopyEnd& to_ = *to_owner_;
};

INSTANTIATE_TEST_SUITE_P(Engines, ContentCopy, ::testing::ValuesIn(Directions()),
                         [](const auto& test) { return test.param.name; });

TEST_P(ContentCopy, MakesTheDatabaseAndTakesEverythingAlong) {
  FillWithTrickyContent(from_);
  const auto told = EverythingToldOf(from_);
  Copy(from_, to_);
  EXPECT_EQ(Differences(from_, to_), "");
  EXPECT_EQ(EverythingToldOf(to_), told);
  EXPECT_EQ(EverythingToldOf(from_), told);
  EXPECT_TRUE(to_.IsSound());
}

TEST_P(ContentCopy, TakesTextsAlongThatAreOlderThanTheirLimits) {
  FillWithTrickyContent(from_);
  from_.Execute("UPDATE CldHoliday SET Name1 = '" + std::string(10000, 'n') + "', Comment = '" +
                std::string(10000, 'c') + "' WHERE ID2 = 5");
  from_.Execute("UPDATE CldDay SET Comment = '" + std::string(10000, 'd') +
                "' WHERE Day1 = 366 AND Comment IS NULL");
  Copy(from_, to_);
  EXPECT_EQ(Differences(from_, to_), "");
}

TEST_P(ContentCopy, GoesIntoADatabaseThatHoldsWhatItWasCreatedWith) {
  FillWithTrickyContent(from_);
  to_.Create();
  Copy(from_, to_);
  EXPECT_EQ(Differences(from_, to_), "");
  EXPECT_TRUE(to_.IsSound());
}

TEST_P(ContentCopy, IsEqualAfterAWayThereAndBack) {
  FillWithTrickyContent(from_);
  const auto back = GetParam().from();
  Copy(from_, to_);
  Copy(to_, *back);
  EXPECT_EQ(Differences(from_, *back), "");
}

TEST_P(ContentCopy, GoesOnAsTheOriginalWould) {
  FillWithTrickyContent(from_);
  to_.Create();
  Copy(from_, to_);
  const Arguments rule = {{"Name1", "one more"}, {"TID1", 2}, {"WD", 5}};
  const Arguments taken_name = {{"Name1", "LAST DAY "}, {"TID1", 2}, {"WD", 5}};
  for (CopyEnd* end : {&from_, &to_}) {
    ProcedureCaller caller(*end);
    EXPECT_EQ(caller.Return("CldIUCelebrate", rule), 0);
    EXPECT_EQ(caller.Return("CldIUCelebrate", taken_name), 2);
    EXPECT_EQ(caller.Return("CldIUMain", {{"ID1", 840}, {"Year1", 2030}}), 0);
    // The next identifiers are the original's too; when and by whom the calls were made is not.
    end->Execute("CREATE TABLE LastEntries AS SELECT EntryID FROM CldHistory ORDER BY EntryID DESC LIMIT 2");
  }
  EXPECT_EQ(EverythingToldOf(to_), EverythingToldOf(from_));
  const content::Table last{"LastEntries", "last entries", {"EntryID"}, 1};
  const auto left = host::OpenContent(Engines(), from_.ConnectionString());
  const auto right = host::OpenContent(Engines(), to_.ConnectionString());
  EXPECT_EQ(left->CountRows(last), 2);
  EXPECT_FALSE(content::FirstDifference(*left, *right, last));
}

TEST_P(ContentCopy, TakesAlongWhatCallsReplacedSoThatItIsKnownAndCanBePutBack) {
  FillWithTrickyContent(from_);
  Copy(from_, to_);
  EXPECT_GT(HistoryToldOf(from_).size(), 1U) << "the calendar of the dollar was there once";
  EXPECT_EQ(HistoryToldOf(to_), HistoryToldOf(from_));
  for (CopyEnd* end : {&from_, &to_}) {
    ProcedureCaller caller(*end);
    for (const int entry : {kEntries, kEntries - 2, kEntries - 3}) {
      EXPECT_EQ(caller.Return("CldUndo", {{"EntryID", entry}}), 0) << entry;
    }
    EXPECT_TRUE(end->IsSound());
  }
  EXPECT_EQ(EverythingToldOf(to_), EverythingToldOf(from_));
}

TEST_P(ContentCopy, RefusesATargetThatHoldsAnythingAndSaysWhat) {
  const std::vector<std::pair<std::string, std::string>> holdings = {
      {"UPDATE CldSetting SET FirstDay = 3", "changed settings"},
      {"UPDATE DicCcy SET Name = 'mine' WHERE CcyID = 978", "changed currencies"},
      {"INSERT INTO DicCcy VALUES (9001, 'mine', 1, 'mine', NULL)", "185 currencies"},
      {"INSERT INTO CldHoliday (ID2, Name1, TID1, WD) VALUES (2, 'mine', 2, 1)", "2 holiday rules"},
      {kAddHistoryEntry, "1 entries of the history"},
  };
  for (const auto& [statement, what] : holdings) {
    const auto full = GetParam().to();
    full->Create();
    full->Execute(statement);
    const auto differences = Differences(from_, *full);
    ASSERT_NE(differences, "") << statement;
    EXPECT_THAT(FailureTextOf([&] { Copy(from_, *full); }), AllOf(HasSubstr("not empty"), HasSubstr(what)));
    EXPECT_EQ(Differences(from_, *full), differences);
  }
  to_.Create();
  ASSERT_EQ(ProcedureCaller(to_).Return("CldIUMain", {{"ID1", 978}, {"Year1", 2024}}), 0);
  EXPECT_THAT(FailureTextOf([&] { Copy(from_, to_); }),
              AllOf(HasSubstr("1 calendars"), HasSubstr("366 days"), Not(HasSubstr("currencies"))));
}

TEST_P(ContentCopy, ThatIsStoppedLeavesTheTargetAsItWas) {
  FillWithTrickyContent(from_);
  // How often the observer is called depends on the time that rows take; how far the copy comes does not.
  std::int64_t furthest = 0;
  const auto vacant = GetParam().to();
  Copy(from_, *vacant, [&](const content::CopyProgress& progress) { furthest = progress.done; });
  ASSERT_GT(furthest, 10);

  const auto created = GetParam().to();
  const auto reference = GetParam().to();
  created->Create();
  reference->Create();
  for (const std::int64_t last : {std::int64_t{0}, furthest / 2, furthest - kRowsBetweenQuestions}) {
    const auto stopped_copy_to = [&](CopyEnd& target) {
      return FailureTextOf([&] {
        Copy(from_, target, [&](const content::CopyProgress& progress) {
          if (progress.done >= last) throw platform::Failure(4711, "stopped");
        });
      });
    };
    EXPECT_EQ(stopped_copy_to(to_), "stopped");
    EXPECT_TRUE(to_.IsVacant());
    EXPECT_EQ(stopped_copy_to(*created), "stopped");
    EXPECT_EQ(Differences(*created, *reference), "");
  }
  // And nothing is in the way of the next one.
  Copy(from_, to_);
  Copy(from_, *created);
  EXPECT_EQ(Differences(to_, *created), "");
}

TEST_P(ContentCopy, TellsHowFarItIs) {
  FillWithTrickyContent(from_);
  std::vector<content::CopyProgress> told;
  Copy(from_, to_, [&](const content::CopyProgress& progress) { told.push_back(progress); });
  ASSERT_GT(told.size(), 2U);
  for (std::size_t i = 1; i < told.size(); ++i) EXPECT_GT(told[i].done, told[i - 1].done);
  EXPECT_EQ(told.front().step, content::CopyProgress::Step::kCopying);
  EXPECT_EQ(told.front().rows, "currencies");
  EXPECT_EQ(told.back().step, content::CopyProgress::Step::kComparing);
  EXPECT_LE(told.back().done, told.back().total);
  EXPECT_LT(told.back().total - told.back().done, kRowsBetweenQuestions);
}

TEST_P(ContentCopy, ThatDiffersIsNotKept) {
  FillWithTrickyContent(from_);
  to_.Create();
  const auto reference = GetParam().to();
  reference->Create();
  const std::string told = to_.SpoilDays();
  EXPECT_THAT(FailureTextOf([&] { Copy(from_, to_); }), HasSubstr(told));
  to_.LeaveDaysAlone();
  EXPECT_EQ(Differences(to_, *reference), "");
}

TEST_P(ContentCopy, NamesTheRowThatTheTargetRefuses) {
  for (const char* name : {"one", "two"}) {
    ASSERT_EQ(ProcedureCaller(from_).Return("CldIUCelebrate", {{"Name1", name}, {"TID1", 2}, {"WD", 1}}), 0);
  }
  to_.Create();
  const auto reference = GetParam().to();
  reference->Create();
  // A rule of the target alone, which no database of this program has.
  to_.Execute("CREATE UNIQUE INDEX Strict ON CldHoliday (TID1) WHERE TID1 = 2");
  EXPECT_THAT(FailureTextOf([&] { Copy(from_, to_); }),
              AllOf(HasSubstr("CldHoliday"), ::testing::AnyOf(HasSubstr("row 3"), HasSubstr("line 3"))));
  EXPECT_EQ(Differences(to_, *reference), "");
}

TEST_P(ContentCopy, TakesTheSourceAsItIsAtOneMoment) {
  FillWithTrickyContent(from_);
  const auto told = EverythingToldOf(from_);
  const auto source = host::OpenContent(Engines(), from_.ConnectionString());
  bool has_written = false;
  CopyTo(*source, to_, [&](const content::CopyProgress&) {
    if (std::exchange(has_written, true)) return;
    EXPECT_EQ(ProcedureCaller(from_).Return("CldIUMain", {{"ID1", 840}, {"Year1", 2030}}), 0);
  });
  EXPECT_TRUE(has_written);
  EXPECT_EQ(EverythingToldOf(to_), told);
}

TEST_P(ContentCopy, KeepsOthersFromWritingIntoItsTarget) {
  FillWithTrickyContent(from_);
  to_.Create();
  bool has_tried = false;
  Copy(from_, to_, [&](const content::CopyProgress&) {
    if (std::exchange(has_tried, true)) return;
    const bool is_file = to_.ConnectionString().starts_with("sqlite:");
    // A row that has nothing to do with any that the copy writes.
    EXPECT_ANY_THROW(to_.Execute(std::string(is_file ? "" : "SET lock_timeout = 200; ") + kAddHistoryEntry));
  });
  EXPECT_TRUE(has_tried);
  EXPECT_EQ(Differences(from_, to_), "");
}

TEST_P(ContentCopy, RefusesAnotherVersionOfTheSchemaOnEitherSide) {
  from_.SetSchemaVersion(1);
  EXPECT_THAT(FailureTextOf([&] { Copy(from_, to_); }),
              AllOf(HasSubstr("schema version 1"), HasSubstr("ferrowindctl upgrade")));
  EXPECT_TRUE(to_.IsVacant());
  from_.SetSchemaVersion(1000);
  EXPECT_THAT(FailureTextOf([&] { Copy(from_, to_); }), AllOf(HasSubstr("1000"), HasSubstr("newer")));
  EXPECT_TRUE(to_.IsVacant());

  const auto sound = GetParam().from();
  sound->Create();
  to_.Create();
  to_.SetSchemaVersion(1);
  EXPECT_THAT(FailureTextOf([&] { Copy(*sound, to_); }), HasSubstr("ferrowindctl upgrade"));
}

class OneEnd : public ::testing::TestWithParam<Direction> {};

INSTANTIATE_TEST_SUITE_P(Engines, OneEnd, ::testing::Values(Directions().at(0), Directions().at(3)),
                         [](const auto& test) { return test.param.name; });

TEST_P(OneEnd, IsNotCopiedToItselfUnderAnyName) {
  const auto end = GetParam().from();
  end->Create();
  EXPECT_THAT(FailureTextOf([&] { Copy(*end, *end); }), HasSubstr("to itself"));
  const auto source = host::OpenContent(Engines(), end->OtherConnectionString());
  EXPECT_THAT(FailureTextOf([&] { CopyTo(*source, *end); }), HasSubstr("to itself"));
}

TEST_P(OneEnd, ThatIsNoCalendarDatabaseIsNoSource) {
  const auto end = GetParam().from();
  const auto target = GetParam().to();
  EXPECT_NE(FailureTextOf([&] { Copy(*end, *target); }), "");
  EXPECT_TRUE(end->IsVacant());
  EXPECT_TRUE(target->IsVacant());
}

TEST_P(OneEnd, TellsItsStatus) {
  const auto end = GetParam().from();
  end->Create();
  FillWithTrickyContent(*end);
  const auto status = host::ReadStatus(Engines(), end->ConnectionString());
  EXPECT_GE(status.schema_version, 2);
  EXPECT_EQ(status.engine, end->ConnectionString().starts_with("sqlite:") ? "SQLite" : "PostgreSQL");
  EXPECT_NE(status.engine_version, "");
  EXPECT_EQ(status.currencies, 185);
  EXPECT_EQ(status.rules, 13);
  EXPECT_EQ(status.removed_rules, 1);
  EXPECT_EQ(status.calendars, 4);
  EXPECT_EQ(status.days, 365 + 366 + 365 + 366);
  EXPECT_EQ(status.history_entries, kEntries);
  EXPECT_THAT(status.calendars_by_year, ElementsAre(Pair(1900, 1), Pair(2024, 2), Pair(3000, 1)));

  end->SetSchemaVersion(1);
  end->TakeHistoryAway();
  const auto old = host::ReadStatus(Engines(), end->ConnectionString());
  EXPECT_EQ(old.schema_version, 1);
  EXPECT_EQ(old.history_entries, std::nullopt);
  EXPECT_EQ(old.rules, 13);
}

/// So many days that a copy makes the keys of their table behind them.
void FillWithManyDays(CopyEnd& database) {
  ProcedureCaller caller(database);
  for (int year = 2024; year < 2032; ++year) {
    ASSERT_EQ(caller.Return("CldIUMain", {{"ID1", 978}, {"Year1", year}}), 0);
  }
}

TEST(FileToServer, ManyRowsLeaveEveryKeyAsItWas) {
  FileEnd from;
  ServerEnd vacant;
  ServerEnd created;
  from.Create();
  created.Create();
  FillWithManyDays(from);
  for (ServerEnd* to : {&vacant, &created}) {
    Copy(from, *to);
    EXPECT_EQ(Differences(from, *to), "");
    EXPECT_TRUE(to->IsSound());
  }
}

TEST(FileToServer, ManyRowsThatAreStoppedLeaveEveryKeyAsItWas) {
  FileEnd from;
  ServerEnd to;
  from.Create();
  to.Create();
  FillWithManyDays(from);
  using Step = content::CopyProgress::Step;
  for (const Step step : {Step::kCopying, Step::kComparing}) {
    const auto stop = [&](const content::CopyProgress& progress) {
      if (progress.step == step && progress.rows == "days") throw platform::Failure(4711, "stopped");
    };
    EXPECT_EQ(FailureTextOf([&] { Copy(from, to, stop); }), "stopped");
    EXPECT_TRUE(to.IsSound());
  }
  Copy(from, to);
}

TEST(FileToServer, ManyRowsThatAKeyForbidsAreRefusedWithIt) {
  FileEnd from;
  ServerEnd to;
  from.Create();
  FillWithManyDays(from);
  from.Execute(
      "PRAGMA foreign_keys = OFF; UPDATE CldDay SET TID1 = 3, ID2 = 77 WHERE Year1 = 2030 AND Day1 = 5");
  EXPECT_THAT(FailureTextOf([&] { Copy(from, to); }),
              AllOf(HasSubstr("CldDay: "), HasSubstr("cldday_id2_tid1_fkey"), HasSubstr("(77, 3)")));
  EXPECT_TRUE(to.IsVacant());
}

TEST(FileToServer, ALongStatementOfTheServerEndsWhenTheCopyIsStopped) {
  FileEnd from;
  ServerEnd to;
  from.Create();
  to.Create();
  to.Execute(
      "CREATE FUNCTION Wait() RETURNS trigger LANGUAGE plpgsql AS 'BEGIN PERFORM pg_sleep(120); RETURN NULL; "
      "END';CREATE TRIGGER Wait AFTER DELETE ON CldHoliday FOR EACH STATEMENT EXECUTE FUNCTION Wait()");
  const auto begin = std::chrono::steady_clock::now();
  const auto is_stopped = [&] { return std::chrono::steady_clock::now() - begin > std::chrono::seconds(2); };
  const auto source = host::OpenContent(Engines(), from.ConnectionString());
  EXPECT_THAT(FailureTextOf([&] {
                host::FillDatabase(
                    Engines(), to.ConnectionString(),
                    [&](content::Target& target) { content::CopyContent(*source, target); }, is_stopped);
              }),
              HasSubstr("was told to stop"));
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(60));
  to.Execute("DROP TRIGGER Wait ON CldHoliday; DROP FUNCTION Wait");
  EXPECT_EQ(Differences(from, to), "");
}

TEST(FileToServer, ACopyWhoseLastAnswerIsLostSaysThatItsOutcomeIsNotKnown) {
  FileEnd from;
  from.Create();
  const auto source = host::OpenContent(Engines(), from.ConnectionString());
  const auto copy_through = [&](ServerEnd& to, std::size_t limit) {
    CuttingProxy proxy(postgres_server::Port(), CuttingProxy::Direction::kToClient, limit);
    std::string uri = to.ConnectionString();
    const std::string port = ":" + postgres_server::Port() + "/";
    uri.replace(uri.find(port), port.size(), ":" + proxy.Port() + "/");
    const std::string failure = FailureTextOf([&] {
      try {
        postgres::FillDatabase(uri + "?sslmode=disable&gssencmode=disable",
                               [&](content::Target& target) { content::CopyContent(*source, target); });
      } catch (const content::DoubtfulOutcome& unknown) {
        throw platform::Failure(unknown.Number(), "UNKNOWN " + unknown.Description());
      }
    });
    return std::pair(failure, proxy.Passed());
  };
  // The end of a commit is 12 bytes, and that the server is ready 6 more.
  constexpr std::size_t kCommitAnswer = 18;
  ServerEnd uncut;
  uncut.Create();
  const auto [no_failure, whole] = copy_through(uncut, CuttingProxy::kNever);
  ASSERT_EQ(no_failure, "");
  ServerEnd committed;
  committed.Create();
  const std::string lost = copy_through(committed, whole - kCommitAnswer + 1).first;
  EXPECT_THAT(lost, AllOf(HasSubstr("UNKNOWN It is not known whether"), HasSubstr("was disconnected")));
  EXPECT_EQ(Differences(uncut, committed), "");
  ServerEnd undone;
  undone.Create();
  EXPECT_THAT(copy_through(undone, whole / 2).first, Not(HasSubstr("UNKNOWN")));
}

TEST(FileToServer, ATextThatNoServerCanHoldIsNamed) {
  FileEnd from;
  ServerEnd to;
  from.Create();
  from.Execute("UPDATE CldHoliday SET Comment = 'a' || char(0) || 'b'");
  EXPECT_THAT(FailureTextOf([&] { Copy(from, to); }),
              AllOf(HasSubstr("CldHoliday, row 1"), HasSubstr("NUL")));
  EXPECT_TRUE(to.IsVacant());
}

}  // namespace
}  // namespace ferrowind::contract
