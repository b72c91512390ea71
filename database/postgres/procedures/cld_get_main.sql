-- The days of one calendar.
-- Returns 0; 7 a value is missing or out of range; 3 unknown currency; 5 unknown calendar.
CREATE PROCEDURE CldGetMain(
  "ID1" integer DEFAULT NULL,
  "Year1" integer DEFAULT NULL,
  INOUT "RETURN_VALUE" integer DEFAULT NULL,
  INOUT "Days" refcursor DEFAULT 'Days'
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
BEGIN
  OPEN "Days" SCROLL FOR
    SELECT d.ODate AS "ODate", d.TID1 AS "TID1", h.Name1 AS "Name1", h.Comment AS "Comment2", d.Comment AS "Comment",
      d.ID2 AS "ID2", d.Day1 AS "Day1"
    FROM CldDay d LEFT JOIN CldHoliday h ON h.ID2 = d.ID2
    WHERE d.ID1 = "ID1" AND d.Year1 = "Year1"
    ORDER BY d.Day1;

  -- Every calendar has days. Whether it is there is asked of the very rows that the caller gets: it may come or go between
  -- one statement and the next.
  MOVE NEXT FROM "Days";
  IF NOT FOUND THEN
    CLOSE "Days";
    "RETURN_VALUE" := CASE
      WHEN "ID1" IS NULL OR "Year1" IS NULL OR "Year1" NOT BETWEEN 1900 AND 3000 THEN 7
      WHEN NOT EXISTS (SELECT FROM DicCcy WHERE CcyID = "ID1" AND CcyType = 0) THEN 3
      ELSE 5
    END;
    RETURN;
  END IF;
  MOVE ABSOLUTE 0 FROM "Days";
  "RETURN_VALUE" := 0;
END
$$;
