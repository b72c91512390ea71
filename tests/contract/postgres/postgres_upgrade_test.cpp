// Bringing a calendar database of an older version on a server to this one.

#include <chrono>
#include <cstdint>
#include <string>
#include <thread>
#include <utility>

#include <gmock/gmock.h>

#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/server_connection.h"

#include "database/postgres/embedded_sql.h"
#include "tests/contract/database/old_version.h"
#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/postgres/postgres_database.h"
#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
namespace {

using platform::Value;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

const Arguments kWeekdayRule = {{"ID1", 978}, {"Year1", 2026}, {"TID1", 2}, {"ID2", 2}};

/// A database as an older version made it, with a calendar and a rule.
class OldDatabase : public DatabaseUnderTest {
 public:
  explicit OldDatabase(int version = 1) : name_(postgres_server::CreateEmptyDatabase()) {
    Execute("BEGIN;" + OldVersionScript(version, "postgres") + "COMMIT");
    if (version < kVersionWithContent) {
      Execute("SET search_path = ferrowind;" + std::string(kOldContent));
      Execute(
          "INSERT INTO ferrowind.CldDay SELECT 978, 2026, n, date '2026-01-01' + (n - 1), 1"
          " FROM generate_series(1, 365) AS n");
    }
    postgres_server::EnsureOperator();
  }
  OldDatabase(const OldDatabase&) = delete;
  OldDatabase& operator=(const OldDatabase&) = delete;
  ~OldDatabase() override { postgres_server::DropDatabase(name_); }

  [[nodiscard]] platform::Engine& Engine() override { return engine_; }
  [[nodiscard]] std::string ConnectionString() override { return postgres_server::OperatorUri(name_); }
  [[nodiscard]] std::string Uri() const { return postgres_server::SuperuserUri(name_); }
  void Execute(const std::string& sql) { postgres_server::Execute(name_, sql); }
  [[nodiscard]] const std::string& Name() const { return name_; }
  [[nodiscard]] std::string Ask(const std::string& query) const { return postgres_server::Ask(name_, query); }

 private:
  std::string name_;
  /// Keeps nothing of the version before: another program upgrades a database than the one that calls it.
  postgres::Engine engine_{std::chrono::milliseconds(0)};
};

/// All that the schema consists of, as the server tells the check of a database, and its version.
std::string Schema(const std::string& database) {
  return postgres_server::Ask(database,
                              "SELECT string_agg(concat_ws(' ', object, property, value), E'\\n') || (SELECT "
                              "Version FROM ferrowind.SchemaVersion) FROM (" +
                                  std::string(embedded::kPostgresObjects) +
                                  ") AS fact (object, property, value)");
}

constexpr const char* kData = R"sql(
SELECT concat(
  (SELECT string_agg(d::text, ',' ORDER BY d) FROM ferrowind.CldDay d),
  (SELECT string_agg(h::text, ',' ORDER BY h) FROM ferrowind.CldHoliday h),
  (SELECT string_agg(c::text, ',' ORDER BY c) FROM ferrowind.CldCalendar c),
  (SELECT string_agg(format('%s %s %s', CcyID, Ccy, Name), ',' ORDER BY CcyID) FROM ferrowind.DicCcy
   WHERE CcyID NOT IN (396, 530, 532, 924))))sql";

constexpr std::int64_t kThisVersion = 8;

void ExpectUpgradeFrom(int version) {
  const OldDatabase old(version);
  const PostgresDatabase fresh;
  const std::string data = old.Ask(kData);
  ASSERT_THAT(data, HasSubstr("Sunday"));
  ASSERT_NE(Schema(old.Name()), Schema(fresh.Name()));
  const auto outcome = postgres::UpgradeDatabase(old.Uri());
  EXPECT_EQ(outcome.from, version);
  EXPECT_EQ(outcome.to, kThisVersion);
  EXPECT_EQ(Schema(old.Name()), Schema(fresh.Name()));
  EXPECT_EQ(old.Ask(kData), data);
  EXPECT_THAT(postgres::CheckDatabase(old.Uri()), IsEmpty());
}

TEST(PostgresUpgrade, AnUpgradedDatabaseOfVersion1IsLikeANewOneAndKeepsItsData) { ExpectUpgradeFrom(1); }

TEST(PostgresUpgrade, AnUpgradedDatabaseOfVersion2IsLikeANewOneAndKeepsItsData) { ExpectUpgradeFrom(2); }

TEST(PostgresUpgrade, AnUpgradedDatabaseOfVersion3IsLikeANewOneAndKeepsItsData) { ExpectUpgradeFrom(3); }

TEST(PostgresUpgrade, AnUpgradedDatabaseOfVersion4IsLikeANewOneAndKeepsItsData) { ExpectUpgradeFrom(4); }

TEST(PostgresUpgrade, AnUpgradedDatabaseOfVersion5IsLikeANewOneAndKeepsItsData) { ExpectUpgradeFrom(5); }

TEST(PostgresUpgrade, AnUpgradedDatabaseOfVersion6IsLikeANewOneAndKeepsItsData) { ExpectUpgradeFrom(6); }

TEST(PostgresUpgrade, AnUpgradedDatabaseOfVersion7IsLikeANewOneAndKeepsItsData) { ExpectUpgradeFrom(7); }

TEST(PostgresUpgrade, BooksFromBeforeTellOfAllYearsAndChangesOfThemCanBeUndone) {
  OldDatabase old(3);
  ProcedureCaller caller(old);
  const auto store = [&](const char* publisher, const Value& from_year) {
    const auto books = caller.Call("CldGetBook", {{"ID1", 978}}).record_sets.at(0);
    const Value expected = books->RowCount() == 0 ? Value("") : (*books)["Fingerprint"];
    Arguments book = {{"ID1", 978},
                      {"Expected", expected},
                      {"Publisher", publisher},
                      {"Document", "D"},
                      {"Rules", R"([{"Name1": "A", "TID1": 3, "Expression": "01-01"}])"}};
    if (!from_year.IsEmpty()) book.emplace_back("FromYear", from_year);
    return caller.Return("CldIUBook", book);
  };
  const auto book = [&] {
    return old.Ask("SELECT concat_ws(' ', Publisher, FromYear) FROM ferrowind.CldBook");
  };
  ASSERT_EQ(store("First", {}), 0);
  ASSERT_EQ(store("Second", {}), 0);
  postgres::UpgradeDatabase(old.Uri());
  EXPECT_EQ(book(), "Second");
  ASSERT_EQ(store("Third", 2015), 0);
  EXPECT_EQ(book(), "Third 2015");
  for (const auto& [entry, left] : {std::pair(3, "Second"), {2, "First"}, {1, ""}}) {
    EXPECT_EQ(caller.Return("CldUndo", {{"EntryID", entry}}), 0) << entry;
    EXPECT_EQ(book(), left);
  }
  EXPECT_THAT(postgres::CheckDatabase(old.Uri()), IsEmpty());
}

TEST(PostgresUpgrade, CurrenciesThatAreNoLegalMoneyAnyMoreGetTheirLastDayAndStayMoneyWithCalendars) {
  OldDatabase old(2);
  old.Execute("INSERT INTO ferrowind.CldCalendar VALUES (191, 2020)");
  postgres::UpgradeDatabase(old.Uri());
  const auto currency = [&](const std::string& code) {
    return old.Ask("SELECT concat_ws(' ', CcyID, CcyType, LastDay) FROM ferrowind.DicCcy WHERE Ccy = '" +
                   code + "'");
  };
  EXPECT_EQ(currency("HRK"), "191 0 2022-12-31");
  EXPECT_EQ(currency("CUC"), "931 1 2021-06-30");
  EXPECT_EQ(currency("ANG"), "530 1 2025-03-30");
  EXPECT_EQ(currency("XCG"), "532 0");
  EXPECT_EQ(currency("ZWG"), "924 0");
  EXPECT_EQ(currency("EUR"), "978 0");
}

TEST(PostgresUpgrade, ACurrencyThatAnAdministratorHasAddedBeforeIsKept) {
  OldDatabase old(2);
  old.Execute(
      "INSERT INTO ferrowind.DicCcy VALUES (924, 'ZWG', 0, 'Gold of Zimbabwe'), (531, 'XCG', 0, 'Own')");
  postgres::UpgradeDatabase(old.Uri());
  EXPECT_EQ(old.Ask("SELECT string_agg(Ccy || ' ' || Name, ', ' ORDER BY CcyID) FROM ferrowind.DicCcy"
                    " WHERE CcyID IN (531, 532, 924)"),
            "XCG Own, ANG Netherlands Antillean Guilder, ZWG Gold of Zimbabwe");
  EXPECT_THAT(postgres::CheckDatabase(old.Uri()), IsEmpty());
}

TEST(PostgresUpgrade, EntriesFromBeforeCannotBeUndoneAndTheCalendarsOfThatTimeAreNotKnown) {
  OldDatabase old(2);
  ASSERT_EQ(ProcedureCaller(old).Return("CldIUMain", kWeekdayRule), 0);
  postgres::UpgradeDatabase(old.Uri());
  ProcedureCaller caller(old);
  EXPECT_EQ(caller.Return("CldUndo", {{"EntryID", 1}}), 9);
  const auto as_of = [&](const std::string& moment) {
    return caller.Return("CldGetAsOf", {{"ID1", 978}, {"Year1", 2026}, {"Moment", moment}});
  };
  EXPECT_EQ(as_of("2020-01-01T00:00:00Z"), 9);
  EXPECT_EQ(as_of("9999-01-01T00:00:00Z"), 0);
  EXPECT_EQ(old.Ask("SELECT EntryID FROM ferrowind.CldHistoryStart"), "1");
  ASSERT_EQ(caller.Return("CldIUMain", {{"ID1", 978}, {"Year1", 2026}, {"TID1", 1}, {"ID2", 1}, {"Day1", 4}}),
            0);
  EXPECT_EQ(caller.Return("CldUndo", {{"EntryID", 2}}), 0);
  EXPECT_EQ(old.Ask("SELECT ID2 FROM ferrowind.CldDay WHERE Day1 = 4"), "2") << "a Sunday again";
}

TEST(PostgresUpgrade, OperatorsWorkBeforeAndAfterIt) {
  OldDatabase old;
  ASSERT_EQ(ProcedureCaller(old).Return("CldIUMain", kWeekdayRule), 0);
  postgres::UpgradeDatabase(old.Uri());
  ProcedureCaller caller(old);
  const auto entries = [&] { return RowsOf(*caller.Call("CldGetHistory").record_sets.at(0)); };
  EXPECT_THAT(entries(), IsEmpty());
  ASSERT_EQ(caller.Return("CldIUMain", kWeekdayRule), 0);
  EXPECT_THAT(entries(), SizeIs(1));
}

TEST(PostgresUpgrade, ADatabaseOfThisVersionIsLeftAlone) {
  const PostgresDatabase fresh;
  const std::string uri = postgres_server::SuperuserUri(fresh.Name());
  const std::string oids =
      "SELECT string_agg(oid::text, ',' ORDER BY oid) FROM pg_proc WHERE pronamespace = "
      "'ferrowind'::regnamespace";
  const std::string before = postgres_server::Ask(fresh.Name(), oids);
  const auto outcome = postgres::UpgradeDatabase(uri);
  EXPECT_EQ(outcome.from, kThisVersion);
  EXPECT_EQ(outcome.to, kThisVersion);
  EXPECT_EQ(postgres_server::Ask(fresh.Name(), oids), before);
}

TEST(PostgresUpgrade, ADatabaseOfANewerVersionIsRefused) {
  PostgresDatabase fresh;
  fresh.Execute("UPDATE ferrowind.SchemaVersion SET Version = 9");
  EXPECT_THAT(FailureTextOf([&] { postgres::UpgradeDatabase(postgres_server::SuperuserUri(fresh.Name())); }),
              AllOf(HasSubstr("has the schema version 9; this program's is 8"), HasSubstr("newer")));
}

TEST(PostgresUpgrade, AScriptThatFailsAtTheEndLeavesTheDatabaseAsItWas) {
  OldDatabase old;
  // The rights on it are given last.
  old.Execute("DROP VIEW ferrowind.CalendarList");
  const std::string schema = Schema(old.Name());
  const std::string data = old.Ask(kData);
  EXPECT_THAT(
      FailureTextOf([&] { postgres::UpgradeDatabase(old.Uri()); }),
      AllOf(HasSubstr("The upgrade failed, and the database is as it was"), HasSubstr("calendarlist")));
  EXPECT_EQ(Schema(old.Name()), schema);
  EXPECT_THAT(schema, Not(HasSubstr("cldhistory")));
  EXPECT_EQ(old.Ask(kData), data);
  EXPECT_EQ(ProcedureCaller(old).Return("CldIUMain", kWeekdayRule), 0);
}

TEST(PostgresUpgrade, ProceduresAndRightsAreRenewed) {
  OldDatabase old;
  old.Execute(
      "CREATE PROCEDURE ferrowind.CldGetMain(INOUT \"RETURN_VALUE\" integer) LANGUAGE plpgsql AS $$ BEGIN "
      "\"RETURN_VALUE\" := 0; END $$;"
      "REVOKE EXECUTE ON PROCEDURE ferrowind.CldIUMain FROM ferrowind_operator;"
      "GRANT USAGE ON SCHEMA ferrowind TO PUBLIC");
  postgres::UpgradeDatabase(old.Uri());
  EXPECT_THAT(postgres::CheckDatabase(old.Uri()), IsEmpty());
}

TEST(PostgresUpgrade, OfTwoUpgradesAtTheSameTimeOneDoesTheWork) {
  const OldDatabase old;
  content::UpgradeOutcome outcomes[2];
  {
    std::thread first([&] { outcomes[0] = postgres::UpgradeDatabase(old.Uri()); });
    outcomes[1] = postgres::UpgradeDatabase(old.Uri());
    first.join();
  }
  EXPECT_EQ(outcomes[0].from + outcomes[1].from, 1 + kThisVersion);
  EXPECT_THAT(postgres::CheckDatabase(old.Uri()), IsEmpty());
}

TEST(PostgresUpgrade, AnOperatorMayNotAndADatabaseOfSomethingElseCannot) {
  OldDatabase old;
  EXPECT_THAT(FailureTextOf([&] { postgres::UpgradeDatabase(old.ConnectionString()); }),
              HasSubstr("is administered by members of ferrowind_owner, and operator_login is none"));
  EXPECT_THAT(FailureTextOf([] { postgres::UpgradeDatabase(postgres_server::SuperuserUri()); }),
              HasSubstr("is no calendar database"));
}

}  // namespace
}  // namespace ferrowind::contract
