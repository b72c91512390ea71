-- The entry of the call that is at work. A call that changes something begins it when it has its locks, so that entries which
-- changed the same rows are numbered in the order of their changes, and ends it behind its last change.

CREATE OR REPLACE FUNCTION BeginEntry(procedure_name text, of_currency integer, of_year integer, parameters json)
RETURNS bigint
LANGUAGE plpgsql
AS $$
DECLARE
  entry bigint;
BEGIN
  INSERT INTO CldHistory (ProcedureName, ID1, Year1, Parameters, ReturnValue, RowsChanged)
  VALUES (procedure_name, of_currency, of_year, parameters, 0, 0)
  RETURNING EntryID INTO entry;
  PERFORM set_config('ferrowind.entry', entry::text, true);
  RETURN entry;
END
$$;

-- Whoever listens is told once the call is done, and not what it did: anyone who may connect may listen, and may raise the
-- same notification. Who changed what is asked of CldGetHistory, which is for operators alone.
CREATE OR REPLACE FUNCTION EndEntry(entry bigint, rows_changed bigint) RETURNS void
LANGUAGE plpgsql
AS $$
BEGIN
  UPDATE CldHistory SET RowsChanged = rows_changed WHERE EntryID = entry;
  NOTIFY ferrowind_change;
  PERFORM set_config('ferrowind.entry', '', true);
END
$$;

-- Null outside calls: what an administrator changes by hand, and what a copy writes, belongs to no entry.
CREATE OR REPLACE FUNCTION EntryAtWork() RETURNS bigint
LANGUAGE sql STABLE
AS $$
  SELECT nullif(current_setting('ferrowind.entry', true), '')::bigint
$$;
