-- Who has how many of the server's connections, in whatever database: operators, readers, all others, and at last all together.
-- What a login may take is set for itself and not for the roles that it is a member of, and no limit holds for superusers.
WITH RECURSIVE member (role, oid) AS (
  SELECT r.rolname::text, m.member FROM pg_catalog.pg_roles r JOIN pg_catalog.pg_auth_members m ON m.roleid = r.oid
  WHERE r.rolname IN ('ferrowind_operator', 'ferrowind_reader')
  UNION
  SELECT member.role, m.member FROM member JOIN pg_catalog.pg_auth_members m ON m.roleid = member.oid
), login AS (
  SELECT member.role, r.oid, r.rolname, nullif(r.rolconnlimit, -1) AS most
  FROM member JOIN pg_catalog.pg_roles r ON r.oid = member.oid WHERE r.rolcanlogin AND NOT r.rolsuper
), connected AS (
  SELECT usesysid AS oid, count(*) AS count FROM pg_catalog.pg_stat_activity
  WHERE datid IS NOT NULL AND usesysid IS NOT NULL GROUP BY usesysid
)
SELECT whose, connections, most, without_limit FROM (
  SELECT 1 AS place, r.role AS whose, coalesce(sum(c.count), 0)::bigint AS connections,
    CASE WHEN bool_and(l.most IS NOT NULL) THEN sum(l.most)::bigint END AS most,
    string_agg(quote_ident(l.rolname), ', ' ORDER BY l.rolname) FILTER (WHERE l.oid IS NOT NULL AND l.most IS NULL) AS without_limit
  FROM (VALUES ('ferrowind_operator'), ('ferrowind_reader')) AS r (role) LEFT JOIN login l USING (role)
    LEFT JOIN connected c ON c.oid = l.oid
  GROUP BY r.role
  UNION ALL
  SELECT 2, 'others', coalesce(sum(count), 0)::bigint, NULL, NULL FROM connected WHERE oid NOT IN (SELECT oid FROM login)
  UNION ALL
  SELECT 3, 'all', coalesce(sum(count), 0)::bigint, current_setting('max_connections')::bigint
    - current_setting('superuser_reserved_connections')::bigint - coalesce(current_setting('reserved_connections', true), '0')::bigint, NULL
  FROM connected
) AS share ORDER BY place, whose
