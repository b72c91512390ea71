-- All that reviews look at: every calendar with the days that have a rule as one text, the rules, the heads of the rule
-- books and their rules, the currencies. In the text each day is "Day1,TID1,ID2,length:Comment", where the length counts
-- the bytes of the comment, and nothing stands between one day and the next.
-- Returns 0.
CREATE PROCEDURE CldGetContent(
  INOUT "RETURN_VALUE" integer DEFAULT NULL,
  INOUT "Calendars" refcursor DEFAULT 'Calendars',
  INOUT "Rules" refcursor DEFAULT 'Rules',
  INOUT "Books" refcursor DEFAULT 'Books',
  INOUT "Recurrences" refcursor DEFAULT 'Recurrences',
  INOUT "Currencies" refcursor DEFAULT 'Currencies'
)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp
AS $$
BEGIN
  OPEN "Calendars" FOR
    SELECT k.ID1 AS "ID1", k.Year1 AS "Year1", coalesce(d.Days, '') AS "Days"
    FROM CldCalendar k LEFT JOIN (
      SELECT ID1, Year1, string_agg(
        Day1 || ',' || TID1 || ',' || ID2 || ',' || octet_length(coalesce(Comment, '')) || ':' || coalesce(Comment, ''),
        '' ORDER BY Day1) AS Days
      FROM CldDay WHERE ID2 IS NOT NULL GROUP BY ID1, Year1
    ) d ON d.ID1 = k.ID1 AND d.Year1 = k.Year1
    ORDER BY k.ID1, k.Year1;
  OPEN "Rules" FOR
    SELECT ID2 AS "ID2", Name1 AS "Name1", TID1 AS "TID1", MY AS "MY", MD AS "MD", Del AS "Del"
    FROM CldHoliday ORDER BY ID2;
  OPEN "Books" FOR
    SELECT ID1 AS "ID1", Publisher AS "Publisher", Document AS "Document", FromYear AS "FromYear"
    FROM CldBook ORDER BY ID1;
  OPEN "Recurrences" FOR
    SELECT ID1 AS "ID1", Position AS "Position", Name1 AS "Name1", TID1 AS "TID1", Expression AS "Expression",
      Comment AS "Comment", MovedName AS "MovedName"
    FROM CldRecurrence ORDER BY ID1, Position;
  OPEN "Currencies" FOR
    SELECT CcyID AS "CcyID", Ccy AS "Ccy", CcyType AS "CcyType", Name AS "Name", LastDay AS "LastDay"
    FROM DicCcy ORDER BY CcyID;
  "RETURN_VALUE" := 0;
END
$$;
