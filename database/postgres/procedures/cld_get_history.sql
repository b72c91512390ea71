-- Entries of the history, the newest first: all, or those of a currency ID1, of a year Year1, of one day's changes (Day1,
-- with both; the creation and the removal of its calendar are among them), before the entry Before; at most Count, 100 when
-- it is not given.
-- Returns 0; 7 Day1 without its calendar, or Count out of range.
CREATE PROCEDURE CldGetHistory(
  "ID1" integer DEFAULT NULL,
  "Year1" integer DEFAULT NULL,
  "Day1" integer DEFAULT NULL,
  "Before" integer DEFAULT NULL,
  "Count" integer DEFAULT NULL,
  INOUT "RETURN_VALUE" integer DEFAULT NULL,
  INOUT "Entries" refcursor DEFAULT 'Entries'
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
BEGIN
  IF "Day1" IS NOT NULL AND ("ID1" IS NULL OR "Year1" IS NULL) OR "Count" NOT BETWEEN 1 AND 10000 THEN
    "RETURN_VALUE" := 7;
    RETURN;
  END IF;

  OPEN "Entries" FOR
    SELECT h.EntryID::integer AS "EntryID",
      to_char(h.Moment AT TIME ZONE 'UTC', 'YYYY-MM-DD"T"HH24:MI:SS.MS"Z"') AS "Moment", h.UserName AS "UserName",
      h.ProcedureName AS "ProcedureName", h.ID1 AS "ID1", h.Year1 AS "Year1", h.Parameters::text AS "Parameters",
      h.RowsChanged::integer AS "RowsChanged"
    FROM CldHistory h
    WHERE ("ID1" IS NULL OR h.ID1 = "ID1") AND ("Year1" IS NULL OR h.Year1 = "Year1")
      AND ("Before" IS NULL OR h.EntryID < "Before")
      AND ("Day1" IS NULL OR EXISTS (
        SELECT FROM CldHistoryRow r
        WHERE r.EntryID = h.EntryID AND r.ID1 = "ID1" AND r.Year1 = "Year1" AND (r.Day1 = "Day1" OR r.Day1 IS NULL)))
    ORDER BY h.EntryID DESC LIMIT coalesce("Count", 100);
  "RETURN_VALUE" := 0;
END
$$;
