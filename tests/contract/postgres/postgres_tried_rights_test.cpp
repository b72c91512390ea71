// Who may do what, tried with statements made from the server's catalogues and compared with what is meant:
// what is new on a server is tried without anybody having thought of it, and is meant for nobody until it
// stands here.

#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "ferrowind/adapters/postgres/server_connection.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/postgres/postgres_database.h"
#include "tests/contract/postgres/postgres_server.h"
#include "tests/contract/postgres/tried_statements.h"

namespace ferrowind::contract {
namespace {

using ::testing::Contains;
using ::testing::IsEmpty;
using ::testing::StartsWith;

enum class Who { kOperator, kReader, kAdministrator };

struct Permission {
  std::set<Who> who;
  std::string use;
  /// The name as `TriedStatement::object` has it, or how it begins where `*` ends it.
  std::string object;
};

const std::set<Who> kEverybody = {Who::kOperator, Who::kReader, Who::kAdministrator};

/// All that is meant to be allowed. Whatever is not here is meant for nobody.
const std::vector<Permission>& Intent() {
  static const auto intent = [] {
    std::vector<Permission> list = {
        {{Who::kOperator}, "read", "view ferrowind.dictionaryccy"},
        {{Who::kReader}, "read", "view ferrowind.calendarlist"},
        {{Who::kReader}, "read", "view ferrowind.calendarday"},
        {{Who::kOperator}, "be", "role ferrowind_operator"},
        {{Who::kReader}, "be", "role ferrowind_reader"},
        {kEverybody, "use", "schema ferrowind"},
        {kEverybody, "use", "schema pg_catalog"},
        {kEverybody, "use", "schema information_schema"},
        {kEverybody, "set", "user setting *"},
        // An administrator, who is a member of the owner, may do with the calendars what he likes, and
        // nothing else.
        {{Who::kAdministrator}, "be", "role ferrowind_owner"},
        {{Who::kAdministrator}, "create in", "schema ferrowind"},
        {{Who::kAdministrator}, "change", "schema ferrowind"},
    };
    for (const std::string procedure :
         {"allinfo", "applyplan", "getasof", "getbook", "getcontent", "getcurrencies", "getfingerprint",
          "gethistory", "getmain", "getmarkeddays", "iubook", "iucelebrate", "iumain", "undo"}) {
      list.push_back({{Who::kOperator}, "call", "procedure ferrowind.cld" + procedure});
    }
    for (const std::string procedure : {"getcloseddays", "getconventions"}) {
      list.push_back({{Who::kOperator, Who::kReader}, "call", "procedure ferrowind.cld" + procedure});
    }
    for (const std::string function :
         {"addbusinessdays", "adjustdate", "isbusinessday", "spotdate", "valuedate"}) {
      list.push_back({{Who::kOperator, Who::kReader}, "call", "function ferrowind." + function});
    }
    for (const std::string use : {"read", "write", "change", "call"}) {
      for (const std::string kind :
           {"table", "view", "sequence", "index", "procedure", "function", "type", "trigger"}) {
        list.push_back({{Who::kAdministrator}, use, kind + " ferrowind.*"});
      }
    }
    // A trigger has its own name, and then that of its table.
    list.push_back({{Who::kAdministrator}, "change", "trigger *"});
    return list;
  }();
  return intent;
}

bool Names(const std::string& pattern, const std::string& object) {
  if (!pattern.ends_with('*')) return pattern == object;
  return object.starts_with(pattern.substr(0, pattern.size() - 1));
}

bool IsMeant(Who who, const TriedStatement& tried) {
  for (const Permission& permission : Intent()) {
    if (permission.who.contains(who) && permission.use == tried.use && Names(permission.object, tried.object))
      return true;
  }
  return false;
}

/// Whether the server lets the statement through; whatever it does is undone.
bool IsLetThrough(postgres::ServerConnection& connection, const std::string& sql) {
  constexpr const char* kNoRight = "42501";
  // These stand outside of transactions, and where they are let through the test has failed.
  const bool stands_alone = sql.starts_with("ALTER SYSTEM");
  if (!stands_alone) connection.RunScript("BEGIN");
  const std::string failure = FailureTextOf([&] { connection.RunScript(sql); });
  if (!connection.IsAlive()) throw std::runtime_error(sql + ": " + failure);
  if (!stands_alone) connection.RunScript("ROLLBACK");
  return failure.find(kNoRight) == std::string::npos;
}

class PostgresTriedRights : public ::testing::Test {
 protected:
  /// What `who` may do and is not meant to, and what he is meant to do and may not.
  [[nodiscard]] std::vector<std::string> WhatIsNotAsMeant(Who who) {
    postgres::ServerConnection connection(UriOf(who));
    std::vector<std::string> differences;
    for (const TriedStatement& tried : StatementsToTry(database_.Name())) {
      const bool is_meant = IsMeant(who, tried);
      if (IsLetThrough(connection, tried.sql) == is_meant) continue;
      differences.push_back((is_meant ? "cannot " : "can ") + tried.use + " the " + tried.object + ": " +
                            tried.sql);
    }
    return differences;
  }

  /// Of a login that the server has from the first use on.
  [[nodiscard]] std::string UriOf(Who who) {
    if (who == Who::kOperator) return database_.ConnectionString();
    const auto [login, role] = who == Who::kReader ? std::pair{"reader_login", "ferrowind_reader"}
                                                   : std::pair{"administrator_login", "ferrowind_owner"};
    database_.Execute(std::string("DO $$ BEGIN IF NOT EXISTS (SELECT FROM pg_roles WHERE rolname = '") +
                      login + "') THEN CREATE ROLE " + login + " LOGIN PASSWORD 'enter' IN ROLE " + role +
                      "; END IF; END $$");
    logins_.insert(login);
    return postgres_server::Uri(login, "enter", database_.Name());
  }

  ~PostgresTriedRights() override {
    for (const auto& login : logins_) database_.Execute("DROP ROLE " + login);
  }

  PostgresDatabase database_;
  std::set<std::string> logins_;
};

TEST_F(PostgresTriedRights, AnOperatorMayDoWhatIsMeantAndNothingElse) {
  EXPECT_THAT(WhatIsNotAsMeant(Who::kOperator), IsEmpty());
  EXPECT_TRUE(database_.IsSound());
}

TEST_F(PostgresTriedRights, AReaderMayDoWhatIsMeantAndNothingElse) {
  EXPECT_THAT(WhatIsNotAsMeant(Who::kReader), IsEmpty());
  EXPECT_TRUE(database_.IsSound());
}

TEST_F(PostgresTriedRights, AnAdministratorMayDoWhatIsMeantAndNothingElse) {
  EXPECT_THAT(WhatIsNotAsMeant(Who::kAdministrator), IsEmpty());
}

TEST_F(PostgresTriedRights, EveryKindOfObjectIsTried) {
  std::map<std::string, std::string> statements;
  for (const auto& tried : StatementsToTry(database_.Name()))
    statements[tried.use + " " + tried.object] += tried.sql;
  for (const std::string what : {"read table ferrowind.cldhistory",
                                 "write table ferrowind.schemaversion",
                                 "change table ferrowind.cldday",
                                 "read view ferrowind.calendarday",
                                 "write view ferrowind.dictionaryccy",
                                 "write sequence ferrowind.cldhistory_entryid_seq",
                                 "change index ferrowind.clddaybydate",
                                 "call function ferrowind.putback",
                                 "change function ferrowind.keepoldrows",
                                 "call procedure ferrowind.cldiucurrency",
                                 "change type ferrowind.plannedday",
                                 "create in schema public",
                                 "create in the database",
                                 "be role ferrowind_owner",
                                 "be role pg_execute_server_program",
                                 "set superuser setting session_replication_role",
                                 "set for all setting work_mem",
                                 "read table of the server pg_authid",
                                 "call function pg_catalog.pg_read_file",
                                 "call function pg_catalog.lo_from_bytea"}) {
    EXPECT_THAT(statements, Contains(::testing::Key(what)));
  }
}

TEST_F(PostgresTriedRights, WhatNobodyThoughtOfIsFound) {
  // As each of them would come into the schema without a word about rights, or with one too many.
  const std::vector<std::tuple<std::string, std::string, std::string>> additions = {
      {"CREATE FUNCTION ferrowind.Added() RETURNS integer LANGUAGE sql AS 'SELECT 1'",
       "can call the function ferrowind.added: ", "DROP FUNCTION ferrowind.Added"},
      {"CREATE PROCEDURE ferrowind.Added() LANGUAGE sql AS 'SELECT 1'",
       "can call the procedure ferrowind.added: ", "DROP PROCEDURE ferrowind.Added"},
      {"CREATE TABLE ferrowind.Added (a integer); GRANT UPDATE (a) ON ferrowind.Added TO PUBLIC",
       "can write the table ferrowind.added: ", "DROP TABLE ferrowind.Added"},
      {"CREATE VIEW ferrowind.Added AS SELECT 1 AS a; GRANT SELECT ON ferrowind.Added TO PUBLIC",
       "can read the view ferrowind.added: ", "DROP VIEW ferrowind.Added"},
      {"CREATE SEQUENCE ferrowind.Added; GRANT USAGE ON SEQUENCE ferrowind.Added TO PUBLIC",
       "can write the sequence ferrowind.added: ", "DROP SEQUENCE ferrowind.Added"},
      {"CREATE TYPE ferrowind.Added AS (a integer); ALTER TYPE ferrowind.Added OWNER TO ferrowind_operator",
       "can change the type ferrowind.added: ", "DROP TYPE ferrowind.Added"},
      {"CREATE COLLATION ferrowind.Added FROM \"C\"; ALTER COLLATION ferrowind.Added OWNER TO "
       "ferrowind_operator",
       "can change the collation ferrowind.added: ", "DROP COLLATION ferrowind.Added"},
      {"CREATE SCHEMA added; GRANT ALL ON SCHEMA added TO PUBLIC",
       "can create in the schema added: ", "DROP SCHEMA added"},
      {"GRANT SET ON PARAMETER session_replication_role TO PUBLIC",
       "can set the superuser setting session_replication_role: ",
       "REVOKE SET ON PARAMETER session_replication_role FROM PUBLIC"},
      {"GRANT pg_write_all_data TO ferrowind_operator",
       "can be the role pg_write_all_data: ", "REVOKE pg_write_all_data FROM ferrowind_operator"},
      {"GRANT EXECUTE ON FUNCTION pg_read_file(text) TO PUBLIC",
       "can call the function pg_catalog.pg_read_file: ",
       "REVOKE EXECUTE ON FUNCTION pg_read_file(text) FROM PUBLIC"},
      {"REVOKE EXECUTE ON PROCEDURE ferrowind.CldGetMain FROM ferrowind_operator",
       "cannot call the procedure ferrowind.cldgetmain: ",
       "GRANT EXECUTE ON PROCEDURE ferrowind.CldGetMain TO ferrowind_operator"},
  };
  for (const auto& [adding, found, removing] : additions) {
    database_.Execute(adding);
    EXPECT_THAT(WhatIsNotAsMeant(Who::kOperator), Contains(StartsWith(found))) << adding;
    database_.Execute(removing);
  }
}

}  // namespace
}  // namespace ferrowind::contract
