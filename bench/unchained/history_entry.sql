-- The functions of the history as they are without a chain: nothing is looked up and nothing hashed. The columns of the chain
-- are there, and empty.

CREATE OR REPLACE FUNCTION ferrowind.BeginEntry(procedure_name text, of_currency integer, of_year integer, parameters json)
RETURNS bigint
LANGUAGE plpgsql
AS $$
DECLARE
  entry bigint := nextval('cldhistory_entryid_seq');
BEGIN
  INSERT INTO CldHistory (EntryID, ProcedureName, ID1, Year1, Parameters, ReturnValue, RowsChanged, ChainPosition, Previous,
                          Hash)
  VALUES (entry, procedure_name, of_currency, of_year, parameters, 0, 0, entry, '', '');
  PERFORM set_config('ferrowind.entry', entry::text, true);
  RETURN entry;
END
$$;

CREATE OR REPLACE FUNCTION ferrowind.EndEntry(entry bigint, rows_changed bigint) RETURNS void
LANGUAGE plpgsql
AS $$
BEGIN
  UPDATE CldHistory SET RowsChanged = rows_changed WHERE EntryID = entry;
  NOTIFY ferrowind_change;
  PERFORM set_config('ferrowind.entry', '', true);
END
$$;
