-- A sentence for everything by which a role could do more than it is for. The roles themselves only hold rights: nobody logs in
-- as one, they have no power over the server, and no role's rights but their own. Those who administer one of the server's calendar
-- databases, which share the roles, may be members of the owner: superusers, the owner of such a database, and whoever may act
-- as that. An operator's or a reader's login has no other way to the tables: not by what it is, not by a role that it is a member
-- of at whatever distance, not by a right of its own, and not by a function that acts as somebody else.
WITH RECURSIVE this AS (
  SELECT oid, datdba FROM pg_database WHERE datname = current_database()
), delivered AS (
  SELECT r.* FROM pg_roles r WHERE r.rolname IN ('ferrowind_owner', 'ferrowind_operator', 'ferrowind_reader')
), calendar_database AS (
  -- What other databases hold is not to be seen from here, but a calendar database gives rights to the roles.
  SELECT d.datdba FROM pg_database d
  WHERE d.datname = current_database() OR EXISTS (SELECT FROM aclexplode(d.datacl) AS g JOIN delivered o ON o.oid = g.grantee)
), administrator AS (
  SELECT r.oid FROM pg_roles r
  WHERE r.rolsuper OR EXISTS (SELECT FROM calendar_database d WHERE pg_has_role(r.oid, d.datdba, 'MEMBER'))
), usable AS (
  -- On servers from version 16 a membership may be one that only lets its holder make others members.
  SELECT * FROM pg_auth_members m
  WHERE coalesce((to_jsonb(m) ->> 'inherit_option')::boolean, true) OR coalesce((to_jsonb(m) ->> 'set_option')::boolean, true)
), serving (oid) AS (
  -- Whoever has an operator's or a reader's rights by membership, at whatever distance.
  SELECT m.member FROM usable m JOIN delivered d ON d.oid = m.roleid AND d.rolname <> 'ferrowind_owner'
  UNION
  SELECT m.member FROM usable m JOIN serving s ON s.oid = m.roleid
), login AS (
  SELECT r.* FROM pg_roles r WHERE r.oid IN (SELECT oid FROM serving) AND r.oid NOT IN (SELECT oid FROM delivered)
), way (member, role, through) AS (
  -- What is behind the roles themselves is told of them.
  SELECT m.member, m.roleid, m.roleid FROM pg_auth_members m WHERE m.member NOT IN (SELECT oid FROM delivered)
  UNION
  SELECT w.member, m.roleid, w.through FROM way w JOIN pg_auth_members m ON m.member = w.role
  WHERE w.role NOT IN (SELECT oid FROM delivered)
), holder AS (
  -- A login, and the roles whose rights it has beside ours. Numbers from 16384 on are given after the server was set up.
  SELECT r.oid, r.rolname FROM pg_roles r
  WHERE NOT r.rolsuper AND r.oid >= 16384 AND r.oid NOT IN (SELECT oid FROM delivered)
    AND (r.oid IN (SELECT oid FROM login) OR r.oid IN (SELECT w.role FROM way w JOIN login l ON l.oid = w.member))
), server_right (grantee, privilege, object) AS (
  SELECT g.grantee, g.privilege_type, format('FUNCTION %s', p.oid::regprocedure)
  FROM pg_proc p CROSS JOIN aclexplode(p.proacl) AS g WHERE p.oid < 16384
  UNION ALL
  SELECT g.grantee, g.privilege_type, c.oid::regclass::text
  FROM pg_class c CROSS JOIN aclexplode(c.relacl) AS g WHERE c.oid < 16384
  UNION ALL
  SELECT g.grantee, format('%s (%I)', g.privilege_type, a.attname), c.oid::regclass::text
  FROM pg_class c JOIN pg_attribute a ON a.attrelid = c.oid CROSS JOIN aclexplode(a.attacl) AS g WHERE c.oid < 16384
  UNION ALL
  SELECT g.grantee, g.privilege_type, format('SCHEMA %I', n.nspname)
  FROM pg_namespace n CROSS JOIN aclexplode(n.nspacl) AS g
  WHERE (n.oid < 16384 OR n.nspname = 'public') AND g.privilege_type = 'CREATE'
), powerful (name, power) AS (VALUES
  ('pg_write_all_data', 'change every table, the history too'), ('pg_read_all_data', 'read every table'),
  ('pg_maintain', 'lock every table'), ('pg_read_server_files', 'read the server''s files'),
  ('pg_write_server_files', 'write the server''s files'), ('pg_execute_server_program', 'run programs on the server'),
  ('pg_create_subscription', 'write rows that come from other servers'),
  ('pg_signal_backend', 'end what others do'), ('pg_signal_autovacuum_worker', 'end what the server does to its tables by itself'),
  ('pg_monitor', 'see what others do'), ('pg_read_all_stats', 'see what others do'),
  ('pg_stat_scan_tables', 'lock tables while it looks at them'), ('pg_read_all_settings', 'see all settings of the server'),
  ('pg_checkpoint', 'make the server write to its disk'), ('pg_use_reserved_connections', 'take connections that are kept for others')
)
SELECT format('The role %s is missing', name)
FROM unnest(ARRAY['ferrowind_owner', 'ferrowind_operator', 'ferrowind_reader']) AS name
WHERE name NOT IN (SELECT rolname FROM delivered)

UNION ALL
SELECT format('The role %s may %s; take it: ALTER ROLE %1$s %s', d.rolname, power.what, power.remedy)
FROM delivered d CROSS JOIN LATERAL (VALUES
  (d.rolcanlogin, 'log in', 'NOLOGIN'), (d.rolsuper, 'do everything, as a superuser', 'NOSUPERUSER'),
  (d.rolcreaterole, 'create roles', 'NOCREATEROLE'), (d.rolcreatedb, 'create databases', 'NOCREATEDB'),
  (d.rolreplication, 'copy the server''s files by replication', 'NOREPLICATION'),
  (d.rolbypassrls, 'pass by row security', 'NOBYPASSRLS')
) AS power (has, what, remedy)
WHERE power.has
UNION ALL
SELECT format('The role %s does not use the rights that are granted to it; let it: ALTER ROLE %1$s INHERIT', rolname)
FROM delivered WHERE NOT rolinherit

UNION ALL
SELECT format('The role %s has the rights of %s; take them: REVOKE %2$I FROM %1$s', d.rolname, g.rolname)
FROM delivered d JOIN pg_auth_members m ON m.member = d.oid JOIN pg_roles g ON g.oid = m.roleid
UNION ALL
SELECT format('%I is a member of ferrowind_owner and so may change everything, but administers no calendar database;'
              ' take it: REVOKE ferrowind_owner FROM %1$I', r.rolname)
FROM delivered d JOIN pg_auth_members m ON m.roleid = d.oid JOIN pg_roles r ON r.oid = m.member
WHERE d.rolname = 'ferrowind_owner' AND r.oid NOT IN (SELECT oid FROM administrator)
UNION ALL
SELECT format('%I may make others members of %s; take it: REVOKE ADMIN OPTION FOR %2$s FROM %1$I', r.rolname, d.rolname)
FROM delivered d JOIN pg_auth_members m ON m.roleid = d.oid AND m.admin_option JOIN pg_roles r ON r.oid = m.member
WHERE r.oid NOT IN (SELECT oid FROM administrator)
  -- On servers from version 16 whoever creates a role gets this from the first superuser.
  AND NOT (r.rolcreaterole AND m.grantor = 10)

UNION ALL
SELECT format('%I is an operator or a reader and may %s; take it: ALTER ROLE %1$I %s', l.rolname, power.what, power.remedy)
FROM login l CROSS JOIN LATERAL (VALUES
  (l.rolsuper, 'do everything, as a superuser', 'NOSUPERUSER'),
  (l.rolreplication, 'copy the server''s files by replication', 'NOREPLICATION'),
  (l.rolcreaterole AND l.oid NOT IN (SELECT oid FROM administrator), 'create roles', 'NOCREATEROLE')
) AS power (has, what, remedy)
WHERE power.has
UNION ALL
SELECT format('%I is an operator or a reader and may, as a member of %s, %s; take it: REVOKE %I FROM %1$I',
              l.rolname, g.rolname, power.what, t.rolname)
FROM login l JOIN way w ON w.member = l.oid JOIN pg_roles g ON g.oid = w.role JOIN pg_roles t ON t.oid = w.through
  LEFT JOIN powerful p ON p.name = g.rolname CROSS JOIN LATERAL (SELECT CASE
    WHEN g.rolsuper THEN 'do everything, as a superuser'
    WHEN g.oid IN (SELECT oid FROM administrator) AND l.oid NOT IN (SELECT datdba FROM calendar_database)
      THEN 'administer calendar databases'
    WHEN g.rolcreaterole AND l.oid NOT IN (SELECT datdba FROM calendar_database) THEN 'create roles'
    WHEN g.rolreplication THEN 'copy the server''s files by replication'
    WHEN p.name IS NOT NULL THEN p.power
    WHEN g.oid < 16384 THEN 'do what only the server gives' END AS what) AS power
WHERE power.what IS NOT NULL AND NOT l.rolsuper AND g.oid NOT IN (SELECT oid FROM delivered)
  -- What a role of the server has from another one of it is no news.
  AND (g.oid = t.oid OR g.oid >= 16384 OR t.oid >= 16384)
UNION ALL
SELECT format('%I may, as a member of %s, %s; take it: REVOKE %2$s FROM %1$I', r.rolname, g.rolname,
              coalesce(p.power, 'do everything, as a superuser'))
FROM pg_auth_members m JOIN pg_roles g ON g.oid = m.roleid JOIN pg_roles r ON r.oid = m.member CROSS JOIN this
  LEFT JOIN powerful p ON p.name = g.rolname
WHERE NOT r.rolsuper AND r.oid >= 16384 AND r.oid NOT IN (SELECT oid FROM delivered) AND r.oid NOT IN (SELECT oid FROM login)
  AND CASE
    -- Whoever may act as the owner of this database is an administrator of it.
    WHEN g.rolsuper THEN NOT pg_has_role(r.oid, this.datdba, 'MEMBER')
    WHEN p.name IN ('pg_read_all_data', 'pg_maintain')
      THEN r.oid NOT IN (SELECT oid FROM administrator) AND has_database_privilege(r.oid, this.oid, 'CONNECT')
    ELSE coalesce(p.name IN ('pg_write_all_data', 'pg_execute_server_program', 'pg_read_server_files', 'pg_write_server_files'),
                  false) END

UNION ALL
SELECT format('%I %s and has the right %s on %s; take it: REVOKE %3$s ON %4$s FROM %1$I', h.rolname,
              CASE WHEN h.oid IN (SELECT oid FROM login) THEN 'is an operator or a reader'
                ELSE 'gives its rights to an operator or a reader' END, s.privilege, s.object)
FROM server_right s JOIN holder h ON h.oid = s.grantee
UNION ALL
SELECT format('The function %s acts with the rights of %I and may be called by %s; let it act with those of its caller:'
              ' ALTER ROUTINE %1$s SECURITY INVOKER', p.oid::regprocedure, o.rolname, caller.names)
FROM pg_proc p JOIN pg_roles o ON o.oid = p.proowner CROSS JOIN LATERAL (
  SELECT string_agg(quote_ident(c.rolname), ', ' ORDER BY c.rolname) AS names
  FROM pg_roles c CROSS JOIN this
  WHERE c.oid >= 16384 AND c.oid NOT IN (SELECT oid FROM administrator) AND c.rolname <> 'ferrowind_owner'
    AND has_database_privilege(c.oid, this.oid, 'CONNECT')
    AND has_schema_privilege(c.oid, p.pronamespace, 'USAGE') AND has_function_privilege(c.oid, p.oid, 'EXECUTE')) AS caller
WHERE p.prosecdef AND p.pronamespace <> 'ferrowind'::regnamespace AND caller.names IS NOT NULL
  AND (o.oid IN (SELECT oid FROM administrator) OR EXISTS (SELECT FROM delivered d WHERE d.rolname = 'ferrowind_owner'
                                                           AND pg_has_role(o.oid, d.oid, 'MEMBER')))
ORDER BY 1
