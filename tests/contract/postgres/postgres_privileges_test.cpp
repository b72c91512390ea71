// What a login that is an operator's, or a reader's, can do besides its work: nothing.

#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/platform/values/failure.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/postgres/postgres_database.h"
#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
namespace {

using ::testing::AnyOf;
using ::testing::HasSubstr;

std::vector<std::string> AskAll(const std::string& database, const std::string& query) {
  std::vector<std::string> words;
  std::string word;
  for (const char c : postgres_server::Ask(
                          database, "SELECT string_agg(w, ',' ORDER BY w) FROM (" + query + ") AS list (w)") +
                          ",") {
    if (c == ',') {
      if (!word.empty()) words.push_back(word);
      word.clear();
    } else {
      word += c;
    }
  }
  return words;
}

void ExpectRefused(postgres::ServerConnection& connection, const std::string& sql) {
  const std::string failure = FailureTextOf([&] { connection.RunScript(sql); });
  EXPECT_THAT(failure, AnyOf(HasSubstr("permission denied"), HasSubstr("must be owner"),
                             HasSubstr("must be superuser"), HasSubstr("must be member"),
                             HasSubstr("must have admin option")))
      << sql;
}

TEST(PostgresPrivileges, AnOperatorIsRefusedEveryStatementOnEveryTable) {
  PostgresDatabase database;
  postgres::ServerConnection connection(database.ConnectionString());
  const auto views = AskAll(database.Name(),
                            "SELECT relname FROM pg_class WHERE relnamespace = 'ferrowind'::regnamespace AND "
                            "relkind = 'v' AND relname <> 'dictionaryccy'");
  ASSERT_EQ(views.size(), 2U);
  for (const auto& view : views) ExpectRefused(connection, "SELECT * FROM ferrowind." + view);

  const auto tables =
      AskAll(database.Name(),
             "SELECT relname FROM pg_class WHERE relnamespace = 'ferrowind'::regnamespace AND relkind = 'r'");
  ASSERT_EQ(tables.size(), 8U);
  for (const auto& name : tables) {
    const std::string table = "ferrowind." + name;
    for (const auto& sql :
         {"SELECT * FROM " + table, "SELECT count(*) FROM " + table,
          "INSERT INTO " + table + " DEFAULT VALUES", "DELETE FROM " + table, "TRUNCATE " + table,
          "SELECT 1; LOCK TABLE " + table + " IN ACCESS SHARE MODE",
          "COPY (SELECT * FROM " + table + ") TO STDOUT", "SELECT FROM " + table + " FOR UPDATE",
          "MERGE INTO " + table +
              " t USING (SELECT 1) s ON false WHEN NOT MATCHED THEN INSERT DEFAULT VALUES",
          "ALTER TABLE " + table + " ADD x integer", "ALTER TABLE " + table + " DISABLE TRIGGER ALL",
          "CREATE INDEX ON " + table + " ((1))", "DROP TABLE " + table}) {
      ExpectRefused(connection, sql);
    }
  }
  for (const auto& column :
       AskAll(database.Name(),
              "SELECT c.relname || ' SET ' || a.attname || ' = NULL' FROM pg_class c JOIN pg_attribute a ON "
              "a.attrelid = c.oid WHERE c.relnamespace = 'ferrowind'::regnamespace AND c.relkind = 'r' AND "
              "a.attnum > 0")) {
    ExpectRefused(connection, "UPDATE ferrowind." + column);
  }
  EXPECT_TRUE(database.IsSound());
}

TEST(PostgresPrivileges, AnOperatorMayReadTheDictionaryAndNotChangeIt) {
  PostgresDatabase database;
  postgres::ServerConnection connection(database.ConnectionString());
  connection.RunScript("SELECT * FROM ferrowind.DictionaryCcy");
  for (const std::string sql :
       {"INSERT INTO ferrowind.DictionaryCcy VALUES (1, 'A', 0, 'A')", "DELETE FROM ferrowind.DictionaryCcy",
        "UPDATE ferrowind.DictionaryCcy SET Name = ''", "DROP VIEW ferrowind.DictionaryCcy"}) {
    ExpectRefused(connection, sql);
  }
}

TEST(PostgresPrivileges, AnOperatorMakesAndChangesNothingInTheDatabase) {
  PostgresDatabase database;
  postgres::ServerConnection connection(database.ConnectionString());
  for (const std::string sql :
       {"CREATE TABLE ferrowind.mine (a integer)",
        "CREATE TABLE public.mine (a integer)",
        "CREATE TEMPORARY TABLE mine (a integer)",
        "CREATE SCHEMA mine",
        "CREATE EXTENSION pageinspect SCHEMA pg_catalog",
        "CREATE FUNCTION ferrowind.mine() RETURNS integer LANGUAGE sql AS 'SELECT 1'",
        "CREATE ROLE mine",
        "SET ROLE ferrowind_owner",
        "SET ROLE ferrowind_reader",
        "SET ROLE postgres",
        "SET SESSION AUTHORIZATION postgres",
        "GRANT ferrowind_owner TO operator_login",
        "DROP SCHEMA ferrowind CASCADE",
        "ALTER SCHEMA ferrowind RENAME TO mine",
        "COPY (SELECT 1) TO '/tmp/ferrowind_operator'",
        "COPY (SELECT 1) TO PROGRAM 'true'",
        "SELECT pg_read_file('/etc/passwd')",
        "SELECT * FROM pg_authid",
        "SELECT lo_import('/etc/passwd')",
        "ALTER PROCEDURE ferrowind.CldAllInfo SECURITY INVOKER",
        "CREATE OR REPLACE PROCEDURE ferrowind.CldAllInfo(INOUT r integer) LANGUAGE sql AS 'SELECT 1'"}) {
    ExpectRefused(connection, sql);
  }
}

TEST(PostgresPrivileges, AnOperatorCallsTheFourProceduresAndNoOtherRoutine) {
  PostgresDatabase database;
  database.Execute(
      "CREATE PROCEDURE ferrowind.Added(INOUT r integer) LANGUAGE plpgsql AS $$ BEGIN r := 0; END $$;"
      "REVOKE ALL ON PROCEDURE ferrowind.Added FROM PUBLIC");
  const std::string may = postgres_server::Ask(
      database.Name(),
      "SELECT string_agg(proname, ',' ORDER BY proname) FROM pg_proc WHERE pronamespace = "
      "'ferrowind'::regnamespace AND has_function_privilege('operator_login', oid, 'EXECUTE')");
  EXPECT_EQ(may, "cldallinfo,cldgetmain,cldiucelebrate,cldiumain");
  postgres::ServerConnection connection(database.ConnectionString());
  ExpectRefused(connection, "SELECT ferrowind.NameKey('a')");
  ExpectRefused(connection, "CALL ferrowind.Added(0)");
  EXPECT_THAT(FailureTextOf([&] { ProcedureCaller(database).Call("Added"); }),
              HasSubstr("does not permit this"));
}

TEST(PostgresPrivileges, AnOperatorsOwnObjectsDoNotReachIntoAProcedure) {
  PostgresDatabase database;
  // Even where temporary tables are allowed.
  database.Execute("GRANT TEMPORARY ON DATABASE " + database.Name() + " TO operator_login");
  postgres::ServerConnection connection(database.ConnectionString());
  connection.RunScript(
      "CREATE TEMPORARY TABLE CldSetting (FirstDay integer); INSERT INTO CldSetting VALUES (7);"
      "SET search_path = pg_temp; BEGIN; CALL ferrowind.CldAllInfo()");
  const auto rows = connection.Query("FETCH ALL FROM \"Setting\"");
  EXPECT_EQ(PQgetvalue(rows.get(), 0, 0)[3], 1);
}

TEST(PostgresPrivileges, AReaderReadsTheViewsAndCallsNothing) {
  PostgresDatabase database;
  ASSERT_EQ(ProcedureCaller(database).Return("CldIUMain", {{"ID1", 978}, {"Year1", 2026}}), 0);
  postgres::ServerConnection connection(postgres_server::SuperuserUri(database.Name()));
  connection.RunScript("SET ROLE ferrowind_reader");
  const auto days = connection.Query(
      "SELECT Ccy, Year, Date, IsWorkingDay, Type, Rule, Comment FROM ferrowind.CalendarDay ORDER BY Date");
  EXPECT_EQ(PQntuples(days.get()), 365);
  EXPECT_EQ(PQntuples(connection.Query("SELECT Ccy, Year FROM ferrowind.CalendarList").get()), 1);
  for (const std::string sql : {"CALL ferrowind.CldAllInfo()", "SELECT * FROM ferrowind.CldDay",
                                "SELECT * FROM ferrowind.DictionaryCcy"}) {
    ExpectRefused(connection, sql);
  }
}

TEST(PostgresPrivileges, ALoginThatIsNeitherDoesNotComeIn) {
  PostgresDatabase database;
  database.Execute("CREATE ROLE stranger LOGIN PASSWORD 'strange'");
  EXPECT_THAT(FailureTextOf([&] {
                static_cast<void>(
                    database.Engine().Connect(postgres_server::Uri("stranger", "strange", database.Name())));
              }),
              HasSubstr("permission denied for database"));
  database.Execute("DROP ROLE stranger");
}

TEST(PostgresPrivileges, NobodyLogsInAsARoleOfTheDatabase) {
  PostgresDatabase database;
  EXPECT_EQ(
      postgres_server::Ask(database.Name(),
                           "SELECT count(*)::text FROM pg_roles WHERE rolname LIKE 'ferrowind%' AND NOT "
                           "rolcanlogin AND NOT rolsuper AND NOT rolcreaterole AND NOT rolcreatedb"),
      "3");
}

}  // namespace
}  // namespace ferrowind::contract
