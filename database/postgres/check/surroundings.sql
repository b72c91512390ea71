-- A sentence for everything outside the schema ferrowind that reaches into calls: what the database, its other schemas and the
-- server have that an empty database has not, as far as it runs by itself, changes what statements mean, uses the schema, or
-- gives somebody a right. What belongs to an extension is told by the extension.
WITH ours AS (
  SELECT oid FROM pg_namespace WHERE nspname = 'ferrowind'
), this AS (
  SELECT * FROM pg_database WHERE datname = current_database()
), delivered AS (
  SELECT oid, rolname FROM pg_roles WHERE rolname IN ('ferrowind_owner', 'ferrowind_operator', 'ferrowind_reader')
), system_schema AS (
  SELECT oid FROM pg_namespace WHERE nspname IN ('pg_catalog', 'information_schema', 'pg_toast')
), added (classid, objid) AS (
  -- Numbers from 16384 on are given after the server was set up.
  SELECT 'pg_proc'::regclass, oid FROM pg_proc WHERE oid >= 16384 AND pronamespace IN (SELECT oid FROM system_schema)
  UNION ALL
  SELECT 'pg_operator'::regclass, oid FROM pg_operator WHERE oid >= 16384 AND oprnamespace IN (SELECT oid FROM system_schema)
  UNION ALL
  SELECT 'pg_type'::regclass, t.oid FROM pg_type t
  WHERE t.oid >= 16384 AND t.typnamespace IN (SELECT oid FROM system_schema) AND t.typrelid = 0 AND t.typcategory <> 'A'
  UNION ALL
  SELECT 'pg_class'::regclass, c.oid FROM pg_class c JOIN pg_namespace n ON n.oid = c.relnamespace
  WHERE c.oid >= 16384 AND n.nspname IN ('pg_catalog', 'information_schema') AND c.relkind NOT IN ('i', 'I')
  UNION ALL
  SELECT 'pg_cast'::regclass, oid FROM pg_cast WHERE oid >= 16384
  UNION ALL
  SELECT 'pg_opclass'::regclass, oid FROM pg_opclass WHERE oid >= 16384 AND opcnamespace IN (SELECT oid FROM system_schema)
  UNION ALL
  SELECT 'pg_conversion'::regclass, oid FROM pg_conversion WHERE oid >= 16384
  UNION ALL
  SELECT 'pg_language'::regclass, oid FROM pg_language WHERE oid >= 16384
  UNION ALL
  SELECT 'pg_transform'::regclass, oid FROM pg_transform WHERE oid >= 16384
  UNION ALL
  SELECT 'pg_event_trigger'::regclass, oid FROM pg_event_trigger
), user_of_ours (classid, objid, refclassid, refobjid) AS (
  SELECT DISTINCT d.classid, d.objid, d.refclassid, d.refobjid
  FROM pg_depend d
  WHERE EXISTS (SELECT FROM ours WHERE ours.oid = CASE d.refclassid
      WHEN 'pg_class'::regclass THEN (SELECT relnamespace FROM pg_class WHERE oid = d.refobjid)
      WHEN 'pg_proc'::regclass THEN (SELECT pronamespace FROM pg_proc WHERE oid = d.refobjid)
      WHEN 'pg_type'::regclass THEN (SELECT typnamespace FROM pg_type WHERE oid = d.refobjid) END)
    AND NOT EXISTS (SELECT FROM ours WHERE ours.oid = CASE d.classid
      WHEN 'pg_class'::regclass THEN (SELECT relnamespace FROM pg_class WHERE oid = d.objid)
      WHEN 'pg_proc'::regclass THEN (SELECT pronamespace FROM pg_proc WHERE oid = d.objid)
      WHEN 'pg_type'::regclass THEN (SELECT typnamespace FROM pg_type WHERE oid = d.objid)
      WHEN 'pg_constraint'::regclass THEN (SELECT connamespace FROM pg_constraint WHERE oid = d.objid)
      WHEN 'pg_attrdef'::regclass THEN
        (SELECT c.relnamespace FROM pg_attrdef a JOIN pg_class c ON c.oid = a.adrelid WHERE a.oid = d.objid)
      WHEN 'pg_trigger'::regclass THEN
        (SELECT c.relnamespace FROM pg_trigger t JOIN pg_class c ON c.oid = t.tgrelid WHERE t.oid = d.objid)
      WHEN 'pg_rewrite'::regclass THEN
        (SELECT c.relnamespace FROM pg_rewrite w JOIN pg_class c ON c.oid = w.ev_class WHERE w.oid = d.objid)
      WHEN 'pg_policy'::regclass THEN
        (SELECT c.relnamespace FROM pg_policy p JOIN pg_class c ON c.oid = p.polrelid WHERE p.oid = d.objid)
      WHEN 'pg_operator'::regclass THEN (SELECT oprnamespace FROM pg_operator WHERE oid = d.objid)
      WHEN 'pg_opclass'::regclass THEN (SELECT opcnamespace FROM pg_opclass WHERE oid = d.objid)
      WHEN 'pg_opfamily'::regclass THEN (SELECT opfnamespace FROM pg_opfamily WHERE oid = d.objid)
      WHEN 'pg_statistic_ext'::regclass THEN (SELECT stxnamespace FROM pg_statistic_ext WHERE oid = d.objid) END)
    -- What keeps long values of the tables.
    AND NOT (d.classid = 'pg_class'::regclass AND EXISTS (
      SELECT FROM pg_class c JOIN pg_namespace n ON n.oid = c.relnamespace WHERE c.oid = d.objid AND n.nspname LIKE 'pg\_toast%'))
    -- The parts of an operator class are told by the class.
    AND d.classid NOT IN ('pg_amop'::regclass, 'pg_amproc'::regclass)
    -- Triggers that the server makes for a constraint are told by the constraint.
    AND NOT (d.classid = 'pg_trigger'::regclass AND (SELECT tgisinternal FROM pg_trigger WHERE oid = d.objid))
), set_up AS (
  -- A row has the number of the transaction that wrote it last, and PL/pgSQL is the last thing that comes with a server: what was
  -- changed since has a higher one.
  SELECT min(written) AS last FROM (
    SELECT xmin::text::bigint AS written FROM pg_extension WHERE extname = 'plpgsql' AND oid < 16384
    UNION ALL
    SELECT xmin::text::bigint FROM pg_language WHERE lanname = 'plpgsql' AND oid < 16384
    UNION ALL
    SELECT p.xmin::text::bigint FROM pg_proc p JOIN pg_language l ON l.oid = p.prolang
    WHERE p.oid < 16384 AND l.lanname = 'c' AND p.probin = '$libdir/plpgsql') AS plpgsql
), server_function (identity, form) AS (
  -- Those that procedures use, as they come with the server.
  SELECT pg_catalog.split_part(line, E'\t', 1), pg_catalog.split_part(line, E'\t', 2)
  FROM pg_catalog.string_to_table($1, E'\n') AS line
), changed (type, identity) AS (
  SELECT 'function', p.oid::regprocedure::text
  FROM set_up, pg_proc p JOIN pg_language l ON l.oid = p.prolang LEFT JOIN server_function f ON f.identity = p.oid::regprocedure::text
  WHERE p.oid < 16384 AND p.xmin::text::bigint > set_up.last
    AND CASE WHEN f.form IS NOT NULL THEN f.form IS DISTINCT FROM concat_ws(' ', l.lanname, p.prosrc, p.provolatile, p.proisstrict,
                                            p.prosecdef, p.proconfig)
      -- A right that is given or taken changes the row as well.
      ELSE p.proacl IS NULL OR l.lanname NOT IN ('internal', 'sql', 'c') OR p.prosecdef OR p.proconfig IS NOT NULL END
  UNION ALL
  SELECT 'operator', o.oid::regoperator::text FROM set_up, pg_operator o WHERE o.oid < 16384 AND o.xmin::text::bigint > set_up.last
  UNION ALL
  SELECT 'cast', format('from %s to %s', format_type(c.castsource, NULL), format_type(c.casttarget, NULL))
  FROM set_up, pg_cast c WHERE c.oid < 16384 AND c.xmin::text::bigint > set_up.last
  UNION ALL
  SELECT 'aggregate', a.aggfnoid::text FROM set_up, pg_aggregate a WHERE a.aggfnoid < 16384 AND a.xmin::text::bigint > set_up.last
  UNION ALL
  SELECT DISTINCT 'order', f.opfname::text
  FROM set_up, pg_opfamily f JOIN (SELECT amopfamily AS family, xmin FROM pg_amop UNION ALL SELECT amprocfamily, xmin FROM pg_amproc)
    AS part ON part.family = f.oid
  WHERE f.oid < 16384 AND part.xmin::text::bigint > set_up.last
  UNION ALL
  -- Two views are made anew after updates of the server that mend what they show.
  SELECT 'view', w.ev_class::regclass::text FROM set_up, pg_rewrite w
  WHERE w.oid < 16384 AND w.xmin::text::bigint > set_up.last
    AND w.ev_class::regclass::text NOT IN ('pg_stats_ext', 'pg_stats_ext_exprs')
)
SELECT format('The %s %s does not belong to a calendar database; drop it', o.type, o.identity)
FROM added a CROSS JOIN LATERAL pg_identify_object(a.classid, a.objid, 0) AS o
WHERE NOT EXISTS (SELECT FROM pg_depend d WHERE d.classid = a.classid AND d.objid = a.objid AND d.deptype = 'e')
UNION ALL
SELECT format('The extension %s does not belong to a calendar database; install it in another one, and here: DROP EXTENSION %1$I',
              extname)
FROM pg_extension WHERE extname <> 'plpgsql'
UNION ALL
SELECT DISTINCT format('The %s %s uses %s of the schema; drop it, or let it use only what readers may',
                       coalesce(v.type, o.type), coalesce(v.identity, o.identity), r.identity)
FROM user_of_ours u
  CROSS JOIN LATERAL pg_identify_object(u.classid, u.objid, 0) AS o
  CROSS JOIN LATERAL pg_identify_object(u.refclassid, u.refobjid, 0) AS r
  LEFT JOIN pg_rewrite w ON u.classid = 'pg_rewrite'::regclass AND w.oid = u.objid AND w.rulename = '_RETURN'
  LEFT JOIN LATERAL pg_identify_object('pg_class'::regclass, w.ev_class, 0) AS v ON w.oid IS NOT NULL
-- What readers may use is there to be used: it only answers.
WHERE NOT (w.oid IS NOT NULL AND r.identity IN ('ferrowind.calendarlist', 'ferrowind.calendarday'))
  AND split_part(r.identity, '(', 1) NOT IN ('ferrowind.isbusinessday', 'ferrowind.addbusinessdays', 'ferrowind.adjustdate',
                                             'ferrowind.spotdate', 'ferrowind.valuedate')

UNION ALL
SELECT format('The %s %s belongs to ferrowind_owner outside its schema; drop it', o.type, o.identity)
FROM pg_shdepend s JOIN delivered d ON d.oid = s.refobjid
  CROSS JOIN LATERAL pg_identify_object(s.classid, s.objid, s.objsubid) AS o
WHERE s.refclassid = 'pg_authid'::regclass AND s.deptype = 'o' AND s.dbid = (SELECT oid FROM this)
  AND o.schema IS DISTINCT FROM 'ferrowind' AND NOT (o.type = 'schema' AND o.name = 'ferrowind')
  AND s.classid <> 'pg_default_acl'::regclass
UNION ALL
SELECT format('%s has a right on the %s %s; take it', d.rolname, o.type, o.identity)
FROM pg_shdepend s JOIN delivered d ON d.oid = s.refobjid
  CROSS JOIN LATERAL pg_identify_object(s.classid, s.objid, s.objsubid) AS o
WHERE s.refclassid = 'pg_authid'::regclass AND s.deptype = 'a' AND s.dbid = (SELECT oid FROM this)
  AND o.schema IS DISTINCT FROM 'ferrowind' AND NOT (o.type = 'schema' AND o.name = 'ferrowind')
  AND s.classid <> 'pg_default_acl'::regclass
UNION ALL
SELECT format('Everybody has the right %s on the function %s, which the server gives to nobody; take it:'
              ' REVOKE %1$s ON FUNCTION %2$s FROM PUBLIC', g.privilege_type, p.oid::regprocedure)
FROM pg_proc p JOIN pg_init_privs i ON i.classoid = 'pg_proc'::regclass AND i.objoid = p.oid
  CROSS JOIN aclexplode(coalesce(p.proacl, acldefault('f', p.proowner))) AS g
WHERE g.grantee = 0 AND NOT EXISTS (SELECT FROM aclexplode(i.initprivs) AS first WHERE first.grantee = 0)
UNION ALL
SELECT format('Everybody has the right %s on the relation %s, which the server gives to nobody; take it:'
              ' REVOKE %1$s ON %2$s FROM PUBLIC', g.privilege_type, c.oid::regclass)
FROM pg_class c CROSS JOIN aclexplode(c.relacl) AS g
WHERE c.relnamespace IN (SELECT oid FROM system_schema) AND g.grantee = 0
  AND NOT (c.relnamespace = 'information_schema'::regnamespace AND g.privilege_type = 'SELECT')
  AND NOT EXISTS (SELECT FROM pg_init_privs i CROSS JOIN aclexplode(i.initprivs) AS first
                  WHERE i.classoid = 'pg_class'::regclass AND i.objoid = c.oid AND i.objsubid = 0 AND first.grantee = 0
                    AND first.privilege_type = g.privilege_type)
UNION ALL
SELECT format('Everybody may store large objects by %s, and so fill the disk; take it as a superuser:'
              ' REVOKE EXECUTE ON FUNCTION %1$s FROM PUBLIC', p.oid::regprocedure)
FROM pg_proc p
WHERE p.pronamespace = 'pg_catalog'::regnamespace AND p.proname IN ('lo_creat', 'lo_create', 'lo_from_bytea')
  AND EXISTS (SELECT FROM aclexplode(coalesce(p.proacl, acldefault('f', p.proowner))) AS g WHERE g.grantee = 0)
UNION ALL
SELECT format('The server''s own %s %s was replaced; restore the database into a new server', type, identity) FROM changed
UNION ALL
SELECT format('The function %s runs without the limits of rights, in the language %s; drop it', p.oid::regprocedure, l.lanname)
FROM pg_proc p JOIN pg_language l ON l.oid = p.prolang
WHERE p.oid >= 16384 AND NOT l.lanpltrusted AND p.pronamespace NOT IN (SELECT oid FROM system_schema)
  AND NOT EXISTS (SELECT FROM pg_depend d WHERE d.classid = 'pg_proc'::regclass AND d.objid = p.oid AND d.deptype = 'e')

UNION ALL
SELECT format('%s has the right %s on the database; take it: REVOKE %2$s ON DATABASE %3$I FROM %1$s',
              CASE g.grantee WHEN 0 THEN 'PUBLIC' ELSE quote_ident(pg_get_userbyid(g.grantee)) END, g.privilege_type, t.datname)
FROM this t CROSS JOIN aclexplode(coalesce(t.datacl, acldefault('d', t.datdba))) AS g
WHERE g.grantee <> t.datdba
  AND NOT (g.privilege_type = 'CONNECT' AND g.grantee <> 0)
UNION ALL
SELECT format('%s may pass on the right %s on the database; take it: REVOKE GRANT OPTION FOR %2$s ON DATABASE %3$I FROM %1$s',
              quote_ident(pg_get_userbyid(g.grantee)), g.privilege_type, t.datname)
FROM this t CROSS JOIN aclexplode(t.datacl) AS g
WHERE g.is_grantable AND g.grantee <> t.datdba
UNION ALL
SELECT format('%s lacks the right CONNECT on the database; give it: GRANT CONNECT ON DATABASE %I TO %1$s', d.rolname, t.datname)
FROM delivered d CROSS JOIN this t
WHERE NOT EXISTS (SELECT FROM aclexplode(coalesce(t.datacl, acldefault('d', t.datdba))) AS g
                  WHERE g.grantee IN (0, d.oid) AND g.privilege_type = 'CONNECT')
UNION ALL
SELECT format('Everybody has the right %s on the schema public; take it: REVOKE ALL ON SCHEMA public FROM PUBLIC',
              g.privilege_type)
FROM pg_namespace n CROSS JOIN aclexplode(coalesce(n.nspacl, acldefault('n', n.nspowner))) AS g
WHERE n.nspname = 'public' AND g.grantee = 0
UNION ALL
SELECT format('The database is a template, which everybody who may create databases can copy; end it:'
              ' ALTER DATABASE %I IS_TEMPLATE false', datname)
FROM this WHERE datistemplate
UNION ALL
SELECT format('Nobody but superusers gets into the database; let others in: ALTER DATABASE %I CONNECTION LIMIT -1', datname)
FROM this WHERE datconnlimit = 0
UNION ALL
SELECT format('The database stores texts as %s instead of UTF8; make a new one and copy into it', pg_encoding_to_char(encoding))
FROM this WHERE pg_encoding_to_char(encoding) <> 'UTF8'

UNION ALL
SELECT format('What %I creates%s gets other rights than the server gives: default privileges for %s; take them back by'
              ' ALTER DEFAULT PRIVILEGES', pg_get_userbyid(a.defaclrole),
              CASE a.defaclnamespace WHEN 0 THEN '' ELSE format(' in the schema %I', a.defaclnamespace::regnamespace::text) END,
              CASE a.defaclobjtype WHEN 'r' THEN 'tables' WHEN 'S' THEN 'sequences' WHEN 'f' THEN 'functions' WHEN 'T' THEN 'types'
                WHEN 'n' THEN 'schemas' ELSE 'large objects' END)
FROM pg_default_acl a
UNION ALL
SELECT format('The publication %I sends rows of the tables elsewhere; drop it', pubname) FROM pg_publication
UNION ALL
SELECT format('The subscription %I writes rows that come from elsewhere; drop it', subname)
FROM pg_subscription WHERE subdbid = (SELECT oid FROM this)
UNION ALL
SELECT format('%s may set %s of the server; take it: REVOKE %s ON PARAMETER %2$s FROM %1$s',
              CASE g.grantee WHEN 0 THEN 'PUBLIC' ELSE quote_ident(pg_get_userbyid(g.grantee)) END, a.parname, g.privilege_type)
FROM pg_parameter_acl a CROSS JOIN aclexplode(a.paracl) AS g
WHERE g.grantee = 0 OR EXISTS (SELECT FROM delivered d JOIN pg_roles r ON r.oid = g.grantee AND NOT r.rolsuper
                               WHERE pg_has_role(g.grantee, d.oid, 'MEMBER'))
ORDER BY 1
