-- procedure CldGetClosedDays reads
-- parameter @FromYear int32
-- parameter @ToYear int32
-- Every calendar of these years with its days as a text, a character a day: 1 for closed, 0 for a working day.
-- Returns 0; 7 a year is missing or the years are no span.

SELECT 7 AS "@return" WHERE NOT ifnull(:FromYear <= :ToYear, 0);

SELECT k.ID1, k.Year1, (
  SELECT group_concat(IsClosed, '')
  FROM (SELECT d.TID1 <> 1 AS IsClosed FROM CldDay d WHERE d.ID1 = k.ID1 AND d.Year1 = k.Year1 ORDER BY d.Day1)
) AS Days
FROM CldCalendar k
WHERE k.Year1 BETWEEN :FromYear AND :ToYear
ORDER BY k.ID1, k.Year1;
