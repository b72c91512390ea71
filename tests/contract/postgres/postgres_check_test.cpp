// Finding what is wrong with a calendar database on a server: whatever an empty one would not have is named,
// and nothing else is.

#include <chrono>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/server_connection.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/postgres/postgres_database.h"
#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::IsSupersetOf;
using ::testing::UnorderedElementsAre;

/// What a superuser did, how it is undone, and what the check says meanwhile. %DB% is the database's name.
struct Change {
  std::string sql;
  std::string undo;
  std::string problem;
};

class PostgresCheckOfChanges : public ::testing::Test {
 protected:
  void SetUp() override {
    database_.Execute("CREATE ROLE stranger LOGIN");
    ProcedureCaller caller(database_);
    for (const int year : {2025, 2026}) {
      ASSERT_EQ(caller.Return("CldIUMain", {{"ID1", 978}, {"Year1", year}}), 0);
    }
    ASSERT_THAT(Problems(), IsEmpty());
  }
  void TearDown() override { database_.Execute("DROP OWNED BY stranger; DROP ROLE stranger"); }

  [[nodiscard]] std::string Uri() const { return postgres_server::SuperuserUri(database_.Name()); }
  [[nodiscard]] std::vector<std::string> Problems() const { return postgres::CheckDatabase(Uri()); }

  void ExpectEveryChangeToBeNamed(const std::vector<Change>& changes) {
    postgres::ServerConnection superuser(postgres_server::SuperuserUri(database_.Name()));
    superuser.RunScript("SET allow_system_table_mods = on");
    for (const auto& [sql, undo, problem] : changes) {
      superuser.RunScript(ForThisDatabase(sql));
      EXPECT_THAT(Problems(), Contains(HasSubstr(problem))) << sql;
      superuser.RunScript(ForThisDatabase(undo));
    }
    EXPECT_THAT(Problems(), IsEmpty());
  }

  /// Of changes that have nothing to do with each other: they are made together.
  void ExpectAllToBeNamed(const std::vector<Change>& changes) {
    postgres::ServerConnection superuser(Uri());
    superuser.RunScript("SET allow_system_table_mods = on");
    for (const auto& change : changes) superuser.RunScript(ForThisDatabase(change.sql));
    const auto problems = Problems();
    for (const auto& change : changes) {
      EXPECT_THAT(problems, Contains(HasSubstr(change.problem))) << change.sql;
      superuser.RunScript(ForThisDatabase(change.undo));
    }
    EXPECT_THAT(Problems(), IsEmpty());
  }

 private:
  [[nodiscard]] std::string ForThisDatabase(std::string sql) const {
    const std::string place = "%DB%";
    for (auto at = sql.find(place); at != std::string::npos; at = sql.find(place)) {
      sql.replace(at, place.size(), database_.Name());
    }
    return sql;
  }

  PostgresDatabase database_;
};

TEST_F(PostgresCheckOfChanges, OfATableAreNamed) {
  ExpectEveryChangeToBeNamed({
      {"CREATE RULE swallow AS ON INSERT TO ferrowind.CldHistory DO INSTEAD NOTHING",
       "DROP RULE swallow ON ferrowind.CldHistory",
       "The rule cldhistory.swallow does not belong to the schema"},
      {"CREATE TABLE public.child () INHERITS (ferrowind.CldDay)", "DROP TABLE public.child",
       "The child public.child of the table cldday does not belong to the schema"},
      {"CREATE TABLE ferrowind.Stray (a integer CHECK (a > 1))", "DROP TABLE ferrowind.Stray",
       "The table stray does not belong to the schema"},
      {"ALTER TABLE ferrowind.CldDay ENABLE ROW LEVEL SECURITY",
       "ALTER TABLE ferrowind.CldDay DISABLE ROW LEVEL SECURITY",
       "The table cldday is not this program's: row security is on instead of none"},
      {"CREATE POLICY hide ON ferrowind.CldDay USING (false)", "DROP POLICY hide ON ferrowind.CldDay",
       "The policy cldday.hide does not belong to the schema"},
      {"ALTER TABLE ferrowind.CldDay REPLICA IDENTITY NOTHING",
       "ALTER TABLE ferrowind.CldDay REPLICA IDENTITY DEFAULT",
       "replica identity is nothing instead of primary key"},
      {"ALTER TABLE ferrowind.CldSetting SET UNLOGGED", "ALTER TABLE ferrowind.CldSetting SET LOGGED",
       "The table cldsetting is not this program's: persistence is unlogged instead of permanent"},
      {"ALTER TABLE ferrowind.CldDay SET (fillfactor = 50)",
       "ALTER TABLE ferrowind.CldDay RESET (fillfactor)", "options is fillfactor=50 instead of none"},
      {"ALTER TABLE ferrowind.CldDay OWNER TO postgres",
       "ALTER TABLE ferrowind.CldDay OWNER TO ferrowind_owner",
       "The table cldday is not this program's: owner is postgres instead of ferrowind_owner"},
      {"ALTER TABLE ferrowind.CldDay DROP CONSTRAINT cldday_day1_check",
       "ALTER TABLE ferrowind.CldDay ADD CHECK (Day1 BETWEEN 1 AND 366)",
       "The constraint cldday.cldday_day1_check is missing"},
      {"ALTER TABLE ferrowind.CldDay DROP CONSTRAINT cldday_day1_check,"
       " ADD CONSTRAINT cldday_day1_check CHECK (Day1 BETWEEN 1 AND 366) NOT VALID",
       "ALTER TABLE ferrowind.CldDay VALIDATE CONSTRAINT cldday_day1_check",
       "The constraint cldday.cldday_day1_check is not this program's: state is not valid instead of none"},
      {"ALTER TABLE ferrowind.CldDay ALTER CONSTRAINT cldday_id1_year1_fkey DEFERRABLE INITIALLY DEFERRED",
       "ALTER TABLE ferrowind.CldDay ALTER CONSTRAINT cldday_id1_year1_fkey NOT DEFERRABLE",
       "The constraint cldday.cldday_id1_year1_fkey is not this program's: definition is"},
      {"ALTER TABLE ferrowind.CldDay DISABLE TRIGGER ALL", "ALTER TABLE ferrowind.CldDay ENABLE TRIGGER ALL",
       "The constraint cldday.cldday_id1_year1_fkey is not this program's: state of its triggers is "
       "disabled"},
      {"ALTER TABLE ferrowind.CldDay DISABLE TRIGGER KeepOnUpdate",
       "ALTER TABLE ferrowind.CldDay ENABLE TRIGGER KeepOnUpdate",
       "The trigger cldday.keeponupdate is not this program's: state is disabled instead of enabled"},
      {"ALTER TABLE ferrowind.CldDay ENABLE REPLICA TRIGGER KeepOnUpdate",
       "ALTER TABLE ferrowind.CldDay ENABLE TRIGGER KeepOnUpdate",
       "state is for replicas only instead of enabled"},
      {"CREATE TRIGGER swallow BEFORE UPDATE ON ferrowind.CldDay FOR EACH ROW"
       " EXECUTE FUNCTION suppress_redundant_updates_trigger()",
       "DROP TRIGGER swallow ON ferrowind.CldDay",
       "The trigger cldday.swallow does not belong to the schema"},
      {"DROP INDEX ferrowind.CldDayByDate",
       "CREATE INDEX CldDayByDate ON ferrowind.CldDay (ODate);"
       "ALTER INDEX ferrowind.CldDayByDate OWNER TO ferrowind_owner",
       "The index clddaybydate is missing"},
      {"CREATE UNIQUE INDEX once ON ferrowind.CldHistory (ProcedureName, Moment)",
       "DROP INDEX ferrowind.once", "The index once does not belong to the schema"},
      {"UPDATE pg_index SET indisvalid = false WHERE indexrelid = 'ferrowind.CldDayByDate'::regclass",
       "UPDATE pg_index SET indisvalid = true WHERE indexrelid = 'ferrowind.CldDayByDate'::regclass",
       "The index clddaybydate is not this program's: state is not valid instead of none"},
      {"CREATE STATISTICS ferrowind.counts ON ID1, Year1 FROM ferrowind.CldDay",
       "DROP STATISTICS ferrowind.counts", "ferrowind.counts does not belong to the schema"},
  });
}

TEST_F(PostgresCheckOfChanges, OfAColumnViewOrSequenceAreNamed) {
  ExpectEveryChangeToBeNamed({
      {"GRANT SELECT (Comment) ON ferrowind.CldDay TO ferrowind_reader",
       "REVOKE SELECT (Comment) ON ferrowind.CldDay FROM ferrowind_reader",
       "The column cldday.comment is not this program's: right of ferrowind_reader is SELECT instead of "
       "none"},
      {"ALTER TABLE ferrowind.CldHistory ALTER UserName SET DEFAULT 'anna'",
       "ALTER TABLE ferrowind.CldHistory ALTER UserName SET DEFAULT session_user",
       "The column cldhistory.username is not this program's: default is 'anna'::text instead of "
       "SESSION_USER"},
      {"ALTER TABLE ferrowind.CldHistory ALTER EntryID SET GENERATED ALWAYS",
       "ALTER TABLE ferrowind.CldHistory ALTER EntryID SET GENERATED BY DEFAULT",
       "numbering is always instead of by default"},
      {"ALTER TABLE ferrowind.CldDay ALTER ODate DROP NOT NULL",
       "ALTER TABLE ferrowind.CldDay ALTER ODate SET NOT NULL",
       "The column cldday.odate is not this program's: emptiness is none instead of forbidden"},
      {"ALTER TABLE ferrowind.CldHistory ALTER ReturnValue TYPE bigint",
       "ALTER TABLE ferrowind.CldHistory ALTER ReturnValue TYPE integer",
       "type is bigint instead of integer"},
      {"ALTER TABLE ferrowind.CldBook ALTER Publisher TYPE text COLLATE \"C\"",
       "ALTER TABLE ferrowind.CldBook ALTER Publisher TYPE text COLLATE \"default\"",
       "collation is C instead of default"},
      {"ALTER TABLE ferrowind.CldDay RENAME Comment TO Remark",
       "ALTER TABLE ferrowind.CldDay RENAME Remark TO Comment", "The column cldday.comment is missing"},
      {"ALTER VIEW ferrowind.CalendarList SET (security_invoker = true)",
       "ALTER VIEW ferrowind.CalendarList RESET (security_invoker)",
       "options is security_invoker=true instead of none"},
      {"CREATE OR REPLACE VIEW ferrowind.DictionaryCcy AS SELECT CcyID, Ccy, CcyType, Name FROM "
       "ferrowind.DicCcy"
       " WHERE CcyType = 0",
       "CREATE OR REPLACE VIEW ferrowind.DictionaryCcy AS SELECT CcyID, Ccy, CcyType, Name FROM "
       "ferrowind.DicCcy",
       "The view dictionaryccy is not this program's: definition is"},
      {"ALTER SEQUENCE ferrowind.cldhistory_entryid_seq INCREMENT 2",
       "ALTER SEQUENCE ferrowind.cldhistory_entryid_seq INCREMENT 1",
       "The sequence cldhistory_entryid_seq is not this program's: numbers is bigint from 1 by 2"},
      {"SELECT setval('ferrowind.cldhistory_entryid_seq', 1)",
       "SELECT setval('ferrowind.cldhistory_entryid_seq', 2)",
       "The history gives the number 2 next, but its last entry is number 2"},
  });
}

TEST_F(PostgresCheckOfChanges, OfARoutineOrTypeAreNamed) {
  ExpectEveryChangeToBeNamed({
      {"UPDATE pg_proc SET prosrc = 'SELECT 1' || prosrc WHERE proname = 'entryatwork'",
       "UPDATE pg_proc SET prosrc = substr(prosrc, 9) WHERE proname = 'entryatwork'",
       "The routine entryatwork() is not this program's: text is"},
      {"ALTER FUNCTION ferrowind.KeepOldRows() RESET search_path",
       "ALTER FUNCTION ferrowind.KeepOldRows() SET search_path = ferrowind, pg_temp",
       "The routine keepoldrows() is not this program's: settings is none instead of search_path=ferrowind, "
       "pg_temp"},
      {"ALTER PROCEDURE ferrowind.CldIUMain SET session_replication_role = replica",
       "ALTER PROCEDURE ferrowind.CldIUMain RESET session_replication_role",
       "session_replication_role=replica"},
      {"ALTER PROCEDURE ferrowind.CldIUMain SECURITY INVOKER",
       "ALTER PROCEDURE ferrowind.CldIUMain SECURITY DEFINER",
       "rights that it acts with is its caller's instead of its owner's"},
      {"ALTER PROCEDURE ferrowind.CldIUMain OWNER TO postgres",
       "ALTER PROCEDURE ferrowind.CldIUMain OWNER TO ferrowind_owner",
       "owner is postgres instead of ferrowind_owner"},
      {"ALTER FUNCTION ferrowind.EntryAtWork() IMMUTABLE", "ALTER FUNCTION ferrowind.EntryAtWork() STABLE",
       "volatility is immutable instead of stable"},
      {"ALTER FUNCTION ferrowind.EntryAtWork() STRICT",
       "ALTER FUNCTION ferrowind.EntryAtWork() CALLED ON NULL INPUT",
       "answer to an empty argument is empty instead of none"},
      {"ALTER FUNCTION ferrowind.NameKey(text) LEAKPROOF",
       "ALTER FUNCTION ferrowind.NameKey(text) NOT LEAKPROOF", "secrecy is leakproof instead of none"},
      {"GRANT EXECUTE ON PROCEDURE ferrowind.CldIUCurrency TO ferrowind_operator",
       "REVOKE EXECUTE ON PROCEDURE ferrowind.CldIUCurrency FROM ferrowind_operator",
       "right of ferrowind_operator is EXECUTE instead of none"},
      {"REVOKE EXECUTE ON PROCEDURE ferrowind.CldIUMain FROM ferrowind_operator",
       "GRANT EXECUTE ON PROCEDURE ferrowind.CldIUMain TO ferrowind_operator",
       "right of ferrowind_operator is none instead of EXECUTE"},
      {"GRANT EXECUTE ON PROCEDURE ferrowind.CldIUMain TO ferrowind_operator WITH GRANT OPTION",
       "REVOKE GRANT OPTION FOR EXECUTE ON PROCEDURE ferrowind.CldIUMain FROM ferrowind_operator",
       "right of ferrowind_operator is EXECUTE and to pass it on instead of EXECUTE"},
      {"CREATE PROCEDURE ferrowind.CldGetMain(INOUT \"RETURN_VALUE\" integer) LANGUAGE sql AS 'SELECT 0'",
       "DROP PROCEDURE ferrowind.CldGetMain(integer)",
       "The routine cldgetmain(INOUT \"RETURN_VALUE\" integer) does not belong to the schema"},
      {"CREATE DOMAIN ferrowind.Small AS integer CHECK (VALUE < 3)", "DROP DOMAIN ferrowind.Small",
       "The type small does not belong to the schema"},
      {"ALTER TYPE ferrowind.PlannedDay ALTER ATTRIBUTE Day1 TYPE bigint",
       "ALTER TYPE ferrowind.PlannedDay ALTER ATTRIBUTE Day1 TYPE integer",
       "The column plannedday.day1 is not this program's: type is bigint instead of integer"},
      {"ALTER TYPE ferrowind.PlannedDay OWNER TO postgres",
       "ALTER TYPE ferrowind.PlannedDay OWNER TO ferrowind_owner",
       "The type plannedday is not this program's: owner is postgres"},
      {"CREATE OPERATOR ferrowind.= (LEFTARG = integer, RIGHTARG = bigint, FUNCTION = int48ne)",
       "DROP OPERATOR ferrowind.= (integer, bigint)",
       "The operator ferrowind.=(integer,bigint) does not belong to the schema"},
      {"CREATE COLLATION ferrowind.other FROM \"C\"", "DROP COLLATION ferrowind.other",
       "ferrowind.other does not belong"},
      {"ALTER SCHEMA ferrowind OWNER TO postgres", "ALTER SCHEMA ferrowind OWNER TO ferrowind_owner",
       "The schema ferrowind is not this program's: owner is postgres instead of ferrowind_owner"},
      {"GRANT CREATE ON SCHEMA ferrowind TO ferrowind_operator",
       "REVOKE CREATE ON SCHEMA ferrowind FROM ferrowind_operator",
       "right of ferrowind_operator is CREATE, USAGE instead of USAGE"},
  });
}

TEST_F(PostgresCheckOfChanges, OfWhatSurroundsTheSchemaAreNamed) {
  ExpectEveryChangeToBeNamed({
      {"CREATE FUNCTION public.react() RETURNS event_trigger LANGUAGE plpgsql AS 'BEGIN END';"
       "CREATE EVENT TRIGGER react ON ddl_command_end EXECUTE FUNCTION public.react()",
       "DROP EVENT TRIGGER react; DROP FUNCTION public.react()", "The event trigger react does not belong"},
      {"CREATE CAST (text AS integer) WITH INOUT AS IMPLICIT", "DROP CAST (text AS integer)",
       "The cast (pg_catalog.text AS integer) does not belong to a calendar database"},
      {"CREATE FUNCTION pg_catalog.btrim(text, \"char\") RETURNS text LANGUAGE sql AS 'SELECT $1'",
       "DROP FUNCTION pg_catalog.btrim(text, \"char\")",
       "The function pg_catalog.btrim(pg_catalog.text,pg_catalog.\"char\") does not belong"},
      {"CREATE OPERATOR pg_catalog.=== (LEFTARG = integer, RIGHTARG = integer, FUNCTION = int4ne)",
       "DROP OPERATOR pg_catalog.=== (integer, integer)",
       "The operator pg_catalog.===(integer,integer) does not belong"},
      {"CREATE OR REPLACE FUNCTION pg_catalog.make_date(year integer, month integer, day integer) RETURNS "
       "date"
       " LANGUAGE plpgsql IMMUTABLE PARALLEL SAFE STRICT AS 'BEGIN RETURN current_date; END'",
       "CREATE OR REPLACE FUNCTION pg_catalog.make_date(year integer, month integer, day integer) RETURNS "
       "date"
       " LANGUAGE internal IMMUTABLE PARALLEL SAFE STRICT AS 'make_date'",
       "The server's own function make_date(integer,integer,integer) was replaced"},
      {"CREATE TRUSTED LANGUAGE other HANDLER plpgsql_call_handler", "DROP LANGUAGE other",
       "The language other does not belong"},
      {"CREATE EXTENSION citext SCHEMA public", "DROP EXTENSION citext",
       "The extension citext does not belong"},
      {"CREATE VIEW public.peek AS SELECT * FROM ferrowind.CldHistory", "DROP VIEW public.peek",
       "The view public.peek uses ferrowind.cldhistory of the schema"},
      // What a view of theirs may use does not hide what it may not.
      {"CREATE VIEW public.peek AS SELECT ID1 FROM ferrowind.CldDay WHERE ferrowind.IsBusinessDay('EUR', "
       "ODate)",
       "DROP VIEW public.peek", "The view public.peek uses ferrowind.cldday of the schema"},
      {"CREATE VIEW public.peek AS SELECT ferrowind.LastDayOfMonth('2026-05-01')", "DROP VIEW public.peek",
       "The view public.peek uses ferrowind.lastdayofmonth(pg_catalog.date) of the schema; drop it, or let "
       "it use only what readers may"},
      {"CREATE CAST (text AS date) WITH INOUT AS ASSIGNMENT", "DROP CAST (text AS date)",
       "The cast (pg_catalog.text AS pg_catalog.date) does not belong to a calendar database"},
      {"CREATE TABLE public.follower (ID1 integer REFERENCES ferrowind.DicCcy)", "DROP TABLE public.follower",
       "The table constraint follower_id1_fkey on public.follower uses ferrowind.dicccy of the schema"},
      {"CREATE FUNCTION public.first(ferrowind.CldDay) RETURNS integer LANGUAGE sql AS 'SELECT 1'",
       "DROP FUNCTION public.first",
       "The function public.first(ferrowind.cldday) uses ferrowind.cldday of the schema"},
      {"CREATE FUNCTION public.backdoor(text) RETURNS void LANGUAGE plpgsql SECURITY DEFINER AS 'BEGIN "
       "EXECUTE $1; END';"
       "ALTER FUNCTION public.backdoor OWNER TO ferrowind_owner",
       "DROP FUNCTION public.backdoor",
       "The function public.backdoor(pg_catalog.text) belongs to ferrowind_owner outside its schema"},
      {"ALTER DEFAULT PRIVILEGES FOR ROLE ferrowind_owner GRANT SELECT ON TABLES TO ferrowind_reader",
       "ALTER DEFAULT PRIVILEGES FOR ROLE ferrowind_owner REVOKE SELECT ON TABLES FROM ferrowind_reader",
       "What ferrowind_owner creates gets other rights than the server gives: default privileges for tables"},
      {"ALTER DEFAULT PRIVILEGES FOR ROLE ferrowind_owner IN SCHEMA ferrowind GRANT EXECUTE ON FUNCTIONS TO "
       "stranger",
       "ALTER DEFAULT PRIVILEGES FOR ROLE ferrowind_owner IN SCHEMA ferrowind REVOKE EXECUTE ON FUNCTIONS "
       "FROM stranger",
       "default privileges for functions"},
      {"CREATE PUBLICATION copies FOR TABLE ferrowind.CldDay", "DROP PUBLICATION copies",
       "The publication copies sends"},
      {"CREATE SUBSCRIPTION copies CONNECTION 'host=nowhere' PUBLICATION p WITH (connect = false, slot_name "
       "= NONE)",
       "DROP SUBSCRIPTION copies", "The subscription copies writes rows that come from elsewhere"},
      {"GRANT EXECUTE ON FUNCTION lo_create(oid) TO PUBLIC",
       "REVOKE EXECUTE ON FUNCTION lo_create(oid) FROM PUBLIC",
       "Everybody may store large objects by lo_create(oid)"},
      {"GRANT EXECUTE ON FUNCTION lo_create(oid) TO ferrowind_operator",
       "REVOKE EXECUTE ON FUNCTION lo_create(oid) FROM ferrowind_operator",
       "ferrowind_operator has a right on the function pg_catalog.lo_create"},
      {"GRANT EXECUTE ON FUNCTION pg_read_file(text) TO PUBLIC",
       "REVOKE EXECUTE ON FUNCTION pg_read_file(text) FROM PUBLIC",
       "Everybody has the right EXECUTE on the function pg_read_file(text)"},
      {"GRANT SELECT ON pg_authid TO PUBLIC", "REVOKE SELECT ON pg_authid FROM PUBLIC",
       "Everybody has the right SELECT on the relation pg_authid"},
      {"GRANT CREATE ON SCHEMA public TO PUBLIC", "REVOKE CREATE ON SCHEMA public FROM PUBLIC",
       "Everybody has the right CREATE on the schema public"},
  });
}

TEST_F(PostgresCheckOfChanges, OfALoginsOwnRightsAreNamed) {
  const std::string own = "operator_login is an operator or a reader and has the right ";
  ExpectAllToBeNamed({
      {"GRANT EXECUTE ON FUNCTION pg_read_file(text) TO operator_login",
       "REVOKE EXECUTE ON FUNCTION pg_read_file(text) FROM operator_login",
       own + "EXECUTE on FUNCTION pg_read_file(text); take it: REVOKE EXECUTE ON FUNCTION pg_read_file(text) "
             "FROM operator_login"},
      {"GRANT EXECUTE ON FUNCTION lo_create(oid) TO operator_login",
       "REVOKE EXECUTE ON FUNCTION lo_create(oid) FROM operator_login",
       own + "EXECUTE on FUNCTION lo_create(oid)"},
      {"GRANT SELECT ON pg_authid TO operator_login", "REVOKE SELECT ON pg_authid FROM operator_login",
       own + "SELECT on pg_authid"},
      {"GRANT SELECT (rolpassword) ON pg_authid TO operator_login",
       "REVOKE SELECT (rolpassword) ON pg_authid FROM operator_login",
       own + "SELECT (rolpassword) on pg_authid"},
      {"GRANT CREATE ON SCHEMA public TO operator_login",
       "REVOKE CREATE ON SCHEMA public FROM operator_login", own + "CREATE on SCHEMA public"},
      {"CREATE ROLE lender; GRANT lender TO operator_login; GRANT EXECUTE ON FUNCTION lo_create(oid) TO "
       "lender",
       "DROP OWNED BY lender; DROP ROLE lender",
       "lender gives its rights to an operator or a reader and has the right EXECUTE on FUNCTION "
       "lo_create(oid)"},
  });
}

TEST_F(PostgresCheckOfChanges, ThatTheServersCatalogueHidesAreNamed) {
  ExpectAllToBeNamed({
      {"UPDATE pg_class SET relhastriggers = false WHERE oid = 'ferrowind.CldDay'::regclass",
       "UPDATE pg_class SET relhastriggers = true WHERE oid = 'ferrowind.CldDay'::regclass",
       "triggers is overlooked instead of none"},
      {"UPDATE pg_class SET relchecks = 0 WHERE oid = 'ferrowind.CldDay'::regclass",
       "UPDATE pg_class SET relchecks = 3 WHERE oid = 'ferrowind.CldDay'::regclass",
       "checks is overlooked instead of none"},
      {"UPDATE pg_class SET relhasindex = false WHERE oid = 'ferrowind.CldDay'::regclass",
       "UPDATE pg_class SET relhasindex = true WHERE oid = 'ferrowind.CldDay'::regclass",
       "indexes is overlooked instead of none"},
      {"UPDATE pg_attribute SET atthasdef = false WHERE attrelid = 'ferrowind.CldHistory'::regclass AND "
       "attname = 'moment'",
       "UPDATE pg_attribute SET atthasdef = true WHERE attrelid = 'ferrowind.CldHistory'::regclass AND "
       "attname = 'moment'",
       "The column cldhistory.moment is not this program's: state of its default is overlooked"},
      {"SELECT setval('ferrowind.cldhistory_entryid_seq', 9223372036854775807)",
       "SELECT setval('ferrowind.cldhistory_entryid_seq', 2)",
       "The history gives the number 9223372036854775808 next, but its last entry is number 2"},
  });
}

TEST_F(PostgresCheckOfChanges, OfTheServersFunctionsAndOfWhatActsForOthersAreNamed) {
  ExpectAllToBeNamed({
      {"CREATE OR REPLACE FUNCTION pg_catalog.btrim(text, text) RETURNS text LANGUAGE sql IMMUTABLE STRICT"
       " PARALLEL SAFE AS 'SELECT $1'",
       "CREATE OR REPLACE FUNCTION pg_catalog.btrim(text, text) RETURNS text LANGUAGE internal IMMUTABLE "
       "STRICT PARALLEL SAFE AS 'btrim'",
       "The server's own function btrim(text,text) was replaced"},
      {"UPDATE pg_proc SET prosrc = 'sha224_bytea' WHERE oid = 'sha256(bytea)'::regprocedure",
       "UPDATE pg_proc SET prosrc = 'sha256_bytea' WHERE oid = 'sha256(bytea)'::regprocedure",
       "The server's own function sha256(bytea) was replaced"},
      {"ALTER FUNCTION convert_to(text, name) SECURITY DEFINER",
       "ALTER FUNCTION convert_to(text, name) SECURITY INVOKER",
       "The server's own function convert_to(text,name) was replaced"},
      {"CREATE FUNCTION public.files(text) RETURNS text LANGUAGE internal AS 'pg_read_file_all'",
       "DROP FUNCTION public.files",
       "The function public.files(text) runs without the limits of rights, in the language internal"},
      {"CREATE SCHEMA office; GRANT USAGE ON SCHEMA office TO PUBLIC;"
       "CREATE FUNCTION office.act() RETURNS void SECURITY DEFINER LANGUAGE sql AS ''",
       "DROP SCHEMA office CASCADE",
       "The function office.act() acts with the rights of postgres and may be called by "
       "ferrowind_operator, ferrowind_reader, operator_login"},
      {"ALTER ROLE postgres SET ferrowind.entry = '1'", "ALTER ROLE postgres RESET ferrowind.entry",
       "The server has ferrowind.entry set to \"1\"; take it back"},
      {"ALTER ROLE postgres SET plpgsql.variable_conflict = 'use_column'",
       "ALTER ROLE postgres RESET plpgsql.variable_conflict",
       "The server has plpgsql.variable_conflict set to \"use_column\"; take it back"},
      {"ALTER DATABASE %DB% CONNECTION LIMIT 0", "ALTER DATABASE %DB% CONNECTION LIMIT -1",
       "Nobody but superusers gets into the database"},
      {"ALTER ROLE operator_login SET statement_timeout = '50ms'",
       "ALTER ROLE operator_login RESET statement_timeout",
       "For operator_login statement_timeout is set to \"50ms\""},
  });
}

TEST_F(PostgresCheckOfChanges, OfWhatALoginReachesByMembershipAreNamed) {
  ExpectAllToBeNamed({
      {"CREATE ROLE rooted SUPERUSER; CREATE ROLE team; GRANT rooted TO team; GRANT team TO operator_login",
       "DROP ROLE rooted, team",
       "operator_login is an operator or a reader and may, as a member of rooted, do everything, as a "
       "superuser; take it: REVOKE team FROM operator_login"},
      {"CREATE ROLE crowned SUPERUSER; GRANT crowned TO stranger", "DROP ROLE crowned",
       "stranger may, as a member of crowned, do everything, as a superuser; take it: REVOKE crowned"},
      {"CREATE ROLE staff CREATEROLE; GRANT staff TO operator_login", "DROP ROLE staff",
       "operator_login is an operator or a reader and may, as a member of staff, create roles"},
      {"CREATE ROLE otto; GRANT ferrowind_owner TO otto; ALTER DATABASE %DB% OWNER TO otto; GRANT otto TO "
       "operator_login",
       "ALTER DATABASE %DB% OWNER TO postgres; DROP ROLE otto",
       "operator_login is an operator or a reader and may, as a member of otto, administer calendar "
       "databases; take it: REVOKE otto FROM operator_login"},
      {"GRANT pg_signal_backend TO operator_login", "REVOKE pg_signal_backend FROM operator_login",
       "operator_login is an operator or a reader and may, as a member of pg_signal_backend, end what"},
      {"GRANT pg_monitor TO operator_login", "REVOKE pg_monitor FROM operator_login",
       "operator_login is an operator or a reader and may, as a member of pg_monitor, see what others do"},
      {"GRANT pg_execute_server_program TO stranger", "REVOKE pg_execute_server_program FROM stranger",
       "stranger may, as a member of pg_execute_server_program, run programs on the server"},
      {"GRANT pg_read_all_data TO stranger; GRANT CONNECT ON DATABASE %DB% TO stranger",
       "REVOKE pg_read_all_data FROM stranger; REVOKE CONNECT ON DATABASE %DB% FROM stranger",
       "stranger may, as a member of pg_read_all_data, read every table"},
  });
}

/// What is set for the server, and taken back at the end.
class ServerSettings {
 public:
  explicit ServerSettings(std::vector<std::pair<std::string, std::string>> settings)
      : settings_(std::move(settings)) {
    for (const auto& [name, value] : settings_) Alter("SET " + name + " = " + value);
    ReadAnew();
  }
  ServerSettings(const ServerSettings&) = delete;
  ServerSettings& operator=(const ServerSettings&) = delete;
  ~ServerSettings() {
    Alter("RESET ALL");
    ReadAnew();
  }

 private:
  static void Alter(const std::string& what) { postgres_server::Execute("postgres", "ALTER SYSTEM " + what); }
  /// Returns when new connections have them.
  static void ReadAnew() {
    const std::string loaded = "SELECT pg_conf_load_time()::text";
    const std::string before = postgres_server::Ask("postgres", loaded);
    postgres_server::Execute("postgres", "SELECT pg_reload_conf()");
    while (postgres_server::Ask("postgres", loaded) == before) {
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
  }

  std::vector<std::pair<std::string, std::string>> settings_;
};

TEST_F(PostgresCheckOfChanges, OfTheServersSettingsAreNamed) {
  {
    const ServerSettings settings({{"default_transaction_read_only", "on"},
                                   {"session_preload_libraries", "auto_explain, tablefunc"},
                                   {"statement_timeout", "2000"},
                                   {"row_security", "off"},
                                   {"zero_damaged_pages", "on"},
                                   {"array_nulls", "off"}});
    EXPECT_THAT(
        Problems(),
        UnorderedElementsAre(
            HasSubstr("The server has default_transaction_read_only set to \"on\" instead of \"off\", in /"),
            HasSubstr("The server has session_preload_libraries set to \"auto_explain, tablefunc\""),
            HasSubstr("The server has statement_timeout set to \"2000\" instead of \"0\""),
            HasSubstr("The server has row_security set to \"off\""),
            HasSubstr("The server has zero_damaged_pages set to \"on\""),
            HasSubstr("The server has array_nulls set to \"off\"")));
  }
  EXPECT_THAT(Problems(), IsEmpty());
}

TEST_F(PostgresCheckOfChanges, OfTheServersSettingsThatAdministratorsTuneAreNoFaults) {
  const ServerSettings settings({{"work_mem", "'64MB'"},
                                 {"log_min_duration_statement", "'1s'"},
                                 {"random_page_cost", "1.1"},
                                 {"statement_timeout", "'30s'"},
                                 {"vacuum_freeze_min_age", "1000"},
                                 {"session_preload_libraries", "auto_explain"},
                                 {"jit", "off"},
                                 {"synchronous_commit", "off"}});
  EXPECT_THAT(Problems(), IsEmpty());
  EXPECT_THAT(
      postgres::SettingsInDoubt(Uri()),
      Contains(HasSubstr("The server has synchronous_commit set to \"off\": when its machine crashes, "
                         "changes may be lost")));
}

TEST_F(PostgresCheckOfChanges, OfTheDatabaseAndOfSettingsAreNamed) {
  ExpectEveryChangeToBeNamed({
      {"GRANT TEMPORARY ON DATABASE %DB% TO PUBLIC", "REVOKE TEMPORARY ON DATABASE %DB% FROM PUBLIC",
       "PUBLIC has the right TEMPORARY on the database"},
      {"GRANT CREATE ON DATABASE %DB% TO ferrowind_operator",
       "REVOKE CREATE ON DATABASE %DB% FROM ferrowind_operator",
       "ferrowind_operator has the right CREATE on the database"},
      {"GRANT TEMPORARY ON DATABASE %DB% TO ferrowind_owner",
       "REVOKE TEMPORARY ON DATABASE %DB% FROM ferrowind_owner",
       "ferrowind_owner has the right TEMPORARY on the database"},
      {"GRANT CONNECT ON DATABASE %DB% TO PUBLIC", "REVOKE CONNECT ON DATABASE %DB% FROM PUBLIC",
       "PUBLIC has the right CONNECT on the database"},
      {"GRANT CONNECT ON DATABASE %DB% TO ferrowind_reader WITH GRANT OPTION",
       "REVOKE GRANT OPTION FOR CONNECT ON DATABASE %DB% FROM ferrowind_reader",
       "ferrowind_reader may pass on the right CONNECT"},
      {"REVOKE CONNECT ON DATABASE %DB% FROM ferrowind_reader",
       "GRANT CONNECT ON DATABASE %DB% TO ferrowind_reader",
       "ferrowind_reader lacks the right CONNECT on the database"},
      {"ALTER DATABASE %DB% IS_TEMPLATE true", "ALTER DATABASE %DB% IS_TEMPLATE false",
       "The database is a template"},
      {"ALTER DATABASE %DB% SET search_path = public", "ALTER DATABASE %DB% RESET search_path",
       "In this database search_path is set to \"public\""},
      {"ALTER ROLE operator_login SET session_replication_role = replica",
       "ALTER ROLE operator_login RESET session_replication_role",
       "For operator_login session_replication_role is set to \"replica\""},
      {"ALTER ROLE stranger IN DATABASE %DB% SET row_security = off",
       "ALTER ROLE stranger IN DATABASE %DB% RESET row_security",
       "For stranger row_security is set to \"off\" in this database"},
      {"ALTER ROLE ALL SET timezone = 'Asia/Tokyo'", "ALTER ROLE ALL RESET timezone",
       "For everybody TimeZone is set"},
      {"ALTER ROLE ferrowind_owner SET search_path = public", "ALTER ROLE ferrowind_owner RESET search_path",
       "For ferrowind_owner search_path is set"},
      {"ALTER ROLE postgres SET transform_null_equals = on",
       "ALTER ROLE postgres RESET transform_null_equals",
       "The server has transform_null_equals set to \"on\" instead of \"off\""},
      {"GRANT SET ON PARAMETER session_replication_role TO ferrowind_operator",
       "REVOKE SET ON PARAMETER session_replication_role FROM ferrowind_operator",
       "ferrowind_operator may set session_replication_role of the server"},
  });
}

TEST_F(PostgresCheckOfChanges, OfRolesAreNamed) {
  ExpectEveryChangeToBeNamed({
      {"ALTER ROLE ferrowind_owner LOGIN", "ALTER ROLE ferrowind_owner NOLOGIN",
       "The role ferrowind_owner may log in"},
      {"ALTER ROLE ferrowind_operator SUPERUSER", "ALTER ROLE ferrowind_operator NOSUPERUSER",
       "The role ferrowind_operator may do everything, as a superuser"},
      {"ALTER ROLE ferrowind_reader CREATEROLE", "ALTER ROLE ferrowind_reader NOCREATEROLE",
       "The role ferrowind_reader may create roles"},
      {"ALTER ROLE ferrowind_reader CREATEDB", "ALTER ROLE ferrowind_reader NOCREATEDB",
       "may create databases"},
      {"ALTER ROLE ferrowind_owner REPLICATION", "ALTER ROLE ferrowind_owner NOREPLICATION",
       "by replication"},
      {"ALTER ROLE ferrowind_owner BYPASSRLS", "ALTER ROLE ferrowind_owner NOBYPASSRLS",
       "may pass by row security"},
      {"ALTER ROLE ferrowind_operator NOINHERIT", "ALTER ROLE ferrowind_operator INHERIT",
       "The role ferrowind_operator does not use the rights"},
      {"GRANT ferrowind_owner TO stranger", "REVOKE ferrowind_owner FROM stranger",
       "stranger is a member of ferrowind_owner and so may change everything, but administers no"},
      {"GRANT ferrowind_owner TO operator_login", "REVOKE ferrowind_owner FROM operator_login",
       "operator_login is a member of ferrowind_owner"},
      {"GRANT ferrowind_owner TO ferrowind_operator", "REVOKE ferrowind_owner FROM ferrowind_operator",
       "The role ferrowind_operator has the rights of ferrowind_owner"},
      {"GRANT pg_write_all_data TO ferrowind_operator", "REVOKE pg_write_all_data FROM ferrowind_operator",
       "The role ferrowind_operator has the rights of pg_write_all_data"},
      {"GRANT pg_write_all_data TO stranger", "REVOKE pg_write_all_data FROM stranger",
       "stranger may, as a member of pg_write_all_data, change every table"},
      {"GRANT pg_read_all_data TO operator_login", "REVOKE pg_read_all_data FROM operator_login",
       "operator_login is an operator or a reader and may, as a member of pg_read_all_data, read every "
       "table"},
      {"GRANT pg_execute_server_program TO operator_login",
       "REVOKE pg_execute_server_program FROM operator_login", "run programs on the server"},
      {"GRANT ferrowind_operator TO stranger WITH ADMIN OPTION", "REVOKE ferrowind_operator FROM stranger",
       "stranger may make others members of ferrowind_operator"},
      {"ALTER ROLE operator_login SUPERUSER", "ALTER ROLE operator_login NOSUPERUSER",
       "operator_login is an operator or a reader and may do everything, as a superuser"},
      {"ALTER ROLE operator_login CREATEROLE", "ALTER ROLE operator_login NOCREATEROLE",
       "operator_login is an operator or a reader and may create roles"},
      {"ALTER ROLE ferrowind_reader RENAME TO kept_reader",
       "ALTER ROLE kept_reader RENAME TO ferrowind_reader", "The role ferrowind_reader is missing"},
  });
}

TEST_F(PostgresCheckOfChanges, ThatAdministratorsMayMakeAreNoFaults) {
  const std::string name = "administered";
  postgres_server::Execute("postgres", "CREATE DATABASE " + name);
  const std::string uri = postgres_server::SuperuserUri(name);
  postgres::CreateDatabaseObjects(uri);
  postgres_server::Execute(
      "postgres",
      "CREATE ROLE otto LOGIN CREATEROLE CREATEDB PASSWORD 'own'; GRANT ferrowind_owner TO otto;"
      "ALTER DATABASE administered OWNER TO otto; CREATE ROLE team; CREATE ROLE olga LOGIN IN ROLE team;"
      "ALTER DATABASE administered SET idle_in_transaction_session_timeout = '10min';"
      "CREATE ROLE reports LOGIN CONNECTION LIMIT 3 IN ROLE ferrowind_reader");
  postgres_server::Execute(
      name,
      "CREATE SCHEMA office AUTHORIZATION otto; SET ROLE otto; CREATE TABLE office.note (a text);"
      "CREATE VIEW office.days AS SELECT d.*, n.a FROM ferrowind.CalendarDay d, office.note n;"
      "CREATE TABLE office.trade (pair text, traded date, settled date CHECK (ferrowind.IsBusinessDay('EUR', "
      "settled)) DEFAULT ferrowind.AddBusinessDays('EUR', current_date, 2));"
      "CREATE VIEW office.settlement AS SELECT *, ferrowind.SpotDate(pair, traded) AS spot,"
      " ferrowind.ValueDate(pair, traded, '3M') AS far, ferrowind.AdjustDate('EUR', traded, 'F') AS day"
      " FROM office.trade WHERE ferrowind.IsBusinessDay(ARRAY['EUR'], traded);"
      "CREATE FUNCTION office.spot(pair text) RETURNS date LANGUAGE sql"
      " BEGIN ATOMIC SELECT ferrowind.SpotDate(pair, current_date); END");
  EXPECT_THAT(postgres::CheckDatabase(uri), IsEmpty());
  EXPECT_THAT(postgres::CheckDatabase(postgres_server::Uri("otto", "own", name)), IsEmpty());
  // He administers every calendar database of the server.
  const PostgresDatabase of_another;
  EXPECT_THAT(postgres::CheckDatabase(postgres_server::SuperuserUri(of_another.Name())), IsEmpty());
  // As it is with several administrators.
  postgres_server::Execute("postgres",
                           "ALTER DATABASE administered OWNER TO team; REVOKE ferrowind_owner FROM otto;"
                           "GRANT ferrowind_owner TO team");
  EXPECT_THAT(postgres::CheckDatabase(uri), IsEmpty());
  postgres_server::DropDatabase(name);
  postgres_server::Execute("postgres", "DROP ROLE otto, olga, team, reports");
}

TEST(PostgresCheck, ADatabaseWithoutTheSchemaIsNoCalendarDatabase) {
  const std::string empty = postgres_server::CreateEmptyDatabase();
  EXPECT_THAT(FailureTextOf(
                  [&] { static_cast<void>(postgres::CheckDatabase(postgres_server::SuperuserUri(empty))); }),
              HasSubstr("no calendar database"));
  postgres_server::DropDatabase(empty);
}

TEST(PostgresCheck, AnOperatorIsToldWhoMayCheck) {
  PostgresDatabase database;
  EXPECT_THAT(FailureTextOf([&] { static_cast<void>(postgres::CheckDatabase(database.ConnectionString())); }),
              HasSubstr("is administered by members of ferrowind_owner, and operator_login is none"));
}

TEST(PostgresCheck, ABookOfNoCurrencyIsNamed) {
  PostgresDatabase database;
  database.Execute("INSERT INTO ferrowind.CldBook VALUES (959, 'P', 'D')");
  EXPECT_THAT(postgres::CheckDatabase(postgres_server::SuperuserUri(database.Name())),
              Contains("The rule book of 959 is of no currency"));
}

TEST(PostgresCheck, OfAnotherVersionThatIsAllThatIsSaid) {
  PostgresDatabase database;
  database.Execute("UPDATE ferrowind.SchemaVersion SET Version = 6; DROP TABLE ferrowind.CldHistoryStart");
  EXPECT_THAT(postgres::CheckDatabase(postgres_server::SuperuserUri(database.Name())),
              ElementsAre("The database has the schema version 6; this program's is 8. Bring it there with "
                          "\"ferrowindctl upgrade\" first"));
}

TEST(PostgresCheck, WhatIsMissingIsNamedOnceAndTheRestIsLookedAt) {
  PostgresDatabase database;
  database.Execute(
      "DROP TABLE ferrowind.CldHistoryStart; DROP VIEW ferrowind.CalendarDay; DROP PROCEDURE "
      "ferrowind.CldGetMain;"
      "DELETE FROM ferrowind.CldSetting");
  EXPECT_THAT(
      postgres::CheckDatabase(postgres_server::SuperuserUri(database.Name())),
      UnorderedElementsAre("The table cldhistorystart is missing", "The view calendarday is missing",
                           "The index cldhistorystarthasonerow is missing",
                           HasSubstr("The routine cldgetmain("), "CldSetting has 0 rows instead of one",
                           // By the look at the history.
                           HasSubstr("lacks a part")));
}

TEST(PostgresCheck, NothingIsReadFromWhatStandsInATablesPlace) {
  PostgresDatabase database;
  database.Execute(
      "DROP TABLE ferrowind.CldSetting; CREATE FUNCTION ferrowind.harm() RETURNS integer LANGUAGE plpgsql AS"
      " 'BEGIN RAISE EXCEPTION ''it ran''; END'; CREATE VIEW ferrowind.CldSetting AS SELECT ferrowind.harm() "
      "AS FirstDay");
  const auto problems = postgres::CheckDatabase(postgres_server::SuperuserUri(database.Name()));
  EXPECT_THAT(problems, Contains("The view cldsetting does not belong to the schema"));
  EXPECT_THAT(problems, Contains("The rows are not looked at as long as something else stands for a table"));
  EXPECT_THAT(problems, ::testing::Each(::testing::Not(HasSubstr("it ran"))));
}

TEST(PostgresCheck, NobodyIsKeptFromWorkingAndNobodyKeepsItFromLooking) {
  PostgresDatabase database;
  postgres::ServerConnection operators(database.ConnectionString());
  operators.RunScript("BEGIN; CALL ferrowind.CldIUMain(978, 2026)");
  EXPECT_TRUE(database.IsSound());
  operators.RunScript("COMMIT");
  EXPECT_TRUE(database.IsSound());
}

TEST(PostgresCheck, EveryWrongRowIsFound) {
  PostgresDatabase database;
  ProcedureCaller caller(database);
  for (const int year : {2025, 2026}) {
    ASSERT_EQ(caller.Return("CldIUMain", {{"ID1", 978}, {"Year1", year}}), 0);
  }
  database.Execute(
      "SET session_replication_role = replica;"
      "DELETE FROM ferrowind.CldDay WHERE Year1 = 2025 AND Day1 = 100;"
      "UPDATE ferrowind.CldDay SET ID2 = 77 WHERE Year1 = 2026 AND Day1 = 5;"
      "INSERT INTO ferrowind.CldDay VALUES (840, 2026, 1, '2026-01-01', 1, NULL, NULL);"
      "DELETE FROM ferrowind.CldHolidayType WHERE TID1 = 4");
  EXPECT_THAT(
      postgres::CheckDatabase(postgres_server::SuperuserUri(database.Name())),
      IsSupersetOf({HasSubstr("calendar 978 of 2025 has 364 days instead of 365"),
                    HasSubstr("rule 77, which does not exist"), HasSubstr("calendar 840 that does not exist"),
                    HasSubstr("holiday type 4 is missing")}));
}

TEST(PostgresCheck, WhatIsGoneFromTheMiddleOfTheHistoryIsFound) {
  PostgresDatabase database;
  ProcedureCaller caller(database);
  ASSERT_EQ(caller.Return("CldIUMain", {{"ID1", 978}, {"Year1", 2026}}), 0);
  ASSERT_EQ(caller.Return("CldIUCelebrate", {{"Name1", "Sunday"}, {"TID1", 2}, {"WD", 1}}), 0);
  ASSERT_EQ(caller.Return("CldIUMain", {{"ID1", 978}, {"Year1", 2026}, {"TID1", 2}, {"ID2", 2}}), 0);
  database.Execute(
      "SET session_replication_role = replica; DELETE FROM ferrowind.CldHistory WHERE EntryID = 1;"
      "DELETE FROM ferrowind.CldHistoryRow WHERE EntryID = 3 AND RowNumber = 7");
  EXPECT_THAT(postgres::CheckDatabase(postgres_server::SuperuserUri(database.Name())),
              IsSupersetOf({"The entry 3 of the history has 51 rows, of which the last is number 52",
                            "The history has rows of the entry 1, which does not exist"}));
}

TEST(PostgresLongTexts, AreToldByWhatTheyBelongToAndAreNoFault) {
  PostgresDatabase database;
  ASSERT_EQ(ProcedureCaller(database).Return("CldIUMain", {{"ID1", 978}, {"Year1", 2026}}), 0);
  const auto texts = [&] { return postgres::LongTexts(postgres_server::SuperuserUri(database.Name())); };
  database.Execute("UPDATE ferrowind.CldHoliday SET Name1 = repeat('é', 200), Comment = repeat('é', 4000)");
  EXPECT_THAT(texts(), IsEmpty());
  database.Execute(
      "SET search_path = ferrowind; UPDATE DicCcy SET Name = repeat('x', 201) WHERE Ccy = 'AUD';"
      "UPDATE CldHoliday SET Name1 = repeat('x', 201), Comment = repeat('x', 4001);"
      "INSERT INTO CldBook (ID1, Publisher, Document) VALUES (978, repeat('x', 202), repeat('x', 4002));"
      "INSERT INTO CldRecurrence VALUES (978, 1, repeat('x', 203), 4, repeat('x', 4003), repeat('x', 4004), "
      "repeat('x', 205)); UPDATE CldDay SET Comment = repeat('x', 5000) WHERE Day1 = 121");
  EXPECT_THAT(
      texts(),
      ElementsAre(
          "The name of the currency AUD has 201 characters; it may have 200 at most",
          "The name of the rule 1 has 201 characters; it may have 200 at most",
          "The comment of the rule 1 has 4001 characters; it may have 4000 at most",
          "The publisher of the rule book of EUR has 202 characters; it may have 200 at most",
          "The document of the rule book of EUR has 4002 characters; it may have 4000 at most",
          "The name of the rule 1 of the rule book of EUR has 203 characters; it may have 200 at most",
          "The name of the moved day of the rule 1 of the rule book of EUR has 205 characters; it may have "
          "200 at most",
          "The expression of the rule 1 of the rule book of EUR has 4003 characters; it may have 4000 at "
          "most",
          "The comment of the rule 1 of the rule book of EUR has 4004 characters; it may have 4000 at most",
          "The comment of the day 2026-05-01 of the calendar of EUR has 5000 characters; it may have 4000 at "
          "most"));
}

}  // namespace
}  // namespace ferrowind::contract
