-- procedure CldUndo writes
-- parameter @EntryID int32
-- Puts back what the call of that entry of the history changed, as a call of its own, which can be undone likewise. A rule
-- that the call added stays when something else uses it by now.
-- Returns 0; 7 no such entry; 9 the entry keeps no rows, or putting them back would lose what others did since: a row is
-- not as the call left it, its calendar was made or removed again, a rule that a day had is gone, a name is taken, a
-- calendar or a book would be of no legal money, or nothing is left to put back.

SELECT 7 AS "@return" WHERE NOT EXISTS (SELECT 1 FROM CldHistory WHERE EntryID = :EntryID);

-- This call is one for the same calendar.
SELECT ID1 AS "@ID1", Year1 AS "@Year1", total_changes() AS "@ChangesBefore" FROM CldHistory WHERE EntryID = :EntryID;

-- A calendar that was made or removed since is not the one that the call saw.
SELECT 9 AS "@return"
FROM CldHistoryRow r
  JOIN CldHistoryRow l ON l.TableName = 'CldCalendar' AND l.ID1 = r.ID1 AND l.Year1 = r.Year1 AND l.EntryID > r.EntryID
WHERE r.EntryID = :EntryID
LIMIT 1;

-- How the call left a row is what the next call that changed it replaced. Both tell the columns in the same order.
WITH AsLeft AS (
  SELECT r.TableName, r.ID1, r.Year1, r.Day1, r.ID2, r.Position, l.OldRow, min(l.EntryID)
  FROM CldHistoryRow r JOIN CldHistoryRow l
    ON (l.TableName, l.ID1, l.Year1, l.Day1, l.ID2, l.Position) IS (r.TableName, r.ID1, r.Year1, r.Day1, r.ID2, r.Position)
      AND l.EntryID > r.EntryID
  WHERE r.EntryID = :EntryID
  GROUP BY r.RowNumber
  UNION ALL
  -- The days of a calendar that the call made. From its row to theirs, not through all days that were ever replaced.
  SELECT l.TableName, l.ID1, l.Year1, l.Day1, NULL, NULL, l.OldRow, min(l.EntryID)
  FROM CldHistoryRow r
    CROSS JOIN CldHistoryRow l ON l.TableName = 'CldDay' AND l.ID1 = r.ID1 AND l.Year1 = r.Year1 AND l.EntryID > r.EntryID
  WHERE r.EntryID = :EntryID AND r.TableName = 'CldCalendar' AND r.OldRow IS NULL
  GROUP BY l.Day1
), Now AS (
  SELECT CASE l.TableName
    WHEN 'CldDay' THEN (
      SELECT json_array(TID1, ID2, Comment) FROM CldDay d WHERE d.ID1 = l.ID1 AND d.Year1 = l.Year1 AND d.Day1 = l.Day1)
    WHEN 'CldHoliday' THEN (
      SELECT json_array(Name1, Comment, TID1, D1, MY, MD, WD, Del) FROM CldHoliday h WHERE h.ID2 = l.ID2)
    WHEN 'DicCcy' THEN (SELECT json_array(Ccy, CcyType, Name, LastDay) FROM DicCcy c WHERE c.CcyID = l.ID1)
    WHEN 'CldBook' THEN (SELECT json_array(Publisher, Document, FromYear) FROM CldBook b WHERE b.ID1 = l.ID1)
    WHEN 'CldRecurrence' THEN (
      SELECT json_array(Name1, TID1, Expression, Comment, MovedName)
      FROM CldRecurrence e WHERE e.ID1 = l.ID1 AND e.Position = l.Position)
    WHEN 'CldConvention' THEN (
      SELECT json_array(SpotDays, DollarStops) FROM CldConvention v WHERE v.ID1 = l.ID1 AND v.OtherID = l.Position)
  END AS Row,
  CASE l.TableName
    WHEN 'CldDay' THEN json_extract(l.OldRow, '$.TID1', '$.ID2', '$.Comment')
    WHEN 'CldHoliday' THEN
      json_extract(l.OldRow, '$.Name1', '$.Comment', '$.TID1', '$.D1', '$.MY', '$.MD', '$.WD', '$.Del')
    WHEN 'DicCcy' THEN json_extract(l.OldRow, '$.Ccy', '$.CcyType', '$.Name', '$.LastDay')
    WHEN 'CldBook' THEN json_extract(l.OldRow, '$.Publisher', '$.Document', '$.FromYear')
    WHEN 'CldRecurrence' THEN json_extract(l.OldRow, '$.Name1', '$.TID1', '$.Expression', '$.Comment', '$.MovedName')
    WHEN 'CldConvention' THEN json_extract(l.OldRow, '$.SpotDays', '$.DollarStops')
  END AS RowAsLeft
  FROM AsLeft l
)
SELECT 9 AS "@return" FROM Now WHERE Row IS NOT RowAsLeft LIMIT 1;

-- A rule that a day had is gone, unless it comes back with the day, or its number is another rule's.
WITH Needed (ID2) AS (
  SELECT DISTINCT json_extract(OldRow, '$.ID2') FROM CldHistoryRow WHERE EntryID = :EntryID AND TableName = 'CldDay'
)
SELECT 9 AS "@return"
FROM Needed n
WHERE n.ID2 IS NOT NULL
  AND n.ID2 NOT IN (SELECT ID2 FROM CldHistoryRow WHERE EntryID = :EntryID AND TableName = 'CldHoliday')
  AND (n.ID2 NOT IN (SELECT ID2 FROM CldHoliday)
    OR n.ID2 IN (
      SELECT ID2 FROM CldHistoryRow WHERE TableName = 'CldHoliday' AND EntryID > :EntryID AND OldRow IS NULL))
LIMIT 1;

-- A name is another's by now.
SELECT 9 AS "@return"
FROM CldHistoryRow r
WHERE r.EntryID = :EntryID
  AND (r.TableName = 'CldHoliday'
      AND EXISTS (SELECT 1 FROM CldHoliday h WHERE h.Name1 = json_extract(r.OldRow, '$.Name1') AND h.ID2 <> r.ID2)
    OR r.TableName = 'DicCcy'
      AND EXISTS (SELECT 1 FROM DicCcy c WHERE c.Ccy = json_extract(r.OldRow, '$.Ccy') AND c.CcyID <> r.ID1))
LIMIT 1;

INSERT INTO DicCcy (CcyID, Ccy, CcyType, Name, LastDay)
SELECT ID1, json_extract(OldRow, '$.Ccy'), json_extract(OldRow, '$.CcyType'), json_extract(OldRow, '$.Name'),
  json_extract(OldRow, '$.LastDay')
FROM CldHistoryRow
WHERE EntryID = :EntryID AND TableName = 'DicCcy' AND OldRow IS NOT NULL
ON CONFLICT (CcyID) DO UPDATE
SET Ccy = excluded.Ccy, CcyType = excluded.CcyType, Name = excluded.Name, LastDay = excluded.LastDay;

DELETE FROM DicCcy
WHERE CcyID IN (SELECT ID1 FROM CldHistoryRow WHERE EntryID = :EntryID AND TableName = 'DicCcy' AND OldRow IS NULL)
  AND CcyID NOT IN (
    SELECT ID1 FROM CldCalendar UNION SELECT ID1 FROM CldBook UNION SELECT ID1 FROM CldConvention
    UNION SELECT OtherID FROM CldConvention);

-- A calendar and a book come back with their currency only.
SELECT 9 AS "@return"
FROM CldHistoryRow
WHERE EntryID = :EntryID AND TableName IN ('CldCalendar', 'CldBook') AND OldRow IS NOT NULL
  AND ID1 NOT IN (SELECT CcyID FROM DicCcy)
LIMIT 1;

INSERT INTO CldHoliday (ID2, Name1, Comment, TID1, D1, MY, MD, WD, Del)
SELECT ID2, json_extract(OldRow, '$.Name1'), json_extract(OldRow, '$.Comment'), json_extract(OldRow, '$.TID1'),
  json_extract(OldRow, '$.D1'), json_extract(OldRow, '$.MY'), json_extract(OldRow, '$.MD'), json_extract(OldRow, '$.WD'),
  json_extract(OldRow, '$.Del')
FROM CldHistoryRow
WHERE EntryID = :EntryID AND TableName = 'CldHoliday' AND OldRow IS NOT NULL
ON CONFLICT (ID2) DO UPDATE
SET Name1 = excluded.Name1, Comment = excluded.Comment, D1 = excluded.D1, MY = excluded.MY, MD = excluded.MD,
  WD = excluded.WD, Del = excluded.Del;

-- Calendars that the call removed come back, those that it made go.
INSERT INTO CldCalendar (ID1, Year1)
SELECT ID1, Year1 FROM CldHistoryRow WHERE EntryID = :EntryID AND TableName = 'CldCalendar' AND OldRow IS NOT NULL;

INSERT INTO CldDay (ID1, Year1, Day1, ODate, TID1)
SELECT r.ID1, r.Year1, d.Day1, date(r.Year1 || '-01-01', (d.Day1 - 1) || ' days'), 1
FROM CldHistoryRow r JOIN YearDay d ON d.Day1 <= CAST(strftime('%j', r.Year1 || '-12-31') AS INTEGER)
WHERE r.EntryID = :EntryID AND r.TableName = 'CldCalendar' AND r.OldRow IS NOT NULL;

UPDATE CldDay
SET TID1 = json_extract(r.OldRow, '$.TID1'), ID2 = json_extract(r.OldRow, '$.ID2'),
  Comment = json_extract(r.OldRow, '$.Comment')
FROM CldHistoryRow r
WHERE r.EntryID = :EntryID AND r.TableName = 'CldDay'
  AND CldDay.ID1 = r.ID1 AND CldDay.Year1 = r.Year1 AND CldDay.Day1 = r.Day1;

DELETE FROM CldDay
WHERE (ID1, Year1) IN (
  SELECT ID1, Year1 FROM CldHistoryRow WHERE EntryID = :EntryID AND TableName = 'CldCalendar' AND OldRow IS NULL);

DELETE FROM CldCalendar
WHERE (ID1, Year1) IN (
  SELECT ID1, Year1 FROM CldHistoryRow WHERE EntryID = :EntryID AND TableName = 'CldCalendar' AND OldRow IS NULL);

DELETE FROM CldHoliday
WHERE ID2 IN (SELECT ID2 FROM CldHistoryRow WHERE EntryID = :EntryID AND TableName = 'CldHoliday' AND OldRow IS NULL)
  AND ID2 NOT IN (SELECT ID2 FROM CldDay WHERE ID2 IS NOT NULL);

INSERT INTO CldBook (ID1, Publisher, Document, FromYear)
SELECT ID1, json_extract(OldRow, '$.Publisher'), json_extract(OldRow, '$.Document'), json_extract(OldRow, '$.FromYear')
FROM CldHistoryRow
WHERE EntryID = :EntryID AND TableName = 'CldBook' AND OldRow IS NOT NULL
ON CONFLICT (ID1) DO UPDATE
SET Publisher = excluded.Publisher, Document = excluded.Document, FromYear = excluded.FromYear;

INSERT INTO CldRecurrence (ID1, Position, Name1, TID1, Expression, Comment, MovedName)
SELECT ID1, Position, json_extract(OldRow, '$.Name1'), json_extract(OldRow, '$.TID1'), json_extract(OldRow, '$.Expression'),
  json_extract(OldRow, '$.Comment'), json_extract(OldRow, '$.MovedName')
FROM CldHistoryRow
WHERE EntryID = :EntryID AND TableName = 'CldRecurrence' AND OldRow IS NOT NULL
ON CONFLICT (ID1, Position) DO UPDATE
SET Name1 = excluded.Name1, TID1 = excluded.TID1, Expression = excluded.Expression, Comment = excluded.Comment,
  MovedName = excluded.MovedName;

DELETE FROM CldRecurrence
WHERE (ID1, Position) IN (
  SELECT ID1, Position FROM CldHistoryRow WHERE EntryID = :EntryID AND TableName = 'CldRecurrence' AND OldRow IS NULL);

DELETE FROM CldBook
WHERE ID1 IN (SELECT ID1 FROM CldHistoryRow WHERE EntryID = :EntryID AND TableName = 'CldBook' AND OldRow IS NULL);

-- A convention comes back with its currencies only.
SELECT 9 AS "@return"
FROM CldHistoryRow
WHERE EntryID = :EntryID AND TableName = 'CldConvention' AND OldRow IS NOT NULL
  AND (ID1 NOT IN (SELECT CcyID FROM DicCcy) OR Position NOT IN (SELECT CcyID FROM DicCcy))
LIMIT 1;

INSERT INTO CldConvention (ID1, OtherID, SpotDays, DollarStops)
SELECT ID1, Position, json_extract(OldRow, '$.SpotDays'), json_extract(OldRow, '$.DollarStops')
FROM CldHistoryRow
WHERE EntryID = :EntryID AND TableName = 'CldConvention' AND OldRow IS NOT NULL
ON CONFLICT (ID1, OtherID) DO UPDATE SET SpotDays = excluded.SpotDays, DollarStops = excluded.DollarStops;

DELETE FROM CldConvention
WHERE (ID1, OtherID) IN (
  SELECT ID1, Position FROM CldHistoryRow WHERE EntryID = :EntryID AND TableName = 'CldConvention' AND OldRow IS NULL);

-- What came back is of money, and of no year after it.
SELECT 9 AS "@return"
FROM CldHistoryRow r
  JOIN DicCcy c ON c.CcyID = r.ID1
  LEFT JOIN CldCalendar k ON k.ID1 = r.ID1 AND (r.TableName = 'DicCcy' OR r.TableName = 'CldCalendar' AND k.Year1 = r.Year1)
  LEFT JOIN CldBook b ON b.ID1 = r.ID1 AND r.TableName IN ('DicCcy', 'CldBook')
WHERE r.EntryID = :EntryID
  AND (c.CcyType <> 0 AND (k.ID1 IS NOT NULL OR b.ID1 IS NOT NULL) OR c.LastDay < k.Year1 || '-01-01')
LIMIT 1;

SELECT 9 AS "@return" WHERE total_changes() = :ChangesBefore;
