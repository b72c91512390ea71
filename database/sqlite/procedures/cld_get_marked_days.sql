-- procedure CldGetMarkedDays reads
-- parameter @FromYear int32
-- parameter @ToYear int32
-- Every day that has a rule, working days by exception too, in the calendars of these years.
-- Returns 0; 7 a year is missing or the years are no span.

SELECT 7 AS "@return" WHERE NOT ifnull(:FromYear <= :ToYear, 0);

-- Calendar by calendar. The "+" keeps the span off the days, where it would be taken for the way to find them.
SELECT d.ID1, d.Year1, d.Day1, d.TID1, d.ID2, d.Comment
FROM CldCalendar k CROSS JOIN CldDay d ON d.ID1 = k.ID1 AND d.Year1 = k.Year1
WHERE +k.Year1 BETWEEN :FromYear AND :ToYear AND d.ID2 IS NOT NULL
ORDER BY k.ID1, k.Year1, d.Day1;
