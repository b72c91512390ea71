-- A sentence for everything by which a role could do more than it is for. The roles themselves only hold rights: nobody logs in
-- as one, they have no power over the server, and no role's rights but their own. Those who administer one of the server's calendar
-- databases, which share the roles, may be members of the owner: superusers, the owner of such a database, and whoever may act
-- as that. An operator's or a reader's login has no other way to the tables.
WITH delivered AS (
  SELECT r.* FROM pg_roles r WHERE r.rolname IN ('ferrowind_owner', 'ferrowind_operator', 'ferrowind_reader')
), administrator AS (
  -- What other databases hold is not to be seen from here, but a calendar database gives rights to the roles.
  SELECT r.oid FROM pg_roles r
  WHERE r.rolsuper OR EXISTS (
    SELECT FROM pg_database d
    WHERE (d.datname = current_database()
           OR EXISTS (SELECT FROM aclexplode(d.datacl) AS g JOIN delivered o ON o.oid = g.grantee))
      AND pg_has_role(r.oid, d.datdba, 'MEMBER'))
), login AS (
  -- Whoever has an operator's or a reader's rights by membership, at whatever distance.
  SELECT DISTINCT r.* FROM pg_roles r JOIN delivered d ON d.rolname <> 'ferrowind_owner' AND r.oid <> d.oid
    AND EXISTS (
      WITH RECURSIVE reached (oid) AS (
        SELECT m.member FROM pg_auth_members m WHERE m.roleid = d.oid
        UNION
        SELECT m.member FROM pg_auth_members m JOIN reached ON reached.oid = m.roleid)
      SELECT FROM reached WHERE reached.oid = r.oid)
), powerful (name, power) AS (VALUES
  ('pg_write_all_data', 'change every table'), ('pg_read_all_data', 'read every table'),
  ('pg_maintain', 'lock every table'), ('pg_read_server_files', 'read the server''s files'),
  ('pg_write_server_files', 'write the server''s files'), ('pg_execute_server_program', 'run programs on the server'),
  ('pg_create_subscription', 'write rows that come from other servers')
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
SELECT format('%I is an operator or a reader and may, as a member of %s, %s; take it: REVOKE %2$s FROM %1$I',
              l.rolname, g.rolname, p.power)
FROM login l JOIN powerful p ON true JOIN pg_roles g ON g.rolname = p.name
WHERE NOT l.rolsuper AND pg_has_role(l.oid, g.oid, 'MEMBER')
UNION ALL
SELECT format('%I may, as a member of %s, change every table, the history too; take it: REVOKE %2$s FROM %1$I', r.rolname,
              g.rolname)
FROM pg_roles g JOIN pg_auth_members m ON m.roleid = g.oid JOIN pg_roles r ON r.oid = m.member
WHERE g.rolname = 'pg_write_all_data' AND NOT r.rolsuper AND r.oid NOT IN (SELECT oid FROM delivered)
  AND r.oid NOT IN (SELECT oid FROM login)
ORDER BY 1
