-- Puts back what the call of the entry EntryID of the history changed: days with their comments, rules, calendars, books,
-- currencies. That is a call like any other and can be undone in turn. A rule that the call added stays when something else
-- uses it by now.
-- Returns 0; 7 there is no such entry; 9 something of it is not as the call left it, or cannot be what it was any more, or
-- there is nothing that could be put back. Fails when the entry is a currency's and the caller no administrator.
-- Locks are taken in one order everywhere: the built-in rule's row for all rules, currencies, calendars, each by key; and
-- last the rules that are to go, so that nobody assigns them meanwhile.
CREATE PROCEDURE CldUndo(
  "EntryID" integer DEFAULT NULL,
  INOUT "RETURN_VALUE" integer DEFAULT NULL
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
DECLARE
  undone CldHistory;
  entry bigint;
BEGIN
  SELECT * INTO undone FROM CldHistory WHERE EntryID = "EntryID";
  IF NOT FOUND THEN
    "RETURN_VALUE" := 7;
    RETURN;
  END IF;

  IF EXISTS (SELECT FROM CldHistoryRow WHERE EntryID = "EntryID" AND TableName IN ('DicCcy', 'CldConvention'))
    AND NOT pg_has_role(session_user, 'ferrowind_owner', 'MEMBER')
  THEN
    RAISE insufficient_privilege USING MESSAGE = 'permission denied to change the list of currencies';
  END IF;

  PERFORM FROM CldHoliday WHERE ID2 = 1 FOR NO KEY UPDATE;
  PERFORM FROM DicCcy
  WHERE CcyID IN (SELECT ID1 FROM CldHistoryRow WHERE EntryID = "EntryID" AND TableName <> 'CldDay')
  ORDER BY CcyID FOR NO KEY UPDATE;
  PERFORM FROM CldCalendar
  WHERE (ID1, Year1) IN (SELECT ID1, Year1 FROM CldHistoryRow WHERE EntryID = "EntryID" AND Year1 IS NOT NULL)
  ORDER BY ID1, Year1 FOR UPDATE;
  PERFORM FROM CldHoliday
  WHERE ID2 IN (SELECT ID2 FROM CldHistoryRow WHERE EntryID = "EntryID" AND OldRow IS NULL)
  ORDER BY ID2 FOR UPDATE;

  IF NOT CanBeUndone("EntryID") THEN
    "RETURN_VALUE" := 9;
    RETURN;
  END IF;

  entry := BeginEntry('CldUndo', undone.ID1, undone.Year1, json_build_object('EntryID', "EntryID"));
  PERFORM EndEntry(entry, PutBack("EntryID"));
  "RETURN_VALUE" := 0;
END
$$;
