-- procedure CldGetClosedDays reads
-- parameter @FromYear int32
-- parameter @ToYear int32
-- Every calendar of these years with its days as a text, a character a day: 1 for closed, 0 for a working day; and the code of
-- its currency. IsPrepared is 0 of a calendar that is closed on weekends at most, because nobody has entered its holidays yet.
-- Rules has the numbers of the rules that close those days, in their order, with commas between; then what the rules are called.
-- Returns 0; 7 a year is missing or the years are no span.

SELECT 7 AS "@return" WHERE NOT ifnull(:FromYear <= :ToYear, 0);

SELECT k.ID1, k.Year1, (
  SELECT group_concat(IsClosed, '')
  FROM (
    -- Texts, since joining numbers takes half as long again.
    SELECT CASE d.TID1 WHEN 1 THEN '0' ELSE '1' END AS IsClosed
    FROM CldDay d WHERE d.ID1 = k.ID1 AND d.Year1 = k.Year1 ORDER BY d.Day1
  )
) AS Days, c.Ccy, EXISTS (
  SELECT 1 FROM CldDay d WHERE d.ID1 = k.ID1 AND d.Year1 = k.Year1 AND d.ID2 IS NOT NULL AND d.TID1 > 2
) AS IsPrepared, ifnull((
  SELECT group_concat(ID2, ',')
  FROM (
    -- Closed days have a rule, which lets the index of those that have one do.
    SELECT d.ID2 FROM CldDay d
    WHERE d.ID1 = k.ID1 AND d.Year1 = k.Year1 AND d.ID2 IS NOT NULL AND d.TID1 <> 1 ORDER BY d.Day1
  )
), '') AS Rules
FROM CldCalendar k JOIN DicCcy c ON c.CcyID = k.ID1
WHERE k.Year1 BETWEEN :FromYear AND :ToYear
ORDER BY k.ID1, k.Year1;

SELECT ID2, Name1 FROM CldHoliday ORDER BY ID2;
