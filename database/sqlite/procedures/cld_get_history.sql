-- procedure CldGetHistory reads
-- parameter @ID1 int32
-- parameter @Year1 int32
-- parameter @Day1 int32
-- parameter @Before int32
-- parameter @Count int32
-- parameter @UserName text
-- parameter @EntryID int32
-- The calls for the currency ID1 and the year Year1, whichever is given, the newest first; with Day1 those that changed
-- that day, or made or removed its calendar. Only entries before the entry Before, those of the user UserName, the entry
-- EntryID, and Count at most (100). Name1 is the name that the rule of the parameter ID2 had behind the call; KeepsRows 0
-- says that nothing can be put back: the call left everything as it was, or is older than what the history keeps.
-- Behind the entries comes who asks, and then what the call of the entry EntryID replaced besides days and calendars: each
-- row's key, and its other columns before and behind the call as JSON, NULL where there was no such row.
-- Returns 0; 7 a value is out of range, or a day is given without its calendar.

SELECT 7 AS "@return"
WHERE :Count NOT BETWEEN 1 AND 10000 OR :Day1 IS NOT NULL AND (:ID1 IS NULL OR :Year1 IS NULL);

WITH Entry AS (
  SELECT EntryID, Moment, UserName, ProcedureName, ID1, Year1, Parameters, RowsChanged,
    CASE WHEN json_valid(Parameters) THEN json_extract(Parameters, '$.ID2') END AS ID2
  FROM CldHistory
  WHERE (:ID1 IS NULL OR ID1 = :ID1)
    AND (:Year1 IS NULL OR Year1 = :Year1)
    AND (:Before IS NULL OR EntryID < :Before)
    AND (:UserName IS NULL OR UserName = :UserName)
    AND (:EntryID IS NULL OR EntryID = :EntryID)
    AND (:Day1 IS NULL OR EntryID IN (
      SELECT EntryID FROM CldHistoryRow
      WHERE TableName = 'CldDay' AND ID1 = :ID1 AND Year1 = :Year1 AND Day1 = :Day1
      UNION
      SELECT EntryID FROM CldHistoryRow WHERE TableName = 'CldCalendar' AND ID1 = :ID1 AND Year1 = :Year1))
  ORDER BY EntryID DESC
  LIMIT ifnull(:Count, 100)
)
SELECT e.EntryID, e.Moment, e.UserName, e.ProcedureName, e.ID1, e.Year1, e.Parameters, e.RowsChanged,
  -- What the first call that changed the rule since then replaced, or what it is now.
  ifnull((
    SELECT json_extract(l.OldRow, '$.Name1')
    FROM CldHistoryRow l
    WHERE l.TableName = 'CldHoliday' AND l.ID1 IS NULL AND l.Year1 IS NULL AND l.Day1 IS NULL AND l.ID2 = e.ID2
      AND l.Position IS NULL AND l.EntryID > e.EntryID
    ORDER BY l.EntryID
    LIMIT 1
  ), (SELECT h.Name1 FROM CldHoliday h WHERE h.ID2 = e.ID2)) AS Name1,
  EXISTS (SELECT 1 FROM CldHistoryRow r WHERE r.EntryID = e.EntryID) AS KeepsRows
FROM Entry e
ORDER BY e.EntryID DESC;

SELECT FERROWIND_USER() AS UserName;

WITH Replaced AS (
  SELECT r.TableName, r.ID1, r.ID2, r.Position, r.RowNumber, r.OldRow, min(l.EntryID), l.EntryID IS NULL AS IsStillSo,
    l.OldRow AS ReplacedSince
  FROM CldHistoryRow r
    LEFT JOIN CldHistoryRow l
      ON (l.TableName, l.ID1, l.Year1, l.Day1, l.ID2, l.Position) IS (r.TableName, r.ID1, NULL, NULL, r.ID2, r.Position)
        AND l.EntryID > r.EntryID
  WHERE r.EntryID = :EntryID AND r.TableName NOT IN ('CldCalendar', 'CldDay')
  GROUP BY r.RowNumber
)
SELECT TableName, ID1, ID2, Position, OldRow,
  CASE
    WHEN NOT IsStillSo THEN ReplacedSince
    WHEN TableName = 'CldHoliday' THEN (
      SELECT json_object('Name1', Name1, 'Comment', Comment, 'TID1', TID1, 'D1', D1, 'MY', MY, 'MD', MD, 'WD', WD, 'Del', Del)
      FROM CldHoliday h WHERE h.ID2 = r.ID2)
    WHEN TableName = 'DicCcy' THEN (
      SELECT json_object('Ccy', Ccy, 'CcyType', CcyType, 'Name', Name, 'LastDay', LastDay) FROM DicCcy c WHERE c.CcyID = r.ID1)
    WHEN TableName = 'CldBook' THEN (
      SELECT json_object('Publisher', Publisher, 'Document', Document, 'FromYear', FromYear) FROM CldBook b WHERE b.ID1 = r.ID1)
    WHEN TableName = 'CldRecurrence' THEN (
      SELECT json_object('Name1', Name1, 'TID1', TID1, 'Expression', Expression, 'Comment', Comment, 'MovedName', MovedName)
      FROM CldRecurrence e WHERE e.ID1 = r.ID1 AND e.Position = r.Position)
    WHEN TableName = 'CldConvention' THEN (
      SELECT json_object('SpotDays', SpotDays, 'DollarStops', DollarStops)
      FROM CldConvention v WHERE v.ID1 = r.ID1 AND v.OtherID = r.Position)
  END AS NewRow
FROM Replaced r
ORDER BY TableName, ID1, ID2, Position;
