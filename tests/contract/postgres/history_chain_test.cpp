// The chained history on both engines: whoever changes records or tables behind it is found out.

#include <chrono>
#include <cstdint>
#include <fstream>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "ferrowind/adapters/chain/history_entry.h"
#include "ferrowind/adapters/chain/seal.h"
#include "ferrowind/adapters/content/content_copy.h"
#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/platform/values/conversion.h"

#include "host/admin/database_content.h"
#include "tests/contract/database/old_version.h"
#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/postgres/copy_end.h"
#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
namespace {

using chain::Seal;
using platform::Date;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

platform::EngineRegistry Engines() {
  platform::EngineRegistry engines;
  engines.Register(sqlite::Engine::kScheme, std::make_shared<sqlite::Engine>());
  engines.Register(postgres::Engine::kScheme, std::make_shared<postgres::Engine>());
  return engines;
}

struct Kind {
  std::string name;
  std::function<std::unique_ptr<CopyEnd>()> make;
};

void PrintTo(const Kind& kind, std::ostream* stream) { *stream << kind.name; }

bool IsFile(CopyEnd& database) { return database.ConnectionString().starts_with("sqlite:"); }

std::vector<std::string> Problems(CopyEnd& database, const std::optional<Seal>& seal = {}) {
  const std::string url = database.ConnectionString();
  return IsFile(database) ? sqlite::CheckDatabase(sqlite::PathIn(url), seal)
                          : postgres::CheckDatabase(url, seal);
}

Seal SealOf(CopyEnd& database) {
  const std::string url = database.ConnectionString();
  const auto sealed =
      IsFile(database) ? sqlite::SealDatabase(sqlite::PathIn(url)) : postgres::SealDatabase(url);
  // As somebody writes it down.
  return Seal::Of(sealed.seal.Text());
}

/// What whoever may change every table does behind the history, and hides.
void Tamper(CopyEnd& database, const std::string& sql) {
  if (!IsFile(database)) return database.Execute("SET session_replication_role = replica; " + sql);
  std::string before = "PRAGMA foreign_keys = OFF;";
  std::string behind;
  const std::pair<const char*, const char*> triggers[] = {
      {"CldHistoryKeepsItsEntries",
       "BEFORE UPDATE ON CldHistory\nBEGIN\n  SELECT RAISE(ABORT, 'an entry of the history is not "
       "changed');\nEND"},
      {"CldHistoryLosesNoEntry",
       "BEFORE DELETE ON CldHistory\nBEGIN\n  SELECT RAISE(ABORT, 'an entry of the history is not "
       "removed');\nEND"},
      {"CldHistoryRowKeepsItsRows",
       "BEFORE UPDATE ON CldHistoryRow\nBEGIN\n  SELECT RAISE(ABORT, 'a row of the history is not "
       "changed');\nEND"},
      {"CldHistoryRowLosesNoRow",
       "BEFORE DELETE ON CldHistoryRow\nBEGIN\n  SELECT RAISE(ABORT, 'a row of the history is not "
       "removed');\nEND"}};
  for (const auto& [name, definition] : triggers) {
    before += std::string("DROP TRIGGER ") + name + ";";
    behind += std::string("CREATE TRIGGER ") + name + " " + definition + ";";
  }
  database.Execute(before + sql + ";" + behind);
}

class HistoryChain : public ::testing::TestWithParam<Kind> {
 protected:
  HistoryChain() : owner_(GetParam().make()) {}

  /// Entries 1, 3, 5, 7 and 8 are of the calendar 978 of 2026.
  void SetUp() override {
    database_.Create();
    Call("CldIUMain", {{"ID1", 978}, {"Year1", 2026}});
    Call("CldIUCelebrate", {{"Name1", "Sunday \"\\ Ü"}, {"TID1", 2}, {"WD", std::int16_t{1}}});
    Call("CldIUMain", {{"ID1", 978}, {"Year1", 2026}, {"TID1", 2}, {"ID2", 2}});
    Call("CldIUMain", {{"ID1", 840}, {"Year1", 2026}});
    Assign(5, "first");
    Call("CldIUBook", {{"ID1", 978},
                       {"Expected", ""},
                       {"Publisher", "P"},
                       {"Document", "D"},
                       {"Rules", R"([{"Name1": "A", "TID1": 3, "Expression": "01-01"}])"}});
    Call("CldUndo", {{"EntryID", 5}});
    Assign(6, "second");
    ASSERT_THAT(Problems(database_), IsEmpty());
  }

  void Call(const std::string& procedure, const Arguments& arguments) {
    ASSERT_EQ(ProcedureCaller(database_).Return(procedure, arguments), 0) << procedure;
  }
  void Assign(int day, const std::string& comment) {
    Call("CldIUMain",
         {{"ID1", 978}, {"Year1", 2026}, {"TID1", 1}, {"ID2", 1}, {"Day1", day}, {"Comment", comment}});
  }

  std::vector<chain::HistoryEntry> Entries() {
    const auto source = host::OpenContent(Engines(), database_.ConnectionString());
    chain::EntryReader reader(*source);
    std::vector<chain::HistoryEntry> entries;
    chain::HistoryEntry entry;
    while (reader.Next(entry)) entries.push_back(entry);
    return entries;
  }

  /// Writes the links and hashes of `entries` as if all of it had been recorded so.
  void Write(const std::vector<chain::HistoryEntry>& entries) {
    std::string sql;
    for (const auto& entry : entries) {
      const auto text = [&](std::size_t column) { return platform::ToTextOrEmpty(entry.entry[column]); };
      sql += "UPDATE CldHistory SET UserName = '" + text(chain::entry_column::kUserName) + "', Previous = '" +
             text(chain::entry_column::kPrevious) + "', Hash = '" + text(chain::entry_column::kHash) +
             "' WHERE EntryID = " + text(chain::entry_column::kEntryID) + ";";
    }
    Tamper(database_, sql);
  }

  std::unique_ptr<CopyEnd> owner_;
  CopyEnd& database_ = *owner_;
};

const std::vector<Kind>& Kinds() {
  static const std::vector<Kind> kinds = {{"File", [] { return std::make_unique<FileEnd>(); }},
                                          {"Server", [] { return std::make_unique<ServerEnd>(); }}};
  return kinds;
}

INSTANTIATE_TEST_SUITE_P(Engines, HistoryChain, ::testing::ValuesIn(Kinds()),
                         [](const auto& test) { return test.param.name; });

constexpr const char* kEntry5 = "The entry 5 of the history (CldIUMain for the calendar 978 of 2026, by ";

TEST_P(HistoryChain, FollowsEveryKindOfCallAndWhatIsPutBack) {
  const auto fingerprint = [&] {
    return (*ProcedureCaller(database_)
                 .Call("CldGetFingerprint", {{"ID1", 826}, {"Year1", 2027}})
                 .record_sets.at(0))["Fingerprint"];
  };
  const char* const plan =
      R"([{"Name1": "New Year", "TID1": 3, "Comment": "tab\tand \\", "Dates": ["2027-01-01"]},
                              {"TID1": 1, "DayComment": "stock", "Dates": ["2027-01-04"]}])";
  Call("CldApplyPlan", {{"ID1", 826}, {"Year1", 2027}, {"Expected", ""}, {"Days", plan}});
  Call("CldUndo", {{"EntryID", 9}});
  Call("CldUndo", {{"EntryID", 10}});
  Call("CldApplyPlan", {{"ID1", 826},
                        {"Year1", 2027},
                        {"Expected", fingerprint()},
                        {"Days", R"([{"TID1": 1, "Dates": ["2027-01-01"]}])"}});
  Call("CldIUCelebrate", {{"ID2", 2}, {"Del", std::int16_t{2}}});
  Call("CldIUCurrency", {{"CcyID", 901},
                         {"Ccy", "AOU"},
                         {"CcyType", std::int16_t{1}},
                         {"Name", "Ünit"},
                         {"LastDay", Date(2025, 12, 31)}});
  Call("CldUndo", {{"EntryID", 14}});
  Call("CldUndo", {{"EntryID", 6}});
  Call("CldUndo", {{"EntryID", 1 + 15}});
  EXPECT_THAT(Problems(database_, SealOf(database_)), IsEmpty());
}

TEST_P(HistoryChain, NamesAChangedEntry) {
  Tamper(database_, "UPDATE CldHistory SET UserName = 'nobody' WHERE EntryID = 5");
  EXPECT_THAT(Problems(database_), ElementsAre(AllOf(HasSubstr(std::string(kEntry5) + "nobody, 2"),
                                                     HasSubstr("is not as it was recorded"))));
}

TEST_P(HistoryChain, NamesTheEntryOfAChangedOrRemovedRowOfTheHistory) {
  Tamper(
      database_,
      R"(UPDATE CldHistoryRow SET OldRow = '{"TID1" : 2, "ID2" : 2, "Comment" : null}' WHERE EntryID = 5)");
  EXPECT_THAT(Problems(database_),
              Contains(AllOf(HasSubstr(kEntry5), HasSubstr("is not as it was recorded"))));
  EXPECT_THAT(Problems(database_), Contains(AllOf(HasSubstr("The day 5 of the calendar 978 of 2026 was"),
                                                  HasSubstr("when the entry 5"))));
  Tamper(database_, "DELETE FROM CldHistoryRow WHERE EntryID = 5");
  EXPECT_THAT(Problems(database_),
              Contains(AllOf(HasSubstr(kEntry5), HasSubstr("is not as it was recorded"))));
}

TEST_P(HistoryChain, NamesWhereAnEntryIsMissing) {
  Tamper(database_, "DELETE FROM CldHistoryRow WHERE EntryID = 5; DELETE FROM CldHistory WHERE EntryID = 5");
  EXPECT_THAT(
      Problems(database_),
      Contains(AllOf(
          HasSubstr("Entries of the calendar 978 of 2026 are missing from the history: 1 before the entry 7"),
          HasSubstr("comes behind the entry 3"))));
}

TEST_P(HistoryChain, LetsASealAloneTellThatTheNewestEntriesAreMissing) {
  const Seal seal = SealOf(database_);
  EXPECT_EQ(seal.entry, 8);
  Tamper(database_,
         "DELETE FROM CldHistoryRow WHERE EntryID = 8; DELETE FROM CldHistory WHERE EntryID = 8;"
         "UPDATE CldDay SET ID2 = NULL, Comment = NULL WHERE ID1 = 978 AND Year1 = 2026 AND Day1 = 6");
  EXPECT_THAT(Problems(database_), IsEmpty());
  EXPECT_THAT(
      Problems(database_, seal),
      ElementsAre(HasSubstr("The newest entries of the history are missing: the last one is number 7")));
  // Others in their place.
  if (!IsFile(database_)) database_.Execute("ALTER TABLE CldHistory ALTER EntryID RESTART WITH 8");
  Assign(6, "another");
  EXPECT_THAT(Problems(database_), IsEmpty());
  EXPECT_THAT(Problems(database_, seal), ElementsAre(HasSubstr("does not fit the seal")));
}

TEST_P(HistoryChain, NamesEntriesThatWereSwapped) {
  Tamper(database_,
         "UPDATE CldHistory SET EntryID = 100 WHERE EntryID = 5; UPDATE CldHistory SET EntryID = 5 WHERE "
         "EntryID = 8;"
         "UPDATE CldHistory SET EntryID = 8 WHERE EntryID = 100;"
         "UPDATE CldHistoryRow SET EntryID = 100 WHERE EntryID = 5; UPDATE CldHistoryRow SET EntryID = 5 "
         "WHERE EntryID = 8;"
         "UPDATE CldHistoryRow SET EntryID = 8 WHERE EntryID = 100");
  const auto problems = Problems(database_);
  EXPECT_THAT(problems, Contains(AllOf(HasSubstr(kEntry5), HasSubstr("is not as it was recorded"))));
  EXPECT_THAT(problems, Contains(AllOf(HasSubstr("The entry 8 of the history"),
                                       HasSubstr("is not as it was recorded"))));
  EXPECT_THAT(problems,
              Contains(AllOf(HasSubstr("The entry 8 of the history"), HasSubstr("is not at its place"))));
}

TEST_P(HistoryChain, NamesAForgedEntryWhoseLinkIsBroken) {
  auto entries = Entries();
  chain::HistoryEntry& forged = entries.at(4);
  forged.entry[chain::entry_column::kUserName] = "nobody";
  forged.entry[chain::entry_column::kHash] = chain::HashOf(forged);
  Write({forged});
  EXPECT_THAT(
      Problems(database_),
      ElementsAre(AllOf(HasSubstr("The entry 7 of the history"),
                        HasSubstr("does not follow what is before it: it comes behind the entry 5"))));
}

TEST_P(HistoryChain, LetsASealAloneTellThatAWholeChainWasForged) {
  const Seal seal = SealOf(database_);
  Assign(7, "later");
  auto entries = Entries();
  entries.at(4).entry[chain::entry_column::kUserName] = "nobody";
  std::string hash;
  for (auto& entry : entries) {
    if (!(chain::ChainOf(entry.entry) == chain::ChainKey{978, 2026})) continue;
    entry.entry[chain::entry_column::kPrevious] = hash;
    hash = chain::HashOf(entry);
    entry.entry[chain::entry_column::kHash] = hash;
  }
  EXPECT_THAT(Problems(database_, seal), IsEmpty());
  Write(entries);
  EXPECT_THAT(Problems(database_), IsEmpty());
  EXPECT_THAT(Problems(database_, seal),
              ElementsAre(HasSubstr("The history up to the entry 8 does not fit the seal")));
}

TEST_P(HistoryChain, NamesRowsOfTheTablesThatWereChangedBehindIt) {
  const std::pair<const char*, std::vector<const char*>> changes[] = {
      {"UPDATE CldDay SET Comment = 'x' WHERE ID1 = 978 AND Day1 = 6",
       {R"(The day 6 of the calendar 978 of 2026 is {"TID1" : 1, "ID2" : 1, "Comment" : "x"}, but the entry 8)",
        R"(left {"TID1" : 1, "ID2" : 1, "Comment" : "second"})"}},
      {"UPDATE CldDay SET Comment = 'x' WHERE ID1 = 840 AND Day1 = 6",
       {"The day 6 of the calendar 840 of 2026 is", "no entry of the history made it so"}},
      {"UPDATE CldHoliday SET WD = 2 WHERE ID2 = 2",
       {"The rule 2 is", "but the entry 2 of the history (CldIUCelebrate, by"}},
      {"UPDATE CldHoliday SET Name1 = 'x' WHERE ID2 = 1",
       {"The table CldHoliday was changed without an entry"}},
      {"DELETE FROM CldRecurrence",
       {"The rule 1 of the rule book of 978 is nothing, but the entry 6 of the history (CldIUBook for 978, "
        "by"}},
      {"DELETE FROM CldDay WHERE ID1 = 978 AND Day1 = 4",
       {"The day 4 of the calendar 978 of 2026 is nothing, but the entry 3"}},
      {"DELETE FROM CldCalendar WHERE ID1 = 840", {"The calendar 840 of 2026 is nothing, but the entry 4"}},
      {"INSERT INTO CldCalendar VALUES (826, 2026)",
       {"The calendar 826 of 2026 is there without an entry of the history that made it"}},
      {"UPDATE DicCcy SET Name = 'x' WHERE CcyID = 978",
       {"The table DicCcy was changed without an entry", "when the database was created"}},
      {"DELETE FROM CldChainStart WHERE Year1 = 6",
       {"The table CldHolidayType is there without an entry of the history"}},
  };
  std::string all;
  for (const auto& [sql, texts] : changes) all += std::string(sql) + ";";
  Tamper(database_, all);
  const auto problems = Problems(database_);
  for (const auto& [sql, texts] : changes) {
    for (const char* const text : texts) EXPECT_THAT(problems, Contains(HasSubstr(text))) << sql;
  }
}

TEST_P(HistoryChain, NamesABeginningOfTheHistoryThatIsNotTrue) {
  Tamper(database_, "INSERT INTO CldHistoryStart VALUES (50, '2026-01-01T00:00:00.000Z')");
  EXPECT_THAT(Problems(database_),
              ElementsAre("CldHistoryStart says that the history tells what calls replaced only since "
                          "2026-01-01T00:00:00.000Z, but it did so when the database was created"));
}

TEST_P(HistoryChain, GoesAlongWithACopyToEitherEngineUnderTheSameSeal) {
  const Seal seal = SealOf(database_);
  for (const Kind& kind : Kinds()) {
    const auto copy = kind.make();
    const auto source = host::OpenContent(Engines(), database_.ConnectionString());
    host::FillDatabase(Engines(), copy->ConnectionString(),
                       [&](content::Target& target) { content::CopyContent(*source, target); });
    EXPECT_EQ(SealOf(*copy), seal) << kind.name;
    ASSERT_EQ(ProcedureCaller(*copy).Return("CldUndo", {{"EntryID", 8}}), 0);
    EXPECT_THAT(Problems(*copy, seal), IsEmpty()) << kind.name;
  }
}

TEST_P(HistoryChain, OfAnotherDatabaseDoesNotFitASeal) {
  const auto other = GetParam().make();
  other->Create();
  const Seal none = SealOf(*other);
  EXPECT_EQ(none.entry, 0);
  EXPECT_THAT(Problems(*other, none), IsEmpty());
  ASSERT_EQ(ProcedureCaller(*other).Return("CldIUMain", {{"ID1", 978}, {"Year1", 2026}}), 0);
  EXPECT_THAT(Problems(*other, none), IsEmpty());
  EXPECT_THAT(Problems(*other, Seal{1, SealOf(database_).digest}),
              ElementsAre(HasSubstr("or the seal is another database's")));
}

TEST_P(HistoryChain, OfAnUpgradedDatabaseBeginsThereAndCoversWhatWasBefore) {
  const auto old = GetParam().make();
  const bool is_file = IsFile(*old);
  const std::string script = OldVersionScript(4, is_file ? "sqlite" : "postgres");
  if (is_file) {
    std::ofstream(sqlite::PathIn(old->ConnectionString())).close();
    old->Execute(script + "PRAGMA journal_mode = WAL");
  } else {
    old->Execute("BEGIN;" + script + "COMMIT");
  }
  old->Execute(std::string(kOldContent) +
               "INSERT INTO CldHistory (Moment, UserName, ProcedureName, ID1, Year1, Parameters, "
               "ReturnValue, RowsChanged)"
               " VALUES ('2026-01-02T03:04:05.678Z', 'anna', 'CldIUMain', 978, 2026, '{}', 0, 1);"
               "INSERT INTO CldHistoryRow (EntryID, RowNumber, TableName, ID1, Year1, Day1, OldRow)"
               " VALUES (1, 1, 'CldDay', 978, 2026, 1, '{}')");
  std::string days;
  for (int day = 1; day <= 365; ++day) {
    days += "INSERT INTO CldDay VALUES (978, 2026, " + std::to_string(day) + ", '" +
            Date(2026, 1, 1).AddDays(day - 1).ToIso() + "', " + (day == 4 ? "2, 2" : "1, NULL") + ", NULL);";
  }
  old->Execute("BEGIN;" + days + "COMMIT");
  const std::string url = old->ConnectionString();
  is_file ? sqlite::UpgradeDatabase(sqlite::PathIn(url)) : postgres::UpgradeDatabase(url);
  EXPECT_THAT(Problems(*old), IsEmpty());
  const Seal seal = SealOf(*old);
  const Arguments assignment = {{"ID1", 978}, {"Year1", 2026}, {"TID1", 1}, {"ID2", 1}, {"Day1", 4}};
  ASSERT_EQ(ProcedureCaller(*old).Return("CldIUMain", assignment), 0);
  EXPECT_THAT(Problems(*old, seal), IsEmpty());
  const std::string forget = "DELETE FROM CldHistoryStart;";
  const std::pair<const char*, const char*> beginnings[] = {
      {"(50, '2026-01-01T00:00:00.000Z')",
       "only since 2026-01-01T00:00:00.000Z and the entry 50, but it did so at the upgrade of 2"},
      {"(0, '2999-01-01T00:00:00.000Z')",
       "only since 2999-01-01T00:00:00.000Z and the entry 0, but it did so at the upgrade of 2"},
      {"(1, '2026-01-01T00:00:00.000Z')",
       "CldHistoryStart says that the entries up to number 1 do not tell what they replaced, but the entry "
       "1"},
      {"(0, '2026-02-01T00:00:00.000Z')",
       "tell what they replaced since 2026-02-01T00:00:00.000Z, but the entry 1 of the history"},
  };
  for (const auto& [row, problem] : beginnings) {
    Tamper(*old, forget + "INSERT INTO CldHistoryStart VALUES " + row);
    EXPECT_THAT(Problems(*old), ElementsAre(HasSubstr(problem))) << row;
  }
  Tamper(*old, forget);
  EXPECT_THAT(Problems(*old), IsEmpty());
  Tamper(*old,
         "UPDATE CldHistory SET UserName = 'bert' WHERE EntryID = 1; UPDATE CldDay SET Comment = 'x' WHERE "
         "Day1 = 9");
  EXPECT_THAT(Problems(*old),
              ElementsAre(AllOf(HasSubstr("The entry 1 of the history"), HasSubstr("by bert"),
                                HasSubstr("is not as it was recorded")),
                          HasSubstr("The calendar 978 of 2026 was changed without an entry of the history: "
                                    "what no entry has changed is not as it was at the upgrade of 2")));
}

class HistoryChainOnAServer : public ::testing::Test {
 protected:
  void SetUp() override {
    database_.Create();
    ASSERT_EQ(ProcedureCaller(database_).Return("CldIUMain", {{"ID1", 978}, {"Year1", 2026}}), 0);
  }

  ServerEnd database_;
};

TEST_F(HistoryChainOnAServer, IsSealedWhenCallsAtWorkHaveEnded) {
  postgres::ServerConnection early(database_.ConnectionString());
  early.RunScript("BEGIN; CALL ferrowind.CldIUMain(978, 2026, 1, 1, 5)");
  ASSERT_EQ(ProcedureCaller(database_).Return("CldIUMain", {{"ID1", 840}, {"Year1", 2026}}), 0);
  Seal seal;
  {
    std::thread sealing([&] { seal = SealOf(database_); });
    std::this_thread::sleep_for(std::chrono::milliseconds(500));
    early.RunScript("COMMIT");
    sealing.join();
  }
  EXPECT_EQ(seal.entry, 3);
  EXPECT_THAT(Problems(database_, seal), IsEmpty());
}

TEST_F(HistoryChainOnAServer, RefusesACallThatDoesNotSeeTheEndOfItsChain) {
  postgres::ServerConnection late(database_.ConnectionString());
  late.RunScript("BEGIN ISOLATION LEVEL REPEATABLE READ; SELECT count(*) FROM ferrowind.CldHistory");
  ASSERT_EQ(ProcedureCaller(database_).Return(
                "CldIUMain", {{"ID1", 978}, {"Year1", 2026}, {"TID1", 1}, {"ID2", 1}, {"Day1", 5}}),
            0);
  EXPECT_THAT(FailureTextOf([&] { late.RunScript("CALL ferrowind.CldIUMain(978, 2026, 1, 1, 6)"); }),
              HasSubstr("cldhistorybychain"));
  late.RunScript("ROLLBACK");
  EXPECT_THAT(Problems(database_), IsEmpty());
}

TEST_F(HistoryChainOnAServer, StoresNothingOfACallWhoseHashFails) {
  database_.Execute("ALTER FUNCTION HashField(anyelement) RENAME TO Gone");
  EXPECT_NE(FailureTextOf([&] {
              (void)ProcedureCaller(database_).Return("CldIUMain", {{"ID1", 840}, {"Year1", 2026}});
            }),
            "");
  database_.Execute("ALTER FUNCTION Gone(anyelement) RENAME TO HashField");
  EXPECT_THAT(Problems(database_, SealOf(database_)), IsEmpty());
  EXPECT_EQ(SealOf(database_).entry, 1);
}

}  // namespace
}  // namespace ferrowind::contract
