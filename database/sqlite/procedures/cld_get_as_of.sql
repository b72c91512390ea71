-- procedure CldGetAsOf reads
-- parameter @ID1 int32
-- parameter @Year1 int32
-- parameter @Moment text
-- parameter @EntryID int32
-- The days of one calendar, as CldGetMain gave them behind the last call at or before Moment, a UTC time written
-- YYYY-MM-DDTHH:MM:SSZ, with or without milliseconds; or behind the call of the entry EntryID of the history, 0 for before
-- all of them. Either of the two is given.
-- Returns 0; 7 a value is missing, out of range or malformed; 3 unknown currency; 9 the history does not reach back
-- to then; 5 there was no such calendar.

SELECT iif(length(:Moment) = 20 AND substr(:Moment, 20) = 'Z', substr(:Moment, 1, 19) || '.000Z', :Moment) AS "@Moment";

SELECT CASE
    WHEN :ID1 IS NULL OR :Year1 IS NULL OR :Year1 NOT BETWEEN 1900 AND 3000 OR (:Moment IS NULL) = (:EntryID IS NULL)
      OR :Moment IS NOT strftime('%Y-%m-%dT%H:%M:%fZ', :Moment, '0 days') OR :EntryID < 0 THEN 7
    WHEN NOT EXISTS (SELECT 1 FROM CldCalendar WHERE ID1 = :ID1 AND Year1 = :Year1)
      AND NOT EXISTS (SELECT 1 FROM DicCcy WHERE CcyID = :ID1 AND CcyType = 0) THEN 3
    WHEN EXISTS (SELECT 1 FROM CldHistoryStart WHERE Moment > :Moment OR EntryID > :EntryID) THEN 9
    ELSE 0
  END AS "@Refusal",
  coalesce(:EntryID, (SELECT EntryID FROM CldHistory WHERE Moment <= :Moment ORDER BY EntryID DESC LIMIT 1), 0) AS "@EntryID";

SELECT :Refusal AS "@return" WHERE :Refusal <> 0;

-- The first call since then that made or removed the calendar tells whether it was there.
SELECT EntryID AS "@Replaced", OldRow IS NOT NULL AS "@WasThere"
FROM CldHistoryRow
WHERE TableName = 'CldCalendar' AND ID1 = :ID1 AND Year1 = :Year1 AND EntryID > :EntryID
ORDER BY EntryID
LIMIT 1;

SELECT 5 AS "@return"
WHERE NOT ifnull(:WasThere, EXISTS (SELECT 1 FROM CldCalendar WHERE ID1 = :ID1 AND Year1 = :Year1));

-- A day and a rule were what the first call since then replaced, or what they are now. A day of a calendar that is not the
-- one of now was an ordinary working day, unless that calendar's removal says otherwise.
WITH OldDay AS (
  SELECT Day1, OldRow, min(EntryID)
  FROM CldHistoryRow
  WHERE TableName = 'CldDay' AND ID1 = :ID1 AND Year1 = :Year1
    AND EntryID > :EntryID AND (:Replaced IS NULL OR EntryID <= :Replaced)
  GROUP BY Day1
), OldRule AS (
  SELECT ID2, OldRow, min(EntryID) FROM CldHistoryRow WHERE TableName = 'CldHoliday' AND EntryID > :EntryID GROUP BY ID2
), Day AS (
  SELECT n.Day1,
    CASE WHEN o.Day1 IS NOT NULL THEN json_extract(o.OldRow, '$.TID1') ELSE ifnull(d.TID1, 1) END AS TID1,
    CASE WHEN o.Day1 IS NOT NULL THEN json_extract(o.OldRow, '$.ID2') ELSE d.ID2 END AS ID2,
    CASE WHEN o.Day1 IS NOT NULL THEN json_extract(o.OldRow, '$.Comment') ELSE d.Comment END AS Comment
  FROM YearDay n
    LEFT JOIN OldDay o ON o.Day1 = n.Day1
    LEFT JOIN CldDay d ON d.ID1 = :ID1 AND d.Year1 = :Year1 AND d.Day1 = n.Day1 AND :Replaced IS NULL
  WHERE n.Day1 <= CAST(strftime('%j', :Year1 || '-12-31') AS INTEGER)
)
SELECT date(:Year1 || '-01-01', (d.Day1 - 1) || ' days') AS "ODate DATE", d.TID1,
  CASE WHEN o.ID2 IS NOT NULL THEN json_extract(o.OldRow, '$.Name1') ELSE h.Name1 END AS Name1,
  CASE WHEN o.ID2 IS NOT NULL THEN json_extract(o.OldRow, '$.Comment') ELSE h.Comment END AS Comment2,
  d.Comment, d.ID2, d.Day1
FROM Day d
  LEFT JOIN OldRule o ON o.ID2 = d.ID2
  LEFT JOIN CldHoliday h ON h.ID2 = d.ID2
ORDER BY d.Day1;
