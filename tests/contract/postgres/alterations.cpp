#include "tests/contract/postgres/alterations.h"

#include <cstddef>

#include <libpq-fe.h>

#include "ferrowind/adapters/postgres/server_connection.h"

#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
namespace {

// Each question is one way: it gives the objects of a kind, each with a statement. In a form `%1$s` stands
// for the object, and what stands for what else is said with each.

std::string Quoted(const std::string& form) { return "'" + form + "'"; }

/// %2$s: its number.
std::string OfRoutines(const std::string& form, const std::string& which = "true") {
  return "SELECT format('routine %s(%s)', p.proname, pg_get_function_identity_arguments(p.oid)), format(" +
         Quoted(form) +
         ", p.oid::regprocedure, p.oid::bigint) FROM pg_proc p WHERE p.pronamespace = "
         "'ferrowind'::regnamespace"
         " AND " +
         which;
}

/// Switches one of the properties of functions: `text` is an expression for what it is to be.
std::string OfFunctions(const std::string& text) {
  return "SELECT format('routine %s(%s)', p.proname, pg_get_function_identity_arguments(p.oid)),"
         " format('ALTER FUNCTION %s %s', p.oid::regprocedure, " +
         text + ") FROM pg_proc p WHERE p.pronamespace = 'ferrowind'::regnamespace AND p.prokind = 'f'";
}

/// %2$s: its number, %3$s: its name.
std::string OfRelations(const std::string& kind, char letter, const std::string& form) {
  return "SELECT '" + kind + " ' || c.relname, format(" + Quoted(form) +
         ", c.oid::regclass, c.oid::bigint, c.relname) FROM pg_class c"
         " WHERE c.relnamespace = 'ferrowind'::regnamespace AND c.relkind = '" +
         letter + "'";
}

/// What a table gets, which is called x.
std::string OfAdditions(const std::string& kind, const std::string& form) {
  return "SELECT '" + kind + " ' || c.relname || '.x', format(" + Quoted(form) +
         ", c.oid::regclass) FROM pg_class c"
         " WHERE c.relnamespace = 'ferrowind'::regnamespace AND c.relkind = 'r'";
}

/// %1$s: the table, %2$s: the column.
std::string OfColumns(const std::string& form, const std::string& which = "true") {
  return "SELECT format('column %s.%s', c.relname, a.attname), format(" + Quoted(form) +
         ", c.oid::regclass, a.attname) FROM pg_class c JOIN pg_attribute a ON a.attrelid = c.oid AND "
         "a.attnum > 0"
         " WHERE c.relnamespace = 'ferrowind'::regnamespace AND c.relkind = 'r' AND NOT a.attisdropped AND " +
         which;
}

/// %1$s: the table, %2$s: the constraint, %3$s: its number.
std::string OfConstraints(const std::string& form) {
  return "SELECT format('constraint %s.%s', c.relname, k.conname), format(" + Quoted(form) +
         ", c.oid::regclass, k.conname, k.oid::bigint) FROM pg_class c JOIN pg_constraint k ON k.conrelid = "
         "c.oid"
         " WHERE c.relnamespace = 'ferrowind'::regnamespace AND k.contype <> 'n'";
}

/// %1$s: the table, %2$s: the trigger.
std::string OfTriggers(const std::string& form) {
  return "SELECT format('trigger %s.%s', c.relname, t.tgname), format(" + Quoted(form) +
         ", c.oid::regclass, t.tgname) FROM pg_class c JOIN pg_trigger t ON t.tgrelid = c.oid"
         " WHERE c.relnamespace = 'ferrowind'::regnamespace AND NOT t.tgisinternal";
}

std::string OfTypes(const std::string& form) {
  return "SELECT 'type ' || c.relname, format(" + Quoted(form) +
         ", c.oid::regclass) FROM pg_class c"
         " WHERE c.relnamespace = 'ferrowind'::regnamespace AND c.relkind = 'c'";
}

/// Questions that stand in one round ask for different kinds.
const std::vector<std::vector<std::string>>& Rounds() {
  static const std::vector<std::vector<std::string>> rounds = {
      {OfRoutines("ALTER ROUTINE %1$s OWNER TO postgres"),
       OfRelations("table", 'r', "ALTER TABLE %1$s OWNER TO postgres"),
       OfRelations("view", 'v', "ALTER VIEW %1$s OWNER TO postgres"),
       OfTypes("ALTER TYPE %1$s OWNER TO postgres"),
       "SELECT 'schema ferrowind', 'ALTER SCHEMA ferrowind OWNER TO postgres'"},
      {OfRoutines("GRANT EXECUTE ON ROUTINE %1$s TO stranger"),
       OfRelations("table", 'r', "GRANT SELECT ON %1$s TO stranger"),
       OfRelations("view", 'v', "GRANT SELECT ON %1$s TO stranger"),
       OfRelations("sequence", 'S', "GRANT USAGE ON SEQUENCE %1$s TO stranger"),
       OfColumns("GRANT UPDATE (%2$I) ON %1$s TO stranger"), OfTypes("GRANT USAGE ON TYPE %1$s TO stranger"),
       "SELECT 'schema ferrowind', 'GRANT USAGE ON SCHEMA ferrowind TO stranger'"},
      {"SELECT format('routine %s(%s)', p.proname, pg_get_function_identity_arguments(p.oid)),"
       " format('REVOKE EXECUTE ON ROUTINE %s FROM %s', p.oid::regprocedure, g.grantee::regrole)"
       " FROM pg_proc p CROSS JOIN aclexplode(p.proacl) AS g"
       " WHERE p.pronamespace = 'ferrowind'::regnamespace AND g.grantee <> 0",
       "SELECT 'view ' || c.relname, format('REVOKE SELECT ON %s FROM %s', c.oid::regclass, "
       "g.grantee::regrole)"
       " FROM pg_class c CROSS JOIN aclexplode(c.relacl) AS g"
       " WHERE c.relnamespace = 'ferrowind'::regnamespace AND c.relkind = 'v' AND g.grantee <> c.relowner",
       OfRelations("table", 'r', "GRANT TRUNCATE ON %1$s TO PUBLIC")},
      {OfRoutines("ALTER ROUTINE %1$s SET work_mem = ''1MB''"),
       OfRelations("table", 'r', "ALTER TABLE %1$s ENABLE ROW LEVEL SECURITY"),
       OfRelations("view", 'v', "ALTER VIEW %1$s SET (security_barrier)"),
       OfRelations("index", 'i', "ALTER INDEX %1$s SET (fillfactor = 50)"),
       OfRelations("sequence", 'S', "ALTER SEQUENCE %1$s MAXVALUE 1000000"),
       OfTriggers("ALTER TABLE %1$s DISABLE TRIGGER %2$I")},
      {OfRoutines("ALTER ROUTINE %1$s SECURITY DEFINER", "NOT p.prosecdef"),
       OfRoutines("ALTER ROUTINE %1$s SECURITY INVOKER", "p.prosecdef"),
       OfRelations("table", 'r', "ALTER TABLE %1$s FORCE ROW LEVEL SECURITY"),
       OfRelations("sequence", 'S', "ALTER SEQUENCE %1$s CYCLE"),
       OfTriggers("ALTER TABLE %1$s ENABLE ALWAYS TRIGGER %2$I")},
      {OfRoutines("UPDATE pg_proc SET prosrc = prosrc || '' '' WHERE oid = %2$s"),
       OfRelations("table", 'r', "ALTER TABLE %1$s SET (fillfactor = 50)"),
       OfRelations("sequence", 'S', "ALTER SEQUENCE %1$s CACHE 7"),
       OfRelations("index", 'i', "UPDATE pg_index SET indisvalid = false WHERE indexrelid = %2$s"),
       OfConstraints("UPDATE pg_constraint SET convalidated = false WHERE oid = %3$s")},
      {OfFunctions("CASE WHEN p.proisstrict THEN 'CALLED ON NULL INPUT' ELSE 'STRICT' END"),
       OfRelations("table", 'r', "ALTER TABLE %1$s REPLICA IDENTITY NOTHING"),
       OfRelations("index", 'i', "ALTER INDEX %1$s RENAME TO renamed_%3$s"),
       OfTriggers("ALTER TRIGGER %2$I ON %1$s RENAME TO renamed_%2$s")},
      {OfFunctions("CASE p.provolatile WHEN 'v' THEN 'STABLE' ELSE 'VOLATILE' END"),
       OfAdditions("column", "ALTER TABLE %1$s ADD COLUMN x integer"),
       "SELECT format('column %s.x', c.relname), format('ALTER TYPE %s ADD ATTRIBUTE x integer', "
       "c.oid::regclass)"
       " FROM pg_class c WHERE c.relnamespace = 'ferrowind'::regnamespace AND c.relkind = 'c'"},
      {OfFunctions("CASE WHEN p.proleakproof THEN 'NOT ' ELSE '' END || 'LEAKPROOF'"),
       OfColumns("ALTER TABLE %1$s RENAME %2$I TO renamed_%2$s")},
      {OfRoutines("ALTER ROUTINE %1$s SET SCHEMA public"),
       OfRelations("table", 'r', "ALTER TABLE %1$s SET SCHEMA public"),
       OfRelations("view", 'v', "ALTER VIEW %1$s SET SCHEMA public"),
       OfTypes("ALTER TYPE %1$s SET SCHEMA public")},
      {OfAdditions("rule", "CREATE RULE x AS ON DELETE TO %1$s DO INSTEAD NOTHING"),
       OfAdditions("policy", "CREATE POLICY x ON %1$s"),
       OfAdditions("trigger",
                   "CREATE TRIGGER x BEFORE INSERT ON %1$s FOR EACH ROW EXECUTE FUNCTION "
                   "suppress_redundant_updates_trigger()"),
       OfAdditions("constraint", "ALTER TABLE %1$s ADD CONSTRAINT x CHECK (true)"),
       OfConstraints("ALTER TABLE %1$s RENAME CONSTRAINT %2$I TO renamed_%2$s")},
      {OfConstraints("ALTER TABLE %1$s DROP CONSTRAINT IF EXISTS %2$I CASCADE"),
       OfTriggers("DROP TRIGGER %2$I ON %1$s"), OfRelations("view", 'v', "DROP VIEW %1$s CASCADE")},
      {OfColumns("ALTER TABLE %1$s ALTER %2$I DROP NOT NULL",
                 "a.attnotnull AND a.attidentity = '' AND NOT EXISTS (SELECT FROM pg_index i WHERE "
                 "i.indrelid = c.oid"
                 " AND i.indisprimary AND a.attnum = ANY (i.indkey))"),
       "SELECT format('child public.child_%1$s of the table %1$s', c.relname),"
       " format('CREATE TABLE public.child_%s () INHERITS (%s)', c.relname, c.oid::regclass)"
       " FROM pg_class c WHERE c.relnamespace = 'ferrowind'::regnamespace AND c.relkind = 'r'"},
      {// What the server believes of a table without looking.
       OfRelations("table", 'r',
                   "UPDATE pg_class SET relhasindex = NOT relhasindex,"
                   " relchecks = CASE relchecks WHEN 0 THEN 1 ELSE 0 END WHERE oid = %2$s")},
  };
  return rounds;
}

std::vector<std::vector<std::string>> RowsOf(const std::string& database, const std::string& question) {
  postgres::ServerConnection connection(postgres_server::SuperuserUri(database));
  const auto answer = connection.Query(question);
  std::vector<std::vector<std::string>> rows;
  for (int row = 0; row < PQntuples(answer.get()); ++row) {
    std::vector<std::string>& cells = rows.emplace_back();
    for (int column = 0; column < PQnfields(answer.get()); ++column) {
      cells.emplace_back(PQgetvalue(answer.get(), row, column));
    }
  }
  return rows;
}

}  // namespace

std::vector<std::vector<Alteration>> AlterationsOf(const std::string& database) {
  std::vector<std::vector<Alteration>> rounds;
  for (const auto& questions : Rounds()) {
    std::vector<Alteration>& round = rounds.emplace_back();
    for (const auto& question : questions) {
      for (const auto& row : RowsOf(database, question)) round.push_back({row[0], row[1]});
    }
  }
  return rounds;
}

std::vector<std::vector<RoleAlteration>> RoleAlterations(const std::string& database,
                                                         const std::string& login) {
  const std::string ours = "rolname IN ('ferrowind_owner', 'ferrowind_operator', 'ferrowind_reader')";
  std::vector<std::vector<RoleAlteration>> rounds;
  // Whatever a role may be or not.
  for (const auto& column :
       RowsOf(database,
              "SELECT attname::text FROM pg_attribute WHERE attrelid = 'pg_authid'::regclass"
              " AND atttypid = 'boolean'::regtype AND attnum > 0")) {
    std::vector<RoleAlteration>& round = rounds.emplace_back();
    for (const auto& role : RowsOf(database, "SELECT rolname::text FROM pg_roles WHERE " + ours)) {
      const std::string flip =
          "UPDATE pg_authid SET " + column[0] + " = NOT " + column[0] + " WHERE rolname = '" + role[0] + "'";
      round.push_back({"role " + role[0], flip, flip});
    }
  }
  // Whatever the server gives by membership.
  std::vector<RoleAlteration>& memberships = rounds.emplace_back();
  for (const auto& role :
       RowsOf(database,
              "SELECT rolname::text FROM pg_roles WHERE oid < 16384 AND rolname <> 'pg_database_owner'")) {
    memberships.push_back({"member of " + role[0], "GRANT " + role[0] + " TO " + login,
                           "REVOKE " + role[0] + " FROM " + login});
  }
  // Whatever is switched on or off for a login, but for what is logged.
  std::vector<RoleAlteration>& settings = rounds.emplace_back();
  for (const auto& row :
       RowsOf(database,
              "SELECT name, CASE boot_val WHEN 'on' THEN 'off' ELSE 'on' END FROM pg_settings"
              " WHERE vartype = 'bool' AND context IN ('user', 'superuser') AND name !~ '^log_'"
              " AND name !~ '^transaction_'")) {
    settings.push_back({"For " + login + " " + row[0],
                        "ALTER ROLE " + login + " SET " + row[0] + " = " + row[1],
                        "ALTER ROLE " + login + " RESET " + row[0]});
  }
  return rounds;
}

}  // namespace ferrowind::contract
