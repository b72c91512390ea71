-- A value as it goes into a hash, so that no two lists of values give the same text: its length in bytes, a colon and itself,
-- or a dash for null. The server puts it in place of its calls, which it can as long as nothing in it is more volatile than it
-- says. What a call costs is then looking up the functions that are left in the statement: it takes values as they are, since a
-- conversion in front of it would stand in each place of the value.
CREATE OR REPLACE FUNCTION HashField(value anyelement) RETURNS text
LANGUAGE sql STABLE
AS $$
  SELECT concat(CASE WHEN value IS NULL THEN '-' END, octet_length(value::text), CASE WHEN value IS NOT NULL THEN ':' END, value)
$$;

-- The entry of the call that is at work. A call that changes something begins it when it has its locks, so that entries which
-- changed the same rows are numbered in the order of their changes, and ends it behind its last change. Calls that the locks
-- let run at the same time are of different chains; the unique index refuses one that saw an older end of its chain.

CREATE OR REPLACE FUNCTION BeginEntry(procedure_name text, of_currency integer, of_year integer, parameters json)
RETURNS bigint
LANGUAGE plpgsql
AS $$
DECLARE
  entry bigint;
BEGIN
  INSERT INTO CldHistory (ProcedureName, ID1, Year1, Parameters, ReturnValue, RowsChanged, ChainPosition, Previous, Hash)
  SELECT procedure_name, of_currency, of_year, parameters, 0, 0, coalesce(last.ChainPosition, 0) + 1, coalesce(last.Hash, ''), ''
  FROM (SELECT) AS this LEFT JOIN (
    SELECT ChainPosition, Hash FROM CldHistory
    WHERE coalesce(ID1, 0) = coalesce(of_currency, 0) AND coalesce(Year1, 0) = coalesce(of_year, 0)
    ORDER BY ChainPosition DESC LIMIT 1) AS last ON true
  RETURNING EntryID INTO entry;
  PERFORM set_config('ferrowind.entry', entry::text, true);
  RETURN entry;
END
$$;

-- The hash is over the columns of the entry in front of Hash, in their order, and those of its rows in theirs. The engine of a
-- file computes the same of the same content. It stands in the statement that writes it, since one that is prepared once is
-- several times as fast as a function that the server plans anew in each call.
-- Whoever listens is told once the call is done, and not what it did: anyone who may connect may listen, and may raise the
-- same notification. Who changed what is asked of CldGetHistory, which is for operators alone.
CREATE OR REPLACE FUNCTION EndEntry(entry bigint, rows_changed bigint) RETURNS void
LANGUAGE plpgsql
AS $$
BEGIN
  UPDATE CldHistory ended SET RowsChanged = rows_changed, Hash = encode(sha256(convert_to(
    HashField(EntryID) || HashField(to_char(Moment AT TIME ZONE 'UTC', 'YYYY-MM-DD"T"HH24:MI:SS.MS"Z"'))
    || HashField(UserName) || HashField(ProcedureName) || HashField(ID1) || HashField(Year1)
    || HashField(Parameters) || HashField(ReturnValue) || HashField(rows_changed)
    || HashField(ChainPosition) || HashField(Previous)
    || coalesce((
      SELECT string_agg(
        HashField(RowNumber) || HashField(TableName) || HashField(ID1) || HashField(Year1)
        || HashField(Day1) || HashField(ID2) || HashField(Position) || HashField(OldRow)
        || HashField(NewRow), '' ORDER BY RowNumber)
      FROM CldHistoryRow WHERE CldHistoryRow.EntryID = ended.EntryID), ''), 'UTF8')), 'hex')
  WHERE EntryID = entry;
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
