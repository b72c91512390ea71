-- Of every calendar of the years FromYear to ToYear its days as a text: '1' for a closed day, '0' for a working day; and the code
-- of its currency. Rules has the numbers of the rules that close those days, in their order, with commas between; the second
-- record set tells what the rules are called. IsPrepared is 0 of a calendar that is closed on weekends at most, because nobody has entered its holidays yet.
-- Readers may call it, too.
-- Returns 0; 7 a value is missing, or the years are not in order.
CREATE PROCEDURE CldGetClosedDays(
  "FromYear" integer DEFAULT NULL,
  "ToYear" integer DEFAULT NULL,
  INOUT "RETURN_VALUE" integer DEFAULT NULL,
  INOUT "Calendars" refcursor DEFAULT 'Calendars',
  INOUT "Rules" refcursor DEFAULT 'Rules'
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
BEGIN
  IF "FromYear" IS NULL OR "ToYear" IS NULL OR "FromYear" > "ToYear" THEN
    "RETURN_VALUE" := 7;
    RETURN;
  END IF;

  OPEN "Calendars" FOR
    SELECT ID1 AS "ID1", Year1 AS "Year1", Days AS "Days", Ccy AS "Ccy", IsPrepared AS "IsPrepared", Rules AS "Rules"
    FROM (
      SELECT ID1, Year1, string_agg(CASE TID1 WHEN 1 THEN '0' ELSE '1' END, '' ORDER BY Day1) AS Days,
        bool_or(TID1 > 2)::integer AS IsPrepared,
        coalesce(string_agg(ID2::text, ',' ORDER BY Day1) FILTER (WHERE TID1 <> 1), '') AS Rules
      FROM CldDay WHERE Year1 BETWEEN "FromYear" AND "ToYear" GROUP BY ID1, Year1
    ) AS calendar JOIN DicCcy ON CcyID = ID1
    ORDER BY ID1, Year1;
  OPEN "Rules" FOR SELECT ID2 AS "ID2", Name1 AS "Name1" FROM CldHoliday ORDER BY ID2;
  "RETURN_VALUE" := 0;
END
$$;
