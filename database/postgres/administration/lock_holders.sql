-- A sentence for everybody who holds a lock on a table of a name like $2 in a mode like $1, both patterns; with $3 "rows" without
-- those who wait for somebody themselves; the oldest transaction first. One that is prepared has no process. Of other logins, only superusers and members of pg_read_all_stats see since when.
WITH holder AS (
  SELECT DISTINCT l.pid, l.virtualtransaction
  FROM pg_catalog.pg_locks l JOIN pg_catalog.pg_database d ON d.oid = l.database
    JOIN pg_catalog.pg_class c ON c.oid = l.relation JOIN pg_catalog.pg_namespace n ON n.oid = c.relnamespace
  WHERE l.locktype = 'relation' AND l.granted AND l.pid IS DISTINCT FROM pg_backend_pid() AND l.mode ~ $1
    AND d.datname = current_database() AND n.nspname = 'ferrowind' AND c.relname ~ $2
    AND ($3 <> 'rows' OR NOT EXISTS (SELECT FROM pg_catalog.pg_locks w WHERE w.pid = l.pid AND NOT w.granted))
), named AS (
  SELECT h.pid, p.gid, coalesce(p.owner, a.usename) AS login, a.application_name,
    extract(epoch FROM clock_timestamp() - coalesce(p.prepared, a.xact_start))::bigint AS age
  FROM holder h LEFT JOIN pg_catalog.pg_stat_activity a ON a.pid = h.pid
    LEFT JOIN pg_catalog.pg_locks x
      ON h.pid IS NULL AND x.locktype = 'transactionid' AND x.pid IS NULL AND x.virtualtransaction = h.virtualtransaction
    LEFT JOIN pg_catalog.pg_prepared_xacts p ON p.transaction = x.transactionid
)
SELECT CASE WHEN gid IS NOT NULL
  THEN format('The prepared transaction %s of %I keeps the tables locked; ROLLBACK PREPARED %1$s ends that. ', quote_literal(gid), login)
  ELSE format('%s (application "%s", process %s) keeps the tables locked%s; SELECT pg_terminate_backend(%3$s) ends that. ',
    coalesce(quote_ident(login), 'The server itself'), application_name, pid,
    ', in a transaction that is ' || CASE WHEN age < 120 THEN age || ' s' WHEN age < 7200 THEN age / 60 || ' min'
      ELSE age / 3600 || ' h' END || ' old') END
FROM named ORDER BY age DESC NULLS LAST, pid
