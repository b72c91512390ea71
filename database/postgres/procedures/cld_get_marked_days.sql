-- Every day of the years FromYear to ToYear that has a rule, whatever the calendar; exceptions are among them.
-- Returns 0; 7 a value is missing, or the years are not in order.
CREATE PROCEDURE CldGetMarkedDays(
  "FromYear" integer DEFAULT NULL,
  "ToYear" integer DEFAULT NULL,
  INOUT "RETURN_VALUE" integer DEFAULT NULL,
  INOUT "Days" refcursor DEFAULT 'Days'
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
BEGIN
  IF "FromYear" IS NULL OR "ToYear" IS NULL OR "FromYear" > "ToYear" THEN
    "RETURN_VALUE" := 7;
    RETURN;
  END IF;

  OPEN "Days" FOR
    SELECT ID1 AS "ID1", Year1 AS "Year1", Day1 AS "Day1", TID1 AS "TID1", ID2 AS "ID2", Comment AS "Comment"
    FROM CldDay WHERE Year1 BETWEEN "FromYear" AND "ToYear" AND ID2 IS NOT NULL ORDER BY ID1, Year1, Day1;
  "RETURN_VALUE" := 0;
END
$$;
