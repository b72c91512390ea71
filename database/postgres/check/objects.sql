-- Everything that the schema ferrowind consists of: the object, what is said of it, and what it is. An object of every kind
-- is named that a schema can hold, or that can hang on one of its tables, so that nothing is there unseen. What differs from
-- one server or version of it to another without a difference in what calls do is left out or written in one way: numbers of
-- objects, storage, statistics, what an owner may do with its own tables since MAINTAIN is a right.
WITH ours AS (
  SELECT oid, nspowner, nspacl FROM pg_namespace WHERE nspname = 'ferrowind'
), relation AS (
  SELECT c.*, concat(CASE c.relkind
    WHEN 'r' THEN 'table' WHEN 'v' THEN 'view' WHEN 'i' THEN 'index' WHEN 'S' THEN 'sequence' WHEN 'c' THEN 'type'
    WHEN 'm' THEN 'materialized view' WHEN 'f' THEN 'foreign table' WHEN 'p' THEN 'partitioned table'
    ELSE 'partitioned index' END, ' ', c.relname) AS object
  FROM pg_class c JOIN ours ON ours.oid = c.relnamespace
), routine AS (
  SELECT p.*, format('routine %s(%s)', p.proname, pg_get_function_identity_arguments(p.oid)) AS object
  FROM pg_proc p JOIN ours ON ours.oid = p.pronamespace
), own_type AS (
  -- Not the types of rows, which come and go with their tables, nor those of arrays.
  SELECT t.*, 'type ' || t.typname AS object
  FROM pg_type t JOIN ours ON ours.oid = t.typnamespace LEFT JOIN pg_class c ON c.oid = t.typrelid
  WHERE coalesce(c.relkind, 'c') = 'c' AND t.typcategory <> 'A'
), right_list AS (
  SELECT 'schema ferrowind' AS object, nspowner AS owner, coalesce(nspacl, acldefault('n', nspowner)) AS list FROM ours
  UNION ALL
  SELECT object, relowner, coalesce(relacl, acldefault(CASE relkind WHEN 'S' THEN 's'::"char" ELSE 'r' END, relowner))
  FROM relation WHERE relkind NOT IN ('i', 'I', 'c')
  UNION ALL
  SELECT format('column %s.%s', r.relname, a.attname), r.relowner, a.attacl
  FROM relation r JOIN pg_attribute a ON a.attrelid = r.oid WHERE a.attacl IS NOT NULL
  UNION ALL
  SELECT object, proowner, coalesce(proacl, acldefault('f', proowner)) FROM routine
  UNION ALL
  SELECT object, typowner, coalesce(typacl, acldefault('T', typowner)) FROM own_type
), fact (object, property, value) AS (
  SELECT 'schema ferrowind', 'owner', nspowner::regrole::text FROM ours
  UNION ALL
  SELECT r.object,
    format('right of %s', CASE g.grantee WHEN 0 THEN 'PUBLIC' WHEN r.owner THEN 'its owner' ELSE g.grantee::regrole::text END),
    string_agg(DISTINCT g.privilege_type || CASE WHEN g.is_grantable AND g.grantee <> r.owner THEN ' and to pass it on'
                                            ELSE '' END, ', ')
  FROM right_list r CROSS JOIN aclexplode(r.list) AS g
  WHERE NOT (g.grantee = r.owner AND g.privilege_type = 'MAINTAIN')
  GROUP BY r.object, r.owner, g.grantee

  UNION ALL
  SELECT r.object, said.property, said.value
  FROM relation r LEFT JOIN pg_am am ON am.oid = r.relam LEFT JOIN pg_index i ON i.indexrelid = r.oid CROSS JOIN LATERAL (VALUES
    ('owner', r.relowner::regrole::text),
    ('persistence', CASE r.relpersistence WHEN 'p' THEN 'permanent' WHEN 'u' THEN 'unlogged' ELSE 'temporary' END),
    ('storage', CASE WHEN r.relkind <> 'S' THEN am.amname::text END),
    ('options', array_to_string(r.reloptions, ', ')),
    ('row security', CASE WHEN r.relrowsecurity OR r.relforcerowsecurity THEN 'on' END),
    ('replica identity', CASE r.relkind WHEN 'r' THEN CASE r.relreplident WHEN 'd' THEN 'primary key' WHEN 'f' THEN 'full'
      WHEN 'n' THEN 'nothing' ELSE 'an index' END END),
    ('place in another table', CASE WHEN r.relispartition THEN 'a partition of it' END),
    ('row type', CASE WHEN r.reloftype <> 0 THEN format_type(r.reloftype, NULL) END),
    ('definition', CASE WHEN r.relkind IN ('v', 'm') THEN (
      -- Where there is one table, servers from version 16 leave its name out in front of columns.
      SELECT CASE count(DISTINCT t.oid) WHEN 1 THEN regexp_replace(pg_get_viewdef(r.oid), '\m' || min(t.relname) || '\.', '', 'g')
             ELSE pg_get_viewdef(r.oid) END
      FROM pg_rewrite w JOIN pg_depend d ON d.classid = 'pg_rewrite'::regclass AND d.objid = w.oid
        JOIN pg_class t ON d.refclassid = 'pg_class'::regclass AND t.oid = d.refobjid AND t.oid <> r.oid
      WHERE w.ev_class = r.oid AND w.rulename = '_RETURN')
      WHEN r.relkind IN ('i', 'I') THEN pg_get_indexdef(r.oid) END),
    ('state', CASE WHEN NOT i.indisvalid OR NOT i.indisready OR NOT i.indislive THEN 'not valid' END),
    ('moment of its check', CASE WHEN NOT i.indimmediate THEN 'end of the transaction' END),
    -- What the server is told not to look for, although it is there.
    ('triggers', CASE WHEN NOT r.relhastriggers AND EXISTS (SELECT FROM pg_trigger t WHERE t.tgrelid = r.oid) THEN 'overlooked' END),
    ('rules', CASE WHEN NOT r.relhasrules AND EXISTS (SELECT FROM pg_rewrite w WHERE w.ev_class = r.oid) THEN 'overlooked' END),
    ('indexes', CASE WHEN NOT r.relhasindex AND EXISTS (SELECT FROM pg_index x WHERE x.indrelid = r.oid) THEN 'overlooked' END),
    ('checks', CASE WHEN r.relchecks <> (SELECT count(*) FROM pg_constraint c WHERE c.conrelid = r.oid AND c.contype = 'c')
      THEN 'overlooked' END)
  ) AS said (property, value)
  UNION ALL
  SELECT r.object, said.property, said.value
  FROM relation r JOIN pg_sequence s ON s.seqrelid = r.oid CROSS JOIN LATERAL (VALUES
    ('numbers', format('%s from %s by %s, between %s and %s%s', format_type(s.seqtypid, NULL), s.seqstart, s.seqincrement,
                       s.seqmin, s.seqmax, CASE WHEN s.seqcycle THEN ', over and over' ELSE '' END)),
    ('numbers taken at once', s.seqcache::text),
    ('column', (SELECT string_agg(format('%s.%s', t.relname, a.attname), ', ')
                FROM pg_depend d JOIN pg_class t ON t.oid = d.refobjid
                  JOIN pg_attribute a ON a.attrelid = t.oid AND a.attnum = d.refobjsubid
                WHERE d.classid = 'pg_class'::regclass AND d.objid = r.oid AND d.refclassid = 'pg_class'::regclass
                  AND d.deptype IN ('a', 'i')))
  ) AS said (property, value)
  UNION ALL
  SELECT format('column %s.%s', r.relname, a.attname), said.property, said.value
  FROM relation r JOIN pg_attribute a ON a.attrelid = r.oid AND a.attnum > 0 AND NOT a.attisdropped
    LEFT JOIN pg_attrdef d ON d.adrelid = a.attrelid AND d.adnum = a.attnum
    LEFT JOIN pg_collation c ON c.oid = a.attcollation CROSS JOIN LATERAL (VALUES
    ('place', a.attnum::text),
    ('type', format_type(a.atttypid, a.atttypmod)),
    ('emptiness', CASE WHEN a.attnotnull THEN 'forbidden' END),
    ('collation', c.collname::text),
    ('state of its default', CASE WHEN NOT a.atthasdef AND d.oid IS NOT NULL THEN 'overlooked' END),
    ('default', CASE WHEN a.attgenerated = '' THEN pg_get_expr(d.adbin, d.adrelid) END),
    ('formula', CASE WHEN a.attgenerated <> '' THEN pg_get_expr(d.adbin, d.adrelid) END),
    ('numbering', CASE a.attidentity WHEN 'd' THEN 'by default' WHEN 'a' THEN 'always' END),
    ('origin', CASE WHEN a.attinhcount > 0 THEN 'another table' END)
  ) AS said (property, value)
  WHERE r.relkind NOT IN ('i', 'I', 'S')

  UNION ALL
  -- That a column may not be empty is said of the column; servers from version 18 have a constraint for it, too.
  SELECT format('constraint %s.%s', coalesce(r.relname, t.typname), c.conname), said.property, said.value
  FROM pg_constraint c JOIN ours ON ours.oid = c.connamespace LEFT JOIN pg_class r ON r.oid = c.conrelid
    LEFT JOIN pg_type t ON t.oid = c.contypid CROSS JOIN LATERAL (VALUES
    ('definition', replace(pg_get_constraintdef(c.oid), ' NOT VALID', '')),
    ('state', CASE WHEN NOT c.convalidated THEN 'not valid' END),
    ('origin', CASE WHEN c.coninhcount > 0 THEN 'another table' END),
    ('state of its triggers', (SELECT CASE WHEN count(*) > 0 THEN 'disabled' END FROM pg_trigger g
                               WHERE g.tgconstraint = c.oid AND g.tgisinternal AND g.tgenabled <> 'O'))
  ) AS said (property, value)
  WHERE c.contype <> 'n'
  UNION ALL
  SELECT format('trigger %s.%s', r.relname, t.tgname), said.property, said.value
  FROM pg_trigger t JOIN relation r ON r.oid = t.tgrelid CROSS JOIN LATERAL (VALUES
    ('definition', pg_get_triggerdef(t.oid)),
    ('state', CASE t.tgenabled WHEN 'O' THEN 'enabled' WHEN 'D' THEN 'disabled' WHEN 'R' THEN 'for replicas only'
      ELSE 'for replicas, too' END)
  ) AS said (property, value)
  WHERE NOT t.tgisinternal
  UNION ALL
  SELECT format('rule %s.%s', r.relname, w.rulename), said.property, said.value
  FROM pg_rewrite w JOIN relation r ON r.oid = w.ev_class CROSS JOIN LATERAL (VALUES
    ('definition', CASE WHEN w.rulename <> '_RETURN' THEN pg_get_ruledef(w.oid) ELSE 'that of a view' END),
    ('state', CASE w.ev_enabled WHEN 'O' THEN 'enabled' ELSE 'disabled' END)
  ) AS said (property, value)
  UNION ALL
  SELECT format('policy %s.%s', r.relname, p.polname), 'command', p.polcmd::text
  FROM pg_policy p JOIN relation r ON r.oid = p.polrelid
  UNION ALL
  SELECT format('child %s.%s of the table %s', n.nspname, c.relname, r.relname), 'place', i.inhseqno::text
  FROM pg_inherits i JOIN relation r ON r.oid = i.inhparent AND r.relkind <> 'I' JOIN pg_class c ON c.oid = i.inhrelid
    JOIN pg_namespace n ON n.oid = c.relnamespace
  UNION ALL
  SELECT format('parent %s of the table %s', i.inhparent::regclass, r.relname), 'place', i.inhseqno::text
  FROM pg_inherits i JOIN relation r ON r.oid = i.inhrelid AND r.relkind <> 'I'

  UNION ALL
  SELECT r.object, said.property, said.value
  FROM routine r JOIN pg_language l ON l.oid = r.prolang CROSS JOIN LATERAL (VALUES
    ('kind', CASE r.prokind WHEN 'p' THEN 'procedure' WHEN 'f' THEN 'function' WHEN 'a' THEN 'aggregate' ELSE 'window' END),
    ('owner', r.proowner::regrole::text),
    ('language', l.lanname::text),
    ('rights that it acts with', CASE WHEN r.prosecdef THEN 'its owner''s' ELSE 'its caller''s' END),
    ('settings', array_to_string(r.proconfig, ', ')),
    ('volatility', CASE r.provolatile WHEN 'i' THEN 'immutable' WHEN 's' THEN 'stable' ELSE 'volatile' END),
    ('answer to an empty argument', CASE WHEN r.proisstrict THEN 'empty' END),
    ('secrecy', CASE WHEN r.proleakproof THEN 'leakproof' END),
    ('parallel use', CASE r.proparallel WHEN 's' THEN 'safe' WHEN 'r' THEN 'restricted' END),
    ('support function', CASE WHEN r.prosupport <> 0 THEN r.prosupport::text END),
    ('library', r.probin),
    ('arguments', nullif(pg_get_function_arguments(r.oid), '')),
    ('result', pg_get_function_result(r.oid)),
    ('text', coalesce(pg_get_function_sqlbody(r.oid), r.prosrc))
  ) AS said (property, value)

  UNION ALL
  SELECT t.object, said.property, said.value
  FROM own_type t CROSS JOIN LATERAL (VALUES
    ('owner', t.typowner::regrole::text),
    ('kind', CASE t.typtype WHEN 'c' THEN 'composite' WHEN 'd' THEN 'domain' WHEN 'e' THEN 'enumeration' ELSE 'other' END),
    ('base type', CASE t.typtype WHEN 'd' THEN format_type(t.typbasetype, t.typtypmod) END),
    ('default', t.typdefault),
    ('emptiness', CASE WHEN t.typnotnull THEN 'forbidden' END),
    ('values', (SELECT string_agg(e.enumlabel, ', ' ORDER BY e.enumsortorder) FROM pg_enum e WHERE e.enumtypid = t.oid))
  ) AS said (property, value)
  UNION ALL
  -- Whatever else a schema can hold: operators, their classes and families, collations, conversions, text search, statistics.
  SELECT format('%s %s', o.type, o.identity), 'kind', o.type
  FROM pg_depend d JOIN ours ON ours.oid = d.refobjid
    CROSS JOIN LATERAL pg_identify_object(d.classid, d.objid, d.objsubid) AS o
  WHERE d.refclassid = 'pg_namespace'::regclass
    AND d.classid NOT IN ('pg_class'::regclass, 'pg_proc'::regclass, 'pg_type'::regclass)
)
SELECT object, property, CASE property WHEN 'text' THEN value ELSE regexp_replace(value, '\n\s*', ' ', 'g') END
FROM fact WHERE value IS NOT NULL ORDER BY object COLLATE "C", property COLLATE "C"
