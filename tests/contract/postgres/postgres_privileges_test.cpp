// What a login that is an operator's, or a reader's, can do besides its work: nothing.

#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/platform/values/failure.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/postgres/postgres_database.h"
#include "tests/contract/postgres/postgres_server.h"
#include "tests/contract/postgres/refused_statements.h"

namespace ferrowind::contract {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::IsSupersetOf;
using ::testing::Not;

/// Relations of the schema that are of one of the kinds.
std::vector<std::string> Relations(const std::string& database, const std::string& kinds) {
  return AskAll(database,
                "SELECT relname::text FROM pg_class WHERE relnamespace = 'ferrowind'::regnamespace AND "
                "relkind = ANY ('{" +
                    kinds + "}')");
}

TEST(PostgresPrivileges, AnOperatorIsRefusedEveryStatementOnEveryTable) {
  PostgresDatabase database;
  postgres::ServerConnection connection(database.ConnectionString());
  const auto tables = Relations(database.Name(), "r");
  ASSERT_THAT(tables, IsSupersetOf({"schemaversion", "dicccy", "cldholidaytype", "cldholiday", "cldcalendar",
                                    "cldday", "cldsetting", "cldhistory", "cldbook", "cldrecurrence",
                                    "cldhistorystart", "cldhistoryrow"}));
  for (const auto& name : tables) {
    const std::string table = "ferrowind." + name;
    for (const auto& sql : {"SELECT * FROM " + table,
                            "SELECT count(*) FROM " + table,
                            "TABLE " + table,
                            "EXPLAIN SELECT * FROM " + table,
                            "DECLARE mine CURSOR WITH HOLD FOR SELECT * FROM " + table,
                            "WITH gone AS (DELETE FROM " + table + " RETURNING *) SELECT * FROM gone",
                            "SELECT query_to_xml('SELECT * FROM " + table + "', true, true, '')",
                            "SELECT table_to_xml('" + table + "', true, true, '')",
                            "DO $$ BEGIN EXECUTE 'SELECT * FROM " + table + "'; END $$",
                            "INSERT INTO " + table + " DEFAULT VALUES",
                            "INSERT INTO " + table + " DEFAULT VALUES ON CONFLICT DO NOTHING",
                            "DELETE FROM " + table,
                            "TRUNCATE " + table,
                            "TRUNCATE " + table + " CASCADE",
                            "SELECT 1; LOCK TABLE " + table + " IN ACCESS SHARE MODE",
                            "COPY " + table + " TO STDOUT",
                            "COPY " + table + " FROM STDIN",
                            "COPY (SELECT * FROM " + table + ") TO STDOUT",
                            "SELECT FROM " + table + " FOR UPDATE",
                            "MERGE INTO " + table +
                                " t USING (SELECT 1) s ON false WHEN NOT MATCHED THEN INSERT DEFAULT VALUES",
                            "ALTER TABLE " + table + " ADD x integer",
                            "ALTER TABLE " + table + " DISABLE TRIGGER ALL",
                            "ALTER TABLE " + table + " OWNER TO operator_login",
                            "ALTER TABLE " + table + " RENAME TO mine",
                            "ALTER TABLE " + table + " SET SCHEMA public",
                            "ALTER TABLE " + table + " ENABLE ROW LEVEL SECURITY",
                            "GRANT SELECT ON " + table + " TO operator_login",
                            "CREATE RULE mine AS ON INSERT TO " + table + " DO ALSO NOTHING",
                            "CREATE POLICY mine ON " + table,
                            "CREATE TRIGGER mine BEFORE INSERT ON " + table +
                                " FOR EACH ROW EXECUTE FUNCTION suppress_redundant_updates_trigger()",
                            "COMMENT ON TABLE " + table + " IS 'mine'",
                            "CREATE INDEX ON " + table + " ((1))",
                            "REINDEX TABLE " + table,
                            "CLUSTER " + table,
                            "DROP TABLE " + table,
                            "DROP TABLE " + table + " CASCADE"}) {
      ExpectRefused(connection, sql);
    }
  }
  for (const auto& column :
       AskAll(database.Name(),
              "SELECT c.relname || ' SET ' || a.attname || ' = NULL' FROM pg_class c JOIN pg_attribute a ON "
              "a.attrelid = c.oid WHERE c.relnamespace = 'ferrowind'::regnamespace AND c.relkind = 'r' AND "
              "a.attnum > 0 AND a.attidentity = ''")) {
    ExpectRefused(connection, "UPDATE ferrowind." + column);
  }
  EXPECT_TRUE(database.IsSound());
}

TEST(PostgresPrivileges, AnOperatorIsRefusedEveryViewButTheDictionaryAndEverySequenceAndIndex) {
  PostgresDatabase database;
  postgres::ServerConnection connection(database.ConnectionString());
  const auto views = Relations(database.Name(), "v,m");
  ASSERT_THAT(views, IsSupersetOf({"calendarlist", "calendarday", "dictionaryccy"}));
  for (const auto& view : views) {
    if (view != "dictionaryccy") ExpectRefused(connection, "SELECT * FROM ferrowind." + view);
    ExpectRefused(connection, "CREATE OR REPLACE VIEW ferrowind." + view + " AS SELECT 1");
    ExpectRefused(connection, "ALTER VIEW ferrowind." + view + " SET (security_barrier)");
  }
  const auto sequences = Relations(database.Name(), "S");
  ASSERT_THAT(sequences, Not(IsEmpty())) << "the history counts its entries";
  for (const auto& name : sequences) {
    const std::string sequence = "ferrowind." + name;
    for (const auto& sql : {"SELECT nextval('" + sequence + "')", "SELECT setval('" + sequence + "', 1)",
                            "SELECT * FROM " + sequence, "ALTER SEQUENCE " + sequence + " RESTART",
                            "DROP SEQUENCE " + sequence}) {
      ExpectRefused(connection, sql);
    }
  }
  for (const auto& index : Relations(database.Name(), "i")) {
    ExpectRefused(connection, "DROP INDEX ferrowind." + index);
    ExpectRefused(connection, "ALTER INDEX ferrowind." + index + " RENAME TO mine");
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
        "SELECT pg_read_binary_file('postgresql.conf')",
        "SELECT * FROM pg_ls_dir('.')",
        "SELECT lo_create(0)",
        "SELECT lo_creat(-1)",
        "SELECT lo_from_bytea(0, 'fill the disk')",
        "SELECT * FROM pg_shadow",
        "SELECT * FROM pg_statistic",
        "SELECT * FROM pg_hba_file_rules",
        "ALTER SYSTEM SET work_mem = '1GB'",
        "ALTER ROLE ferrowind_owner LOGIN",
        "ALTER ROLE ferrowind_operator SET search_path = mine",
        "ALTER ROLE operator_login SUPERUSER",
        "GRANT ferrowind_operator TO ferrowind_reader",
        "REASSIGN OWNED BY ferrowind_owner TO operator_login",
        "DROP OWNED BY ferrowind_owner",
        "ALTER DEFAULT PRIVILEGES FOR ROLE ferrowind_owner GRANT ALL ON TABLES TO operator_login",
        "SET session_replication_role = replica",
        "CREATE DATABASE mine",
        "CREATE TYPE ferrowind.mine AS (a integer)",
        "CREATE DOMAIN public.mine AS integer",
        "CREATE VIEW public.mine AS SELECT 1",
        "CREATE OPERATOR public.= (LEFTARG = integer, RIGHTARG = integer, FUNCTION = int4eq)",
        "CREATE FUNCTION pg_catalog.mine() RETURNS integer LANGUAGE sql AS 'SELECT 1'",
        "CREATE COLLATION public.mine FROM \"C\"",
        "CREATE SEQUENCE public.mine",
        "CREATE EVENT TRIGGER mine ON ddl_command_end EXECUTE FUNCTION suppress_redundant_updates_trigger()",
        "CREATE FOREIGN DATA WRAPPER mine",
        "CREATE PUBLICATION mine",
        "CREATE LANGUAGE mine HANDLER plpgsql_call_handler",
        "CREATE TABLESPACE mine LOCATION '/tmp'",
        "LOAD 'auto_explain'",
        "CHECKPOINT",
        "ALTER PROCEDURE ferrowind.CldAllInfo SECURITY INVOKER",
        "ALTER PROCEDURE ferrowind.CldAllInfo RESET ALL",
        "ALTER PROCEDURE ferrowind.CldAllInfo OWNER TO operator_login",
        "DROP PROCEDURE ferrowind.CldAllInfo",
        "CREATE OR REPLACE PROCEDURE ferrowind.CldAllInfo(INOUT r integer) LANGUAGE sql AS 'SELECT 1'"}) {
    ExpectRefused(connection, sql);
  }
  // The server only warns that nothing is given.
  connection.RunScript("GRANT EXECUTE ON PROCEDURE ferrowind.CldAllInfo TO PUBLIC");
  EXPECT_TRUE(database.IsSound());
}

TEST(PostgresPrivileges, AProcedureThatSomebodyAddedIsRefusedInWords) {
  PostgresDatabase database;
  database.Execute(
      "CREATE PROCEDURE ferrowind.Added(INOUT r integer) LANGUAGE plpgsql AS $$ BEGIN r := 0; END $$;"
      "REVOKE ALL ON PROCEDURE ferrowind.Added FROM PUBLIC");
  postgres::ServerConnection connection(database.ConnectionString());
  ExpectRefused(connection, "CALL ferrowind.CldIUCurrency(998, 'ZZZ', 0::smallint, 'Zed')");
  ExpectRefused(connection, "CALL ferrowind.CldIUConvention(978, 840, 1)");
  ExpectRefused(connection, "SELECT ferrowind.PutBack(1)");
  ExpectRefused(connection, "SELECT ferrowind.BeginEntry('CldIUMain', NULL, NULL, '{}')");
  ExpectRefused(connection, "SELECT ferrowind.NameKey('a')");
  ExpectRefused(connection, "CALL ferrowind.Added(0)");
  EXPECT_THAT(FailureTextOf([&] { ProcedureCaller(database).Call("Added"); }),
              HasSubstr("does not permit this"));
}

TEST(PostgresPrivileges, TheListOfCurrenciesIsForAdministratorsAndSoIsUndoingAChangeOfIt) {
  PostgresDatabase database;
  database.Execute("CREATE ROLE administrator_login LOGIN PASSWORD 'administer' IN ROLE ferrowind_owner");
  {
    postgres::ServerConnection administrator(
        postgres_server::Uri("administrator_login", "administer", database.Name()));
    administrator.RunScript("CALL ferrowind.CldIUCurrency(998, 'ZZZ', 0::smallint, 'Zed')");
    postgres::ServerConnection connection(database.ConnectionString());
    ExpectRefused(connection, "CALL ferrowind.CldUndo(1)");
    connection.RunScript("CALL ferrowind.CldIUMain(998, 2026)");
    connection.RunScript("CALL ferrowind.CldUndo(2)");
    EXPECT_EQ(postgres_server::Ask(database.Name(), "SELECT count(*) FROM ferrowind.CldCalendar"), "0");
    administrator.RunScript("CALL ferrowind.CldUndo(1)");
    EXPECT_EQ(
        postgres_server::Ask(database.Name(), "SELECT count(*) FROM ferrowind.DicCcy WHERE CcyID = 998"),
        "0");
  }
  EXPECT_EQ(postgres_server::Ask(database.Name(),
                                 "SELECT UserName FROM ferrowind.CldHistory ORDER BY EntryID DESC"),
            "administrator_login");
  database.Execute("DROP ROLE administrator_login");
}

TEST(PostgresPrivileges, AnOperatorsSettingsPutNothingIntoAnotherEntry) {
  PostgresDatabase database;
  postgres::ServerConnection connection(database.ConnectionString());
  connection.RunScript(
      "CALL ferrowind.CldIUMain(978, 2026); SET ferrowind.entry = '1';"
      "CALL ferrowind.CldIUMain(978, 2026, 1, 1, 2, '2026-01-02', 'mine')");
  EXPECT_EQ(postgres_server::Ask(
                database.Name(),
                "SELECT string_agg(concat_ws(' ', EntryID, TableName, Day1), ', ' ORDER BY EntryID)"
                " FROM ferrowind.CldHistoryRow"),
            "1 CldCalendar, 2 CldDay 2");
}

TEST(PostgresPrivileges, NoObjectOrSettingOfAnOperatorReachesIntoAProcedure) {
  PostgresDatabase database;
  ASSERT_EQ(ProcedureCaller(database).Return("CldIUMain", {{"ID1", 978}, {"Year1", 2026}}), 0);
  // As on a server whose administrator lets operators make objects of their own.
  database.Execute("CREATE SCHEMA mine AUTHORIZATION operator_login; GRANT TEMPORARY ON DATABASE " +
                   database.Name() + " TO operator_login");
  postgres::ServerConnection connection(database.ConnectionString());
  connection.RunScript(R"(
CREATE TABLE mine.stolen (who text);
CREATE FUNCTION mine.take(integer, integer) RETURNS boolean LANGUAGE plpgsql AS
  'BEGIN INSERT INTO mine.stolen VALUES (current_user); RETURN true; END';
CREATE OPERATOR mine.= (LEFTARG = integer, RIGHTARG = integer, FUNCTION = mine.take);
CREATE FUNCTION mine.NameKey(text) RETURNS bytea LANGUAGE plpgsql AS
  'BEGIN INSERT INTO mine.stolen VALUES (current_user); RETURN NULL; END';
CREATE FUNCTION mine.EntryAtWork() RETURNS bigint LANGUAGE plpgsql AS
  'BEGIN INSERT INTO mine.stolen VALUES (current_user); RETURN NULL; END';
CREATE FUNCTION mine.CalendarFingerprint(integer, integer) RETURNS text LANGUAGE plpgsql AS
  'BEGIN INSERT INTO mine.stolen VALUES (current_user); RETURN NULL; END';
CREATE FUNCTION mine.btrim(text, text) RETURNS text LANGUAGE plpgsql AS
  'BEGIN INSERT INTO mine.stolen VALUES (current_user); RETURN NULL; END';
CREATE TABLE mine.CldHistory (LIKE ferrowind.DictionaryCcy);
CREATE TEMPORARY TABLE CldHoliday (ID2 integer);
CREATE TEMPORARY TABLE CldSetting (FirstDay integer);
INSERT INTO CldSetting VALUES (7);
SET search_path = mine, pg_temp, pg_catalog;
SET datestyle = 'SQL, DMY';
SET transform_null_equals = on;
SET standard_conforming_strings = off;
SET default_transaction_isolation = 'serializable';
CALL ferrowind.CldIUMain(978, 2026, 1, 1, 2, '02/01/2026', 'mine');
CALL ferrowind.CldIUCelebrate('Mine', NULL, 3, NULL, '03/02/2026', '2', '3');
CALL ferrowind.CldApplyPlan(840, 2026, '', '[{"Name1": "Mine", "TID1": 3, "Dates": ["2026-02-03"]}]');
CALL ferrowind.CldIUBook(840, '', 'P', 'D', '[{"Name1": "Mine", "TID1": 3, "Expression": "02-03"}]');
CALL ferrowind.CldUndo(2);
)");
  connection.RunScript("BEGIN; CALL ferrowind.CldGetFingerprint(840, 2026); CALL ferrowind.CldGetBook(840)");
  EXPECT_EQ(PQgetlength(connection.Query("FETCH ALL FROM \"Fingerprints\"").get(), 0, 0), 64);
  EXPECT_EQ(PQgetlength(connection.Query("FETCH ALL FROM \"Books\"").get(), 0, 3), 64);
  EXPECT_EQ(PQntuples(connection.Query("FETCH ALL FROM \"Rules\"").get()), 1);
  connection.RunScript("ROLLBACK; BEGIN; CALL ferrowind.CldGetAsOf(840, 2026, '9999-01-01T00:00:00Z')");
  EXPECT_EQ(PQntuples(connection.Query("FETCH ALL FROM \"Days\"").get()), 365);
  connection.RunScript("ROLLBACK");
  connection.RunScript("BEGIN; CALL ferrowind.CldGetMain(978, 2026); CALL ferrowind.CldAllInfo()");
  EXPECT_EQ(PQntuples(connection.Query("FETCH ALL FROM \"Days\"").get()), 365);
  EXPECT_EQ(PQgetvalue(connection.Query("FETCH ALL FROM \"Setting\"").get(), 0, 0)[3], 1);
  // A cursor that the owner's rights opened gives no right on what it reads.
  ExpectRefused(connection, "UPDATE ferrowind.CldHoliday SET Comment = 'x' WHERE CURRENT OF \"Rules\"");
  connection.RunScript("ROLLBACK");
  EXPECT_EQ(postgres_server::Ask(database.Name(),
                                 "SELECT (SELECT count(*) FROM mine.stolen) + (SELECT count(*) FROM "
                                 "mine.CldHistory)"),
            "0");
  EXPECT_EQ(postgres_server::Ask(database.Name(),
                                 "SELECT string_agg(concat_ws(' ', UserName, ProcedureName, coalesce("
                                 "Parameters ->> 'ODate', Parameters ->> 'D1')), ', ' ORDER BY EntryID)"
                                 " FROM ferrowind.CldHistory WHERE EntryID > 1"),
            "operator_login CldIUMain 2026-01-02, operator_login CldIUCelebrate 2026-02-03, operator_login "
            "CldApplyPlan, operator_login CldIUBook, operator_login CldUndo");
}

TEST(PostgresPrivileges, AnOperatorCannotActInTheNameOfAnother) {
  PostgresDatabase database;
  database.Execute("CREATE ROLE another_login LOGIN IN ROLE ferrowind_operator");
  postgres::ServerConnection connection(database.ConnectionString());
  ExpectRefused(connection, "SET ROLE another_login");
  ExpectRefused(connection, "SET SESSION AUTHORIZATION another_login");
  connection.RunScript(
      "SET application_name = 'another_login'; SET ROLE ferrowind_operator;"
      "CALL ferrowind.CldIUMain(978, 2026)");
  EXPECT_EQ(postgres_server::Ask(database.Name(), "SELECT UserName FROM ferrowind.CldHistory"),
            "operator_login");
  database.Execute("DROP ROLE another_login");
}

TEST(PostgresPrivileges, AReaderReadsTheViewsAndCallsWhatDownstreamSystemsNeed) {
  PostgresDatabase database;
  ASSERT_EQ(ProcedureCaller(database).Return("CldIUMain", {{"ID1", 978}, {"Year1", 2026}}), 0);
  postgres::ServerConnection connection(postgres_server::SuperuserUri(database.Name()));
  connection.RunScript("SET ROLE ferrowind_reader");
  const auto days = connection.Query(
      "SELECT Ccy, Year, Date, IsWorkingDay, Type, Rule, Comment FROM ferrowind.CalendarDay ORDER BY Date");
  EXPECT_EQ(PQntuples(days.get()), 365);
  EXPECT_EQ(PQntuples(connection.Query("SELECT Ccy, Year FROM ferrowind.CalendarList").get()), 1);
  connection.RunScript("CALL ferrowind.CldGetClosedDays(2026, 2026); CALL ferrowind.CldGetConventions()");
  for (const std::string sql :
       {"CALL ferrowind.CldAllInfo()", "CALL ferrowind.CldIUConvention(978, NULL, NULL, 1)",
        "SELECT * FROM ferrowind.CldDay", "SELECT * FROM ferrowind.DictionaryCcy"}) {
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
