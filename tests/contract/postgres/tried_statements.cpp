#include "tests/contract/postgres/tried_statements.h"

#include <libpq-fe.h>

#include "ferrowind/adapters/postgres/server_connection.h"

#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
namespace {

/// Each gives a use, an object and a statement. In a form `%1$s` stands for the object.
constexpr const char* kSources[] = {
    // What is in the schema, of any kind, and what hangs on what is there.
    R"(WITH Own AS (
  SELECT classid, objid FROM pg_depend WHERE refclassid = 'pg_namespace'::regclass AND refobjid = 'ferrowind'::regnamespace
  UNION
  SELECT 'pg_class'::regclass, oid FROM pg_class WHERE relnamespace = 'ferrowind'::regnamespace
  UNION
  SELECT 'pg_trigger'::regclass, t.oid FROM pg_trigger t JOIN pg_class c ON c.oid = t.tgrelid
  WHERE c.relnamespace = 'ferrowind'::regnamespace AND NOT t.tgisinternal
  UNION
  SELECT 'pg_policy'::regclass, p.oid FROM pg_policy p JOIN pg_class c ON c.oid = p.polrelid
  WHERE c.relnamespace = 'ferrowind'::regnamespace)
SELECT 'change', kind || ' ' || regexp_replace(identity, '[(].*', ''), format('DROP %s %s CASCADE', kind, identity)
FROM Own, LATERAL pg_identify_object(classid, objid, 0),
  LATERAL (SELECT CASE type WHEN 'composite type' THEN 'type' ELSE type END AS kind) AS dropped)",

    R"(SELECT use, 'table ' || c.oid::regclass, format(form, c.oid::regclass)
FROM pg_class c, (VALUES
  ('read', 'SELECT * FROM %1$s'), ('read', 'SELECT count(*) FROM %1$s'), ('read', 'DO $$ BEGIN EXECUTE ''EXPLAIN SELECT * FROM %1$s''; END $$'),
  ('read', 'SELECT query_to_xml(''SELECT * FROM %1$s'', true, true, '''')'),
  ('read', 'DO $$ BEGIN EXECUTE ''SELECT * FROM %1$s''; END $$'),
  ('read', 'DECLARE mine CURSOR FOR SELECT * FROM %1$s'),
  ('write', 'INSERT INTO %1$s DEFAULT VALUES'), ('write', 'DELETE FROM %1$s'), ('write', 'TRUNCATE %1$s CASCADE'),
  ('write', 'SELECT 1 FROM %1$s FOR UPDATE'), ('write', 'LOCK TABLE %1$s IN ACCESS EXCLUSIVE MODE'),
  ('write', 'MERGE INTO %1$s t USING (SELECT 1) s ON false WHEN NOT MATCHED THEN INSERT DEFAULT VALUES'),
  ('change', 'ALTER TABLE %1$s ADD x integer'), ('change', 'ALTER TABLE %1$s DISABLE TRIGGER USER'),
  ('change', 'ALTER TABLE %1$s RENAME TO mine'), ('change', 'ALTER TABLE %1$s ENABLE ROW LEVEL SECURITY'),
  ('change', 'GRANT SELECT ON %1$s TO operator_login'), ('change', 'COMMENT ON TABLE %1$s IS ''mine'''),
  ('change', 'CREATE POLICY mine ON %1$s'), ('change', 'CREATE RULE mine AS ON INSERT TO %1$s DO ALSO NOTHING'),
  ('change', 'CREATE INDEX ON %1$s ((1))'), ('change', 'ANALYZE (VERBOSE) %1$s; ALTER TABLE %1$s SET (fillfactor = 90)'),
  ('change', 'CREATE TRIGGER mine BEFORE INSERT ON %1$s FOR EACH ROW EXECUTE FUNCTION suppress_redundant_updates_trigger()')
) AS tried (use, form)
WHERE c.relnamespace = 'ferrowind'::regnamespace AND c.relkind IN ('r', 'p', 'f'))",

    R"(SELECT use, 'table ' || c.oid::regclass, format(form, c.oid::regclass, a.attname)
FROM pg_class c JOIN pg_attribute a ON a.attrelid = c.oid, (VALUES
  ('read', 'SELECT %2$I FROM %1$s'), ('write', 'UPDATE %1$s SET %2$I = DEFAULT'),
  ('write', 'INSERT INTO %1$s (%2$I) VALUES (DEFAULT)'), ('change', 'ALTER TABLE %1$s DROP %2$I CASCADE')) AS tried (use, form)
WHERE c.relnamespace = 'ferrowind'::regnamespace AND c.relkind IN ('r', 'p', 'f')
  AND a.attnum > 0 AND NOT a.attisdropped)",

    R"(SELECT use, CASE c.relkind WHEN 'v' THEN 'view ' ELSE 'materialized view ' END || c.oid::regclass,
  format(form, c.oid::regclass)
FROM pg_class c, (VALUES
  ('vm', 'read', 'SELECT * FROM %1$s'), ('vm', 'read', 'SELECT count(*) FROM %1$s'),
  ('v', 'change', 'CREATE OR REPLACE VIEW %1$s AS SELECT 1'), ('v', 'change', 'ALTER VIEW %1$s SET (security_barrier)'),
  ('m', 'change', 'REFRESH MATERIALIZED VIEW %1$s'),
  -- Of a view on several tables the server says that nobody can, before it looks who asks.
  ('w', 'write', 'DELETE FROM %1$s'), ('w', 'write', 'INSERT INTO %1$s DEFAULT VALUES')) AS tried (kinds, use, form)
WHERE c.relnamespace = 'ferrowind'::regnamespace AND c.relkind IN ('v', 'm')
  AND strpos(kinds, CASE WHEN pg_relation_is_updatable(c.oid, true) & 28 = 28 THEN 'w' ELSE c.relkind END) > 0
UNION ALL
SELECT 'read', 'view ' || c.oid::regclass, format('SELECT %I FROM %s', a.attname, c.oid::regclass)
FROM pg_class c JOIN pg_attribute a ON a.attrelid = c.oid
WHERE c.relnamespace = 'ferrowind'::regnamespace AND c.relkind = 'v')",

    R"(SELECT use, 'sequence ' || c.oid::regclass, format(form, c.oid::regclass)
FROM pg_class c, (VALUES
  ('read', 'SELECT last_value FROM %1$s'), ('write', 'SELECT nextval(''%1$s'')'), ('write', 'SELECT setval(''%1$s'', 1)'),
  ('change', 'ALTER SEQUENCE %1$s RESTART')) AS tried (use, form)
WHERE c.relnamespace = 'ferrowind'::regnamespace AND c.relkind = 'S')",

    // Values from a subquery, since the server does without a call whose values are constants and null.
    R"(SELECT 'call', CASE p.prokind WHEN 'p' THEN 'procedure ' ELSE 'function ' END || format('%I.%I', n.nspname, p.proname),
  CASE p.prokind WHEN 'p' THEN format('CALL %I.%I(%s)', n.nspname, p.proname,
    (SELECT string_agg(format('NULL::%s', format_type(t, NULL)), ', ' ORDER BY i)
     FROM unnest(coalesce(p.proallargtypes, p.proargtypes::oid[])) WITH ORDINALITY AS list (t, i)))
  ELSE format('SELECT %I.%I(%s) FROM (SELECT %s OFFSET 0) AS given', n.nspname, p.proname,
    coalesce((SELECT string_agg('given.a' || i, ', ' ORDER BY i) FROM generate_series(1, p.pronargs) AS i), ''),
    coalesce((SELECT string_agg(format('NULL::%s AS a%s', format_type(t, NULL), i), ', ' ORDER BY i)
              FROM unnest(p.proargtypes::oid[]) WITH ORDINALITY AS list (t, i)), '')) END
FROM pg_proc p JOIN pg_namespace n ON n.oid = p.pronamespace
WHERE p.prokind IN ('p', 'f') AND p.prorettype <> ALL ('{internal,trigger,event_trigger}'::regtype[])
  AND (n.nspname = 'ferrowind' OR n.nspname = 'pg_catalog' AND p.provariadic = 0
    AND NOT EXISTS (SELECT FROM unnest(p.proargtypes::oid[]) AS t WHERE t = 'internal'::regtype)
    -- Those that are not for everybody, or were not when the server was new, or are not where calendars are.
    AND (NOT EXISTS (SELECT FROM aclexplode(coalesce(p.proacl, acldefault('f', p.proowner))) AS acl WHERE acl.grantee = 0)
      OR EXISTS (SELECT FROM pg_init_privs i WHERE i.classoid = 'pg_proc'::regclass AND i.objoid = p.oid
                 AND NOT EXISTS (SELECT FROM aclexplode(i.initprivs) AS acl WHERE acl.grantee = 0))
      OR p.proname IN ('lo_creat', 'lo_create', 'lo_from_bytea'))))",

    R"(SELECT 'change', CASE prokind WHEN 'p' THEN 'procedure ' ELSE 'function ' END || format('ferrowind.%I', proname),
  format(form, oid::regprocedure)
FROM pg_proc, (VALUES ('ALTER ROUTINE %1$s SECURITY INVOKER'), ('ALTER ROUTINE %1$s SET search_path = public'),
  ('ALTER ROUTINE %1$s RESET ALL'), ('ALTER ROUTINE %1$s RENAME TO mine'), ('DROP ROUTINE %1$s CASCADE')) AS tried (form)
WHERE pronamespace = 'ferrowind'::regnamespace AND prokind IN ('p', 'f'))",

    R"(SELECT 'change', 'type ' || oid::regclass, format('ALTER TYPE %s ADD ATTRIBUTE mine integer', oid::regclass)
FROM pg_class WHERE relnamespace = 'ferrowind'::regnamespace AND relkind = 'c')",

    R"(SELECT use, format('schema %I', nspname), format(form, nspname)
FROM pg_namespace, (VALUES ('use', 'SELECT ''%1$I.nothing_of_that_name''::regclass'),
  ('create in', 'CREATE TABLE %1$I.mine (a integer)'),
  ('create in', 'CREATE FUNCTION %1$I.mine() RETURNS integer LANGUAGE sql AS ''SELECT 1'''),
  ('create in', 'CREATE TYPE %1$I.mine AS (a integer)'), ('create in', 'CREATE VIEW %1$I.mine AS SELECT 1'),
  ('create in', 'CREATE SEQUENCE %1$I.mine'), ('create in', 'CREATE DOMAIN %1$I.mine AS integer'),
  ('change', 'COMMENT ON SCHEMA %1$I IS ''mine'''), ('change', 'DROP SCHEMA %1$I CASCADE')) AS tried (use, form)
WHERE nspname !~ '^pg_(toast|temp)')",

    R"(SELECT use, 'the database', format(form, current_database())
FROM (VALUES ('create in', 'CREATE SCHEMA mine'), ('create in', 'CREATE TEMPORARY TABLE mine (a integer)'),
  ('create in', 'CREATE PUBLICATION mine'), ('change', 'ALTER DATABASE %1$I SET work_mem = ''4MB'''),
  ('change', 'COMMENT ON DATABASE %1$I IS ''mine''')) AS tried (use, form))",

    R"(SELECT use, format('role %I', rolname), format(form, rolname)
FROM pg_roles, (VALUES ('be', 'SET ROLE %1$I'), ('change', 'ALTER ROLE %1$I CONNECTION LIMIT 1'),
  ('change', 'GRANT %1$I TO CURRENT_USER WITH ADMIN OPTION'), ('change', 'ALTER ROLE %1$I SET work_mem = ''4MB'''))
  AS tried (use, form)
-- Everybody may be themselves, and set what they begin with. The server's own roles nobody alters.
WHERE rolname NOT LIKE '%\_login' AND (form NOT LIKE 'ALTER %' OR rolname NOT LIKE 'pg\_%'))",

    // Of those that can be set in a session at all. What administrators set for all is in a file of the
    // server.
    R"(SELECT 'set', CASE context WHEN 'user' THEN 'user' ELSE 'superuser' END || ' setting ' || name,
  format('SET %s TO DEFAULT', name) FROM pg_settings WHERE context IN ('user', 'superuser')
UNION ALL
SELECT 'set for all', 'setting ' || name, format('ALTER SYSTEM SET %s TO DEFAULT', name) FROM pg_settings
WHERE context <> 'internal')",

    R"(SELECT 'read', 'table of the server ' || c.oid::regclass, format('SELECT * FROM %s', c.oid::regclass)
FROM pg_class c
WHERE c.relnamespace = 'pg_catalog'::regnamespace AND c.relkind IN ('r', 'v')
  AND NOT EXISTS (SELECT FROM aclexplode(c.relacl) AS g WHERE g.grantee = 0 AND g.privilege_type = 'SELECT')
UNION ALL
SELECT 'write', 'table of the server ' || oid::regclass, format('DELETE FROM %s', oid::regclass)
FROM pg_class WHERE relnamespace = 'pg_catalog'::regnamespace AND relkind = 'r')",
};

}  // namespace

std::vector<TriedStatement> StatementsToTry(const std::string& database) {
  postgres::ServerConnection connection(postgres_server::SuperuserUri(database));
  std::vector<TriedStatement> statements;
  for (const char* const source : kSources) {
    const auto rows = connection.Query(source);
    const auto text = [&](int row, int column) { return std::string(PQgetvalue(rows.get(), row, column)); };
    for (int row = 0; row < PQntuples(rows.get()); ++row) {
      statements.push_back({text(row, 0), text(row, 1), text(row, 2)});
    }
  }
  return statements;
}

}  // namespace ferrowind::contract
