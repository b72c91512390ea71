-- The days of the calendar as they were after the last call at or before Moment, which is UTC: "2026-11-21T19:28:57.647Z",
-- or without milliseconds; or after the call of the entry EntryID of the history, 0 for before all of them. Either of the two
-- is given. The names and comments of the rules are those of that time, too.
-- Returns 0; 7 a value is missing or out of range; 3 unknown currency; 9 the history does not reach back so far; 5 there was
-- no such calendar then.
CREATE PROCEDURE CldGetAsOf(
  "ID1" integer DEFAULT NULL,
  "Year1" integer DEFAULT NULL,
  "Moment" text DEFAULT NULL,
  "EntryID" integer DEFAULT NULL,
  INOUT "RETURN_VALUE" integer DEFAULT NULL,
  INOUT "Days" refcursor DEFAULT 'Days'
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
DECLARE
  as_of timestamptz := MomentFrom("Moment");
  last_entry bigint;
  calendar_now boolean;
  change CldHistoryRow;
BEGIN
  IF "ID1" IS NULL OR "Year1" IS NULL OR "Year1" NOT BETWEEN 1900 AND 3000
    OR ("Moment" IS NULL) = ("EntryID" IS NULL) OR (as_of IS NULL) <> ("Moment" IS NULL) OR "EntryID" < 0
  THEN
    "RETURN_VALUE" := 7;
    RETURN;
  END IF;
  calendar_now := EXISTS (SELECT FROM CldCalendar WHERE ID1 = "ID1" AND Year1 = "Year1");
  IF NOT calendar_now AND NOT EXISTS (SELECT FROM DicCcy WHERE CcyID = "ID1" AND CcyType = 0) THEN
    "RETURN_VALUE" := 3;
    RETURN;
  END IF;
  IF EXISTS (SELECT FROM CldHistoryStart WHERE Moment > as_of OR EntryID > "EntryID") THEN
    "RETURN_VALUE" := 9;
    RETURN;
  END IF;

  -- What a row was then is what the first change since has replaced, or what it is now. A calendar that has gone since was
  -- there; what came to be under its number later is another.
  SELECT EntryID INTO last_entry FROM CldHistory WHERE Moment <= as_of ORDER BY EntryID DESC LIMIT 1;
  last_entry := coalesce("EntryID", last_entry, 0);
  SELECT * INTO change FROM CldHistoryRow
  WHERE ID1 = "ID1" AND Year1 = "Year1" AND Day1 IS NULL AND EntryID > last_entry ORDER BY EntryID LIMIT 1;
  IF FOUND AND change.OldRow IS NULL OR NOT FOUND AND NOT calendar_now THEN
    "RETURN_VALUE" := 5;
    RETURN;
  END IF;

  OPEN "Days" FOR
    WITH kept_day AS (
      SELECT DISTINCT ON (Day1) Day1, OldRow FROM CldHistoryRow
      WHERE ID1 = "ID1" AND Year1 = "Year1" AND Day1 IS NOT NULL
        AND EntryID > last_entry AND EntryID <= coalesce(change.EntryID, EntryID)
      ORDER BY Day1, EntryID
    ), kept_rule AS (
      SELECT DISTINCT ON (ID2) ID2, OldRow FROM CldHistoryRow
      WHERE ID2 IS NOT NULL AND EntryID > last_entry ORDER BY ID2, EntryID
    ), day AS (
      SELECT n AS Day1,
        CASE WHEN k.Day1 IS NOT NULL THEN (k.OldRow ->> 'TID1')::integer ELSE coalesce(d.TID1, 1) END AS TID1,
        CASE WHEN k.Day1 IS NOT NULL THEN (k.OldRow ->> 'ID2')::integer ELSE d.ID2 END AS ID2,
        CASE WHEN k.Day1 IS NOT NULL THEN k.OldRow ->> 'Comment' ELSE d.Comment END AS Comment
      FROM generate_series(1, make_date("Year1" + 1, 1, 1) - make_date("Year1", 1, 1)) AS n
        LEFT JOIN kept_day k ON k.Day1 = n
        LEFT JOIN CldDay d ON change.EntryID IS NULL AND d.ID1 = "ID1" AND d.Year1 = "Year1" AND d.Day1 = n
    )
    SELECT make_date("Year1", 1, 1) + (day.Day1 - 1) AS "ODate", day.TID1 AS "TID1",
      CASE WHEN k.ID2 IS NOT NULL THEN k.OldRow ->> 'Name1' ELSE h.Name1 END AS "Name1",
      CASE WHEN k.ID2 IS NOT NULL THEN k.OldRow ->> 'Comment' ELSE h.Comment END AS "Comment2",
      day.Comment AS "Comment", day.ID2 AS "ID2", day.Day1 AS "Day1"
    FROM day LEFT JOIN kept_rule k ON k.ID2 = day.ID2 LEFT JOIN CldHoliday h ON h.ID2 = day.ID2
    ORDER BY day.Day1;
  "RETURN_VALUE" := 0;
END
$$;
