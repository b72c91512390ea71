-- procedure CldGetMain reads
-- parameter @ID1 int32
-- parameter @Year1 int32
-- The days of one calendar.
-- Returns 0; 7 a value is missing or out of range; 3 unknown currency; 5 unknown calendar.

SELECT CASE
    WHEN :ID1 IS NULL OR :Year1 IS NULL OR :Year1 NOT BETWEEN 1900 AND 3000 THEN 7
    WHEN NOT EXISTS (SELECT 1 FROM DicCcy WHERE CcyID = :ID1 AND CcyType = 0) THEN 3
    ELSE 5
  END AS "@return"
WHERE NOT EXISTS (SELECT 1 FROM CldCalendar WHERE ID1 = :ID1 AND Year1 = :Year1);

SELECT d.ODate, d.TID1, h.Name1, h.Comment AS Comment2, d.Comment, d.ID2, d.Day1
FROM CldDay d LEFT JOIN CldHoliday h ON h.ID2 = d.ID2
WHERE d.ID1 = :ID1 AND d.Year1 = :Year1
ORDER BY d.Day1;
