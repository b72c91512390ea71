-- procedure CldGetHistory reads
-- parameter @ID1 int32
-- parameter @Year1 int32
-- parameter @Day1 int32
-- parameter @Before int32
-- parameter @Count int32
-- The calls for the currency ID1 and the year Year1, whichever is given, the newest first; with Day1 those that changed
-- that day, or made or removed its calendar. Only entries before the entry Before, and Count at most (100).
-- Returns 0; 7 a value is out of range, or a day is given without its calendar.

SELECT 7 AS "@return"
WHERE :Count NOT BETWEEN 1 AND 10000 OR :Day1 IS NOT NULL AND (:ID1 IS NULL OR :Year1 IS NULL);

SELECT EntryID, Moment, UserName, ProcedureName, ID1, Year1, Parameters, RowsChanged
FROM CldHistory
WHERE (:ID1 IS NULL OR ID1 = :ID1)
  AND (:Year1 IS NULL OR Year1 = :Year1)
  AND (:Before IS NULL OR EntryID < :Before)
  AND (:Day1 IS NULL OR EntryID IN (
    SELECT EntryID FROM CldHistoryRow
    WHERE TableName = 'CldDay' AND ID1 = :ID1 AND Year1 = :Year1 AND Day1 = :Day1
    UNION
    SELECT EntryID FROM CldHistoryRow WHERE TableName = 'CldCalendar' AND ID1 = :ID1 AND Year1 = :Year1))
ORDER BY EntryID DESC
LIMIT ifnull(:Count, 100);
