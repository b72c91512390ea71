// What operators and readers are refused, tried with statements made from the server's catalogues: a new
// routine, setting or relation is tried without anybody having thought of it.

#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "ferrowind/adapters/postgres/server_connection.h"

#include "tests/contract/postgres/postgres_database.h"
#include "tests/contract/postgres/postgres_server.h"
#include "tests/contract/postgres/refused_statements.h"

namespace ferrowind::contract {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// The connection string of a login that is a reader's, which the server has from its first use on.
std::string UriOfAReader(const std::string& database) {
  static const bool is_made = [] {
    postgres_server::Execute("postgres",
                             "CREATE ROLE reader_login LOGIN PASSWORD 'read' IN ROLE ferrowind_reader");
    return true;
  }();
  static_cast<void>(is_made);
  return postgres_server::Uri("reader_login", "read", database);
}

class PostgresTriedRights : public ::testing::Test {
 protected:
  PostgresTriedRights()
      : operators_(database_.ConnectionString()), readers_(UriOfAReader(database_.Name())) {}

  [[nodiscard]] std::vector<std::string> Made(const std::string& query) const {
    auto statements = AskAll(database_.Name(), query);
    EXPECT_THAT(statements, Not(IsEmpty())) << query;
    return statements;
  }

  void ExpectRefusedToBoth(const std::vector<std::string>& statements) {
    for (const auto& statement : statements) {
      ExpectRefused(operators_, statement);
      ExpectRefused(readers_, statement);
    }
  }

  PostgresDatabase database_;
  postgres::ServerConnection operators_;
  postgres::ServerConnection readers_;
};

/// Calls of the routines of the schema for which `condition` holds, with null for every argument.
std::string CallsOf(const std::string& condition) {
  // Values from a subquery, since the server does without a call whose values are constants and null.
  return "SELECT CASE p.prokind WHEN 'p' THEN format('CALL ferrowind.%I(%s)', p.proname,"
         "    (SELECT string_agg(format('NULL::%s', format_type(t, NULL)), ', ' ORDER BY n)"
         "     FROM unnest(coalesce(p.proallargtypes, p.proargtypes::oid[])) WITH ORDINALITY AS list (t, n)))"
         "  ELSE format('SELECT ferrowind.%I(%s) FROM (SELECT %s OFFSET 0) AS given', p.proname,"
         "    coalesce((SELECT string_agg('given.a' || n, ', ' ORDER BY n)"
         "      FROM generate_series(1, p.pronargs) AS n), ''),"
         "    coalesce((SELECT string_agg(format('NULL::%s AS a%s', format_type(t, NULL), n), ', ' ORDER BY "
         "n)"
         "      FROM unnest(p.proargtypes::oid[]) WITH ORDINALITY AS list (t, n)), '')) END"
         " FROM pg_proc p WHERE p.pronamespace = 'ferrowind'::regnamespace"
         "  AND p.prorettype <> 'trigger'::regtype AND (" +
         condition + ") ORDER BY 1";
}

TEST_F(PostgresTriedRights, AnOperatorCallsTheProceduresButThatOfCurrenciesAndNoFunction) {
  const auto calls = Made(CallsOf("p.prokind <> 'p' OR p.proname = 'cldiucurrency'"));
  EXPECT_THAT(calls, Contains(HasSubstr("ferrowind.putback(")));
  EXPECT_THAT(calls, Contains(HasSubstr("CALL ferrowind.cldiucurrency(")));
  for (const auto& call : calls) ExpectRefused(operators_, call);
}

TEST_F(PostgresTriedRights, AReaderCallsNothing) {
  const auto calls = Made(CallsOf("true"));
  EXPECT_THAT(calls, Contains(HasSubstr("CALL ferrowind.cldgetmain(")));
  for (const auto& call : calls) ExpectRefused(readers_, call);
}

TEST_F(PostgresTriedRights, NobodyChangesARoutineOrType) {
  for (const std::string change :
       {"ALTER ROUTINE %s OWNER TO CURRENT_USER", "ALTER ROUTINE %s SECURITY INVOKER",
        "ALTER ROUTINE %s SET search_path = public", "ALTER ROUTINE %s SET SCHEMA public", "DROP ROUTINE %s",
        "DROP ROUTINE %s CASCADE"}) {
    ExpectRefusedToBoth(
        Made("SELECT format('" + change +
             "', oid::regprocedure) FROM pg_proc WHERE pronamespace = 'ferrowind'::regnamespace"));
  }
  ExpectRefusedToBoth(
      Made("SELECT format('ALTER TYPE ferrowind.%I ADD ATTRIBUTE mine integer', relname) FROM pg_class"
           " WHERE relnamespace = 'ferrowind'::regnamespace AND relkind = 'c'"));
}

TEST_F(PostgresTriedRights, NobodySetsWhatIsForSuperusers) {
  const auto settings =
      Made("SELECT format('SET %s TO DEFAULT', name) FROM pg_settings WHERE context = 'superuser'");
  EXPECT_THAT(settings, Contains("SET session_replication_role TO DEFAULT"));
  ExpectRefusedToBoth(settings);
}

TEST_F(PostgresTriedRights, NobodyReadsOrWritesWhatTheServerKeepsForItself) {
  const auto reads = Made(
      "SELECT format('SELECT * FROM %s', c.oid::regclass) FROM pg_class c"
      " WHERE c.relnamespace = 'pg_catalog'::regnamespace AND c.relkind IN ('r', 'v')"
      "  AND NOT EXISTS (SELECT FROM aclexplode(c.relacl) AS g WHERE g.grantee = 0 AND g.privilege_type = "
      "'SELECT')");
  EXPECT_THAT(reads, Contains("SELECT * FROM pg_authid"));
  ExpectRefusedToBoth(reads);
  ExpectRefusedToBoth(
      Made("SELECT format('DELETE FROM %s', oid::regclass) FROM pg_class"
           " WHERE relnamespace = 'pg_catalog'::regnamespace AND relkind = 'r'"));
}

}  // namespace
}  // namespace ferrowind::contract
