-- Entries of the history, the newest first: all, or those of a currency ID1, of a year Year1, of one day's changes (Day1,
-- with both; the creation and the removal of its calendar are among them), before the entry Before, of the user UserName, or
-- the entry EntryID; at most Count, 100 when it is not given. Name1 is the name that the rule of the parameter ID2 had
-- behind the call; KeepsRows 0 says that nothing can be put back: the call left everything as it was, or is older than what
-- the history keeps. Behind them comes who asks, and then what the call of the entry EntryID replaced besides days and
-- calendars: each row's key, and its other columns before and behind the call as JSON, null where there was no such row.
-- Returns 0; 7 Day1 without its calendar, or Count out of range.
CREATE PROCEDURE CldGetHistory(
  "ID1" integer DEFAULT NULL,
  "Year1" integer DEFAULT NULL,
  "Day1" integer DEFAULT NULL,
  "Before" integer DEFAULT NULL,
  "Count" integer DEFAULT NULL,
  "UserName" text DEFAULT NULL,
  "EntryID" integer DEFAULT NULL,
  INOUT "RETURN_VALUE" integer DEFAULT NULL,
  INOUT "Entries" refcursor DEFAULT 'Entries',
  INOUT "Asker" refcursor DEFAULT 'Asker',
  INOUT "Rows" refcursor DEFAULT 'Rows'
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
DECLARE
  replaced json;
BEGIN
  IF "Day1" IS NOT NULL AND ("ID1" IS NULL OR "Year1" IS NULL) OR "Count" NOT BETWEEN 1 AND 10000 THEN
    "RETURN_VALUE" := 7;
    RETURN;
  END IF;

  OPEN "Entries" FOR
    SELECT h.EntryID::integer AS "EntryID",
      to_char(h.Moment AT TIME ZONE 'UTC', 'YYYY-MM-DD"T"HH24:MI:SS.MS"Z"') AS "Moment", h.UserName AS "UserName",
      h.ProcedureName AS "ProcedureName", h.ID1 AS "ID1", h.Year1 AS "Year1", h.Parameters::text AS "Parameters",
      h.RowsChanged::integer AS "RowsChanged",
      -- What the first call that changed the rule since then replaced, or what it is now.
      coalesce((
        SELECT later.OldRow ->> 'Name1' FROM CldHistoryRow later
        WHERE later.ID2 = (h.Parameters ->> 'ID2')::integer AND later.EntryID > h.EntryID
        ORDER BY later.EntryID LIMIT 1
      ), (SELECT rule.Name1 FROM CldHoliday rule WHERE rule.ID2 = (h.Parameters ->> 'ID2')::integer)) AS "Name1",
      (EXISTS (SELECT FROM CldHistoryRow kept WHERE kept.EntryID = h.EntryID))::integer AS "KeepsRows"
    FROM CldHistory h
    WHERE ("ID1" IS NULL OR h.ID1 = "ID1") AND ("Year1" IS NULL OR h.Year1 = "Year1")
      AND ("Before" IS NULL OR h.EntryID < "Before")
      AND ("UserName" IS NULL OR h.UserName = "UserName")
      AND ("EntryID" IS NULL OR h.EntryID = "EntryID")
      AND ("Day1" IS NULL OR EXISTS (
        SELECT FROM CldHistoryRow r
        WHERE r.EntryID = h.EntryID AND r.ID1 = "ID1" AND r.Year1 = "Year1" AND (r.Day1 = "Day1" OR r.Day1 IS NULL)))
    ORDER BY h.EntryID DESC LIMIT coalesce("Count", 100);

  OPEN "Asker" FOR SELECT session_user::text AS "UserName";

  -- Looked up here, where the functions find the tables; a cursor's rows are fetched when the call is over.
  SELECT json_agg(json_build_object('TableName', kept.TableName, 'ID1', kept.ID1, 'ID2', kept.ID2, 'Position', kept.Position,
    'OldRow', kept.OldRow::text,
    'NewRow', CASE WHEN next.EntryID IS NULL THEN ContentNow(kept) ELSE next.OldRow END::text)
    ORDER BY kept.TableName, kept.ID1, kept.ID2, kept.Position)
  INTO replaced
  FROM CldHistoryRow kept
    LEFT JOIN NextChanges("EntryID") AS next ON next.TableName = kept.TableName
      AND (next.ID1, next.ID2, next.Position) IS NOT DISTINCT FROM (kept.ID1, kept.ID2, kept.Position)
  WHERE kept.EntryID = "EntryID" AND kept.TableName NOT IN ('CldCalendar', 'CldDay');
  OPEN "Rows" FOR
    SELECT * FROM json_to_recordset(coalesce(replaced, '[]')) AS kept ("TableName" text, "ID1" integer, "ID2" integer,
      "Position" integer, "OldRow" text, "NewRow" text);
  "RETURN_VALUE" := 0;
END
$$;
