-- A sentence for every setting by which calls would do something else or fail: those of this database and of logins, and of the
-- server those that differ from what it has built in. What administrators tune is theirs: memory, logs, plans of queries,
-- connections, the log of changes, and time-outs that are no shorter than the time of a call.
WITH this AS (
  SELECT oid, datname FROM pg_database WHERE datname = current_database()
), delivered AS (
  SELECT oid FROM pg_roles WHERE rolname IN ('ferrowind_owner', 'ferrowind_operator', 'ferrowind_reader')
), given AS (
  SELECT s.setdatabase, r.rolname, pg_catalog.split_part(line, '=', 1) AS name, substr(line, strpos(line, '=') + 1) AS value
  FROM pg_db_role_setting s CROSS JOIN unnest(s.setconfig) AS line LEFT JOIN pg_roles r ON r.oid = s.setrole
  WHERE s.setdatabase IN (0, (SELECT oid FROM this))
    AND (s.setrole = 0 OR EXISTS (SELECT FROM delivered d WHERE pg_has_role(s.setrole, d.oid, 'MEMBER')
                                  AND NOT r.rolsuper OR d.oid = s.setrole)
         OR s.setdatabase <> 0)
), behaviour AS (
  -- Kinds of settings, by one of each: what they are called depends on the server's language.
  SELECT DISTINCT category FROM pg_settings
  WHERE name IN ('row_security', 'session_preload_libraries', 'dynamic_library_path', 'IntervalStyle', 'zero_damaged_pages',
                 'exit_on_error', 'array_nulls', 'transform_null_equals')
)
SELECT format('%s %s is set to "%s"%s; take it back: ALTER %s RESET %I', who.text, s.name, s.value,
              CASE WHEN s.setdatabase = 0 OR s.rolname IS NULL THEN '' ELSE ' in this database' END, who.owner, s.name)
FROM given s CROSS JOIN this t CROSS JOIN LATERAL (SELECT
  CASE WHEN s.rolname IS NULL AND s.setdatabase = 0 THEN 'For everybody' WHEN s.rolname IS NULL THEN 'In this database'
    ELSE format('For %I', s.rolname) END AS text,
  CASE WHEN s.rolname IS NULL AND s.setdatabase = 0 THEN 'ROLE ALL' WHEN s.rolname IS NULL THEN format('DATABASE %I', t.datname)
    WHEN s.setdatabase = 0 THEN format('ROLE %I', s.rolname)
    ELSE format('ROLE %I IN DATABASE %I', s.rolname, t.datname) END AS owner
) AS who
WHERE s.name !~ '^(log_|tcp_|auto_explain\.)'
  AND s.name NOT IN ('work_mem', 'maintenance_work_mem', 'temp_file_limit', 'client_connection_check_interval', 'deadlock_timeout')
  -- A number without a unit is one of milliseconds.
  AND NOT (s.name ~ '^(statement|lock|idle_session|idle_in_transaction_session|transaction)_timeout$'
           AND CASE WHEN s.value ~ '^\d+$' THEN s.value::numeric NOT BETWEEN 1 AND 4999
               WHEN s.value ~ '^\d+ ?(ms|s|min|h|d)$' THEN s.value::interval NOT BETWEEN '1 us' AND '4999 ms' ELSE false END)
UNION ALL
SELECT format('The server has %s set to "%s" instead of "%s", in %s; correct it', name, reset_val, boot_val,
              coalesce(sourcefile, 'its start or the login''s settings'))
FROM pg_settings
WHERE (category IN (SELECT category FROM behaviour) OR name = 'event_triggers') AND reset_val IS DISTINCT FROM boot_val
  -- A server is set up with its country's forms; a transaction has the other three for itself.
  AND name !~ '^(lc_|transaction_(isolation|read_only|deferrable)$|vacuum_|gin_)'
  AND name NOT IN ('DateStyle', 'TimeZone', 'timezone_abbreviations', 'client_encoding', 'default_text_search_config', 'client_min_messages',
                   'default_tablespace', 'temp_tablespaces', 'default_toast_compression', 'restart_after_crash',
                   'recovery_init_sync_method')
  AND NOT (name ~ '_timeout$' AND reset_val !~ '^[1-4]?\d{1,3}$')
  -- Libraries that come with the server, or that banks add, to watch what it does.
  AND NOT (name ~ '_preload_libraries$' AND reset_val ~ ('^\s*"?(auto_explain|auth_delay|passwordcheck|pg_prewarm|pg_stat_statements|pgaudit)"?'
    || '(\s*,\s*"?(auto_explain|auth_delay|passwordcheck|pg_prewarm|pg_stat_statements|pgaudit)"?)*\s*$'))
UNION ALL
SELECT format('The server has %s set to "%s"; take it back', name, current_setting(name, true))
FROM (VALUES ('plpgsql.variable_conflict', 'error'), ('ferrowind.entry', '')) AS own (name, usual)
WHERE coalesce(current_setting(name, true), '') NOT IN ('', usual)
ORDER BY 1
